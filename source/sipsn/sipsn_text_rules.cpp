// The texts that few types have: what is valid, how it is read and how it is written.
#include "sipsn_text_rules.h"

#include "iri/iri_convert.h"
#include "iri/iri_internal.h"

// ---- Productions -----------------------------------------------------------------------------------

template< class IsOne > static int64_t CountWhile( pb::Text text, IsOne isOne )
{
    return std::find_if_not( text.chs, text.chs + text.length, isOne ) - text.chs;
}

static bool IsHex( PbChar ch ) { return pb::HexValue( ch ) >= 0; }

int64_t sipsn::SkipHexDigits( const PbChar *chs, int64_t length )
{
    return CountWhile( pb::Text{ chs, length }, IsHex );
}

// Letters, then subtags of letters and digits; none is longer than eight.
int64_t sipsn::SkipLanguageTag( const PbChar *chs, int64_t length )
{
    constexpr int64_t longest  = 8;
    const auto        isSub    = []( PbChar ch ) { return Is( ch, Alphanum ); };
    const auto        isLetter = []( PbChar ch ) { return Is( ch, Alphanum ) && !Is( ch, Digit ); };
    const pb::Text    text{ chs, length };

    int64_t end = CountWhile( text, isLetter );
    if( end == 0 || end > longest ) return 0;
    while( text.Has( end, '-' ) ) {
        const int64_t sub = CountWhile( text.From( end + 1 ), isSub );
        if( sub == 0 || sub > longest ) break;
        end += 1 + sub;
    }
    return end;
}

int64_t sipsn::SkipLanguageRange( const PbChar *chs, int64_t length )
{
    return length > 0 && chs[ 0 ] == '*' ? 1 : SkipLanguageTag( chs, length );
}

int64_t sipsn::SkipServiceId( const PbChar *chs, int64_t length )
{
    constexpr std::string_view urn   = "urn:urn-7:";
    constexpr int64_t          most  = 27; // of the first label
    const auto                 isOne = []( PbChar ch ) { return Is( ch, Alphanum ) || ch == '-'; };
    const pb::Text             text{ chs, length };
    if( !pb::StartsWithKeyword( text, urn ) ) return 0;

    const int64_t begin = int64_t( urn.size() );
    int64_t       end   = begin + CountWhile( text.From( begin ), isOne );
    if( end == begin || end - begin > most ) return 0;
    while( text.Has( end, '.' ) ) {
        const int64_t label = CountWhile( text.From( end + 1 ), isOne );
        if( label == 0 ) break;
        end += 1 + label;
    }
    return end;
}

// Up to ">" and with it.
int64_t sipsn::SkipContentId( const PbChar *chs, int64_t length )
{
    const PbChar *const end = std::find( chs, chs + length, '>' );
    if( length == 0 || chs[ 0 ] != '<' || end == chs + length ) return 0;
    pb::Ref inner{ ContentIdFromChars( chs, end + 1 - chs ) };
    return sipsnContentIdOk( inner.Get() ) ? end + 1 - chs : 0;
}

int64_t sipsn::SkipIdentityDigest( const PbChar *chs, int64_t length )
{
    return CountWhile( pb::Text{ chs, length }, []( PbChar ch ) {
        return Is( ch, Alphanum ) || ch == '/' || ch == '+' || ch == '-' || ch == '_' || ch == '.';
    } );
}

int64_t sipsn::SkipOriginationId( const PbChar *chs, int64_t length )
{
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    constexpr int64_t          size = int64_t( form.size() );
    if( length < size ) return 0;
    for( int64_t n = 0; n < size; ++n )
        if( form[ size_t( n ) ] == '-' ? chs[ n ] != '-' : !IsHex( chs[ n ] ) ) return 0;
    return size;
}

int64_t sipsn::SkipEnclosedUri( const PbChar *chs, int64_t length )
{
    if( length == 0 || chs[ 0 ] != '<' ) return sipsn___SkipQuotedString( chs, length );
    const PbChar *const end = std::find( chs, chs + length, '>' );
    return end == chs + length ? 0 : end + 1 - chs;
}

// ---- What is valid ---------------------------------------------------------------------------------

bool sipsnLanguageTagOk( PbString *languageTag )
{
    PB_ASSERT( languageTag );
    return sipsn::Matches( languageTag, sipsn::SkipLanguageTag );
}

bool sipsnLanguageRangeOk( PbString *languageRange )
{
    PB_ASSERT( languageRange );
    return sipsn::Matches( languageRange, sipsn::SkipLanguageRange );
}

// Whether the text is one of these, in any letter case.
template< size_t n > static bool IsOneOf( PbString *text, const std::string_view ( &words )[ n ] )
{
    const pb::Text whole{ text->chs, text->length };
    return std::ranges::any_of( words, [ & ]( std::string_view word ) {
        return int64_t( word.size() ) == whole.length && pb::StartsWithKeyword( whole, word );
    } );
}

bool sipsnRequestDirectiveOk( PbString *requestDirective )
{
    static constexpr std::string_view directives[] = { "proxy",    "redirect",   "cancel",  "no-cancel",
                                                       "fork",     "no-fork",    "recurse", "no-recurse",
                                                       "parallel", "sequential", "queue",   "no-queue" };
    PB_ASSERT( requestDirective );
    return IsOneOf( requestDirective, directives );
}

