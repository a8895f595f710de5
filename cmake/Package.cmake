# Debian packages of what is installed, one for each component: the `package` preset, then `cpack`.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME alerting)
set(CPACK_PACKAGE_CONTACT "Developers of the alerting configuration <alerting@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# Copyright, changelog and compressed manual pages are Debian's own habits.
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_SOURCE_DIR}/cmake/PackageFiles.cmake)
set(CPACK_ALERTING_SOURCE ${CMAKE_SOURCE_DIR})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL alerting development)
if(TARGET alertconsole)
  list(APPEND CPACK_COMPONENTS_ALL alertconsole)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION admin)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(same_version "alerting (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_ALERTING_PACKAGE_NAME alerting)
set(CPACK_DEBIAN_ALERTING_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_ALERTING_PACKAGE_CONTROL_EXTRA ${CMAKE_SOURCE_DIR}/packaging/debian/triggers)
# The second and third are what the alert server plays sounds and speaks with, and need nothing of a desktop.
set(CPACK_DEBIAN_ALERTING_PACKAGE_SUGGESTS "alertconsole, alsa-utils, espeak-ng")
set(CPACK_COMPONENT_ALERTING_DESCRIPTION "command line that sets up how alerts reach people
Keeps the services by which alerts of a managed network are sent (mail, SNMP
traps, pagers, sound, speech, programs, serial ports), the people who receive
them, and the alert managers that deliver them.

This package has the command line alertctl, the alert server that sends tests
of services, pretended devices to rehearse with, and the libraries.")

set(CPACK_DEBIAN_ALERTCONSOLE_PACKAGE_NAME alertconsole)
set(CPACK_DEBIAN_ALERTCONSOLE_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_ALERTCONSOLE_PACKAGE_DEPENDS ${same_version})
set(CPACK_COMPONENT_ALERTCONSOLE_DESCRIPTION "window that sets up how alerts reach people
Shows the services by which alerts of a managed network are sent, the people
who receive them, the responses and the alert managers, and edits them.

This package has the window with its guide.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libalerting-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ${same_version})
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "alerting configuration, files to build other consoles with
Headers, CMake package and pkg-config file of the library that keeps the
services by which alerts of a managed network are sent.")

include(CPack)
