// The header frame: what the header types share beyond the object frame. C++ only; never installed.
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
// and LastLine (what a form reads: Number, Params and Address of sipsn_form.h, or one of the family's own). A shape has
// TryDecode( lines ), Encode( hdr, number ), the number of the field's name, and WatchLine( line, watch ), which tells
// why a line is refused.
#pragma once

#include "sipsn_header.h"
#include "sipsn_header_internal.h"
#include "sipsn_header_names.h"
#include "sipsn_member_functions.h"
#include "sipsn_message_internal.h"
#include "sipsn_rules.h"
#include "sipsn_value_internal.h"

namespace sipsn {

// ---- Lines and names -------------------------------------------------------------------------------

inline PbString *PeekString( PbVector *vector, int64_t index )
{
    return reinterpret_cast< PbString * >( pb___VectorPeek( vector, index ) );
}

// The lines of a header field as one text: none, the line itself, or the vector's own text. Takes over the reference.
PbString *LinesToString( SipsnMessageHeader *owned );

// Whether a header field is that of a family.
inline bool IsField( SipsnMessageHeader *header, PbString *name, int64_t number )
{
    return ( header && header->number == number ) || sipsnMessageHeaderNameEquals( header, name );
}

// A text that a caller adds to a list. Values are made of checked members; still no text may ever end its line.
inline PbString *CheckedLine( PbString *owned )
{
    PB_ASSERT( sipsnMessageHeaderLineOk( owned ) );
    return owned;
}

// Reads items and separators that cover all lines of a header field; an empty line holds none. `keep( span )` takes
// each item and says whether it is a good one.
template< class Keep > bool TryDecodeItems( FieldLines &lines, Production *item, Production *separator, Keep keep )
{
    for( int64_t at = 0; at < lines.Count(); ++at ) {
        Cursor in{ lines.At( at ) };
        for( bool first = true; !in.AtEnd(); first = false ) {
            if( !first && !in.Take( separator ) ) return false;
            Span found = in.Take( item );
            if( !found || !keep( found ) ) return false;
        }
    }
    return true;
}

// An item up to the next comma that is neither quoted nor between angle brackets, without the blanks before it; and a
// whole line, whose commas belong to the value.
Production SkipListItem, SkipLine;

// Tells why a line of items is refused: what the items or, where these have a type, their values want. False when it
// is.
bool WatchItems( Span line, Production *item, Production *separator, const TextRule *rule, const TypeRecord *type,
                 Watch &watch );

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

// A header field with all items on one line; with no line when there are none. `itemAt( index )` gives a borrowed text.
template< class ItemAt >
SipsnMessageHeader *JoinedField( int64_t number, int64_t count, PbChar separator, ItemAt itemAt )
{
    if( count == 0 ) return CreateHeader( number, pbVectorCreate() );
    TextWriter out;
    for( int64_t at = 0; at < count; ++at ) {
        if( at > 0 ) out.Char( separator );
        out.Text( itemAt( at ) );
    }
    return CreateHeader( number, out.ToString() );
}

// What a table says of a header type's items: its last row.
template< class Header >
inline constexpr auto itemsRow = std::get< pb::membersOf< Header >.count - 1 >( pb::membersOf< Header >.rows );

// A vector of texts: encoded values as they were written, or tokens.
template< class Header > struct List
{
    NoLines noLines;
    Lines   written = Lines::onePerItem;

    Header *Create() const { return New< Header >(); }

    Header *TryDecode( FieldLines &lines ) const
    {
        constexpr auto row = itemsRow< Header >;
        if( noLines == NoLines::givesNull && lines.Count() == 0 ) return nullptr;
        pb::Ref    hdr{ Create() };
        const auto keep = [ & ]( Span found ) {
            if constexpr( row.decodes )
                if( !pb::Ref{ row.type->text.tryDecode( found.chs, found.length ) } ) return false;
            PbString *item = row.stored( found.chs, found.length );
            if( item ) pb___VectorAppendOwned( &( ( *hdr.Get() ).*row.member ), pb::AsObj( item ) );
            return item != nullptr;
        };
        return TryDecodeItems( lines, row.item, sipsn___SkipComma, keep ) ? hdr.Detach() : nullptr;
    }

    // The vector of one line per item is the header field's as it is.
    SipsnMessageHeader *Encode( Header *hdr, int64_t number ) const
    {
        PbVector *items = hdr->*itemsRow< Header >.member;
        if( written == Lines::onePerItem ) return CreateHeader( number, pb::Retain( items ) );
        return JoinedField( number, pbVectorLength( items ), comma.written,
                            [ & ]( int64_t at ) { return PeekString( items, at ); } );
    }

    bool WatchLine( Span line, Watch &watch ) const
    {
        constexpr auto row = itemsRow< Header >;
        return WatchItems( line, row.item, sipsn___SkipComma, row.rule, row.type, watch );
    }
};

// Puts tokens in order, each once. Few lists have more than there is room for; these have their dictionary at once.
class TokenCollector
{
public:
    TokenCollector() {}
    TokenCollector( const TokenCollector & ) = delete;
    ~TokenCollector();

