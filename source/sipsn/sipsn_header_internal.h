// The name constants of the header types, and the functions that create and release what their files keep while the
// module is started. Exported, but no part of the public interface.
#pragma once

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API extern PbString *sipsn___PbsAccept;
PB_API void             sipsn___HeaderAcceptStartup( void );
PB_API void             sipsn___HeaderAcceptShutdown( void );

PB_API extern PbString *sipsn___PbsAcceptEncoding;
PB_API void             sipsn___HeaderAcceptEncodingStartup( void );
PB_API void             sipsn___HeaderAcceptEncodingShutdown( void );

PB_API extern PbString *sipsn___PbsAcceptResourcePriority;
PB_API void             sipsn___HeaderAcceptResourcePriorityStartup( void );
PB_API void             sipsn___HeaderAcceptResourcePriorityShutdown( void );

PB_API extern PbString *sipsn___PbsAlertInfo;
PB_API void             sipsn___HeaderAlertInfoStartup( void );
PB_API void             sipsn___HeaderAlertInfoShutdown( void );

PB_API extern PbString *sipsn___PbsAllow;
PB_API void             sipsn___HeaderAllowStartup( void );
PB_API void             sipsn___HeaderAllowShutdown( void );

PB_API extern PbString *sipsn___PbsAllowEvents;
PB_API void             sipsn___HeaderAllowEventsStartup( void );
PB_API void             sipsn___HeaderAllowEventsShutdown( void );

PB_API extern PbString *sipsn___PbsCallId;
PB_API void             sipsn___HeaderCallIdStartup( void );
PB_API void             sipsn___HeaderCallIdShutdown( void );

PB_API extern PbString *sipsn___PbsCallInfo;
PB_API void             sipsn___HeaderCallInfoStartup( void );
PB_API void             sipsn___HeaderCallInfoShutdown( void );

PB_API extern PbString *sipsn___PbsContact;
PB_API void             sipsn___HeaderContactStartup( void );
PB_API void             sipsn___HeaderContactShutdown( void );

PB_API extern PbString *sipsn___PbsContentDisposition;
PB_API void             sipsn___HeaderContentDispositionStartup( void );
PB_API void             sipsn___HeaderContentDispositionShutdown( void );

PB_API extern PbString *sipsn___PbsContentEncoding;
PB_API void             sipsn___HeaderContentEncodingStartup( void );
PB_API void             sipsn___HeaderContentEncodingShutdown( void );

PB_API extern PbString *sipsn___PbsCseq;
PB_API void             sipsn___HeaderCseqStartup( void );
PB_API void             sipsn___HeaderCseqShutdown( void );

PB_API extern PbString *sipsn___PbsDate;
PB_API void             sipsn___HeaderDateStartup( void );
PB_API void             sipsn___HeaderDateShutdown( void );

PB_API extern PbString *sipsn___PbsDiversion;
PB_API void             sipsn___HeaderDiversionStartup( void );
PB_API void             sipsn___HeaderDiversionShutdown( void );

PB_API extern PbString *sipsn___PbsErrorInfo;
PB_API void             sipsn___HeaderErrorInfoStartup( void );
PB_API void             sipsn___HeaderErrorInfoShutdown( void );

PB_API extern PbString *sipsn___PbsEvent;
PB_API void             sipsn___HeaderEventStartup( void );
PB_API void             sipsn___HeaderEventShutdown( void );

PB_API extern PbString *sipsn___PbsExpires;
PB_API void             sipsn___HeaderExpiresStartup( void );
PB_API void             sipsn___HeaderExpiresShutdown( void );

PB_API extern PbString *sipsn___PbsFrom;
PB_API void             sipsn___HeaderFromStartup( void );
PB_API void             sipsn___HeaderFromShutdown( void );

PB_API extern PbString *sipsn___PbsHistoryInfo;
PB_API void             sipsn___HeaderHistoryInfoStartup( void );
PB_API void             sipsn___HeaderHistoryInfoShutdown( void );

