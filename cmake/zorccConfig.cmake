# SPDX-License-Identifier: MIT
# find_package(zorcc): the shared libraries where they are installed, otherwise the archives; COMPONENTS static: those.
foreach(zorcc_FLAVOUR IN ITEMS Shared Static)
  string(TOLOWER ${zorcc_FLAVOUR} zorcc_COMPONENT)
  if(EXISTS "${CMAKE_CURRENT_LIST_DIR}/zorcc${zorcc_FLAVOUR}Targets.cmake"
      AND (NOT zorcc_FIND_COMPONENTS OR zorcc_FIND_COMPONENTS STREQUAL zorcc_COMPONENT))
    include("${CMAKE_CURRENT_LIST_DIR}/zorcc${zorcc_FLAVOUR}Targets.cmake")
    if(NOT TARGET zorcc::cpp)
      add_library(zorcc::cpp INTERFACE IMPORTED)
      target_compile_features(zorcc::cpp INTERFACE cxx_std_17)
      target_link_libraries(zorcc::cpp INTERFACE zorcc::zorcc)
    endif()
    return()
  endif()
endforeach()
set(zorcc_FOUND FALSE)
set(zorcc_NOT_FOUND_MESSAGE "These libraries of zorcc are not installed: ${zorcc_FIND_COMPONENTS}")
