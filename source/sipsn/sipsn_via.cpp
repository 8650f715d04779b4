// SipsnVia: one via-parm, RFC 3261 section 20.42.
#include "sipsn_via.h"

#include "sipsn_branch.h"
#include "sipsn_host.h"
#include "sipsn_message_internal.h"
#include "sipsn_port.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"
#include "sipsn_transport.h"
#include "sipsn_ttl.h"
#include "sipsn_value_internal.h"

using sipsn::Cursor, sipsn::Span;

struct SipsnVia
{
    PbObj               obj;
    SipsnVersion       *version;
    PbString           *transport;
    PbString           *host;
    int64_t             port;
    int64_t             ttl;
    PbString           *maddr;
    InAddress          *received;
    bool                rportEmpty; // never together with rport
    int64_t             rport;
    PbString           *branch;
    SipsnGenericParams *genericParams;

    using Members = pb::Members< &SipsnVia::version, &SipsnVia::transport, &SipsnVia::host, &SipsnVia::port,
                                 &SipsnVia::ttl, &SipsnVia::maddr, &SipsnVia::received, &SipsnVia::rportEmpty,
                                 &SipsnVia::rport, &SipsnVia::branch, &SipsnVia::genericParams >;
    // Without rport: a response's Via that it was filled into is still that of the request.
    using CompareOrder =
        pb::Members< &SipsnVia::version, &SipsnVia::transport, &SipsnVia::host, &SipsnVia::port, &SipsnVia::ttl,
                     &SipsnVia::maddr, &SipsnVia::received, &SipsnVia::branch, &SipsnVia::genericParams >;
};

SIPSN_DEFINE_TYPE( SipsnVia, sipsnVia, SIPSN_VIA, via, via, sipsn___ViaEncode )

static PbString *udp;
static PbString *localhost;

// Takes over the references.
static SipsnVia *CreateOwning( SipsnVersion *version, PbString *transport, PbString *host )
{
    SipsnVia *via      = pb::New< SipsnVia >();
    via->version       = version;
    via->transport     = transport;
    via->host          = host;
    via->genericParams = sipsnGenericParamsCreate();
    return via;
}

SipsnVia *sipsnViaCreate( SipsnVersion *version, PbString *transport, PbString *host )
{
    PB_ASSERT( version );
    PB_ASSERT( sipsnTransportOk( transport ) );
    PB_ASSERT( sipsnHostOk( host ) );
    return CreateOwning( pb::Retain( version ), sipsnTransportNormalize( transport ), pb::Retain( host ) );
}

SipsnVia *sipsnViaCreateWithPort( SipsnVersion *version, PbString *transport, PbString *host, int64_t port )
{
    pb::Ref via{ sipsnViaCreate( version, transport, host ) };
    sipsnViaSetPort( via.Slot(), port );
    return via.Detach();
}

SipsnVia *sipsnViaCreateDummy( SipsnVersion *version ) { return sipsnViaCreate( version, udp, localhost ); }

// ---- Accessors -------------------------------------------------------------------------------------

SipsnVersion *sipsnViaVersion( SipsnVia *via ) { return PB_GET( via, version ); }
void          sipsnViaSetVersion( SipsnVia **via, SipsnVersion *version )
{
    PB_SET( via, version, version, pb::Retain( version ) );
}

PbString *sipsnViaTransport( SipsnVia *via ) { return PB_GET( via, transport ); }
void      sipsnViaSetTransport( SipsnVia **via, PbString *transport )
{
    PB_SET( via, transport, sipsnTransportOk( transport ), sipsnTransportNormalize( transport ) );
}

PbString *sipsnViaHost( SipsnVia *via ) { return PB_GET( via, host ); }
void sipsnViaSetHost( SipsnVia **via, PbString *host ) { PB_SET( via, host, sipsnHostOk( host ), pb::Retain( host ) ); }

