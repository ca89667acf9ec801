# Compiler, linker and cache settings shared by every target of the product.

find_program(CCACHE ccache)
if(CCACHE)
    set(cached ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${cached})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${cached})
endif()

set(CMAKE_C_FLAGS_RELWITHDEBINFO "-O2 -g1")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1")

find_program(MOLD mold)
if(MOLD)
    add_link_options(-fuse-ld=mold)
endif()

# The precompiled header must not carry the time of its making, or the cache never hits.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(SANIRELL_PCH_FLAGS -fpch-preprocess)
endif()

if(SANIRELL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(SANIRELL_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

add_library(sanirell_warnings INTERFACE)
target_compile_options(sanirell_warnings INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror ${SANIRELL_PCH_FLAGS}>)
# What the sanitizers put in makes the compiler see uninitialised values where there are none.
if(SANIRELL_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(sanirell_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
