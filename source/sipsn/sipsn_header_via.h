/* SipsnHeaderVia: the Via header field, RFC 3261 section 20.42; a list of via-parms.
 *
 * Example: Via: SIP/2.0/UDP 192.0.2.10:5060;rport;branch=z9hG4bK776asdhds;keep=30
 *
 * Each value is kept as its text and decoded when TryDecodeViaAt asks for it, which gives null when it is not a
 * via-parm. A header field without lines decodes to an empty list. Each value is encoded as a line of its own. */
#ifndef SIPSN_HEADER_VIA_H
#define SIPSN_HEADER_VIA_H

#include "sipsn_header.h"
#include "sipsn_via.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderVia ), see sipsn_header.h */
typedef struct SipsnHeaderVia SipsnHeaderVia;

PB_API SipsnHeaderVia *sipsnHeaderViaCreateFrom( SipsnHeaderVia *source );
PB_API SipsnHeaderVia *sipsnHeaderViaRetain( SipsnHeaderVia *obj );
PB_API void            sipsnHeaderViaRelease( SipsnHeaderVia *obj );
PB_API PbObj          *sipsnHeaderViaObj( SipsnHeaderVia *obj );
PB_API SipsnHeaderVia *sipsnHeaderViaFrom( PbObj *obj );
PB_API PbSort         *sipsnHeaderViaSort( void );
PB_API PbString       *sipsnHeaderViaToString( SipsnHeaderVia *obj );
PB_API int64_t         sipsnHeaderViaCompare( SipsnHeaderVia *a, SipsnHeaderVia *b );
PB_API bool            sipsnHeaderViaEquals( SipsnHeaderVia *a, SipsnHeaderVia *b );

PB_API SipsnHeaderVia     *sipsnHeaderViaTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderViaEncode( SipsnHeaderVia *hdr );
PB_API SipsnHeaderVia     *sipsnHeaderViaTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderViaEncodeToMessage( SipsnHeaderVia *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderViaPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderViaRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderViaStore( SipsnHeaderVia *hdr );
PB_API SipsnHeaderVia     *sipsnHeaderViaTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderVia *sipsnHeaderViaCreate( void );

/* ./dev lists: LIST( Vias, Via, SipsnVia ), see sipsn_header.h */
PB_API int64_t sipsnHeaderViaViasLength( SipsnHeaderVia *hdr );
PB_API void    sipsnHeaderViaAppendVia( SipsnHeaderVia **hdr, SipsnVia *via );
PB_API void    sipsnHeaderViaPrependVia( SipsnHeaderVia **hdr, SipsnVia *via );
PB_API void    sipsnHeaderViaInsertVia( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via );
PB_API void    sipsnHeaderViaSetViaAt( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via );
PB_API void    sipsnHeaderViaDelViaAt( SipsnHeaderVia **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnVia *sipsnHeaderViaTryDecodeViaAt( SipsnHeaderVia *hdr, int64_t index );
PB_API void      sipsnHeaderViaClearVias( SipsnHeaderVia **hdr );

PB_END_DECLS
#endif
