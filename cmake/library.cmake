# orrery_library(TARGET NAME name EXPORTS map OBJECTS ...): a library as clients link it, `orrery::name` inside this build
# as in an installed package. It is shared unless BUILD_SHARED_LIBS says otherwise; with ORRERY_STATIC a static one of the
# same objects stands beside it, `orrery::name_static`.
function(orrery_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;EXPORTS" "OBJECTS")
    string(REPLACE "_" "-" file ${target})
    set(kind SHARED)
    if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
        set(kind STATIC)
    endif()
    orrery_client_library(${target} ${kind} ${arg_NAME} ${file} ${arg_OBJECTS})
    set(targets ${target})
    if(kind STREQUAL "SHARED")
        set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${ORRERY_SOVERSION}
            LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
        if(WIN32) # a loader that knows no version but the file's name
            set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_NAME ${file}-${ORRERY_SOVERSION}
                RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
        else()
            set(map ${PROJECT_SOURCE_DIR}/cmake/${arg_EXPORTS})
            target_link_options(${target} PRIVATE LINKER:--version-script=${map} LINKER:--as-needed)
            set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
            if(NOT ORRERY_SANITIZE)
                target_link_options(${target} PRIVATE LINKER:--no-undefined)
            endif()
        endif()
        if(ORRERY_STATIC)
            orrery_client_library(${target}_static STATIC ${arg_NAME}_static ${file} ${arg_OBJECTS})
            list(APPEND targets ${target}_static)
        endif()
    endif()
    set_property(GLOBAL APPEND PROPERTY ORRERY_CLIENT_LIBRARIES ${targets})
endfunction()

function(orrery_client_library target kind name file)
    add_library(${target} ${kind} ${ARGN})
    add_library(orrery::${name} ALIAS ${target})
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:orrery_options>)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    set_target_properties(${target} PROPERTIES OUTPUT_NAME ${file} EXPORT_NAME ${name}
        ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
    if(kind STREQUAL "STATIC") # a client in C links the C++ runtime too
        set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    endif()
endfunction()
