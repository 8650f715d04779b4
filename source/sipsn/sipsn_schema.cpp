// The schema: the descriptions of all types and families, and the functions that work by them.
#include "sipsn_schema.h"

#include "sipsn_describe.h"
#include "sipsn_header_names.h"
#include "sipsn_message.h"
#include "sipsn_message_internal.h"
#include "sipsn_message_stream_decoder.h"
#include "sipsn_token_frame.h"

#include <cstring>

#define TYPE( Type, ... ) SIPSN_DECLARE_RECORD( Type )
#include "sipsn_types.inc"
#define FAMILY( Type, ... ) SIPSN_DECLARE_SHAPE( Type )
#include "sipsn_families.inc"

namespace {

using sipsn::MemberRecord, sipsn::ShapeRecord, sipsn::TextWriter, sipsn::TypeRecord, sipsn::Wanted, sipsn::Watch;

} // namespace

// The types without members in the schema.
namespace sipsn {

#define HEADER( ... )
#define VALUE( ... )
#define OBJECT( Type )                                                                                                 \
    constexpr TypeRecord schema##Type{                                                                                 \
        .shown = { "Sipsn" #Type, 0 }, .sort = sipsn##Type##Sort, .members = nullptr, .create = nullptr, .text = {} };
#include "sipsn_types.inc"

} // namespace sipsn

namespace {

constexpr const TypeRecord *types[] = {
#define TYPE( Type, ... ) &sipsn::schema##Type,
#include "sipsn_types.inc"
};

constexpr const char *examples[] = {
// of those
#define TYPE( Type, example ) example,
#include "sipsn_types.inc"
};

// A family's own functions, and what the schema shows of it.
struct FamilyRecord
{
    const ShapeRecord *shape;
    SipsnSchemaFamily  shown;
};

const FamilyRecord families[] = {
#define FAMILY( Type, name, compact, rfc )                                                                             \
    { &sipsn::shapeOfHeader##Type,                                                                                     \
      { name, *compact ? compact : nullptr, sipsn::shapeOfHeader##Type.shape, rfc,                                     \
        &sipsn::shapeOfHeader##Type.type->shown,                                                                       \
        sipsn::shapeOfHeader##Type.itemType ? &sipsn::shapeOfHeader##Type.itemType->shown : nullptr } },
#include "sipsn_families.inc"
};

// By the names of the fields; the register has them in the order in which they start.
const auto familiesByName = [] {
    std::array< const FamilyRecord *, std::size( families ) > sorted;
    std::ranges::transform( families, sorted.begin(), []( const FamilyRecord &family ) { return &family; } );
    std::ranges::sort( sorted, {}, []( auto *family ) { return std::string_view{ family->shown.name }; } );
    return sorted;
}();

// What the interface shows stands first in the records.
const TypeRecord &RecordOf( const SipsnSchemaType *type )
{
    static_assert( offsetof( TypeRecord, shown ) == 0 );
    PB_ASSERT( type );
    return *reinterpret_cast< const TypeRecord * >( type );
}

const ShapeRecord &ShapeOf( const SipsnSchemaFamily *family )
{
    PB_ASSERT( family );
    const auto found =
        std::ranges::find( families, family, []( const FamilyRecord &record ) { return &record.shown; } );
    PB_ASSERT( found != std::end( families ) );
    return *found->shape;
}

const TypeRecord *FindRecord( PbSort *sort )
{
    const auto found = std::ranges::find( types, sort, []( auto *type ) { return type->sort(); } );
    return found == std::end( types ) ? nullptr : *found;
}

const TypeRecord &RecordOf( PbObj *obj )
{
    PB_ASSERT( obj );
    const TypeRecord *type = FindRecord( obj->sort );
    PB_ASSERT( type );
    return *type;
}

const MemberRecord &MemberOf( PbObj *obj, int64_t member )
{
    const TypeRecord &type = RecordOf( obj );
    PB_ASSERT( member >= 0 && member < type.shown.memberCount );
    return type.members[ member ];
}

bool IsString( PbObj *obj ) { return obj && obj->sort == pbStringSort(); }

PbString *AsString( PbObj *obj ) { return reinterpret_cast< PbString * >( obj ); }

} // namespace

// ---- What there is ---------------------------------------------------------------------------------

int64_t sipsnSchemaTypesLength( void ) { return std::size( types ); }

const SipsnSchemaType *sipsnSchemaTypeAt( int64_t index )
{
    PB_ASSERT( index >= 0 && index < sipsnSchemaTypesLength() );
    return &types[ index ]->shown;
}

const SipsnSchemaType *sipsnSchemaTypeByName( const char *name )
{
    PB_ASSERT( name );
    const auto found = std::ranges::find( types, std::string_view{ name },
                                          []( auto *type ) { return std::string_view{ type->shown.name }; } );
    return found == std::end( types ) ? nullptr : &( *found )->shown;
}

const char *sipsnSchemaExample( const SipsnSchemaType *type )
{
    PB_ASSERT( type );
    return examples[ std::ranges::find( types, &RecordOf( type ) ) - std::begin( types ) ];
}

const SipsnSchemaType *sipsnSchemaTypeOf( PbObj *obj ) { return &RecordOf( obj ).shown; }

int64_t sipsnSchemaFamiliesLength( void ) { return std::size( families ); }

const SipsnSchemaFamily *sipsnSchemaFamilyAt( int64_t index )
{
    PB_ASSERT( index >= 0 && index < sipsnSchemaFamiliesLength() );
    return &familiesByName[ size_t( index ) ]->shown;
}

const SipsnSchemaFamily *sipsnSchemaFamilyByName( PbString *name )
{
    PB_ASSERT( name );
    const auto token = sipsn::ScanHeaderName( name->chs, name->length );
    if( token.length != name->length || token.number < 0 ) return nullptr;
    const auto canonical = sipsn::headerNames[ token.number ];
    const auto found     = std::ranges::find(
            families, canonical, []( const FamilyRecord &family ) { return std::string_view{ family.shown.name }; } );
    return found == std::end( families ) ? nullptr : &found->shown;
}

const SipsnSchemaMember *sipsnSchemaMemberAt( const SipsnSchemaType *type, int64_t member )
{
    PB_ASSERT( type );
    PB_ASSERT( member >= 0 && member < type->memberCount );
    return &RecordOf( type ).members[ member ].shown;
}

int64_t sipsnSchemaMemberIndex( const SipsnSchemaType *type, const char *name )
{
    PB_ASSERT( type );
    PB_ASSERT( name );
    for( int64_t member = 0; member < type->memberCount; ++member )
        if( std::strcmp( sipsnSchemaMemberAt( type, member )->name, name ) == 0 ) return member;
    return -1;
}

// ---- Members of an object --------------------------------------------------------------------------

int64_t sipsnSchemaNumber( PbObj *obj, int64_t member )
{
    const MemberRecord &record = MemberOf( obj, member );
    PB_ASSERT( record.number );
    return record.number( obj );
}

PbObj *sipsnSchemaObject( PbObj *obj, int64_t member )
{
    const MemberRecord &record = MemberOf( obj, member );
    PB_ASSERT( record.object );
    return record.object( obj );
}

bool sipsnSchemaHas( PbObj *obj, int64_t member )
{
    const MemberRecord &record = MemberOf( obj, member );
    if( record.object ) return bool( pb::Ref{ record.object( obj ) } );
    return record.number( obj ) != ( record.shown.kind == SIPSN_SCHEMA_KIND_FLAG ? 0 : -1 );
}

bool sipsnSchemaTrySetNumber( PbObj **obj, int64_t member, int64_t number )
{
    PB_ASSERT_SLOT( obj );
    const MemberRecord &record = MemberOf( *obj, member );
    PB_ASSERT( record.trySetNumber );
    return record.trySetNumber( obj, number );
}

bool sipsnSchemaTrySetObject( PbObj **obj, int64_t member, PbObj *value )
{
    PB_ASSERT_SLOT( obj );
    const MemberRecord &record = MemberOf( *obj, member );
    PB_ASSERT( record.trySetObject );
    return record.trySetObject( obj, value );
}

bool sipsnSchemaTryDel( PbObj **obj, int64_t member )
{
    PB_ASSERT_SLOT( obj );
    const MemberRecord &record = MemberOf( *obj, member );
    if( !record.del ) return false;
    record.del( obj );
    return true;
}

PbObj *sipsnSchemaCreate( const SipsnSchemaType *type )
{
    const TypeRecord &record = RecordOf( type );
    PB_ASSERT( type->memberCount > 0 );
    return record.create();
}

bool sipsnSchemaComplete( PbObj *obj )
{
    for( int64_t member = 0; member < RecordOf( obj ).shown.memberCount; ++member )
        if( !MemberOf( obj, member ).shown.optional && !sipsnSchemaHas( obj, member ) ) return false;
    const auto isWhole = RecordOf( obj ).isWhole;
    return !isWhole || isWhole( obj );
}

// ---- Text ------------------------------------------------------------------------------------------

bool sipsnSchemaHasText( const SipsnSchemaType *type ) { return RecordOf( type ).text.tryDecode != nullptr; }

PbObj *sipsnSchemaTryDecode( const SipsnSchemaType *type, PbString *text )
{
    PB_ASSERT( sipsnSchemaHasText( type ) );
    PB_ASSERT( text );
    return RecordOf( type ).text.tryDecode( text->chs, text->length );
}

PbString *sipsnSchemaEncode( PbObj *value )
{
    PB_ASSERT( sipsnSchemaHasText( sipsnSchemaTypeOf( value ) ) );
    return RecordOf( value ).text.encode( value );
}

PbObj *sipsnSchemaTryDecodeHeader( const SipsnSchemaFamily *family, SipsnMessageHeader *header )
{
    return ShapeOf( family ).tryDecode( header );
}

SipsnMessageHeader *sipsnSchemaEncodeHeader( const SipsnSchemaFamily *family, PbObj *hdr )
{
    PB_ASSERT( hdr );
    PB_ASSERT( sipsnSchemaTypeOf( hdr ) == family->type );
    return ShapeOf( family ).encode( hdr );
}

// ---- Why not ---------------------------------------------------------------------------------------

namespace {

void WriteQuoted( TextWriter &out, auto write )
{
    out.Char( '"' );
    write();
    out.Char( '"' );
}

// "a host" and "the host", or "\";\"".
void WriteWanted( TextWriter &out, const Wanted &wanted, bool known )
{
    if( wanted.kind == Wanted::literal || wanted.kind == Wanted::separator )
        return WriteQuoted( out, [ & ] { out.Ascii( wanted.words ); } );
    std::string_view words = wanted.words;
    if( known ) {
        out.Ascii( "the " );
        if( words.starts_with( "a " ) || words.starts_with( "an " ) ) words.remove_prefix( words.find( ' ' ) + 1 );
    }
    out.Ascii( words );
}

// " (0 to 255)", where there are such limits.
void WriteLimits( TextWriter &out, int64_t lowest, int64_t highest )
{
    if( highest < lowest || highest == INT64_MAX ) return;
    out.Ascii( " (" );
    out.Int( lowest );
    out.Ascii( " to " );
    out.Int( highest );
    out.Char( ')' );
}

void WriteReason( TextWriter &out, const Watch &watch )
{
    if( watch.refused ) {
        WriteQuoted( out, [ & ] { out.Chars( watch.refused.chs, watch.refused.length ); } );
        out.Ascii( " is not " );
        WriteWanted( out, watch.wanted[ 0 ], false );
        return WriteLimits( out, watch.lowest, watch.highest );
    }
    out.Ascii( "expected " );
    for( size_t at = 0; at < watch.wantedCount; ++at ) {
        if( at > 0 ) out.Ascii( at + 1 < watch.wantedCount ? ", " : " or " );
        WriteWanted( out, watch.wanted[ at ], false );
    }
    if( watch.before.words.empty() ) return;
    out.Ascii( " after " );
    WriteWanted( out, watch.before, true );
}

PbString *Reason( const Watch &watch, PbString *text, int64_t *place )
{
    PB_ASSERT( watch.wantedCount > 0 );
    if( place ) *place = ( watch.refused ? watch.refused.chs : watch.farthest ) - text->chs;
    return sipsn::TextOf( [ & ]( TextWriter &out ) { WriteReason( out, watch ); } );
}

} // namespace

PbString *sipsnSchemaWhyNot( const SipsnSchemaType *type, PbString *text, int64_t *place )
{
    PB_ASSERT( sipsnSchemaHasText( type ) );
    PB_ASSERT( text );
    Watch watch;
    if( RecordOf( type ).text.watch( { text->chs, text->length }, watch ) ) return nullptr;
    return Reason( watch, text, place );
}

PbString *sipsnSchemaWhyNotLine( const SipsnSchemaFamily *family, PbString *line, int64_t *place )
{
    PB_ASSERT( line );
    Watch watch;
    if( ShapeOf( family ).watchLine( { line->chs, line->length }, watch ) ) return nullptr;
    return Reason( watch, line, place );
}

// ---- What members keep of values from outside ------------------------------------------------------

PbString *sipsn::TryStoreText( PbObj *given, const TextRule &rule )
{
    if( !IsString( given ) ) return nullptr;
    PbString *text = AsString( given );
    return sipsnMessageHeaderLineOk( text ) && rule.ok( text ) ? rule.normal( text ) : nullptr;
}

PbObj *sipsn::TryStoreObject( PbObj *given, PbSort *sort )
{
    return given && given->sort == sort ? pb::Retain( given ) : nullptr;
}

// The text of a value is kept as it is; that of a value's object, or a token, in its canonical form.
static PbString *TryStoreItem( PbObj *given, sipsn::Production *item, const sipsn::TextRule *rule,
                               const TypeRecord *type )
{
    if( rule ) return sipsn::TryStoreText( given, *rule );
    const bool isValue = given->sort == type->sort() && sipsnSchemaComplete( given );
    if( !isValue && !IsString( given ) ) return nullptr;
    pb::Ref    text{ isValue ? type->text.encode( given ) : pb::Retain( AsString( given ) ) };
    pb::Ref    value{ type->text.tryDecode( text->chs, text->length ) };
    const bool good = value && sipsn::Matches( text.Get(), item ) && sipsnMessageHeaderLineOk( text.Get() );
    return good ? text.Detach() : nullptr;
}

PbVector *sipsn::TryStoreItems( PbObj *given, Production *item, const TextRule *rule, const TypeRecord *type )
{
    if( !given || given->sort != pbVectorSort() ) return nullptr;
    PbVector *vector = reinterpret_cast< PbVector * >( given );
    pb::Ref   items{ pbVectorCreate() };
    for( int64_t at = 0, length = pbVectorLength( vector ); at < length; ++at ) {
        PbString *stored = TryStoreItem( pb___VectorPeek( vector, at ), item, rule, type );
        if( !stored ) return nullptr;
        pb___VectorAppendOwned( items.Slot(), pb::AsObj( stored ) );
    }
    return items.Detach();
}

PbDict *sipsn::TryStoreSet( PbObj *given, const TextRule &rule )
{
    pb::Ref tokens{ TryStoreItems( given, nullptr, &rule, nullptr ) };
    if( !tokens ) return nullptr;
    pb::Ref dict{ pbDictCreate() };
    for( int64_t at = 0, length = pbVectorLength( tokens.Get() ); at < length; ++at ) {
        PbString *token = AsString( pb___VectorPeek( tokens.Get(), at ) );
        pb___DictSetOwned( dict.Slot(), pb::Retain( token ), pb::AsObj( pb::Retain( token ) ) );
    }
    return dict.Detach();
}

// ---- The star --------------------------------------------------------------------------------------

PbObj *sipsn::StarItems()
{
    pb::Ref items{ pbVectorCreate() };
    pb___VectorAppendOwned( items.Slot(), pb::AsObj( pbStringCreateFromCstr( "*", -1 ) ) );
    return pb::AsObj( items.Detach() );
}

bool sipsn::IsStarItems( PbObj *given )
{
    if( !given || given->sort != pbVectorSort() ) return false;
    PbVector *vector = reinterpret_cast< PbVector * >( given );
    if( pbVectorLength( vector ) != 1 ) return false;
    PbObj *only = pb___VectorPeek( vector, 0 );
    return IsString( only ) && pbStringEqualsCstr( AsString( only ), "*", 1 );
}
