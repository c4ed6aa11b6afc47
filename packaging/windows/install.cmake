# Qt's libraries and plugins, the compiler's run time and the other libraries go beside the programs, so that the
# folder runs as it is.
set(licences "${CMAKE_INSTALL_DOCDIR}/licences")

set(deploy_output OUTPUT_SCRIPT)
if(Qt6_VERSION VERSION_LESS 6.5)
    set(deploy_output FILENAME_VARIABLE)
endif()
qt_generate_deploy_app_script(TARGET spinbar_program ${deploy_output} deploy_script)
install(SCRIPT "${deploy_script}")

# What is neither Qt's nor the system's: the workbook and archive libraries and what those need.
set(library_folders "$<TARGET_FILE_DIR:spinbar_program>")
if(VCPKG_INSTALLED_DIR)
    list(APPEND library_folders "${VCPKG_INSTALLED_DIR}/${VCPKG_TARGET_TRIPLET}/bin")
    foreach(port libxlsxwriter libzip zlib)
        install(FILES "${VCPKG_INSTALLED_DIR}/${VCPKG_TARGET_TRIPLET}/share/${port}/copyright"
            DESTINATION "${licences}" RENAME ${port}.txt OPTIONAL)
    endforeach()
endif()
if(NOT CMAKE_CROSSCOMPILING) # CMake looks into programs of its own system only
    install(TARGETS spinbar_program spinbar_cli_program
        RUNTIME_DEPENDENCIES
            DIRECTORIES ${library_folders}
            PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-" "^[Qq]t6"
            POST_EXCLUDE_REGEXES "[/\\\\][Ss]ystem32[/\\\\]"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
include(InstallRequiredSystemLibraries)

set(CPACK_GENERATOR NSIS ZIP)
set(CPACK_PACKAGE_INSTALL_DIRECTORY Spinbar)
set(CPACK_PACKAGE_EXECUTABLES spinbar Spinbar)
set(CPACK_CREATE_DESKTOP_LINKS spinbar)
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_CURRENT_SOURCE_DIR}/licence.txt")
set(CPACK_NSIS_DISPLAY_NAME "Spinbar ${PROJECT_VERSION}")
set(CPACK_NSIS_PACKAGE_NAME Spinbar)
set(CPACK_NSIS_MUI_ICON "${CMAKE_CURRENT_SOURCE_DIR}/windows/spinbar.ico")
set(CPACK_NSIS_MUI_UNIICON "${CMAKE_CURRENT_SOURCE_DIR}/windows/spinbar.ico")
set(CPACK_NSIS_INSTALLED_ICON_NAME "${CMAKE_INSTALL_BINDIR}\\spinbar.exe")
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_MUI_FINISHPAGE_RUN spinbar.exe)
set(CPACK_NSIS_URL_INFO_ABOUT "${PROJECT_HOMEPAGE_URL}")
