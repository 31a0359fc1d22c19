# Read by CPack once for each package: the archive holds the portable folder, the Debian package all else.
if(CPACK_GENERATOR STREQUAL "External")
    set(CPACK_PACKAGE_FILE_NAME "tolmark-${CPACK_PACKAGE_VERSION}-linux-amd64")
    list(GET CPACK_BUILD_SOURCE_DIRS 1 build)
    set(CPACK_INSTALL_CMAKE_PROJECTS "${build};Tolmark;portable;/")
    set(CPACK_PACKAGING_INSTALL_PREFIX "/${CPACK_PACKAGE_FILE_NAME}")
else()
    set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
endif()
