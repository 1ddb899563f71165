# SPDX-License-Identifier: MIT
# Row files are compiled once for every SIMD tier; these are the only flags of the library that name an instruction set.
if(NOT "ssse3;avx2;avx512" MATCHES "^${ZORCC_TIERS}(;|$)")
  message(FATAL_ERROR "ZORCC_TIERS is ${ZORCC_TIERS}: it must be the first one, two or all of ssse3;avx2;avx512")
endif()
set(ZORCC_TIER_FLAGS_ssse3 -mssse3)
set(ZORCC_TIER_FLAGS_avx2 -mavx2 -mfma)
set(ZORCC_TIER_FLAGS_avx512 -mavx512f -mavx512bw -mavx512dq -mavx512vl -mavx512vbmi -mavx512vnni -mgfni)

# Adds the row files to `target`, in one object library a tier.
function(zorcc_add_tiers target)
  foreach(tier IN LISTS ZORCC_TIERS)
    add_library(${target}_${tier} OBJECT ${ARGN})
    target_compile_definitions(${target}_${tier} PRIVATE ZORCC_TIER=${tier} ZORCC_TIER_${tier})
    target_compile_options(${target}_${tier} PRIVATE ${ZORCC_TIER_FLAGS_${tier}})
    # Kernels are short loops over channels and rows that must be unrolled, which g++ does at -O3 only.
    set(optimisation -O3)
    if(ZORCC_SANITIZE)
      # At -O3 sanitized kernels take half as long again, and find nothing more. The checks of pointers on every access
      # double the time once more; the address sanitizer and the tests' guard pages watch the same accesses.
      set(optimisation -O1 -fno-sanitize=null,object-size,pointer-overflow)
    endif()
    # Variables of an optimised kernel are hardly ever to be seen in a debugger: lines and functions, at two thirds of
    # the time.
    target_compile_options(${target}_${tier} PRIVATE
      $<$<NOT:$<CONFIG:Debug>>:${optimisation}> $<$<CONFIG:RelWithDebInfo>:-g1>)
    # Where registers run short g++ makes constants anew in the loop, by way of a general register and the port of
    # shuffles; from memory they come for nothing.
    target_compile_options(${target}_${tier} PRIVATE
      $<$<CXX_COMPILER_ID:GNU>:-mtune-ctrl=^inter_unit_moves_to_vec>)
    # g++ 12 takes the undefined operands inside its own AVX-512 headers for uninitialised variables.
    target_compile_options(${target}_${tier} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-uninitialized>
      $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_include_directories(${target}_${tier} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include)
    target_link_libraries(${target}_${tier} PRIVATE zorcc_library_options)
    target_link_libraries(${target} PUBLIC ${target}_${tier})
    target_sources(${target} INTERFACE $<TARGET_OBJECTS:${target}_${tier}>)
  endforeach()
endfunction()
