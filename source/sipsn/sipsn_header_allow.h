/* SipsnHeaderAllow: the Allow header field, RFC 3261 section 20.5; a set of methods.
 *
 * Example: Allow: ACK,BYE,CANCEL,INVITE,OPTIONS
 *
 * Methods are kept as written, and methods in different letter case are different. All are encoded into one line. A
 * header field without lines does not decode. The Cstr and Wcstr forms take text with its length, -1 meaning up to the
 * terminating zero. */
#ifndef SIPSN_HEADER_ALLOW_H
#define SIPSN_HEADER_ALLOW_H

#include "sipsn_header.h"
#include "sipsn_method.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderAllow ), see sipsn_header.h */
typedef struct SipsnHeaderAllow SipsnHeaderAllow;

PB_API SipsnHeaderAllow *sipsnHeaderAllowCreateFrom( SipsnHeaderAllow *source );
PB_API SipsnHeaderAllow *sipsnHeaderAllowRetain( SipsnHeaderAllow *obj );
PB_API void              sipsnHeaderAllowRelease( SipsnHeaderAllow *obj );
PB_API PbObj            *sipsnHeaderAllowObj( SipsnHeaderAllow *obj );
PB_API SipsnHeaderAllow *sipsnHeaderAllowFrom( PbObj *obj );
PB_API PbSort           *sipsnHeaderAllowSort( void );
PB_API PbString         *sipsnHeaderAllowToString( SipsnHeaderAllow *obj );
PB_API int64_t           sipsnHeaderAllowCompare( SipsnHeaderAllow *a, SipsnHeaderAllow *b );
PB_API bool              sipsnHeaderAllowEquals( SipsnHeaderAllow *a, SipsnHeaderAllow *b );

PB_API SipsnHeaderAllow   *sipsnHeaderAllowTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderAllowEncode( SipsnHeaderAllow *hdr );
PB_API SipsnHeaderAllow   *sipsnHeaderAllowTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderAllowEncodeToMessage( SipsnHeaderAllow *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderAllowPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderAllowRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderAllowStore( SipsnHeaderAllow *hdr );
PB_API SipsnHeaderAllow   *sipsnHeaderAllowTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderAllow *sipsnHeaderAllowCreate( void );

/* ./dev lists: SET( Methods, Method ), see sipsn_header.h */
PB_API int64_t   sipsnHeaderAllowMethodsLength( SipsnHeaderAllow *hdr );
PB_API PbString *sipsnHeaderAllowMethodAt( SipsnHeaderAllow *hdr, int64_t index );
PB_API PbVector *sipsnHeaderAllowMethodsVector( SipsnHeaderAllow *hdr );
PB_API void      sipsnHeaderAllowSetMethodsVector( SipsnHeaderAllow **hdr, PbVector *vec );
PB_API bool      sipsnHeaderAllowHasMethod( SipsnHeaderAllow *hdr, PbString *method );
PB_API void      sipsnHeaderAllowSetMethod( SipsnHeaderAllow **hdr, PbString *method );
PB_API void      sipsnHeaderAllowDelMethod( SipsnHeaderAllow **hdr, PbString *method );
PB_API void      sipsnHeaderAllowClearMethods( SipsnHeaderAllow **hdr );
/* ./dev lists: end */

PB_API bool sipsnHeaderAllowHasMethodCstr( SipsnHeaderAllow *hdr, const char *method, int64_t methodLength );
PB_API bool sipsnHeaderAllowHasMethodWcstr( SipsnHeaderAllow *hdr, const wchar_t *method, int64_t methodLength );
PB_API void sipsnHeaderAllowSetMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength );
PB_API void sipsnHeaderAllowSetMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength );
PB_API void sipsnHeaderAllowDelMethodCstr( SipsnHeaderAllow **hdr, const char *method, int64_t methodLength );
PB_API void sipsnHeaderAllowDelMethodWcstr( SipsnHeaderAllow **hdr, const wchar_t *method, int64_t methodLength );

PB_END_DECLS
#endif
