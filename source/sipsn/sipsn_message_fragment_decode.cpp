// Decoding: the bytes of a message into a fragment.
//
// Lines are cut in the bytes, where CR, LF, ":" and blanks are always themselves. Fields of known names go into a table
// as bytes, and become objects only when somebody asks for them. Text that is not well-formed UTF-8 fails wherever it
// stands: what is not in a value is a name, a method or a version, which are ASCII.
#include "sipsn_message_fragment.h"

#include "sipsn_header_names.h"
#include "sipsn_known_tokens.h"
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

PbString *TryDecodeMethod( Bytes text )
{
    if( PbChar chs[ longestKnownToken ]; text.length <= longestKnownToken ) {
        std::copy_n( text.data, text.length, chs );
        if( PbString *known = KnownToken( chs, text.length ) ) return known;
    }
    pb::Ref method{ TextOf( text ) };
    return method && sipsnMethodOk( method.Get() ) ? method.Detach() : nullptr;
}

StartLine TryDecodeRequestLine( SipsnMessageFragment **frag, Bytes method, Bytes uri, Bytes versionText )
{
    pb::Ref methodString{ TryDecodeMethod( method ) };
    if( !methodString ) return StartLine::none;
    pb::Ref version{ TryDecodeVersion( versionText ) };
    pb::Ref uriString{ TextOf( uri ) };
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

// The fields that are decoded so far: lines of known names for the table, and headers of all others.
class DecodedFields
{
public:
    explicit DecodedFields( SipsnMessageFragment *frag ) : frag_{ frag } {}

    void Add( int64_t number, Bytes value ) { table_.Add( number, value ); }

    // The same for a name that is not known. The references are taken over.
    void Add( PbString *name, PbString *value )
    {
        if( !frag_->others ) frag_->others = pbDictCreate();
        if( PbObj **slot = pb___DictSlot( &frag_->others, name ) ) {
            AppendLineOwned( reinterpret_cast< SipsnMessageHeader * >( *slot ), value );
            pb::Release( name );
        } else
            pb___DictSetOwned( &frag_->others, name, pb::AsObj( CreateOtherHeader( pb::Retain( name ), value ) ) );
    }

    // Takes over memory that values are in.
    void Keep( PbBuffer *owned )
    {
        if( !kept_ ) kept_ = pb::Ref{ pbVectorCreate() };
        pb___VectorAppendOwned( kept_.Slot(), pb::AsObj( owned ) );
    }

    void MoveToFragment()
    {
        frag_->received   = table_.MakeTable();
        frag_->inReceived = table_.Names();
    }

private:
    SipsnMessageFragment *frag_;
    FieldTableBuilder     table_;
    pb::Ref< PbVector >   kept_;
};

bool IsUtf8( Bytes text )
{
    return std::all_of( text.data, text.End(), []( PbByte byte ) { return byte < 0x80; } ) || pb::Ref{ TextOf( text ) };
}

// The line end behind a place, and whether all before it is ASCII for certain.
struct LineEnd
{
    const PbByte *at;
    bool          ascii;
};
LineEnd LineEndBehind( const PbByte *at, const PbByte *end )
{
    const pb::Block cr = pb::Block::Of( '\r' ), lf = pb::Block::Of( '\n' );
    uint32_t        notAscii = 0;
    for( ; end - at >= 16; at += 16 ) {
        const pb::Block block = pb::Block::Load( at );
        const uint32_t  found = block.Equal( cr ) | block.Equal( lf );
        notAscii |= block.NotAscii();
        if( found != 0 ) return { at + std::countr_zero( found ), notAscii == 0 };
    }
    return { at + FindLineEnd( { at, end - at } ), false };
}

// Takes fields as nearly all are off the front: a known name, a colon behind it, and one line that ends with CR LF.
// Stops in front of all others, and of an empty line.
void TakeUsualFields( DecodedFields &fields, Bytes &lines )
{
    const PbByte *const end = lines.End();
    for( ;; ) {
        const HeaderNameToken name = ScanUsualHeaderName( lines.data, lines.length );
        if( name.number < 0 ) return;
        const PbByte *begin = lines.data + name.length + 1;
        if( *begin == ' ' ) ++begin;
        const auto [ valueEnd, ascii ] = LineEndBehind( begin, end );

        const int64_t left = end - valueEnd;
        if( left < 2 || valueEnd[ 0 ] != '\r' || valueEnd[ 1 ] != '\n' ) return;
        if( left > 2 && IsBlank( valueEnd[ 2 ] ) ) return;
        Bytes value{ begin, valueEnd - begin };
        if( !value.Empty() && ( IsBlank( value.Front() ) || IsBlank( valueEnd[ -1 ] ) ) ) value = Trim( value );
        if( !ascii && !IsUtf8( value ) ) return;
        fields.Add( name.number, value );
        lines = { valueEnd + 2, left - 2 };
    }
}

// Blanks may stand before the colon (RFC 3261 section 25.1, HCOLON).
bool TryDecodeField( DecodedFields &fields, Bytes field )
{
    const HeaderNameToken name = ScanHeaderName( field.data, field.length );
    if( name.length == 0 ) return false;
    Bytes rest = SkipBlanks( field.From( name.length ) );
    if( rest.Empty() || rest.Front() != ':' ) return false;
    rest = SkipBlanks( rest.From( 1 ) );

    if( name.number >= 0 ) {
        if( !IsUtf8( rest ) ) return false;
        fields.Add( name.number, rest );
    } else {
        PbString *value = TextOf( rest );
        if( !value ) return false;
        fields.Add( CapitaliseHeaderName( field.data, name.length ), value );
    }
    return true;
}

// Notes what is refused, unless something before it was refused already; false.
bool Refuse( Refusal *refusal, Refusal::Part part, Bytes where )
{
    if( refusal && refusal->part == Refusal::nothing ) *refusal = { part, where };
    return false;
}

// The fields behind the usual ones, of which none is at the front.
bool TryDecodeFields( DecodedFields &fields, Bytes lines, Refusal *refusal )
{
    for( ;; ) {
        FieldCutter field{ lines };
        if( !field.Next() ) return true;
        if( !TryDecodeField( fields, field.Text() ) ) return Refuse( refusal, Refusal::field, field.Lines() );
        if( PbBuffer *copy = field.DetachCopy() ) fields.Keep( copy );
        lines = field.Rest();
        TakeUsualFields( fields, lines );
    }
}

// Sets the value of the last Content-Length, -1 when there is none; false when it is not a non-negative integer.
bool TryReadContentLength( SipsnMessageFragment *frag, int64_t *contentLength )
{
    constexpr int64_t number = HeaderNumber( "Content-Length" );
    if( !frag->inReceived.Has( number ) ) return true;

    FieldLines lines{ frag, number };
    const Span line = lines.At( lines.Count() - 1 );
    *contentLength  = DecodeInt( line.chs, line.length, INT64_MAX );
    return *contentLength >= 0;
}

// Decodes a header block in two steps, so that its end need not be known before most of it is taken.
class HeaderDecoder
{
public:
    HeaderDecoder( Bytes text, Refusal *refusal ) : rest_{ text }, refusal_{ refusal } {}

    // The start line and the usual fields behind it. What is left begins with a line.
    bool TryTakeFront()
    {
        Bytes           lines     = rest_;
        const Bytes     first     = TakeLine( lines );
        const StartLine startLine = TryDecodeStartLine( frag_.Slot(), first );
        if( startLine != StartLine::read ) Refuse( refusal_, Refusal::startLine, first );
        if( startLine == StartLine::malformed ) return false;
        if( startLine == StartLine::read ) rest_ = lines;
        TakeUsualFields( fields_, rest_ );
        return true;
    }

    Bytes Rest() const { return rest_; }

    // The fields that are left; the fragment, or null. *contentLength, which may be null, stays where there is none.
    SipsnMessageFragment *TryTakeRest( Bytes fields, int64_t *contentLength )
    {
        if( !TryDecodeFields( fields_, fields, refusal_ ) ) return nullptr;
        fields_.MoveToFragment();
        if( !contentLength || TryReadContentLength( frag_.Get(), contentLength ) ) return frag_.Detach();
        Refuse( refusal_, Refusal::contentLength, {} );
        return nullptr;
    }

private:
    pb::Ref< SipsnMessageFragment > frag_{ sipsnMessageFragmentCreate() };
    DecodedFields                   fields_{ frag_.Get() };
    Bytes                           rest_;
    Refusal                        *refusal_;
};

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
    HeaderDecoder decoder{ head, refusal };
    return decoder.TryTakeFront() ? decoder.TryTakeRest( decoder.Rest(), contentLength ) : nullptr;
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

    const sipsn::Bytes   all{ pbBufferBacking( buf ), pbBufferLength( buf ) };
    sipsn::HeaderDecoder decoder{ all, nullptr };
    if( !decoder.TryTakeFront() ) return nullptr;

    // No header block ends in what is taken. Nearly always it ends right behind.
    const int64_t taken     = decoder.Rest().data - all.data;
    const int64_t headerEnd = sipsn::FindHeaderEnd( all.data, all.length, std::max( taken - 2, int64_t{ 0 } ) );
    const int64_t bodyBegin = headerEnd < 0 ? all.length : headerEnd + 4;
    const int64_t headEnd   = headerEnd < 0 ? all.length : headerEnd + 2;

    int64_t contentLength = -1;
    pb::Ref frag{ decoder.TryTakeRest( decoder.Rest().First( headEnd - taken ), &contentLength ) };
    if( !frag ) return nullptr;

    const int64_t available  = all.length - bodyBegin;
    const int64_t bodyLength = contentLength < 0 ? available : contentLength;
    if( bodyLength > available ) return nullptr;
    if( bodyLength > 0 ) frag->body = pbBufferRead( buf, bodyBegin, bodyLength );
    return frag.Detach();
}
