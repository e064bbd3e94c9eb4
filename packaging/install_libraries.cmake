# Puts libraries that the program needs into SPECLOOM_LIBRARY_FOLDER. Run while installing, with
#
#   SPECLOOM_PROGRAM     the program in its build folder, whose run path leads to them
#   SPECLOOM_SYSTEM_TOO  whether also those that the system has, save the C and C++ libraries
#   SPECLOOM_PATCHELF    the tool that gives a library its run path: they need one another

set(base_libraries "^ld-linux" "^lib(c|m|dl|pthread|rt|gcc_s|stdc\\+\\+)\\.so")
set(system_folders "^/lib(32|64|x32)?/" "^/usr/lib(32|64|x32)?/" "^/usr/local/lib(32|64|x32)?/")
if(SPECLOOM_SYSTEM_TOO)
  set(system_folders "")
endif()

file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES "${SPECLOOM_PROGRAM}"
  RESOLVED_DEPENDENCIES_VAR libraries
  UNRESOLVED_DEPENDENCIES_VAR missing
  PRE_EXCLUDE_REGEXES ${base_libraries}
  POST_EXCLUDE_REGEXES ${system_folders})
if(missing)
  message(FATAL_ERROR "${SPECLOOM_PROGRAM} needs libraries that are not there: ${missing}")
endif()

foreach(library IN LISTS libraries)
  get_filename_component(name "${library}" NAME)
  get_filename_component(file "${library}" REALPATH)
  set(target "${SPECLOOM_LIBRARY_FOLDER}/${name}")
  # Under the name by which it is asked for, so no links are needed.
  file(INSTALL DESTINATION "${SPECLOOM_LIBRARY_FOLDER}" TYPE FILE FILES "${file}" RENAME "${name}")
  if(NOT SPECLOOM_PATCHELF)
    message(FATAL_ERROR "patchelf is needed to install ${name} beside the program")
  endif()
  execute_process(COMMAND "${SPECLOOM_PATCHELF}" --set-rpath "$ORIGIN" "$ENV{DESTDIR}${target}"
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
