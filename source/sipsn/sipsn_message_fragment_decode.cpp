// Decoding: the bytes of a message into a fragment.
//
// Lines are cut in the bytes, where CR, LF, ":" and blanks are always themselves, and each value is converted to text
// once, straight into the string that keeps it. Text that is not well-formed UTF-8 fails wherever it stands: what is
// not in a value is a name, a method or a version, which are ASCII.
#include "sipsn_message_fragment.h"

#include "sipsn_header_names.h"
#include "sipsn_message_internal.h"
#include "sipsn_method.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

#include "iri/iri.h"

#include <bit>

namespace sipsn {

int64_t ReadStatusCode( Bytes digits )
{
    int64_t code = digits.Empty() ? -1 : 0;
    for( int64_t at = 0; at < digits.length && code >= 0; ++at ) {
        const PbByte byte = digits.data[ at ];
        code              = byte >= '0' && byte <= '9' ? code * 10 + ( byte - '0' ) : -1;
        if( code > 999 ) code = -1;
    }
    return code;
}

SipsnVersion *TryDecodeVersion( Bytes text )
{
    if( text.length == 7 && std::memcmp( text.data, "SIP/2.0", 7 ) == 0 ) return sipsnVersionCreateSip20();
    if( Find( text, '/' ) < 0 ) return nullptr;
    pb::Ref string{ pb___StringTryCreateFromUtf8( text.data, text.length ) };
    return string ? sipsn___VersionTryDecode( string->chs, string->length ) : nullptr;
}

namespace {

enum class StartLine
{
    none,
    read,
    malformed
};

StartLine TryDecodeStatusLine( SipsnMessageFragment **frag, SipsnVersion *version, Bytes rest )
{
    const int64_t space = Find( rest, ' ' );
    const int64_t code  = ReadStatusCode( space < 0 ? rest : rest.First( space ) );
    if( !sipsnStatusCodeOk( code ) ) return StartLine::malformed;

    const Bytes phrase = space < 0 ? Bytes{} : rest.From( space + 1 );
    pb::Ref     escaped{ pb___StringTryCreateFromUtf8( phrase.data, phrase.length ) };
    if( !escaped ) return StartLine::malformed;
    pb::Ref reasonPhrase{ sipsn___ReasonPhraseDecode( escaped->chs, escaped->length ) };
    sipsnMessageFragmentSetResponseWithReasonPhrase( frag, version, code, reasonPhrase.Get() );
    return StartLine::read;
}

StartLine TryDecodeRequestLine( SipsnMessageFragment **frag, Bytes method, Bytes uri, Bytes versionText )
{
    pb::Ref methodString{ pb___StringTryCreateFromUtf8( method.data, method.length ) };
    if( !methodString || !sipsnMethodOk( methodString.Get() ) ) return StartLine::none;
    pb::Ref version{ TryDecodeVersion( versionText ) };
    pb::Ref uriString{ pb___StringTryCreateFromUtf8( uri.data, uri.length ) };
    if( !version || !uriString ) return StartLine::malformed;
    pb::Ref iri{ iriTryConvertFromUri( uriString.Get() ) };
    if( !iri ) return StartLine::malformed;
    ( *frag )->version       = version.Detach();
    ( *frag )->requestMethod = methodString.Detach();
    ( *frag )->requestIri    = iri.Detach();
    return StartLine::read;
}

// Into a new fragment. The status line is tried first, as a protocol version is not a method. Pieces are cut at single
// spaces.
StartLine TryDecodeStartLine( SipsnMessageFragment **frag, Bytes line )
{
    const int64_t firstSpace = Find( line, ' ' );
    if( firstSpace < 0 ) return StartLine::none;
    const Bytes first = line.First( firstSpace );
    const Bytes rest  = line.From( firstSpace + 1 );
    if( pb::Ref version{ TryDecodeVersion( first ) } ) return TryDecodeStatusLine( frag, version.Get(), rest );

    const int64_t secondSpace = Find( rest, ' ' );
    if( secondSpace < 0 ) return StartLine::none;
    return TryDecodeRequestLine( frag, first, rest.First( secondSpace ), rest.From( secondSpace + 1 ) );
}

// The headers that are decoded so far: those of known names by the number of the name, which is their order, so that
// they are found at once and come to the dictionary in its order. The others are in the dictionary from the start.
class DecodedHeaders
{
public:
    explicit DecodedHeaders( SipsnMessageFragment *frag ) : frag_{ frag }, headers_{ &frag->headers } {}
    DecodedHeaders( const DecodedHeaders & ) = delete;
    ~DecodedHeaders()
    {
        ForEachKnown( [ & ]( int64_t number ) { pb::Release( known_[ number ] ); } );
    }

