// The `sipsn___` functions of the structured values, and the frame that their decoders and encoders are written with.
//
// sipsn___<X>TryDecode gives the value that the whole text is, or null; sipsn___<X>Encode its canonical text. Both
// return new references. A null object, a negative length and null characters with a length above 0 abort.
#pragma once

#include "sipsn_cursor.h"
#include "sipsn_generic_params.h"
#include "sipsn_internal.h"
#include "sipsn_name_addr.h"
#include "sipsn_text_writer.h"

struct SipsnAccept;
struct SipsnAcceptEncoding;
struct SipsnAlertInfo;
struct SipsnCallInfo;
struct SipsnContact;
struct SipsnDiversion;
struct SipsnErrorInfo;
struct SipsnGenericParam;
struct SipsnGenericParams;
struct SipsnHistoryInfo;
struct SipsnIdentityValue;
struct SipsnReason;
struct SipsnRoute;
struct SipsnUuiValue;
struct SipsnVia;
struct SipsnWarningValue;

PB_BEGIN_DECLS

PB_API SipsnAccept *sipsn___AcceptTryDecode( const PbChar *chs, int64_t length );
PB_API PbString    *sipsn___AcceptEncode( SipsnAccept *value );

PB_API SipsnAcceptEncoding *sipsn___AcceptEncodingTryDecode( const PbChar *chs, int64_t length );
PB_API PbString            *sipsn___AcceptEncodingEncode( SipsnAcceptEncoding *value );

PB_API SipsnAlertInfo *sipsn___AlertInfoTryDecode( const PbChar *chs, int64_t length );
PB_API PbString       *sipsn___AlertInfoEncode( SipsnAlertInfo *value );

PB_API SipsnCallInfo *sipsn___CallInfoTryDecode( const PbChar *chs, int64_t length );
PB_API PbString      *sipsn___CallInfoEncode( SipsnCallInfo *value );

PB_API SipsnContact *sipsn___ContactTryDecode( const PbChar *chs, int64_t length );
PB_API PbString     *sipsn___ContactEncode( SipsnContact *value );

PB_API SipsnDiversion *sipsn___DiversionTryDecode( const PbChar *chs, int64_t length );
PB_API PbString       *sipsn___DiversionEncode( SipsnDiversion *value );

PB_API SipsnErrorInfo *sipsn___ErrorInfoTryDecode( const PbChar *chs, int64_t length );
PB_API PbString       *sipsn___ErrorInfoEncode( SipsnErrorInfo *value );

PB_API SipsnGenericParam *sipsn___GenericParamTryDecode( const PbChar *chs, int64_t length );
PB_API PbString          *sipsn___GenericParamEncode( SipsnGenericParam *value );

PB_API SipsnGenericParams *sipsn___GenericParamsTryDecode( const PbChar *chs, int64_t length );
PB_API PbString           *sipsn___GenericParamsEncode( SipsnGenericParams *value );

PB_API SipsnHistoryInfo *sipsn___HistoryInfoTryDecode( const PbChar *chs, int64_t length );
PB_API PbString         *sipsn___HistoryInfoEncode( SipsnHistoryInfo *value );

PB_API SipsnIdentityValue *sipsn___IdentityValueTryDecode( const PbChar *chs, int64_t length );
PB_API PbString           *sipsn___IdentityValueEncode( SipsnIdentityValue *value );

PB_API SipsnReason *sipsn___ReasonTryDecode( const PbChar *chs, int64_t length );
PB_API PbString    *sipsn___ReasonEncode( SipsnReason *value );

PB_API SipsnRoute *sipsn___RouteTryDecode( const PbChar *chs, int64_t length );
PB_API PbString   *sipsn___RouteEncode( SipsnRoute *value );

PB_API SipsnUuiValue *sipsn___UuiValueTryDecode( const PbChar *chs, int64_t length );
PB_API PbString      *sipsn___UuiValueEncode( SipsnUuiValue *value );

PB_API SipsnVia *sipsn___ViaTryDecode( const PbChar *chs, int64_t length );
PB_API PbString *sipsn___ViaEncode( SipsnVia *value );

PB_API SipsnWarningValue *sipsn___WarningValueTryDecode( const PbChar *chs, int64_t length );
PB_API PbString          *sipsn___WarningValueEncode( SipsnWarningValue *value );

// What these files keep while the module is started.
PB_API void sipsn___UuiValueStartup( void );
PB_API void sipsn___UuiValueShutdown( void );
PB_API void sipsn___ViaStartup( void );
PB_API void sipsn___ViaShutdown( void );

PB_END_DECLS

struct SipsnGenericParam
{
    PbObj     obj;
    PbString *name;
    int64_t   valueType;
    PbString *value;

    using Members = pb::Members< &SipsnGenericParam::name, &SipsnGenericParam::valueType, &SipsnGenericParam::value >;

    struct ValueOrder // by the normal form of the value
    {
        static int64_t Compare( SipsnGenericParam &a, SipsnGenericParam &b );
    };
    using CompareOrder = ValueOrder;
};

