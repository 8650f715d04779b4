// The header frame: what the 58 header types share beyond the object frame. C++ only; never installed.
//
//     struct SipsnHeaderVia { ... };                         // 1. members and table, as for every type
//
//     SIPSN_DEFINE_NAME( ... )                               // 2. the name constant
//
//     static constexpr sipsn::List< ... > shape{ ... };      // 3. one of the shapes: what sets the family apart
//
//     SIPSN_DEFINE_HEADER( ... )                             // 4. the functions of a header type
//
// The shapes are List (encoded values, and tokens that keep their order), Set (tokens, each once), WholeLine (one text)
// and Single (whatever else one line holds). A shape has TryDecode( header ), and Encode( hdr, name ), which takes over
// the reference of the field's name.
#pragma once

#include "sipsn_header.h"
#include "sipsn_header_names.h"
#include "sipsn_message_internal.h"
#include "sipsn_value_internal.h"

namespace sipsn {

// ---- Lines and names -------------------------------------------------------------------------------

inline PbString *PeekString( PbVector *vector, int64_t index )
{
    return reinterpret_cast< PbString * >( pb___VectorPeek( vector, index ) );
}

// The lines of a header field as one text: none, the line itself, or the vector's own text. Takes over the reference.
PbString *LinesToString( SipsnMessageHeader *owned );

// The field of a family in a message, without a reference of its own, or null: the family's constant and its number.
SipsnMessageHeader *PeekField( SipsnMessage *msg, PbString *name, int64_t number );

// The canonical form of a family's constant, a new reference.
PbString *FieldName( PbString *name );

// Whether a header field is that of a family.
inline bool IsField( SipsnMessageHeader *header, PbString *name )
{
    return ( header && header->name == name ) || sipsnMessageHeaderNameEquals( header, name );
}

// Creates and drops a family's name constant, which the known header names share.
void        CreateName( PbString *&constant, const char *text );
inline void DropName( PbString *&constant ) { pb::ReleaseAndPoison( constant ); }

// A text that a caller adds to a list. Values are made of checked members; still no text may ever end its line.
inline PbString *CheckedLine( PbString *owned )
{
    PB_ASSERT( sipsnMessageHeaderLineOk( owned ) );
    return owned;
}

// Reads items and separators that cover all lines of a header field; an empty line holds none. `keep( span )` takes
// each item and says whether it is a good one.
template< class Keep >
bool TryDecodeItems( SipsnMessageHeader *header, Production *item, Production *separator, Keep keep )
{
    for( int64_t at = 0, count = LineCount( header ); at < count; ++at ) {
        PbString *line = PeekLine( header, at );
        Cursor    in{ line->chs, line->length };
        for( bool first = true; !in.AtEnd(); first = false ) {
            if( !first && !in.Take( separator ) ) return false;
            Span found = in.Take( item );
            if( !found || !keep( found ) ) return false;
        }
    }
    return true;
}

// ---- Shapes ----------------------------------------------------------------------------------------

// What decoding a header field without lines gives. In a message it is not decoded at all.
enum class NoLines
{
    givesEmptyHeader,
    givesNull
};

// How items go into lines.
enum class Lines
{
    onePerItem,
    joined
};

// What stands between items, as it is read and as it is written.
struct ItemSeparator
{
    Production *read;
    PbChar      written;
};
inline constexpr ItemSeparator comma{ sipsn___SkipComma, ',' };
inline constexpr ItemSeparator semicolon{ sipsn___SkipSemi, ';' };

inline PbString *AsWritten( const PbChar *chs, int64_t length ) { return pbStringCreateFromCharsCopy( chs, length ); }

// A header field with all items on one line; with no line when there are none. `itemAt( index )` gives a borrowed text.
template< class ItemAt >
SipsnMessageHeader *JoinedField( PbString *name, int64_t count, PbChar separator, ItemAt itemAt )
{
    if( count == 0 ) return CreateHeader( name, pbVectorCreate() );
    TextWriter out;
    for( int64_t at = 0; at < count; ++at ) {
        if( at > 0 ) out.Char( separator );
        out.Text( itemAt( at ) );
    }
    return CreateHeader( name, out.ToString() );
}

// A vector of texts: encoded values as they were written, or tokens.
template< class Header > struct List
{
    PbVector *Header::*items;
    Production        *item;
    NoLines            noLines;
    Lines              lines                                   = Lines::onePerItem;
    PbString *( *stored )( const PbChar *chs, int64_t length ) = AsWritten;

    Header *Create() const
    {
        Header *hdr = pb::New< Header >();
        hdr->*items = pbVectorCreate();
        return hdr;
    }

    Header *TryDecode( SipsnMessageHeader *header ) const
    {
        if( noLines == NoLines::givesNull && LineCount( header ) == 0 ) return nullptr;
        pb::Ref hdr{ Create() };
        return TryDecodeItems( header, item, sipsn___SkipComma, Keeper( hdr.Get() ) ) ? hdr.Detach() : nullptr;
    }

    // What keeps the items of TryDecodeItems.
    auto Keeper( Header *hdr ) const
    {
        return [ this, hdr ]( Span found ) {
            pb___VectorAppendOwned( &( hdr->*items ), pb::AsObj( stored( found.chs, found.length ) ) );
            return true;
        };
    }

    // The vector of one line per item is the header field's as it is.
    SipsnMessageHeader *Encode( Header *hdr, PbString *name ) const
    {
        if( lines == Lines::onePerItem ) return CreateHeader( name, pb::Retain( hdr->*items ) );
        return JoinedField( name, pbVectorLength( hdr->*items ), comma.written,
                            [ & ]( int64_t at ) { return PeekString( hdr->*items, at ); } );
    }
};

// A dictionary from each token to itself: each is held once, in the order of the dictionary.
template< class Header > struct Set
{
    PbDict *Header::*items;
    Production      *item;
    ItemSeparator    separator                                 = comma;
    PbString *( *stored )( const PbChar *chs, int64_t length ) = AsWritten;

    Header *Create() const
    {
        Header *hdr = pb::New< Header >();
        hdr->*items = pb___DictCreateWithCapacity( 8 ); // as many as most lists of methods or extensions have
        return hdr;
    }

    Header *TryDecode( SipsnMessageHeader *header ) const
    {
        if( LineCount( header ) == 0 ) return nullptr;
        pb::Ref    hdr{ Create() };
        const auto keep = [ & ]( Span found ) {
            PbString *token = stored( found.chs, found.length );
            pb___DictSetOwned( &( hdr.Get()->*items ), token, pb::AsObj( pb::Retain( token ) ) );
            return true;
        };
        return TryDecodeItems( header, item, separator.read, keep ) ? hdr.Detach() : nullptr;
    }

    SipsnMessageHeader *Encode( Header *hdr, PbString *name ) const
    {
        return JoinedField( name, pbDictLength( hdr->*items ), separator.written,
                            [ & ]( int64_t at ) { return pb___DictPeekKeyAt( hdr->*items, at ); } );
    }
};

// What the last line holds. `tryDecode` gets that line and gives the header or null; `encode` gives the line, a new
// reference.
template< class Header > struct Single
{
    Header *( *tryDecode )( PbString *line );
    PbString *( *encode )( Header *hdr );

    Header *TryDecode( SipsnMessageHeader *header ) const
    {
        const int64_t count = LineCount( header );
        return count > 0 ? tryDecode( PeekLine( header, count - 1 ) ) : nullptr;
    }

    SipsnMessageHeader *Encode( Header *hdr, PbString *name ) const { return CreateHeader( name, encode( hdr ) ); }
};

// The last line as it is, or in its normal form: one text that satisfies `ok` and is stored as `normalized` gives it, a
// new reference.
template< class Header > struct WholeLine
{
    PbString *Header::*text;
    bool ( *ok )( PbString *line );
    PbString *( *normalized )( PbString *line ) = pb::Retain< PbString >;

    // Takes over the reference.
    Header *Create( PbString *owned ) const
    {
        Header *hdr = pb::New< Header >();
        hdr->*text  = owned;
        return hdr;
    }

    Header *TryDecode( SipsnMessageHeader *header ) const
    {
        const int64_t count = LineCount( header );
        PbString     *line  = count > 0 ? PeekLine( header, count - 1 ) : nullptr;
        return line && ok( line ) ? Create( normalized( line ) ) : nullptr;
    }

    SipsnMessageHeader *Encode( Header *hdr, PbString *name ) const
    {
        return CreateHeader( name, pb::Retain( hdr->*text ) );
    }
};

// ---- Values of a list ------------------------------------------------------------------------------

// Decodes the text at an index, which pb checks, with a value type's TryDecode.
template< class Value >
Value *TryDecodeAt( PbVector *items, int64_t index, Value *( *decode )( const PbChar *chs, int64_t length ) )
{
    PbString *text = PeekString( items, index );
    return decode( text->chs, text->length );
}

} // namespace sipsn

