# The Debian package. Tools/package makes it from the release build.
set(ORVEL_PACKAGE_MAINTAINER "Orvel's maintainers <maintainers@orvel.example>" CACHE STRING "Whom the package names")
set(ORVEL_PACKAGE_REVISION 1)

set(documents "${CMAKE_INSTALL_DATADIR}/doc/orvel-widgets")
configure_file(changelog.Debian.in changelog.Debian @ONLY)
orvel_packed("${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian" "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz")
orvel_packed("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
install(FILES copyright "${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz"
    DESTINATION "${documents}")
install(FILES lintian-overrides DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME orvel-widgets)
install(PROGRAMS "${PROJECT_SOURCE_DIR}/Examples/host.py" DESTINATION "${documents}/examples")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvel-widgets)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "widgets of the focus application Orvel for the desktop")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Orvel keeps chosen apps and websites quiet on a schedule and offers a short
guided breath before anything blocked opens. This package has its widgets for
the desktop: what is keeping things quiet now or next, today's numbers and the
week, and a breath in one click.
.
The widget extension is started by the session's bus and answers any host;
orvelctl shows from a shell what the widgets will show, when, and why.")
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${ORVEL_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_RELEASE ${ORVEL_PACKAGE_REVISION})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# Libraries are found in the programs themselves; these are what no program links to.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "default-dbus-session-bus | dbus-session-bus, tzdata")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hicolor-icon-theme, xdg-desktop-portal")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-core, fonts-noto-cjk, python3-gi")

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(TARGET orvel-widget-host)
    string(APPEND CPACK_DEBIAN_PACKAGE_RECOMMENDS ", at-spi2-core")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_SOURCE_DIR}/conffiles")
endif()
include(CPack)
