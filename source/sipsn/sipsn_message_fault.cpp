// Why a header block was refused: from the line or the field that the decoder stopped at to the very bytes.
#include "sipsn_char_class.h"
#include "sipsn_fault.h"
#include "sipsn_header_names.h"
#include "sipsn_message_internal.h"
#include "sipsn_status_code.h"

#include "iri/iri_internal.h"

#include <algorithm>

namespace sipsn {

namespace {

// How many characters of a token the text begins with, and what is not one of them.
int64_t TokenLength( Bytes text ) { return ScanHeaderName( text.data, text.length ).length; }
Bytes   BehindToken( Bytes text ) { return text.From( TokenLength( text ) ); }
bool    IsToken( Bytes text ) { return !text.Empty() && BehindToken( text ).Empty(); }

// Where a text stops to be UTF-8; its end when it is.
Bytes FindIllFormed( Bytes text )
{
    PbChar ch;
    while( !text.Empty() ) {
        const int64_t length = pb::DecodeUtf8Sequence( ch, text.data, text.length );
        if( ch < 0 ) return text.First( 1 );
        text = text.From( length );
    }
    return text;
}

// ---- The start line --------------------------------------------------------------------------------

bool MeansVersion( Bytes word )
{
    return word.length >= 4 && AsciiLower( word.data[ 0 ] ) == 's' && AsciiLower( word.data[ 1 ] ) == 'i' &&
           AsciiLower( word.data[ 2 ] ) == 'p' && word.data[ 3 ] == '/';
}

bool IsVersion( Bytes word ) { return bool( pb::Ref{ TryDecodeVersion( word ) } ); }

Bytes FirstWord( Bytes text )
{
    const int64_t space = Find( text, ' ' );
    return space < 0 ? text : text.First( space );
}

Bytes LastWord( Bytes text )
{
    int64_t begin = text.length;
    while( begin > 0 && !IsBlank( text.data[ begin - 1 ] ) ) --begin;
    return text.From( begin );
}

// Where a text stops to be a URI; its end when it is one.
Bytes FindNoUri( Bytes text )
{
    const Bytes illFormed = FindIllFormed( text );
    const Bytes good      = text.First( illFormed.data - text.data );
    pb::Ref     string{ pb___StringTryCreateFromUtf8( good.data, good.length ) };
    int64_t     chars = iri___SkipIri( string->chs, string->length );
    for( ; chars > 0; --chars ) text = text.From( FirstChar( text ).length );
    return FirstChar( text );
}

// A line whose first word is meant as a version.
Explanation ExplainStatusLine( Bytes line, Bytes version )
{
    if( !IsVersion( version ) ) return { SIPSN_FAULT_VERSION, version };
    const Bytes rest = line.From( std::min( version.length + 1, line.length ) );
    const Bytes code = FirstWord( rest );
    if( !sipsnStatusCodeOk( ReadStatusCode( code ) ) ) return { SIPSN_FAULT_STATUS_CODE, code };
    return { SIPSN_FAULT_UTF8, FindIllFormed( rest ) };
}

// A line whose last word is meant as a version.
Explanation ExplainRequestLine( Bytes line, Bytes version )
{
    const Bytes method = FirstWord( line );
    if( line.Empty() || IsBlank( line.Front() ) ) return { SIPSN_FAULT_START_LINE_BLANK, FirstChar( line ) };
    if( !IsToken( method ) ) {
        const Bytes bad = FirstChar( BehindToken( method ) );
        return { bad.Front() == '\t' ? SIPSN_FAULT_START_LINE_BLANK : SIPSN_FAULT_METHOD, bad };
    }
    if( !IsVersion( version ) ) return { SIPSN_FAULT_VERSION, version };
    if( version.End() != line.End() ) return { SIPSN_FAULT_START_LINE_BLANK, { version.End(), 1 } };
    if( version.data[ -1 ] != ' ' ) return { SIPSN_FAULT_START_LINE_BLANK, { version.data - 1, 1 } };

    const Bytes between = { method.End() + 1, std::max< int64_t >( version.data - method.End() - 2, 0 ) };
    const Bytes uri     = TrimEnd( between );
    if( uri.Empty() ) return { SIPSN_FAULT_URI, uri };
    if( IsBlank( uri.Front() ) ) return { SIPSN_FAULT_START_LINE_BLANK, FirstChar( uri ) };
    if( uri.length < between.length ) return { SIPSN_FAULT_START_LINE_BLANK, { uri.End(), 1 } };
    if( const int64_t blank = Find( uri, ' ' ); blank >= 0 ) return { SIPSN_FAULT_URI_BLANK, { uri.data + blank, 1 } };
    const Bytes illFormed = FindIllFormed( uri );
    if( !illFormed.Empty() ) return { SIPSN_FAULT_UTF8, illFormed };
    return { SIPSN_FAULT_URI, FindNoUri( uri ) };
}

// What is neither is taken for what it was most likely meant to be.
Explanation ExplainStartLine( Bytes line )
{
    if( line.Empty() ) return { SIPSN_FAULT_LINE_END_BEFORE_MESSAGE, line };
    const Bytes first = FirstWord( line );
    const Bytes last  = LastWord( TrimEnd( line ) );
    if( MeansVersion( first ) ) return ExplainStatusLine( line, first );
    if( MeansVersion( last ) ) return ExplainRequestLine( line, last );

    const Bytes rest = line.From( std::min( first.length + 1, line.length ) );
    const Bytes uri  = FirstWord( rest );
    if( !IsToken( first ) || uri.Empty() || !FindNoUri( uri ).Empty() ) return { SIPSN_FAULT_START_LINE, line };
    return { SIPSN_FAULT_VERSION, rest.From( std::min( uri.length + 1, rest.length ) ) };
}

// ---- Header fields ---------------------------------------------------------------------------------

// Whether words and blanks stand between a name and the colon, as in "Call ID: 1".
bool GoesOnWithWords( Bytes behindName )
{
    while( !behindName.Empty() && ( IsBlank( behindName.Front() ) || TokenLength( behindName.First( 1 ) ) > 0 ) )
        behindName = behindName.From( 1 );
    return !behindName.Empty() && behindName.Front() == ':';
}

Explanation ExplainField( Bytes head, Bytes lines )
{
    FieldCutter field{ lines };
    field.Next();
    const Bytes text   = field.Text();
    const Bytes behind = BehindToken( text ); // the name
    const Bytes place  = FirstChar( BehindToken( lines ) );
    if( IsStartLine( text ) ) return { SIPSN_FAULT_SECOND_START_LINE, lines.First( text.length ) };
    if( lines.data > head.data && IsBlank( lines.data[ -1 ] ) )
        return { SIPSN_FAULT_FIELD_NAME_BLANK, { lines.data - 1, 1 } };
    if( place.data == lines.data )
        return { text.Front() == ':' ? SIPSN_FAULT_FIELD_NAME_MISSING : SIPSN_FAULT_FIELD_NAME, place };

    const Bytes next = SkipBlanks( behind );
    if( next.Empty() ) return { SIPSN_FAULT_COLON, place };
    if( next.Front() == ':' ) return { SIPSN_FAULT_UTF8, FindIllFormed( lines ) };
    if( GoesOnWithWords( behind ) ) return { SIPSN_FAULT_FIELD_NAME_BLANK, place };
    const bool nameGoesOn = !IsBlank( behind.Front() ) && Find( FirstWord( behind ), ':' ) >= 0;
    return { nameGoesOn ? SIPSN_FAULT_FIELD_NAME : SIPSN_FAULT_COLON, place };
}

// An empty line within a header block comes of line ends that are not CR LF: it was meant to end the header fields.
Explanation FindEmptyLine( Bytes head, const PbByte *end )
{
    Bytes rest = head;
    TakeLine( rest );
    while( !rest.Empty() && rest.data < end ) {
        const Bytes line = TakeLine( rest );
        if( !line.Empty() ) continue;
        const bool loneCr = line.data[ 0 ] == '\r' && ( rest.data - line.data == 1 || line.data[ -1 ] == '\r' );
        return { loneCr ? SIPSN_FAULT_CARRIAGE_RETURN : SIPSN_FAULT_LINE_FEED, line };
    }
    return { SIPSN_FAULT_NONE, {} };
}

} // namespace

Bytes FindContentLength( Bytes head )
{
    Bytes lines = head, found = { head.End(), 0 };
    TakeLine( lines );
    FieldCutter field{ lines };
    while( field.Next() ) {
        const Bytes text = field.Text();
        if( ScanHeaderName( text.data, text.length ).number != HeaderNumber( "Content-Length" ) ) continue;
        const ValueCharacters value{ field.Lines() };
        found = { value.Place(), value.End() - value.Place() };
    }
    return found;
}

int64_t FindStartLine( Bytes bytes )
{
    Bytes rest = bytes;
    TakeLine( rest );
    while( !rest.Empty() ) {
        const Bytes line = TakeLine( rest );
        if( ( MeansVersion( FirstWord( line ) ) || MeansVersion( LastWord( line ) ) ) && IsStartLine( line ) )
            return line.data - bytes.data;
    }
    return -1;
}

Explanation ExplainNoHeaderEnd( Bytes head )
{
    const Explanation emptyLine = FindEmptyLine( head, head.End() );
    if( emptyLine.kind != SIPSN_FAULT_NONE ) return emptyLine;
    return { SIPSN_FAULT_EMPTY_LINE, { head.End(), 0 } };
}

Explanation Explain( Bytes head, const Refusal &refusal )
{
    if( refusal.part == Refusal::startLine ) return ExplainStartLine( refusal.where );
    if( refusal.part == Refusal::contentLength ) return { SIPSN_FAULT_CONTENT_LENGTH, FindContentLength( head ) };

    const Explanation emptyLine = FindEmptyLine( head, refusal.where.data );
    if( emptyLine.kind != SIPSN_FAULT_NONE ) return emptyLine;
    const bool cutOff = FindLineEnd( refusal.where ) == refusal.where.length;
    return cutOff ? ExplainNoHeaderEnd( head ) : ExplainField( head, refusal.where );
}

} // namespace sipsn
