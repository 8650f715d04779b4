// The grammar scanner.
//
// The productions are written as functions of a text that call each other inline; the exported functions at the end
// check their arguments and call them.
#include "sipsn_skip_internal.h"

#include "iri/iri_internal.h"
#include "pb/pb_frame.h"
#include "sipsn_char_class.h"

#include <algorithm>
#include <string_view>

namespace {

using sipsn::CharClass;

using pb::Text, pb::Walk;

bool Is( Text text, int64_t n, CharClass mask ) { return n < text.length && sipsn::Is( text[ n ], mask ); }

// ---- Runs and single characters --------------------------------------------------------------------

template< CharClass mask > int64_t SkipRun( Text text )
{
    return pb::CountRun< true >( sipsn::charClasses, mask, text.chs, text.length );
}

// The first place from n on where a character of the class stands, or the end.
template< CharClass mask > int64_t Find( Text text, int64_t n )
{
    const Text rest = text.From( n );
    return n + pb::CountRun< false >( sipsn::charClasses, mask, rest.chs, rest.length );
}

// Nearly always none or one.
int64_t SkipSws( Text text )
{
    int64_t n = 0;
    while( Is( text, n, sipsn::Lws ) ) ++n;
    return n;
}

constexpr auto SkipToken      = SkipRun< sipsn::Token >;
constexpr auto SkipTokenNodot = SkipRun< sipsn::TokenNodot >;
constexpr auto SkipAtom       = SkipRun< sipsn::Atom >;
constexpr auto SkipWord       = SkipRun< sipsn::Word >;
constexpr auto SkipDigits     = SkipRun< sipsn::Digit >;

bool StartsWithEscape( Text text ) { return pb::EscapedByte( text ) >= 0; }

// A run of one class and of escapes.
template< CharClass mask > int64_t SkipEscapedRun( Text text )
{
    int64_t n = 0;
    for( ;; ) {
        n += SkipRun< mask >( text.From( n ) );
        if( !StartsWithEscape( text.From( n ) ) ) return n;
        n += 3;
    }
}

constexpr auto SkipUser     = SkipEscapedRun< sipsn::Unreserved | sipsn::UserUnreserved >;
constexpr auto SkipPassword = SkipEscapedRun< sipsn::Unreserved | sipsn::PasswordUnreserved >;
constexpr auto SkipUric     = SkipEscapedRun< sipsn::Reserved | sipsn::Unreserved >;
constexpr auto SkipPvalue   = SkipEscapedRun< sipsn::Unreserved | sipsn::ParamUnreserved >;

int64_t SkipCharSws( Text text, PbChar ch ) { return text.Has( 0, ch ) ? 1 + SkipSws( text.From( 1 ) ) : 0; }

int64_t SkipSwsChar( Text text, PbChar ch )
{
    if( ch > ' ' && text.Has( 0, ch ) ) return 1;
    const int64_t sws = SkipSws( text );
    return text.Has( sws, ch ) ? sws + 1 : 0;
}

int64_t SkipSwsCharSws( Text text, PbChar ch )
{
    if( ch > ' ' && text.length > 2 && text[ 0 ] == ch ) { // as nearly all text has it
        if( text[ 1 ] > ' ' ) return 1;
        if( text[ 1 ] == ' ' && text[ 2 ] > ' ' ) return 2;
    }
    const int64_t count = SkipSwsChar( text, ch );
    return count > 0 ? count + SkipSws( text.From( count ) ) : 0;
}

int64_t SkipColon( Text text ) { return SkipSwsCharSws( text, ':' ); }
int64_t SkipEqual( Text text ) { return SkipSwsCharSws( text, '=' ); }
int64_t SkipSemi( Text text ) { return SkipSwsCharSws( text, ';' ); }
int64_t SkipSlash( Text text ) { return SkipSwsCharSws( text, '/' ); }
int64_t SkipLparen( Text text ) { return SkipSwsCharSws( text, '(' ); }
int64_t SkipLaquot( Text text ) { return SkipSwsChar( text, '<' ); }
int64_t SkipRaquot( Text text ) { return SkipCharSws( text, '>' ); }

// A text of ASCII in any letter case.
int64_t SkipKeyword( Text text, std::string_view keyword )
{
    return pb::StartsWithKeyword( text, keyword ) ? int64_t( keyword.size() ) : 0;
}

// part *( "." part ), where a "." with no part after it is left.
template< auto part > int64_t SkipDotted( Text text )
{
    int64_t count = part( text );
    for( int64_t next = count; next > 0; ) {
        next = text.Has( count, '.' ) ? part( text.From( count + 1 ) ) : 0;
        if( next > 0 ) count += 1 + next;
    }
    return count;
}

int64_t SkipDotAtom( Text text ) { return SkipDotted< SkipAtom >( text ); }

// item *( SWS item ); whitespace after the last item is left.
template< auto item > int64_t SkipSpaced( Text text )
{
    int64_t count = item( text );
    for( int64_t next = count; next > 0; ) {
        const int64_t start = count + SkipSws( text.From( count ) );
        next                = item( text.From( start ) );
        if( next > 0 ) count = start + next;
    }
    return count;
}

// ---- Quoted strings and comments -------------------------------------------------------------------

bool IsQuotable( Text text, int64_t n ) { return n < text.length && text[ n ] != '\r' && text[ n ] != '\n'; }

int64_t SkipQuotedString( Text text )
{
    int64_t n = SkipSwsChar( text, '"' );
    if( n == 0 ) return 0;
    for( ;; ) {
        n = Find< sipsn::QuoteStop >( text, n );
        if( text.Has( n, '"' ) ) return n + 1;
        if( !text.Has( n, '\\' ) || !IsQuotable( text, n + 1 ) ) return 0;
        n += 2;
    }
}

// Printable, above ASCII too.
bool IsVisible( PbChar ch ) { return ch >= 33 && ch != 127; }

int64_t SkipComment( Text text )
{
    int64_t n = SkipLparen( text );
    if( n == 0 ) return 0;
    for( int64_t depth = 1; depth > 0; ) {
        if( n == text.length ) return 0;
        const PbChar ch = text[ n++ ];
        if( ch == '(' ) {
            ++depth;
        } else if( ch == ')' ) {
            --depth;
        } else if( ch == '\\' ) {
            if( !IsQuotable( text, n ) ) return 0;
            ++n;
        } else if( !IsVisible( ch ) && !sipsn::Is( ch, sipsn::Lws ) ) {
            return 0;
        }
    }
    return n + SkipSws( text.From( n ) );
}

int64_t SkipTokenOrQuotedString( Text text )
{
    const int64_t token = SkipToken( text );
    return token > 0 ? token : SkipQuotedString( text );
}

// ---- Addresses -------------------------------------------------------------------------------------

int64_t SkipIri( Text text ) { return iri___SkipIri( text.chs, text.length ); }
int64_t SkipPort( Text text ) { return iri___SkipPort( text.chs, text.length ); }
int64_t SkipIpV4Address( Text text ) { return iri___SkipIpV4Address( text.chs, text.length ); }
int64_t SkipIpV6Address( Text text ) { return iri___SkipIpV6Address( text.chs, text.length ); }

int64_t SkipIpV6Reference( Text text )
{
    Walk walk{ text };
    return walk.TakeChar( '[' ) && walk.Take( SkipIpV6Address ) && walk.TakeChar( ']' ) ? walk.Count() : 0;
}

int64_t SkipDomainLabel( Text text )
{
    if( text.Has( 0, '-' ) ) return 0;
    int64_t label = 0; // up to the last letter, digit or escape
    for( int64_t n = 0;; ) {
        const int64_t run = SkipEscapedRun< sipsn::Alphanum >( text.From( n ) );
        if( run == 0 ) return label;
        label = n + run;
        if( !text.Has( label, '-' ) ) return label;
        n = label + SkipRun< sipsn::Hyphen >( text.From( label ) );
    }
}

// SkipDomainLabel *( "." SkipDomainLabel ) [ "." ], in one pass.
int64_t SkipHostname( Text text )
{
    int64_t count  = 0; // up to the last letter, digit, escape or dot
    bool    within = false;
    for( int64_t n = 0;; ) {
        if( Is( text, n, sipsn::Alphanum ) ) {
            count  = ++n;
            within = true;
        } else if( within && text.Has( n, '.' ) && count == n ) {
            count  = ++n;
            within = false;
        } else if( within && text.Has( n, '-' ) ) {
            ++n;
        } else if( StartsWithEscape( text.From( n ) ) ) {
            count  = n += 3;
            within = true;
        } else {
            return count;
        }
    }
}

// The longest of host name, IPv4 address and IPv6 reference: no other one begins with "[", and the characters of an
// IPv4 address are those of a host name.
int64_t SkipHost( Text text ) { return text.Has( 0, '[' ) ? SkipIpV6Reference( text ) : SkipHostname( text ); }

int64_t SkipHostPort( Text text )
{
    const int64_t host = SkipHost( text );
    if( host == 0 || !text.Has( host, ':' ) ) return host;
    const int64_t port = SkipPort( text.From( host + 1 ) );
    return port > 0 ? host + 1 + port : host;
}

// The IRI that the text before the first ";" begins with.
//
// In a list of addresses without parameters the search for that ";" must not run to the end of the list again for every
// address. So it stops where no IRI goes on: at a character that none holds; and, as only an authority can end before a
// comma ("sip://a:1,sip://b:2"), after an authority that is cut short.
int64_t SkipAddrSpec( Text text )
{
    constexpr CharClass end = sipsn::NoIri | sipsn::Semicolon;

    int64_t limit = Find< end | sipsn::IriDivider >( text, 0 );
    if( text.Has( limit, '/' ) && text.Has( limit + 1, '/' ) ) {
        limit             = Find< end | sipsn::IriDivider >( text, limit + 2 );
        const int64_t iri = SkipIri( text.First( limit ) );
        if( iri < limit ) return iri;
    }
    return SkipIri( text.First( Find< end >( text, limit ) ) );
}

int64_t SkipDisplayName( Text text )
{
    const int64_t quoted = SkipQuotedString( text );
    return quoted > 0 ? quoted : SkipSpaced< SkipToken >( text );
}

bool TakeBracketedIri( Walk &walk )
{
    return walk.Take( SkipLaquot ) && walk.Take( SkipIri ) && walk.Take( SkipRaquot );
}

int64_t SkipNameAddr( Text text )
{
    Walk walk{ text };
    walk.Take( SkipDisplayName );
    return TakeBracketedIri( walk ) ? walk.Count() : 0;
}

int64_t SkipIdentityValue( Text text )
{
    const int64_t nameAddr = SkipNameAddr( text );
    return nameAddr > 0 ? nameAddr : SkipAddrSpec( text );
}

// ---- Parameters ------------------------------------------------------------------------------------

int64_t SkipGenericParam( Text text )
{
    Walk walk{ text };
    if( !walk.Take( SkipToken ) ) return 0;
    if( !walk.Take( SkipEqual ) ) return walk.Count();
    return walk.Take( SkipToken ) || walk.Take( SkipHost ) || walk.Take( SkipQuotedString ) ? walk.Count() : 0;
}

// *( SEMI param )
template< auto param > int64_t SkipParams( Text text )
{
    int64_t count = 0;
    for( ;; ) {
        Walk walk{ text.From( count ) };
        if( !walk.Take( SkipSemi ) || !walk.Take( param ) ) return count;
        count += walk.Count();
    }
}

// The value and the generic parameters after it.
template< auto value > int64_t SkipWithParams( Text text )
{
    const int64_t count = value( text );
    return count > 0 ? count + SkipParams< SkipGenericParam >( text.From( count ) ) : 0;
}

// ---- Values ----------------------------------------------------------------------------------------

int64_t SkipQvalue( Text text )
{
    if( text.length == 0 || ( text[ 0 ] != '0' && text[ 0 ] != '1' ) ) return 0;
    if( !text.Has( 1, '.' ) ) return 1;
    const Text decimals = text.From( 2 ).First( 3 );
    if( text[ 0 ] == '0' ) return 2 + SkipDigits( decimals );
    int64_t zeros = 0;
    while( decimals.Has( zeros, '0' ) ) ++zeros;
    return 2 + zeros;
}

int64_t SkipVersion( Text text )
{
    Walk walk{ text };
    return walk.Take( SkipToken ) && walk.Take( SkipSlash ) && walk.Take( SkipToken ) ? walk.Count() : 0;
}

int64_t SkipRvalue( Text text )
{
    Walk walk{ text };
    return walk.Take( SkipTokenNodot ) && walk.TakeChar( '.' ) && walk.Take( SkipTokenNodot ) ? walk.Count() : 0;
}

int64_t SkipCallId( Text text )
{
    Walk walk{ text };
    if( !walk.Take( SkipWord ) ) return 0;
    return !walk.TakeChar( '@' ) || walk.Take( SkipWord ) ? walk.Count() : 0;
}

int64_t SkipSipCleanMsgId( Text text )
{
    const auto rightSide = []( Text rest ) { return std::max( SkipHost( rest ), SkipDotAtom( rest ) ); };

    Walk walk{ text };
    return walk.Take( SkipDotAtom ) && walk.TakeChar( '@' ) && walk.Take( rightSide ) ? walk.Count() : 0;
}

int64_t SkipSipInstance( Text text )
{
    Walk walk{ text };
    return walk.TakeChar( '<' ) && walk.Take( SkipUric ) && walk.TakeChar( '>' ) ? walk.Count() : 0;
}

int64_t SkipSessUuid( Text text )
{
    constexpr int64_t size = 32;
    return SkipRun< sipsn::Digit | sipsn::LowerAlpha >( text.First( size ) ) == size ? size : 0;
}

int64_t SkipMediaSubtype( Text text )
{
    const int64_t token = SkipToken( text );
    return token == 1 && text[ 0 ] == '*' ? 0 : token;
}

// A "*" is a token like any other, so that only "*" before a named subtype has to be refused.
int64_t SkipMediaRange( Text text )
{
    Walk walk{ text };
    if( !walk.Take( SkipToken ) || !walk.Take( SkipSlash ) ) return 0;
    const bool    anyType = SkipMediaSubtype( text ) == 0;
    const int64_t subtype = walk.Count();
    if( !walk.Take( SkipToken ) ) return 0;
    return anyType && SkipMediaSubtype( text.From( subtype ) ) > 0 ? 0 : walk.Count();
}

int64_t SkipBracketedIri( Text text )
{
    Walk walk{ text };
    return TakeBracketedIri( walk ) ? walk.Count() : 0;
}

int64_t SkipContact( Text text ) { return SkipWithParams< SkipIdentityValue >( text ); }
int64_t SkipDiversion( Text text ) { return SkipWithParams< SkipNameAddr >( text ); }
int64_t SkipInfo( Text text ) { return SkipWithParams< SkipBracketedIri >( text ); }

int64_t SkipHistoryInfoIndex( Text text )
{
    int64_t count = 0;
    for( int64_t number = 0;; number = count + 1 ) {
        const int64_t digits = SkipDigits( text.From( number ) );
        if( digits == 0 ) return count;
        if( digits > 1 && text[ number ] == '0' ) return 0;
        count = number + digits;
        if( !text.Has( count, '.' ) ) return count;
    }
}

int64_t SkipRefresher( Text text )
{
    const int64_t uac = SkipKeyword( text, "uac" );
    return uac > 0 ? uac : SkipKeyword( text, "uas" );
}

// [ "." *DIGIT ]
int64_t SkipFraction( Text text ) { return text.Has( 0, '.' ) ? 1 + SkipDigits( text.From( 1 ) ) : 0; }

int64_t SkipTimestampValue( Text text )
{
    Walk walk{ text };
    if( !walk.Take( SkipDigits ) ) return 0;
    walk.Take( SkipFraction );
    if( walk.Take( SkipSws ) ) {
        walk.Take( SkipDigits );
        walk.Take( SkipFraction );
    }
    return walk.Count();
}

int64_t SkipVisible( Text text )
{
    int64_t n = 0;
    while( n < text.length && IsVisible( text[ n ] ) ) ++n;
    return n;
}

int64_t SkipWords( Text text ) { return SkipSpaced< SkipVisible >( text ); }

int64_t SkipServerVal( Text text )
{
    const int64_t name = SkipToken( text );
    if( name == 0 ) return SkipComment( text );
    const int64_t product = SkipVersion( text );
    return product > 0 ? product : name;
}

int64_t SkipServer( Text text ) { return SkipSpaced< SkipServerVal >( text ); }

int64_t SkipWarnCode( Text text ) { return SkipDigits( text ) == 3 ? 3 : 0; }

int64_t SkipWarnAgent( Text text )
{
    const int64_t hostPort = SkipHostPort( text );
    return hostPort > 0 ? hostPort : SkipToken( text );
}

int64_t SkipWarningValue( Text text )
{
    Walk       walk{ text };
    const bool whole = walk.Take( SkipWarnCode ) && walk.Take( SkipSws ) && walk.Take( SkipWarnAgent ) &&
                       walk.Take( SkipSws ) && walk.Take( SkipQuotedString );
    return whole ? walk.Count() : 0;
}

int64_t SkipViaReceived( Text text )
{
    const auto keyword = []( Text rest ) { return SkipKeyword( rest, "received" ); };

    Walk walk{ text };
    if( !walk.Take( keyword ) || !walk.Take( SkipEqual ) ) return 0;
    return walk.Take( SkipIpV6Address ) || walk.Take( SkipIpV4Address ) ? walk.Count() : 0;
}

int64_t SkipViaParams( Text text )
{
    const int64_t received = SkipViaReceived( text );
    return received > 0 ? received : SkipGenericParam( text );
}

int64_t SkipVia( Text text )
{
    Walk       walk{ text };
    const bool sent = walk.Take( SkipVersion ) && walk.Take( SkipSlash ) && walk.Take( SkipToken ) &&
                      walk.Take( SkipSws ) && walk.Take( SkipHost );
    if( !sent ) return 0;
    if( walk.Take( SkipColon ) && !walk.Take( SkipPort ) ) return 0;
    return walk.Count() + SkipParams< SkipViaParams >( text.From( walk.Count() ) );
}

// Which of the three-letter names, one after another in `names`, the text begins with; -1 when none.
int64_t FindName( Text text, std::string_view names )
{
    if( text.length < 3 ) return -1;
    for( size_t n = 0; n < names.size(); n += 3 )
        if( text[ 0 ] == names[ n ] && text[ 1 ] == names[ n + 1 ] && text[ 2 ] == names[ n + 2 ] )
            return int64_t( n / 3 );
    return -1;
}

int64_t SkipName( Text text, std::string_view names, int64_t first, int64_t *number )
{
    const int64_t index = FindName( text, names );
    if( index < 0 ) return 0;
    if( number ) *number = first + index;
    return 3;
}

// ---- Arguments -------------------------------------------------------------------------------------

[[gnu::always_inline]] inline Text Checked( const PbChar *chs, int64_t length )
{
    PB_ASSERT( length >= 0 );
    PB_ASSERT( chs || length == 0 );
    return { chs, length };
}

Text Checked( const PbChar *chs, int64_t length, PbChar ch )
{
    const Text text = Checked( chs, length );
    PB_ASSERT( PB_CHAR_OK( ch ) );
    return text;
}

Text CheckedPattern( const PbChar *pattern, int64_t patternLength )
{
    PB_ASSERT( patternLength >= 0 );
    PB_ASSERT( pattern || patternLength == 0 );
    return { pattern, patternLength };
}

} // namespace

