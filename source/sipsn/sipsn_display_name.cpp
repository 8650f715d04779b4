// Display names: what is valid, and the wire form.
#include "sipsn_display_name.h"

#include "sipsn_quotable_string.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

bool sipsnDisplayNameOk( PbString *displayName )
{
    PB_ASSERT( displayName );
    return sipsnQuotableStringOk( displayName );
}

PbString *sipsn::DisplayNameOf( const PbChar *chs, int64_t length )
{
    return chs[ length - 1 ] == '"' ? Unquote( chs, length ) : CollapseBlanks( chs, length );
}

PbString *sipsn___DisplayNameTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    if( PbString *content = sipsn___QuotableStringTryDecode( chs, length ) ) return content;

    const auto fits = []( PbChar ch ) { return sipsn::Is( ch, sipsn::Token | sipsn::Lws ); };
    return std::all_of( chs, chs + length, fits ) ? sipsn::CollapseBlanks( chs, length ) : nullptr;
}

PbString *sipsn___DisplayNameEncode( PbString *displayName )
{
    PB_ASSERT( sipsnDisplayNameOk( displayName ) );
    return sipsn___QuotableStringEncode( displayName );
}
