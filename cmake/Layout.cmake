# Where things stand beside each other once installed. The build tree has the same layout, so that programs find the
# library, and the library its resource files, by the same paths in both.
include(GNUInstallDirs)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
endif()

set(resource_directory ${CMAKE_INSTALL_DATADIR}/alerting/resources)
file(RELATIVE_PATH library_from_programs ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH resources_from_library ${CMAKE_INSTALL_FULL_LIBDIR}
  ${CMAKE_INSTALL_FULL_DATADIR}/alerting/resources)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_DATADIR}/alerting/resources)
foreach(folder IN ITEMS help icons starter)
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/resources/${folder} ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_DATADIR}/alerting/resources/${folder}
    SYMBOLIC)
endforeach()
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/docs/guide ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_DATADIR}/alerting/resources/guide SYMBOLIC)

# Before 1.0 every minor version may change what the libraries promise, and is another library to the loader.
set(library_soversion ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(library_soversion 0.${PROJECT_VERSION_MINOR})
endif()
set(library_properties VERSION ${PROJECT_VERSION} SOVERSION ${library_soversion})

# A prefix of its own works without telling the loader; where the loader looks anyway nothing is told.
if(NOT CMAKE_INSTALL_FULL_LIBDIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
  set(CMAKE_INSTALL_RPATH $ORIGIN/${library_from_programs})
  list(APPEND library_properties INSTALL_RPATH $ORIGIN)
endif()