// ---- Single characters and fixed texts -------------------------------------------------------------

int64_t sipsn___SkipSws( const PbChar *chs, int64_t length ) { return SkipSws( Checked( chs, length ) ); }
int64_t sipsn___SkipLws( const PbChar *chs, int64_t length ) { return SkipSws( Checked( chs, length ) ); }
int64_t sipsn___SkipChar( const PbChar *chs, int64_t length, PbChar ch )
{
    return Checked( chs, length, ch ).Has( 0, ch );
}
int64_t sipsn___SkipCharSws( const PbChar *chs, int64_t length, PbChar ch )
{
    return SkipCharSws( Checked( chs, length, ch ), ch );
}
int64_t sipsn___SkipSwsChar( const PbChar *chs, int64_t length, PbChar ch )
{
    return SkipSwsChar( Checked( chs, length, ch ), ch );
}
int64_t sipsn___SkipSwsCharSws( const PbChar *chs, int64_t length, PbChar ch )
{
    return SkipSwsCharSws( Checked( chs, length, ch ), ch );
}
int64_t sipsn___SkipColon( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), ':' ); }
int64_t sipsn___SkipHcolon( const PbChar *chs, int64_t length )
{
    return SkipSwsCharSws( Checked( chs, length ), ':' );
}
int64_t sipsn___SkipComma( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), ',' ); }
int64_t sipsn___SkipEqual( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), '=' ); }
int64_t sipsn___SkipSemi( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), ';' ); }
int64_t sipsn___SkipSlash( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), '/' ); }
int64_t sipsn___SkipStar( const PbChar *chs, int64_t length ) { return SkipSwsCharSws( Checked( chs, length ), '*' ); }
int64_t sipsn___SkipLparen( const PbChar *chs, int64_t length )
{
    return SkipSwsCharSws( Checked( chs, length ), '(' );
}
int64_t sipsn___SkipRparen( const PbChar *chs, int64_t length )
{
    return SkipSwsCharSws( Checked( chs, length ), ')' );
}
int64_t sipsn___SkipLaquot( const PbChar *chs, int64_t length ) { return SkipSwsChar( Checked( chs, length ), '<' ); }
int64_t sipsn___SkipRaquot( const PbChar *chs, int64_t length ) { return SkipCharSws( Checked( chs, length ), '>' ); }
int64_t sipsn___SkipLdquot( const PbChar *chs, int64_t length ) { return SkipSwsChar( Checked( chs, length ), '"' ); }
int64_t sipsn___SkipRdquot( const PbChar *chs, int64_t length ) { return SkipCharSws( Checked( chs, length ), '"' ); }
int64_t sipsn___SkipChars( const PbChar *chs, int64_t length, const PbChar *pattern, int64_t patternLength )
{
    const Text text   = Checked( chs, length );
    const Text wanted = CheckedPattern( pattern, patternLength );
    const bool found  = wanted.length <= text.length && std::equal( pattern, pattern + patternLength, chs );
    return found ? wanted.length : 0;
}
int64_t sipsn___SkipCharsAsciiCaseFold( const PbChar *chs, int64_t length, const PbChar *pattern,
                                        int64_t patternLength )
{
    const Text text   = Checked( chs, length );
    const Text wanted = CheckedPattern( pattern, patternLength );
    return pb::StartsWithKeyword( text, wanted.chs, wanted.length ) ? wanted.length : 0;
}

