// SipsnFault: places in bytes, and the words for each kind of fault.
#include "sipsn_fault.h"

#include "pb/pb_frame.h"

void sipsnPlaceAdvance( SipsnPlace *place, PbBuffer *buf, int64_t offset )
{
    PB_ASSERT( place );
    PB_ASSERT( buf );
    PB_ASSERT( offset >= place->offset && offset <= pbBufferLength( buf ) );

    const PbByte *bytes  = pbBufferBacking( buf );
    const int64_t length = pbBufferLength( buf );
    for( ; place->offset < offset; ++place->offset ) {
        const PbByte  byte   = bytes[ place->offset ];
        const int64_t next   = place->offset + 1;
        const bool    loneCr = byte == '\r' && ( next == length || bytes[ next ] != '\n' );
        if( byte == '\n' || loneCr ) {
            ++place->line;
            place->column = 1;
        } else
            place->column += ( byte & 0xC0 ) != 0x80;
    }
}

static const char *WordsFor( int64_t kind )
{
    switch( kind ) {
    case SIPSN_FAULT_NONE: return "no fault";
    case SIPSN_FAULT_NO_MESSAGE: return "no message, only line ends";
    case SIPSN_FAULT_LINE_END_BEFORE_MESSAGE: return "expected no line end but CR LF before the start line";
    case SIPSN_FAULT_START_LINE:
        return "expected a request line (METHOD URI SIP/2.0) or a status line (SIP/2.0 CODE PHRASE)";
    case SIPSN_FAULT_START_LINE_BLANK:
        return "expected one space between the parts of the start line, and no blank around them";
    case SIPSN_FAULT_METHOD: return "expected a method: letters, digits and -.!%*_+`'~";
    case SIPSN_FAULT_URI: return "expected a URI such as sip:a@example.com, without angle brackets";
    case SIPSN_FAULT_URI_BLANK: return "expected a URI without blanks";
    case SIPSN_FAULT_VERSION: return "expected a protocol version such as SIP/2.0";
    case SIPSN_FAULT_STATUS_CODE: return "expected a status code from 100 to 999";
    case SIPSN_FAULT_UTF8: return "expected UTF-8";
    case SIPSN_FAULT_FIELD_NAME: return "expected a header field name: letters, digits and -.!%*_+`'~";
    case SIPSN_FAULT_FIELD_NAME_MISSING: return "expected a header field name before the colon";
    case SIPSN_FAULT_FIELD_NAME_BLANK: return "expected a header field name without blanks before or within it";
    case SIPSN_FAULT_COLON: return "expected a colon after the header field name";
    case SIPSN_FAULT_SECOND_START_LINE: return "expected a header field, or an empty line before the next message";
    case SIPSN_FAULT_LINE_FEED: return "expected CR LF, not LF alone: this empty line does not end the header fields";
    case SIPSN_FAULT_CARRIAGE_RETURN:
        return "expected CR LF, not CR alone: this empty line does not end the header fields";
    case SIPSN_FAULT_EMPTY_LINE: return "expected an empty line at the end of the header fields";
    case SIPSN_FAULT_CONTENT_LENGTH: return "Content-Length is not a number of bytes from 0 to 9223372036854775807";
    case SIPSN_FAULT_CONTENT_LENGTH_MISSING: return "expected a Content-Length, which every message on a stream needs";
    case SIPSN_FAULT_BODY_SHORT: return "Content-Length is %i, but only %i %s";
    case SIPSN_FAULT_BODY_LONG: return "Content-Length is %i, but %i %s";
    case SIPSN_FAULT_BODY_RUNS_OVER: return "Content-Length is %i, but the next message begins after %i %s";
    default: return nullptr;
    }
}

// "byte follows", "bytes follow"; without the verb where the words have one.
static const char *BytesThere( const SipsnFault &fault )
{
    const bool one = fault.bodyLength == 1;
    if( fault.kind == SIPSN_FAULT_BODY_RUNS_OVER ) return one ? "byte" : "bytes";
    return one ? "byte follows" : "bytes follow";
}

PbString *sipsnFaultToString( const SipsnFault *fault )
{
    PB_ASSERT( fault );
    const char *words = WordsFor( fault->kind );
    PB_ASSERT( words );
    if( fault->kind < SIPSN_FAULT_BODY_SHORT ) return pbStringCreateFromCstr( words, -1 );
    pb::Ref there{ pbStringCreateFromCstr( BytesThere( *fault ), -1 ) };
    return pbStringCreateFromFormatCstr( words, -1, fault->contentLength, fault->bodyLength, there.Get() );
}
