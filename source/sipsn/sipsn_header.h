/* What every header type declares beyond the standard functions. A header type is one header field decoded: it is made
 * from the lines of a SipsnMessageHeader, or from a message that holds one, and written back the same way.
 *
 * Results are new references. A null argument aborts, as does an index out of range; indexes count from 0. Changing
 * functions replace *hdr or *msg by a private copy when it is shared. Header types compare by their members in order;
 * the text is that of the encoded lines. */
#ifndef SIPSN_HEADER_H
#define SIPSN_HEADER_H

#include "sipsn_message.h"

/* clang-format off */

/* SIPSN_DECLARE_HEADER( SipsnHeaderVia, sipsnHeaderVia ) declares, beyond PB_DECLARE_TYPE:
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
#define SIPSN_DECLARE_HEADER( Type, prefix )                                                                           \
    PB_DECLARE_TYPE( Type, prefix )                                                                                    \
    PB_API Type               *prefix##TryDecode( SipsnMessageHeader *header );                                        \
    PB_API SipsnMessageHeader *prefix##Encode( Type *hdr );                                                            \
    PB_API Type               *prefix##TryDecodeFromMessage( SipsnMessage *msg );                                      \
    PB_API void                prefix##EncodeToMessage( Type *hdr, SipsnMessage **msg );                               \
    PB_API bool                prefix##PresentInMessage( SipsnMessage *msg );                                          \
    PB_API void                prefix##RemoveFromMessage( SipsnMessage **msg );                                        \
    PB_API PbStore            *prefix##Store( Type *hdr );                                                             \
    PB_API Type               *prefix##TryRestore( PbStore *store );

/* SIPSN_DECLARE_LIST( SipsnHeaderVia, sipsnHeaderVia, Vias, Via, SipsnVia, via ) declares what all lists have:
 *
 *     int64_t sipsnHeaderViaViasLength( SipsnHeaderVia *hdr );
 *     void    sipsnHeaderViaAppendVia( SipsnHeaderVia **hdr, SipsnVia *via );
 *     void    sipsnHeaderViaPrependVia( SipsnHeaderVia **hdr, SipsnVia *via );
 *     void    sipsnHeaderViaInsertVia( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via ); -- before the one at index
 *     void    sipsnHeaderViaSetViaAt( SipsnHeaderVia **hdr, int64_t index, SipsnVia *via );
 *     void    sipsnHeaderViaDelViaAt( SipsnHeaderVia **hdr, int64_t index ); */
#define SIPSN_DECLARE_LIST( Type, prefix, Items, Item, Value, value )                                                  \
    PB_API int64_t prefix##Items##Length( Type *hdr );                                                                 \
    PB_API void    prefix##Append##Item( Type **hdr, Value *value );                                                   \
    PB_API void    prefix##Prepend##Item( Type **hdr, Value *value );                                                  \
    PB_API void    prefix##Insert##Item( Type **hdr, int64_t index, Value *value );                                    \
    PB_API void    prefix##Set##Item##At( Type **hdr, int64_t index, Value *value );                                   \
    PB_API void    prefix##Del##Item##At( Type **hdr, int64_t index );

/* SIPSN_DECLARE_SET( SipsnHeaderAllow, sipsnHeaderAllow, Methods, Method, method ) declares what all token sets have.
 * Tokens stand in ascending order; an invalid one aborts.
 *
 *     int64_t   sipsnHeaderAllowMethodsLength( SipsnHeaderAllow *hdr );
 *     PbString *sipsnHeaderAllowMethodAt( SipsnHeaderAllow *hdr, int64_t index );
 *     PbVector *sipsnHeaderAllowMethodsVector( SipsnHeaderAllow *hdr );                    -- all, as a new vector
 *     void      sipsnHeaderAllowSetMethodsVector( SipsnHeaderAllow **hdr, PbVector *vec ); -- the texts of its elements
 *     bool      sipsnHeaderAllowHasMethod( SipsnHeaderAllow *hdr, PbString *method );
 *     void      sipsnHeaderAllowSetMethod( SipsnHeaderAllow **hdr, PbString *method );
 *     void      sipsnHeaderAllowDelMethod( SipsnHeaderAllow **hdr, PbString *method );     -- an absent one is no error
 *     void      sipsnHeaderAllowClearMethods( SipsnHeaderAllow **hdr ); */
#define SIPSN_DECLARE_SET( Type, prefix, Items, Item, token )                                                          \
    PB_API int64_t   prefix##Items##Length( Type *hdr );                                                               \
    PB_API PbString *prefix##Item##At( Type *hdr, int64_t index );                                                     \
    PB_API PbVector *prefix##Items##Vector( Type *hdr );                                                               \
    PB_API void      prefix##Set##Items##Vector( Type **hdr, PbVector *vec );                                          \
    PB_API bool      prefix##Has##Item( Type *hdr, PbString *token );                                                  \
    PB_API void      prefix##Set##Item( Type **hdr, PbString *token );                                                 \
    PB_API void      prefix##Del##Item( Type **hdr, PbString *token );                                                 \
    PB_API void      prefix##Clear##Items( Type **hdr );

/* clang-format on */

#endif
