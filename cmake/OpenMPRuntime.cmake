# The OpenMP runtime, as the target vorm_openmp. clang's code needs LLVM's; g++'s runs on GCC's and on LLVM's,
# which takes GCC's entries too and gives way where other processes want the processors (docs/thresholds.md).
# Where both are there, vorm_openmp_other is the one that is not chosen, for tests.
include(CheckCXXSourceCompiles)
find_package(OpenMP REQUIRED COMPONENTS CXX)

# LLVM's runtime has its own allocator entries; GCC's has the standard ones only.
function(vorm_is_llvm_openmp result)  # further arguments: libraries
    set(CMAKE_REQUIRED_LIBRARIES ${ARGN})
    check_cxx_source_compiles("#include <cstddef>
        extern \"C\" void *kmpc_malloc(std::size_t);
        int main() { return kmpc_malloc(1) == nullptr; }" ${result})
endfunction()

function(vorm_openmp_runtime target)  # further arguments: its libraries
    add_library(${target} INTERFACE)
    target_compile_options(${target} INTERFACE $<$<COMPILE_LANGUAGE:CXX>:${OpenMP_CXX_FLAGS}>)
    target_link_libraries(${target} INTERFACE ${ARGN})
    vorm_is_llvm_openmp(VORM_KMPC_MALLOC_${target} ${ARGN})
    target_compile_definitions(${target} INTERFACE $<$<BOOL:${VORM_KMPC_MALLOC_${target}}>:VORM_HAVE_KMPC_MALLOC>)
endfunction()

set(runtime ${OpenMP_CXX_LIBRARIES})
set(other)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    file(GLOB folders /usr/lib/llvm-*/lib /usr/lib64/llvm*/lib64)
    list(SORT folders COMPARE NATURAL ORDER DESCENDING)
    find_library(VORM_LIBOMP NAMES omp omp5 libomp.so.5 NAMES_PER_DIR PATHS ${folders})
    if(VORM_LIBOMP)
        vorm_is_llvm_openmp(VORM_LIBOMP_WORKS ${VORM_LIBOMP})
    endif()
    if(VORM_LIBOMP_WORKS AND NOT VORM_OPENMP STREQUAL gnu)
        set(other ${runtime})
        set(runtime ${VORM_LIBOMP})
    elseif(VORM_LIBOMP_WORKS)
        set(other ${VORM_LIBOMP})
    elseif(VORM_OPENMP STREQUAL llvm)
        message(FATAL_ERROR "No LLVM OpenMP runtime (libomp) was found that links; VORM_LIBOMP can name it.")
    endif()
elseif(VORM_OPENMP STREQUAL gnu)
    message(FATAL_ERROR "GCC's OpenMP runtime serves code of g++ only.")
endif()
message(STATUS "OpenMP runtime: ${runtime}")

vorm_openmp_runtime(vorm_openmp ${runtime})
if(other)
    vorm_openmp_runtime(vorm_openmp_other ${other})
endif()