int64_t sipsnViaPort( SipsnVia *via ) { return PB_GET( via, port ); }
bool    sipsnViaHasPort( SipsnVia *via ) { return PB_HAS( via, port ); }
void    sipsnViaDelPort( SipsnVia **via ) { PB_DEL( via, port ); }
void    sipsnViaSetPort( SipsnVia **via, int64_t port ) { PB_SET( via, port, sipsnPortOk( port ), port ); }

int64_t sipsnViaTtl( SipsnVia *via ) { return PB_GET( via, ttl ); }
bool    sipsnViaHasTtl( SipsnVia *via ) { return PB_HAS( via, ttl ); }
void    sipsnViaDelTtl( SipsnVia **via ) { PB_DEL( via, ttl ); }
void    sipsnViaSetTtl( SipsnVia **via, int64_t ttl ) { PB_SET( via, ttl, sipsnTtlOk( ttl ), ttl ); }

PbString *sipsnViaMaddr( SipsnVia *via ) { return PB_GET( via, maddr ); }
bool      sipsnViaHasMaddr( SipsnVia *via ) { return PB_HAS( via, maddr ); }
void      sipsnViaDelMaddr( SipsnVia **via ) { PB_DEL( via, maddr ); }
void      sipsnViaSetMaddr( SipsnVia **via, PbString *host )
{
    PB_SET( via, maddr, sipsnHostOk( host ), pb::Retain( host ) );
}

InAddress *sipsnViaReceived( SipsnVia *via ) { return PB_GET( via, received ); }
bool       sipsnViaHasReceived( SipsnVia *via ) { return PB_HAS( via, received ); }
void       sipsnViaDelReceived( SipsnVia **via ) { PB_DEL( via, received ); }
void       sipsnViaSetReceived( SipsnVia **via, InAddress *received )
{
    PB_SET( via, received, received, pb::Retain( received ) );
}

bool sipsnViaHasRport( SipsnVia *via ) { return sipsnViaHasRportEmpty( via ) || sipsnViaHasRportNumeric( via ); }
bool sipsnViaHasRportEmpty( SipsnVia *via ) { return PB_HAS( via, rportEmpty ); }
void sipsnViaSetRportEmpty( SipsnVia **via )
{
    PB_DEL( via, rport );
    ( *via )->rportEmpty = true;
}

int64_t sipsnViaRportNumeric( SipsnVia *via ) { return PB_GET( via, rport ); }
bool    sipsnViaHasRportNumeric( SipsnVia *via ) { return PB_HAS( via, rport ); }
void    sipsnViaSetRportNumeric( SipsnVia **via, int64_t rport )
{
    PB_SET( via, rport, sipsnPortOk( rport ), rport );
    ( *via )->rportEmpty = false;
}

void sipsnViaDelRport( SipsnVia **via )
{
    PB_DEL( via, rport );
    ( *via )->rportEmpty = false;
}

PbString *sipsnViaBranch( SipsnVia *via ) { return PB_GET( via, branch ); }
bool      sipsnViaHasBranch( SipsnVia *via ) { return PB_HAS( via, branch ); }
void      sipsnViaDelBranch( SipsnVia **via ) { PB_DEL( via, branch ); }
void      sipsnViaSetBranch( SipsnVia **via, PbString *branch )
{
    PB_SET( via, branch, sipsnBranchOk( branch ), pb::Retain( branch ) );
}

SipsnGenericParams *sipsnViaGenericParams( SipsnVia *via ) { return PB_GET( via, genericParams ); }
void                sipsnViaSetGenericParams( SipsnVia **via, SipsnGenericParams *params )
{
    PB_SET( via, genericParams, params, pb::Retain( params ) );
}

// ---- Text form -------------------------------------------------------------------------------------

static bool TakeReceived( Cursor &in, SipsnVia *via )
{
    Span text = in.Param( "received", sipsn___SkipIpV6Address );
    if( !text ) text = in.Param( "received", sipsn___SkipIpV4Address );
    if( !text ) return false;
    InAddress *ina = inAddressTryCreateFromChars( text.chs, text.length );
    PB_ASSERT( ina );
    pb::Set( via->received, ina );
    return true;
}

