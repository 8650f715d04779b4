// What is wrong in a file, where, and how that is printed.
#include "fault.h"

#include <algorithm>
#include <map>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tool {

namespace {

// The line of the file that a byte stands in, without its end.
std::string_view LineAround( std::string_view bytes, size_t offset )
{
    const size_t begin = bytes.substr( 0, offset ).find_last_of( "\r\n" ) + 1; // 0 without
    return bytes.substr( begin, std::min( bytes.find_first_of( "\r\n", offset ), bytes.size() ) - begin );
}

// ---- Header fields ---------------------------------------------------------------------------------

// Something in a line of a header field that does not decode, and the character of the line at which it stops to make
// sense.
struct BadPart
{
    int64_t     place;
    std::string text;
    std::string reason;
};

BadPart MakeBadPart( int64_t place, const Owned< PbString > &text, const Owned< PbString > &reason )
{
    return { place, Utf8( text ), reason ? Utf8( reason ) : "malformed" };
}

Owned< PbObj > TryDecode( const SipsnSchemaFamily &family, SipsnMessageHeader *header )
{
    return Owned{ sipsnSchemaTryDecodeHeader( &family, header ) };
}

// The header field with some of its lines.
Owned< SipsnMessageHeader > WithLines( SipsnMessageHeader *header, int64_t begin, int64_t end )
{
    const Owned< PbString >     name{ sipsnMessageHeaderName( header ) };
    Owned< SipsnMessageHeader > some{ sipsnMessageHeaderCreate( name.Get() ) };
    for( int64_t at = begin; at < end; ++at ) {
        const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, at ) };
        sipsnMessageHeaderAppendLine( some.Slot(), line.Get() );
    }
    return some;
}

// The texts of a list of values; null for what is none.
Owned< PbVector > ItemsOf( const SipsnSchemaFamily &family, PbObj *typed )
{
    for( int64_t member = 0; family.itemType && member < family.type->memberCount; ++member )
        if( sipsnSchemaMemberAt( family.type, member )->kind == SIPSN_SCHEMA_KIND_LIST )
            return Owned{ pbVectorFrom( sipsnSchemaObject( typed, member ) ) };
    return {};
}

// The items of a line that do not decode, which decoding the header field does not find out.
std::vector< BadPart > FindBadItems( const SipsnSchemaFamily &family, PbObj *typed, PbString *line )
{
    std::vector< BadPart >  bad;
    const Owned< PbVector > items = ItemsOf( family, typed );
    const PbChar           *chs = pbStringBacking( line ), *end = chs + pbStringLength( line );
    for( int64_t at = 0, begin = 0; items && at < pbVectorLength( items.Get() ); ++at ) {
        const Owned< PbString > item{ pbVectorStringAt( items.Get(), at ) };
        const PbChar           *itemChs = pbStringBacking( item.Get() );
        const int64_t           length  = pbStringLength( item.Get() );
        begin                           = std::search( chs + begin, end, itemChs, itemChs + length ) - chs;

        int64_t                 place;
        const Owned< PbString > reason{ sipsnSchemaWhyNot( family.itemType, item.Get(), &place ) };
        if( reason ) bad.push_back( MakeBadPart( begin + place, item, reason ) );
        begin = std::min( begin + length, end - chs );
    }
    return bad;
}

std::vector< BadPart > FindBadParts( const SipsnSchemaFamily &family, SipsnMessageHeader *header, int64_t index )
{
    int64_t                 place = 0;
    const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, index ) };
    const Owned< PbString > reason{ sipsnSchemaWhyNotLine( &family, line.Get(), &place ) };
    const Owned< PbObj >    typed = TryDecode( family, WithLines( header, index, index + 1 ).Get() );
    if( !typed ) return { MakeBadPart( place, line, reason ) };
    return reason ? FindBadItems( family, typed.Get(), line.Get() ) : std::vector< BadPart >();
}

// The first line that is good alone, but not behind those before it.
int64_t FindMisplacedLine( const SipsnSchemaFamily &family, SipsnMessageHeader *header )
{
    int64_t good = 1, length = sipsnMessageHeaderLinesLength( header );
    while( length - good > 1 ) {
        const int64_t middle        = good + ( length - good ) / 2;
        const bool    decodes       = bool( TryDecode( family, WithLines( header, 0, middle ).Get() ) );
        ( decodes ? good : length ) = middle;
    }
    return length - 1;
}