    // The value, whose reference is taken over, becomes the last line of the header of a known name.
    void AddLine( int64_t number, PbString *value )
    {
        uint64_t      &word = present_[ number / 64 ];
        const uint64_t bit  = uint64_t( 1 ) << ( number % 64 );
        if( word & bit )
            AppendLineOwned( known_[ number ], value );
        else
            known_[ number ] = CreateHeader( pb::Retain( HeaderNameAt( number ) ), value );
        word |= bit;
    }

    // The same for the header of another name. The name's reference is taken over as well.
    void AddLine( PbString *name, PbString *value )
    {
        if( PbObj **slot = pb___DictSlot( headers_, name ) ) {
            AppendLineOwned( reinterpret_cast< SipsnMessageHeader * >( *slot ), value );
            pb::Release( name );
        } else
            pb___DictSetOwned( headers_, name, pb::AsObj( CreateHeader( pb::Retain( name ), value ) ) );
    }

    // Builds the dictionary from the larger group, known names or others, and inserts the smaller one into it.
    void MoveToDict()
    {
        frag_->mayHold   = int64_t( present_[ 0 ] | present_[ 2 ] );
        frag_->mayHold64 = int64_t( present_[ 1 ] );
        const int64_t knownCount =
            std::popcount( present_[ 0 ] ) + std::popcount( present_[ 1 ] ) + std::popcount( present_[ 2 ] );
        const int64_t     otherCount = pbDictLength( *headers_ );
        pb::Ref< PbDict > others;
        if( otherCount <= knownCount )
            others = pb::Ref{ std::exchange( *headers_, pb___DictCreateWithCapacity( knownCount + otherCount ) ) };
        const auto insert = others ? pb___DictAppendOwned : pb___DictSetOwned; // numbers are in the order of names
        ForEachKnown( [ & ]( int64_t number ) {
            insert( headers_, pb::Retain( known_[ number ]->name ), pb::AsObj( known_[ number ] ) );
        } );
        std::ranges::fill( present_, 0 );
        for( int64_t at = 0; others && at < otherCount; ++at )
            pb___DictSetOwned( headers_, pbDictKeyAt( others.Get(), at ), pbDictValueAt( others.Get(), at ) );
    }

private:
    template< class Visit > void ForEachKnown( Visit visit )
    {
        for( size_t word = 0; word < std::size( present_ ); ++word )
            for( uint64_t bits = present_[ word ]; bits != 0; bits &= bits - 1 )
                visit( int64_t( word ) * 64 + std::countr_zero( bits ) );
    }

