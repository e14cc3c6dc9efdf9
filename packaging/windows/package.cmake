# On Windows: what a program says of itself to the system, and as a package a setup program.
set(QUILLA_FOUR_NUMBERS ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.0.0)
string(REPLACE "." "," QUILLA_FOUR_WORDS ${QUILLA_FOUR_NUMBERS})

# Adds the icon, the version and the manifest to the program `target`, which is for `purpose`.
function(quilla_add_resources target purpose)
  set(QUILLA_FILE ${target}.exe)
  set(QUILLA_PURPOSE ${purpose})
  configure_file(windows/program.rc.in ${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()

configure_file(windows/program.manifest.in program.manifest @ONLY)
quilla_add_resources(quilla-robot "Quilla played by a script")
if(QUILLA_WINDOW)
  quilla_add_resources(quilla "Quilla, a teaching tool for the Intel 8085")
  set_target_properties(quilla PROPERTIES WIN32_EXECUTABLE ON)  # opens no console
endif()

set(CPACK_GENERATOR NSIS)
set(CPACK_PACKAGE_NAME Quilla)
set(CPACK_PACKAGE_VENDOR "The Quilla authors")
set(CPACK_PACKAGE_FILE_NAME "quilla-${PROJECT_VERSION}-windows-x86_64")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_MODULE_PATH ${CMAKE_CURRENT_SOURCE_DIR}/windows)  # its NSIS.template.in
set(CPACK_QUILLA_PACKAGING ${CMAKE_CURRENT_SOURCE_DIR})
set(CPACK_QUILLA_FOUR_NUMBERS ${QUILLA_FOUR_NUMBERS})
include(CPack)
