// The header frame: the parts that are not templates.
#include "sipsn_header_frame.h"

#include "pb/pb_dict_tree.h"

namespace sipsn {

PbString *LinesToString( SipsnMessageHeader *owned )
{
    pb::Ref header{ owned };
    switch( LineCount( owned ) ) {
    case 0: return pbStringCreate();
    case 1: return pb::Retain( PeekLine( owned, 0 ) );
    default: return pbVectorToString( owned->linesVector );
    }
}

TokenCollector::~TokenCollector()
{
    for( int64_t at = 0; at < count_; ++at ) pb::Release( tokens_[ at ] );
}

void TokenCollector::Add( PbString *owned )
{
    if( dict_ || count_ == usual ) {
        if( !dict_ ) dict_ = pb::Ref{ ToDict() };
        pb___DictSetOwned( dict_.Slot(), owned, pb::AsObj( pb::Retain( owned ) ) );
        return;
    }
    int64_t at = count_;
    for( ; at > 0; --at ) {
        const int order = pb::CompareKeys( owned, tokens_[ at - 1 ] );
        if( order == 0 ) return pb::Release( owned );
        if( order > 0 ) break;
    }
    for( int64_t behind = count_++; behind > at; --behind ) tokens_[ behind ] = tokens_[ behind - 1 ];
    tokens_[ at ] = owned;
}

PbDict *TokenCollector::ToDict()
{
    if( dict_ ) return dict_.Detach();
    PbDict *dict = pb___DictCreateWithCapacity( count_ );
    for( int64_t at = 0; at < count_; ++at )
        pb___DictAppendOwned( &dict, tokens_[ at ], pb::AsObj( pb::Retain( tokens_[ at ] ) ) );
    count_ = 0;
    return dict;
}

int64_t SkipListItem( const PbChar *chs, int64_t length )
{
    int64_t end = 0; // behind what is not a blank
    for( int64_t n = 0; n < length && chs[ n ] != ','; ) {
        int64_t count = 1;
        if( chs[ n ] == '"' ) count = sipsn___SkipQuotedString( chs + n, length - n );
        if( chs[ n ] == '<' ) count = std::find( chs + n, chs + length - 1, '>' ) + 1 - ( chs + n );
        if( count == 0 ) return 0;
        n += count;
        if( !Is( chs[ n - 1 ], Lws ) ) end = n;
    }
    return end;
}

int64_t SkipLine( const PbChar *, int64_t length ) { return length; }

// An item is what the header field takes for one; a value is then looked into. Where no item ends with a separator, the
// value says what it would have taken: it may come farther than the item did.
bool WatchItems( Span line, Production *item, Production *separator, const TextRule *rule, const TypeRecord *type,
                 Watch &watch )
{
    WatchedCursor in{ line, { &watch } };
    for( bool first = true; !in.AtEnd(); first = false ) {
        if( !first && !in.Take( separator ) ) return false;
        const Span rest = in.Rest();
        if( rule ) {
            const Span found = in.Take( item, rule->words );
            if( !found ) return false;
            if( !pb::Ref{ rule->decoded( found.chs, found.length ) } ) return in.Refuse( found, rule->words );
            continue;
        }
        const Span found  = Cursor{ rest }.Take( item );
        Cursor     behind = Cursor{ rest };
        behind.Take( item );
        if( !found || ( !behind.AtEnd() && !behind.Sees( separator ) ) ) {
            type->text.watch( rest, watch );
            return false;
        }
        if( !type->text.watch( found, watch ) ) return false;
        in = WatchedCursor{ behind.Rest(), { &watch } };
    }
    return true;
}

} // namespace sipsn
