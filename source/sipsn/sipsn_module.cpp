// The module object: what the library is, and the order in which its files create and release their constants.
#include "sipsn_module.h"

#include "sipsn_header_internal.h"
#include "sipsn_internal.h"
#include "sipsn_message_internal.h"
#include "sipsn_token_internal.h"
#include "sipsn_value_internal.h"

#include "product.h"

// The header types, in the order in which they start and in which they stop: that of their names, but for Accept, which
// comes behind its two longer names, and Session-Expires, which comes behind Session-Id.
static void StartHeaders()
{
    sipsn___HeaderAcceptEncodingStartup();
    sipsn___HeaderAcceptResourcePriorityStartup();
    sipsn___HeaderAcceptStartup();
    sipsn___HeaderAlertInfoStartup();
    sipsn___HeaderAllowStartup();
    sipsn___HeaderAllowEventsStartup();
    sipsn___HeaderCallIdStartup();
    sipsn___HeaderCallInfoStartup();
    sipsn___HeaderContactStartup();
    sipsn___HeaderContentDispositionStartup();
    sipsn___HeaderContentEncodingStartup();
    sipsn___HeaderCseqStartup();
    sipsn___HeaderDateStartup();
    sipsn___HeaderDiversionStartup();
    sipsn___HeaderErrorInfoStartup();
    sipsn___HeaderEventStartup();
    sipsn___HeaderExpiresStartup();
    sipsn___HeaderFromStartup();
    sipsn___HeaderHistoryInfoStartup();
    sipsn___HeaderInReplyToStartup();
    sipsn___HeaderMaxForwardsStartup();
    sipsn___HeaderMinExpiresStartup();
    sipsn___HeaderMinSeStartup();
    sipsn___HeaderOrganizationStartup();
    sipsn___HeaderPAssertedIdentityStartup();
    sipsn___HeaderPCalledPartyIdStartup();
    sipsn___HeaderPEarlyMediaStartup();
    sipsn___HeaderPPreferredIdentityStartup();
    sipsn___HeaderPriorityStartup();
    sipsn___HeaderPrivacyStartup();
    sipsn___HeaderProxyRequireStartup();
    sipsn___HeaderRackStartup();
    sipsn___HeaderReasonStartup();
    sipsn___HeaderRecordRouteStartup();
    sipsn___HeaderReferToStartup();
    sipsn___HeaderReferredByStartup();
    sipsn___HeaderRemotePartyIdStartup();
    sipsn___HeaderReplacesStartup();
    sipsn___HeaderReplyToStartup();
    sipsn___HeaderRequireStartup();
    sipsn___HeaderResourcePriorityStartup();
    sipsn___HeaderRetryAfterStartup();
    sipsn___HeaderRouteStartup();
    sipsn___HeaderRseqStartup();
    sipsn___HeaderServerStartup();
    sipsn___HeaderServiceRouteStartup();
    sipsn___HeaderSessionIdStartup();
    sipsn___HeaderSessionExpiresStartup();
    sipsn___HeaderSubjectStartup();
    sipsn___HeaderSubscriptionStateStartup();
    sipsn___HeaderSupportedStartup();
    sipsn___HeaderTimestampStartup();
    sipsn___HeaderToStartup();
    sipsn___HeaderUnsupportedStartup();
    sipsn___HeaderUserAgentStartup();
    sipsn___HeaderUserToUserStartup();
    sipsn___HeaderViaStartup();
    sipsn___HeaderWarningStartup();
}

static void StopHeaders()
{
    sipsn___HeaderAcceptEncodingShutdown();
    sipsn___HeaderAcceptResourcePriorityShutdown();
    sipsn___HeaderAcceptShutdown();
    sipsn___HeaderAlertInfoShutdown();
    sipsn___HeaderAllowShutdown();
    sipsn___HeaderAllowEventsShutdown();
    sipsn___HeaderCallIdShutdown();
    sipsn___HeaderCallInfoShutdown();
    sipsn___HeaderContactShutdown();
    sipsn___HeaderContentDispositionShutdown();
    sipsn___HeaderContentEncodingShutdown();
    sipsn___HeaderCseqShutdown();
    sipsn___HeaderDateShutdown();
    sipsn___HeaderDiversionShutdown();
    sipsn___HeaderErrorInfoShutdown();
    sipsn___HeaderEventShutdown();
    sipsn___HeaderExpiresShutdown();
    sipsn___HeaderFromShutdown();
    sipsn___HeaderHistoryInfoShutdown();
    sipsn___HeaderInReplyToShutdown();
    sipsn___HeaderMaxForwardsShutdown();
    sipsn___HeaderMinExpiresShutdown();
    sipsn___HeaderMinSeShutdown();
    sipsn___HeaderOrganizationShutdown();
    sipsn___HeaderPAssertedIdentityShutdown();
    sipsn___HeaderPCalledPartyIdShutdown();
    sipsn___HeaderPEarlyMediaShutdown();
    sipsn___HeaderPPreferredIdentityShutdown();
    sipsn___HeaderPriorityShutdown();
    sipsn___HeaderPrivacyShutdown();
    sipsn___HeaderProxyRequireShutdown();
    sipsn___HeaderRackShutdown();
    sipsn___HeaderReasonShutdown();
    sipsn___HeaderRecordRouteShutdown();
    sipsn___HeaderReferToShutdown();
    sipsn___HeaderReferredByShutdown();
    sipsn___HeaderRemotePartyIdShutdown();
    sipsn___HeaderReplacesShutdown();
    sipsn___HeaderReplyToShutdown();
    sipsn___HeaderRequireShutdown();
    sipsn___HeaderResourcePriorityShutdown();
    sipsn___HeaderRetryAfterShutdown();
    sipsn___HeaderRouteShutdown();
    sipsn___HeaderRseqShutdown();
    sipsn___HeaderServerShutdown();
    sipsn___HeaderServiceRouteShutdown();
    sipsn___HeaderSessionIdShutdown();
    sipsn___HeaderSessionExpiresShutdown();
    sipsn___HeaderSubjectShutdown();
    sipsn___HeaderSubscriptionStateShutdown();
    sipsn___HeaderSupportedShutdown();
    sipsn___HeaderTimestampShutdown();
    sipsn___HeaderToShutdown();
    sipsn___HeaderUnsupportedShutdown();
    sipsn___HeaderUserAgentShutdown();
    sipsn___HeaderUserToUserShutdown();
    sipsn___HeaderViaShutdown();
    sipsn___HeaderWarningShutdown();
}

static void Startup()
{
    StartHeaders();
    sipsn___MessageHeaderStartup();
    sipsn___SessUuidStartup();
    sipsn___UuiValueStartup();
    sipsn___VersionStartup();
    sipsn___ViaStartup();
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
    sipsn___MessageHeaderShutdown();
    StopHeaders();
}

PB_DEFINE_MODULE( sipsn, "SIP Syntax", "0.0", "in iri pb", Startup, Shutdown )

PbModule *sipsnModule( void ) { return &sipsn___module; }
