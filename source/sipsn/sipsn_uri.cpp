// SipsnUri: a SIP, SIPS or tel URI in its parts, RFC 3261 section 19.1 and RFC 3966.
#include "sipsn_uri.h"

#include "sipsn_rules.h"
#include "sipsn_uri_part.h"
#include "sipsn_value_internal.h"

#include "iri/iri.h"

SIPSN_DECLARE_TEXT( Uri )

using sipsn::BasicCursor, sipsn::Span, sipsn::StringFrom, sipsn::TextRule, sipsn::TextWriter;

namespace sipsn::rule {

static PbString *KeepText( PbString *text ) { return uri::Keep( text ); }
static PbString *KeepHost( PbString *name ) { return uri::TryKeepHost( name ); }
static PbString *KeepChars( const PbChar *chs, int64_t length ) { return uri::Keep( chs, length ); }
static PbString *KeepHostChars( const PbChar *chs, int64_t length ) { return uri::TryKeepHost( chs, length ); }

// "name" or "name=value": escapes as everywhere, and a name in lower case.
static PbString *KeepParam( PbString *param );

static constexpr TextRule uriScheme{
    .words = "a scheme", .ok = sipsnUriSchemeOk, .production = uri::SkipScheme, .normal = ToLower };
static constexpr TextRule uriUser{ .words = "a user", .ok = sipsnUriUserOk, .production = nullptr, .normal = KeepText };
static constexpr TextRule uriPassword{
    .words = "a password", .ok = sipsnUriPasswordOk, .production = nullptr, .normal = KeepText };
static constexpr TextRule uriHost{ .words      = "a host",
                                   .ok         = sipsnUriHostOk,
                                   .production = nullptr,
                                   .decoded    = KeepHostChars,
                                   .normal     = KeepHost,
                                   .encoded    = sipsn___HostEncode };
static constexpr TextRule uriNumber{
    .words = "a telephone number", .ok = sipsnUriNumberOk, .production = uri::SkipNumberChars };
static constexpr TextRule uriToken{ .words = "a token", .ok = sipsnUriTokenOk, .production = uri::SkipToken };
static constexpr TextRule uriLowerToken{ .words      = "a token",
                                         .ok         = sipsnUriTokenOk,
                                         .production = nullptr,
                                         .decoded    = uri::TryLowerToken,
                                         .normal     = ToLower };
static constexpr IntRule  uriTtl{ .words      = "a ttl",
                                  .ok         = sipsnTtlOk,
                                  .lowest     = 0,
                                  .highest    = 255,
                                  .production = sipsn___SkipTtl,
                                  .decoded    = DecimalFromChars };
static constexpr TextRule isdnSubaddress{ .words      = "an ISDN subaddress",
                                          .ok         = sipsnUriIsdnSubaddressOk,
                                          .production = uri::SkipIsdnSubaddress,
                                          .decoded    = KeepChars,
                                          .normal     = KeepText };
static constexpr TextRule extension{
    .words = "an extension", .ok = sipsnUriExtensionOk, .production = uri::SkipExtension };
static constexpr TextRule context{ .words = "a context", .ok = sipsnUriContextOk, .production = uri::SkipContext };
static constexpr TextRule routingNumber{
    .words = "a routing number", .ok = sipsnUriRoutingNumberOk, .production = uri::SkipRoutingNumber };
static constexpr TextRule routingContext{
    .words = "a context", .ok = sipsnUriRoutingContextOk, .production = uri::SkipRoutingContext };
static constexpr TextRule trunkGroup{ .words      = "a trunk group",
                                      .ok         = sipsnUriTrunkGroupOk,
                                      .production = uri::SkipTrunkGroup,
                                      .decoded    = KeepChars,
                                      .normal     = KeepText };
static constexpr TextRule uriParam{
    .words = "a parameter", .ok = sipsnUriOtherParamOk, .production = nullptr, .normal = KeepParam };
static constexpr TextRule uriHeader{
    .words = "a header", .ok = sipsnUriHeaderOk, .production = nullptr, .normal = KeepText };
static constexpr TextRule uriRest{ .words = "the rest of a URI", .ok = sipsnUriRestOk, .production = nullptr };

} // namespace sipsn::rule

namespace {

constexpr pb::ConstantString sipScheme{ "sip" };
constexpr pb::ConstantString sipsScheme{ "sips" };
constexpr pb::ConstantString telScheme{ "tel" };
PbVector                    *noItems; // what most URIs have: a constant

// Whether no two parameters have the same name.
bool NamesDiffer( PbVector *params );

// Texts with a name.
template< class T > struct NamedItemsRow : sipsn::ListRow< T >
{
    bool ( *ok )( PbVector *items );

    static PbVector *Initial() { return pb::Retain( noItems ); }
    PbVector        *TryStore( PbObj *given ) const
    {
        pb::Ref items{ sipsn::ListRow< T >::TryStore( given ) };
        return items && ok( items.Get() ) ? items.Detach() : nullptr;
    }
};

template< class T >
constexpr auto NamedItems( std::string_view name, PbVector *T::*member, const TextRule &rule,
                           bool ( *ok )( PbVector *items ) )
{
    return NamedItemsRow< T >{ sipsn::Items( name, member, rule ), ok };
}

} // namespace

struct SipsnUri
{
    PbObj     obj;
    PbString *scheme;
    PbString *user;
    PbString *password;
    PbString *host;
    int64_t   port;
    PbString *number;
    PbString *transport;
    PbString *userParam;
    PbString *method;
    int64_t   ttl;
    PbString *maddr;
    bool      lr;
    PbString *isdnSubaddress;
    PbString *extension;
    PbString *phoneContext;
    PbString *cic;
    PbString *cicContext;
    bool      enumdi;
    bool      npdi;
    PbString *rn;
    PbString *rnContext;
    PbString *tgrp;
    PbString *trunkContext;
    PbVector *otherParams;
    PbVector *headers;
    PbString *rest;

