# What is installed: the libraries, their public headers, and the descriptions that other builds find them by.
include( GNUInstallDirs )
set( CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/../${CMAKE_INSTALL_LIBDIR} )

# Headers for C and C++ have include guards. Those with `#pragma once` are the libraries' own.
function( sipsn_install_component name )
    file( GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h )
    foreach( header IN LISTS headers )
        file( STRINGS ${header} own REGEX "^#pragma once" )
        if( NOT own )
            install( FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${name} )
        endif()
    endforeach()
    install( TARGETS ${name} EXPORT sipsn )
endfunction()

install( EXPORT sipsn NAMESPACE sipsn:: FILE sipsnConfig.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/sipsn )

# The prefix is written relative to the file, so that an installed tree can be moved.
set( package_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig )
file( RELATIVE_PATH package_to_prefix /${package_folder} / )
configure_file( ${CMAKE_SOURCE_DIR}/cmake/sipsn.pc.in ${CMAKE_BINARY_DIR}/generated/sipsn.pc @ONLY )
install( FILES ${CMAKE_BINARY_DIR}/generated/sipsn.pc DESTINATION ${package_folder} )