    void    Add( PbString *owned );
    PbDict *ToDict();

private:
    static constexpr int64_t usual = 32;

    int64_t           count_ = 0;
    PbString         *tokens_[ usual ];
    pb::Ref< PbDict > dict_; // of more
};

// A dictionary from each token to itself: each is held once, in the order of the dictionary.
template< class Header > struct Set
{
    ItemSeparator separator = comma;

    Header *Create() const { return New< Header >(); }

    Header *TryDecode( FieldLines &lines ) const
    {
        constexpr auto row = itemsRow< Header >;
        if( lines.Count() == 0 ) return nullptr;
        TokenCollector tokens;
        const auto     keep = [ & ]( Span found ) {
            tokens.Add( row.rule->decoded( found.chs, found.length ) );
            return true;
        };
        if( !TryDecodeItems( lines, row.rule->production, separator.read, keep ) ) return nullptr;
        static_assert( pb::membersOf< Header >.count == 1 );
        Header *hdr      = pb::New< Header >();
        hdr->*row.member = tokens.ToDict();
        return hdr;
    }

    SipsnMessageHeader *Encode( Header *hdr, int64_t number ) const
    {
        PbDict *items = hdr->*itemsRow< Header >.member;
        return JoinedField( number, pbDictLength( items ), separator.written,
                            [ & ]( int64_t at ) { return pb___DictPeekKeyAt( items, at ); } );
    }

    bool WatchLine( Span line, Watch &watch ) const
    {
        constexpr auto row = itemsRow< Header >;
        return WatchItems( line, row.rule->production, separator.read, row.rule, nullptr, watch );
    }
};

// What a form reads from the last line; the lines before it do not count.
template< class Header, class Form > struct LastLine
{
    Form form{};

    Header *TryDecode( FieldLines &lines ) const
    {
        if( lines.Count() == 0 ) return nullptr;
        Cursor in{ lines.At( lines.Count() - 1 ) };
        return form.TryDecode( in );
    }

    SipsnMessageHeader *Encode( Header *hdr, int64_t number ) const
    {
        return CreateHeader( number, TextOf( [ & ]( TextWriter &out ) { form.Write( out, *hdr ); } ) );
    }

    bool WatchLine( Span line, Watch &watch ) const { return WatchForm( form, line, watch ); }
};

// The last line as it is, or in its normal form: one text, the first member of the table.
template< class Header > struct WholeLine
{
    // Takes over the reference.
    Header *Create( PbString *owned ) const { return NewWith( First().member, owned ); }

    Header *TryDecode( FieldLines &lines ) const
    {
        if( lines.Count() == 0 ) return nullptr;
        constexpr bool keepsText = First().rule->normal == &pb::Retain< PbString >;

        pb::Ref line{ lines.TextAt( lines.Count() - 1 ) };
        if( !First().rule->ok( line.Get() ) ) return nullptr;
        return Create( keepsText ? line.Detach() : First().rule->normal( line.Get() ) );
    }

    SipsnMessageHeader *Encode( Header *hdr, int64_t number ) const
    {
        return CreateHeader( number, pb::Retain( hdr->*First().member ) );
    }

    bool WatchLine( Span line, Watch &watch ) const
    {
        WatchedCursor in{ line, { &watch } };
        pb::Ref       text{ line.ToString() };
        if( First().rule->ok( text.Get() ) ) return true;
        in.Take( First().rule->production, First().rule->words );
        return in.AtEnd() && in.Refuse( line, First().rule->words );
    }

private:
    static constexpr auto First() { return std::get< 0 >( pb::membersOf< Header >.rows ); }
};

// ---- Records ---------------------------------------------------------------------------------------

// The shape of a header type and the type of its values, which the last row of its table tells.
template< class Header > constexpr const TypeRecord *ItemType()
{
    if constexpr( requires { itemsRow< Header >.type; } )
        return itemsRow< Header >.type;
    else
        return nullptr;
}
template< class Header > constexpr int64_t ShapeNumber()
{
    if( ItemType< Header >() ) return SIPSN_SCHEMA_SHAPE_LIST;
    switch( itemsRow< Header >.kind ) {
    case SIPSN_SCHEMA_KIND_LIST: return SIPSN_SCHEMA_SHAPE_TOKEN_LIST;
    case SIPSN_SCHEMA_KIND_SET: return SIPSN_SCHEMA_SHAPE_TOKEN_SET;
    default: return SIPSN_SCHEMA_SHAPE_SINGLE;
    }
}

// What the schema calls of a header type: its shape, and its own functions.
template< const auto &shape, auto tryDecode, auto encode >
constexpr ShapeRecord MakeShapeRecord( const TypeRecord &type )
{
    using Header = std::remove_pointer_t< decltype( tryDecode( nullptr ) ) >;
    return { .type      = &type,
             .tryDecode = []( SipsnMessageHeader *header ) { return pb::AsObj( tryDecode( header ) ); },
             .encode    = []( PbObj *hdr ) { return encode( reinterpret_cast< Header    *>( hdr ) ); },
             .watchLine = []( Span line, Watch &watch ) { return shape.WatchLine( line, watch ); },
             .shape     = ShapeNumber< Header >(),
             .itemType  = ItemType< Header >() };
}

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

// Defines a family's name constant and the functions that keep it. SIPSN_DEFINE_NAME( Via, "Via" ) defines
//
//     sipsn___PbsVia, sipsn___HeaderViaStartup, sipsn___HeaderViaShutdown
#define SIPSN_DEFINE_NAME( Family, text )                                                                              \
    SIPSN_DECLARE_NAME( Family )                                                                                       \
    PbString                *sipsn___Pbs##Family;                                                                      \
    static constexpr int64_t nameNumber = sipsn::HeaderNumber( text );                                                 \
    static_assert( nameNumber >= 0, "not a known name" );                                                              \
                                                                                                                       \
    /* Mostly the name that decoded header fields have. */                                                             \
    void sipsn___Header##Family##Startup( void )                                                                       \
    {                                                                                                                  \
        static constexpr pb::ConstantString own{ text };                                                               \
        constexpr bool                      isCanonical = sipsn::headerNames[ nameNumber ] == text;                    \
        sipsn___Pbs##Family                             = isCanonical ? sipsn::HeaderNameAt( nameNumber ) : own.Get(); \
    }                                                                                                                  \
    void sipsn___Header##Family##Shutdown( void ) { pb::ReleaseAndPoison( sipsn___Pbs##Family ); }

// Defines the functions of a header type behind SIPSN_DEFINE_NAME. SIPSN_DEFINE_HEADER( Via, SIPSN_HEADER_VIA, shape )
// defines SIPSN_DEFINE_TYPE for SipsnHeaderVia, its records in the schema, and
//
//     sipsnHeaderViaTryDecode, ...Encode, ...TryDecodeFromMessage, ...EncodeToMessage, ...PresentInMessage,
//     ...RemoveFromMessage, ...Store, ...TryRestore
#define SIPSN_DEFINE_HEADER( Family, SORT, shape )                                                                     \
    static PbString *LinesText( SipsnHeader##Family *hdr )                                                             \
    {                                                                                                                  \
        return sipsn::LinesToString( shape.Encode( hdr, nameNumber ) );                                                \
    }                                                                                                                  \
    SIPSN_DEFINE_TYPE( SipsnHeader##Family, sipsnHeader##Family, SORT, hdr, hdr, LinesText )                           \
                                                                                                                       \
    SIPSN_DECLARE_RECORD( Header##Family )                                                                             \
    SIPSN_DECLARE_SHAPE( Family )                                                                                      \
    constexpr sipsn::TypeRecord sipsn::schemaHeader##Family =                                                          \
        sipsn::MakeTypeRecord< SipsnHeader##Family >( "SipsnHeader" #Family );                                         \
    constexpr sipsn::ShapeRecord sipsn::shapeOfHeader##Family =                                                        \
        sipsn::MakeShapeRecord< shape, sipsnHeader##Family##TryDecode, sipsnHeader##Family##Encode >(                  \
            sipsn::schemaHeader##Family );                                                                             \
                                                                                                                       \
    SipsnHeader##Family *sipsnHeader##Family##TryDecode( SipsnMessageHeader *header )                                  \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "sipsnMessageHeaderNameEquals( header, sipsn___Pbs" #Family " )",                    \
                         sipsn::IsField( header, sipsn___Pbs##Family, nameNumber ) );                                  \
        sipsn::FieldLines lines{ header };                                                                             \
        return shape.TryDecode( lines );                                                                               \
    }                                                                                                                  \
    SipsnMessageHeader *sipsnHeader##Family##Encode( SipsnHeader##Family *hdr )                                        \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return shape.Encode( hdr, nameNumber );                                                                        \
    }                                                                                                                  \
    SipsnHeader##Family *sipsnHeader##Family##TryDecodeFromMessage( SipsnMessage *msg )                                \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "msg", msg );                                                                        \
        if( !sipsn::HasKnown( msg->fragment, nameNumber ) ) return nullptr;                                            \
        sipsn::FieldLines lines{ msg->fragment, nameNumber };                                                          \
        return lines.Count() > 0 ? shape.TryDecode( lines ) : nullptr;                                                 \
    }                                                                                                                  \
    void sipsnHeader##Family##EncodeToMessage( SipsnHeader##Family *hdr, SipsnMessage **msg )                          \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        PB_ASSERT_SLOT( msg );                                                                                         \
        sipsnMessageSetHeader( msg, pb::Ref{ sipsnHeader##Family##Encode( hdr ) }.Get() );                             \
    }                                                                                                                  \
    bool sipsnHeader##Family##PresentInMessage( SipsnMessage *msg )                                                    \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "msg", msg );                                                                        \
        return sipsn::HasKnown( msg->fragment, nameNumber );                                                           \
    }                                                                                                                  \
    void sipsnHeader##Family##RemoveFromMessage( SipsnMessage **msg )                                                  \
    {                                                                                                                  \
        PB_ASSERT_SLOT( msg );                                                                                         \
        sipsnMessageDelHeader( msg, sipsn___Pbs##Family );                                                             \
    }                                                                                                                  \
    PbStore *sipsnHeader##Family##Store( SipsnHeader##Family *hdr )                                                    \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return sipsnMessageHeaderStoreLines( pb::Ref{ sipsnHeader##Family##Encode( hdr ) }.Get() );                    \
    }                                                                                                                  \
    SipsnHeader##Family *sipsnHeader##Family##TryRestore( PbStore *store )                                             \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "store", store );                                                                    \
        pb::Ref           header{ sipsnMessageHeaderRestoreLines( sipsn___Pbs##Family, store ) };                      \
        sipsn::FieldLines lines{ header.Get() };                                                                       \
        return shape.TryDecode( lines );                                                                               \
    }

// All of a header type whose lines a form of sipsn_form.h reads, but for the functions of its members.
#define SIPSN_SINGLE_HEADER( Family, text, SORT, Form )                                                                \
    SIPSN_DEFINE_NAME( Family, text )                                                                                  \
    static constexpr sipsn::LastLine< SipsnHeader##Family, Form< SipsnHeader##Family > > shape{};                      \
    SIPSN_DEFINE_HEADER( Family, SORT, shape )

// All of one that is a list, one item a line, but for the functions of the list.
#define SIPSN_LIST_HEADER( Family, text, SORT, noLines )                                                               \
    SIPSN_DEFINE_NAME( Family, text )                                                                                  \
    static constexpr sipsn::List< SipsnHeader##Family > shape{ sipsn::NoLines::noLines };                              \
    SIPSN_DEFINE_HEADER( Family, SORT, shape )

// ---- The functions of a list -----------------------------------------------------------------------

// Defines the functions of a list (sipsn_header.h), which is the member `items`, and `stored( value )` gives the text
// that it keeps for a value, a new reference. SIPSN_DEFINE_LIST( Via, Vias, Via, SipsnVia, via, sipsn___ViaEncode )
// defines
//
//     sipsnHeaderViaViasLength, ...AppendVia, ...PrependVia, ...InsertVia, ...SetViaAt, ...DelViaAt
#define SIPSN_DEFINE_LIST( Family, Items, Item, Value, value, stored )                                                 \
    int64_t sipsnHeader##Family##Items##Length( SipsnHeader##Family *hdr )                                             \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbVectorLength( hdr->items );                                                                           \
    }                                                                                                                  \
    void sipsnHeader##Family##Append##Item( SipsnHeader##Family **hdr, Value *value )                                  \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorAppendString( &( *hdr )->items, text.Get() );                                                          \
    }                                                                                                                  \
    void sipsnHeader##Family##Prepend##Item( SipsnHeader##Family **hdr, Value *value )                                 \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorPrependString( &( *hdr )->items, text.Get() );                                                         \
    }                                                                                                                  \
    void sipsnHeader##Family##Insert##Item( SipsnHeader##Family **hdr, int64_t index, Value *value )                   \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorInsertString( &( *hdr )->items, index, text.Get() );                                                   \
    }                                                                                                                  \
    void sipsnHeader##Family##Set##Item##At( SipsnHeader##Family **hdr, int64_t index, Value *value )                  \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref text{ sipsn::CheckedLine( stored( value ) ) };                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbVectorSetStringAt( &( *hdr )->items, index, text.Get() );                                                    \
    }                                                                                                                  \
    void sipsnHeader##Family##Del##Item##At( SipsnHeader##Family **hdr, int64_t index )                                \
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

