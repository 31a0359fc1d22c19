# What the version brings with it. It stands in project(); CHANGELOG.md has the day of it and what it brings, so that no
# version can go out without an entry there.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changes)
string(REPLACE "." "\\." version_pattern ${PROJECT_VERSION})
if(NOT changes MATCHES "\n## ${version_pattern} - ([0-9]+-[0-9]+-[0-9]+)\n+([^#]+)")
    message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} - YYYY-MM-DD\"")
endif()
set(TOLMARK_RELEASE_DATE ${CMAKE_MATCH_1})
string(STRIP "${CMAKE_MATCH_2}" TOLMARK_RELEASE_NOTES)
