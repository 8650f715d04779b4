// How bytes are cut into lines, and lines into header fields: the decoder, and whoever says where in a message
// something stands, cut with this. C++ only; never installed.
#pragma once

#include "pb/pb_buffer.h"
#include "pb/pb_frame.h"
#include "pb/pb_text.h"

#include <bit>
#include <cstring>

namespace sipsn {

// A run of bytes in somebody else's memory.
struct Bytes
{
    const PbByte *data   = nullptr;
    int64_t       length = 0;

    bool          Empty() const { return length == 0; }
    PbByte        Front() const { return data[ 0 ]; }
    const PbByte *End() const { return data + length; }
    Bytes         From( int64_t index ) const { return { data + index, length - index }; }
    Bytes         First( int64_t count ) const { return { data, count }; }
};

inline bool IsBlank( PbByte byte ) { return byte == ' ' || byte == '\t'; }
inline bool IsLineEnd( PbByte byte ) { return byte == '\r' || byte == '\n'; }

inline Bytes SkipBlanks( Bytes text )
{
    while( !text.Empty() && IsBlank( text.Front() ) ) text = text.From( 1 );
    return text;
}

inline Bytes TrimEnd( Bytes text )
{
    while( !text.Empty() && IsBlank( text.data[ text.length - 1 ] ) ) --text.length;
    return text;
}

inline Bytes Trim( Bytes text ) { return TrimEnd( SkipBlanks( text ) ); }

inline int64_t Find( Bytes text, char wanted )
{
    const void *found = text.Empty() ? nullptr : std::memchr( text.data, wanted, size_t( text.length ) );
    return found ? static_cast< const PbByte * >( found ) - text.data : -1;
}

// The first character of a text, empty at the end of a line. An ill-formed byte counts as one.
inline Bytes FirstChar( Bytes text )
{
    int64_t length = text.Empty() || IsLineEnd( text.Front() ) ? 0 : 1;
    while( length > 0 && length < text.length && ( text.data[ length ] & 0xC0 ) == 0x80 ) ++length;
    return text.First( length );
}

// How many bytes stand before the first CR or LF.
inline int64_t FindLineEnd( Bytes text )
{
    int64_t         at = 0;
    const pb::Block cr = pb::Block::Of( '\r' ), lf = pb::Block::Of( '\n' );
    for( ; at + 16 <= text.length; at += 16 ) {
        const pb::Block block = pb::Block::Load( text.data + at );
        const uint32_t  found = block.Equal( cr ) | block.Equal( lf );
        if( found ) return at + std::countr_zero( found );
    }
    while( at < text.length && !IsLineEnd( text.data[ at ] ) ) ++at;
    return at;
}

// Without the line end it begins with: CR LF, a lone CR, a lone LF, or none at the end of the text.
inline Bytes SkipLineEnd( Bytes text )
{
    if( text.Empty() ) return text;
    return text.From( text.length > 1 && text.data[ 0 ] == '\r' && text.data[ 1 ] == '\n' ? 2 : 1 );
}

// Takes one line off the front, with its line end.
inline Bytes TakeLine( Bytes &text )
{
    const int64_t length = FindLineEnd( text );
    const Bytes   line   = text.First( length );
    text                 = SkipLineEnd( text.From( length ) );
    return line;
}

// Moves over the header fields of a message. A line that begins with a blank continues the field before it, unless an
// empty line stands between them.
class FieldCutter
{
public:
    // The lines after the start line.
    explicit FieldCutter( Bytes lines ) : rest_{ lines } {}

    // False when there are no more.
    bool Next()
    {
        joined_ = {};
        do {
            if( rest_.Empty() ) return false;
            line_ = Trim( TakeLine( rest_ ) );
        } while( line_.Empty() );
        while( !rest_.Empty() && IsBlank( rest_.Front() ) ) Continue( Trim( TakeLine( rest_ ) ) );
        return true;
    }

    // The field as one line: its own bytes as long as it has only one; else a copy, in which a space stands for each
    // line end and the blanks around it.
    Bytes Text() const
    {
        return joined_ ? Bytes{ pbBufferBacking( joined_.Get() ), pbBufferLength( joined_.Get() ) } : line_;
    }

    // The field as it stands, from its name to its last line end; and what is behind it.
    Bytes Lines() const { return { line_.data, rest_.data - line_.data }; }
    Bytes Rest() const { return rest_; }

    // The copy, if there is one, for whoever wants the text longer than the cutter.
    PbBuffer *DetachCopy() { return joined_.Detach(); }

private:
    void Continue( Bytes line )
    {
        if( line.Empty() ) return;
        if( !joined_ ) joined_ = pb::Ref{ pbBufferCreateFromBytesCopy( line_.data, line_.length ) };
        pbBufferAppendBytes( joined_.Slot(), " ", 1 );
        pbBufferAppendBytes( joined_.Slot(), line.data, line.length );
    }

    Bytes               rest_;
    Bytes               line_; // the field's first one
    pb::Ref< PbBuffer > joined_;
};

// Moves over the characters of a field's value as it stands, in the order in which the decoder joins them: one space
// for each line end and the blanks around it.
class ValueCharacters
{
public:
    explicit ValueCharacters( Bytes lines ) : rest_{ lines }
    {
        while( !rest_.Empty() && ( IsBlank( rest_.End()[ -1 ] ) || IsLineEnd( rest_.End()[ -1 ] ) ) ) --rest_.length;
        line_ = Trim( TakeLine( rest_ ) );
        while( !AtEnd() && Front() != ':' ) Next();
        do Next();
        while( !AtEnd() && IsBlank( Front() ) );
    }

    bool          AtEnd() const { return line_.Empty() && rest_.Empty(); }
    PbByte        Front() const { return line_.Empty() ? PbByte( ' ' ) : line_.Front(); }
    const PbByte *Place() const { return line_.data; }
    const PbByte *End() const { return rest_.End(); }

    // Stays at the end.
    void Next()
    {
        if( !line_.Empty() ) {
            line_ = line_.From( FirstChar( line_ ).length );
            return;
        }
        while( line_.Empty() && !rest_.Empty() ) line_ = Trim( TakeLine( rest_ ) );
    }

private:
    Bytes line_; // what is left of the current one
    Bytes rest_; // the lines behind it, the last of which is not blank
};

} // namespace sipsn
