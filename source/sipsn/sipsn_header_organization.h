/* SipsnHeaderOrganization: the Organization header field, RFC 3261 section 20.25; to whom the sender belongs.
 *
 * Example: Organization: Boxes by Bob
 *
 *     Organization = [ TEXT-UTF8-TRIM ]
 *
 *     organization   free text with single spaces between its words; never absent, may be empty
 *
 * The last line of the header field counts, and no line is no header. The getter returns a new reference. The setter
 * replaces *hdr by a private copy when it is shared. A null or invalid argument aborts. */
#ifndef SIPSN_HEADER_ORGANIZATION_H
#define SIPSN_HEADER_ORGANIZATION_H

#include "sipsn_header.h"
#include "sipsn_organization.h"

PB_BEGIN_DECLS

SIPSN_DECLARE_HEADER( SipsnHeaderOrganization, sipsnHeaderOrganization )

PB_API SipsnHeaderOrganization *sipsnHeaderOrganizationCreate( PbString *organization );

PB_API PbString *sipsnHeaderOrganizationOrganization( SipsnHeaderOrganization *hdr );
PB_API void      sipsnHeaderOrganizationSetOrganization( SipsnHeaderOrganization **hdr, PbString *organization );

PB_END_DECLS
#endif
