# How every target of the project is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(QT_QML_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/qml")

find_program(CORVANE_CCACHE ccache)
if(CORVANE_CCACHE)
    # Precompiled headers are only cached when ccache may ignore the time stamps inside them.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${CORVANE_CCACHE})
endif()

# No object names the folder of its checkout, so every checkout gets from ccache what another one compiled.
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)

add_compile_options(-Wall -Wextra -Wpedantic -fpch-preprocess -pthread)
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_USE_QSTRINGBUILDER)

if(CORVANE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer -O1)
    add_link_options(-fsanitize=address,undefined)
endif()

# Others refuse an archive that is to be taken whole and that CMake names twice.
find_program(CORVANE_MOLD mold REQUIRED)
add_link_options(-fuse-ld=mold)
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # For size: nearly all of the program's file is in memory while it runs. What computes for long is compiled with
    # CORVANE_FOR_SPEED.
    add_compile_options(-Os)
    set(CORVANE_FOR_SPEED -O3)

    # Sections nothing refers to are dropped, and the dynamic linker touches fewer pages at start.
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections -Wl,-O1 -Wl,--as-needed)

    # The initialisers of the sources run once. Lying together they bring fewer of the program's pages into memory.
    add_link_options(-Wl,-z,keep-text-section-prefix)

    # What Debian hardens its programs with, and two guards more. Binding stays lazy: docs/performance.md says what it costs
    # to bind everything at start.
    add_compile_options(-fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|i.86)$")
        add_compile_options(-fcf-protection)
    endif()
    # The code is position independent as Qt asks for it.
    add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie> -Wl,-z,relro)
endif()