void AddFindings( std::vector< Finding > &findings, const Input &input, const SipsnSchemaFamily &family,
                  const SipsnFieldPlace &field, const std::vector< BadPart > &parts )
{
    std::vector< int64_t >    indexes;
    std::vector< SipsnPlace > places( parts.size() );
    indexes.reserve( parts.size() );
    for( const BadPart &part : parts ) indexes.push_back( part.place );
    sipsnFieldPlacesOfChars( input.buffer.Get(), &field, indexes.data(), places.data(), int64_t( parts.size() ) );
    for( size_t at = 0; at < parts.size(); ++at )
        findings.push_back( { places[ at ], 0, family.name, parts[ at ].reason, parts[ at ].text } );
}

// The comma in the URI of an item, where no angle bracket encloses it.
void AddBareComma( std::vector< BadPart > &parts, PbObj *item, PbString *line, const Owned< PbString > &text )
{
    const int64_t member = item ? sipsnSchemaMemberIndex( sipsnSchemaTypeOf( item ), "iri" ) : -1;
    if( member < 0 || Utf8( text ).find( '<' ) != std::string::npos ) return;
    const Owned< PbString > iri{ pbStringFrom( sipsnSchemaObject( item, member ) ) };
    if( Utf8( iri ).find( ',' ) == std::string::npos ) return;
    const PbChar *chs = pbStringBacking( line ), *end = chs + pbStringLength( line );
    const PbChar *uri = std::search( chs, end, pbStringBacking( text.Get() ),
                                     pbStringBacking( text.Get() ) + pbStringLength( text.Get() ) );
    parts.push_back( { std::find( uri, end, PbChar{ ',' } ) - chs, Utf8( text ),
                       "this comma is part of the URI here, and ends it elsewhere: write the URI in angle brackets" } );
}

void AddBareCommas( std::vector< Finding > &findings, const Input &input, const SipsnSchemaFamily &family,
                    SipsnMessageHeader *header, const std::vector< SipsnFieldPlace > &fields )
{
    for( size_t at = 0; at < fields.size(); ++at ) {
        const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, int64_t( at ) ) };
        const Owned< PbObj > typed = TryDecode( family, WithLines( header, int64_t( at ), int64_t( at ) + 1 ).Get() );
        if( !typed ) continue;
        std::vector< BadPart >  parts;
        const Owned< PbVector > items = ItemsOf( family, typed.Get() );
        if( !family.itemType ) AddBareComma( parts, typed.Get(), line.Get(), line );
        for( int64_t index = 0; items && index < pbVectorLength( items.Get() ); ++index ) {
            const Owned< PbString > text{ pbVectorStringAt( items.Get(), index ) };
            const Owned< PbObj >    item{ sipsnSchemaTryDecode( family.itemType, text.Get() ) };
            AddBareComma( parts, item.Get(), line.Get(), text );
        }
        AddFindings( findings, input, family, fields[ at ], parts );
    }
}

// Each of `fields` is a line of the header field.
void AddBadFields( std::vector< Finding > &findings, const Input &input, const SipsnSchemaFamily &family,
                   SipsnMessageHeader *header, const std::vector< SipsnFieldPlace > &fields )
{
    const size_t before = findings.size();
    const size_t first  = family.shape == SIPSN_SCHEMA_SHAPE_SINGLE ? fields.size() - 1 : 0; // the last line counts
    for( size_t at = first; at < fields.size(); ++at )
        AddFindings( findings, input, family, fields[ at ], FindBadParts( family, header, int64_t( at ) ) );
    if( findings.size() > before || TryDecode( family, header ) ) return;

    const int64_t           index = FindMisplacedLine( family, header );
    const Owned< PbString > line{ sipsnMessageHeaderLineAt( header, index ) };
    const BadPart           part{ 0, Utf8( line ), "does not go with the lines before it" };
    AddFindings( findings, input, family, fields.at( size_t( index ) ), { part } );
}

// ---- On a terminal ---------------------------------------------------------------------------------

size_t TerminalColumns()
{
    winsize size{};
    for( const int file : { STDOUT_FILENO, STDERR_FILENO } )
        if( ioctl( file, TIOCGWINSZ, &size ) == 0 && size.ws_col > 0 ) return std::max< size_t >( size.ws_col, 20 );
    return 80;
}

// A row of a line and the marks below it.
struct Row
{
    std::string text = {}, marks = {};
    size_t      columns = 0;
};