    static_assert( headerNameCount <= 192 );
    uint64_t              present_[ 3 ] = {}; // one bit for each known name
    SipsnMessageHeader   *known_[ headerNameCount ];
    SipsnMessageFragment *frag_;
    PbDict              **headers_;
};

// Blanks may stand before the colon (RFC 3261 section 25.1, HCOLON).
bool TryDecodeField( DecodedHeaders &headers, Bytes field )
{
    const HeaderNameToken name = ScanHeaderName( field.data, field.length );
    if( name.length == 0 ) return false;
    Bytes rest = SkipBlanks( field.From( name.length ) );
    if( rest.Empty() || rest.Front() != ':' ) return false;
    rest = SkipBlanks( rest.From( 1 ) );

    PbString *value = pb___StringTryCreateFromUtf8( rest.data, rest.length );
    if( !value ) return false;
    if( name.number >= 0 )
        headers.AddLine( name.number, value );
    else
        headers.AddLine( CapitaliseHeaderName( field.data, name.length ), value );
    return true;
}

// Notes what is refused, unless something before it was refused already; false.
bool Refuse( Refusal *refusal, Refusal::Part part, Bytes where )
{
    if( refusal && refusal->part == Refusal::nothing ) *refusal = { part, where };
    return false;
}

bool TryDecodeFields( DecodedHeaders &headers, Bytes lines, Refusal *refusal )
{
    FieldCutter field{ lines };
    while( field.Next() )
        if( !TryDecodeField( headers, field.Text() ) ) return Refuse( refusal, Refusal::field, field.Lines() );
    return true;
}

// Sets the value of the last Content-Length, -1 when there is none; false when it is not a non-negative integer.
bool TryReadContentLength( SipsnMessageFragment *frag, int64_t *contentLength )
{
    SipsnMessageHeader *header = PeekContentLength( frag );
    const int64_t       count  = header ? LineCount( header ) : 0;
    if( count == 0 ) return true;

    const PbString *line = PeekLine( header, count - 1 );
    *contentLength       = DecodeInt( line->chs, line->length, INT64_MAX );
    return *contentLength >= 0;
}

} // namespace

int64_t FindHeaderEnd( const PbByte *bytes, int64_t length, int64_t position )
{
    const auto endsAt = [ = ]( int64_t at ) { return std::memcmp( bytes + at, "\r\n\r\n", 4 ) == 0; };
    // A CR with another one two bytes on is rare enough to look closer.
    const pb::Block cr = pb::Block::Of( '\r' );
    for( ; position + 16 + 3 <= length; position += 16 ) {
        const auto crs = [ & ]( int64_t at ) { return pb::Block::Load( bytes + at ).Equal( cr ); };
        for( uint32_t found = crs( position ) & crs( position + 2 ); found != 0; found &= found - 1 )
            if( endsAt( position + std::countr_zero( found ) ) ) return position + std::countr_zero( found );
    }
    for( ; position + 4 <= length; ++position )
        if( endsAt( position ) ) return position;
    return -1;
}

bool IsStartLine( Bytes line )
{
    pb::Ref frag{ sipsnMessageFragmentCreate() };
    return TryDecodeStartLine( frag.Slot(), line ) == StartLine::read;
}

SipsnMessageFragment *TryDecodeHeaders( Bytes head, int64_t *contentLength, Refusal *refusal )
{
    if( contentLength ) *contentLength = -1;

    Bytes           lines = head;
    const Bytes     first = TakeLine( lines );
    pb::Ref         frag{ sipsnMessageFragmentCreate() };
    const StartLine startLine = TryDecodeStartLine( frag.Slot(), first );
    if( startLine != StartLine::read ) Refuse( refusal, Refusal::startLine, first );
    if( startLine == StartLine::malformed ) return nullptr;

    DecodedHeaders headers{ frag.Get() };
    if( !TryDecodeFields( headers, startLine == StartLine::read ? lines : head, refusal ) ) return nullptr;
    headers.MoveToDict();
    if( contentLength && !TryReadContentLength( frag.Get(), contentLength ) ) {
        Refuse( refusal, Refusal::contentLength, {} );
        return nullptr;
    }
    return frag.Detach();
}

} // namespace sipsn

SipsnMessageFragment *sipsnMessageFragmentTryDecodeHeaders( PbBuffer *buf, int64_t *contentLength )
{
    PB_ASSERT( buf );
    return sipsn::TryDecodeHeaders( { pbBufferBacking( buf ), pbBufferLength( buf ) }, contentLength, nullptr );
}

SipsnMessageFragment *sipsnMessageFragmentTryDecode( PbBuffer *buf )
{
    PB_ASSERT( buf );

    const PbByte *bytes     = pbBufferBacking( buf );
    const int64_t length    = pbBufferLength( buf );
    const int64_t headerEnd = sipsn::FindHeaderEnd( bytes, length, 0 );
    const int64_t bodyBegin = headerEnd < 0 ? length : headerEnd + 4;

    int64_t contentLength;
    pb::Ref frag{
        sipsn::TryDecodeHeaders( { bytes, headerEnd < 0 ? length : headerEnd + 2 }, &contentLength, nullptr ) };
    if( !frag ) return nullptr;

    const int64_t available  = length - bodyBegin;
    const int64_t bodyLength = contentLength < 0 ? available : contentLength;
    if( bodyLength > available ) return nullptr;
    if( bodyLength > 0 ) frag->body = pbBufferRead( buf, bodyBegin, bodyLength );
    return frag.Detach();
}
