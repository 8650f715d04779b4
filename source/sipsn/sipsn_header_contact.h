/* SipsnHeaderContact: the Contact header field, RFC 3261 section 20.10; a list of contact-params, or "*".
 *
 * Example: Contact: "Alice" <sip:alice@192.0.2.4>;q=0.7;expires=3600
 *
 *     star form   whether "*" stands for all contacts (RFC 3261 section 10.2.2); false unless set
 *
 * Each value is kept as its text and decoded when TryDecodeContactAt asks for it, which gives null when it is not a
 * contact-param. A header field without lines does not decode. Each value is encoded as a line of its own.
 *
 * A first line that begins with "*" is the star form, and nothing may follow it, not even on a later line. The star
 * form is encoded as long as there are no contacts: adding one does not end it, but hides it. */
#ifndef SIPSN_HEADER_CONTACT_H
#define SIPSN_HEADER_CONTACT_H

#include "sipsn_contact.h"
#include "sipsn_header.h"

PB_BEGIN_DECLS

/* ./dev lists: HEADER( SipsnHeaderContact ), see sipsn_header.h */
typedef struct SipsnHeaderContact SipsnHeaderContact;

PB_API SipsnHeaderContact *sipsnHeaderContactCreateFrom( SipsnHeaderContact *source );
PB_API SipsnHeaderContact *sipsnHeaderContactRetain( SipsnHeaderContact *obj );
PB_API void                sipsnHeaderContactRelease( SipsnHeaderContact *obj );
PB_API PbObj              *sipsnHeaderContactObj( SipsnHeaderContact *obj );
PB_API SipsnHeaderContact *sipsnHeaderContactFrom( PbObj *obj );
PB_API PbSort             *sipsnHeaderContactSort( void );
PB_API PbString           *sipsnHeaderContactToString( SipsnHeaderContact *obj );
PB_API int64_t             sipsnHeaderContactCompare( SipsnHeaderContact *a, SipsnHeaderContact *b );
PB_API bool                sipsnHeaderContactEquals( SipsnHeaderContact *a, SipsnHeaderContact *b );

PB_API SipsnHeaderContact *sipsnHeaderContactTryDecode( SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnHeaderContactEncode( SipsnHeaderContact *hdr );
PB_API SipsnHeaderContact *sipsnHeaderContactTryDecodeFromMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderContactEncodeToMessage( SipsnHeaderContact *hdr, SipsnMessage **msg );
PB_API bool                sipsnHeaderContactPresentInMessage( SipsnMessage *msg );
PB_API void                sipsnHeaderContactRemoveFromMessage( SipsnMessage **msg );
PB_API PbStore            *sipsnHeaderContactStore( SipsnHeaderContact *hdr );
PB_API SipsnHeaderContact *sipsnHeaderContactTryRestore( PbStore *store );
/* ./dev lists: end */

PB_API SipsnHeaderContact *sipsnHeaderContactCreate( void );

PB_API bool sipsnHeaderContactIsStarForm( SipsnHeaderContact *hdr );
PB_API void sipsnHeaderContactSetStarForm( SipsnHeaderContact **hdr, bool starForm ); /* drops all contacts */

/* ./dev lists: LIST( Contacts, Contact, SipsnContact ), see sipsn_header.h */
PB_API int64_t sipsnHeaderContactContactsLength( SipsnHeaderContact *hdr );
PB_API void    sipsnHeaderContactAppendContact( SipsnHeaderContact **hdr, SipsnContact *contact );
PB_API void    sipsnHeaderContactPrependContact( SipsnHeaderContact **hdr, SipsnContact *contact );
PB_API void    sipsnHeaderContactInsertContact( SipsnHeaderContact **hdr, int64_t index, SipsnContact *contact );
PB_API void    sipsnHeaderContactSetContactAt( SipsnHeaderContact **hdr, int64_t index, SipsnContact *contact );
PB_API void    sipsnHeaderContactDelContactAt( SipsnHeaderContact **hdr, int64_t index );
/* ./dev lists: end */

PB_API SipsnContact *sipsnHeaderContactTryDecodeContactAt( SipsnHeaderContact *hdr, int64_t index );
PB_API void          sipsnHeaderContactClear( SipsnHeaderContact **hdr ); /* ends the star form as well */

PB_END_DECLS
#endif
