include(GNUInstallDirs)

# The agent's bundle, which holds this application's bundle in its Helpers folder.
set(CORVANE_BUNDLE "${PROJECT_BINARY_DIR}/Corvane.app")

# What the programs load. The loader finds it there for tests.
set(CORVANE_FRAMEWORKS "${CORVANE_BUNDLE}/Contents/Frameworks")
set(CMAKE_BUILD_RPATH "${CORVANE_FRAMEWORKS}")

# A program of a bundle looks for libraries where they lie beside it, wherever the bundle is moved to. In a release one in the
# agent's bundle does so itself, when it loads one: with a run path the loader would look there for all that the program is
# linked with, before it starts.
function(corvane_find_frameworks target)
    get_target_property(folder ${target} RUNTIME_OUTPUT_DIRECTORY)
    cmake_path(IS_PREFIX CORVANE_BUNDLE "${folder}" is_inside)
    if(is_inside AND CMAKE_BUILD_TYPE STREQUAL "Release")
        set_target_properties(${target} PROPERTIES SKIP_BUILD_RPATH ON)
        return()
    endif()
    file(RELATIVE_PATH frameworks "${folder}" "${CORVANE_FRAMEWORKS}")
    set_target_properties(${target} PROPERTIES
        BUILD_RPATH "$ORIGIN/${frameworks}" INSTALL_RPATH "$ORIGIN/${frameworks}")
endfunction()

# corvane_bundle_library(target): the library lies in the agent's bundle, and is installed with it.
function(corvane_bundle_library target)
    set_target_properties(${target} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CORVANE_FRAMEWORKS}" BUILD_RPATH "")
    cmake_path(RELATIVE_PATH CORVANE_FRAMEWORKS BASE_DIRECTORY "${PROJECT_BINARY_DIR}" OUTPUT_VARIABLE place)
    install(TARGETS ${target} LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/corvane/${place}")
endfunction()

# corvane_bundle(target folder plist [INSTALLED] [RESOURCES …]): the program becomes the executable of a bundle in `folder`.
# An INSTALLED one is installed below lib/corvane/, where its property CORVANE_INSTALL_FOLDER says.
function(corvane_bundle target folder plist)
    cmake_parse_arguments(ARG "INSTALLED" "" "RESOURCES" ${ARGN})
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${folder}/Contents/MacOS")
    corvane_find_frameworks(${target})
    configure_file("${plist}" "${folder}/Contents/Info.plist" @ONLY)
    foreach(file IN LISTS ARG_RESOURCES)
        get_filename_component(name "${file}" NAME)
        configure_file("${file}" "${folder}/Contents/Resources/${name}" COPYONLY)
    endforeach()

    if(ARG_INSTALLED)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${PROJECT_BINARY_DIR}" OUTPUT_VARIABLE place)
        set(place "${CMAKE_INSTALL_LIBDIR}/corvane/${place}")
        set_target_properties(${target} PROPERTIES CORVANE_INSTALL_FOLDER "${place}")
        install(TARGETS ${target} RUNTIME DESTINATION "${place}/Contents/MacOS")
        install(FILES "${folder}/Contents/Info.plist" DESTINATION "${place}/Contents")
        install(FILES ${ARG_RESOURCES} DESTINATION "${place}/Contents/Resources")
    endif()
endfunction()

# corvane_bundle_program(target other): the program lies beside that of an INSTALLED bundle, and is installed with it.
function(corvane_bundle_program target other)
    get_target_property(folder ${other} RUNTIME_OUTPUT_DIRECTORY)
    get_target_property(place ${other} CORVANE_INSTALL_FOLDER)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${folder}" CORVANE_INSTALL_FOLDER "${place}")
    corvane_find_frameworks(${target})
    install(TARGETS ${target} RUNTIME DESTINATION "${place}/Contents/MacOS")
endfunction()