// ---- The functions of a header type ----------------------------------------------------------------

// Defines a family's name constant and the functions that keep it. SIPSN_DEFINE_NAME( sipsn___HeaderVia,
// sipsn___PbsVia, "Via" ) defines
//
//     sipsn___PbsVia, sipsn___HeaderViaStartup, sipsn___HeaderViaShutdown
#define SIPSN_DEFINE_NAME( prefix, constant, text )                                                                    \
    SIPSN_DEFINE_NAME_CONSTANT( constant, text )                                                                       \
    void prefix##Startup( void ) { sipsn::CreateName( constant, text ); }                                              \
    void prefix##Shutdown( void ) { sipsn::DropName( constant ); }

// The constant alone, for a family that keeps more.
#define SIPSN_DEFINE_NAME_CONSTANT( constant, text )                                                                   \
    PbString                *constant;                                                                                 \
    static constexpr int64_t nameNumber = sipsn::HeaderNumber( text );                                                 \
    static_assert( nameNumber >= 0, "not a known name" );

// Defines what SIPSN_DECLARE_HEADER declares, behind SIPSN_DEFINE_NAME. SIPSN_DEFINE_HEADER( SipsnHeaderVia,
// sipsnHeaderVia, SIPSN_HEADER_VIA, sipsn___PbsVia, shape ) defines, beyond SIPSN_DEFINE_TYPE,
//
//     sipsnHeaderViaTryDecode, ...Encode, ...TryDecodeFromMessage, ...EncodeToMessage, ...PresentInMessage,
//     ...RemoveFromMessage, ...Store, ...TryRestore
#define SIPSN_DEFINE_HEADER( Type, prefix, SORT, name, shape )                                                         \
    static PbString *LinesText( Type *hdr )                                                                            \
    {                                                                                                                  \
        return sipsn::LinesToString( shape.Encode( hdr, pb::Retain( name ) ) );                                        \
    }                                                                                                                  \
    SIPSN_DEFINE_TYPE( Type, prefix, SORT, hdr, hdr, LinesText )                                                       \
                                                                                                                       \
    Type *prefix##TryDecode( SipsnMessageHeader *header )                                                              \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "sipsnMessageHeaderNameEquals( header, " #name " )", sipsn::IsField( header, name ) );                                                             \
        return shape.TryDecode( header );                                                                              \
    }                                                                                                                  \
    SipsnMessageHeader *prefix##Encode( Type *hdr )                                                                    \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return shape.Encode( hdr, sipsn::FieldName( name ) );                                                          \
    }                                                                                                                  \
    Type *prefix##TryDecodeFromMessage( SipsnMessage *msg )                                                            \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "msg", msg );                                                                        \
        SipsnMessageHeader *header = sipsn::PeekField( msg, name, nameNumber );                                        \
        return header && sipsn::LineCount( header ) > 0 ? shape.TryDecode( header ) : nullptr;                         \
    }                                                                                                                  \
    void prefix##EncodeToMessage( Type *hdr, SipsnMessage **msg )                                                      \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        PB_ASSERT_SLOT( msg );                                                                                         \
        sipsnMessageSetHeader( msg, pb::Ref{ prefix##Encode( hdr ) }.Get() );                                          \
    }                                                                                                                  \
    bool prefix##PresentInMessage( SipsnMessage *msg )                                                                 \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "msg", msg );                                                                        \
        return sipsn::PeekField( msg, name, nameNumber ) != nullptr;                                                   \
    }                                                                                                                  \
    void prefix##RemoveFromMessage( SipsnMessage **msg )                                                               \
    {                                                                                                                  \
        PB_ASSERT_SLOT( msg );                                                                                         \
        sipsnMessageDelHeader( msg, name );                                                                            \
    }                                                                                                                  \
    PbStore *prefix##Store( Type *hdr )                                                                                \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return sipsnMessageHeaderStoreLines( pb::Ref{ prefix##Encode( hdr ) }.Get() );                                 \
    }                                                                                                                  \
    Type *prefix##TryRestore( PbStore *store )                                                                         \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "store", store );                                                                    \
        return shape.TryDecode( pb::Ref{ sipsnMessageHeaderRestoreLines( name, store ) }.Get() );                      \
    }