    // The rows of parameters tell nothing of the wire, as URIs have a grammar of their own; `params` does.
    static constexpr auto Members()
    {
        using namespace sipsn;
        const auto anyNames = []( PbVector * ) { return true; };
        return pb::Members{
            Text( "scheme", &SipsnUri::scheme, rule::uriScheme ),
            OptionalText( "user", &SipsnUri::user, rule::uriUser ),
            OptionalText( "password", &SipsnUri::password, rule::uriPassword ),
            OptionalText( "host", &SipsnUri::host, rule::uriHost ),
            OptionalInt( "port", &SipsnUri::port, rule::port ),
            OptionalText( "number", &SipsnUri::number, rule::uriNumber ),
            OptionalText( "transport", &SipsnUri::transport, rule::uriLowerToken ),
            OptionalText( "userParam", &SipsnUri::userParam, rule::uriLowerToken ),
            OptionalText( "method", &SipsnUri::method, rule::uriToken ),
            OptionalInt( "ttl", &SipsnUri::ttl, rule::uriTtl ),
            OptionalText( "maddr", &SipsnUri::maddr, rule::uriHost ),
            FlagRow< SipsnUri >{ .name = "lr", .member = &SipsnUri::lr, .param = {} },
            OptionalText( "isdnSubaddress", &SipsnUri::isdnSubaddress, rule::isdnSubaddress ),
            OptionalText( "extension", &SipsnUri::extension, rule::extension ),
            OptionalText( "phoneContext", &SipsnUri::phoneContext, rule::context ),
            OptionalText( "cic", &SipsnUri::cic, rule::routingNumber ),
            OptionalText( "cicContext", &SipsnUri::cicContext, rule::routingContext ),
            FlagRow< SipsnUri >{ .name = "enumdi", .member = &SipsnUri::enumdi, .param = {} },
            FlagRow< SipsnUri >{ .name = "npdi", .member = &SipsnUri::npdi, .param = {} },
            OptionalText( "rn", &SipsnUri::rn, rule::routingNumber ),
            OptionalText( "rnContext", &SipsnUri::rnContext, rule::routingContext ),
            OptionalText( "tgrp", &SipsnUri::tgrp, rule::trunkGroup ),
            OptionalText( "trunkContext", &SipsnUri::trunkContext, rule::context ),
            NamedItems( "otherParams", &SipsnUri::otherParams, rule::uriParam, NamesDiffer ),
            NamedItems( "headers", &SipsnUri::headers, rule::uriHeader, anyNames ),
            OptionalText( "rest", &SipsnUri::rest, rule::uriRest ),
        };
    }

    // Whether it has what its scheme demands, and nothing else than that has.
    static bool IsWhole( const SipsnUri &uri );
};

SIPSN_DEFINE_TYPE( SipsnUri, sipsnUri, SIPSN_URI, uri, uri, sipsn___UriEncode )

// ---- Schemes ---------------------------------------------------------------------------------------

namespace {

enum class Kind
{
    sip, // or sips
    tel,
    other
};

Kind KindOf( const PbChar *scheme, int64_t length )
{
    const pb::Text text{ scheme, length };
    if( ( length == 3 || length == 4 ) && pb::StartsWithKeyword( text, "sip" ) )
        return length == 3 || pb::AsciiLower( scheme[ 3 ] ) == 's' ? Kind::sip : Kind::other;
    return length == 3 && pb::StartsWithKeyword( text, "tel" ) ? Kind::tel : Kind::other;
}
Kind KindOf( PbString *scheme ) { return KindOf( scheme->chs, scheme->length ); }

// While the schema builds a URI it may have none.
bool Is( const SipsnUri &uri, Kind kind ) { return uri.scheme && KindOf( uri.scheme ) == kind; }

// Whether the number is what a tel URI may begin with: a local one only where its context is known.
bool StandsAlone( PbString *number ) { return sipsn::uri::IsGlobal( number ); }

bool IsWholeAs( const SipsnUri &uri, Kind kind )
{
    const bool authority = uri.user || uri.password || uri.host || uri.port >= 0 || pbVectorLength( uri.headers ) > 0;
    switch( kind ) {
    case Kind::sip: return uri.host && ( uri.user || !uri.password ) && !uri.number && !uri.rest;
    case Kind::tel: return uri.number && ( StandsAlone( uri.number ) || uri.phoneContext ) && !authority && !uri.rest;
    case Kind::other: break;
    }
    return true;
}

} // namespace

bool SipsnUri::IsWhole( const SipsnUri &uri ) { return IsWholeAs( uri, KindOf( uri.scheme ) ); }

bool sipsnUriIsSip( SipsnUri *uri )
{
    PB_ASSERT( uri );
    return Is( *uri, Kind::sip );
}

bool sipsnUriIsTel( SipsnUri *uri )
{
    PB_ASSERT( uri );
    return Is( *uri, Kind::tel );
}

// ---- Parameters that are members -------------------------------------------------------------------

namespace {

// One of the members is set.
struct Param
{
    std::string_view name;
    PbString *SipsnUri::*text = nullptr;
    const TextRule      *rule = nullptr;
    int64_t SipsnUri::*number = nullptr;
    bool SipsnUri::*flag      = nullptr;
    bool            lenient   = false; // whether a flag is taken with any value

