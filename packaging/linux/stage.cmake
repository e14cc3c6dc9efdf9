# Makes what CPack has staged for a .deb as Debian wants it: compressed texts, its own changelog,
# the licence in its own form. CPack runs this before it packs.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
set(texts ${share}/doc/quilla)

file(REMOVE ${texts}/LICENSE)
file(RENAME ${texts}/CHANGELOG.md ${texts}/changelog)
configure_file(${CPACK_QUILLA_PACKAGING}/linux/copyright ${texts}/copyright COPYONLY)
configure_file(${CPACK_QUILLA_PACKAGING}/linux/lintian-overrides ${share}/lintian/overrides/quilla
               COPYONLY)

string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE ${texts}/changelog.Debian
     "quilla (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
     "  * Release; changelog.gz tells what is new in it.\n\n"
     " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")

file(GLOB compressed ${texts}/changelog ${texts}/changelog.Debian ${share}/man/man*/*)
execute_process(COMMAND gzip -9 -n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
file(GLOB compressed ${texts}/*.gz ${share}/man/man*/*.gz)
file(CHMOD ${texts}/copyright ${share}/lintian/overrides/quilla ${compressed}
     PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
