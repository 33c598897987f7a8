# What `cmake --install` puts in place: headers, libraries, companion, and the two ways a build finds them. Components:
# runtime (the shared libraries), development (what a client is built with), tools (the companion).
include(CMakePackageConfigHelpers)

set(ORRERY_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/orrery)

get_property(ORRERY_LIBRARIES GLOBAL PROPERTY ORRERY_CLIENT_LIBRARIES)
install(TARGETS ${ORRERY_LIBRARIES} EXPORT orreryTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/orrery DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h")
if(ORRERY_TOOLS AND TARGET orrery_cli)
    install(TARGETS orrery_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endif()
if(ORRERY_TOOLS AND TARGET orrery_manual)
    set(manual ${PROJECT_BINARY_DIR}/tools/orrery/manual)
    install(FILES ${manual}/orrery.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    install(FILES ${manual}/orrery.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME orrery COMPONENT tools)
    install(FILES ${manual}/_orrery DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tools)
    install(FILES ${manual}/orrery.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
endif()

# What stands above, and nothing else: `cmake --build . --target orrery_installed`.
add_custom_target(orrery_installed DEPENDS ${ORRERY_LIBRARIES})
foreach(target IN ITEMS orrery_cli orrery_manual)
    if(TARGET ${target})
        add_dependencies(orrery_installed ${target})
    endif()
endforeach()

# find_package(orrery) gives the targets orrery::orrery and orrery::explain.
install(EXPORT orreryTargets NAMESPACE orrery:: DESTINATION ${ORRERY_PACKAGE_DIR} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/orreryConfig.cmake.in
    ${PROJECT_BINARY_DIR}/orreryConfig.cmake INSTALL_DESTINATION ${ORRERY_PACKAGE_DIR}
    NO_SET_AND_CHECK_MACRO)
# Before 1.0 a record may still grow, so a minor version is only good for itself.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/orreryConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/orreryConfig.cmake ${PROJECT_BINARY_DIR}/orreryConfigVersion.cmake
    DESTINATION ${ORRERY_PACKAGE_DIR} COMPONENT development)

# pkg-config: paths are relative to the file, so that `cmake --install --prefix` may choose any place.
file(RELATIVE_PATH ORRERY_PC_TO_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
foreach(package IN ITEMS orrery orrery-explain)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${package}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endforeach()

# `cpack` in the build folder makes one archive of all of it.
set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_NAME orrery)
set(CPACK_PACKAGE_VENDOR "The Orrery developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_RESOURCE_FILE_README ${PROJECT_SOURCE_DIR}/README.md)
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_STRIP_FILES ON)
include(CPack)