void AppendRow( std::string &excerpt, Row &row )
{
    constexpr const char *indentation = "    ";
    excerpt += indentation + row.text + '\n';
    if( row.marks.find_first_not_of( ' ' ) != row.marks.npos )
        excerpt += indentation + Paint( Ink::bad, row.marks.substr( 0, row.marks.find_last_not_of( ' ' ) + 1 ) ) + '\n';
    row = {};
}

// The line that a finding stands in, in rows that fit the terminal, with marks below the bytes that are at fault:
// "^~~~". Of a line of many rows those around the place.
std::string Excerpt( std::string_view bytes, size_t offset, size_t length )
{
    const size_t           columns = TerminalColumns() - 4;
    const size_t           before  = std::min( offset, 3 * columns );
    const std::string_view around  = bytes.substr( offset - before, before + 3 * columns );
    const std::string_view line    = LineAround( around, before );
    const size_t           begin   = size_t( around.data() + before - line.data() );

    std::string excerpt;
    Row         row;
    for( size_t at = 0; at < line.size(); ) {
        const Shown shown  = ShowFirst( line.substr( at ) );
        const bool  marked = at >= begin && at < begin + std::max< size_t >( length, 1 );
        if( row.columns + shown.columns > columns ) AppendRow( excerpt, row );
        row.text += shown.text;
        row.marks += std::string( shown.columns, marked ? '~' : ' ' );
        if( at == begin && shown.columns > 0 ) row.marks[ row.columns ] = '^';
        row.columns += shown.columns;
        at += shown.size;
    }
    if( begin >= line.size() ) row.marks += '^';
    AppendRow( excerpt, row );
    return excerpt;
}

} // namespace

// ---- Findings --------------------------------------------------------------------------------------

Finding FindingOf( const Input &input, const SipsnFault &fault )
{
    return { fault.place,
             fault.length,
             {},
             Utf8( Owned{ sipsnFaultToString( &fault ) } ),
             std::string( LineAround( Bytes( input.buffer.Get() ), size_t( fault.place.offset ) ) ) };
}

// Calls add( findings, input, family, header, fields ) for each header field of a message that has a type.
template< class Add > std::vector< Finding > FindInFields( const Input &input, const FoundMessage &found, Add add )
{
    std::map< std::string, std::vector< SipsnFieldPlace > > places;
    for( SipsnFieldPlace field{}; sipsnMessagePlaceNextField( input.buffer.Get(), &found.place, &field ); )
        places[ Utf8( Owned{ sipsnFieldPlaceName( input.buffer.Get(), &field ) } ) ].push_back( field );

    std::vector< Finding > findings;
    for( const auto &[ name, fields ] : places ) {
        const Owned< SipsnMessageHeader > header{ sipsnMessageHeaderCstr( found.message.Get(), name.c_str(), -1 ) };
        const Owned< PbString >           canonical{ sipsnMessageHeaderName( header.Get() ) };
        if( const SipsnSchemaFamily *family = sipsnSchemaFamilyByName( canonical.Get() ) )
            add( findings, input, *family, header.Get(), fields );
    }
    std::stable_sort( findings.begin(), findings.end(),
                      []( const Finding &a, const Finding &b ) { return a.place.offset < b.place.offset; } );
    return findings;
}

std::vector< Finding > FindBadFields( const Input &input, const FoundMessage &found )
{
    return FindInFields( input, found, AddBadFields );
}

std::vector< Finding > FindBareCommas( const Input &input, const FoundMessage &found )
{
    return FindInFields( input, found, AddBareCommas );
}

std::string DescribeFinding( const Input &input, const Finding &finding, bool onTerminal )
{
    std::string reason = Escape( ( finding.header.empty() ? "" : finding.header + ": " ) + finding.reason );
    if( onTerminal ) reason = Paint( Ink::bad, reason );
    const std::string described =
        Place( input, finding.place.line ) + ':' + std::to_string( finding.place.column ) + ": " + reason;
    if( finding.text.empty() ) return described + '\n';
    if( !onTerminal ) return described + ": " + Quote( finding.text ) + '\n';
    return described + '\n' +
           Excerpt( Bytes( input.buffer.Get() ), size_t( finding.place.offset ), size_t( finding.length ) );
}

Status ComplainOfFaults( const Input &input, const std::vector< FoundMessage > &messages )
{
    Status status = allWell;
    for( const FoundMessage &found : messages ) {
        if( found.fault.kind == SIPSN_FAULT_NONE ) continue;
        ComplainInLines( DescribeFinding( input, FindingOf( input, found.fault ), ErrorsAreOnTerminal() ) );
        status = someFailed;
    }
    return status;
}

} // namespace tool
