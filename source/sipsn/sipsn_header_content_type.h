/* SipsnHeaderContentType: the Content-Type header field, RFC 3261 section 20.15; what the body is.
 *
 * Example: Content-Type: multipart/mixed;boundary="a:b"
 *
 *     Content-Type = token SLASH token *( SEMI token EQUAL ( token / quoted-string ) )
 *
 *     media type       such as "text", in lower case; never absent
 *     media subtype    such as "html", in lower case; never absent
 *     generic params   the parameters; never absent, may be empty
 *
 * Values of parameters are kept as written. A parameter without a value, and a host as a value, are read too. Only
 * the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_CONTENT_TYPE_H
#define SIPSN_HEADER_CONTENT_TYPE_H

#include "sipsn_header.h"
#include "sipsn_media_subtype.h"
#include "sipsn_media_type.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContentType ), see sipsn_header.h */
typedef struct SipsnHeaderContentType SipsnHeaderContentType;

PB_API SipsnHeaderContentType *sipsnHeaderContentTypeCreateFrom( SipsnHeaderContentType *source );
PB_API SipsnHeaderContentType *sipsnHeaderContentTypeRetain( SipsnHeaderContentType *obj );
PB_API void                    sipsnHeaderContentTypeRelease( SipsnHeaderContentType *obj );
PB_API PbObj                  *sipsnHeaderContentTypeObj( SipsnHeaderContentType *obj );
PB_API SipsnHeaderContentType *sipsnHeaderContentTypeFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderContentTypeSort( void );
PB_API PbString               *sipsnHeaderContentTypeToString( SipsnHeaderContentType *obj );
PB_API int64_t                 sipsnHeaderContentTypeCompare( SipsnHeaderContentType *a, SipsnHeaderContentType *b );
PB_API bool                    sipsnHeaderContentTypeEquals( SipsnHeaderContentType *a, SipsnHeaderContentType *b );

PB_API SipsnHeaderContentType *sipsnHeaderContentTypeTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderContentTypeEncode( SipsnHeaderContentType *hdr );
PB_API SipsnHeaderContentType *sipsnHeaderContentTypeTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderContentTypeEncodeToMessage( SipsnHeaderContentType *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderContentTypePresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderContentTypeRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderContentTypeStore( SipsnHeaderContentType *hdr );
PB_API SipsnHeaderContentType *sipsnHeaderContentTypeTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderContentType *sipsnHeaderContentTypeCreate( PbString *mediaType, PbString *mediaSubtype );

/* ./dev lists: members, see sipsn_member.h */
PB_API PbString *sipsnHeaderContentTypeMediaType( SipsnHeaderContentType *hdr );
PB_API void      sipsnHeaderContentTypeSetMediaType( SipsnHeaderContentType **hdr, PbString *mediaType );
PB_API void      sipsnHeaderContentTypeSetMediaTypeCstr( SipsnHeaderContentType **hdr, const char *mediaType,
                                                         int64_t length );
PB_API void      sipsnHeaderContentTypeSetMediaTypeWcstr( SipsnHeaderContentType **hdr, const wchar_t *mediaType,
                                                          int64_t length );

PB_API PbString *sipsnHeaderContentTypeMediaSubtype( SipsnHeaderContentType *hdr );
PB_API void      sipsnHeaderContentTypeSetMediaSubtype( SipsnHeaderContentType **hdr, PbString *mediaSubtype );
PB_API void      sipsnHeaderContentTypeSetMediaSubtypeCstr( SipsnHeaderContentType **hdr, const char *mediaSubtype,
                                                            int64_t length );
PB_API void      sipsnHeaderContentTypeSetMediaSubtypeWcstr( SipsnHeaderContentType **hdr, const wchar_t *mediaSubtype,
                                                             int64_t length );

PB_API SipsnGenericParams *sipsnHeaderContentTypeGenericParams( SipsnHeaderContentType *hdr );
PB_API void sipsnHeaderContentTypeSetGenericParams( SipsnHeaderContentType **hdr, SipsnGenericParams *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
