// The messages in a buffer one after another, where they and their header fields stand, and where reading stops.
#include "sipsn_message_reader.h"

#include "sipsn_header_names.h"
#include "sipsn_message_internal.h"

using sipsn::Bytes;
using sipsn::Explanation;

static Bytes AllBytes( PbBuffer *buf ) { return { pbBufferBacking( buf ), pbBufferLength( buf ) }; }

template< class Place > static bool IsWithin( PbBuffer *buf, const Place *place )
{
    const int64_t offset = place->begin.offset, length = pbBufferLength( buf );
    return offset >= 0 && offset <= length && place->length >= 0 && place->length <= length - offset;
}

// ---- Messages --------------------------------------------------------------------------------------

// Moves behind the message before and the keep-alives behind it; the bytes that are left.
static Bytes MoveToNext( PbBuffer *buf, SipsnMessagePlace *place )
{
    const Bytes   all    = AllBytes( buf );
    SipsnPlace    begin  = place->begin.line > 0 ? place->begin : SipsnPlace{ 0, 1, 1 };
    int64_t       offset = begin.offset + place->length;
    const PbByte *at     = all.data + offset;
    for( ; all.length - offset >= 2 && at[ 0 ] == '\r' && at[ 1 ] == '\n'; at += 2 ) offset += 2;
    sipsnPlaceAdvance( &begin, buf, offset );
    *place = { begin, all.length - offset, 0, -1 };
    return all.From( offset );
}

static bool HasOnlyLineEnds( Bytes text )
{
    while( !text.Empty() && sipsn::IsLineEnd( text.Front() ) ) text = text.From( 1 );
    return text.Empty();
}

// The bytes that Content-Length of the message at *place should have counted, when what follows it is not a message.
static SipsnFault BlameContentLength( PbBuffer *buf, const SipsnMessagePlace &place )
{
    const Bytes   message   = AllBytes( buf ).From( place.begin.offset );
    const int64_t bodyBegin = place.length - place.bodyLength;
    const Bytes   value     = sipsn::FindContentLength( message.First( bodyBegin ) );
    const Bytes   behind    = message.From( bodyBegin );
    const int64_t next      = sipsn::FindStartLine( behind );

    SipsnFault fault{ next < 0 ? SIPSN_FAULT_BODY_LONG : SIPSN_FAULT_BODY_RUNS_OVER, place.begin, value.length,
                      place.contentLength, next < 0 ? behind.length : next };
    sipsnPlaceAdvance( &fault.place, buf, value.data - pbBufferBacking( buf ) );
    return fault;
}

// Why there is no message at *place, behind the one at `before`; null.
static SipsnMessage *Refuse( PbBuffer *buf, const SipsnMessagePlace &before, const SipsnMessagePlace &place,
                             Explanation explanation, SipsnFault *fault )
{
    const bool noBeginning =
        explanation.kind == SIPSN_FAULT_START_LINE || explanation.kind == SIPSN_FAULT_LINE_END_BEFORE_MESSAGE;
    if( noBeginning && before.begin.line > 0 && before.contentLength >= 0 ) {
        *fault = BlameContentLength( buf, before );
        return nullptr;
    }
    *fault = { explanation.kind, place.begin, explanation.where.length, -1, -1 };
    sipsnPlaceAdvance( &fault->place, buf, explanation.where.data - pbBufferBacking( buf ) );
    if( explanation.kind == SIPSN_FAULT_BODY_SHORT ) {
        fault->contentLength = place.contentLength;
        fault->bodyLength    = place.bodyLength;
    }
    return nullptr;
}

// What is wrong with the frame of a message whose header block decodes: its empty line and its Content-Length.
static Explanation ExplainFrame( Bytes head, bool hasEmptyLine, const SipsnMessagePlace &place, bool onStream )
{
    if( !hasEmptyLine && ( onStream || place.contentLength > 0 ) ) return sipsn::ExplainNoHeaderEnd( head );
    if( onStream && place.contentLength < 0 ) return { SIPSN_FAULT_CONTENT_LENGTH_MISSING, head.First( 0 ) };
    if( place.contentLength > place.bodyLength ) return { SIPSN_FAULT_BODY_SHORT, sipsn::FindContentLength( head ) };
    return { SIPSN_FAULT_NONE, {} };
}

