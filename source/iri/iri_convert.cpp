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
        for( int64_t n = 0; n < count; ++n ) pb::PutEscaped( bytes[ n ], [ this ]( PbChar put ) { Put( put ); } );
    }
};

bool MayStandUnescaped( PbChar ch, bool inQuery )
{
    return !iri::IsBidiFormatting( ch ) && ( iri::IsUcsChar( ch ) || ( inQuery && iri::IsPrivateChar( ch ) ) );
}

// The character beyond ASCII that the escapes at the start of a text are the UTF-8 of; -1 when they are none. `length`
// is that of the escapes.
PbChar ReadEscapedChar( pb::Text text, int64_t &length )
{
    PbByte  bytes[ 4 ];
    int64_t count = 0;
    for( ; count < 4; ++count ) {
        const int byte = pb::EscapedByte( text.From( 3 * count ) );
        if( byte < 0x80 ) break;
        bytes[ count ] = PbByte( byte );
    }
    if( count == 0 ) return -1;

    PbChar ch;
    length = 3 * pb::DecodeUtf8Sequence( ch, bytes, count );
    return ch;
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
            int64_t      length  = 0;
            const PbChar escaped = ReadEscapedChar( { at, end - at }, length );
            if( MayStandUnescaped( escaped, query < at && at < fragment ) ) {
                output.Put( escaped );
                at += length;
                changed = true;
                continue;
            }
        } else if( iri::IsBidiFormatting( ch ) ) {
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

// Copied at once, as nearly every URI stays as it is, and looked at on the way: to the end in any case, so that both
// are done several characters at a time.
PbString *iri___ConvertScannedUri( const PbChar *chs, int64_t length )
{
    PbString *iri  = pb___StringCreateUninitialized( length );
    uint32_t  bits = 0, percent = 0;
    for( int64_t at = 0; at < length; ++at ) {
        const PbChar ch = chs[ at ];
        bits |= uint32_t( ch );
        percent |= uint32_t( ch == '%' );
        iri->chs[ at ] = ch;
    }
    if( bits < 0x80 && percent == 0 ) return iri;
    PbString *converted = Converted( chs, chs + length );
    if( !converted ) return iri;
    pb::Release( iri );
    return converted;
}

PbString *iriTryConvertToUri( PbString *iri )
{
    PB_ASSERT( iri );
    return iriGensValidatePart( IRI_GENS_PART_IRI, iri ) ? iri___ConvertValidIri( iri ) : nullptr;
}

PbString *iri___ConvertValidIri( PbString *iri )
{
    PB_ASSERT( iri );

    const PbChar *begin = iri->chs;
    const PbChar *end   = begin + iri->length;
    uint32_t      bits  = 0; // to the end in any case, so that it is done several at a time
    for( const PbChar *at = begin; at != end; ++at ) bits |= uint32_t( *at );
    if( bits < 0x80 ) return pb::Retain( iri );

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
