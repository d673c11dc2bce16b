# The Debian package: `cpack -G DEB` in a build folder, or script/package, which also tries it out.

# The package's version is the one of its newest change.
set(changelog ${PROJECT_SOURCE_DIR}/packaging/debian/changelog)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})
file(STRINGS ${changelog} change LIMIT_COUNT 1)
string(REGEX MATCH "\\(([0-9.]+)-([0-9]+)\\)" version "${change}")
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "${changelog} begins with version ${CMAKE_MATCH_1}, "
                      "the program is ${PROJECT_VERSION}.")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_2})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME skeldon-light)
set(CPACK_PACKAGE_VENDOR brennick-works)
set(CPACK_PACKAGE_CONTACT "brennick-works <skeldon-light@brennick-works.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "utility of the KORVA shock and acceleration recorders")
set(CPACK_PACKAGE_DESCRIPTION_FILE ${PROJECT_SOURCE_DIR}/packaging/debian/description)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_INSTALL_CMAKE_PROJECTS
    ${PROJECT_BINARY_DIR} ${PROJECT_NAME} ALL / ${PROJECT_BINARY_DIR} ${PROJECT_NAME} debian /)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Where these are missing the programs work, but for: the cable's driver and access to it, Wayland,
# the manual in a browser, the toolkit's own words in Japanese, the double click on a file.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "udev, qt6-wayland, xdg-utils, qt6-translations-l10n, shared-mime-info, hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "fonts-noto-cjk | fonts-ipafont-gothic")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/postinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