    // Values of these are kept as they are, nearly always.
    constexpr bool IsLowerToken() const { return rule == &sipsn::rule::uriLowerToken; }
};

// In the order in which they are written (RFC 3966 section 3: isub or ext, then phone-context, then by name).
constexpr Param params[] = {
    { "transport", &SipsnUri::transport, &sipsn::rule::uriLowerToken },
    { "user", &SipsnUri::userParam, &sipsn::rule::uriLowerToken },
    { "method", &SipsnUri::method, &sipsn::rule::uriToken },
    { .name = "ttl", .number = &SipsnUri::ttl },
    { "maddr", &SipsnUri::maddr, &sipsn::rule::uriHost },
    { .name = "lr", .flag = &SipsnUri::lr, .lenient = true },
    { "isub", &SipsnUri::isdnSubaddress, &sipsn::rule::isdnSubaddress },
    { "ext", &SipsnUri::extension, &sipsn::rule::extension },
    { "phone-context", &SipsnUri::phoneContext, &sipsn::rule::context },
    { "cic", &SipsnUri::cic, &sipsn::rule::routingNumber },
    { "cic-context", &SipsnUri::cicContext, &sipsn::rule::routingContext },
    { .name = "enumdi", .flag = &SipsnUri::enumdi },
    { .name = "npdi", .flag = &SipsnUri::npdi },
    { "rn", &SipsnUri::rn, &sipsn::rule::routingNumber },
    { "rn-context", &SipsnUri::rnContext, &sipsn::rule::routingContext },
    { "tgrp", &SipsnUri::tgrp, &sipsn::rule::trunkGroup },
    { "trunk-context", &SipsnUri::trunkContext, &sipsn::rule::context },
};

// One bit for each parameter, by the length of a name and by its first letter. Together they leave one at most.
struct ParamIndex
{
    std::array< uint32_t, 16 > byLength{};
    std::array< uint32_t, 32 > byLetter{};
};
constexpr ParamIndex paramIndex = [] {
    ParamIndex index{};
    for( size_t n = 0; n < std::size( params ); ++n ) {
        index.byLength[ params[ n ].name.size() ] |= 1u << n;
        index.byLetter[ params[ n ].name[ 0 ] & 31 ] |= 1u << n;
    }
    return index;
}();

// The bit of lower case is set in letters, and it changes nothing else that a name consists of.
bool IsNamed( const PbChar *name, std::string_view wanted )
{
    for( const char ch : wanted )
        if( ( *name++ | 0x20 ) != ch ) return false;
    return true;
}

// The number of the parameter in the table; -1 for a name that is not there.
int FindParam( pb::Text name )
{
    if( name.length >= int64_t( paramIndex.byLength.size() ) ) return -1;
    const uint32_t bits = paramIndex.byLength[ size_t( name.length ) ] & paramIndex.byLetter[ name[ 0 ] & 31 ];
    if( !bits ) return -1;
    const int n = __builtin_ctz( bits );
    return IsNamed( name.chs, params[ n ].name ) ? n : -1;
}

bool IsPresent( const SipsnUri &uri, const Param &param )
{
    return param.text ? bool( uri.*param.text ) : param.number ? uri.*param.number >= 0 : uri.*param.flag;
}

// A value with escapes only where they change its meaning; empty when there is none.
bool TrySetParam( SipsnUri &uri, const Param &param, pb::Text value )
{
    if( param.flag ) return ( param.lenient || value.length == 0 ) && ( uri.*param.flag = true );
    if( value.length == 0 ) return false;
    if( param.number ) {
        uri.*param.number = value.length <= 3 ? sipsn::DecodeInt( value.chs, value.length, 255 ) : -1;
        return uri.*param.number >= 0;
    }
    const auto production = param.rule->production; // null where decoding tells
    if( production && production( value.chs, value.length ) != value.length ) return false;
    pb::Set( uri.*param.text, param.rule->decoded( value.chs, value.length ) );
    return uri.*param.text;
}

void WriteValue( TextWriter &out, const SipsnUri &uri, const Param &param )
{
    if( param.number )
        out.Int( uri.*param.number );
    else if( param.text )
        sipsn::Write( out, *param.rule, uri.*param.text );
}

PbString *ItemAt( PbVector *items, int64_t at )
{
    return reinterpret_cast< PbString * >( pb___VectorPeek( items, at ) );
}

pb::Text NameOf( PbString *item ) { return { item->chs, sipsn::uri::NameLength( item ) }; }

pb::Text ValueOf( PbString *item )
{
    const int64_t name = sipsn::uri::NameLength( item );
    return name < item->length ? pb::Text{ item->chs + name + 1, item->length - name - 1 } : pb::Text{};
}

PbString *ToString( pb::Text text ) { return pbStringCreateFromCharsCopy( text.chs, text.length ); }

// Whether a member takes the place of another parameter.
bool IsHidden( const SipsnUri &uri, PbString *param )
{
    const int member = FindParam( NameOf( param ) );
    return member >= 0 && IsPresent( uri, params[ member ] );
}

bool NamesDiffer( PbVector *items )
{
    const int64_t length = pbVectorLength( items );
    if( length < 2 ) return true;
    pb::Ref names{ pbDictCreate() };
    for( int64_t at = 0; at < length; ++at ) {
        PbString *key = ToString( NameOf( ItemAt( items, at ) ) );
        pb___DictSetOwned( names.Slot(), key, pb::AsObj( pb::Retain( key ) ) );
    }
    return pbDictLength( names.Get() ) == length;
}

} // namespace

PbDict *sipsn::uri::ParamsByName( SipsnUri *uri )
{
    pb::Ref all{ pbDictCreate() };
    for( const Param &param : params ) {
        if( !IsPresent( *uri, param ) ) continue;
        PbString *name  = TextOf( [ & ]( TextWriter &out ) { out.Ascii( param.name ); } );
        PbString *value = TextOf( [ & ]( TextWriter &out ) { WriteValue( out, *uri, param ); } );
        pb___DictSetOwned( all.Slot(), name, pb::AsObj( value ) );
    }
    for( int64_t at = 0, length = pbVectorLength( uri->otherParams ); at < length; ++at ) {
        PbString *item = ItemAt( uri->otherParams, at );
        if( IsHidden( *uri, item ) ) continue;
        pb___DictSetOwned( all.Slot(), ToString( NameOf( item ) ), pb::AsObj( ToString( ValueOf( item ) ) ) );
    }
    return all.Detach();
}

PbString *sipsn::rule::KeepParam( PbString *param )
{
    pb::Ref kept{ uri::Keep( param ) };
    for( int64_t n = 0, end = uri::NameLength( kept.Get() ); n < end; ++n )
        if( pb::IsLetterFrom( 'A', kept->chs[ n ] ) && ( n < 1 || kept->chs[ n - 1 ] != '%' ) &&
            ( n < 2 || kept->chs[ n - 2 ] != '%' ) ) {
            if( pb::IsShared( kept.Get() ) ) kept = pb::Ref{ pbStringCreateFrom( kept.Get() ) };
            kept->chs[ n ] = pb::AsciiLower( kept->chs[ n ] );
        }
    return kept.Detach();
}

bool sipsnUriOtherParamOk( PbString *param )
{
    PB_ASSERT( param );
    sipsn::Cursor in{ param->chs, param->length };
    int64_t       changes;
    if( !in.Take( sipsn::uri::SkipParamPart, changes, "" ) ) return false;
    if( in.Take( PbChar{ '=' } ) && !in.Take( sipsn::uri::SkipParamPart, changes, "" ) ) return false;
    if( !in.AtEnd() ) return false;
    pb::Ref   kept{ sipsn::rule::KeepParam( param ) };
    const int member = FindParam( NameOf( kept.Get() ) );
    if( member < 0 ) return true;
    pb::Ref empty{ sipsn::New< SipsnUri >() };
    return !TrySetParam( *empty.Get(), params[ member ], ValueOf( kept.Get() ) );
}

bool sipsnUriHeaderOk( PbString *header )
{
    PB_ASSERT( header );
    sipsn::Cursor in{ header->chs, header->length };
    int64_t       changes;
    if( !in.Take( sipsn::uri::SkipHeaderPart, changes, "" ) || !in.Take( PbChar{ '=' } ) ) return false;
    in.Take( sipsn::uri::SkipHeaderPart, changes, "" );
    return in.AtEnd();
}

// ---- Creation --------------------------------------------------------------------------------------

static SipsnUri *CreateOf( PbString *scheme ) { return sipsn::NewWith( &SipsnUri::scheme, pb::Retain( scheme ) ); }

SipsnUri *sipsnUriCreate( PbString *scheme )
{
    PB_ASSERT( sipsnUriSchemeOk( scheme ) );
    PB_ASSERT( KindOf( scheme ) == Kind::other );
    return sipsn::NewWith( &SipsnUri::scheme, sipsn::ToLower( scheme ) );
}

SipsnUri *sipsnUriCreateOther( PbString *scheme, PbString *rest )
{
    PB_ASSERT( sipsnUriRestOk( rest ) );
    SipsnUri *uri = sipsnUriCreate( scheme );
    uri->rest     = pb::Retain( rest );
    return uri;
}

static SipsnUri *CreateWithHost( PbString *scheme, PbString *host )
{
    PB_ASSERT( sipsnUriHostOk( host ) );
    SipsnUri *uri = CreateOf( scheme );
    uri->host     = sipsn::uri::TryKeepHost( host );
    return uri;
}