namespace sipsn {

// ---- Encoding --------------------------------------------------------------------------------------

// Each value type has a Write of its own; Encode makes a string of it.
void Write( TextWriter &out, SipsnAccept *value );
void Write( TextWriter &out, SipsnAcceptEncoding *value );
void Write( TextWriter &out, SipsnAlertInfo *value );
void Write( TextWriter &out, SipsnCallInfo *value );
void Write( TextWriter &out, SipsnContact *value );
void Write( TextWriter &out, SipsnDiversion *value );
void Write( TextWriter &out, SipsnErrorInfo *value );
void Write( TextWriter &out, SipsnGenericParam *value );
void Write( TextWriter &out, SipsnGenericParams *value );
void Write( TextWriter &out, SipsnHistoryInfo *value );
void Write( TextWriter &out, SipsnIdentityValue *value );
void Write( TextWriter &out, SipsnReason *value );
void Write( TextWriter &out, SipsnRoute *value );
void Write( TextWriter &out, SipsnUuiValue *value );
void Write( TextWriter &out, SipsnVia *value );
void Write( TextWriter &out, SipsnWarningValue *value );

template< class Value > PbString *Encode( Value *value )
{
    TextWriter out;
    Write( out, value );
    return out.ToString();
}

// ---- Decoding --------------------------------------------------------------------------------------

// Reads one generic parameter, name and value, in one pass; null when there is none, or when its "=" has no valid
// value.
SipsnGenericParam *TakeGenericParam( Cursor &in );

// The parameter at an index, without a reference of its own.
SipsnGenericParam *PeekParamAt( SipsnGenericParams *params, int64_t index );

// Takes over the reference; a parameter of the same name is replaced.
void SetParamOwned( SipsnGenericParams **params, SipsnGenericParam *param );

// A parameter that is a member: `keyword EQUAL value`, the value as `production` matches it. Each of these reads all of
// it and sets the member, or reads nothing and says so; the parameter is then generic.

using FromChars = PbString *( const PbChar *chs, int64_t length );

// A text, stored as `stored` makes it of the characters; null from there declines.
template< size_t N >
bool TakeText( Cursor &in, const char ( &keyword )[ N ], Production *production, PbString *&member,
               FromChars *stored = pbStringCreateFromCharsCopy )
{
    Cursor     ahead = in;
    const Span text  = ahead.Param( keyword, production );
    PbString  *value = text ? stored( text.chs, text.length ) : nullptr;
    if( !value ) return false;
    pb::Set( member, value );
    in = ahead;
    return true;
}

// A number; -1 from `decode` declines.
template< size_t N >
bool TakeInt( Cursor &in, const char ( &keyword )[ N ], Production *production, int64_t &member,
              int64_t ( *decode )( const PbChar *chs, int64_t length ) )
{
    Cursor     ahead = in;
    const Span text  = ahead.Param( keyword, production );
    const auto value = text ? decode( text.chs, text.length ) : -1;
    if( value < 0 ) return false;
    member = value;
    in     = ahead;
    return true;
}

// A text between double quotes, which `production` matches without them.
template< size_t N >
bool TakeQuoted( Cursor &in, const char ( &keyword )[ N ], Production *production, PbString *&member )
{
    Cursor ahead = in;
    if( !ahead.Keyword( keyword ) || !ahead.Take( sipsn___SkipEqual ) || !ahead.Take( PbChar{ '"' } ) ) return false;
    const Span text = ahead.Take( production );
    if( !text || !ahead.Take( PbChar{ '"' } ) ) return false;
    pb::Set( member, text.ToString() );
    in = ahead;
    return true;
}

// A keyword that no "=" follows. Whatever else follows it is left to fail.
template< size_t N > bool TakeFlag( Cursor &in, const char ( &keyword )[ N ], bool &member )
{
    Cursor ahead = in;
    if( !ahead.Keyword( keyword ) || Cursor{ ahead }.Take( sipsn___SkipEqual ) ) return false;
    member = true;
    in     = ahead;
    return true;
}

// What the text behind the parameters does when no SEMI begins it.
enum class Rest
{
    fails,
    isIgnored
};

// Reads *( SEMI parameter ) up to the end of the text. `takeTyped( in )` reads a parameter that is a member and says
// whether it did; every other one goes into the generic parameters. What a typed parameter leaves unread must begin
// with the next SEMI.
template< class TakeTyped >
bool TryDecodeParams( Cursor &in, SipsnGenericParams **generic, TakeTyped takeTyped, Rest rest = Rest::fails )
{
    while( !in.AtEnd() ) {
        if( !in.Take( sipsn___SkipSemi ) ) return rest == Rest::isIgnored;
        if( takeTyped( in ) ) continue;
        SipsnGenericParam *param = TakeGenericParam( in );
        if( !param ) return false;
        SetParamOwned( generic, param );
    }
    return true;
}

} // namespace sipsn
