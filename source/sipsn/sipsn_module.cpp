// The module object: what the library is, and the order in which its files create and release their constants.
#include "sipsn_module.h"

#include "sipsn_header_internal.h"
#include "sipsn_internal.h"
#include "sipsn_message_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

#include "product.h"

#define FAMILY( Type, ... ) SIPSN_DECLARE_NAME( Type )
#include "sipsn_families.inc"

static void Startup()
{
#define FAMILY( Type, ... ) sipsn___Header##Type##Startup();
#include "sipsn_families.inc"
    sipsn___MessageHeaderStartup();
    sipsn___SessUuidStartup();
    sipsn___UuiValueStartup();
    sipsn___VersionStartup();
    sipsn___ViaStartup();
    sipsn___UriStartup();
    sipsn___MessageFragmentStartup();
}

// Not the reverse of start-up: what started last goes first, and all else in the order of start-up.
static void Shutdown()
{
    sipsn___MessageFragmentShutdown();
    sipsn___SessUuidShutdown();
    sipsn___UuiValueShutdown();
    sipsn___VersionShutdown();
    sipsn___ViaShutdown();
    sipsn___UriShutdown();
    sipsn___MessageHeaderShutdown();
#define FAMILY( Type, ... ) sipsn___Header##Type##Shutdown();
#include "sipsn_families.inc"
}

PB_DEFINE_MODULE( sipsn, "SIP Syntax", "0.0", "in iri pb", Startup, Shutdown )

PbModule *sipsnModule( void ) { return &sipsn___module; }
