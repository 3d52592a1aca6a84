# A room is one folder under src/: one library, and one QML module where it has views.
# DEPENDS names the rooms above it, and nothing else may be included.

# One precompiled header for the rooms without views, one for those with.
function(corvane_precompiled name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINK" ${ARGN})
    set(stub "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    file(CONFIGURE OUTPUT "${stub}" CONTENT "// Holds the precompiled header.\n")
    add_library(${name} OBJECT "${stub}")
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

corvane_precompiled(pch_gui LINK Qt6::Gui
    HEADERS <QColor> <QFont> <QGuiApplication> <QObject> <QPainterPath> <QString> <QVariant> <optional> <span>)
corvane_precompiled(pch_quick LINK Qt6::Quick
    HEADERS <QColor> <QFont> <QGuiApplication> <QObject> <QPainterPath> <QString> <QVariant> <optional> <span>
            <QQmlComponent> <QQmlEngine> <QQuickItem> <QQuickPaintedItem> <QQuickWindow>)

# corvane_check_depends(name room …): the folders of src/ are read from the bottom up, so what is not there yet stands
# below this room.
function(corvane_check_depends name)
    foreach(room IN LISTS ARGN)
        if(NOT TARGET ${room})
            message(FATAL_ERROR "The room ${name} depends on ${room}, which does not stand above it in src/CMakeLists.txt.")
        endif()
    endforeach()
endfunction()

# corvane_room(name SOURCES … DEPENDS … [LINK …] [PRECOMPILED header]): a room of plain C++.
function(corvane_room name)
    cmake_parse_arguments(ARG "" "PRECOMPILED" "SOURCES;DEPENDS;LINK" ${ARGN})
    corvane_check_depends(${name} ${ARG_DEPENDS})
    if(NOT ARG_PRECOMPILED)
        set(ARG_PRECOMPILED pch_gui)
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC Qt6::Gui ${ARG_DEPENDS} PRIVATE ${ARG_LINK})
    set_property(GLOBAL PROPERTY CORVANE_DEPENDS_${name} ${ARG_DEPENDS})
    target_precompile_headers(${name} REUSE_FROM ${ARG_PRECOMPILED})
endfunction()

# corvane_follow_types(target [QML view …] [DEPENDS room …]): the views of a room are compiled with the types that they name,
# their own room's and those of the rooms above, so they are compiled anew when one of these changes. A room without views
# stands for nothing above it.
function(corvane_follow_types target)
    cmake_parse_arguments(ARG "" "" "QML;DEPENDS" ${ARGN})
    get_target_property(types ${target} QT_QML_MODULE_PLUGIN_TYPES_FILE)
    get_target_property(folder ${target} QT_QML_MODULE_OUTPUT_DIRECTORY)
    list(TRANSFORM ARG_QML PREPEND "${folder}/" OUTPUT_VARIABLE views)
    list(APPEND types ${views} "${folder}/qmldir")
    foreach(room IN LISTS ARG_DEPENDS)
        get_property(above GLOBAL PROPERTY CORVANE_TYPES_${room})
        list(APPEND types ${above})
    endforeach()
    list(REMOVE_DUPLICATES types)
    set_property(GLOBAL PROPERTY CORVANE_TYPES_${target} ${types})
    get_target_property(compiled ${target} SOURCES)
    list(FILTER compiled INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    foreach(view IN LISTS compiled)
        add_custom_command(OUTPUT "${view}" APPEND DEPENDS ${types})
    endforeach()
endfunction()

# The compiled views of a room and what registers them become one source: nearly all of what each of them costs are the
# headers.
function(corvane_unite_compiled_views target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$|_qmltyperegistrations\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES UNITY_GROUP views)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

# corvane_view_room(name URI … [SOURCES …] [QML …] [SINGLETONS …] DEPENDS … [LINK …]): a room with a QML module.
function(corvane_view_room name)
    cmake_parse_arguments(ARG "" "URI" "SOURCES;QML;SINGLETONS;DEPENDS;LINK" ${ARGN})
    corvane_check_depends(${name} ${ARG_DEPENDS})
    set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    qt_add_library(${name} STATIC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    # What the types of this module are made of, so that qmllint and the compiler of the views can follow them.
    set(modules QtQuick)
    foreach(room IN LISTS ARG_DEPENDS)
        get_property(uri GLOBAL PROPERTY CORVANE_URI_${room})
        list(APPEND modules ${uri})
    endforeach()
    set_property(GLOBAL PROPERTY CORVANE_URI_${name} ${ARG_URI})
    qt_add_qml_module(${name}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /
        NO_PLUGIN
        IMPORT_PATH "${QT_QML_OUTPUT_DIRECTORY}"
        DEPENDENCIES ${modules}
        SOURCES ${ARG_SOURCES}
        QML_FILES ${ARG_QML} ${ARG_SINGLETONS})
    corvane_follow_types(${name} QML ${ARG_QML} ${ARG_SINGLETONS} DEPENDS ${ARG_DEPENDS})
    corvane_unite_compiled_views(${name})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC Qt6::Quick ${ARG_DEPENDS} PRIVATE ${ARG_LINK})
    set_property(GLOBAL PROPERTY CORVANE_DEPENDS_${name} ${ARG_DEPENDS})
    target_precompile_headers(${name} REUSE_FROM pch_quick)
    if(TARGET ${name}_qmlcache)
        target_precompile_headers(${name}_qmlcache REUSE_FROM pch_quick)
    endif()
endfunction()

# corvane_use_views(target room …): links rooms into a program, with the QML modules of all the rooms they rest on. A module
# registers itself when the program starts, as there is no plugin to be looked for, so the linker has to take it whole.
function(corvane_use_views target)
    set(rooms ${ARGN})
    while(rooms)
        list(POP_FRONT rooms room)
        target_link_libraries(${target} PRIVATE ${room})
        get_property(uri GLOBAL PROPERTY CORVANE_URI_${room})
        if(uri)
            set_property(TARGET ${target} PROPERTY LINK_LIBRARY_OVERRIDE_${room} WHOLE_ARCHIVE)
        endif()
        get_property(depends GLOBAL PROPERTY CORVANE_DEPENDS_${room})
        list(APPEND rooms ${depends})
        list(REMOVE_DUPLICATES rooms)
    endwhile()
endfunction()
