/* Internationalised domain names, IDNA 2008 (RFC 5890, RFC 5891).
 *
 * A name is labels of 1 to 63 characters with dots between them; one dot may stand at the end. A label in ASCII has
 * letters, digits and hyphens, but no hyphen at its start or end; it passes as it stands, its case kept. A label beyond
 * ASCII must have an ASCII form ("xn--..."), which is that of the label in lower case and NFC: the name "B\u00FCcher"
 * is held as written and goes out as "xn--bcher-kva". A name has at most 253 characters, the dot at the end not
 * counted, as it stands and in ASCII. IPv4 addresses and IPv6 addresses in brackets count as names and pass unchanged.
 *
 * Results are new references, to the name itself when nothing changes. Null aborts, as does converting an invalid name.
 */
#ifndef IN_DNS_H
#define IN_DNS_H

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API bool inDnsIdnaDomainNameOk( PbString *name );

/* The name with every label in ASCII. */
PB_API PbString *inDnsIdnaDomainNameToAscii( PbString *name );

/* The name with those "xn--" labels in Unicode that convert back to the same label, letter case aside. The others stay.
 */
PB_API PbString *inDnsIdnaDomainNameToUnicode( PbString *name );

PB_END_DECLS
#endif