SipsnUri *sipsnUriCreateSip( PbString *host ) { return CreateWithHost( sipScheme.Get(), host ); }
SipsnUri *sipsnUriCreateSips( PbString *host ) { return CreateWithHost( sipsScheme.Get(), host ); }

SipsnUri *sipsnUriCreateTel( PbString *number )
{
    PB_ASSERT( sipsnUriNumberIsGlobal( number ) );
    SipsnUri *uri = CreateOf( telScheme.Get() );
    uri->number   = pb::Retain( number );
    return uri;
}

SipsnUri *sipsnUriCreateTelLocal( PbString *number, PbString *phoneContext )
{
    PB_ASSERT( sipsnUriNumberOk( number ) );
    PB_ASSERT( sipsnUriContextOk( phoneContext ) );
    SipsnUri *uri     = CreateOf( telScheme.Get() );
    uri->number       = pb::Retain( number );
    uri->phoneContext = pb::Retain( phoneContext );
    return uri;
}

#define SIPSN_URI_CREATE_CSTR( Name, text )                                                                            \
    SipsnUri *sipsnUriCreate##Name##Cstr( const char *text, int64_t text##Length )                                     \
    {                                                                                                                  \
        return sipsnUriCreate##Name( StringFrom( text, text##Length ).Get() );                                         \
    }                                                                                                                  \
    SipsnUri *sipsnUriCreate##Name##Wcstr( const wchar_t *text, int64_t text##Length )                                 \
    {                                                                                                                  \
        return sipsnUriCreate##Name( StringFrom( text, text##Length ).Get() );                                         \
    }
SIPSN_URI_CREATE_CSTR( Sip, host )
SIPSN_URI_CREATE_CSTR( Sips, host )
SIPSN_URI_CREATE_CSTR( Tel, number )

// ---- Accessors -------------------------------------------------------------------------------------

#define SIPSN_URI_SET_CSTR( Name, text )                                                                               \
    void sipsnUriSet##Name##Cstr( SipsnUri **uri, const char *text, int64_t text##Length )                             \
    {                                                                                                                  \
        sipsnUriSet##Name( uri, StringFrom( text, text##Length ).Get() );                                              \
    }                                                                                                                  \
    void sipsnUriSet##Name##Wcstr( SipsnUri **uri, const wchar_t *text, int64_t text##Length )                         \
    {                                                                                                                  \
        sipsnUriSet##Name( uri, StringFrom( text, text##Length ).Get() );                                              \
    }

using sipsn::uri::Keep, sipsn::uri::TryKeepHost;

PbString *sipsnUriScheme( SipsnUri *uri ) { return PB_GET( uri, scheme ); }
void      sipsnUriSetScheme( SipsnUri **uri, PbString *scheme )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( sipsnUriSchemeOk( scheme ) );
    PB_ASSERT( IsWholeAs( **uri, KindOf( scheme ) ) );
    PB_PUT( uri, scheme, sipsn::ToLower( scheme ) );
}
SIPSN_URI_SET_CSTR( Scheme, scheme )

PbString *sipsnUriUser( SipsnUri *uri ) { return PB_GET( uri, user ); }
bool      sipsnUriHasUser( SipsnUri *uri ) { return PB_HAS( uri, user ); }
void      sipsnUriSetUser( SipsnUri **uri, PbString *user )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) );
    PB_SET( uri, user, sipsnUriUserOk( user ), Keep( user ) );
}
SIPSN_URI_SET_CSTR( User, user )

// The password of a sip URI goes with the user.
void sipsnUriDelUser( SipsnUri **uri )
{
    PB_DEL( uri, user );
    if( Is( **uri, Kind::sip ) ) pb::Del( ( *uri )->password );
}

PbString *sipsnUriPassword( SipsnUri *uri ) { return PB_GET( uri, password ); }
bool      sipsnUriHasPassword( SipsnUri *uri ) { return PB_HAS( uri, password ); }
void      sipsnUriSetPassword( SipsnUri **uri, PbString *password )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) );
    PB_ASSERT( !Is( **uri, Kind::sip ) || ( *uri )->user );
    PB_SET( uri, password, sipsnUriPasswordOk( password ), Keep( password ) );
}
SIPSN_URI_SET_CSTR( Password, password )
void sipsnUriDelPassword( SipsnUri **uri ) { PB_DEL( uri, password ); }

PbString *sipsnUriHost( SipsnUri *uri ) { return PB_GET( uri, host ); }
bool      sipsnUriHasHost( SipsnUri *uri ) { return PB_HAS( uri, host ); }
void      sipsnUriSetHost( SipsnUri **uri, PbString *host )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) );
    PB_SET( uri, host, sipsnUriHostOk( host ), TryKeepHost( host ) );
}
SIPSN_URI_SET_CSTR( Host, host )

int64_t sipsnUriPort( SipsnUri *uri ) { return PB_GET( uri, port ); }
bool    sipsnUriHasPort( SipsnUri *uri ) { return PB_HAS( uri, port ); }
void    sipsnUriSetPort( SipsnUri **uri, int64_t port )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) );
    PB_SET( uri, port, sipsnPortOk( port ), port );
}
void sipsnUriDelPort( SipsnUri **uri ) { PB_DEL( uri, port ); }

PbString *sipsnUriNumber( SipsnUri *uri ) { return PB_GET( uri, number ); }
bool      sipsnUriHasNumber( SipsnUri *uri ) { return PB_HAS( uri, number ); }
void      sipsnUriSetNumber( SipsnUri **uri, PbString *number )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::sip ) );
    PB_ASSERT( sipsnUriNumberOk( number ) );
    PB_ASSERT( !Is( **uri, Kind::tel ) || sipsnUriNumberIsGlobal( number ) || ( *uri )->phoneContext );
    PB_PUT( uri, number, pb::Retain( number ) );
}
SIPSN_URI_SET_CSTR( Number, number )

PbString *sipsnUriTransport( SipsnUri *uri ) { return PB_GET( uri, transport ); }
bool      sipsnUriHasTransport( SipsnUri *uri ) { return PB_HAS( uri, transport ); }
void      sipsnUriSetTransport( SipsnUri **uri, PbString *transport )
{
    PB_SET( uri, transport, sipsnUriTokenOk( transport ), sipsn::ToLower( transport ) );
}
SIPSN_URI_SET_CSTR( Transport, transport )
void sipsnUriDelTransport( SipsnUri **uri ) { PB_DEL( uri, transport ); }

PbString *sipsnUriUserParam( SipsnUri *uri ) { return PB_GET( uri, userParam ); }
bool      sipsnUriHasUserParam( SipsnUri *uri ) { return PB_HAS( uri, userParam ); }
void      sipsnUriSetUserParam( SipsnUri **uri, PbString *userParam )
{
    PB_SET( uri, userParam, sipsnUriTokenOk( userParam ), sipsn::ToLower( userParam ) );
}
SIPSN_URI_SET_CSTR( UserParam, userParam )
void sipsnUriDelUserParam( SipsnUri **uri ) { PB_DEL( uri, userParam ); }

