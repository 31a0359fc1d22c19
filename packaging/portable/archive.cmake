# Packs the portable folder so that the same files give the same bytes: sorted, owned by nobody in particular, of one
# time, and in blocks of a fixed size, so that xz's result does not depend on the number of processors.
set(archive "${CPACK_TEMPORARY_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.xz")
set(time "$ENV{SOURCE_DATE_EPOCH}")
if(time STREQUAL "")
    string(TIMESTAMP time "%s")
endif()
execute_process(
    COMMAND tar --create --sort=name --format=gnu --owner=0 --group=0 --numeric-owner "--mtime=@${time}"
            --directory "${CPACK_TEMPORARY_DIRECTORY}" "${CPACK_PACKAGE_FILE_NAME}"
    COMMAND xz --threads=2 --block-size=16MiB
    OUTPUT_FILE "${archive}"
    COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${archive}")
