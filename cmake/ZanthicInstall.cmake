# The CMake package and the pkg-config files.
include(CMakePackageConfigHelpers)

set(ZANTHIC_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Zanthic)

configure_package_config_file(cmake/ZanthicConfig.cmake.in ${CMAKE_BINARY_DIR}/ZanthicConfig.cmake
    INSTALL_DESTINATION ${ZANTHIC_CMAKE_DIR})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZanthicConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/ZanthicConfig.cmake ${CMAKE_BINARY_DIR}/ZanthicConfigVersion.cmake
    DESTINATION ${ZANTHIC_CMAKE_DIR} COMPONENT Development)
install(EXPORT ZanthicTargets NAMESPACE Zanthic:: DESTINATION ${ZANTHIC_CMAKE_DIR} COMPONENT Development)

# Absolute install dirs are allowed by GNUInstallDirs; only relative ones hang on the prefix.
foreach(kind IN ITEMS LIBDIR INCLUDEDIR DATADIR)
    if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}}")
        set(ZANTHIC_PC_${kind} "${CMAKE_INSTALL_${kind}}")
    else()
        set(ZANTHIC_PC_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}}")
    endif()
endforeach()
# Relative to the file itself, so that an installed tree can be moved.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(ZANTHIC_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
    file(RELATIVE_PATH ZANTHIC_PC_UP "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
    set(ZANTHIC_PC_PREFIX "\${pcfiledir}/${ZANTHIC_PC_UP}")
endif()
set(ZANTHIC_PC_FILES zanthic)
if(TARGET ZanthicTheme)
    list(APPEND ZANTHIC_PC_FILES zanthic-theme)
endif()
foreach(name IN LISTS ZANTHIC_PC_FILES)
    configure_file(cmake/${name}.pc.in ${CMAKE_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endforeach()