bool sipsnReferSubOk( PbString *referSub )
{
    static constexpr std::string_view values[] = { "true", "false" };
    PB_ASSERT( referSub );
    return IsOneOf( referSub, values );
}

bool sipsnHexDigitsOk( PbString *hexDigits )
{
    PB_ASSERT( hexDigits );
    return sipsn::Matches( hexDigits, sipsn::SkipHexDigits );
}

bool sipsnCorrelationIdOk( PbString *correlationId )
{
    PB_ASSERT( correlationId );
    return correlationId->length <= 48 && sipsnHexDigitsOk( correlationId );
}

bool sipsnElementIdOk( PbString *elementId )
{
    PB_ASSERT( elementId );
    return elementId->length <= 16 && sipsnHexDigitsOk( elementId );
}

bool sipsnContentConnectionIdOk( PbString *contentConnectionId )
{
    PB_ASSERT( contentConnectionId );
    return contentConnectionId->length <= 8 && sipsnHexDigitsOk( contentConnectionId );
}

bool sipsnServiceIdOk( PbString *serviceId )
{
    PB_ASSERT( serviceId );
    return sipsn::Matches( serviceId, sipsn::SkipServiceId );
}

// Atoms of RFC 5322 section 3.2.3, and the characters of its literals.
static bool IsAtext( PbChar ch )
{
    constexpr std::string_view others = "!#$%&'*+-/=?^_`{|}~";
    return sipsn::Is( ch, sipsn::Alphanum ) || ( ch < 128 && others.find( char( ch ) ) != others.npos );
}
static bool IsDtext( PbChar ch ) { return ch >= 33 && ch <= 126 && ch != '[' && ch != '\\' && ch != ']'; }

static int64_t SkipDotAtom( pb::Text text )
{
    int64_t end = CountWhile( text, IsAtext );
    while( end > 0 && text.Has( end, '.' ) ) {
        const int64_t atom = CountWhile( text.From( end + 1 ), IsAtext );
        if( atom == 0 ) break;
        end += 1 + atom;
    }
    return end;
}

bool sipsnContentIdOk( PbString *contentId )
{
    PB_ASSERT( contentId );
    const pb::Text text{ contentId->chs, contentId->length };
    const int64_t  left = SkipDotAtom( text );
    if( left == 0 || !text.Has( left, '@' ) ) return false;
    const pb::Text right = text.From( left + 1 );
    if( !right.Has( 0, '[' ) ) return right.length > 0 && SkipDotAtom( right ) == right.length;
    const int64_t literal = CountWhile( right.From( 1 ), IsDtext );
    return right.Has( 1 + literal, ']' ) && right.length == literal + 2;
}

bool sipsnIdentityDigestOk( PbString *identityDigest )
{
    PB_ASSERT( identityDigest );
    return sipsn::Matches( identityDigest, sipsn::SkipIdentityDigest );
}

bool sipsnOriginationIdOk( PbString *originationId )
{
    PB_ASSERT( originationId );
    return sipsn::Matches( originationId, sipsn::SkipOriginationId );
}

bool sipsnHostPortOk( PbString *hostPort )
{
    PB_ASSERT( hostPort );
    return sipsn::Matches( hostPort, sipsn___SkipHostPort );
}

bool sipsnBareIriOk( PbString *bareIri )
{
    PB_ASSERT( bareIri );
    const auto ends = []( PbChar ch ) { return ch == ';' || ch == '?' || ch == ','; };
    return std::none_of( bareIri->chs, bareIri->chs + bareIri->length, ends ) && sipsnIriOk( bareIri );
}

// ---- Reading and writing ---------------------------------------------------------------------------

static PbString *Enclosed( PbChar before, PbString *text, PbChar after )
{
    sipsn::TextWriter out;
    out.Char( before );
    out.Text( text );
    out.Char( after );
    return out.ToString();
}

PbString *sipsn::EnclosedIriFromChars( const PbChar *chs, int64_t length )
{
    pb::Ref uri{ chs[ 0 ] == '<' ? pbStringCreateFromCharsCopy( chs + 1, length - 2 ) : Unquote( chs, length ) };
    return iriTryConvertFromUri( uri.Get() );
}

PbString *sipsn::QuotedUri( PbString *iri )
{
    return sipsn___QuotableStringEncode( pb::Ref{ iri___ConvertValidIri( iri ) }.Get() );
}
PbString *sipsn::BracketedUri( PbString *iri )
{
    return Enclosed( '<', pb::Ref{ iri___ConvertValidIri( iri ) }.Get(), '>' );
}

PbString *sipsn::BareIriFromChars( const PbChar *chs, int64_t length )
{
    pb::Ref iri{ iriTryConvertFromUri( pb::Ref{ pbStringCreateFromCharsCopy( chs, length ) }.Get() ) };
    return iri && sipsnBareIriOk( iri.Get() ) ? iri.Detach() : nullptr;
}

PbString *sipsn::BareUri( PbString *iri ) { return iri___ConvertValidIri( iri ); }

PbString *sipsn::ContentIdFromChars( const PbChar *chs, int64_t length )
{
    return pbStringCreateFromCharsCopy( chs + 1, length - 2 );
}

PbString *sipsn::ContentIdToWire( PbString *contentId ) { return Enclosed( '<', contentId, '>' ); }