PB_API extern PbString *sipsn___PbsInReplyTo;
PB_API void             sipsn___HeaderInReplyToStartup( void );
PB_API void             sipsn___HeaderInReplyToShutdown( void );

PB_API extern PbString *sipsn___PbsMaxForwards;
PB_API void             sipsn___HeaderMaxForwardsStartup( void );
PB_API void             sipsn___HeaderMaxForwardsShutdown( void );

PB_API extern PbString *sipsn___PbsMinExpires;
PB_API void             sipsn___HeaderMinExpiresStartup( void );
PB_API void             sipsn___HeaderMinExpiresShutdown( void );

PB_API extern PbString *sipsn___PbsMinSe;
PB_API void             sipsn___HeaderMinSeStartup( void );
PB_API void             sipsn___HeaderMinSeShutdown( void );

PB_API extern PbString *sipsn___PbsOrganization;
PB_API void             sipsn___HeaderOrganizationStartup( void );
PB_API void             sipsn___HeaderOrganizationShutdown( void );

PB_API extern PbString *sipsn___PbsPAssertedIdentity;
PB_API void             sipsn___HeaderPAssertedIdentityStartup( void );
PB_API void             sipsn___HeaderPAssertedIdentityShutdown( void );

PB_API extern PbString *sipsn___PbsPCalledPartyId;
PB_API void             sipsn___HeaderPCalledPartyIdStartup( void );
PB_API void             sipsn___HeaderPCalledPartyIdShutdown( void );

PB_API extern PbString *sipsn___PbsPEarlyMedia;
PB_API void             sipsn___HeaderPEarlyMediaStartup( void );
PB_API void             sipsn___HeaderPEarlyMediaShutdown( void );

PB_API extern PbString *sipsn___PbsPPreferredIdentity;
PB_API void             sipsn___HeaderPPreferredIdentityStartup( void );
PB_API void             sipsn___HeaderPPreferredIdentityShutdown( void );

PB_API extern PbString *sipsn___PbsPriority;
PB_API void             sipsn___HeaderPriorityStartup( void );
PB_API void             sipsn___HeaderPriorityShutdown( void );

PB_API extern PbString *sipsn___PbsPrivacy;
PB_API void             sipsn___HeaderPrivacyStartup( void );
PB_API void             sipsn___HeaderPrivacyShutdown( void );

PB_API extern PbString *sipsn___PbsProxyRequire;
PB_API void             sipsn___HeaderProxyRequireStartup( void );
PB_API void             sipsn___HeaderProxyRequireShutdown( void );

PB_API extern PbString *sipsn___PbsRack;
PB_API void             sipsn___HeaderRackStartup( void );
PB_API void             sipsn___HeaderRackShutdown( void );

PB_API extern PbString *sipsn___PbsReason;
PB_API void             sipsn___HeaderReasonStartup( void );
PB_API void             sipsn___HeaderReasonShutdown( void );

PB_API extern PbString *sipsn___PbsRecordRoute;
PB_API void             sipsn___HeaderRecordRouteStartup( void );
PB_API void             sipsn___HeaderRecordRouteShutdown( void );

PB_API extern PbString *sipsn___PbsReferTo;
PB_API void             sipsn___HeaderReferToStartup( void );
PB_API void             sipsn___HeaderReferToShutdown( void );

PB_API extern PbString *sipsn___PbsReferredBy;
PB_API void             sipsn___HeaderReferredByStartup( void );
PB_API void             sipsn___HeaderReferredByShutdown( void );

PB_API extern PbString *sipsn___PbsRemotePartyId;
PB_API void             sipsn___HeaderRemotePartyIdStartup( void );
PB_API void             sipsn___HeaderRemotePartyIdShutdown( void );

PB_API extern PbString *sipsn___PbsReplaces;
PB_API void             sipsn___HeaderReplacesStartup( void );
PB_API void             sipsn___HeaderReplacesShutdown( void );

