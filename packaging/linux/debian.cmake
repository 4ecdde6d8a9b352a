# The Debian package, which `./package linux` writes: cpack -G DEB in a build configured with
# CAUDALERA_DEBIAN. Elsewhere cpack makes an archive of what is installed.
set(CPACK_PACKAGE_NAME caudalera)
set(CPACK_PACKAGE_VENDOR Caudalera)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop calculator for hydrology and applied statistics")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Enter a series of measurements and get the standard computations of
hydrology: statistical parameters and linear moments, regressions, fits
to eight probability distributions with a goodness-of-fit test and a
design flow, characteristic curves of a river, storms and mean rainfall
over a basin, stream gauging, peak flows, evapotranspiration and water
balance, with charts, rich-text reports and series files.

The program and its manual are in Spanish. The package also holds the
viewer of the manual, tables by latitude and series to try.")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_SOURCE_DIR}/build/packages")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_GENERATOR TGZ)

if(CAUDALERA_DEBIAN)
    set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/strip.cmake")
else()
    set(CPACK_STRIP_FILES ON)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The words of the toolkit's own dialogs, and a font that has all of ours.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
