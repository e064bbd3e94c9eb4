# Run by specloom_embed: writes SOURCE and HEADER from the files NAMES of FOLDER.
# The text goes out as arrays of numbers: string literals have a length limit and would need escapes.

set(arrays "")
set(rows "")
set(count 0)
foreach(name IN LISTS NAMES)
  file(READ "${FOLDER}/${name}" bytes HEX)
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
  string(APPEND arrays "constexpr unsigned char file${count}[] = {\n${bytes}0x00};\n")
  string(APPEND rows "        EmbeddedFile{\"${name}\", {reinterpret_cast<const char*>(file${count}), ${length}}},\n")
  math(EXPR count "${count} + 1")
endforeach()

set(includes "")
set(declarations "")
set(definitions "")
if(FUNCTION)
  string(APPEND includes "#include <string_view> // std::string_view\n")
  string(APPEND declarations "
/// The content of the embedded file of this name; a view with a null data pointer when there is none.
std::string_view ${FUNCTION}(std::string_view name) noexcept;
")
  string(APPEND definitions "
std::string_view ${FUNCTION}(std::string_view name) noexcept {
    for (const EmbeddedFile& file : files())
        if (file.name == name)
            return file.content;
    return {};
}
")
endif()
if(TABLE)
  string(PREPEND includes "#include \"foundation/embedded_file.h\"\n\n#include <span> // std::span\n")
  string(APPEND declarations "
/// The embedded files, sorted by their names.
std::span<const EmbeddedFile> ${TABLE}() noexcept;
")
  string(APPEND definitions "
std::span<const EmbeddedFile> ${TABLE}() noexcept {
    return files();
}
")
endif()

file(WRITE "${HEADER}.new" "#pragma once

${includes}
namespace ${NAMESPACE} {
${declarations}
} // namespace ${NAMESPACE}
")
file(WRITE "${SOURCE}.new" "#include \"${INCLUDE}\"

#include <array> // std::array
#include <span>  // std::span

#include \"foundation/embedded_file.h\"

namespace ${NAMESPACE} {
namespace {
${arrays}
std::span<const EmbeddedFile> files() noexcept {
    static const std::array<EmbeddedFile, ${count}> table = {
${rows}    };
    return table;
}
} // namespace
${definitions}
} // namespace ${NAMESPACE}
")
foreach(file IN ITEMS "${HEADER}" "${SOURCE}")
  file(COPY_FILE "${file}.new" "${file}" ONLY_IF_DIFFERENT)
  file(REMOVE "${file}.new")
  file(TOUCH_NOCREATE "${file}")
endforeach()
