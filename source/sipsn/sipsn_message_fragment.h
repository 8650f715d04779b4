/* SipsnMessageFragment: a start line or none, header fields and a body or none; RFC 3261 section 7.
 *
 *     request method, request IRI, version              a request line (section 7.1)
 *     response status code, reason phrase, version      a status line (section 7.2)
 *     headers                                           at most one SipsnMessageHeader of a name
 *     body                                              bytes; an empty body is not the same as none
 *
 * A fragment without a start line is a bare block of header fields. A fragment is a request or a response or neither,
 * and only the functions that set a whole start line change that. Headers are kept in ascending order of their
 * canonical names.
 *
 * Getters return a new reference, null when the member is absent, -1 for an absent status code. Changing functions
 * replace *frag by a private copy when it is shared. A null or invalid argument aborts. The Cstr and Wcstr forms take
 * text with its length, -1 meaning up to the terminating zero. Fragments compare by address. */
#ifndef SIPSN_MESSAGE_FRAGMENT_H
#define SIPSN_MESSAGE_FRAGMENT_H

#include "sipsn_message_header.h"
#include "sipsn_status_code.h"
#include "sipsn_version.h"

PB_BEGIN_DECLS

/* ./dev lists: TYPE( SipsnMessageFragment ), see pb_types.h */
typedef struct SipsnMessageFragment SipsnMessageFragment;

PB_API SipsnMessageFragment *sipsnMessageFragmentCreateFrom( SipsnMessageFragment *source );
PB_API SipsnMessageFragment *sipsnMessageFragmentRetain( SipsnMessageFragment *obj );
PB_API void                  sipsnMessageFragmentRelease( SipsnMessageFragment *obj );
PB_API PbObj                *sipsnMessageFragmentObj( SipsnMessageFragment *obj );
PB_API SipsnMessageFragment *sipsnMessageFragmentFrom( PbObj *obj );
PB_API PbSort               *sipsnMessageFragmentSort( void );
PB_API PbString             *sipsnMessageFragmentToString( SipsnMessageFragment *obj );
PB_API int64_t               sipsnMessageFragmentCompare( SipsnMessageFragment *a, SipsnMessageFragment *b );
PB_API bool                  sipsnMessageFragmentEquals( SipsnMessageFragment *a, SipsnMessageFragment *b );
/* ./dev lists: end */

PB_API SipsnMessageFragment *sipsnMessageFragmentCreate( void );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateRequest( SipsnVersion *version, PbString *method,
                                                                PbString *iri );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateRequestCstr( SipsnVersion *version, const char *method,
                                                                    int64_t methodLength, PbString *iri );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateRequestWcstr( SipsnVersion *version, const wchar_t *method,
                                                                     int64_t methodLength, PbString *iri );

/* With the default reason phrase of the code, or with one that is given. */
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateResponse( SipsnVersion *version, int64_t sc );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhrase( SipsnVersion *version, int64_t sc,
                                                                                 PbString *reasonPhrase );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhraseCstr( SipsnVersion *version, int64_t sc,
                                                                                     const char *reasonPhrase,
                                                                                     int64_t     reasonPhraseLength );
PB_API SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhraseWcstr( SipsnVersion *version, int64_t sc,
                                                                                      const wchar_t *reasonPhrase,
                                                                                      int64_t reasonPhraseLength );

/* ---- The kind of start line --------------------------------------------------------------------------- */

/* A request has method, IRI and version; a response status code and reason phrase, whatever its version; a fragment
 * without a version is neither. */
PB_API bool sipsnMessageFragmentIsRequest( SipsnMessageFragment *frag );
PB_API bool sipsnMessageFragmentIsResponse( SipsnMessageFragment *frag );
PB_API bool sipsnMessageFragmentIsNeitherRequestNorResponse( SipsnMessageFragment *frag );