// ---- The functions of a list -----------------------------------------------------------------------

// Defines what SIPSN_DECLARE_LIST declares; the list is the member `items`, and `stored( value )` gives the text that
// it keeps for a value, a new reference. SIPSN_DEFINE_LIST( SipsnHeaderVia, sipsnHeaderVia, Vias, Via, SipsnVia, via,
// sipsn___ViaEncode ) defines
//
//     sipsnHeaderViaViasLength, ...AppendVia, ...PrependVia, ...InsertVia, ...SetViaAt, ...DelViaAt
#define SIPSN_DEFINE_LIST( Type, prefix, Items, Item, Value, value, stored )                                           \
    int64_t prefix##Items##Length( Type *hdr )                                                                         \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbVectorLength( hdr->items );                                                                           \
    }                                                                                                                  \
    void prefix##Append##Item( Type **hdr, Value *value )                                                              \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorAppendString( &( *hdr )->items, text.Get() );                                                          \
    }                                                                                                                  \
    void prefix##Prepend##Item( Type **hdr, Value *value )                                                             \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorPrependString( &( *hdr )->items, text.Get() );                                                         \
    }                                                                                                                  \
    void prefix##Insert##Item( Type **hdr, int64_t index, Value *value )                                               \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorInsertString( &( *hdr )->items, index, text.Get() );                                                   \
    }                                                                                                                  \
    void prefix##Set##Item##At( Type **hdr, int64_t index, Value *value )                                              \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorSetStringAt( &( *hdr )->items, index, text.Get() );                                                    \
    }                                                                                                                  \
    void prefix##Del##Item##At( Type **hdr, int64_t index )                                                            \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorDelAt( &( *hdr )->items, index );                                                                      \
    }

