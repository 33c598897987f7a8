# What `cmake --install` puts in place: headers, library, companion, and the two ways a build finds them.
include(CMakePackageConfigHelpers)

set(ORRERY_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/orrery)

install(TARGETS orrery orrery_explain EXPORT orreryTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/orrery DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h")
if(ORRERY_TOOLS AND TARGET orrery_cli)
    install(TARGETS orrery_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# find_package(orrery) gives the targets orrery::orrery and orrery::explain.
install(EXPORT orreryTargets NAMESPACE orrery:: DESTINATION ${ORRERY_PACKAGE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/orreryConfig.cmake.in
    ${PROJECT_BINARY_DIR}/orreryConfig.cmake INSTALL_DESTINATION ${ORRERY_PACKAGE_DIR}
    NO_SET_AND_CHECK_MACRO)
# Before 1.0 a record may still grow, so a minor version is only good for itself.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/orreryConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/orreryConfig.cmake ${PROJECT_BINARY_DIR}/orreryConfigVersion.cmake
    DESTINATION ${ORRERY_PACKAGE_DIR})

# pkg-config: paths are relative to the file, so that `cmake --install --prefix` may choose any place.
file(RELATIVE_PATH ORRERY_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(package IN ITEMS orrery orrery-explain)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
