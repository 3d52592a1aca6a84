# What `cmake --install` lays into a prefix, beside the bundles (Bundle.cmake): the ways by which a person, a shell and a
# desktop find them.
set(CORVANE_ID com.vexmoor.corvane.settings)
set(resources "${PROJECT_SOURCE_DIR}/resources")
set(staging "${PROJECT_BINARY_DIR}/install")

# A command is a link into the bundle: a program finds its bundle from where its file really is.
function(corvane_install_command target)
    get_target_property(folder ${target} CORVANE_INSTALL_FOLDER)
    file(RELATIVE_PATH program "/${CMAKE_INSTALL_BINDIR}" "/${folder}/Contents/MacOS/${target}")
    file(MAKE_DIRECTORY "${staging}/bin")
    file(CREATE_LINK "${program}" "${staging}/bin/${target}" SYMBOLIC)
    install(FILES "${staging}/bin/${target}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
    configure_file("${resources}/man/${target}.1.in" "${staging}/man/${target}.1" @ONLY)
    install(FILES "${staging}/man/${target}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
    install(FILES "${resources}/completions/bash/${target}"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
    install(FILES "${resources}/completions/zsh/_${target}" DESTINATION "${CMAKE_INSTALL_DATADIR}/zsh/site-functions")
    install(FILES "${resources}/completions/fish/${target}.fish"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
endfunction()
corvane_install_command(corvane-settings)
corvane_install_command(corvane-agent)
corvane_install_command(corvane-ctl)

# The entries of desktop and session bus name the commands by their full paths, which are only known when the prefix is.
set(bindir "${CMAKE_INSTALL_BINDIR}")
set(entries "${CMAKE_INSTALL_DATADIR}/applications")
set(services "${CMAKE_INSTALL_DATADIR}/dbus-1/services")
configure_file("${PROJECT_SOURCE_DIR}/cmake/InstallEntries.cmake.in" "${staging}/InstallEntries.cmake" @ONLY)
install(SCRIPT "${staging}/InstallEntries.cmake")

set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
    install(FILES "${resources}/icons/Corvane-${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps" RENAME ${CORVANE_ID}.png)
endforeach()
install(FILES "${resources}/icons/Corvane.svg" DESTINATION "${icons}/scalable/apps" RENAME ${CORVANE_ID}.svg)
install(FILES "${resources}/icons/Corvane-symbolic.svg"
    DESTINATION "${icons}/symbolic/apps" RENAME ${CORVANE_ID}-symbolic.svg)

configure_file("${resources}/desktop/${CORVANE_ID}.metainfo.xml.in" "${staging}/${CORVANE_ID}.metainfo.xml" @ONLY)
install(FILES "${staging}/${CORVANE_ID}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

install(FILES "${resources}/fonts/InstrumentSans-OFL.txt" "${resources}/fonts/GeistMono-OFL.txt"
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/corvane-settings")
