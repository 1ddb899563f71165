# SPDX-License-Identifier: MIT
# cmake --install: headers, the libraries, the CMake package (find_package(zorcc) gives zorcc::zorcc and
# zorcc::convert), zorcc.pc and zorconvert.pc.
include(CMakePackageConfigHelpers)

set_target_properties(zorccn8 PROPERTIES EXPORT_NAME zorcc)
set_target_properties(zorconvert PROPERTIES EXPORT_NAME convert)
add_library(zorcc::zorcc ALIAS zorccn8)
add_library(zorcc::convert ALIAS zorconvert)
add_library(zorcc::zorcore ALIAS zorcore)

install(DIRECTORY include/ TYPE INCLUDE)
install(TARGETS zorccn8 zorcore zorconvert EXPORT zorcc LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT zorcc NAMESPACE zorcc:: FILE zorccTargets.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zorcc)

file(CONFIGURE OUTPUT zorccConfig.cmake CONTENT
  "include(\"\${CMAKE_CURRENT_LIST_DIR}/zorccTargets.cmake\")\n" @ONLY)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zorccConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zorccConfig.cmake ${PROJECT_BINARY_DIR}/zorccConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zorcc)

file(RELATIVE_PATH ZORCC_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/zorcc.pc.in zorcc.pc @ONLY)
configure_file(cmake/zorconvert.pc.in zorconvert.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zorcc.pc ${PROJECT_BINARY_DIR}/zorconvert.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