PbString *sipsnUriMethod( SipsnUri *uri ) { return PB_GET( uri, method ); }
bool      sipsnUriHasMethod( SipsnUri *uri ) { return PB_HAS( uri, method ); }
void      sipsnUriSetMethod( SipsnUri **uri, PbString *method )
{
    PB_SET( uri, method, sipsnUriTokenOk( method ), pb::Retain( method ) );
}
SIPSN_URI_SET_CSTR( Method, method )
void sipsnUriDelMethod( SipsnUri **uri ) { PB_DEL( uri, method ); }

int64_t sipsnUriTtl( SipsnUri *uri ) { return PB_GET( uri, ttl ); }
bool    sipsnUriHasTtl( SipsnUri *uri ) { return PB_HAS( uri, ttl ); }
void    sipsnUriSetTtl( SipsnUri **uri, int64_t ttl ) { PB_SET( uri, ttl, sipsnTtlOk( ttl ), ttl ); }
void    sipsnUriDelTtl( SipsnUri **uri ) { PB_DEL( uri, ttl ); }

PbString *sipsnUriMaddr( SipsnUri *uri ) { return PB_GET( uri, maddr ); }
bool      sipsnUriHasMaddr( SipsnUri *uri ) { return PB_HAS( uri, maddr ); }
void      sipsnUriSetMaddr( SipsnUri **uri, PbString *host )
{
    PB_SET( uri, maddr, sipsnUriHostOk( host ), TryKeepHost( host ) );
}
SIPSN_URI_SET_CSTR( Maddr, host )
void sipsnUriDelMaddr( SipsnUri **uri ) { PB_DEL( uri, maddr ); }

bool sipsnUriLr( SipsnUri *uri ) { return PB_GET( uri, lr ); }
void sipsnUriSetLr( SipsnUri **uri, bool lr ) { PB_PUT( uri, lr, lr ); }

PbString *sipsnUriIsdnSubaddress( SipsnUri *uri ) { return PB_GET( uri, isdnSubaddress ); }
bool      sipsnUriHasIsdnSubaddress( SipsnUri *uri ) { return PB_HAS( uri, isdnSubaddress ); }
void      sipsnUriSetIsdnSubaddress( SipsnUri **uri, PbString *isdnSubaddress )
{
    PB_SET( uri, isdnSubaddress, sipsnUriIsdnSubaddressOk( isdnSubaddress ), Keep( isdnSubaddress ) );
}
SIPSN_URI_SET_CSTR( IsdnSubaddress, isdnSubaddress )
void sipsnUriDelIsdnSubaddress( SipsnUri **uri ) { PB_DEL( uri, isdnSubaddress ); }

PbString *sipsnUriExtension( SipsnUri *uri ) { return PB_GET( uri, extension ); }
bool      sipsnUriHasExtension( SipsnUri *uri ) { return PB_HAS( uri, extension ); }
void      sipsnUriSetExtension( SipsnUri **uri, PbString *extension )
{
    PB_SET( uri, extension, sipsnUriExtensionOk( extension ), pb::Retain( extension ) );
}
SIPSN_URI_SET_CSTR( Extension, extension )
void sipsnUriDelExtension( SipsnUri **uri ) { PB_DEL( uri, extension ); }

PbString *sipsnUriPhoneContext( SipsnUri *uri ) { return PB_GET( uri, phoneContext ); }
bool      sipsnUriHasPhoneContext( SipsnUri *uri ) { return PB_HAS( uri, phoneContext ); }
void      sipsnUriSetPhoneContext( SipsnUri **uri, PbString *context )
{
    PB_SET( uri, phoneContext, sipsnUriContextOk( context ), pb::Retain( context ) );
}
SIPSN_URI_SET_CSTR( PhoneContext, context )
void sipsnUriDelPhoneContext( SipsnUri **uri )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) || sipsnUriNumberIsGlobal( ( *uri )->number ) );
    PB_DEL( uri, phoneContext );
}

PbString *sipsnUriCic( SipsnUri *uri ) { return PB_GET( uri, cic ); }
bool      sipsnUriHasCic( SipsnUri *uri ) { return PB_HAS( uri, cic ); }
void      sipsnUriSetCic( SipsnUri **uri, PbString *number )
{
    PB_SET( uri, cic, sipsnUriRoutingNumberOk( number ), pb::Retain( number ) );
}
SIPSN_URI_SET_CSTR( Cic, number )
void sipsnUriDelCic( SipsnUri **uri ) { PB_DEL( uri, cic ); }

PbString *sipsnUriCicContext( SipsnUri *uri ) { return PB_GET( uri, cicContext ); }
bool      sipsnUriHasCicContext( SipsnUri *uri ) { return PB_HAS( uri, cicContext ); }
void      sipsnUriSetCicContext( SipsnUri **uri, PbString *context )
{
    PB_SET( uri, cicContext, sipsnUriRoutingContextOk( context ), pb::Retain( context ) );
}
SIPSN_URI_SET_CSTR( CicContext, context )
void sipsnUriDelCicContext( SipsnUri **uri ) { PB_DEL( uri, cicContext ); }

bool sipsnUriEnumdi( SipsnUri *uri ) { return PB_GET( uri, enumdi ); }
void sipsnUriSetEnumdi( SipsnUri **uri, bool enumdi ) { PB_PUT( uri, enumdi, enumdi ); }

bool sipsnUriNpdi( SipsnUri *uri ) { return PB_GET( uri, npdi ); }
void sipsnUriSetNpdi( SipsnUri **uri, bool npdi ) { PB_PUT( uri, npdi, npdi ); }

PbString *sipsnUriRn( SipsnUri *uri ) { return PB_GET( uri, rn ); }
bool      sipsnUriHasRn( SipsnUri *uri ) { return PB_HAS( uri, rn ); }
void      sipsnUriSetRn( SipsnUri **uri, PbString *number )
{
    PB_SET( uri, rn, sipsnUriRoutingNumberOk( number ), pb::Retain( number ) );
}
SIPSN_URI_SET_CSTR( Rn, number )
void sipsnUriDelRn( SipsnUri **uri ) { PB_DEL( uri, rn ); }

PbString *sipsnUriRnContext( SipsnUri *uri ) { return PB_GET( uri, rnContext ); }
bool      sipsnUriHasRnContext( SipsnUri *uri ) { return PB_HAS( uri, rnContext ); }
void      sipsnUriSetRnContext( SipsnUri **uri, PbString *context )
{
    PB_SET( uri, rnContext, sipsnUriRoutingContextOk( context ), pb::Retain( context ) );
}
SIPSN_URI_SET_CSTR( RnContext, context )
void sipsnUriDelRnContext( SipsnUri **uri ) { PB_DEL( uri, rnContext ); }

