// SipsnVersion: the protocol version of start lines and Vias.
#include "sipsn_version.h"

#include "sipsn_cursor.h"
#include "sipsn_message_internal.h"
#include "sipsn_protocol_name.h"
#include "sipsn_protocol_version.h"
#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"

SIPSN_DEFINE_TYPE( SipsnVersion, sipsnVersion, SIPSN_VERSION, version, version, sipsn___VersionEncode )

static constexpr pb::ConstantString sip{ "SIP" }, twoPointZero{ "2.0" };
static SipsnVersion                 sip20; // a constant, from the first start on

// Takes over both references.
static SipsnVersion *CreateOwning( PbString *protocolName, PbString *protocolVersion )
{
    SipsnVersion *version    = pb::New< SipsnVersion >();
    version->protocolName    = protocolName;
    version->protocolVersion = protocolVersion;
    return version;
}

SipsnVersion *sipsnVersionCreate( PbString *protocolName, PbString *protocolVersion )
{
    PB_ASSERT( sipsnProtocolNameOk( protocolName ) );
    PB_ASSERT( sipsnProtocolVersionOk( protocolVersion ) );

    return CreateOwning( sipsnProtocolNameNormalize( protocolName ), sipsnProtocolVersionNormalize( protocolVersion ) );
}

SipsnVersion *sipsnVersionCreateSip20( void ) { return &sip20; }

// ---- Accessors -------------------------------------------------------------------------------------

PbString *sipsnVersionProtocolName( SipsnVersion *version ) { return PB_GET( version, protocolName ); }
void      sipsnVersionSetProtocolName( SipsnVersion **version, PbString *protocolName )
{
    PB_SET( version, protocolName, sipsnProtocolNameOk( protocolName ), sipsnProtocolNameNormalize( protocolName ) );
}

PbString *sipsnVersionProtocolVersion( SipsnVersion *version ) { return PB_GET( version, protocolVersion ); }
void      sipsnVersionSetProtocolVersion( SipsnVersion **version, PbString *protocolVersion )
{
    PB_SET( version, protocolVersion, sipsnProtocolVersionOk( protocolVersion ), sipsnProtocolVersionNormalize( protocolVersion ) );
}

bool sipsnVersionIsSip( SipsnVersion *version )
{
    PB_ASSERT( version );
    return pbStringEquals( version->protocolName, sip.Get() );
}

bool sipsnVersionIsSip20( SipsnVersion *version )
{
    return sipsnVersionIsSip( version ) && pbStringEquals( version->protocolVersion, twoPointZero.Get() );
}

// ---- Text form -------------------------------------------------------------------------------------

// Whether this is "SIP/2.0" to the letter, which nearly every version is.
static bool IsSip20Text( const PbChar *chs, int64_t length )
{
    return length == 7 && chs[ 0 ] == 'S' && chs[ 1 ] == 'I' && chs[ 2 ] == 'P' && chs[ 3 ] == '/' && chs[ 4 ] == '2' &&
           chs[ 5 ] == '.' && chs[ 6 ] == '0';
}

SipsnVersion *sipsn___VersionTryDecode( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );

    if( IsSip20Text( chs, length ) ) return &sip20;

    sipsn::Cursor in{ chs, length };
    sipsn::Span   name = in.Take( sipsn___SkipProtocolName );
    if( !name || !in.Take( sipsn___SkipSlash ) ) return nullptr;
    sipsn::Span version = in.Take( sipsn___SkipProtocolVersion );
    if( !version || !in.AtEnd() ) return nullptr;
    return CreateOwning( sipsn::UpperFromChars( name.chs, name.length ),
                         sipsn::LowerFromChars( version.chs, version.length ) );
}

PbString *sipsn___VersionEncode( SipsnVersion *version )
{
    PB_ASSERT( version );
    return pbStringCreateFromFormatCstr( "%s/%s", -1, version->protocolName, version->protocolVersion );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___VersionStartup( void )
{
    sip20 = { { pb::sortOf< SipsnVersion >, pb::uncounted, 0 }, sip.Get(), twoPointZero.Get() };
}

void sipsn___VersionShutdown( void ) {}
