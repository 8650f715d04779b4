// Hosts: what is valid, and the way between Unicode and the ASCII of the wire.
#include "sipsn_host.h"

#include "in/in_dns.h"
#include "sipsn_char_class.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

// The ASCII form of a host name in Unicode; null when it has none that is a host.
static pb::Ref< PbString > TryToAscii( PbString *name )
{
    if( !inDnsIdnaDomainNameOk( name ) ) return {};
    pb::Ref ascii{ inDnsIdnaDomainNameToAscii( name ) };
    return sipsn::Matches( ascii.Get(), sipsn___SkipHost ) ? std::move( ascii ) : pb::Ref< PbString >{};
}

bool sipsnHostOk( PbString *host )
{
    PB_ASSERT( host );
    return sipsn::Matches( host, sipsn___SkipHost ) || TryToAscii( host );
}

// Whether this is a name in letters, digits and hyphens as nearly every host is: one that the grammar and IDNA accept
// and that neither of them changes. What is not may still be a host.
static bool IsPlainName( const PbChar *chs, int64_t length )
{
    constexpr int64_t maxName = 253, maxLabel = 63;
    if( length == 0 || length > maxName ) return false;
    int64_t labelBegin = 0;
    for( int64_t at = 0; at <= length; ++at ) {
        if( at < length && sipsn::Is( chs[ at ], sipsn::Alphanum ) ) continue;
        if( at < length && chs[ at ] == '-' ) {
            // No label begins with one, and two in third and fourth place may be those of "xn--".
            if( at == labelBegin || ( at == labelBegin + 3 && chs[ at - 1 ] == '-' ) ) return false;
            continue;
        }
        if( at < length && chs[ at ] != '.' ) return false;
        if( at == labelBegin || at - labelBegin > maxLabel || chs[ at - 1 ] == '-' ) return false;
        labelBegin = at + 1;
    }
    return true;
}

PbString *sipsn___HostTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    if( IsPlainName( chs, length ) ) return pbStringCreateFromCharsCopy( chs, length );
    if( !sipsn::Matches( chs, length, sipsn___SkipHost ) ) return nullptr;

    pb::Ref ascii{ pbStringCreateFromCharsCopy( chs, length ) };
    if( !inDnsIdnaDomainNameOk( ascii.Get() ) ) return nullptr;
    pb::Ref unicode{ inDnsIdnaDomainNameToUnicode( ascii.Get() ) };
    if( unicode.Get() == ascii.Get() ) return unicode.Detach();
    return sipsnHostOk( unicode.Get() ) ? unicode.Detach() : nullptr;
}

PbString *sipsn___HostEncode( PbString *host )
{
    PB_ASSERT( host );
    if( sipsn::Matches( host, sipsn___SkipHost ) ) return pb::Retain( host );

    pb::Ref ascii = TryToAscii( host );
    PB_ABORT_UNLESS( nullptr, "sipsnHostOk( host )", ascii );
    return ascii.Detach();
}
