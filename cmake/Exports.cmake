# SPDX-License-Identifier: MIT
# What the shared libraries have in common: the file name is the SONAME, nothing is exported but what is listed, no
# executable stack, relocations read-only from the start, and no dependency that nothing needs.
function(zorcc_shared_library target)
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION}
    BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "$ORIGIN" LINK_DEPENDS_NO_SHARED ON)
  target_link_libraries(${target} PRIVATE zorcc_options)
  target_compile_options(${target} PRIVATE -fno-exceptions -fno-rtti)
  target_link_options(${target} PRIVATE -Wl,--as-needed -Wl,-z,relro,-z,now -Wl,-z,noexecstack)
  if(NOT ZORCC_SANITIZE) # whose runtime comes with the program
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# Exports exactly the named symbols.
function(zorcc_export target)
  list(JOIN ARGN ";\n    " symbols)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  file(CONFIGURE OUTPUT ${script} CONTENT "{\n  global:\n    ${symbols};\n  local:\n    *;\n};\n")
  target_link_options(${target} PRIVATE -Wl,--version-script=${script})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()
