/* SipsnHeaderResponseSource: the Response-Source header field, 3GPP TS 24.229; which element gave a response.
 *
 * Example: Response-Source: fe=<urn:3gpp:fe:p-cscf.orig>;role=visited
 *
 *     Response-Source = source-param *( SEMI source-param )
 *     source-param    = "fe" EQUAL LAQUOT URI RAQUOT / generic-param
 *
 *     fe               the element, an IRI such as "urn:3gpp:fe:p-cscf.orig", in angle
 *                      brackets on the wire; optional
 *     generic params   every other parameter; never absent, may be empty
 *
 * The field is defined by 3GPP TS 24.229 alone; the grammar here is second-hand, to be checked against that text.
 *
 * Only the last line of the header field counts; without lines it does not decode. */
#ifndef SIPSN_HEADER_RESPONSE_SOURCE_H
#define SIPSN_HEADER_RESPONSE_SOURCE_H

#include "sipsn_header.h"
#include "sipsn_iri.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderResponseSource ), see sipsn_header.h */
typedef struct SipsnHeaderResponseSource SipsnHeaderResponseSource;

PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceCreateFrom( SipsnHeaderResponseSource *source );
PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceRetain( SipsnHeaderResponseSource *obj );
PB_API void                       sipsnHeaderResponseSourceRelease( SipsnHeaderResponseSource *obj );
PB_API PbObj                     *sipsnHeaderResponseSourceObj( SipsnHeaderResponseSource *obj );
PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceFrom( PbObj *obj );
PB_API PbSort                    *sipsnHeaderResponseSourceSort( void );
PB_API PbString                  *sipsnHeaderResponseSourceToString( SipsnHeaderResponseSource *obj );
PB_API int64_t sipsnHeaderResponseSourceCompare( SipsnHeaderResponseSource *a, SipsnHeaderResponseSource *b );
PB_API bool    sipsnHeaderResponseSourceEquals( SipsnHeaderResponseSource *a, SipsnHeaderResponseSource *b );

PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader        *sipsnHeaderResponseSourceEncode( SipsnHeaderResponseSource *hdr );
PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceTryDecodeFromMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResponseSourceEncodeToMessage( SipsnHeaderResponseSource *hdr, SipsnMessage **msg );
PB_API bool     sipsnHeaderResponseSourcePresentInMessage( SipsnMessage *msg );
PB_API void     sipsnHeaderResponseSourceRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore *sipsnHeaderResponseSourceStore( SipsnHeaderResponseSource *hdr );
PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderResponseSource *sipsnHeaderResponseSourceCreate( void );

PB_API PbString *sipsnHeaderResponseSourceFe( SipsnHeaderResponseSource *hdr );
PB_API bool      sipsnHeaderResponseSourceHasFe( SipsnHeaderResponseSource *hdr );
PB_API void      sipsnHeaderResponseSourceSetFe( SipsnHeaderResponseSource **hdr, PbString *fe );
PB_API void      sipsnHeaderResponseSourceSetFeCstr( SipsnHeaderResponseSource **hdr, const char *fe, int64_t length );
PB_API void sipsnHeaderResponseSourceSetFeWcstr( SipsnHeaderResponseSource **hdr, const wchar_t *fe, int64_t length );
PB_API void sipsnHeaderResponseSourceDelFe( SipsnHeaderResponseSource **hdr );

PB_API SipsnGenericParams *sipsnHeaderResponseSourceGenericParams( SipsnHeaderResponseSource *hdr );
PB_API void                sipsnHeaderResponseSourceSetGenericParams( SipsnHeaderResponseSource **hdr,
                                                                      SipsnGenericParams         *genericParams );
/* ./dev lists: end */

PB_END_DECLS
#endif