// ---- Tokens and the like ---------------------------------------------------------------------------

int64_t sipsn___SkipToken( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipTokenNodot( const PbChar *chs, int64_t length ) { return SkipTokenNodot( Checked( chs, length ) ); }
int64_t sipsn___SkipAtom( const PbChar *chs, int64_t length ) { return SkipAtom( Checked( chs, length ) ); }
int64_t sipsn___SkipDotAtom( const PbChar *chs, int64_t length ) { return SkipDotAtom( Checked( chs, length ) ); }
int64_t sipsn___SkipWord( const PbChar *chs, int64_t length ) { return SkipWord( Checked( chs, length ) ); }
int64_t sipsn___SkipDigits( const PbChar *chs, int64_t length ) { return SkipDigits( Checked( chs, length ) ); }
int64_t sipsn___SkipQuotedString( const PbChar *chs, int64_t length )
{
    return SkipQuotedString( Checked( chs, length ) );
}
int64_t sipsn___SkipComment( const PbChar *chs, int64_t length ) { return SkipComment( Checked( chs, length ) ); }

// The token under other names.
int64_t sipsn___SkipBranch( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipContentCoding( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipDispositionType( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipEmParam( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipEventReasonValue( const PbChar *chs, int64_t length )
{
    return SkipToken( Checked( chs, length ) );
}
int64_t sipsn___SkipHandling( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipMessageHeaderName( const PbChar *chs, int64_t length )
{
    return SkipToken( Checked( chs, length ) );
}
int64_t sipsn___SkipMethod( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipOptionTag( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipPriorityValue( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipPrivValue( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipProtocolName( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipProtocolVersion( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipPseudonym( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipPurpose( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipReasonProtocol( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipSubstateValue( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipTag( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }
int64_t sipsn___SkipTransport( const PbChar *chs, int64_t length ) { return SkipToken( Checked( chs, length ) ); }

// Digits and quoted strings under other names.
int64_t sipsn___SkipDeltaSeconds( const PbChar *chs, int64_t length ) { return SkipDigits( Checked( chs, length ) ); }
int64_t sipsn___SkipReasonCause( const PbChar *chs, int64_t length ) { return SkipDigits( Checked( chs, length ) ); }
int64_t sipsn___SkipTtl( const PbChar *chs, int64_t length ) { return SkipDigits( Checked( chs, length ) ); }
int64_t sipsn___SkipReasonText( const PbChar *chs, int64_t length )
{
    return SkipQuotedString( Checked( chs, length ) );
}
int64_t sipsn___SkipWarnText( const PbChar *chs, int64_t length ) { return SkipQuotedString( Checked( chs, length ) ); }

int64_t sipsn___SkipUser( const PbChar *chs, int64_t length ) { return SkipUser( Checked( chs, length ) ); }
int64_t sipsn___SkipPassword( const PbChar *chs, int64_t length ) { return SkipPassword( Checked( chs, length ) ); }
int64_t sipsn___SkipUric( const PbChar *chs, int64_t length ) { return SkipUric( Checked( chs, length ) ); }
int64_t sipsn___SkipPvalue( const PbChar *chs, int64_t length ) { return SkipPvalue( Checked( chs, length ) ); }
int64_t sipsn___SkipEpid( const PbChar *chs, int64_t length )
{
    return SkipToken( Checked( chs, length ).First( 16 ) );
}
int64_t sipsn___SkipSessUuid( const PbChar *chs, int64_t length ) { return SkipSessUuid( Checked( chs, length ) ); }

// ---- Addresses -------------------------------------------------------------------------------------

int64_t sipsn___SkipIpV4Address( const PbChar *chs, int64_t length )
{
    return SkipIpV4Address( Checked( chs, length ) );
}
int64_t sipsn___SkipIpV6Address( const PbChar *chs, int64_t length )
{
    return SkipIpV6Address( Checked( chs, length ) );
}
int64_t sipsn___SkipIpV6Reference( const PbChar *chs, int64_t length )
{
    return SkipIpV6Reference( Checked( chs, length ) );
}
int64_t sipsn___SkipPort( const PbChar *chs, int64_t length ) { return SkipPort( Checked( chs, length ) ); }
int64_t sipsn___SkipUri( const PbChar *chs, int64_t length ) { return SkipIri( Checked( chs, length ) ); }
int64_t sipsn___SkipDomainLabel( const PbChar *chs, int64_t length )
{
    return SkipDomainLabel( Checked( chs, length ) );
}
int64_t sipsn___SkipHostname( const PbChar *chs, int64_t length ) { return SkipHostname( Checked( chs, length ) ); }
int64_t sipsn___SkipHost( const PbChar *chs, int64_t length ) { return SkipHost( Checked( chs, length ) ); }
int64_t sipsn___SkipHostPort( const PbChar *chs, int64_t length ) { return SkipHostPort( Checked( chs, length ) ); }
int64_t sipsn___SkipDisplayName( const PbChar *chs, int64_t length )
{
    return SkipDisplayName( Checked( chs, length ) );
}
int64_t sipsn___SkipNameAddr( const PbChar *chs, int64_t length ) { return SkipNameAddr( Checked( chs, length ) ); }
int64_t sipsn___SkipAddrSpec( const PbChar *chs, int64_t length ) { return SkipAddrSpec( Checked( chs, length ) ); }

// ---- Parameters ------------------------------------------------------------------------------------

int64_t sipsn___SkipGenericParam( const PbChar *chs, int64_t length )
{
    return SkipGenericParam( Checked( chs, length ) );
}
int64_t sipsn___SkipGenericParams( const PbChar *chs, int64_t length )
{
    return SkipParams< SkipGenericParam >( Checked( chs, length ) );
}

// ---- Values of header fields -----------------------------------------------------------------------

int64_t sipsn___SkipQvalue( const PbChar *chs, int64_t length ) { return SkipQvalue( Checked( chs, length ) ); }
int64_t sipsn___SkipVersion( const PbChar *chs, int64_t length ) { return SkipVersion( Checked( chs, length ) ); }
int64_t sipsn___SkipEventType( const PbChar *chs, int64_t length )
{
    return SkipDotted< SkipTokenNodot >( Checked( chs, length ) );
}
int64_t sipsn___SkipRvalue( const PbChar *chs, int64_t length ) { return SkipRvalue( Checked( chs, length ) ); }
int64_t sipsn___SkipCallId( const PbChar *chs, int64_t length ) { return SkipCallId( Checked( chs, length ) ); }
int64_t sipsn___SkipSipCleanMsgId( const PbChar *chs, int64_t length )
{
    return SkipSipCleanMsgId( Checked( chs, length ) );
}
int64_t sipsn___SkipSipInstance( const PbChar *chs, int64_t length )
{
    return SkipSipInstance( Checked( chs, length ) );
}
int64_t sipsn___SkipMediaType( const PbChar *chs, int64_t length )
{
    return SkipMediaSubtype( Checked( chs, length ) );
}
int64_t sipsn___SkipMediaSubtype( const PbChar *chs, int64_t length )
{
    return SkipMediaSubtype( Checked( chs, length ) );
}
int64_t sipsn___SkipAccept( const PbChar *chs, int64_t length )
{
    return SkipWithParams< SkipMediaRange >( Checked( chs, length ) );
}
int64_t sipsn___SkipAcceptEncoding( const PbChar *chs, int64_t length )
{
    return SkipWithParams< SkipToken >( Checked( chs, length ) );
}
int64_t sipsn___SkipContact( const PbChar *chs, int64_t length ) { return SkipContact( Checked( chs, length ) ); }
int64_t sipsn___SkipRoute( const PbChar *chs, int64_t length ) { return SkipDiversion( Checked( chs, length ) ); }
int64_t sipsn___SkipIdentityValue( const PbChar *chs, int64_t length )
{
    return SkipIdentityValue( Checked( chs, length ) );
}
int64_t sipsn___SkipAlertInfo( const PbChar *chs, int64_t length ) { return SkipInfo( Checked( chs, length ) ); }
int64_t sipsn___SkipCallInfo( const PbChar *chs, int64_t length ) { return SkipInfo( Checked( chs, length ) ); }
int64_t sipsn___SkipErrorInfo( const PbChar *chs, int64_t length ) { return SkipInfo( Checked( chs, length ) ); }
int64_t sipsn___SkipDiversion( const PbChar *chs, int64_t length ) { return SkipDiversion( Checked( chs, length ) ); }
int64_t sipsn___SkipDiversionCounter( const PbChar *chs, int64_t length )
{
    return SkipDigits( Checked( chs, length ).First( 2 ) );
}
int64_t sipsn___SkipDiversionLimit( const PbChar *chs, int64_t length )
{
    return SkipDigits( Checked( chs, length ).First( 2 ) );
}
int64_t sipsn___SkipDiversionPrivacy( const PbChar *chs, int64_t length )
{
    return SkipTokenOrQuotedString( Checked( chs, length ) );
}
int64_t sipsn___SkipDiversionReason( const PbChar *chs, int64_t length )
{
    return SkipTokenOrQuotedString( Checked( chs, length ) );
}
int64_t sipsn___SkipDiversionScreen( const PbChar *chs, int64_t length )
{
    return SkipTokenOrQuotedString( Checked( chs, length ) );
}
int64_t sipsn___SkipHistoryInfo( const PbChar *chs, int64_t length ) { return SkipDiversion( Checked( chs, length ) ); }
int64_t sipsn___SkipHistoryInfoIndex( const PbChar *chs, int64_t length )
{
    return SkipHistoryInfoIndex( Checked( chs, length ) );
}
int64_t sipsn___SkipReason( const PbChar *chs, int64_t length )
{
    return SkipWithParams< SkipToken >( Checked( chs, length ) );
}
int64_t sipsn___SkipUuiValue( const PbChar *chs, int64_t length )
{
    return SkipWithParams< SkipTokenOrQuotedString >( Checked( chs, length ) );
}
int64_t sipsn___SkipRefresher( const PbChar *chs, int64_t length ) { return SkipRefresher( Checked( chs, length ) ); }
int64_t sipsn___SkipTimestampValue( const PbChar *chs, int64_t length )
{
    return SkipTimestampValue( Checked( chs, length ) );
}
int64_t sipsn___SkipSubject( const PbChar *chs, int64_t length ) { return SkipWords( Checked( chs, length ) ); }
int64_t sipsn___SkipOrganization( const PbChar *chs, int64_t length ) { return SkipWords( Checked( chs, length ) ); }
int64_t sipsn___SkipServer( const PbChar *chs, int64_t length ) { return SkipServer( Checked( chs, length ) ); }
int64_t sipsn___SkipUserAgent( const PbChar *chs, int64_t length ) { return SkipServer( Checked( chs, length ) ); }
int64_t sipsn___SkipServerVal( const PbChar *chs, int64_t length ) { return SkipServerVal( Checked( chs, length ) ); }
int64_t sipsn___SkipWarningValue( const PbChar *chs, int64_t length )
{
    return SkipWarningValue( Checked( chs, length ) );
}
int64_t sipsn___SkipWarnCode( const PbChar *chs, int64_t length ) { return SkipWarnCode( Checked( chs, length ) ); }
int64_t sipsn___SkipWarnAgent( const PbChar *chs, int64_t length ) { return SkipWarnAgent( Checked( chs, length ) ); }
int64_t sipsn___SkipVia( const PbChar *chs, int64_t length ) { return SkipVia( Checked( chs, length ) ); }
int64_t sipsn___SkipViaParams( const PbChar *chs, int64_t length ) { return SkipViaParams( Checked( chs, length ) ); }
int64_t sipsn___SkipViaReceived( const PbChar *chs, int64_t length )
{
    return SkipViaReceived( Checked( chs, length ) );
}
int64_t sipsn___SkipMonth( const PbChar *chs, int64_t length, int64_t *month )
{
    return SkipName( Checked( chs, length ), "JanFebMarAprMayJunJulAugSepOctNovDec", 1, month );
}
int64_t sipsn___SkipWkday( const PbChar *chs, int64_t length, int64_t *day )
{
    return SkipName( Checked( chs, length ), "MonTueWedThuFriSatSun", 0, day );
}
