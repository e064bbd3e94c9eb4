# Run by specloom_embed: writes SOURCE and HEADER from FILES.
# The text goes out as arrays of numbers: string literals have a length limit and would need escapes.

set(arrays "")
set(rows "")
set(index 0)
foreach(path IN LISTS FILES)
  get_filename_component(name "${path}" NAME)
  file(READ "${path}" bytes HEX)
  if(CRLF)
    # Pairs of digits first, so that a match can never start in the middle of a byte.
    string(REGEX REPLACE "(..)" "\\1 " bytes "${bytes}")
    string(REPLACE "0d 0a " "0a " bytes "${bytes}")
    string(REPLACE "0a " "0d 0a " bytes "${bytes}")
    string(REPLACE " " "" bytes "${bytes}")
  endif()
  string(LENGTH "${bytes}" length)
  math(EXPR length "${length} / 2")
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  # Lines of a readable length, for debuggers and compilers alike.
  string(REGEX REPLACE "(................................................................................)"
         "\\1\n" bytes "${bytes}")
  string(APPEND arrays "constexpr unsigned char file${index}[] = {\n${bytes}0x00};\n")
  string(APPEND rows "    {\"${name}\", {reinterpret_cast<const char*>(file${index}), ${length}}},\n")
  math(EXPR index "${index} + 1")
endforeach()

file(WRITE "${HEADER}.new" "#pragma once

#include <string_view> // std::string_view

namespace ${NAMESPACE} {

/// The content of the carried file of this name; a view with a null data pointer when there is none.
std::string_view ${FUNCTION}(std::string_view fileName) noexcept;

} // namespace ${NAMESPACE}
")
file(WRITE "${SOURCE}.new" "#include \"${INCLUDE}\"

namespace ${NAMESPACE} {
namespace {
${arrays}
struct File {
    std::string_view name;
    std::string_view content;
};
} // namespace

std::string_view ${FUNCTION}(std::string_view fileName) noexcept {
  static const File files[] = {
${rows}  };
  for (const File& file : files)
    if (file.name == fileName)
      return file.content;
  return {};
}

} // namespace ${NAMESPACE}
")
foreach(file IN ITEMS "${HEADER}" "${SOURCE}")
  file(COPY_FILE "${file}.new" "${file}" ONLY_IF_DIFFERENT)
  file(REMOVE "${file}.new")
  file(TOUCH_NOCREATE "${file}")
endforeach()
