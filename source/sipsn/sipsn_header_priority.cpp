// SipsnHeaderPriority: the Priority header field, RFC 3261 section 20.26.
#include "sipsn_header_priority.h"

#include "sipsn_header_frame.h"

namespace sipsn::rule {

static constexpr TextRule priorityValue{
    .words = "a priority", .ok = sipsnPriorityValueOk, .production = sipsn___SkipPriorityValue, .normal = ToLower };

} // namespace sipsn::rule

struct SipsnHeaderPriority
{
    PbObj     obj;
    PbString *priorityValue;

    static constexpr auto Members()
    {
        return pb::Members{
            sipsn::Text( "priorityValue", &SipsnHeaderPriority::priorityValue, sipsn::rule::priorityValue ),
        };
    }
};

SIPSN_DEFINE_NAME( Priority, "Priority" )

static constexpr sipsn::WholeLine< SipsnHeaderPriority > shape{};

SIPSN_DEFINE_HEADER( Priority, SIPSN_HEADER_PRIORITY, shape )

static constexpr pb::ConstantString emergency{ "emergency" };
static constexpr pb::ConstantString urgent{ "urgent" };
static constexpr pb::ConstantString normal{ "normal" };
static constexpr pb::ConstantString nonUrgent{ "non-urgent" };

SipsnHeaderPriority *sipsnHeaderPriorityCreate( PbString *priorityValue )
{
    PB_ASSERT( sipsnPriorityValueOk( priorityValue ) );
    return shape.Create( sipsnPriorityValueNormalize( priorityValue ) );
}

SipsnHeaderPriority *sipsnHeaderPriorityCreateEmergency( void ) { return sipsnHeaderPriorityCreate( emergency.Get() ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateUrgent( void ) { return sipsnHeaderPriorityCreate( urgent.Get() ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateNormal( void ) { return sipsnHeaderPriorityCreate( normal.Get() ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateNonUrgent( void ) { return sipsnHeaderPriorityCreate( nonUrgent.Get() ); }

PbString *sipsnHeaderPriorityPriorityValue( SipsnHeaderPriority *hdr ) { return PB_GET( hdr, priorityValue ); }
void      sipsnHeaderPrioritySetPriorityValue( SipsnHeaderPriority **hdr, PbString *priorityValue )
{
    PB_SET( hdr, priorityValue, sipsnPriorityValueOk( priorityValue ), sipsnPriorityValueNormalize( priorityValue ) );
}

// Stored values are in lower case, as the named ones are.
static bool Holds( SipsnHeaderPriority *hdr, PbString *named )
{
    PB_ASSERT( hdr );
    return pbStringEquals( hdr->priorityValue, named );
}

bool sipsnHeaderPriorityIsEmergency( SipsnHeaderPriority *hdr ) { return Holds( hdr, emergency.Get() ); }
bool sipsnHeaderPriorityIsUrgent( SipsnHeaderPriority *hdr ) { return Holds( hdr, urgent.Get() ); }
bool sipsnHeaderPriorityIsNormal( SipsnHeaderPriority *hdr ) { return Holds( hdr, normal.Get() ); }
bool sipsnHeaderPriorityIsNonUrgent( SipsnHeaderPriority *hdr ) { return Holds( hdr, nonUrgent.Get() ); }

void sipsnHeaderPrioritySetEmergency( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, emergency.Get() );
}

void sipsnHeaderPrioritySetUrgent( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, urgent.Get() );
}
void sipsnHeaderPrioritySetNormal( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, normal.Get() );
}
void sipsnHeaderPrioritySetNonUrgent( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, nonUrgent.Get() );
}
