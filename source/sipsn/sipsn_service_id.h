/* Service identifiers, RFC 6050 section 4.1. */
#ifndef SIPSN_SERVICE_ID_H
#define SIPSN_SERVICE_ID_H

#include "pb/pb_string.h"

PB_BEGIN_DECLS

/* Whether the whole text is "urn:urn-7:" and labels of letters, digits and "-" that dots join, the first of at most 27
 * characters; in any letter case, kept in lower case. Null aborts. */
PB_API bool sipsnServiceIdOk( PbString *serviceId );

PB_END_DECLS
#endif
