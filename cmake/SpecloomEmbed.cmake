# Turns the files of a folder into one generated source, so that the program carries them.
#
#   specloom_embed(cli FOLDER texts PATTERN *.txt NAMESPACE specloom::cli FUNCTION carriedText)
#
# gives the module a generated header "<function in lower_snake_case>.h" that declares
#
#   std::string_view carriedText(std::string_view fileName) noexcept;
#
# which returns the content of the file of that name, or an empty view with a null data pointer.
# CRLF turns each line feed into a carriage return and a line feed (templates are kept with plain
# line feeds, so that neither an editor nor git can spoil them).

set(SPECLOOM_EMBED_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/embed_files.cmake")

function(specloom_embed name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "CRLF" "FOLDER;PATTERN;NAMESPACE;FUNCTION" "")
  set(folder "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}")
  file(GLOB files CONFIGURE_DEPENDS "${folder}/${arg_PATTERN}")
  string(REGEX REPLACE "([A-Z])" "_\\1" file "${arg_FUNCTION}")
  string(TOLOWER "${file}" file)
  set(root "${CMAKE_CURRENT_BINARY_DIR}/embedded")
  set(source "${root}/${name}/${file}.cpp")
  set(header "${root}/${name}/${file}.h")
  add_custom_command(
    OUTPUT "${source}" "${header}"
    COMMAND ${CMAKE_COMMAND}
      "-DFILES=${files}" "-DSOURCE=${source}" "-DHEADER=${header}" "-DINCLUDE=${name}/${file}.h"
      "-DNAMESPACE=${arg_NAMESPACE}" "-DFUNCTION=${arg_FUNCTION}" "-DCRLF=${arg_CRLF}"
      -P "${SPECLOOM_EMBED_SCRIPT}"
    DEPENDS ${files} "${SPECLOOM_EMBED_SCRIPT}"
    VERBATIM)
  target_sources(specloom_${name} PRIVATE "${source}" "${header}")
  # Generated sources share their names of things, so they stay out of unity sources.
  set_source_files_properties("${source}" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  target_include_directories(specloom_${name} PRIVATE "${root}")
endfunction()
