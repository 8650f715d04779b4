// The header frame: the parts that are no templates.
#include "sipsn_header_frame.h"

#include "sipsn_header_internal.h"

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

// All constants are canonical but that of User-to-User.
PbString *FieldName( PbString *name )
{
    return name == sipsn___PbsUserToUser ? sipsnMessageHeaderNameNormalize( name ) : pb::Retain( name );
}

SipsnMessageHeader *PeekField( SipsnMessage *msg, PbString *name, int64_t number )
{
    if( !MayHold( msg->fragment, number ) ) return nullptr;
    if( name != sipsn___PbsUserToUser ) return PeekHeader( msg->fragment, name );
    return PeekHeader( msg->fragment, pb::Ref{ FieldName( name ) }.Get() );
}

void CreateName( PbString *&constant, const char *text )
{
    constant = nullptr;
    constant = pbStringCreateFromCstr( text, -1 );
    ShareHeaderName( constant );
}

} // namespace sipsn
