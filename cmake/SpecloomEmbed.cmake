# Turns the files of a folder and its sub-folders into one generated source, so that the program contains them.
#
#   specloom_embed(cli FOLDER texts PATTERN *.txt NAMESPACE specloom::cli FUNCTION embeddedText TABLE embeddedTexts)
#
# gives the module a generated header "<FUNCTION, or else TABLE, in lower_snake_case>.h" that declares what is
# asked for of
#
#   std::string_view embeddedText(std::string_view name) noexcept;
#   std::span<const EmbeddedFile> embeddedTexts() noexcept;
#
# The first returns the content of the file of that name, or an empty view with a null data pointer; the second
# all of them (foundation/src/embedded_file.h), sorted by their names. A name is the path from the folder, with
# "/" between its parts. Files that come and go are noticed by the next build.
#
# CRLF turns each line feed into a carriage return and a line feed: templates are kept with plain line feeds, so
# that neither an editor nor git can spoil them. Without it the files are embedded as they are.

set(SPECLOOM_EMBED_SCRIPT "${CMAKE_CURRENT_LIST_DIR}/embed_files.cmake")

function(specloom_embed name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "CRLF" "FOLDER;PATTERN;NAMESPACE;FUNCTION;TABLE" "")
  set(folder "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}")
  file(GLOB_RECURSE names CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/${arg_PATTERN}")
  list(SORT names)
  list(TRANSFORM names PREPEND "${folder}/" OUTPUT_VARIABLE files)
  set(file "${arg_FUNCTION}")
  if(NOT file)
    set(file "${arg_TABLE}")
  endif()
  string(REGEX REPLACE "([A-Z])" "_\\1" file "${file}")
  string(TOLOWER "${file}" file)
  set(root "${CMAKE_CURRENT_BINARY_DIR}/embedded")
  set(source "${root}/${name}/${file}.cpp")
  set(header "${root}/${name}/${file}.h")
  add_custom_command(
    OUTPUT "${source}" "${header}"
    COMMAND ${CMAKE_COMMAND}
      "-DFOLDER=${folder}" "-DNAMES=${names}" "-DSOURCE=${source}" "-DHEADER=${header}"
      "-DINCLUDE=${name}/${file}.h" "-DNAMESPACE=${arg_NAMESPACE}" "-DFUNCTION=${arg_FUNCTION}"
      "-DTABLE=${arg_TABLE}" "-DCRLF=${arg_CRLF}"
      -P "${SPECLOOM_EMBED_SCRIPT}"
    DEPENDS ${files} "${SPECLOOM_EMBED_SCRIPT}"
    VERBATIM)
  target_sources(specloom_${name} PRIVATE "${source}" "${header}")
  # Generated sources share their names of things, so they stay out of unity sources.
  set_source_files_properties("${source}" PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  target_include_directories(specloom_${name} PRIVATE "${root}")
endfunction()