SipsnMessage *sipsnMessageTryDecodeNext( PbBuffer *buf, int64_t framing, SipsnMessagePlace *place, SipsnFault *fault )
{
    PB_ASSERT( buf );
    PB_ASSERT( framing == SIPSN_FRAMING_DATAGRAM || framing == SIPSN_FRAMING_STREAM );
    PB_ASSERT( place );
    PB_ASSERT( IsWithin( buf, place ) );
    PB_ASSERT( fault );

    const SipsnMessagePlace before   = *place;
    const Bytes             rest     = MoveToNext( buf, place );
    const bool              onStream = framing == SIPSN_FRAMING_STREAM;
    const bool              noBytes  = before.begin.line > 0 ? rest.Empty() : HasOnlyLineEnds( rest );
    if( noBytes ) return Refuse( buf, before, *place, { SIPSN_FAULT_NO_MESSAGE, rest.From( rest.length ) }, fault );

    const int64_t headerEnd = sipsn::FindHeaderEnd( rest.data, rest.length, 0 );
    const Bytes   head      = headerEnd < 0 ? rest : rest.First( headerEnd + 2 );
    const int64_t bodyBegin = headerEnd < 0 ? rest.length : headerEnd + 4;

    sipsn::Refusal refusal;
    pb::Ref        fragment{ sipsn::TryDecodeHeaders( head, &place->contentLength, &refusal ) };
    if( refusal.part != sipsn::Refusal::nothing )
        return Refuse( buf, before, *place, sipsn::Explain( head, refusal ), fault );

    place->bodyLength       = rest.length - bodyBegin;
    const Explanation frame = ExplainFrame( head, headerEnd >= 0, *place, onStream );
    if( frame.kind != SIPSN_FAULT_NONE ) return Refuse( buf, before, *place, frame, fault );

    if( place->contentLength >= 0 ) place->bodyLength = place->contentLength;
    place->length = bodyBegin + place->bodyLength;
    *fault        = { SIPSN_FAULT_NONE, place->begin, 0, -1, -1 };
    if( onStream || place->bodyLength > 0 )
        fragment->body = pbBufferRead( buf, place->begin.offset + bodyBegin, place->bodyLength );
    return sipsnMessageCreate( fragment.Get() );
}

// ---- Header fields ---------------------------------------------------------------------------------

static Bytes LinesOf( PbBuffer *buf, const SipsnFieldPlace *field )
{
    return AllBytes( buf ).From( field->begin.offset ).First( field->length );
}

bool sipsnMessagePlaceNextField( PbBuffer *buf, const SipsnMessagePlace *place, SipsnFieldPlace *field )
{
    PB_ASSERT( buf );
    PB_ASSERT( place );
    PB_ASSERT( IsWithin( buf, place ) );
    PB_ASSERT( field );
    PB_ASSERT( IsWithin( buf, field ) );

    SipsnPlace  begin = place->begin;
    const Bytes head  = AllBytes( buf ).First( begin.offset + place->length - place->bodyLength );
    Bytes       rest  = head.From( begin.offset );
    if( field->begin.line > 0 ) {
        begin = field->begin;
        rest  = head.From( begin.offset + field->length );
    } else
        sipsn::TakeLine( rest );

    sipsn::FieldCutter cutter{ rest };
    if( !cutter.Next() ) return false;
    const Bytes lines = cutter.Lines();
    sipsnPlaceAdvance( &begin, buf, lines.data - head.data );
    *field = { begin, sipsn::ValueCharacters( lines ).End() - lines.data };
    return true;
}

PbString *sipsnFieldPlaceName( PbBuffer *buf, const SipsnFieldPlace *field )
{
    PB_ASSERT( buf );
    PB_ASSERT( field );
    PB_ASSERT( IsWithin( buf, field ) );

    const Bytes                  lines = LinesOf( buf, field );
    const sipsn::HeaderNameToken name  = sipsn::ScanHeaderName( lines.data, lines.length );
    if( name.number >= 0 ) return pb::Retain( sipsn::HeaderNameAt( name.number ) );
    return sipsn::CapitaliseHeaderName( lines.data, name.length );
}

void sipsnFieldPlacesOfChars( PbBuffer *buf, const SipsnFieldPlace *field, const int64_t *indexes, SipsnPlace *places,
                              int64_t count )
{
    PB_ASSERT( buf );
    PB_ASSERT( field );
    PB_ASSERT( IsWithin( buf, field ) );
    PB_ASSERT( count == 0 || ( indexes && places ) );

    sipsn::ValueCharacters value{ LinesOf( buf, field ) };
    SipsnPlace             place = field->begin;
    for( int64_t at = 0, index = 0; at < count; ++at ) {
        PB_ASSERT( indexes[ at ] >= ( at > 0 ? indexes[ at - 1 ] : 0 ) );
        for( ; index < indexes[ at ] && !value.AtEnd(); ++index ) value.Next();
        sipsnPlaceAdvance( &place, buf, value.Place() - pbBufferBacking( buf ) );
        places[ at ] = place;
    }
}
