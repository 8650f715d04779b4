/* SipsnMessage: a request or a response, RFC 3261 section 7.
 *
 * A message holds one fragment that has a start line, and every function named like one of a fragment does to it what
 * sipsn_message_fragment.h says. A message can be turned from a request into a response and back; it is never without a
 * start line. Changing functions replace *msg, and the fragment in it, by private copies when they are shared. A null
 * argument aborts. Messages compare by address. */
#ifndef SIPSN_MESSAGE_H
#define SIPSN_MESSAGE_H

#include "sipsn_message_fragment.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnMessage ), see pb_types.h */
typedef struct SipsnMessage SipsnMessage;

PB_API SipsnMessage *sipsnMessageCreateFrom( SipsnMessage *source );
PB_API SipsnMessage *sipsnMessageRetain( SipsnMessage *obj );
PB_API void          sipsnMessageRelease( SipsnMessage *obj );
PB_API PbObj        *sipsnMessageObj( SipsnMessage *obj );
PB_API SipsnMessage *sipsnMessageFrom( PbObj *obj );
PB_API PbSort       *sipsnMessageSort( void );
PB_API PbString     *sipsnMessageToString( SipsnMessage *obj );
PB_API int64_t       sipsnMessageCompare( SipsnMessage *a, SipsnMessage *b );
PB_API bool          sipsnMessageEquals( SipsnMessage *a, SipsnMessage *b );
/* ./dev lists: end */

/* Shares the fragment; aborts unless it is a request or a response. */
PB_API SipsnMessage *sipsnMessageCreate( SipsnMessageFragment *fragment );

PB_API SipsnMessage *sipsnMessageCreateRequest( SipsnVersion *version, PbString *method, PbString *iri );
PB_API SipsnMessage *sipsnMessageCreateRequestCstr( SipsnVersion *version, const char *method, int64_t methodLength,
                                                    PbString *iri );
PB_API SipsnMessage *sipsnMessageCreateRequestWcstr( SipsnVersion *version, const wchar_t *method, int64_t methodLength,
                                                     PbString *iri );
PB_API SipsnMessage *sipsnMessageCreateResponse( SipsnVersion *version, int64_t sc );
PB_API SipsnMessage *sipsnMessageCreateResponseWithReasonPhrase( SipsnVersion *version, int64_t sc,
                                                                 PbString *reasonPhrase );
PB_API SipsnMessage *sipsnMessageCreateResponseWithReasonPhraseCstr( SipsnVersion *version, int64_t sc,
                                                                     const char *reasonPhrase,
                                                                     int64_t     reasonPhraseLength );
PB_API SipsnMessage *sipsnMessageCreateResponseWithReasonPhraseWcstr( SipsnVersion *version, int64_t sc,
                                                                      const wchar_t *reasonPhrase,
                                                                      int64_t        reasonPhraseLength );

/* The fragment itself, as a new reference. */
PB_API SipsnMessageFragment *sipsnMessageFragment( SipsnMessage *msg );

PB_API bool sipsnMessageIsRequest( SipsnMessage *msg );
PB_API bool sipsnMessageIsResponse( SipsnMessage *msg );

/* ---- The start line ----------------------------------------------------------------------------------- */

PB_API void sipsnMessageSetRequest( SipsnMessage **msg, SipsnVersion *version, PbString *method, PbString *iri );
PB_API void sipsnMessageSetRequestCstr( SipsnMessage **msg, SipsnVersion *version, const char *method,
                                        int64_t methodLength, PbString *iri );
PB_API void sipsnMessageSetRequestWcstr( SipsnMessage **msg, SipsnVersion *version, const wchar_t *method,
                                         int64_t methodLength, PbString *iri );
PB_API void sipsnMessageSetResponse( SipsnMessage **msg, SipsnVersion *version, int64_t sc );
PB_API void sipsnMessageSetResponseWithReasonPhrase( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                                     PbString *reasonPhrase );
PB_API void sipsnMessageSetResponseWithReasonPhraseCstr( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                                         const char *reasonPhrase, int64_t reasonPhraseLength );
PB_API void sipsnMessageSetResponseWithReasonPhraseWcstr( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                                          const wchar_t *reasonPhrase, int64_t reasonPhraseLength );

