# Icon, manifest and version resource of the program. It takes KINOVRA_CONTACT_NAME as the company's name.

set(KINOVRA_PROGRAM_RESOURCES ${CMAKE_CURRENT_LIST_DIR})

function(kinovra_add_program_resources target)
  set(FOLDER "${KINOVRA_PROGRAM_RESOURCES}")
  set(MANIFEST "${CMAKE_CURRENT_BINARY_DIR}/kinovra.manifest")
  # As text between the quotes of a resource script.
  string(REPLACE "\\" "\\\\" COMPANY "${KINOVRA_CONTACT_NAME}")
  string(REPLACE "\"" "\"\"" COMPANY "${COMPANY}")

  configure_file("${FOLDER}/kinovra.manifest.in" "${MANIFEST}" @ONLY NEWLINE_STYLE LF)
  configure_file("${FOLDER}/kinovra.rc.in" "${CMAKE_CURRENT_BINARY_DIR}/kinovra.rc" @ONLY NEWLINE_STYLE LF)
  target_sources("${target}" PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/kinovra.rc")
  set_property(SOURCE "${CMAKE_CURRENT_BINARY_DIR}/kinovra.rc" APPEND PROPERTY OBJECT_DEPENDS
    "${FOLDER}/kinovra.ico;${MANIFEST}")
  if(MSVC)
    # The manifest is the resource's; a second one of the linker's own would clash with it.
    target_link_options("${target}" PRIVATE /MANIFEST:NO)
  endif()
endfunction()
