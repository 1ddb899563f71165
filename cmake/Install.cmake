# SPDX-License-Identifier: MIT
# cmake --install: headers, the libraries, the CMake package (find_package(zorcc) gives zorcc::zorcc and
# zorcc::convert; COMPONENTS static those of archives), zorcc.pc and zorconvert.pc, and libzorcc.so and libzorcc.a, by
# which -lzorcc means all libraries.
include(CMakePackageConfigHelpers)

set(ZORCC_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/zorcc)

# One flavour of the libraries: its targets end with `suffix`, -lzorcc finds `link_name`, a script of linker `inputs`.
function(zorcc_install_flavour flavour suffix link_name inputs)
  set_target_properties(zorccn8${suffix} PROPERTIES EXPORT_NAME zorcc)
  set_target_properties(zorcore${suffix} PROPERTIES EXPORT_NAME zorcore)
  set_target_properties(zorconvert${suffix} PROPERTIES EXPORT_NAME convert)
  install(TARGETS zorccn8${suffix} zorcore${suffix} zorconvert${suffix} EXPORT zorcc${flavour}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT zorcc${flavour} NAMESPACE zorcc:: FILE zorcc${flavour}Targets.cmake DESTINATION ${ZORCC_PACKAGE})
  file(CONFIGURE OUTPUT linker/${link_name} CONTENT "/* The libraries of zorcc. */\nINPUT(${inputs})\n")
  install(FILES ${PROJECT_BINARY_DIR}/linker/${link_name} DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()

get_target_property(archives_need zorcore_static INTERFACE_LINK_LIBRARIES)
list(JOIN archives_need " " ZORCC_PC_PRIVATE)

if(BUILD_SHARED_LIBS)
  zorcc_install_flavour(Shared "" libzorcc.so "AS_NEEDED(-lzorconvert -lzorccn8 -lzorcore)")
endif()
if(ZORCC_STATIC)
  zorcc_install_flavour(Static _static libzorcc.a "-lzorconvert -lzorccn8 -lzorcore AS_NEEDED(${ZORCC_PC_PRIVATE})")
endif()

set(suffix)
if(NOT BUILD_SHARED_LIBS)
  set(suffix _static)
endif()
add_library(zorcc::zorcc ALIAS zorccn8${suffix})
add_library(zorcc::convert ALIAS zorconvert${suffix})
add_library(zorcc::zorcore ALIAS zorcore${suffix})

install(DIRECTORY include/ TYPE INCLUDE)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zorccConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES cmake/zorccConfig.cmake ${PROJECT_BINARY_DIR}/zorccConfigVersion.cmake DESTINATION ${ZORCC_PACKAGE})

file(RELATIVE_PATH ZORCC_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/zorcc.pc.in zorcc.pc @ONLY)
configure_file(cmake/zorconvert.pc.in zorconvert.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zorcc.pc ${PROJECT_BINARY_DIR}/zorconvert.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
