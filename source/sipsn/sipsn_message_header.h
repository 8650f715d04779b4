/* SipsnMessageHeader: one header field of a message as it is on the wire, RFC 3261 section 7.3.
 *
 *     name    in canonical form; never absent
 *     lines   the values, one for each occurrence of the field, in order, each without CR and LF; never absent, may be
 * empty
 *
 * The canonical form of a name is the long form of a compact name (RFC 3261 section 7.3.3), in lower case but for
 * the first letter of each word: "i" and "Call-ID" are both "Call-Id". Wherever a name is taken, every form of it will
 * do.
 *
 * Lines count from 0; an index out of range aborts, as do a null argument, an invalid name and a line that holds CR or
 * LF. Getters return new references. Changing functions replace *header by a private copy when it is shared. The Cstr
 * and Wcstr forms take text with its length, -1 meaning up to the terminating zero; the Format forms build the line
 * (pb_format.h).
 *
 * Headers compare by name, then by lines. The text is one line "Name: value" for each value, CR LF between them. */
#ifndef SIPSN_MESSAGE_HEADER_H
#define SIPSN_MESSAGE_HEADER_H

#include "pb/pb.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnMessageHeader ), see pb_types.h */
typedef struct SipsnMessageHeader SipsnMessageHeader;

PB_API SipsnMessageHeader *sipsnMessageHeaderCreateFrom( SipsnMessageHeader *source );
PB_API SipsnMessageHeader *sipsnMessageHeaderRetain( SipsnMessageHeader *obj );
PB_API void                sipsnMessageHeaderRelease( SipsnMessageHeader *obj );
PB_API PbObj              *sipsnMessageHeaderObj( SipsnMessageHeader *obj );
PB_API SipsnMessageHeader *sipsnMessageHeaderFrom( PbObj *obj );
PB_API PbSort             *sipsnMessageHeaderSort( void );
PB_API PbString           *sipsnMessageHeaderToString( SipsnMessageHeader *obj );
PB_API int64_t             sipsnMessageHeaderCompare( SipsnMessageHeader *a, SipsnMessageHeader *b );
PB_API bool                sipsnMessageHeaderEquals( SipsnMessageHeader *a, SipsnMessageHeader *b );
/* ./dev lists: end */

/* A header without lines. */
PB_API SipsnMessageHeader *sipsnMessageHeaderCreate( PbString *name );
PB_API SipsnMessageHeader *sipsnMessageHeaderCreateCstr( const char *name, int64_t nameLength );
PB_API SipsnMessageHeader *sipsnMessageHeaderCreateWcstr( const wchar_t *name, int64_t nameLength );

/* ---- The name ---------------------------------------------------------------------------------------- */

/* A name is a token; its canonical form comes as a new reference. */
PB_API bool      sipsnMessageHeaderNameOk( PbString *name );
PB_API PbString *sipsnMessageHeaderNameNormalize( PbString *name );

PB_API PbString *sipsnMessageHeaderName( SipsnMessageHeader *header );
PB_API void      sipsnMessageHeaderSetName( SipsnMessageHeader **header, PbString *name );
PB_API void      sipsnMessageHeaderSetNameCstr( SipsnMessageHeader **header, const char *name, int64_t nameLength );
PB_API void      sipsnMessageHeaderSetNameWcstr( SipsnMessageHeader **header, const wchar_t *name, int64_t nameLength );

/* Whether this is the header of that name, in whatever form it is given. */
PB_API bool sipsnMessageHeaderNameEquals( SipsnMessageHeader *header, PbString *name );
PB_API bool sipsnMessageHeaderNameEqualsCstr( SipsnMessageHeader *header, const char *name, int64_t nameLength );
PB_API bool sipsnMessageHeaderNameEqualsWcstr( SipsnMessageHeader *header, const wchar_t *name, int64_t nameLength );

/* ---- The lines --------------------------------------------------------------------------------------- */

/* A line is any text without CR and LF, the empty one included. */
PB_API bool sipsnMessageHeaderLineOk( PbString *line );

PB_API PbVector *sipsnMessageHeaderLinesVector( SipsnMessageHeader *header );
PB_API void      sipsnMessageHeaderSetLinesVector( SipsnMessageHeader **header, PbVector *lines );

PB_API int64_t   sipsnMessageHeaderLinesLength( SipsnMessageHeader *header );
PB_API PbString *sipsnMessageHeaderLineAt( SipsnMessageHeader *header, int64_t index );
PB_API PbString *sipsnMessageHeaderLastLine( SipsnMessageHeader *header ); /* null when there are no lines */

PB_API void sipsnMessageHeaderAppendLine( SipsnMessageHeader **header, PbString *value );
PB_API void sipsnMessageHeaderAppendLineCstr( SipsnMessageHeader **header, const char *line, int64_t lineLength );
PB_API void sipsnMessageHeaderAppendLineWcstr( SipsnMessageHeader **header, const wchar_t *line, int64_t lineLength );
PB_API void sipsnMessageHeaderAppendLineFormat( SipsnMessageHeader **header, PbString *format, ... );
PB_API void sipsnMessageHeaderAppendLineFormatCstr( SipsnMessageHeader **header, const char *format,
                                                    int64_t formatLength, ... );
PB_API void sipsnMessageHeaderAppendLineFormatWcstr( SipsnMessageHeader **header, const wchar_t *format,
                                                     int64_t formatLength, ... );

PB_API void sipsnMessageHeaderSetLineAt( SipsnMessageHeader **header, int64_t index, PbString *value );
PB_API void sipsnMessageHeaderSetLineAtCstr( SipsnMessageHeader **header, int64_t index, const char *line,
                                             int64_t lineLength );
PB_API void sipsnMessageHeaderSetLineAtWcstr( SipsnMessageHeader **header, int64_t index, const wchar_t *line,
                                              int64_t lineLength );
PB_API void sipsnMessageHeaderSetLineAtFormat( SipsnMessageHeader **header, int64_t index, PbString *format, ... );
PB_API void sipsnMessageHeaderSetLineAtFormatCstr( SipsnMessageHeader **header, int64_t index, const char *format,
                                                   int64_t formatLength, ... );
PB_API void sipsnMessageHeaderSetLineAtFormatWcstr( SipsnMessageHeader **header, int64_t index, const wchar_t *format,
                                                    int64_t formatLength, ... );

PB_API void sipsnMessageHeaderDelLineAt( SipsnMessageHeader **header, int64_t index );

/* ---- Stores ------------------------------------------------------------------------------------------ */

/* A store of the value "name" and the sub-store "lines". */
PB_API PbStore *sipsnMessageHeaderStore( SipsnMessageHeader *header );

/* Null when there is no valid "name"; a store with a valid "name" and without "lines" aborts. */
PB_API SipsnMessageHeader *sipsnMessageHeaderTryRestore( PbStore *store );

/* The lines alone: each under its index, zero-padded so that the order of keys is that of lines. */
PB_API PbStore *sipsnMessageHeaderStoreLines( SipsnMessageHeader *header );

/* A header of that name with every value of the store that is a valid line, in the store's order. */
PB_API SipsnMessageHeader *sipsnMessageHeaderRestoreLines( PbString *name, PbStore *store );
PB_API SipsnMessageHeader *sipsnMessageHeaderRestoreLinesCstr( const char *name, int64_t nameLength, PbStore *store );
PB_API SipsnMessageHeader *sipsnMessageHeaderRestoreLinesWcstr( const wchar_t *name, int64_t nameLength,
                                                                PbStore *store );

PB_END_DECLS
#endif
