# The agent's bundle, which holds this application's bundle in its Helpers folder.
set(CORVANE_BUNDLE "${PROJECT_BINARY_DIR}/Corvane.app")

# corvane_bundle(target folder plist [RESOURCES …]): the program becomes the executable of a bundle in `folder`.
function(corvane_bundle target folder plist)
    cmake_parse_arguments(ARG "" "" "RESOURCES" ${ARGN})
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${folder}/Contents/MacOS")
    configure_file("${plist}" "${folder}/Contents/Info.plist" @ONLY)
    foreach(file IN LISTS ARG_RESOURCES)
        get_filename_component(name "${file}" NAME)
        configure_file("${file}" "${folder}/Contents/Resources/${name}" COPYONLY)
    endforeach()
endfunction()
