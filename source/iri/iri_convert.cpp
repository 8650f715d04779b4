// Conversion between URIs and IRIs: percent escapes of UTF-8 into characters and back.
#include "iri_convert.h"

#include "iri_chars.h"
#include "iri_gens.h"
#include "iri_internal.h"
#include "pb/pb_internal.h"

#include <algorithm>

namespace {

// Takes the characters of a result; without a place to put them it only counts, so that the string can be made to fit.
struct Output
{
    PbChar *to     = nullptr;
    int64_t length = 0;

    void Put( PbChar ch )
    {
        if( to ) to[ length ] = ch;
        ++length;
    }

    void PutEscaped( PbChar ch ) // as UTF-8
    {
        PbByte        bytes[ 4 ];
        const int64_t count = pbCharsConvertToUtf8( bytes, 4, &ch, 1, true );
        for( int64_t n = 0; n < count; ++n ) {
            Put( '%' );
            Put( "0123456789ABCDEF"[ bytes[ n ] >> 4 ] );
            Put( "0123456789ABCDEF"[ bytes[ n ] & 15 ] );
        }
    }
};

// Invisible characters that change the order in which the text around them is shown: the marks, embeddings, overrides
// and isolates of the Unicode bidirectional algorithm.
bool IsBidiFormatting( PbChar ch )
{
    return ch == 0x61C || ch == 0x200E || ch == 0x200F || ( ch >= 0x202A && ch <= 0x202E ) ||
           ( ch >= 0x2066 && ch <= 0x2069 );
}

bool MayStandUnescaped( PbChar ch, bool inQuery )
{
    return !IsBidiFormatting( ch ) && ( iri::IsUcsChar( ch ) || ( inQuery && iri::IsPrivateChar( ch ) ) );
}

// The byte of the escape at `at`, or -1.
int EscapedByte( const PbChar *at, const PbChar *end )
{
    return iri::StartsWithEscape( at, end ) ? iri::HexValue( at[ 1 ] ) * 16 + iri::HexValue( at[ 2 ] ) : -1;
}

struct EscapedChar
{
    PbChar  ch    = -1; // -1: the escapes are no UTF-8 sequence of two bytes or more
    int64_t count = 0;  // of escapes
};

EscapedChar ReadEscapedChar( const PbChar *at, const PbChar *end )
{
    static constexpr PbChar lowest[] = { 0, 0, 0x80, 0x800, 0x10000 }; // less is an overlong form

    const int lead  = EscapedByte( at, end );
    const int count = lead >= 0xF8 ? 0 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if( count == 0 ) return {};

    PbChar ch = lead & ( 0x7F >> count );
    for( int n = 1; n < count; ++n ) {
        const int byte = EscapedByte( at + 3 * n, end );
        if( byte < 0x80 || byte > 0xBF ) return {};
        ch = ch << 6 | ( byte & 0x3F );
    }
    return ch < lowest[ count ] ? EscapedChar{} : EscapedChar{ ch, count };
}

// Puts a valid IRI with its escapes turned into characters where an IRI may hold these; whether anything changed. No
// character that this adds can be part of an escape, and what stays in place of an escape is one.
bool Unescape( const PbChar *at, const PbChar *end, Output &output )
{
    const PbChar *fragment = std::find( at, end, '#' );
    const PbChar *query    = std::find( at, fragment, '?' );
    bool          changed  = false;
    while( at != end ) {
        const PbChar ch = *at;
        if( ch == '%' ) {
            const EscapedChar escaped = ReadEscapedChar( at, end );
            if( MayStandUnescaped( escaped.ch, query < at && at < fragment ) ) {
                output.Put( escaped.ch );
                at += 3 * escaped.count;
                changed = true;
                continue;
            }
        } else if( IsBidiFormatting( ch ) ) {
            output.PutEscaped( ch );
            ++at;
            changed = true;
            continue;
        }
        output.Put( ch );
        ++at;
    }
    return changed;
}

// Whether there is a character that Unescape can replace. To the end in any case, so that it is done several at a time.
bool MayChange( const PbChar *begin, const PbChar *end )
{
    uint32_t bits = 0, percent = 0;
    for( const PbChar *at = begin; at != end; ++at ) {
        bits |= uint32_t( *at );
        percent |= uint32_t( *at == '%' );
    }
    return bits >= 0x80 || percent != 0;
}

// The IRI of a valid URI; null when nothing changes.
PbString *Converted( const PbChar *begin, const PbChar *end )
{
    if( !MayChange( begin, end ) ) return nullptr;
    Output count;
    if( !Unescape( begin, end, count ) ) return nullptr;
    PbString *iri = pb___StringCreateUninitialized( count.length );
    Output    output{ iri->chs };
    Unescape( begin, end, output );
    return iri;
}

} // namespace

PbString *iriTryConvertFromUri( PbString *uri )
{
    PB_ASSERT( uri );
    if( !iriGensValidatePart( IRI_GENS_PART_IRI, uri ) ) return nullptr;

    PbString *iri = Converted( uri->chs, uri->chs + uri->length );
    return iri ? iri : pb::Retain( uri );
}

PbString *iri___ConvertScannedUri( const PbChar *chs, int64_t length )
{
    PbString *iri = Converted( chs, chs + length );
    return iri ? iri : pbStringCreateFromCharsCopy( chs, length );
}

PbString *iriTryConvertToUri( PbString *iri )
{
    PB_ASSERT( iri );
    if( !iriGensValidatePart( IRI_GENS_PART_IRI, iri ) ) return nullptr;

    const PbChar *begin = iri->chs;
    const PbChar *end   = begin + iri->length;
    if( std::none_of( begin, end, []( PbChar ch ) { return ch >= 0x80; } ) ) return pb::Retain( iri );

    const auto escape = [ & ]( Output &output ) {
        for( const PbChar *at = begin; at != end; ++at ) *at < 0x80 ? output.Put( *at ) : output.PutEscaped( *at );
    };
    Output count;
    escape( count );
    PbString *uri = pb___StringCreateUninitialized( count.length );
    Output    output{ uri->chs };
    escape( output );
    return uri;
}
