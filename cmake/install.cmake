# Installs the library, its public headers and a CMake package, so that a host says find_package(KX7Utlt).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS KX7Utlt EXPORT KX7UtltTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS KX7UtltEnglish KX7UtltGerman
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES KX7Utlt.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KX7Utlt)
foreach(folder IN ITEMS platform foundation geometry units dxf graphs drawing views2d views3d services controls)
    install(DIRECTORY ${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KX7Utlt FILES_MATCHING PATTERN "*.h")
endforeach()
install(EXPORT KX7UtltTargets NAMESPACE KX7Utlt:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/KX7Utlt)

configure_package_config_file(cmake/KX7UtltConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/KX7UtltConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/KX7Utlt)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/KX7UtltConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/KX7UtltConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/KX7UtltConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/KX7Utlt)
