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

SIPSN_DEFINE_NAME_CONSTANT( Priority, "Priority" )

static constexpr sipsn::WholeLine< SipsnHeaderPriority > shape{};

SIPSN_DEFINE_HEADER( Priority, SIPSN_HEADER_PRIORITY, shape )

static PbString *emergency;
static PbString *urgent;
static PbString *normal;
static PbString *nonUrgent;

SipsnHeaderPriority *sipsnHeaderPriorityCreate( PbString *priorityValue )
{
    PB_ASSERT( sipsnPriorityValueOk( priorityValue ) );
    return shape.Create( sipsnPriorityValueNormalize( priorityValue ) );
}

SipsnHeaderPriority *sipsnHeaderPriorityCreateEmergency( void ) { return sipsnHeaderPriorityCreate( emergency ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateUrgent( void ) { return sipsnHeaderPriorityCreate( urgent ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateNormal( void ) { return sipsnHeaderPriorityCreate( normal ); }
SipsnHeaderPriority *sipsnHeaderPriorityCreateNonUrgent( void ) { return sipsnHeaderPriorityCreate( nonUrgent ); }

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

bool sipsnHeaderPriorityIsEmergency( SipsnHeaderPriority *hdr ) { return Holds( hdr, emergency ); }
bool sipsnHeaderPriorityIsUrgent( SipsnHeaderPriority *hdr ) { return Holds( hdr, urgent ); }
bool sipsnHeaderPriorityIsNormal( SipsnHeaderPriority *hdr ) { return Holds( hdr, normal ); }
bool sipsnHeaderPriorityIsNonUrgent( SipsnHeaderPriority *hdr ) { return Holds( hdr, nonUrgent ); }

void sipsnHeaderPrioritySetEmergency( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, emergency );
}

void sipsnHeaderPrioritySetUrgent( SipsnHeaderPriority **hdr ) { sipsnHeaderPrioritySetPriorityValue( hdr, urgent ); }
void sipsnHeaderPrioritySetNormal( SipsnHeaderPriority **hdr ) { sipsnHeaderPrioritySetPriorityValue( hdr, normal ); }
void sipsnHeaderPrioritySetNonUrgent( SipsnHeaderPriority **hdr )
{
    sipsnHeaderPrioritySetPriorityValue( hdr, nonUrgent );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___HeaderPriorityStartup( void )
{
    sipsn::CreateName( sipsn___PbsPriority, "Priority" );
    emergency = nullptr;
    urgent    = nullptr;
    normal    = nullptr;
    nonUrgent = nullptr;
    emergency = pbStringCreateFromCstr( "emergency", -1 );
    urgent    = pbStringCreateFromCstr( "urgent", -1 );
    normal    = pbStringCreateFromCstr( "normal", -1 );
    nonUrgent = pbStringCreateFromCstr( "non-urgent", -1 );
}

void sipsn___HeaderPriorityShutdown( void )
{
    sipsn::DropName( sipsn___PbsPriority );
    pb::ReleaseAndPoison( emergency );
    pb::ReleaseAndPoison( urgent );
    pb::ReleaseAndPoison( normal );
    pb::ReleaseAndPoison( nonUrgent );
}
