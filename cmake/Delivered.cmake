# What an installation puts beside the program is made by the build in one folder.
set(SANIRELL_DELIVERED ${CMAKE_BINARY_DIR}/entrega)
file(MAKE_DIRECTORY ${SANIRELL_DELIVERED})
add_custom_target(delivered ALL)

# sanirell_delivered(<name> COMMAND <command>... DEPENDS <file or target>...)
#
# A target delivered_<name>, part of `delivered`, that runs the command when something it depends on is newer.
function(sanirell_delivered name)
    cmake_parse_arguments(ARG "" "" "COMMAND;DEPENDS" ${ARGN})
    set(stamp ${CMAKE_BINARY_DIR}/stamps/${name})
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${ARG_COMMAND}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/stamps
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${ARG_DEPENDS}
        COMMENT "Making the delivered files: ${name}"
        VERBATIM)
    add_custom_target(delivered_${name} DEPENDS ${stamp})
    add_dependencies(delivered delivered_${name})
endfunction()
