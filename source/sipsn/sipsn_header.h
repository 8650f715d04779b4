/* What every header type declares beyond the standard functions. A header type is one header field decoded: it is made
 * from the lines of a SipsnMessageHeader, or from a message that holds one, and written back the same way.
 *
 * Results are new references. A null argument aborts, as does an index out of range; indexes count from 0. Changing
 * functions replace *hdr or *msg by a private copy when it is shared. Header types compare by their members in order;
 * the text is that of the encoded lines.
 *
 * ./dev lists writes out the declarations that follow, here those of Via and Allow, in the header of each type. */
#ifndef SIPSN_HEADER_H
#define SIPSN_HEADER_H

#include "sipsn_message.h"

/* HEADER( SipsnHeaderVia ) declares, beyond TYPE( SipsnHeaderVia ):
 *
 *     SipsnHeaderVia     *sipsnHeaderViaTryDecode( SipsnMessageHeader *header );     -- null when malformed
 *     SipsnMessageHeader *sipsnHeaderViaEncode( SipsnHeaderVia *hdr );
 *     SipsnHeaderVia     *sipsnHeaderViaTryDecodeFromMessage( SipsnMessage *msg );   -- null when absent or malformed
 *     void                sipsnHeaderViaEncodeToMessage( SipsnHeaderVia *hdr, SipsnMessage **msg );
 *     bool                sipsnHeaderViaPresentInMessage( SipsnMessage *msg );
 *     void                sipsnHeaderViaRemoveFromMessage( SipsnMessage **msg );
 *     PbStore            *sipsnHeaderViaStore( SipsnHeaderVia *hdr );                -- the lines, without the name
 *     SipsnHeaderVia     *sipsnHeaderViaTryRestore( PbStore *store );                -- null when malformed
 *
 * TryDecode aborts for a header field of another name. EncodeToMessage replaces the message's field of that name, also
 * by one without lines; such a field is present, and is null when it is decoded from the message. */

/* LIST( Vias, Via, SipsnVia ) of SipsnHeaderVia declares what all lists have:
 *
 *     int64_t sipsnHeaderViaViasLength( SipsnHeaderVia *hdr );
 *     void    sipsnHeaderViaAppendVia( SipsnHeaderVia **hdr, SipsnVia *via );
 *     void    sipsnHeaderViaPrependVia( SipsnHeaderVia **hdr, SipsnVia *via );
 *     void    sipsnHeaderViaInsertVia( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via ); -- before the one at index
 *     void    sipsnHeaderViaSetViaAt( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via );
 *     void    sipsnHeaderViaDelViaAt( SipsnHeaderVia **hdr, int64_t index ); */

/* SET( Methods, Method ) of SipsnHeaderAllow declares what all token sets have:
 *
 *     int64_t   sipsnHeaderAllowMethodsLength( SipsnHeaderAllow *hdr );
 *     PbString *sipsnHeaderAllowMethodAt( SipsnHeaderAllow *hdr, int64_t index );
 *     PbVector *sipsnHeaderAllowMethodsVector( SipsnHeaderAllow *hdr );                    -- all, as a new vector
 *     void      sipsnHeaderAllowSetMethodsVector( SipsnHeaderAllow **hdr, PbVector *vec ); -- the texts of its elements
 *     bool      sipsnHeaderAllowHasMethod( SipsnHeaderAllow *hdr, PbString *method );
 *     void      sipsnHeaderAllowSetMethod( SipsnHeaderAllow **hdr, PbString *method );
 *     void      sipsnHeaderAllowDelMethod( SipsnHeaderAllow **hdr, PbString *method );     -- an absent one is no error
 *     void      sipsnHeaderAllowClearMethods( SipsnHeaderAllow **hdr );
 *
 * Tokens stand in ascending order; an invalid one aborts. */

#endif