PB_API extern PbString *sipsn___PbsReplyTo;
PB_API void             sipsn___HeaderReplyToStartup( void );
PB_API void             sipsn___HeaderReplyToShutdown( void );

PB_API extern PbString *sipsn___PbsRequire;
PB_API void             sipsn___HeaderRequireStartup( void );
PB_API void             sipsn___HeaderRequireShutdown( void );

PB_API extern PbString *sipsn___PbsResourcePriority;
PB_API void             sipsn___HeaderResourcePriorityStartup( void );
PB_API void             sipsn___HeaderResourcePriorityShutdown( void );

PB_API extern PbString *sipsn___PbsRetryAfter;
PB_API void             sipsn___HeaderRetryAfterStartup( void );
PB_API void             sipsn___HeaderRetryAfterShutdown( void );

PB_API extern PbString *sipsn___PbsRoute;
PB_API void             sipsn___HeaderRouteStartup( void );
PB_API void             sipsn___HeaderRouteShutdown( void );

PB_API extern PbString *sipsn___PbsRseq;
PB_API void             sipsn___HeaderRseqStartup( void );
PB_API void             sipsn___HeaderRseqShutdown( void );

PB_API extern PbString *sipsn___PbsServer;
PB_API void             sipsn___HeaderServerStartup( void );
PB_API void             sipsn___HeaderServerShutdown( void );

PB_API extern PbString *sipsn___PbsServiceRoute;
PB_API void             sipsn___HeaderServiceRouteStartup( void );
PB_API void             sipsn___HeaderServiceRouteShutdown( void );

PB_API extern PbString *sipsn___PbsSessionExpires;
PB_API void             sipsn___HeaderSessionExpiresStartup( void );
PB_API void             sipsn___HeaderSessionExpiresShutdown( void );

PB_API extern PbString *sipsn___PbsSessionId;
PB_API void             sipsn___HeaderSessionIdStartup( void );
PB_API void             sipsn___HeaderSessionIdShutdown( void );

PB_API extern PbString *sipsn___PbsSubject;
PB_API void             sipsn___HeaderSubjectStartup( void );
PB_API void             sipsn___HeaderSubjectShutdown( void );

PB_API extern PbString *sipsn___PbsSubscriptionState;
PB_API void             sipsn___HeaderSubscriptionStateStartup( void );
PB_API void             sipsn___HeaderSubscriptionStateShutdown( void );

PB_API extern PbString *sipsn___PbsSupported;
PB_API void             sipsn___HeaderSupportedStartup( void );
PB_API void             sipsn___HeaderSupportedShutdown( void );

PB_API extern PbString *sipsn___PbsTimestamp;
PB_API void             sipsn___HeaderTimestampStartup( void );
PB_API void             sipsn___HeaderTimestampShutdown( void );

PB_API extern PbString *sipsn___PbsTo;
PB_API void             sipsn___HeaderToStartup( void );
PB_API void             sipsn___HeaderToShutdown( void );

PB_API extern PbString *sipsn___PbsUnsupported;
PB_API void             sipsn___HeaderUnsupportedStartup( void );
PB_API void             sipsn___HeaderUnsupportedShutdown( void );

PB_API extern PbString *sipsn___PbsUserAgent;
PB_API void             sipsn___HeaderUserAgentStartup( void );
PB_API void             sipsn___HeaderUserAgentShutdown( void );

PB_API extern PbString *sipsn___PbsUserToUser;
PB_API void             sipsn___HeaderUserToUserStartup( void );
PB_API void             sipsn___HeaderUserToUserShutdown( void );

PB_API extern PbString *sipsn___PbsVia;
PB_API void             sipsn___HeaderViaStartup( void );
PB_API void             sipsn___HeaderViaShutdown( void );

PB_API extern PbString *sipsn___PbsWarning;
PB_API void             sipsn___HeaderWarningStartup( void );
PB_API void             sipsn___HeaderWarningShutdown( void );

PB_END_DECLS
