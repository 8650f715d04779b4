// Session identifiers: what is valid, and the nil identifier.
#include "sipsn_sess_uuid.h"

#include "sipsn_skip_internal.h"
#include "sipsn_token_frame.h"
#include "sipsn_token_internal.h"

static constexpr pb::ConstantString nilUuid{ "00000000000000000000000000000000" };

bool sipsnSessUuidOk( PbString *sessUuid )
{
    PB_ASSERT( sessUuid );
    return sipsn::Matches( sessUuid, sipsn___SkipSessUuid );
}

PbString *spisnSessUuidNil( void ) { return pb::Retain( nilUuid.Get() ); }

bool sipsnSessUuidIsNil( PbString *sessUuid )
{
    PB_ASSERT( sessUuid );
    return pbStringEquals( sessUuid, nilUuid.Get() );
}

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___SessUuidStartup( void ) {}
void sipsn___SessUuidShutdown( void ) {}