static bool TakeTypedParam( Cursor &in, SipsnVia *via )
{
    return sipsn::TakeInt( in, "ttl", sipsn___SkipTtl, via->ttl, sipsn___TtlTryDecode ) ||
           sipsn::TakeText( in, "maddr", sipsn___SkipHost, via->maddr, sipsn___HostTryDecode ) ||
           TakeReceived( in, via ) || sipsn::TakeFlag( in, "rport", via->rportEmpty ) ||
           sipsn::TakeText( in, "branch", sipsn___SkipBranch, via->branch );
}

// [ COLON port ]; false when a colon has no valid port behind it.
static bool TryTakePort( Cursor &in, SipsnVia *via )
{
    if( !in.Take( sipsn___SkipColon ) ) return true;
    Span digits = in.Take( sipsn___SkipPort );
    if( !digits ) return false;
    via->port = sipsn___PortTryDecode( digits.chs, digits.length );
    return sipsnPortOk( via->port );
}

// The version up to the SLASH behind it; null when there is none. "SIP/2.0" is not scanned twice.
static SipsnVersion *TryTakeVersion( Cursor &in )
{
    Cursor ahead = in;
    if( ahead.Text( "SIP/2.0" ) && ahead.Take( PbChar{ '/' } ) ) {
        in.Text( "SIP/2.0" );
        return sipsnVersionCreateSip20();
    }
    const Span text = in.Take( sipsn___SkipVersion );
    return text ? sipsn___VersionTryDecode( text.chs, text.length ) : nullptr;
}

SipsnVia *sipsn___ViaTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    Cursor  in{ chs, length };
    pb::Ref version{ TryTakeVersion( in ) };
    if( !version || !in.Take( sipsn___SkipSlash ) ) return nullptr;
    Span transport = in.Take( sipsn___SkipTransport );
    if( !transport || !in.Take( sipsn___SkipLws ) ) return nullptr;
    Span    hostText = in.Take( sipsn___SkipHost );
    pb::Ref host{ hostText ? sipsn___HostTryDecode( hostText.chs, hostText.length ) : nullptr };
    if( !host ) return nullptr;

    pb::Ref via{
        CreateOwning( version.Detach(), sipsn::LowerFromChars( transport.chs, transport.length ), host.Detach() ) };
    if( !TryTakePort( in, via.Get() ) ) return nullptr;
    const auto takeTyped = [ & ]( Cursor &at ) { return TakeTypedParam( at, via.Get() ); };
    return sipsn::TryDecodeParams( in, &via->genericParams, takeTyped ) ? via.Detach() : nullptr;
}

void sipsn::Write( TextWriter &out, SipsnVia *via )
{
    out.Text( via->version->protocolName );
    out.Char( '/' );
    out.Text( via->version->protocolVersion );
    out.Char( '/' );
    out.Take( ToUpper( via->transport ) );
    out.Char( ' ' );
    out.Take( sipsn___HostEncode( via->host ) );
    if( pb::Has( via->port ) ) {
        out.Char( ':' );
        out.Int( via->port );
    }
    ParamWriter params{ out, via->genericParams };
    params.Int( "ttl", via->ttl );
    if( via->maddr ) params.Owned( "maddr", sipsn___HostEncode( via->maddr ) );
    if( via->received ) params.Owned( "received", inAddressToStringShrink( via->received ) );
    params.Flag( "rport", via->rportEmpty );
    params.Int( "rport", via->rport );
    params.Text( "branch", via->branch );
    params.Generic();
}

PbString *sipsn___ViaEncode( SipsnVia *via )
{
    PB_ASSERT( via );
    return sipsn::Encode( via );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___ViaStartup( void )
{
    udp       = nullptr;
    localhost = nullptr;
    udp       = pbStringCreateFromCstr( "udp", -1 );
    localhost = pbStringCreateFromCstr( "localhost", -1 );
}

void sipsn___ViaShutdown( void )
{
    pb::ReleaseAndPoison( udp );
    pb::ReleaseAndPoison( localhost );
}