PbString *sipsnUriTgrp( SipsnUri *uri ) { return PB_GET( uri, tgrp ); }
bool      sipsnUriHasTgrp( SipsnUri *uri ) { return PB_HAS( uri, tgrp ); }
void      sipsnUriSetTgrp( SipsnUri **uri, PbString *tgrp )
{
    PB_SET( uri, tgrp, sipsnUriTrunkGroupOk( tgrp ), Keep( tgrp ) );
}
SIPSN_URI_SET_CSTR( Tgrp, tgrp )
void sipsnUriDelTgrp( SipsnUri **uri ) { PB_DEL( uri, tgrp ); }

PbString *sipsnUriTrunkContext( SipsnUri *uri ) { return PB_GET( uri, trunkContext ); }
bool      sipsnUriHasTrunkContext( SipsnUri *uri ) { return PB_HAS( uri, trunkContext ); }
void      sipsnUriSetTrunkContext( SipsnUri **uri, PbString *context )
{
    PB_SET( uri, trunkContext, sipsnUriContextOk( context ), pb::Retain( context ) );
}
SIPSN_URI_SET_CSTR( TrunkContext, context )
void sipsnUriDelTrunkContext( SipsnUri **uri ) { PB_DEL( uri, trunkContext ); }

PbString *sipsnUriRest( SipsnUri *uri ) { return PB_GET( uri, rest ); }
bool      sipsnUriHasRest( SipsnUri *uri ) { return PB_HAS( uri, rest ); }
void      sipsnUriSetRest( SipsnUri **uri, PbString *rest )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( KindOf( ( *uri )->scheme ) == Kind::other );
    PB_SET( uri, rest, sipsnUriRestOk( rest ), pb::Retain( rest ) );
}
SIPSN_URI_SET_CSTR( Rest, rest )
void sipsnUriDelRest( SipsnUri **uri ) { PB_DEL( uri, rest ); }

PbString *sipsnUriNumberDigits( SipsnUri *uri )
{
    PB_ASSERT( uri );
    return uri->number ? sipsn::uri::WithoutSeparators( uri->number ) : nullptr;
}

// ---- Other parameters and headers ------------------------------------------------------------------

// The first item of that name; -1 when there is none.
static int64_t FindItem( PbVector *items, PbString *name )
{
    for( int64_t at = 0, length = pbVectorLength( items ); at < length; ++at )
        if( sipsn::uri::HasName( ItemAt( items, at ), name ) ) return at;
    return -1;
}

static PbString *FindValue( PbVector *items, PbString *name )
{
    const int64_t at = FindItem( items, name );
    if( at < 0 ) return nullptr;
    const pb::Text value = ValueOf( ItemAt( items, at ) );
    return value.chs ? ToString( value ) : nullptr;
}

// "name=value", or "name".
static pb::Ref< PbString > Item( PbString *name, PbString *value )
{
    return pb::Ref{ sipsn::TextOf( [ & ]( TextWriter &out ) {
        out.Text( name );
        if( !value ) return;
        out.Char( '=' );
        out.Text( value );
    } ) };
}

PbVector *sipsnUriOtherParamsVector( SipsnUri *uri ) { return PB_GET( uri, otherParams ); }
void      sipsnUriSetOtherParamsVector( SipsnUri **uri, PbVector *vec )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( vec );
    pb::Ref items{ pbVectorCreate() };
    for( int64_t at = 0, length = pbVectorLength( vec ); at < length; ++at ) {
        pb::Ref param{ pbVectorStringAt( vec, at ) };
        PB_ASSERT( sipsnUriOtherParamOk( param.Get() ) );
        pb___VectorAppendOwned( items.Slot(), pb::AsObj( sipsn::rule::KeepParam( param.Get() ) ) );
    }
    PB_ASSERT( NamesDiffer( items.Get() ) );
    PB_PUT( uri, otherParams, items.Detach() );
}

bool sipsnUriHasOtherParam( SipsnUri *uri, PbString *name )
{
    PB_ASSERT( uri );
    PB_ASSERT( name );
    return FindItem( uri->otherParams, pb::Ref{ Keep( name ) }.Get() ) >= 0;
}

PbString *sipsnUriOtherParamValue( SipsnUri *uri, PbString *name )
{
    PB_ASSERT( uri );
    PB_ASSERT( name );
    return FindValue( uri->otherParams, pb::Ref{ Keep( name ) }.Get() );
}

void sipsnUriSetOtherParam( SipsnUri **uri, PbString *name, PbString *value )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( name );
    pb::Ref param = Item( name, value );
    PB_ASSERT( sipsnUriOtherParamOk( param.Get() ) );
    PB_UNSHARE( uri );
    pb::Ref       kept{ sipsn::rule::KeepParam( param.Get() ) };
    const int64_t at = FindItem( ( *uri )->otherParams, pb::Ref{ Keep( name ) }.Get() );
    if( at < 0 )
        pbVectorAppendString( &( *uri )->otherParams, kept.Get() );
    else
        pbVectorSetStringAt( &( *uri )->otherParams, at, kept.Get() );
}

void sipsnUriDelOtherParam( SipsnUri **uri, PbString *name )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( name );
    PB_UNSHARE( uri );
    const int64_t at = FindItem( ( *uri )->otherParams, pb::Ref{ Keep( name ) }.Get() );
    if( at >= 0 ) pbVectorDelAt( &( *uri )->otherParams, at );
}

PbVector *sipsnUriHeadersVector( SipsnUri *uri ) { return PB_GET( uri, headers ); }
void      sipsnUriSetHeadersVector( SipsnUri **uri, PbVector *vec )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( vec );
    PB_ASSERT( !Is( **uri, Kind::tel ) || pbVectorLength( vec ) == 0 );
    pb::Ref items{ pbVectorCreate() };
    for( int64_t at = 0, length = pbVectorLength( vec ); at < length; ++at ) {
        pb::Ref header{ pbVectorStringAt( vec, at ) };
        PB_ASSERT( sipsnUriHeaderOk( header.Get() ) );
        pb___VectorAppendOwned( items.Slot(), pb::AsObj( Keep( header.Get() ) ) );
    }
    PB_PUT( uri, headers, items.Detach() );
}

bool sipsnUriHasHeader( SipsnUri *uri, PbString *name )
{
    PB_ASSERT( uri );
    PB_ASSERT( name );
    return FindItem( uri->headers, pb::Ref{ Keep( name ) }.Get() ) >= 0;
}

PbString *sipsnUriHeaderValue( SipsnUri *uri, PbString *name )
{
    PB_ASSERT( uri );
    PB_ASSERT( name );
    return FindValue( uri->headers, pb::Ref{ Keep( name ) }.Get() );
}

void sipsnUriAppendHeader( SipsnUri **uri, PbString *name, PbString *value )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( !Is( **uri, Kind::tel ) );
    PB_ASSERT( name );
    PB_ASSERT( value );
    pb::Ref header = Item( name, value );
    PB_ASSERT( sipsnUriHeaderOk( header.Get() ) );
    PB_UNSHARE( uri );
    pb___VectorAppendOwned( &( *uri )->headers, pb::AsObj( Keep( header.Get() ) ) );
}

