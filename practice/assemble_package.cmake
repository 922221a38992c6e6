# Puts the practice package together:
# cmake -DPROGRAM=... -DNAMES=... -DSOURCE=... -DPACKAGE=... [-DMANUALS=...] [-DSTRIP=...] -P this file

# A program or text is copied when its original is newer, so that one changed in the package stays until then.
# The old one goes first: a program may be running, and a link must not lead out of the package.
function(refresh original copy)
  if(NOT EXISTS "${copy}" OR "${original}" IS_NEWER_THAN "${copy}")
    file(REMOVE "${copy}")
    file(COPY_FILE "${original}" "${copy}")
    file(TOUCH_NOCREATE "${copy}")
  endif()
endfunction()

file(MAKE_DIRECTORY "${PACKAGE}/graphs")

# A copy for each name, so that a real program can take the place of one. Without debugging information they
# are small.
set(program "${PROGRAM}")
if(STRIP)
  set(program "${PROGRAM}.stripped")
  if("${PROGRAM}" IS_NEWER_THAN "${program}")
    execute_process(COMMAND "${STRIP}" -o "${program}" "${PROGRAM}" COMMAND_ERROR_IS_FATAL ANY)
  endif()
endif()
foreach(name IN LISTS NAMES)
  refresh("${program}" "${PACKAGE}/${name}.exe")
endforeach()

file(GLOB texts RELATIVE "${SOURCE}/help" "${SOURCE}/help/*.txt")
foreach(text IN LISTS texts)
  refresh("${SOURCE}/help/${text}" "${PACKAGE}/${text}")
endforeach()

file(GLOB graph_types RELATIVE "${SOURCE}/graphs" "${SOURCE}/graphs/*.GRA")
foreach(graph_type IN LISTS graph_types)
  refresh("${SOURCE}/graphs/${graph_type}" "${PACKAGE}/graphs/${graph_type}")
endforeach()

if(MANUALS)
  file(MAKE_DIRECTORY "${PACKAGE}/manuals")
endif()
foreach(manual IN LISTS MANUALS)
  get_filename_component(name "${manual}" NAME)
  refresh("${manual}" "${PACKAGE}/manuals/${name}")
endforeach()

# A trial belongs to its user as soon as it is there.
file(GLOB_RECURSE trial_files RELATIVE "${SOURCE}/trials" "${SOURCE}/trials/[!.]*")
foreach(trial_file IN LISTS trial_files)
  if(NOT EXISTS "${PACKAGE}/trials/${trial_file}" AND NOT IS_SYMLINK "${PACKAGE}/trials/${trial_file}")
    get_filename_component(directory "${PACKAGE}/trials/${trial_file}" DIRECTORY)
    file(MAKE_DIRECTORY "${directory}")
    file(COPY_FILE "${SOURCE}/trials/${trial_file}" "${PACKAGE}/trials/${trial_file}")
  endif()
endforeach()
