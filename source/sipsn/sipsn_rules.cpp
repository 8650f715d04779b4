// The rules of members: how a gen-value is read and written.
#include "sipsn_rules.h"

int64_t sipsn::SkipGenValue( const PbChar *chs, int64_t length )
{
    const int64_t unquoted = std::max( sipsn___SkipToken( chs, length ), sipsn___SkipHost( chs, length ) );
    return unquoted > 0 ? unquoted : sipsn___SkipQuotedString( chs, length );
}

PbString *sipsn::GenValueFromChars( const PbChar *chs, int64_t length )
{
    return chs[ length - 1 ] == '"' ? Unquote( chs, length ) : pbStringCreateFromCharsCopy( chs, length );
}

PbString *sipsn::GenValueToWire( PbString *text )
{
    const bool unquoted = Matches( text, sipsn___SkipToken ) || Matches( text, sipsn___SkipHost );
    return unquoted ? pb::Retain( text ) : sipsn___QuotableStringEncode( text );
}
