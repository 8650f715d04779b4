// Short ways between bytes and messages, for the tests of the message layer.
#pragma once

#include "sipsn/sipsn.h"
#include "text.h"

#include <string>
#include <string_view>

inline pb::Ref< PbBuffer > Bytes( std::string_view bytes )
{
    return pb::Ref{ pbBufferCreateFromBytesCopy( bytes.data(), int64_t( bytes.size() ) ) };
}

inline std::string Text( PbBuffer *buffer )
{
    if( !buffer ) return "(null)";
    return { reinterpret_cast< const char * >( pbBufferBacking( buffer ) ), size_t( pbBufferLength( buffer ) ) };
}

inline std::string Take( PbBuffer *owned )
{
    pb::Ref buffer{ owned };
    return Text( buffer.Get() );
}

inline pb::Ref< SipsnMessageFragment > Fragment( std::string_view wire )
{
    return pb::Ref{ sipsnMessageFragmentTryDecode( Bytes( wire ).Get() ) };
}

inline pb::Ref< SipsnMessage > Message( std::string_view wire )
{
    return pb::Ref{ sipsnMessageTryDecode( Bytes( wire ).Get() ) };
}

// The lines of a header joined by "|", or "(null)" without such a header.
inline std::string Lines( SipsnMessageFragment *frag, const char *name )
{
    pb::Ref header{ sipsnMessageFragmentHeaderCstr( frag, name, -1 ) };
    if( !header ) return "(null)";
    std::string lines;
    for( int64_t at = 0; at < sipsnMessageHeaderLinesLength( header.Get() ); ++at )
        lines += ( at > 0 ? "|" : "" ) + Take( sipsnMessageHeaderLineAt( header.Get(), at ) );
    return lines;
}
