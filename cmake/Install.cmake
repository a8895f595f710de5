# What `cmake --install` puts where. Components are the packages: the library with the programs that need no display, the
# window, and what other consoles are built with.
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/alerting)
set(header_directory ${CMAKE_INSTALL_INCLUDEDIR}/alerting)

install(TARGETS alertplatform alertcompanions alerting EXPORT alerting
  LIBRARY COMPONENT alerting NAMELINK_COMPONENT development)
install(TARGETS alertctl alertserver alertlab COMPONENT alerting)
install(DIRECTORY resources/help resources/icons resources/starter DESTINATION ${resource_directory}
  COMPONENT alerting)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT license)
# Beside lib/, whatever the architecture: systemd looks for the units of users nowhere else.
install(FILES ${CMAKE_BINARY_DIR}/server/alertserver.service DESTINATION lib/systemd/user COMPONENT alerting)

# Manual pages and completions.
set(manual ${CMAKE_BINARY_DIR}/manual)
foreach(page IN ITEMS alert-managers.json.5 alertserver.1 alertlab.1)
  configure_file(docs/man/${page}.in ${manual}/${page} @ONLY)
endforeach()
install(FILES ${manual}/alertctl.1 ${manual}/alertserver.1 ${manual}/alertlab.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT alerting)
install(FILES ${manual}/alert-managers.json.5 DESTINATION ${CMAKE_INSTALL_MANDIR}/man5 COMPONENT alerting)
install(FILES ${manual}/alertctl.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  RENAME alertctl COMPONENT alerting)
set(ALERTING_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING
  "Where zsh finds completions, under the prefix")
install(FILES ${manual}/_alertctl DESTINATION ${ALERTING_ZSH_COMPLETIONS} COMPONENT alerting)

# Public headers, by the paths that they name each other by.
install(DIRECTORY include/alerting/ DESTINATION ${header_directory} COMPONENT development)
install(DIRECTORY platform/base platform/ui DESTINATION ${header_directory}/platform COMPONENT development
  FILES_MATCHING PATTERN "*.h")
install(DIRECTORY companions/alertstore DESTINATION ${header_directory}/companions COMPONENT development
  FILES_MATCHING PATTERN "record*.h")

install(EXPORT alerting NAMESPACE alerting:: FILE alerting-config.cmake DESTINATION ${package_directory}
  COMPONENT development)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/alerting-config-version.cmake COMPATIBILITY SameMinorVersion)
file(RELATIVE_PATH prefix_from_pkgconfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(packaging/alerting.pc.in ${CMAKE_BINARY_DIR}/alerting.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/alerting-config-version.cmake DESTINATION ${package_directory}
  COMPONENT development)
install(FILES ${CMAKE_BINARY_DIR}/alerting.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TARGET alertconsole)
  install(TARGETS alertconsole COMPONENT alertconsole)
  configure_file(docs/man/alertconsole.1.in ${manual}/alertconsole.1 @ONLY)
  install(FILES ${manual}/alertconsole.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT alertconsole)
  install(DIRECTORY docs/guide DESTINATION ${resource_directory} COMPONENT alertconsole
    PATTERN "*.sh" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  install(FILES packaging/alertconsole.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
    COMPONENT alertconsole)
  install(FILES packaging/org.example.alertconsole.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT alertconsole)
  install(DIRECTORY packaging/icons/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor COMPONENT alertconsole)
endif()
