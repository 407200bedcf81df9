# SPDX-License-Identifier: MIT
# The Debian package: `cpack` in the folder of an optimised build.
install(FILES debian/copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian.gz
    DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT debian EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${PROJECT_NAME}
    COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/package_time.cmake)
# All that is installed everywhere, and what is installed by the package only.
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};${PROJECT_NAME};ALL;/"
    "${PROJECT_BINARY_DIR};${PROJECT_NAME};debian;/")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_PACKAGE_CONTACT "Orvalen Years Calendar maintainers <maintainers@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "one day in four calendars")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Shows one day at once in the Julian, Gregorian, Jewish and Moslem calendars,
for the years 1 to 3000: the month of each calendar side by side, a sheet of
the year for each, the day and week of the year, the weekday, the Julian Day,
and the moon as it looks on that day. A change in one calendar moves all
others.
.
The program speaks English and twelve more languages.")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland) # for desktops without X11
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
