# The moc step does not run again by itself when a file is added to a target.
function(sanirell_moc_new_files name)
    get_target_property(sources ${name} SOURCES)
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}_sources.txt)
    if(EXISTS ${list})
        file(READ ${list} before)
    endif()
    if(NOT "${before}" STREQUAL "${sources}")
        file(WRITE ${list} "${sources}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/timestamp)
    endif()
endfunction()

# sanirell_subsystem(<name> [USES <subsystem>...] [LINKS <library>...])
#
# One static library for the folder it is called in. Its headers are reached as "<name>/..." through a
# folder of links of its own, so an include of a subsystem that is not named in USES does not compile.
function(sanirell_subsystem name)
    cmake_parse_arguments(ARG "" "" "USES;LINKS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
    add_library(${name} STATIC ${sources})
    sanirell_moc_new_files(${name})
    set(door ${CMAKE_BINARY_DIR}/include/${name})
    file(MAKE_DIRECTORY ${door})
    if(NOT EXISTS ${door}/${name})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${door}/${name} SYMBOLIC)
    endif()
    target_include_directories(${name} PUBLIC ${door})
    target_link_libraries(${name} PUBLIC ${ARG_USES} ${ARG_LINKS} PRIVATE sanirell_warnings)
    if(name STREQUAL "platform")
        target_precompile_headers(${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled.h)
    else()
        target_precompile_headers(${name} REUSE_FROM platform)
    endif()
endfunction()

include(GoogleTest)

# sanirell_tests(<name> LINKS <library>...): one test program of all sources below the calling folder, one entry
# a test.
function(sanirell_tests name)
    cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS *.cpp *.h)
    add_executable(${name} ${sources})
    sanirell_moc_new_files(${name})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} test_main GTest::gtest sanirell_warnings)
    target_compile_definitions(${name} PRIVATE TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}")
    gtest_discover_tests(${name} TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST
        PROPERTIES TIMEOUT 60)
endfunction()
