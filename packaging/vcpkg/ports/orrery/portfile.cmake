# An overlay port for a checkout: vcpkg install orrery --overlay-ports=PATH/packaging/vcpkg/ports
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../../.." ABSOLUTE)

vcpkg_check_features(OUT_FEATURE_OPTIONS options FEATURES tools ORRERY_TOOLS)
vcpkg_cmake_configure(SOURCE_PATH "${SOURCE_PATH}" OPTIONS -DORRERY_STATIC=OFF -DORRERY_INSTALL=ON ${options})
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME orrery CONFIG_PATH lib/cmake/orrery)
vcpkg_fixup_pkgconfig()
if("tools" IN_LIST FEATURES)
    vcpkg_copy_tools(TOOL_NAMES orrery AUTO_CLEAN)
endif()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
