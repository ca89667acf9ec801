# The encrypted database engine as target `engine`: the system's library when it is new enough, else the
# C amalgamation out of a pinned npm package, fetched once with scripts off and checked against its digest.

find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
    pkg_check_modules(SYSTEM_SQLCIPHER QUIET IMPORTED_TARGET sqlcipher>=4.6)
endif()

if(SYSTEM_SQLCIPHER_FOUND)
    add_library(engine INTERFACE)
    target_link_libraries(engine INTERFACE PkgConfig::SYSTEM_SQLCIPHER)
    target_compile_definitions(engine INTERFACE SQLITE_HAS_CODEC=1 ENGINE_HEADER=<sqlcipher/sqlite3.h>)
    return()
endif()

find_package(OpenSSL REQUIRED COMPONENTS Crypto)
set(engine_folder ${CMAKE_SOURCE_DIR}/third_party/engine)
if(NOT EXISTS ${engine_folder}/sqlite3.c)
    message(STATUS "Fetching the database engine")
    execute_process(COMMAND ${CMAKE_SOURCE_DIR}/tools/fetch-engine ${engine_folder} COMMAND_ERROR_IS_FATAL ANY)
endif()

add_library(engine STATIC ${engine_folder}/sqlite3.c)
target_include_directories(engine SYSTEM PUBLIC ${engine_folder})
target_compile_definitions(engine
    PUBLIC SQLITE_HAS_CODEC=1 ENGINE_HEADER=<sqlite3.h>
    PRIVATE SQLCIPHER_CRYPTO_OPENSSL SQLITE_EXTRA_INIT=sqlcipher_extra_init
            SQLITE_EXTRA_SHUTDOWN=sqlcipher_extra_shutdown SQLITE_TEMP_STORE=3 SQLITE_THREADSAFE=1
            SQLITE_DQS=0 SQLITE_OMIT_LOAD_EXTENSION SQLITE_OMIT_DEPRECATED SQLITE_OMIT_SHARED_CACHE
            SQLITE_MAX_EXPR_DEPTH=0 SQLITE_USE_ALLOCA SQLITE_DEFAULT_MEMSTATUS=0 SQLITE_LIKE_DOESNT_MATCH_BLOBS
            SQLITE_ENABLE_DBSTAT_VTAB HAVE_STDINT_H=1 HAVE_INTTYPES_H=1 NDEBUG)
target_compile_options(engine PRIVATE -w)
target_link_libraries(engine PUBLIC OpenSSL::Crypto ${CMAKE_DL_LIBS})
find_package(Threads REQUIRED)
target_link_libraries(engine PUBLIC Threads::Threads m)
set_target_properties(engine PROPERTIES AUTOMOC OFF)
