// The exported functions of libsipsn by their names, so that what holds for all of a kind is tried with all of them.
#pragma once

#include <dlfcn.h>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

// What stands between a prefix and a suffix in the exported names that have both, in the order of the list.
inline std::vector< std::string > ExportsBetween( std::string_view prefix, std::string_view suffix )
{
    std::vector< std::string > found;
    std::ifstream              exports{ SIPSN_SOURCE_DIR "/source/sipsn/sipsn.exports" };
    for( std::string name; std::getline( exports, name ); )
        if( name.size() > prefix.size() + suffix.size() && name.starts_with( prefix ) && name.ends_with( suffix ) )
            found.push_back( name.substr( prefix.size(), name.size() - prefix.size() - suffix.size() ) );
    return found;
}

// Null when nothing of that name is exported.
template< class Function > Function *Exported( const std::string &name )
{
    return reinterpret_cast< Function * >( dlsym( RTLD_DEFAULT, name.c_str() ) );
}
