/* SipsnHeaderOrganization: the Organization header field, RFC 3261 section 20.25; to whom the sender belongs.
 *
 * Example: Organization: Boxes by Bob
 *
 *     Organization = [ TEXT-UTF8-TRIM ]
 *
 *     organization   free text with single spaces between its words; never absent, may be empty
 *
 * Only the last line of the header field counts; without lines it does not decode. The getter returns a new reference.
 * The setter replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_ORGANIZATION_H
#define SIPSN_HEADER_ORGANIZATION_H

#include "sipsn_header.h"
#include "sipsn_organization.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderOrganization ), see sipsn_header.h */
typedef struct SipsnHeaderOrganization SipsnHeaderOrganization;

PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationCreateFrom( SipsnHeaderOrganization *source );
PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationRetain( SipsnHeaderOrganization *obj );
PB_API void                     sipsnHeaderOrganizationRelease( SipsnHeaderOrganization *obj );
PB_API PbObj                   *sipsnHeaderOrganizationObj( SipsnHeaderOrganization *obj );
PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationFrom( PbObj *obj );
PB_API PbSort                  *sipsnHeaderOrganizationSort( void );
PB_API PbString                *sipsnHeaderOrganizationToString( SipsnHeaderOrganization *obj );
PB_API int64_t sipsnHeaderOrganizationCompare( SipsnHeaderOrganization *a, SipsnHeaderOrganization *b );
PB_API bool    sipsnHeaderOrganizationEquals( SipsnHeaderOrganization *a, SipsnHeaderOrganization *b );

PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader      *sipsnHeaderOrganizationEncode( SipsnHeaderOrganization *hdr );
PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderOrganizationEncodeToMessage( SipsnHeaderOrganization *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderOrganizationPresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderOrganizationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderOrganizationStore( SipsnHeaderOrganization *hdr );
PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationCreate( PbString *organization );

PB_API PbString *sipsnHeaderOrganizationOrganization( SipsnHeaderOrganization *hdr );
PB_API void      sipsnHeaderOrganizationSetOrganization( SipsnHeaderOrganization **hdr, PbString *organization );

PB_END_DECLS
#endif
