# What CHANGELOG.md tells, in the forms that a package wants:
#   QUIB_RELEASE_DATE      the day of this version
#   QUIB_RELEASES          AppStream's <release> elements
#   quib_debian_changelog  writes a Debian changelog
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changes)
string(REGEX MATCHALL "\n## [0-9.]+, [0-9-]+\n" headings "${changes}")
set(QUIB_RELEASES "")
foreach(heading IN LISTS headings)
    string(REGEX MATCH "([0-9.]+), ([0-9-]+)" found "${heading}")
    if(NOT DEFINED QUIB_RELEASE_DATE)
        set(QUIB_RELEASE_DATE ${CMAKE_MATCH_2})
        set(newest ${CMAKE_MATCH_1})
    endif()
    list(APPEND QUIB_RELEASES "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>")
endforeach()
list(JOIN QUIB_RELEASES "\n" QUIB_RELEASES)
if(NOT "${newest}" STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "CHANGELOG.md begins with version ${newest}, CMakeLists.txt names ${PROJECT_VERSION}")
endif()

# quib_debian_changelog(FILE VERSION MAINTAINER): of this version; the others stand in CHANGELOG.md.
function(quib_debian_changelog file version maintainer)
    string(REGEX REPLACE "^.*\n## ${PROJECT_VERSION}, [0-9-]+\n" "" text "${changes}")
    string(REGEX REPLACE "\n## .*$" "" text "${text}")
    string(STRIP "${text}" text)
    string(REGEX REPLACE "\n" "\n  " text "\n${text}")
    string(REGEX REPLACE "\n  - " "\n  * " text "${text}")
    set(ENV{LC_ALL} C)
    execute_process(COMMAND date --utc --rfc-email --date=${QUIB_RELEASE_DATE} OUTPUT_VARIABLE moment
        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(WRITE ${file} "quib (${version}) unstable; urgency=medium\n${text}\n\n -- ${maintainer}  ${moment}\n")
endfunction()
