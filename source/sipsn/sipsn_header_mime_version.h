/* SipsnHeaderMimeVersion: the MIME-Version header field, RFC 3261 section 20.24; the version of MIME, 1.0.
 *
 * Example: Mime-Version: 1.0
 *
 *     MIME-Version = 1*DIGIT "." 1*DIGIT
 *
 *     major   0 or more; never absent
 *     minor   0 or more; never absent
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_MIME_VERSION_H
#define SIPSN_HEADER_MIME_VERSION_H

#include "sipsn_header.h"
#include "sipsn_member.h"
#include "sipsn_number.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderMimeVersion ), see sipsn_header.h */
typedef struct SipsnHeaderMimeVersion SipsnHeaderMimeVersion;

PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionCreateFrom( SipsnHeaderMimeVersion *source );
PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionRetain( SipsnHeaderMimeVersion *obj );
PB_API void                    sipsnHeaderMimeVersionRelease( SipsnHeaderMimeVersion *obj );
PB_API PbObj                  *sipsnHeaderMimeVersionObj( SipsnHeaderMimeVersion *obj );
PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderMimeVersionSort( void );
PB_API PbString               *sipsnHeaderMimeVersionToString( SipsnHeaderMimeVersion *obj );
PB_API int64_t                 sipsnHeaderMimeVersionCompare( SipsnHeaderMimeVersion *a, SipsnHeaderMimeVersion *b );
PB_API bool                    sipsnHeaderMimeVersionEquals( SipsnHeaderMimeVersion *a, SipsnHeaderMimeVersion *b );

PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderMimeVersionEncode( SipsnHeaderMimeVersion *hdr );
PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderMimeVersionEncodeToMessage( SipsnHeaderMimeVersion *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderMimeVersionPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderMimeVersionRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderMimeVersionStore( SipsnHeaderMimeVersion *hdr );
PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderMimeVersion *sipsnHeaderMimeVersionCreate( int64_t major, int64_t minor );

/* ./dev lists: members, see sipsn_member.h */
PB_API int64_t sipsnHeaderMimeVersionMajor( SipsnHeaderMimeVersion *hdr );
PB_API void    sipsnHeaderMimeVersionSetMajor( SipsnHeaderMimeVersion **hdr, int64_t major );

PB_API int64_t sipsnHeaderMimeVersionMinor( SipsnHeaderMimeVersion *hdr );
PB_API void    sipsnHeaderMimeVersionSetMinor( SipsnHeaderMimeVersion **hdr, int64_t minor );
/* ./dev lists: end */

PB_END_DECLS
#endif
