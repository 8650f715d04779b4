// Hosts: what is valid, and the way between Unicode and the ASCII of the wire.
#include "sipsn_host.h"

#include "in/in_dns.h"
#include "in/in_internal.h"
#include "sipsn_char_class.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

// The ASCII form of a host name in Unicode; null when it has none that is a host.
static pb::Ref< PbString > TryToAscii( PbString *name )
{
    pb::Ref ascii{ in___DnsTryToAscii( name ) };
    return ascii && sipsn::Matches( ascii.Get(), sipsn___SkipHost ) ? std::move( ascii ) : pb::Ref< PbString >{};
}

bool sipsnHostOk( PbString *host )
{
    PB_ASSERT( host );
    return sipsn::Matches( host, sipsn___SkipHost ) || TryToAscii( host );
}

// Label by label: none begins or ends with a hyphen, and two in third and fourth place may be those of "xn--".
int64_t sipsn::SkipPlainName( const PbChar *chs, int64_t length )
{
    constexpr int64_t maxName = 253, maxLabel = 63;
    for( int64_t begin = 0;; ) {
        const PbChar *label = chs + begin;
        const int64_t run   = pb::CountRun< true >( charClasses, Alphanum | Hyphen, label, length - begin );
        if( run == 0 || run > maxLabel || label[ 0 ] == '-' || label[ run - 1 ] == '-' ) return 0;
        if( run >= 4 && label[ 2 ] == '-' && label[ 3 ] == '-' ) return 0;
        begin += run;
        if( begin == length || chs[ begin ] != '.' ) return begin <= maxName ? begin : 0;
        ++begin;
    }
}

static bool IsPlainName( const PbChar *chs, int64_t length )
{
    return length > 0 && sipsn::SkipPlainName( chs, length ) == length;
}

// The name in Unicode is a host as well: its ASCII form is the one that was read, but for the case of letters.
PbString *sipsn___HostTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    if( IsPlainName( chs, length ) ) return pbStringCreateFromCharsCopy( chs, length );
    if( !sipsn::Matches( chs, length, sipsn___SkipHost ) ) return nullptr;

    pb::Ref ascii{ pbStringCreateFromCharsCopy( chs, length ) };
    if( !inDnsIdnaDomainNameOk( ascii.Get() ) ) return nullptr;
    return inDnsIdnaDomainNameToUnicode( ascii.Get() );
}

PbString *sipsn___HostEncode( PbString *host )
{
    PB_ASSERT( host );
    if( sipsn::Matches( host, sipsn___SkipHost ) ) return pb::Retain( host );

    pb::Ref ascii = TryToAscii( host );
    PB_ABORT_UNLESS( nullptr, "sipsnHostOk( host )", ascii );
    return ascii.Detach();
}
