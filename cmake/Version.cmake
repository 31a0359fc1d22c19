# The version stands in project(). CHANGELOG.md must have an entry for it, from which the packages take their date and
# notes.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changes)
string(REPLACE "." "\\." version_pattern ${PROJECT_VERSION})
if(NOT changes MATCHES "\n## ${version_pattern} - ([0-9]+-[0-9]+-[0-9]+)\n+([^#]+)")
    message(FATAL_ERROR "CHANGELOG.md has no heading \"## ${PROJECT_VERSION} - YYYY-MM-DD\"")
endif()
set(TOLMARK_RELEASE_DATE ${CMAKE_MATCH_1})
string(STRIP "${CMAKE_MATCH_2}" TOLMARK_RELEASE_NOTES)
