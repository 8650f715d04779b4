/* SipsnHeaderGeolocation: the Geolocation header field, RFC 6442 section 4.1; a list of locations.
 *
 * Example: Geolocation: <cid:target123@atlanta.example.com>
 *
 * Each location is kept as its text, and decoded when TryDecodeGeolocationAt asks for it. A header field without
 * lines does not decode. Each is encoded as a line of its own. */
#ifndef SIPSN_HEADER_GEOLOCATION_H
#define SIPSN_HEADER_GEOLOCATION_H

#include "sipsn_geolocation.h"
#include "sipsn_header.h"
#include "sipsn_member.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderGeolocation ), see sipsn_header.h */
typedef struct SipsnHeaderGeolocation SipsnHeaderGeolocation;

PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationCreateFrom( SipsnHeaderGeolocation *source );
PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationRetain( SipsnHeaderGeolocation *obj );
PB_API void                    sipsnHeaderGeolocationRelease( SipsnHeaderGeolocation *obj );
PB_API PbObj                  *sipsnHeaderGeolocationObj( SipsnHeaderGeolocation *obj );
PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationFrom( PbObj *obj );
PB_API PbSort                 *sipsnHeaderGeolocationSort( void );
PB_API PbString               *sipsnHeaderGeolocationToString( SipsnHeaderGeolocation *obj );
PB_API int64_t                 sipsnHeaderGeolocationCompare( SipsnHeaderGeolocation *a, SipsnHeaderGeolocation *b );
PB_API bool                    sipsnHeaderGeolocationEquals( SipsnHeaderGeolocation *a, SipsnHeaderGeolocation *b );

PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader     *sipsnHeaderGeolocationEncode( SipsnHeaderGeolocation *hdr );
PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderGeolocationEncodeToMessage( SipsnHeaderGeolocation *hdr, SipsnMessage **msg );
PB_API bool                    sipsnHeaderGeolocationPresentInMessage( SipsnMessage *msg );
PB_API void                    sipsnHeaderGeolocationRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore                *sipsnHeaderGeolocationStore( SipsnHeaderGeolocation *hdr );
PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationTryRestore( PbStore *store );
/* ./dev lists: end */

/* ./dev lists: LIST( Geolocations, Geolocation, SipsnGeolocation ), see sipsn_header.h */
PB_API int64_t sipsnHeaderGeolocationGeolocationsLength( SipsnHeaderGeolocation *hdr );
PB_API void    sipsnHeaderGeolocationAppendGeolocation( SipsnHeaderGeolocation **hdr, SipsnGeolocation *geolocation );
PB_API void    sipsnHeaderGeolocationPrependGeolocation( SipsnHeaderGeolocation **hdr, SipsnGeolocation *geolocation );
PB_API void    sipsnHeaderGeolocationInsertGeolocation( SipsnHeaderGeolocation **hdr, int64_t index,
                                                        SipsnGeolocation *geolocation );
PB_API void    sipsnHeaderGeolocationSetGeolocationAt( SipsnHeaderGeolocation **hdr, int64_t index,
                                                       SipsnGeolocation *geolocation );
PB_API void    sipsnHeaderGeolocationDelGeolocationAt( SipsnHeaderGeolocation **hdr, int64_t index );
/* ./dev lists: end */

/* ./dev lists: members, see sipsn_member.h */
PB_API SipsnHeaderGeolocation *sipsnHeaderGeolocationCreate( void );
PB_API SipsnGeolocation *sipsnHeaderGeolocationTryDecodeGeolocationAt( SipsnHeaderGeolocation *hdr, int64_t index );
PB_API void              sipsnHeaderGeolocationClearGeolocations( SipsnHeaderGeolocation **hdr );
/* ./dev lists: end */

PB_END_DECLS
#endif
