# The Debian package: "cpack" in the build folder makes it of what "cmake --install" installs. The packages that it depends
# on are found by dpkg-shlibdeps; the plugin that draws SVG icons is loaded while running, so it is named here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tavrel)
set(CPACK_PACKAGE_VENDOR "Tavrel")
set(CPACK_PACKAGE_CONTACT "The Tavrel developers <tavrel@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_PACKAGE_DESCRIPTION "A logbook of dives with everything that belongs to one, gas consumption and oxygen
exposure, statistics, printed cards, import and export in the interchange formats UDDF and UDCF, calculators for
nitrox, trimix and rebreathers, and nine record books. With a program for the command line.")
find_program(TAVREL_SHLIBDEPS dpkg-shlibdeps)
if(TAVREL_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
include(GNUInstallDirs)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tavrel RENAME copyright)
include(CPack)