/* Each replaces the whole start line, of whatever kind it was; headers and body stay. */
PB_API void sipsnMessageFragmentSetRequest( SipsnMessageFragment **frag, SipsnVersion *version, PbString *method,
                                            PbString *iri );
PB_API void sipsnMessageFragmentSetRequestCstr( SipsnMessageFragment **frag, SipsnVersion *version, const char *method,
                                                int64_t methodLength, PbString *iri );
PB_API void sipsnMessageFragmentSetRequestWcstr( SipsnMessageFragment **frag, SipsnVersion *version,
                                                 const wchar_t *method, int64_t methodLength, PbString *iri );
PB_API void sipsnMessageFragmentSetResponse( SipsnMessageFragment **frag, SipsnVersion *version, int64_t sc );
PB_API void sipsnMessageFragmentSetResponseWithReasonPhrase( SipsnMessageFragment **frag, SipsnVersion *version,
                                                             int64_t sc, PbString *reasonPhrase );
PB_API void sipsnMessageFragmentSetResponseWithReasonPhraseCstr( SipsnMessageFragment **frag, SipsnVersion *version,
                                                                 int64_t sc, const char *reasonPhrase,
                                                                 int64_t reasonPhraseLength );
PB_API void sipsnMessageFragmentSetResponseWithReasonPhraseWcstr( SipsnMessageFragment **frag, SipsnVersion *version,
                                                                  int64_t sc, const wchar_t *reasonPhrase,
                                                                  int64_t reasonPhraseLength );
PB_API void sipsnMessageFragmentSetNeitherRequestNorResponse( SipsnMessageFragment **frag );

/* ---- Members of the start line ------------------------------------------------------------------------ */

/* These change a start line and never make one: a setter aborts when the fragment has no request method (method and
 * IRI), no status code, no reason phrase or no version, respectively. */
PB_API PbString *sipsnMessageFragmentRequestMethod( SipsnMessageFragment *frag );
PB_API void      sipsnMessageFragmentSetRequestMethod( SipsnMessageFragment **frag, PbString *method );
PB_API void      sipsnMessageFragmentSetRequestMethodCstr( SipsnMessageFragment **frag, const char *method,
                                                           int64_t methodLength );
PB_API void      sipsnMessageFragmentSetRequestMethodWcstr( SipsnMessageFragment **frag, const wchar_t *method,
                                                            int64_t methodLength );

/* The request target as an IRI; the wire has its URI form. */
PB_API PbString *sipsnMessageFragmentRequestIri( SipsnMessageFragment *frag );
PB_API void      sipsnMessageFragmentSetRequestIri( SipsnMessageFragment **frag, PbString *iri );
PB_API void sipsnMessageFragmentSetRequestIriCstr( SipsnMessageFragment **frag, const char *iri, int64_t iriLength );
PB_API void sipsnMessageFragmentSetRequestIriWcstr( SipsnMessageFragment **frag, const wchar_t *iri,
                                                    int64_t iriLength );

/* `setReasonPhrase`: also replace the reason phrase by the default one of the new code. */
PB_API int64_t sipsnMessageFragmentResponseStatusCode( SipsnMessageFragment *frag );
PB_API void sipsnMessageFragmentSetResponseStatusCode( SipsnMessageFragment **frag, int64_t sc, bool setReasonPhrase );

PB_API PbString *sipsnMessageFragmentResponseReasonPhrase( SipsnMessageFragment *frag );
PB_API void      sipsnMessageFragmentSetResponseReasonPhrase( SipsnMessageFragment **frag, PbString *reasonPhrase );
PB_API void      sipsnMessageFragmentSetResponseReasonPhraseCstr( SipsnMessageFragment **frag, const char *reasonPhrase,
                                                                  int64_t reasonPhraseLength );
PB_API void sipsnMessageFragmentSetResponseReasonPhraseWcstr( SipsnMessageFragment **frag, const wchar_t *reasonPhrase,
                                                              int64_t reasonPhraseLength );

