# What cmake --install installs, in seven components: print, check, tools, delivery, queue, settings
# and development.
#
#   korvel_install_program(target component)   a program, its manual page, docs/man/<target>.1.in,
#                                              and its completion
#   korvel_install_page(name section component)
#                                              a manual page, docs/man/<name>.<section>.in
#   korvel_install_library(name headers...)    the library korvel-<name>, in the CMake package
#                                              korvel::<name>, and headers under the path by which
#                                              they are included
#   korvel_compress(source name)               builds KORVEL_COMPRESSED_DIR/<name> of a file, the
#                                              same bytes of the same file every time

find_program(GZIP gzip REQUIRED)
set(KORVEL_COMPRESSED_DIR ${PROJECT_BINARY_DIR}/compressed)
file(MAKE_DIRECTORY ${KORVEL_COMPRESSED_DIR})

function(korvel_compress source name)
    add_custom_command(
        OUTPUT ${KORVEL_COMPRESSED_DIR}/${name}
        COMMAND ${GZIP} -9n < ${source} > ${KORVEL_COMPRESSED_DIR}/${name}
        DEPENDS ${source}
        VERBATIM)
    add_custom_target(compressed-${name} ALL DEPENDS ${KORVEL_COMPRESSED_DIR}/${name})
endfunction()

function(korvel_install_page name section component)
    set(page ${name}.${section})
    configure_file(${PROJECT_SOURCE_DIR}/docs/man/${page}.in ${page} @ONLY)
    korvel_compress(${CMAKE_CURRENT_BINARY_DIR}/${page} ${page}.gz)
    install(FILES ${KORVEL_COMPRESSED_DIR}/${page}.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section} COMPONENT ${component})
endfunction()

function(korvel_install_program target component)
    install(TARGETS ${target} COMPONENT ${component})
    korvel_install_page(${target} 1 ${component})
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/completion.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME ${target} COMPONENT ${component})
endfunction()

function(korvel_install_library name)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    set_target_properties(korvel-${name} PROPERTIES EXPORT_NAME ${name})
    install(TARGETS korvel-${name} EXPORT KorvelPrintTargets COMPONENT development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korvel-print)
    install(FILES ${ARGN}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/korvel-print/${folder} COMPONENT development)
endfunction()