// All functions of a list of values or of texts, whose member is `items`. The first says `SipsnPath *` where the list
// holds values of that type; the second wants what makes a text an item.
//
//     SIPSN_VALUES( Path, Routes, Route, Route, route )
//     SIPSN_TEXTS( ContentLanguage, Languages, Language, language, sipsnLanguageTagOk )
#define SIPSN_VALUES( Family, Items, Item, Value, value )                                                              \
    SIPSN_DEFINE_LIST( Family, Items, Item, Sipsn##Value, value, sipsn___##Value##Encode )                             \
    SIPSN_CREATE( Header##Family )                                                                                     \
    void          sipsnHeader##Family##Clear##Items( SipsnHeader##Family **hdr ) { SIPSN_LIST_CLEAR( hdr ); }          \
    Sipsn##Value *sipsnHeader##Family##TryDecode##Item##At( SipsnHeader##Family *hdr, int64_t index )                  \
    {                                                                                                                  \
        return SIPSN_LIST_TRY_DECODE_AT( hdr, index, sipsn___##Value##TryDecode );                                     \
    }
#define SIPSN_TEXTS( Family, Items, Item, item, Ok )                                                                   \
    static PbString *Stored( PbString *item )                                                                          \
    {                                                                                                                  \
        PB_ASSERT( Ok( item ) );                                                                                       \
        return sipsn::itemsRow< SipsnHeader##Family >.rule->normal( item );                                            \
    }                                                                                                                  \
    SIPSN_DEFINE_LIST( Family, Items, Item, PbString, item, Stored )                                                   \
    SIPSN_CREATE( Header##Family )                                                                                     \
    void      sipsnHeader##Family##Clear##Items( SipsnHeader##Family **hdr ) { SIPSN_LIST_CLEAR( hdr ); }              \
    PbString *sipsnHeader##Family##Item##At( SipsnHeader##Family *hdr, int64_t index )                                 \
    {                                                                                                                  \
        return SIPSN_LIST_AT( hdr, index );                                                                            \
    }

// ---- The functions of a token set ------------------------------------------------------------------

// Defines the functions of a set (sipsn_header.h), which is the member `items`, and `key( token )` asserts the token
// and gives the form that the set keeps, a new reference. SIPSN_DEFINE_SET( Allow, Methods, Method, method, Key )
// defines
//
//     sipsnHeaderAllowMethodsLength, ...MethodAt, ...MethodsVector, ...SetMethodsVector, ...HasMethod, ...SetMethod,
//     ...DelMethod, ...ClearMethods
#define SIPSN_DEFINE_SET( Family, Items, Item, token, key )                                                            \
    int64_t sipsnHeader##Family##Items##Length( SipsnHeader##Family *hdr )                                             \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictLength( hdr->items );                                                                             \
    }                                                                                                                  \
    PbString *sipsnHeader##Family##Item##At( SipsnHeader##Family *hdr, int64_t index )                                 \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictKeyAt( hdr->items, index );                                                                       \
    }                                                                                                                  \
    PbVector *sipsnHeader##Family##Items##Vector( SipsnHeader##Family *hdr )                                           \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictKeysVector( hdr->items );                                                                         \
    }                                                                                                                  \
    bool sipsnHeader##Family##Has##Item( SipsnHeader##Family *hdr, PbString *token )                                   \
    {                                                                                                                  \
        PB_ABORT_UNLESS( nullptr, "hdr", hdr );                                                                        \
        return pbDictHasStringKey( hdr->items, pb::Ref{ key( token ) }.Get() );                                        \
    }                                                                                                                  \
    void sipsnHeader##Family##Set##Item( SipsnHeader##Family **hdr, PbString *token )                                  \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref stored{ key( token ) };                                                                                \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictSetStringKey( &( *hdr )->items, stored.Get(), pbStringObj( stored.Get() ) );                             \
    }                                                                                                                  \
    void sipsnHeader##Family##Del##Item( SipsnHeader##Family **hdr, PbString *token )                                  \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        pb::Ref stored{ key( token ) };                                                                                \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictDelStringKey( &( *hdr )->items, stored.Get() );                                                          \
    }                                                                                                                  \
    void sipsnHeader##Family##Clear##Items( SipsnHeader##Family **hdr )                                                \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        PB_UNSHARE( hdr );                                                                                             \
        pbDictClear( &( *hdr )->items );                                                                               \
    }                                                                                                                  \
    void sipsnHeader##Family##Set##Items##Vector( SipsnHeader##Family **hdr, PbVector *vec )                           \
    {                                                                                                                  \
        PB_ASSERT_SLOT( hdr );                                                                                         \
        PB_ABORT_UNLESS( nullptr, "vec", vec );                                                                        \
        sipsnHeader##Family##Clear##Items( hdr );                                                                      \
        for( int64_t at = 0, length = pbVectorLength( vec ); at < length; ++at )                                       \
            sipsnHeader##Family##Set##Item( hdr, pb::Ref{ pbObjToString( pb___VectorPeek( vec, at ) ) }.Get() );       \
    }
