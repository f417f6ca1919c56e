# The Debian package: `cpack -G DEB` in the build folder (scripts/package.sh runs it). Its
# dependencies are the shared libraries the programs link (found by dpkg-shlibdeps) and Qt's
# platform plugins, which the editor loads at run time.
include(GNUInstallDirs)

set(VEXLO_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/vexlo)
install(FILES ${PROJECT_SOURCE_DIR}/data/debian/copyright DESTINATION ${VEXLO_DOC_DIR})
# Debian wants the changelog compressed, byte for byte the same on every build.
set(VEXLO_CHANGELOG ${PROJECT_BINARY_DIR}/changelog.Debian.gz)
add_custom_command(OUTPUT ${VEXLO_CHANGELOG}
  COMMAND gzip -9 -n -c ${PROJECT_SOURCE_DIR}/data/debian/changelog > ${VEXLO_CHANGELOG}
  DEPENDS ${PROJECT_SOURCE_DIR}/data/debian/changelog)
add_custom_target(vexlo_changelog ALL DEPENDS ${VEXLO_CHANGELOG})
install(FILES ${VEXLO_CHANGELOG} DESTINATION ${VEXLO_DOC_DIR})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vexlo)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Vexlo developers <dev@vexlo.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor for icons, cursors and animated cursors")
set(CPACK_PACKAGE_DESCRIPTION "Vexlo draws and edits very small raster images: icons of 16x16, 32x32
and 48x48 pixels, static cursors and animated cursors, on a magnified grid
with a toolbox of pixel tools. It reads and writes ICO, CUR, ANI and BMP
files. vexlo-cli inspects, converts and thumbnails such files from scripts.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins")
set(CPACK_STRIP_FILES ON)
set(CPACK_SET_DESTDIR OFF)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