PB_API SipsnVersion *sipsnMessageFragmentVersion( SipsnMessageFragment *frag );
PB_API bool          sipsnMessageFragmentHasVersion( SipsnMessageFragment *frag );
PB_API void          sipsnMessageFragmentSetVersion( SipsnMessageFragment **frag, SipsnVersion *version );

/* ---- Header fields ------------------------------------------------------------------------------------ */

/* The header of a name, in whatever form the name is given, or null. */
PB_API SipsnMessageHeader *sipsnMessageFragmentHeader( SipsnMessageFragment *frag, PbString *name );
PB_API SipsnMessageHeader *sipsnMessageFragmentHeaderCstr( SipsnMessageFragment *frag, const char *name,
                                                           int64_t nameLength );
PB_API SipsnMessageHeader *sipsnMessageFragmentHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name,
                                                            int64_t nameLength );
PB_API SipsnMessageHeader *sipsnMessageFragmentHeaderContentLength( SipsnMessageFragment *frag );

PB_API bool sipsnMessageFragmentHasHeader( SipsnMessageFragment *frag, PbString *name );
PB_API bool sipsnMessageFragmentHasHeaderCstr( SipsnMessageFragment *frag, const char *name, int64_t nameLength );
PB_API bool sipsnMessageFragmentHasHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name, int64_t nameLength );

/* Inserts the header, or replaces the one of its name with all of its lines. */
PB_API void sipsnMessageFragmentSetHeader( SipsnMessageFragment **frag, SipsnMessageHeader *header );

/* An absent name is not an error. */
PB_API void sipsnMessageFragmentDelHeader( SipsnMessageFragment **frag, PbString *name );
PB_API void sipsnMessageFragmentDelHeaderCstr( SipsnMessageFragment **frag, const char *name, int64_t nameLength );
PB_API void sipsnMessageFragmentDelHeaderWcstr( SipsnMessageFragment **frag, const wchar_t *name, int64_t nameLength );
PB_API void sipsnMessageFragmentClearHeaders( SipsnMessageFragment **frag );

/* All headers in a new vector, in ascending order of their names. */
PB_API PbVector *sipsnMessageFragmentHeadersVector( SipsnMessageFragment *frag );

/* ---- The body ----------------------------------------------------------------------------------------- */

PB_API PbBuffer *sipsnMessageFragmentBody( SipsnMessageFragment *frag );
PB_API bool      sipsnMessageFragmentHasBody( SipsnMessageFragment *frag );
PB_API void      sipsnMessageFragmentSetBody( SipsnMessageFragment **frag, PbBuffer *body );
PB_API void      sipsnMessageFragmentDelBody( SipsnMessageFragment **frag );

/* ---- Wire form ---------------------------------------------------------------------------------------- */

/* Decodes a whole message: start line or none, header fields, the empty line and the body. Null when it is malformed or
 * its Content-Length exceeds the bytes after the empty line. Without a Content-Length all those bytes are the body;
 * with one, the rest is ignored, and 0 gives no body. Lines end at CR LF, a lone CR or a lone LF; a line that begins
 * with a blank continues the field before it (RFC 3261 section 7.3.1). */
PB_API SipsnMessageFragment *sipsnMessageFragmentTryDecode( PbBuffer *buf );

/* Decodes what comes before the empty line. *contentLength, which may be null, is set to the value of the last
 * Content-Length, or to -1 when there is none or the result is null. */
PB_API SipsnMessageFragment *sipsnMessageFragmentTryDecodeHeaders( PbBuffer *buf, int64_t *contentLength );

/* The wire form as a new buffer: the start line, if any; one line "Name: value" for each line of each header; one
 * Content-Length with the true length of the body, whatever the fragment's own says; the empty line; the body. Aborts
 * for a response without a version. */
PB_API PbBuffer *sipsnMessageFragmentEncode( SipsnMessageFragment *frag );

PB_END_DECLS
#endif
