# SPDX-License-Identifier: MIT
function(zorcc_public_headers target)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endfunction()

# What the shared libraries have in common: the file name is the SONAME, nothing is exported but what is listed, no
# executable stack, relocations read-only from the start, and no dependency that nothing needs. Once opened they stay:
# the OpenMP runtime's idle threads run on, in code that must not be unmapped under them.
function(zorcc_shared_library target)
  zorcc_public_headers(${target})
  if(NOT BUILD_SHARED_LIBS AND NOT ZORCC_BUILD_TESTS)
    set_target_properties(${target} PROPERTIES EXCLUDE_FROM_ALL TRUE)
  endif()
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION}
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN" LINK_DEPENDS_NO_SHARED ON)
  target_link_libraries(${target} PRIVATE zorcc_library_options)
  target_link_options(${target} PRIVATE -Wl,--as-needed -Wl,-z,nodelete)
  if(NOT ZORCC_SANITIZE) # whose runtime comes with the program
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# Exports exactly the named symbols, as of this version of the target.
function(zorcc_export target)
  list(JOIN ARGN ";\n    " symbols)
  string(TOUPPER ${target}_${PROJECT_VERSION} version)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  file(CONFIGURE OUTPUT ${script} CONTENT "${version} {\n  global:\n    ${symbols};\n  local:\n    *;\n};\n")
  target_link_options(${target} PRIVATE -Wl,--version-script=${script})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()

# An archive of the objects that `target`, a shared library, is linked of. C, so that C projects can link it: nothing
# of the C++ runtime is needed.
function(zorcc_static_library target objects)
  add_library(${target}_static STATIC $<TARGET_OBJECTS:${objects}> $<TARGET_PROPERTY:${objects},INTERFACE_SOURCES>)
  zorcc_public_headers(${target}_static)
  set_target_properties(${target}_static PROPERTIES OUTPUT_NAME ${target} LINKER_LANGUAGE C
    ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
  if(NOT ZORCC_STATIC)
    set_target_properties(${target}_static PROPERTIES EXCLUDE_FROM_ALL TRUE)
  endif()
endfunction()
