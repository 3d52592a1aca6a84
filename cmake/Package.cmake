# What `cpack` makes of the installed files: a Debian package (scripts/package).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME corvane-settings)
set(CPACK_PACKAGE_VENDOR Vexmoor)
set(CPACK_PACKAGE_CONTACT "Vexmoor <corvane@vexmoor.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://vexmoor.com/corvane)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "buttons and shortcuts for the window overview")
set(CPACK_PACKAGE_DESCRIPTION
"Corvane puts close, minimise and full-screen buttons and shortcuts on the
windows in the desktop's window overview. This package holds the window in
which it is set up, and its reference agent.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/package")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the programs load by name, so that no linked library tells of it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "dconf-service, libqt6svg6,\
 qml6-module-qtqml, qml6-module-qtqml-models, qml6-module-qtqml-workerscript,\
 qml6-module-qtquick, qml6-module-qtquick-templates, qml6-module-qtquick-window, qt6-wayland")
if(CORVANE_QML_PRIVATE)
    # Functions that Qt does not publish may be others in its next version.
    string(APPEND CPACK_DEBIAN_PACKAGE_DEPENDS ", qt6-declarative-abi (= ${Qt6_VERSION})")
endif()
# dbus-daemon is the bus that "corvane-ctl check-agent" starts; the session may have another one.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "at-spi2-core, dbus-daemon, fonts-dejavu-core, fonts-inter")
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianLayout.cmake")
set(CPACK_CORVANE_RESOURCES "${PROJECT_SOURCE_DIR}/resources")
include(CPack)