PB_API PbString *sipsnMessageRequestMethod( SipsnMessage *msg );
PB_API void      sipsnMessageSetRequestMethod( SipsnMessage **msg, PbString *method );
PB_API void      sipsnMessageSetRequestMethodCstr( SipsnMessage **msg, const char *method, int64_t methodLength );
PB_API void      sipsnMessageSetRequestMethodWcstr( SipsnMessage **msg, const wchar_t *method, int64_t methodLength );

PB_API PbString *sipsnMessageRequestIri( SipsnMessage *msg );
PB_API void      sipsnMessageSetRequestIri( SipsnMessage **msg, PbString *iri );
PB_API void      sipsnMessageSetRequestIriCstr( SipsnMessage **msg, const char *iri, int64_t iriLength );
PB_API void      sipsnMessageSetRequestIriWcstr( SipsnMessage **msg, const wchar_t *iri, int64_t iriLength );

PB_API int64_t sipsnMessageResponseStatusCode( SipsnMessage *msg );
PB_API void    sipsnMessageSetResponseStatusCode( SipsnMessage **msg, int64_t sc, bool setReasonPhrase );

PB_API PbString *sipsnMessageResponseReasonPhrase( SipsnMessage *msg );
PB_API void      sipsnMessageSetResponseReasonPhrase( SipsnMessage **msg, PbString *reasonPhrase );
PB_API void      sipsnMessageSetResponseReasonPhraseCstr( SipsnMessage **msg, const char *reasonPhrase,
                                                          int64_t reasonPhraseLength );
PB_API void      sipsnMessageSetResponseReasonPhraseWcstr( SipsnMessage **msg, const wchar_t *reasonPhrase,
                                                           int64_t reasonPhraseLength );

PB_API SipsnVersion *sipsnMessageVersion( SipsnMessage *msg );
PB_API void          sipsnMessageSetVersion( SipsnMessage **msg, SipsnVersion *version );

/* ---- Header fields ------------------------------------------------------------------------------------ */

PB_API SipsnMessageHeader *sipsnMessageHeader( SipsnMessage *msg, PbString *name );
PB_API SipsnMessageHeader *sipsnMessageHeaderCstr( SipsnMessage *msg, const char *name, int64_t nameLength );
PB_API SipsnMessageHeader *sipsnMessageHeaderWcstr( SipsnMessage *msg, const wchar_t *name, int64_t nameLength );

PB_API bool sipsnMessageHasHeader( SipsnMessage *msg, PbString *name );
PB_API bool sipsnMessageHasHeaderCstr( SipsnMessage *msg, const char *name, int64_t nameLength );
PB_API bool sipsnMessageHasHeaderWcstr( SipsnMessage *msg, const wchar_t *name, int64_t nameLength );

PB_API void sipsnMessageSetHeader( SipsnMessage **msg, SipsnMessageHeader *header );
PB_API void sipsnMessageDelHeader( SipsnMessage **msg, PbString *name );
PB_API void sipsnMessageDelHeaderCstr( SipsnMessage **msg, const char *name, int64_t nameLength );
PB_API void sipsnMessageDelHeaderWcstr( SipsnMessage **msg, const wchar_t *name, int64_t nameLength );

PB_API PbVector *sipsnMessageHeadersVector( SipsnMessage *msg );

/* ---- The body ----------------------------------------------------------------------------------------- */

PB_API PbBuffer *sipsnMessageBody( SipsnMessage *msg );
PB_API bool      sipsnMessageHasBody( SipsnMessage *msg );
PB_API void      sipsnMessageSetBody( SipsnMessage **msg, PbBuffer *body );
PB_API void      sipsnMessageDelBody( SipsnMessage **msg );

/* ---- Wire form ---------------------------------------------------------------------------------------- */

/* As for a fragment; null also when there is no start line. */
PB_API SipsnMessage *sipsnMessageTryDecode( PbBuffer *buf );
PB_API PbBuffer     *sipsnMessageEncode( SipsnMessage *msg );

PB_END_DECLS
#endif
