# A package for the Debian system, or its kin, on which it is built.
set(system unknown)
if(EXISTS /etc/os-release)
    file(READ /etc/os-release release)
    string(REGEX MATCH "\nID=\"?([a-z]+)" found "\n${release}")
    set(system ${CMAKE_MATCH_1})
    string(REGEX MATCH "\nVERSION_ID=\"?([0-9.]+)" found "\n${release}")
    string(APPEND system ${CMAKE_MATCH_1})
endif()

set(CPACK_PACKAGE_NAME quib)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Korvel Quib <quib@korvel.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "panel for freelancers at the top edge of the screen")
set(CPACK_PACKAGE_DESCRIPTION "Korvel Quib lives over the camera notch, or an imitation of one. Touch it
with the pointer and it opens: what is playing, today's meetings, links,
clients, tasks, a timer with totals and timesheets, a shelf for files, and
notes.
.
All data stays in one file on this computer. Nothing is ever sent anywhere.")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "1~${system}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${QUIB_WEBSITE})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded by name: no tool finds it. Later systems keep Qt's window systems apart from its library.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtquick, \
qml6-module-qtquick-layouts, qml6-module-qtquick-templates, qml6-module-qtquick-window, qt6-wayland, \
qt6-qpa-plugins | libqt6gui6 (<< 6.6)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "evolution-data-server, xdg-desktop-portal, libglib2.0-bin, fonts-inter")

install(FILES debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quib)
quib_debian_changelog(${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian
    ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE} ${CPACK_PACKAGE_CONTACT})
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/asdebianwants.cmake)
set(CPACK_QUIB_CHANGELOG ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian)
include(CPack)
