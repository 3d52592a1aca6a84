# Runs as a part of cpack, between installation and packing: gives the installed files the form that Debian asks for.
set(share "${CPACK_TEMPORARY_DIRECTORY}/usr/share")
set(doc "${share}/doc/${CPACK_PACKAGE_NAME}")
set(resources "${CPACK_CORVANE_RESOURCES}")

configure_file("${resources}/debian/changelog.in" "${doc}/changelog" @ONLY)
file(READ "${resources}/debian/copyright" copyright)
foreach(font IN ITEMS InstrumentSans GeistMono)
    file(READ "${doc}/${font}-OFL.txt" licence)
    string(APPEND copyright "${licence}\n")
    file(REMOVE "${doc}/${font}-OFL.txt")
endforeach()
file(WRITE "${doc}/copyright" "${copyright}")

# Where Debian's zsh looks.
file(RENAME "${share}/zsh/site-functions" "${share}/zsh/vendor-completions")

file(GLOB pages "${share}/man/man1/*.1")
execute_process(COMMAND gzip -9n ${pages} "${doc}/changelog" COMMAND_ERROR_IS_FATAL ANY)
