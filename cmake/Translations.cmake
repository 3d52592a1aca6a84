# corvane_translations(room folder): compiles the texts in `folder`, one file for each language named by its code, into the
# room as :/languages/<code>.qm.
find_program(CORVANE_LRELEASE lrelease HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" REQUIRED)

function(corvane_translations room folder)
    file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.ts")
    foreach(source IN LISTS sources)
        get_filename_component(code "${source}" NAME_WE)
        set(compiled "${CMAKE_CURRENT_BINARY_DIR}/${code}.qm")
        add_custom_command(OUTPUT "${compiled}" DEPENDS "${source}"
            COMMAND ${CORVANE_LRELEASE} -silent -nounfinished "${source}" -qm "${compiled}")
        list(APPEND files "${compiled}")
    endforeach()
    qt_add_resources(${room} languages PREFIX /languages BASE "${CMAKE_CURRENT_BINARY_DIR}" FILES ${files}
        OPTIONS -no-compress)
endfunction()
