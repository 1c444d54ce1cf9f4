find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)

# quib_wayland_protocol(quib_linux-wayland layer-shell.xml): the target may include <layer-shell-client.h>.
function(quib_wayland_protocol target file)
    cmake_path(GET file STEM name)
    cmake_path(ABSOLUTE_PATH file)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/protocols)
    file(MAKE_DIRECTORY ${folder})
    foreach(way client-header:${name}-client.h private-code:${name}-protocol.c)
        string(REPLACE ":" ";" way ${way})
        list(GET way 0 kind)
        list(GET way 1 made)
        add_custom_command(OUTPUT ${folder}/${made} DEPENDS ${file} VERBATIM
            COMMAND ${WAYLAND_SCANNER} ${kind} ${file} ${folder}/${made})
        target_sources(${target} PRIVATE ${folder}/${made})
    endforeach()
    target_include_directories(${target} SYSTEM PRIVATE ${folder})
endfunction()
