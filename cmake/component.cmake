# How libraries, tests and tools are built.
set( sipsn_warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror )

add_library( sipsn_options INTERFACE )
target_compile_options( sipsn_options INTERFACE ${sipsn_warnings} )
target_include_directories( sipsn_options INTERFACE ${CMAKE_SOURCE_DIR}/source ${CMAKE_BINARY_DIR}/generated )
if( CMAKE_CXX_COMPILER_ID STREQUAL "Clang" )
    # The characters and elements at the end of a string's or container's block are a flexible array.
    target_compile_options( sipsn_options INTERFACE -Wno-c99-extensions )
endif()
if( SIPSN_SANITIZE )
    add_compile_options( -fsanitize=${SIPSN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer )
    add_link_options( -fsanitize=${SIPSN_SANITIZE} )
endif()
if( SIPSN_FUZZ )
    add_compile_options( -fsanitize=fuzzer-no-link )
endif()

# sipsn_component( name LIBRARIES ... ): the shared library lib<name> from all sources of the current folder. What it exports
# is listed in <name>.exports; the linker's version script is made from that list.
function( sipsn_component name )
    cmake_parse_arguments( component "" "" "LIBRARIES" ${ARGN} )
    file( GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp )
    add_library( ${name} SHARED ${sources} )
    target_link_libraries( ${name} PRIVATE sipsn_options PUBLIC ${component_LIBRARIES} )
    target_compile_options( ${name} PRIVATE -fvisibility=hidden -fvisibility-inlines-hidden -Wmissing-declarations
                                            -fno-exceptions -fno-rtti -fno-semantic-interposition -fno-plt )
    # -O3 inlines and unrolls the scanners' short loops: four in a hundred instructions of a full decode.
    if( NOT SIPSN_SANITIZE AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug" )
        target_compile_options( ${name} PRIVATE -O3 )
    endif()
    target_include_directories( ${name} INTERFACE $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/source>
                                                  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}> )

    set( exports ${CMAKE_CURRENT_SOURCE_DIR}/${name}.exports )
    set( script ${CMAKE_CURRENT_BINARY_DIR}/${name}.map )
    add_custom_command(
        OUTPUT ${script}
        COMMAND ${CMAKE_COMMAND} -D EXPORTS=${exports} -D SCRIPT=${script} -P ${CMAKE_SOURCE_DIR}/cmake/version_script.cmake
        DEPENDS ${exports} ${CMAKE_SOURCE_DIR}/cmake/version_script.cmake )
    add_custom_target( ${name}_script DEPENDS ${script} )
    add_dependencies( ${name} ${name}_script )
    # Functions of the library call each other directly; its data must keep one address for everybody, so no -Bsymbolic.
    target_link_options( ${name} PRIVATE -Wl,--version-script=${script} -Wl,-Bsymbolic-functions )
    set_target_properties( ${name} PROPERTIES LINK_DEPENDS ${script} VERSION ${PROJECT_VERSION} SOVERSION 0 )

    sipsn_install_component( ${name} )
    set_property( GLOBAL APPEND PROPERTY sipsn_components ${name} )
endfunction()
