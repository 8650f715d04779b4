// Runs operations on hostile inputs of some size, to be measured by growth.py:
//
//     sipsn_growth ITEMS RUNS [SHAPE...]     a line for each shape: name, reference, bytes of wire, nanoseconds
//
// The time is that of this thread, and of the fastest run. Making the input is not measured. The reference is the shape
// that costs by nature what this one does beside its work: what it sorts, and what no longer fits the caches.
#include "samples.h"

#include "sipsn/sipsn_skip_internal.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <map>
#include <random>
#include <string>

// What is measured runs inside this function, by whose name callgrind knows when to count.
extern "C" [[gnu::noinline]] void MeasuredOperation( const std::function< void() > &operation );

void MeasuredOperation( const std::function< void() > &operation ) { operation(); }

namespace {

using Text = std::basic_string< PbChar >;

double Now()
{
    timespec time{};
    clock_gettime( CLOCK_THREAD_CPUTIME_ID, &time );
    return double( time.tv_sec ) * 1e9 + double( time.tv_nsec );
}

// What a shape found: the time of its operation, and the bytes that came from the wire for it.
struct Result
{
    double nanoseconds;
    size_t bytes;
};

template< class Operation > Result Measure( size_t bytes, Operation operation )
{
    const std::function< void() > measured = operation;
    const double                  before   = Now();
    MeasuredOperation( measured );
    return { Now() - before, bytes };
}

// An input that is not taken as meant would measure nothing.
void Require( bool condition, const char *what )
{
    if( condition ) return;
    std::fprintf( stderr, "%s\n", what );
    std::exit( 1 );
}

// ---- Inputs ------------------------------------------------------------------------------------------

std::string Repeat( std::string_view item, int64_t count )
{
    std::string text;
    for( int64_t n = 0; n < count; ++n ) text += item;
    return text;
}

// What `item( n )` gives for each number, one after another.
template< class Item > std::string Join( int64_t count, Item item )
{
    std::string text;
    for( int64_t n = 0; n < count; ++n ) text += item( n );
    return text;
}

Text Chars( std::string_view text ) { return { text.begin(), text.end() }; }

enum class Order
{
    Ascending,
    Descending,
    Shuffled,
    FromOutside // the smallest, the largest, the second smallest, ...
};

// So many different numbers of eight digits.
std::vector< int64_t > Numbers( int64_t count, Order order )
{
    std::vector< int64_t > numbers;
    for( int64_t n = 0; n < count; ++n )
        numbers.push_back( order == Order::FromOutside && n % 2 == 1 ? 90'000'000 - n : 10'000'000 + n );
    if( order == Order::Descending ) std::ranges::reverse( numbers );
    if( order == Order::Shuffled ) std::ranges::shuffle( numbers, std::minstd_rand{ 1 } );
    return numbers;
}

// The numbers, each between two texts.
std::string JoinNumbers( std::string_view before, int64_t count, Order order, std::string_view after )
{
    std::string text;
    for( const int64_t number : Numbers( count, order ) )
        text.append( before ) += std::to_string( number ).append( after );
    return text;
}

constexpr std::string_view startLine = "OPTIONS sip:bob@example.com SIP/2.0\r\n";
constexpr std::string_view bodyless  = "OPTIONS sip:bob@example.com SIP/2.0\r\nContent-Length: 0\r\n\r\n";
constexpr std::string_view via       = "Via: SIP/2.0/UDP host.example.com:5060;branch=z9hG4bK1\r\n";

std::string Wire( const std::string &fields ) { return std::string{ startLine } + fields + "\r\n"; }

pb::Ref< SipsnMessage > MessageOf( const std::string &wire )
{
    pb::Ref bytes   = BufferOf( wire );
    pb::Ref message = Decode( bytes.Get() );
    Require( bool( message ), "does not decode" );
    return message;
}

std::string ManyNames( int64_t count, Order order ) { return Wire( JoinNumbers( "X-", count, order, ": v\r\n" ) ); }
std::string Vias( int64_t count ) { return Wire( Repeat( via, count ) ); }

// ---- Messages ----------------------------------------------------------------------------------------

Result MeasureDecode( const std::string &wire )
{
    pb::Ref bytes = BufferOf( wire );
    Require( bool( Decode( bytes.Get() ) ), "does not decode" );
    return Measure( wire.size(), [ & ] { Decode( bytes.Get() ); } );
}

Result MeasureEncode( const std::string &wire )
{
    pb::Ref message = MessageOf( wire );
    return Measure( wire.size(), [ & ] { Encode( message.Get() ); } );
}

// Names of the length and with the first, middle and last letter of known ones.
std::string LookalikeNames( int64_t count )
{
    return Wire( Join( count, []( int64_t n ) {
        char name[ 32 ];
        std::snprintf( name, sizeof name, "c%05dt%05dt: v\r\n", int( n % 100'000 ), int( n / 100'000 ) );
        return std::string{ name };
    } ) );
}

// Different names of three characters: the most fields a byte.
std::string ShortNames( int64_t count )
{
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789-.!%*_+`'~";

    constexpr int64_t size = letters.size();
    return Wire( Join( count, [ & ]( int64_t n ) {
        const char name[] = { letters[ size_t( n % size ) ], letters[ size_t( n / size % size ) ],
                              letters[ size_t( n / size / size % size ) ] };
        return std::string( name, sizeof name ) + ":\r\n";
    } ) );
}

// One field after another set in a message that is built.
Result SetHeaders( int64_t count )
{
    pb::Ref message = MessageOf( Wire( "" ) );
    return Measure( 0, [ & ] {
        for( int64_t n = 0; n < count; ++n ) {
            const std::string name = "X-" + std::to_string( n );
            pb::Ref           header{ sipsnMessageHeaderCreateCstr( name.data(), int64_t( name.size() ) ) };
            sipsnMessageSetHeader( message.Slot(), header.Get() );
        }
    } );
}

Result DelHeaders( int64_t count )
{
    pb::Ref message = MessageOf( ManyNames( count, Order::Ascending ) );
    return Measure( 0, [ & ] {
        for( const int64_t number : Numbers( count, Order::Shuffled ) ) {
            const std::string name = "X-" + std::to_string( number );
            sipsnMessageDelHeaderCstr( message.Slot(), name.data(), int64_t( name.size() ) );
        }
    } );
}

// ---- Lists -------------------------------------------------------------------------------------------

using ViaList = pb::Ref< SipsnHeaderVia >;

ViaList ViaListOf( const pb::Ref< SipsnMessage > &message )
{
    ViaList list{ sipsnHeaderViaTryDecodeFromMessage( message.Get() ) };
    Require( bool( list ), "no Via" );
    return list;
}

// Each value decoded by its index.
Result DecodeVias( const std::string &wire )
{
    pb::Ref message = MessageOf( wire );
    return Measure( wire.size(), [ & ] {
        const ViaList list = ViaListOf( message );
        for( int64_t at = 0, count = sipsnHeaderViaViasLength( list.Get() ); at < count; ++at )
            Require( bool( pb::Ref{ sipsnHeaderViaTryDecodeViaAt( list.Get(), at ) } ), "no value" );
    } );
}

Result DeleteFirstVia( int64_t count )
{
    const std::string wire    = Vias( count );
    pb::Ref           message = MessageOf( wire );
    ViaList           list    = ViaListOf( message );
    return Measure( wire.size(), [ & ] {
        while( sipsnHeaderViaViasLength( list.Get() ) > 0 ) sipsnHeaderViaDelViaAt( list.Slot(), 0 );
    } );
}

Result PrependVia( int64_t count )
{
    pb::Ref message = MessageOf( Vias( 1 ) );
    ViaList list    = ViaListOf( message );
    pb::Ref value{ sipsnHeaderViaTryDecodeViaAt( list.Get(), 0 ) };
    return Measure( 0, [ & ] {
        for( int64_t n = 0; n < count; ++n ) sipsnHeaderViaPrependVia( list.Slot(), value.Get() );
    } );
}

// Takes the first value off and writes the field back, a hundred times.
Result ForwardVias( int64_t count )
{
    pb::Ref message = MessageOf( Vias( count ) );
    return Measure( 0, [ & ] {
        for( int turn = 0; turn < 100; ++turn ) {
            ViaList list = ViaListOf( message );
            sipsnHeaderViaDelViaAt( list.Slot(), 0 );
            sipsnHeaderViaPrependVia( list.Slot(), pb::Ref{ sipsnHeaderViaTryDecodeViaAt( list.Get(), 0 ) }.Get() );
            sipsnHeaderViaEncodeToMessage( list.Get(), message.Slot() );
        }
    } );
}

Result StoreVias( int64_t count )
{
    const std::string wire    = Vias( count );
    pb::Ref           message = MessageOf( wire );
    const ViaList     list    = ViaListOf( message );
    return Measure( wire.size(), [ & ] {
        pb::Ref store{ sipsnHeaderViaStore( list.Get() ) };
        Require( bool( pb::Ref{ sipsnHeaderViaTryRestore( store.Get() ) } ), "not restored" );
    } );
}

Result DeleteFirstLine( int64_t count )
{
    const std::string wire    = Vias( count );
    pb::Ref           message = MessageOf( wire );
    pb::Ref           header{ sipsnMessageHeaderCstr( message.Get(), "Via", -1 ) };
    message = {};
    return Measure( wire.size(), [ & ] {
        while( sipsnMessageHeaderLinesLength( header.Get() ) > 0 ) sipsnMessageHeaderDelLineAt( header.Slot(), 0 );
    } );
}

// A vector of so many elements, and as many changes. `change( vector, item, turn )` does one.
template< class Change > Result ChangeVector( int64_t count, Change change )
{
    pb::Ref item{ pbStringCreate() };
    pb::Ref vector{ pbVectorCreate() };
    for( int64_t n = 0; n < count; ++n ) pbVectorAppendString( vector.Slot(), item.Get() );
    return Measure( 0, [ & ] {
        for( int64_t n = 0; n < count; ++n ) change( vector.Slot(), item.Get(), n );
    } );
}

// ---- Values ------------------------------------------------------------------------------------------

// A typed header: the field decoded, or the header written anew.
template< auto tryDecode > Result MeasureField( const std::string &wire )
{
    pb::Ref message = MessageOf( wire );
    return Measure( wire.size(),
                    [ & ] { Require( bool( pb::Ref{ tryDecode( message.Get() ) } ), "no such header" ); } );
}
template< auto tryDecode, auto encode > Result MeasureFieldEncode( const std::string &wire )
{
    pb::Ref message = MessageOf( wire );
    pb::Ref header{ tryDecode( message.Get() ) };
    Require( bool( header ), "no such header" );
    return Measure( wire.size(), [ & ] { pb::Ref{ encode( header.Get() ) }; } );
}

// A list and all its values.
template< auto tryDecode, auto length, auto tryDecodeAt > Result MeasureValues( const std::string &wire )
{
    pb::Ref message = MessageOf( wire );
    return Measure( wire.size(), [ & ] {
        pb::Ref header{ tryDecode( message.Get() ) };
        Require( bool( header ), "no such header" );
        for( int64_t at = 0, count = length( header.Get() ); at < count; ++at )
            Require( bool( pb::Ref{ tryDecodeAt( header.Get(), at ) } ), "no value" );
    } );
}

constexpr auto contacts = MeasureValues< sipsnHeaderContactTryDecodeFromMessage, sipsnHeaderContactContactsLength,
                                         sipsnHeaderContactTryDecodeContactAt >;
constexpr auto history =
    MeasureValues< sipsnHeaderHistoryInfoTryDecodeFromMessage, sipsnHeaderHistoryInfoHistoryInfosLength,
                   sipsnHeaderHistoryInfoTryDecodeHistoryInfoAt >;
constexpr auto warnings = MeasureValues< sipsnHeaderWarningTryDecodeFromMessage, sipsnHeaderWarningWarningsLength,
                                         sipsnHeaderWarningTryDecodeWarningAt >;

constexpr auto allow      = MeasureField< sipsnHeaderAllowTryDecodeFromMessage >;
constexpr auto from       = MeasureField< sipsnHeaderFromTryDecodeFromMessage >;
constexpr auto to         = MeasureField< sipsnHeaderToTryDecodeFromMessage >;
constexpr auto server     = MeasureField< sipsnHeaderServerTryDecodeFromMessage >;
constexpr auto subject    = MeasureField< sipsnHeaderSubjectTryDecodeFromMessage >;
constexpr auto userAgent  = MeasureField< sipsnHeaderUserAgentTryDecodeFromMessage >;
constexpr auto fromEncode = MeasureFieldEncode< sipsnHeaderFromTryDecodeFromMessage, sipsnHeaderFromEncode >;
constexpr auto toEncode   = MeasureFieldEncode< sipsnHeaderToTryDecodeFromMessage, sipsnHeaderToEncode >;

// One field, whose value is so many items between two texts.
std::string Field( std::string_view before, std::string_view item, int64_t count, std::string_view after )
{
    return Wire( std::string{ before } + Repeat( item, count ).append( after ) + "\r\n" );
}

// A URI in its parts, and written anew.
Result MeasureUri( const std::string &text )
{
    pb::Ref iri{ pbStringCreateFromCstr( text.data(), int64_t( text.size() ) ) };
    return Measure( text.size(), [ & ] {
        pb::Ref uri{ sipsnUriTryDecode( iri.Get() ) };
        Require( uri && sipsnUriIsSip( uri.Get() ), "no SIP URI" );
        pb::Ref{ sipsnUriEncode( uri.Get() ) };
    } );
}

// Whether two URIs with the same parts in opposite orders are the same.
Result CompareUris( int64_t count, std::string_view part )
{
    const auto uriOf = [ & ]( Order order ) {
        const std::string text = "sip:a@b" + JoinNumbers( part, count, order, "=1" );
        pb::Ref           iri{ pbStringCreateFromCstr( text.data(), int64_t( text.size() ) ) };
        return pb::Ref{ sipsnUriTryDecode( iri.Get() ) };
    };
    pb::Ref a = uriOf( Order::Ascending );
    pb::Ref b = uriOf( Order::Shuffled );
    return Measure( 0, [ & ] { Require( sipsnUriEquivalent( a.Get(), b.Get() ), "not equivalent" ); } );
}

// ---- Streams -----------------------------------------------------------------------------------------

Result MeasureStream( const std::string &bytes )
{
    pb::Ref wire = BufferOf( bytes );
    return Measure( bytes.size(), [ & ] { Stream( wire.Get() ); } );
}

// Reads after every byte, as the owner of a slow connection does.
Result MeasureByteByByte( const std::string &bytes )
{
    pb::Ref wire = BufferOf( bytes );
    return Measure( bytes.size(), [ & ] {
        pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
        for( int64_t at = 0; at < pbBufferLength( wire.Get() ); ++at ) {
            sipsnMessageStreamDecoderWriteInner( decoder.Get(), wire.Get(), at, 1 );
            pb::Ref message{ sipsnMessageStreamDecoderRead( decoder.Get() ) };
        }
    } );
}

// All messages are written at once; a byte comes after each that is read.
Result MeasureBacklog( const std::string &bytes )
{
    pb::Ref wire = BufferOf( bytes );
    return Measure( bytes.size(), [ & ] {
        pb::Ref decoder{ sipsnMessageStreamDecoderCreate() };
        sipsnMessageStreamDecoderWrite( decoder.Get(), wire.Get() );
        while( pb::Ref{ sipsnMessageStreamDecoderRead( decoder.Get() ) } )
            sipsnMessageStreamDecoderWriteLeading( decoder.Get(), wire.Get(), 1 );
    } );
}

// ---- The scanner -------------------------------------------------------------------------------------

using Production = int64_t( const PbChar *chs, int64_t length );

// Items with COMMA between them, as a decoder of lists reads them.
Result MeasureList( const std::string &bytes, Production *item )
{
    const Text    text   = Chars( bytes );
    const PbChar *chs    = text.data();
    const int64_t length = int64_t( text.size() );
    return Measure( bytes.size(), [ & ] {
        for( int64_t at = item( chs, length ); at < length; at += item( chs + at, length - at ) ) {
            const int64_t comma = sipsn___SkipComma( chs + at, length - at );
            Require( comma > 0, "no list" );
            at += comma;
        }
    } );
}

Result MeasureSkip( const std::string &bytes, Production *production )
{
    const Text text = Chars( bytes );
    return Measure( bytes.size(), [ & ] { production( text.data(), int64_t( text.size() ) ); } );
}

// ---- References --------------------------------------------------------------------------------------

// As many texts made, seen once more and released.
Result MakeAndSee( int64_t count )
{
    return Measure( 0, [ & ] {
        std::vector< std::string > names;
        for( int64_t n = 0; n < count; ++n ) names.push_back( "a text that takes a block of memory" );
        size_t length = 0;
        for( const std::string &name : names ) length += name.find( '\0' ) == name.npos ? name.size() : 0;
        Require( length == names.size() * names[ 0 ].size(), "not seen" );
    } );
}

// As many texts, each in a place of its own, seen in an order that caches do not foresee.
Result SeeShuffled( int64_t count )
{
    std::map< int64_t, std::string > texts;
    for( const int64_t number : Numbers( count, Order::Shuffled ) ) texts[ number ] = std::to_string( number );
    return Measure( 0, [ & ] {
        size_t length = 0;
        for( const auto &[ number, text ] : texts ) length += text.size();
        Require( length == 8 * texts.size(), "not seen" );
    } );
}

// As many texts sorted and found again.
Result SortAndFind( int64_t count )
{
    std::vector< std::string > names;
    for( const int64_t number : Numbers( count, Order::Shuffled ) ) names.push_back( "X-" + std::to_string( number ) );
    return Measure( 0, [ & ] {
        std::map< std::string_view, size_t > sorted;
        for( const std::string &name : names ) sorted.emplace( name, sorted.size() );
        size_t found = 0;
        for( const std::string &name : names ) found += sorted.at( name );
        Require( found + found == names.size() * ( names.size() - 1 ), "not found" );
    } );
}

// ---- Shapes ------------------------------------------------------------------------------------------

struct Shape
{
    const char *name;
    const char *reference;
    Result ( *run )( int64_t count );
};

#define SHAPE( reference, name, ... )                                                                                  \
    {                                                                                                                  \
#name, #reference, []( int64_t n ) { return __VA_ARGS__; }                                                     \
    }
#define LINEAR( name, ... )      SHAPE( MakeAndSee, name, __VA_ARGS__ )
#define SORTED( name, ... )      SHAPE( SortAndFind, name, __VA_ARGS__ )
#define SEEN_SORTED( name, ... ) SHAPE( SeeShuffled, name, __VA_ARGS__ )

constexpr Shape shapes[] = {
    LINEAR( MakeAndSee, MakeAndSee( n ) ),
    SORTED( SortAndFind, SortAndFind( n ) ),
    SEEN_SORTED( SeeShuffled, SeeShuffled( n ) ),

    SORTED( DecodeAscendingNames, MeasureDecode( ManyNames( n, Order::Ascending ) ) ),
    SORTED( DecodeDescendingNames, MeasureDecode( ManyNames( n, Order::Descending ) ) ),
    SORTED( DecodeShuffledNames, MeasureDecode( ManyNames( n, Order::Shuffled ) ) ),
    SORTED( DecodeNamesFromOutside, MeasureDecode( ManyNames( n, Order::FromOutside ) ) ),
    SORTED( DecodeNamesOfOneStart,
            MeasureDecode( Wire( JoinNumbers( std::string( 200, 'x' ), n, Order::Shuffled, ": v\r\n" ) ) ) ),
    SORTED( DecodeLookalikeNames, MeasureDecode( LookalikeNames( n ) ) ),
    SORTED( DecodeShortNames, MeasureDecode( ShortNames( n ) ) ),
    LINEAR( DecodeOneName, MeasureDecode( Wire( Repeat( "Via: SIP/2.0/UDP h\r\n", n ) ) ) ),
    LINEAR( DecodeEmptyValues, MeasureDecode( Wire( Repeat( "v:\r\n", n ) ) ) ),
    LINEAR( DecodeFoldedLines, MeasureDecode( Wire( "Subject: a\r\n" + Repeat( " b\r\n", n ) ) ) ),
    LINEAR( DecodeEmptyLines, MeasureDecode( std::string{ startLine } + Repeat( "\n", n ) ) ),
    LINEAR( DecodeLongLine, MeasureDecode( Field( "X-Long: ", "v", n, "" ) ) ),
    LINEAR( DecodeLongName, MeasureDecode( Field( "", "n", n, ": v" ) ) ),
    SEEN_SORTED( EncodeManyNames, MeasureEncode( ManyNames( n, Order::Shuffled ) ) ),
    LINEAR( EncodeOneName, MeasureEncode( Wire( Repeat( "Via: SIP/2.0/UDP h\r\n", n ) ) ) ),
    LINEAR( EncodeBeyondAscii, MeasureEncode( Field( "Subject: ", "\u00E4 x", n, "" ) ) ),
    SORTED( SetHeaders, SetHeaders( n ) ),
    SORTED( DelHeaders, DelHeaders( n ) ),

    LINEAR( ViaDecodeEach, DecodeVias( Vias( n ) ) ),
    LINEAR( ViaDecodeEachOfOneLine, DecodeVias( Field( "Via: SIP/2.0/UDP h", ", SIP/2.0/UDP h", n, "" ) ) ),
    LINEAR( ViaDeleteFirst, DeleteFirstVia( n ) ),
    LINEAR( ViaPrepend, PrependVia( n ) ),
    LINEAR( ViaForward, ForwardVias( n ) ),
    SORTED( ViaStore, StoreVias( n ) ),
    LINEAR( LineDeleteFirst, DeleteFirstLine( n ) ),
    LINEAR( VectorQueue, ChangeVector( n,
                                       []( PbVector **vector, PbString *item, int64_t ) {
                                           pbVectorAppendString( vector, item );
                                           pbVectorDelAt( vector, 0 );
                                       } ) ),
    LINEAR( VectorBackwardQueue, ChangeVector( n,
                                               []( PbVector **vector, PbString *item, int64_t ) {
                                                   pbVectorPrependString( vector, item );
                                                   pbVectorDelAt( vector, pbVectorLength( *vector ) - 1 );
                                               } ) ),
    LINEAR( VectorBothEnds, ChangeVector( n,
                                          []( PbVector **vector, PbString *item, int64_t turn ) {
                                              pbVectorInsertString( vector, turn % 2 * pbVectorLength( *vector ),
                                                                    item );
                                          } ) ),
    LINEAR( VectorSecondPlace, ChangeVector( n,
                                             []( PbVector **vector, PbString *item, int64_t turn ) {
                                                 if( turn % 3 == 0 )
                                                     pbVectorDelAt( vector, 1 );
                                                 else
                                                     pbVectorInsertString( vector, 1, item );
                                             } ) ),

    LINEAR( HostInternational,
            DecodeVias( Wire( Repeat( "Via: SIP/2.0/UDP xn--mnchen-3ya.xn--bcher-kva.xn--strae-oqa.xn--fiqs8s;"
                                      "branch=z9hG4bK1\r\n",
                                      n ) ) ) ),
    LINEAR( HostUnusual, DecodeVias( Wire( Repeat( "Via: SIP/2.0/UDP " + Repeat( "xn--11b.", 20 ) + "de\r\n", n ) ) ) ),
    LINEAR( HostOfManyLabels, MeasureSkip( Repeat( "xn--mnchen-3ya.", n ) + "de", sipsn___SkipHost ) ),

    SORTED( ContactParams,
            contacts( Wire( "Contact: <sip:a@b>" + JoinNumbers( ";p", n, Order::Shuffled, "=1" ) + "\r\n" ) ) ),
    LINEAR( ContactSameParam, contacts( Field( "Contact: <sip:a@b>", ";same=1", n, "" ) ) ),
    LINEAR( ContactWords, contacts( Field( "Contact: ", "a ", n, "<sip:a@b>" ) ) ),
    LINEAR( ContactCommas, contacts( Field( "Contact: sip:a", ",sip:a", n, "" ) ) ),
    LINEAR( ContactSlashes, contacts( Field( "Contact: sip://a:1", ",sip://a:1", n, "" ) ) ),
    LINEAR( FromQuotedPairs, from( Field( "From: \"", "\\\"", n, "\" <sip:a@b>" ) ) ),
    LINEAR( FromEncodeQuotedPairs, fromEncode( Field( "From: \"", "\\\"", n, "\" <sip:a@b>" ) ) ),
    SEEN_SORTED( FromEncodeParams,
                 fromEncode( Wire( "From: <sip:a@b>" + JoinNumbers( ";p", n, Order::Shuffled, "=1" ) + "\r\n" ) ) ),
    LINEAR( ToEscapes, to( Field( "To: <sip:", "%C3%A4", n, "@b>" ) ) ),
    LINEAR( ToEscapesOfNoCharacter, to( Field( "To: <sip:", "%C3", n, "@b>" ) ) ),
    LINEAR( ToEscapesOfAscii, to( Field( "To: sip:", "%41", n, "@b" ) ) ),
    LINEAR( ToEncodeEscapes, toEncode( Field( "To: <sip:", "%C3%A4", n, "@b>" ) ) ),
    LINEAR( HistoryLongIndex, history( Field( "History-Info: <sip:a@b>;index=1", ".1", n, "" ) ) ),
    LINEAR( HistoryEntries, history( Wire( Join( n,
                                                 []( int64_t at ) {
                                                     return "History-Info: <sip:a@b>;index=1." +
                                                            std::to_string( at + 1 ) + "\r\n";
                                                 } ) ) ) ),
    LINEAR( Warnings, warnings( Field( "Warning: 399 h \"x\"", ", 399 h \"\\\"\"", n, "" ) ) ),
    SORTED( AllowTokens, allow( Wire( "Allow: A" + JoinNumbers( ",t", n, Order::Shuffled, "" ) + "\r\n" ) ) ),
    LINEAR( AllowSameToken, allow( Field( "Allow: A", ",A", n, "" ) ) ),
    LINEAR( ServerNestedComments, server( Wire( "Server: " + Repeat( "(", n ) + Repeat( ")", n ) + "\r\n" ) ) ),
    LINEAR( UserAgentNestedComments,
            userAgent( Wire( "User-Agent: x " + Repeat( "(a ", n ) + Repeat( ")", n ) + "\r\n" ) ) ),
    LINEAR( SubjectBlanks, subject( Field( "Subject: a", " \t", n, "b" ) ) ),

    SORTED( UriParams, MeasureUri( "sip:a@b" + JoinNumbers( ";p", n, Order::Shuffled, "=1" ) ) ),
    LINEAR( UriHeaders, MeasureUri( "sip:a@b?X=1" + JoinNumbers( "&h", n, Order::Shuffled, "=1" ) ) ),
    LINEAR( UriSameHeader, MeasureUri( "sip:a@b?X=1" + Repeat( "&X=1", n ) ) ),
    LINEAR( UriEscapes, MeasureUri( "sip:" + Repeat( "%40", n ) + "@b" ) ),
    SORTED( UriCompareParams, CompareUris( n, ";p" ) ),

    LINEAR( StreamKeepAlives, MeasureStream( Repeat( "\r\n", n ) ) ),
    LINEAR( StreamPipelined, MeasureStream( Repeat( bodyless, n ) ) ),
    LINEAR( StreamBacklog, MeasureBacklog( Repeat( bodyless, n ) ) ),
    LINEAR( StreamEndlessHeaders, MeasureByteByByte( Repeat( "\r\nx", n ) ) ),
    LINEAR( StreamBytewiseMessages, MeasureByteByByte( Repeat( bodyless, n / 10 ) ) ),
    LINEAR( StreamBytewiseBody, MeasureByteByByte( std::string{ startLine } + "Content-Length: " + std::to_string( n ) +
                                                   "\r\n\r\n" + Repeat( "x", n ) ) ),

    LINEAR( SkipViaList,
            MeasureList( "SIP/2.0/UDP h" + Repeat( ", SIP/2.0/UDP host;branch=z9hG4bK1", n ), sipsn___SkipVia ) ),
    LINEAR( SkipRouteList,
            MeasureList( "<sip:p;lr>" + Repeat( ", <sip:proxy.example.com;lr>", n ), sipsn___SkipRoute ) ),
    LINEAR( SkipContactList,
            MeasureList( "<sip:b>" + Repeat( ", Bob <sip:bob@192.0.2.4>;q=0.5", n ), sipsn___SkipContact ) ),
    LINEAR( SkipParameters, MeasureSkip( Repeat( ";name=value", n ), sipsn___SkipGenericParams ) ),
    LINEAR( SkipViaParameters, MeasureSkip( "SIP/2.0/UDP h" + Repeat( ";received=x", n ), sipsn___SkipVia ) ),
    LINEAR( SkipOpenComments, MeasureSkip( Repeat( "(", n ), sipsn___SkipComment ) ),
    LINEAR( SkipOpenServer, MeasureSkip( Repeat( "(", n ), sipsn___SkipServer ) ),
    LINEAR( SkipNestedComments, MeasureSkip( Repeat( "(", n ) + Repeat( ")", n ), sipsn___SkipComment ) ),
    LINEAR( SkipBlanks, MeasureSkip( "x" + Repeat( " ", n ), sipsn___SkipServer ) ),
    LINEAR( SkipWords, MeasureSkip( Repeat( "a ", n ), sipsn___SkipContact ) ),
    LINEAR( SkipLabels, MeasureSkip( Repeat( "a.", n ), sipsn___SkipHost ) ),
    LINEAR( SkipEscapes, MeasureSkip( Repeat( "%41", n ), sipsn___SkipUser ) ),
    LINEAR( SkipUri, MeasureSkip( "sip:" + Repeat( "a@", n ), sipsn___SkipUri ) ),
    LINEAR( SkipIndex, MeasureSkip( "1" + Repeat( ".1", n ), sipsn___SkipHistoryInfoIndex ) ),
};

// The fastest of so many runs; of more when there are several and all took less than a hundredth of a second.
Result Best( const Shape &shape, int64_t count, int64_t runs )
{
    Result best  = shape.run( count );
    double total = best.nanoseconds;
    for( int64_t done = 1; done < runs || ( runs > 1 && total < 1e7 && done < 1'000 ); ++done ) {
        const Result next = shape.run( count );
        total += next.nanoseconds;
        best.nanoseconds = std::min( best.nanoseconds, next.nanoseconds );
    }
    return best;
}

} // namespace

int main( int argc, char **argv )
{
    if( argc < 3 ) {
        std::fputs( "sipsn_growth ITEMS RUNS [SHAPE...]\n", stderr );
        return 2;
    }
    const int64_t                         count = std::atoll( argv[ 1 ] );
    const std::vector< std::string_view > wanted( argv + 3, argv + argc );
    pbModuleStart( sipsnModule() );
    for( const Shape &shape : shapes ) {
        if( !wanted.empty() && std::ranges::find( wanted, shape.name ) == wanted.end() ) continue;
        const Result best = Best( shape, count, std::atoll( argv[ 2 ] ) );
        std::printf( "%s %s %zu %.0f\n", shape.name, shape.reference, best.bytes, best.nanoseconds );
    }
    pbModuleStop( sipsnModule() );
}
