# cmake --install: the libraries with the catalogue beside them, the headers,
# the command line and its man page, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

set(QUILLMESH_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/quillmesh)

install(TARGETS quillmesh quillmesh_static EXPORT quillmeshTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS Convertmsg LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS quillmesh_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${CMAKE_SOURCE_DIR}/cli/report.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/quillmesh)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/include/quillmesh DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${QUILLMESH_GENERATED_INCLUDE}/quillmesh/version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quillmesh)

install(EXPORT quillmeshTargets NAMESPACE quillmesh:: DESTINATION ${QUILLMESH_CMAKE_DIR})
configure_package_config_file(${CMAKE_SOURCE_DIR}/cmake/quillmeshConfig.cmake.in
                              ${CMAKE_BINARY_DIR}/generated/quillmeshConfig.cmake
                              INSTALL_DESTINATION ${QUILLMESH_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/generated/quillmeshConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/generated/quillmeshConfig.cmake
              ${CMAKE_BINARY_DIR}/generated/quillmeshConfigVersion.cmake
        DESTINATION ${QUILLMESH_CMAKE_DIR})

# The .pc file finds the prefix from its own place, so the tree can move.
file(RELATIVE_PATH QUILLMESH_PC_TO_PREFIX /root/${CMAKE_INSTALL_LIBDIR}/pkgconfig /root)
configure_file(${CMAKE_SOURCE_DIR}/cmake/quillmesh.pc.in ${CMAKE_BINARY_DIR}/generated/quillmesh.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/generated/quillmesh.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

configure_file(${CMAKE_SOURCE_DIR}/man/quillmesh.1 ${CMAKE_BINARY_DIR}/generated/quillmesh.1 @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/generated/quillmesh.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The desktop front end stands beside the library, where it is looked for.
if(TARGET quillmesh_gtk)
  install(TARGETS quillmesh_gtk LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  set_target_properties(quillmesh_gui PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS quillmesh_gui RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