// Bodies for what not all lists have, or not under the same name; `hdr` is the function's first parameter.
#define SIPSN_LIST_CLEAR( hdr )     ( PB_ASSERT_SLOT( hdr ), PB_UNSHARE( hdr ), pbVectorClear( &( *hdr )->items ) )
#define SIPSN_LIST_AT( hdr, index ) ( PB_ABORT_UNLESS( nullptr, "hdr", hdr ), pbVectorStringAt( hdr->items, index ) )
#define SIPSN_LIST_TRY_DECODE_AT( hdr, index, tryDecode )                                                              \
    ( PB_ABORT_UNLESS( nullptr, "hdr", hdr ), sipsn::TryDecodeAt( hdr->items, index, tryDecode ) )

// ---- The functions of a token set ------------------------------------------------------------------

// Defines what SIPSN_DECLARE_SET declares; the set is the member `items`, and `key( token )` asserts the token and
// gives the form that the set keeps, a new reference. SIPSN_DEFINE_SET( SipsnHeaderAllow, sipsnHeaderAllow, Methods,
// Method, method, Key ) defines
//
//     sipsnHeaderAllowMethodsLength, ...MethodAt, ...MethodsVector, ...SetMethodsVector, ...HasMethod, ...SetMethod,
//     ...DelMethod, ...ClearMethods
#define SIPSN_DEFINE_SET( Type, prefix, Items, Item, token, key )                                                      \
    int64_t prefix##Items##Length( Type *hdr )                                                                         \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictLength( hdr->items );                                                                             \
    }                                                                                                                  \
    PbString *prefix##Item##At( Type *hdr, int64_t index )                                                             \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictKeyAt( hdr->items, index );                                                                       \
    }                                                                                                                  \
    PbVector *prefix##Items##Vector( Type *hdr )                                                                       \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictKeysVector( hdr->items );                                                                         \
    }                                                                                                                  \
    bool prefix##Has##Item( Type *hdr, PbString *token )                                                               \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictHasStringKey( hdr->items, pb::Ref{ key( token ) }.Get() );                                        \
    }                                                                                                                  \
    void prefix##Set##Item( Type **hdr, PbString *token )                                                              \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref stored{ key( token ) };                                                                                \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictSetStringKey( &( *hdr )->items, stored.Get(), pbStringObj( stored.Get() ) );                             \
    }                                                                                                                  \
    void prefix##Del##Item( Type **hdr, PbString *token )                                                              \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref stored{ key( token ) };                                                                                \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictDelStringKey( &( *hdr )->items, stored.Get() );                                                          \
    }                                                                                                                  \
    void prefix##Clear##Items( Type **hdr )                                                                            \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictClear( &( *hdr )->items );                                                                               \
    }                                                                                                                  \
    void prefix##Set##Items##Vector( Type **hdr, PbVector *vec )                                                       \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        PB_ABORT_UNLESS( nullptr, "vec", vec );                                                                        \
        prefix##Clear##Items( hdr );                                                                                   \
        for( int64_t at = 0, length = pbVectorLength( vec ); at < length; ++at )                                       \
            prefix##Set##Item( hdr, pb::Ref{ pbObjToString( pb___VectorPeek( vec, at ) ) }.Get() );                    \
    }
