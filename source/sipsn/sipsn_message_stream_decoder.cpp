// SipsnMessageStreamDecoder: cuts a byte stream into messages by their empty line and Content-Length.
#include "sipsn_message_stream_decoder.h"

#include "sipsn_message_internal.h"

#include <algorithm>

struct SipsnMessageStreamDecoder
{
    PbObj         obj;
    int32_t       error; // a flag, never cleared
    PbBuffer     *buffer;
    SipsnMessage *pending;  // its headers are decoded, its body is awaited
    int64_t       position; // where to search on for the empty line; while a message is pending, where its body begins
    int64_t       contentLength; // of the pending message

    static constexpr auto Members()
    {
        return pb::Members{ &SipsnMessageStreamDecoder::error, &SipsnMessageStreamDecoder::buffer,
                            &SipsnMessageStreamDecoder::pending, &SipsnMessageStreamDecoder::position,
                            &SipsnMessageStreamDecoder::contentLength };
    }
    using CompareOrder = pb::ByAddress;
};

PB_DEFINE_OBJECT( SipsnMessageStreamDecoder, sipsnMessageStreamDecoder, sipsn___sort_SIPSN_MESSAGE_STREAM_DECODER,
                  "SIPSN_MESSAGE_STREAM_DECODER", sipsn___module, decoder, decoder, pb::sortNameAsText )

SipsnMessageStreamDecoder *sipsnMessageStreamDecoderCreate( void )
{
    SipsnMessageStreamDecoder *decoder = pb::New< SipsnMessageStreamDecoder >();
    decoder->error                     = false;
    decoder->buffer                    = pbBufferCreate();
    decoder->position                  = 0;
    decoder->contentLength             = 0;
    return decoder;
}

// ---- Writing ---------------------------------------------------------------------------------------

bool sipsnMessageStreamDecoderWrite( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return false;
    pbBufferAppend( &decoder->buffer, buffer );
    return true;
}

bool sipsnMessageStreamDecoderWriteLeading( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t count )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return false;
    pbBufferAppendLeading( &decoder->buffer, buffer, count );
    return true;
}

bool sipsnMessageStreamDecoderWriteTrailing( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t count )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return false;
    pbBufferAppendTrailing( &decoder->buffer, buffer, count );
    return true;
}

bool sipsnMessageStreamDecoderWriteInner( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t index,
                                          int64_t count )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return false;
    pbBufferAppendInner( &decoder->buffer, buffer, index, count );
    return true;
}

bool sipsnMessageStreamDecoderWriteOuter( SipsnMessageStreamDecoder *decoder, PbBuffer *buffer, int64_t index,
                                          int64_t count )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return false;
    pbBufferAppendOuter( &decoder->buffer, buffer, index, count );
    return true;
}

// ---- Reading ---------------------------------------------------------------------------------------

// Deletes the CR LF pairs between messages.
static void SkipKeepAlives( SipsnMessageStreamDecoder *decoder )
{
    const PbByte *bytes  = pbBufferBacking( decoder->buffer );
    const int64_t length = pbBufferLength( decoder->buffer );
    int64_t       count  = 0;
    while( length - count >= 2 && bytes[ count ] == '\r' && bytes[ count + 1 ] == '\n' ) count += 2;
    if( count > 0 ) pbBufferDelLeading( &decoder->buffer, count );
}

// Looks for the end of the header block from where the last call stopped, and decodes the block when it is there. False
// when that puts the decoder in error.
static bool AdvanceToBody( SipsnMessageStreamDecoder *decoder )
{
    const PbByte *bytes     = pbBufferBacking( decoder->buffer );
    const int64_t length    = pbBufferLength( decoder->buffer );
    const int64_t headerEnd = sipsn::FindHeaderEnd( bytes, length, decoder->position );
    if( headerEnd < 0 ) {
        decoder->position = std::max( decoder->position, length - 3 );
        return true;
    }
    decoder->position = headerEnd;

    int64_t contentLength;
    pb::Ref fragment{ sipsn::TryDecodeHeaders( { bytes, headerEnd + 2 }, &contentLength, nullptr ) };
    if( !fragment || contentLength < 0 ) return false;
    if( !sipsnMessageFragmentIsRequest( fragment.Get() ) && !sipsnMessageFragmentIsResponse( fragment.Get() ) )
        return false;

    decoder->pending       = sipsnMessageCreate( fragment.Get() );
    decoder->contentLength = contentLength;
    decoder->position      = headerEnd + 4;
    return true;
}

SipsnMessage *sipsnMessageStreamDecoderRead( SipsnMessageStreamDecoder *decoder )
{
    PB_ASSERT( decoder );
    if( decoder->error ) return nullptr;

    if( !decoder->pending ) {
        if( decoder->position == 0 ) SkipKeepAlives( decoder );
        if( !AdvanceToBody( decoder ) ) {
            decoder->error = true;
            return nullptr;
        }
        if( !decoder->pending ) return nullptr;
    }
    if( decoder->contentLength > pbBufferLength( decoder->buffer ) - decoder->position ) return nullptr;

    pb::Ref body{ pbBufferRead( decoder->buffer, decoder->position, decoder->contentLength ) };
    pb::Ref msg{ std::exchange( decoder->pending, nullptr ) };
    sipsnMessageSetBody( msg.Slot(), body.Get() );
    pbBufferDelLeading( &decoder->buffer, decoder->position + decoder->contentLength );
    decoder->position      = 0;
    decoder->contentLength = 0;
    return msg.Detach();
}

// ---- State -----------------------------------------------------------------------------------------

bool sipsnMessageStreamDecoderError( SipsnMessageStreamDecoder *decoder )
{
    PB_ASSERT( decoder );
    return decoder->error;
}

int64_t sipsnMessageStreamDecoderLength( SipsnMessageStreamDecoder *decoder )
{
    PB_ASSERT( decoder );
    return pbBufferLength( decoder->buffer );
}

int64_t sipsnMessageStreamDecoderSpace( SipsnMessageStreamDecoder *decoder )
{
    PB_ASSERT( decoder );
    return pbBufferSpace( decoder->buffer );
}
