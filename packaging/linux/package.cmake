# On Linux: a desktop entry, icons, a type for project files, man pages; and as a package a .deb.
configure_file(linux/quilla.metainfo.xml.in quilla.metainfo.xml @ONLY)

install(FILES ${PROJECT_SOURCE_DIR}/docs/man/quilla-robot.1
              ${PROJECT_SOURCE_DIR}/docs/man/quilla-trainer.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/docs/man/quilla-hex.5
              ${PROJECT_SOURCE_DIR}/docs/man/quilla-project.5
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man5)
if(QUILLA_WINDOW)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/man/quilla.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES linux/quilla.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES linux/quilla.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quilla.metainfo.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES icons/quilla.svg DESTINATION ${icons}/scalable/apps)
  install(FILES icons/quilla-48.png DESTINATION ${icons}/48x48/apps RENAME quilla.png)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quilla)
set(CPACK_PACKAGE_CONTACT "The Quilla authors <quilla@packages.invalid>"
    CACHE STRING "Who answers for the packages")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/linux/stage.cmake)
set(CPACK_QUILLA_PACKAGING ${CMAKE_CURRENT_SOURCE_DIR})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "teaching tool for the Intel 8085
Quilla teaches the Intel 8085. A program is not typed: it is built row by
row in a table, by pressing an instruction key, then its registers, numbers,
labels or variables. The panel always says what comes next and offers only
the keys that fit.

From the table Quilla assigns addresses, assembles an Intel HEX file, and
steps the program in a simulator. It prints listings, talks to a trainer
board on a serial port, and turns a hex file back into a program.
quilla-robot does the same by a script, without a window.")
include(CPack)
