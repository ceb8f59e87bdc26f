# What `cmake --install` puts in place: the library, its header, the CMake package with its
# version file, the pkg-config file, the licence and the changelog. Every file is relocatable:
# the package and the .pc file find the prefix from where they lie.
include(CMakePackageConfigHelpers)

install(TARGETS arrays EXPORT arraysTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/arrays.h ${PROJECT_SOURCE_DIR}/include/arrays.hpp
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(ARRAYS_DIR_PAQUETE ${CMAKE_INSTALL_LIBDIR}/cmake/arrays)
install(EXPORT arraysTargets NAMESPACE arrays:: DESTINATION ${ARRAYS_DIR_PAQUETE})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/arraysConfig.cmake.in
  ${PROJECT_BINARY_DIR}/arraysConfig.cmake INSTALL_DESTINATION ${ARRAYS_DIR_PAQUETE})
# Within 0.x a new minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/arraysConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/arraysConfig.cmake ${PROJECT_BINARY_DIR}/arraysConfigVersion.cmake
  DESTINATION ${ARRAYS_DIR_PAQUETE})

file(RELATIVE_PATH ARRAYS_PC_PREFIJO ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" ARRAYS_PC_PREFIJO "${ARRAYS_PC_PREFIJO}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/arrays.pc.in ${PROJECT_BINARY_DIR}/arrays.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/arrays.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR})
