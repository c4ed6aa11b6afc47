configure_file(linux/spinbar.metainfo.xml.in spinbar.metainfo.xml @ONLY)
install(FILES linux/spinbar.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/spinbar.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" RENAME org.example.spinbar.metainfo.xml)
install(FILES "${PROJECT_SOURCE_DIR}/resources/images/spinbar.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps")
foreach(size 48 64 128 256)
    install(FILES icons/spinbar-${size}.png
        DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps" RENAME spinbar.png)
endforeach()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/resources/scenarios" # of the simulated instrument
    DESTINATION "${CMAKE_INSTALL_DATADIR}/${SPINBAR_PACKAGE}")
# Not below a library folder of the architecture: only lib/udev is looked at.
install(FILES linux/70-spinbar.rules DESTINATION lib/udev/rules.d)
install(FILES licence.txt DESTINATION "${CMAKE_INSTALL_DOCDIR}" RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Which draws the icons, and is not linked: later releases have it in a package of its own.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6 (<< 6.7~) | qt6-svg-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, hicolor-icon-theme, udev")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_SOURCE_DIR}/linux/postinst")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