void sipsnUriDelHeader( SipsnUri **uri, PbString *name )
{
    PB_ASSERT_SLOT( uri );
    PB_ASSERT( name );
    PB_UNSHARE( uri );
    pb::Ref kept{ Keep( name ) };
    pb::Ref others{ pbVectorCreate() };
    for( int64_t at = 0, length = pbVectorLength( ( *uri )->headers ); at < length; ++at )
        if( PbString *header = ItemAt( ( *uri )->headers, at ); !sipsn::uri::HasName( header, kept.Get() ) )
            pbVectorAppendString( others.Slot(), header );
    pb::Set( ( *uri )->headers, others.Detach() );
}

// The same with the name as text; `more` is what the function takes behind it.
#define SIPSN_URI_BY_NAME( Result, function, Uri, Char, form )                                                         \
    Result sipsnUri##function##form( Uri uri, const Char *name, int64_t nameLength )                                   \
    {                                                                                                                  \
        return sipsnUri##function( uri, StringFrom( name, nameLength ).Get() );                                        \
    }
#define SIPSN_URI_SET_BY_NAME( function, Char, form )                                                                  \
    void sipsnUri##function##form( SipsnUri **uri, const Char *name, int64_t nameLength, PbString *value )             \
    {                                                                                                                  \
        sipsnUri##function( uri, StringFrom( name, nameLength ).Get(), value );                                        \
    }
