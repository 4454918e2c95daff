# The Debian packages, made by scripts/package: `norvex` and `norvex-thumbnailer`, one a component.
set(NORVEX_MAINTAINER "Norvex maintainers <maintainers@norvex.example>" CACHE STRING
    "Who answers for the packages, as Debian's control files write it")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME norvex)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${NORVEX_MAINTAINER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${NORVEX_HOMEPAGE}")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_SET_DESTDIR ON)  # files outside of the prefix stay in the package's own root, too
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL application thumbnailer)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_APPLICATION_PACKAGE_NAME norvex)
set(CPACK_COMPONENT_APPLICATION_DESCRIPTION "viewer for vector pictures that hands parts of them on as vectors\n\
Norvex opens EPS, EPSI, Illustrator, PDF and SVG pictures, shows them sharp at\n\
every zoom and angle beside an inspector of their metadata and source text,\n\
and hands any rectangle of them on as vectors: to the clipboard, to a file or\n\
to a printer. The same engine converts files from the command line.\n\
.\n\
Every document is read by a process of its own that the system confines\n\
before it reads the first byte.")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})
# What libraries do not bring: Ghostscript as a program, for PostScript that was not expected when the program started,
# its standard fonts, a font for text whose font is not there, and the print service's library, which is loaded when
# somebody prints.
set(CPACK_DEBIAN_APPLICATION_PACKAGE_DEPENDS "ghostscript, libcups2, fontconfig, fonts-urw-base35, fonts-dejavu-core | fonts-liberation, \
shared-mime-info, hicolor-icon-theme")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_RECOMMENDS "icc-profiles-free, norvex-thumbnailer, qt6-translations-l10n, qt6-wayland")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SUGGESTS "cups-client, apparmor")

set(CPACK_DEBIAN_THUMBNAILER_PACKAGE_NAME norvex-thumbnailer)
set(CPACK_DEBIAN_THUMBNAILER_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_THUMBNAILER_DESCRIPTION "thumbnails of EPS, Illustrator, PDF and SVG pictures for file managers\n\
Tells the desktop's file managers to have Norvex draw the thumbnails of vector\n\
pictures. An embedded preview is shown without running the PostScript; anything\n\
else is drawn within five seconds by a process that the system confines.")
set(CPACK_DEBIAN_THUMBNAILER_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_THUMBNAILER_PACKAGE_DEPENDS "norvex (>= ${PROJECT_VERSION})")

# ---- what policy asks of a package's documents -----------------------------------------------------
set(packed ${CMAKE_CURRENT_BINARY_DIR}/packed)
file(MAKE_DIRECTORY ${packed})
add_custom_command(OUTPUT ${packed}/changelog.Debian.gz
  COMMAND ${GZIP} -9nc ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog > ${packed}/changelog.Debian.gz
  COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md > ${packed}/changelog.gz
  BYPRODUCTS ${packed}/changelog.gz
  DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md VERBATIM)
add_custom_target(norvex-history ALL DEPENDS ${packed}/changelog.Debian.gz)
install(FILES ${packed}/changelog.Debian.gz ${packed}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvex)
install(FILES ${packed}/changelog.Debian.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvex-thumbnailer
        COMPONENT thumbnailer)
install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/norvex-thumbnailer COMPONENT thumbnailer)
install(FILES debian/norvex.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME norvex)
install(FILES debian/norvex-thumbnailer.lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        RENAME norvex-thumbnailer COMPONENT thumbnailer)
include(CPack)