#define SIPSN_URI_ITEMS_BY_NAME( OtherParam, SetOtherParam, Char, form )                                               \
    SIPSN_URI_BY_NAME( bool, Has##OtherParam, SipsnUri *, Char, form )                                                 \
    SIPSN_URI_BY_NAME( PbString *, OtherParam##Value, SipsnUri *, Char, form )                                         \
    SIPSN_URI_SET_BY_NAME( SetOtherParam, Char, form )                                                                 \
    SIPSN_URI_BY_NAME( void, Del##OtherParam, SipsnUri **, Char, form )
SIPSN_URI_ITEMS_BY_NAME( OtherParam, SetOtherParam, char, Cstr )
SIPSN_URI_ITEMS_BY_NAME( OtherParam, SetOtherParam, wchar_t, Wcstr )
SIPSN_URI_ITEMS_BY_NAME( Header, AppendHeader, char, Cstr )
SIPSN_URI_ITEMS_BY_NAME( Header, AppendHeader, wchar_t, Wcstr )

// ---- Text form -------------------------------------------------------------------------------------

namespace {

template< PbChar ch > int64_t SkipChar( const PbChar *chs, int64_t length ) { return length > 0 && *chs == ch; }

// Reads a part of a URI by its production.
template< class Link >
[[gnu::always_inline]] inline Span TakePart( BasicCursor< Link > &in, sipsn::NumberedName *production, int64_t &changes,
                                             std::string_view words )
{
    return in.Take( production, changes, words );
}

struct Form
{
    template< class Link > SipsnUri *TryDecode( BasicCursor< Link > &in ) const
    {
        const BasicCursor< Link > begin  = in;
        const Span                scheme = in.Take( sipsn::uri::SkipScheme, "a scheme" );
        if( !scheme || !in.Take( PbChar{ ':' } ) ) return nullptr;
        pb::Ref uri{ sipsn::New< SipsnUri >() };
        switch( KindOf( scheme.chs, scheme.length ) ) {
        case Kind::sip:
            uri->scheme = pb::Retain( scheme.length == 3 ? sipScheme.Get() : sipsScheme.Get() );
            if( !TakeAuthority( in, *uri.Get() ) || !TakeParams( in, *uri.Get() ) || !TakeHeaders( in, *uri.Get() ) )
                return nullptr;
            break;
        case Kind::tel:
            uri->scheme = pb::Retain( telScheme.Get() );
            if( !TakeNumber( in, *uri.Get() ) || !TakeParams( in, *uri.Get() ) ) return nullptr;
            if( !SipsnUri::IsWhole( *uri.Get() ) && !in.Lacks( "a phone-context" ) ) return nullptr;
            break;
        case Kind::other: return TakeRest( begin, in, *uri.Get(), scheme ) ? uri.Detach() : nullptr;
        }
        return in.AtEnd() ? uri.Detach() : nullptr;
    }

    void Write( TextWriter &out, SipsnUri &uri ) const
    {
        out.Text( uri.scheme );
        out.Char( ':' );
        switch( KindOf( uri.scheme ) ) {
        case Kind::sip:
            WriteAuthority( out, uri );
            WriteParams( out, uri );
            WriteItems( out, uri.headers, '?', '&' );
            break;
        case Kind::tel:
            WriteNumber( out, uri.number );
            WriteParams( out, uri );
            break;
        case Kind::other:
            if( uri.rest ) out.Text( uri.rest );
        }
    }

private:
    // [ user [ ":" password ] "@" ]; what is not followed by "@" is no user.
    template< class Link > static bool TakeUser( BasicCursor< Link > &in, SipsnUri &uri )
    {
        BasicCursor< Link > ahead       = in;
        int64_t             userChanges = 0, passwordChanges = 0;
        const Span          user = TakePart( ahead, sipsn::uri::SkipUser, userChanges, "a user" );
        if( !user ) return true;
        const bool hasPassword = bool( ahead.Take( PbChar{ ':' } ) );
        Span       password;
        if( hasPassword ) password = TakePart( ahead, sipsn::uri::SkipPassword, passwordChanges, "a password" );
        if( !ahead.Take( SkipChar< '@' >, "\"@\"" ) ) return true;
        if( user.length > 1 && user.chs[ 0 ] == '/' && user.chs[ 1 ] == '/' ) return ahead.Refuse( user, "a user" );
        uri.user = sipsn::uri::Keep( user, userChanges );
        if( hasPassword ) uri.password = sipsn::uri::Keep( password, passwordChanges );
        in = ahead;
        return true;
    }

    template< class Link > static bool TakeAuthority( BasicCursor< Link > &in, SipsnUri &uri )
    {
        if( !TakeUser( in, uri ) ) return false;
        int64_t    plain = 0;
        const Span host  = in.Take( sipsn::uri::SkipHost, plain, "a host" );
        if( !host ) return false;
        uri.host = plain ? host.ToString() : sipsn::uri::TryKeepHost( host.chs, host.length );
        if( !uri.host ) return in.Refuse( host, "a host" );
        if( !in.Take( PbChar{ ':' } ) ) return true;
        const Span port = in.Take( sipsn::uri::SkipPort, uri.port, "a port" );
        return port && ( uri.port >= 0 || in.Refuse( port, "a port" ) );
    }

    template< class Link > static bool TakeNumber( BasicCursor< Link > &in, SipsnUri &uri )
    {
        const Span number = in.Take( sipsn::uri::SkipNumberChars, "a telephone number" );
        if( !number ) return false;
        uri.number = sipsn::uri::TryKeepNumber( number.chs, number.length );
        return uri.number || in.Refuse( number, "a telephone number" );
    }

    // *( ";" name [ "=" value ] )
    template< class Link > static bool TakeParams( BasicCursor< Link > &from, SipsnUri &uri )
    {
        BasicCursor< Link > in    = from; // by itself it may stay in registers
        uint32_t            taken = 0;    // of the members
        while( in.Take( PbChar{ ';' } ) ) {
            int64_t    nameChanges = 0, valueChanges = 0;
            Span       all  = in.Rest();
            const Span name = TakePart( in, sipsn::uri::SkipParamPart, nameChanges, "a parameter" );
            Span       value;
            if( !name ) return false;
            const int  member = FindParam( { name.chs, name.length } );
            const bool valued = bool( in.Take( PbChar{ '=' } ) );
            if( valued && member >= 0 && params[ member ].IsLowerToken() && !( taken >> member & 1 ) &&
                ( value = in.Take( sipsn::uri::SkipLowerToken, "a value" ) ) ) {
                uri.*params[ member ].text = value.ToString();
                taken |= 1u << member;
                continue;
            }
            if( valued && !( value = TakePart( in, sipsn::uri::SkipParamPart, valueChanges, "a value" ) ) )
                return false;
            all.length = in.Rest().chs - all.chs;
            if( nameChanges + valueChanges == 0 ) {
                if( !KeepParam( in, uri, taken, member, { name.chs, name.length }, { value.chs, value.length }, all ) )
                    return false;
                continue;
            }
            pb::Ref        kept{ sipsn::uri::Keep( all.chs, all.length ) };
            const pb::Text keptName = NameOf( kept.Get() );
            if( !KeepParam( in, uri, taken, FindParam( keptName ), keptName, ValueOf( kept.Get() ), all ) )
                return false;
        }
        from = in;
        return NamesDiffer( uri.otherParams ) || in.Lacks( "parameters of different names" );
    }

    // Into its member, or among the other ones.
    template< class Link >
    static bool KeepParam( BasicCursor< Link > &in, SipsnUri &uri, uint32_t &taken, int member, pb::Text name,
                           pb::Text value, Span all )
    {
        if( member >= 0 ) {
            const uint32_t bit = 1u << member;
            if( taken & bit ) return in.Refuse( all, "a parameter that is not there yet" );
            taken |= bit;
            if( TrySetParam( uri, params[ member ], value ) ) return true;
        }
        const int64_t length = value.chs ? value.chs + value.length - name.chs : name.length;
        pb::Ref       text{ pbStringCreateFromCharsCopy( name.chs, length ) };
        pb___VectorAppendOwned( &uri.otherParams, pb::AsObj( sipsn::rule::KeepParam( text.Get() ) ) );
        return true;
    }

    // [ "?" name "=" [ value ] *( "&" name "=" [ value ] ) ]
    template< class Link > static bool TakeHeaders( BasicCursor< Link > &in, SipsnUri &uri )
    {
        if( !in.Take( SkipChar< '?' >, "\"?\"" ) ) return true;
        do {
            int64_t nameChanges = 0, valueChanges = 0;
            Span    all = in.Rest();
            if( !TakePart( in, sipsn::uri::SkipHeaderPart, nameChanges, "a header" ) ) return false;
            if( !in.Take( PbChar{ '=' } ) ) return false;
            TakePart( in, sipsn::uri::SkipHeaderPart, valueChanges, "a value" );
            all.length = in.Rest().chs - all.chs;
            pb___VectorAppendOwned( &uri.headers, pb::AsObj( sipsn::uri::Keep( all, nameChanges + valueChanges ) ) );
        } while( in.Take( SkipChar< '&' >, "\"&\"" ) );
        return true;
    }

    template< class Link >
    static bool TakeRest( BasicCursor< Link > begin, BasicCursor< Link > &in, SipsnUri &uri, Span scheme )
    {
        uri.scheme      = sipsn::LowerFromChars( scheme.chs, scheme.length );
        const Span rest = in.Rest();
        if( rest ) uri.rest = rest.ToString();
        return begin.Take( sipsn___SkipUri, "an IRI" ) && begin.AtEnd();
    }

    static void WriteAuthority( TextWriter &out, SipsnUri &uri )
    {
        if( uri.user ) {
            out.Text( uri.user );
            if( uri.password ) {
                out.Char( ':' );
                out.Text( uri.password );
            }
            out.Char( '@' );
        }
        sipsn::Write( out, sipsn::rule::uriHost, uri.host );
        if( uri.port < 0 ) return;
        out.Char( ':' );
        out.Int( uri.port );
    }

    // Behind "#" a fragment would begin.
    static void WriteNumber( TextWriter &out, PbString *number )
    {
        for( PbChar ch : sipsn::Characters( number ) )
            if( ch == '#' )
                out.Ascii( "%23" );
            else
                out.Char( ch );
    }

    static void WriteParams( TextWriter &out, SipsnUri &uri )
    {
        for( const Param &param : params ) {
            if( !IsPresent( uri, param ) ) continue;
            out.Char( ';' );
            out.Ascii( param.name );
            if( !param.flag ) out.Char( '=' );
            WriteValue( out, uri, param );
        }
        for( int64_t at = 0, length = pbVectorLength( uri.otherParams ); at < length; ++at ) {
            PbString *item = ItemAt( uri.otherParams, at );
            if( IsHidden( uri, item ) ) continue;
            out.Char( ';' );
            out.Text( item );
        }
    }

    static void WriteItems( TextWriter &out, PbVector *items, PbChar first, PbChar further )
    {
        for( int64_t at = 0, length = pbVectorLength( items ); at < length; ++at ) {
            out.Char( at == 0 ? first : further );
            out.Text( ItemAt( items, at ) );
        }
    }
};

constexpr Form form{};

} // namespace

SIPSN_DEFINE_TEXT( Uri, uri, form )

SipsnUri *sipsnUriTryDecode( PbString *iri )
{
    PB_ASSERT( iri );
    return sipsn___UriTryDecode( iri->chs, iri->length );
}

SipsnUri *sipsnUriTryDecodeUri( PbString *uri )
{
    PB_ASSERT( uri );
    pb::Ref iri{ iriTryConvertFromUri( uri ) };
    return iri ? sipsnUriTryDecode( iri.Get() ) : nullptr;
}

PbString *sipsnUriEncode( SipsnUri *uri ) { return sipsn___UriEncode( uri ); }

PbString *sipsnUriEncodeUri( SipsnUri *uri )
{
    PB_ASSERT( uri );
    pb::Ref iri{ sipsn___UriEncode( uri ) };
    return iriTryConvertToUri( iri.Get() );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___UriStartup( void )
{
    if( !noItems ) noItems = pb::MakeConstant( pbVectorCreate() );
}
void sipsn___UriShutdown( void ) {}
