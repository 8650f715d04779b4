/* The schema: what types and header fields there are, and what their members are, for programs that do not know a type
 * by name. It describes the types of the other headers; the objects are theirs.
 *
 *     const SipsnSchemaType *type = sipsnSchemaTypeByName( "SipsnVia" );
 *     int64_t                port = sipsnSchemaMemberIndex( type, "port" );
 *     if( !sipsnSchemaTrySetNumber( &via, port, 5060 ) ) ...
 *
 * Descriptions live as long as the library and are never released. An index out of range, an object of a type that has
 * no description, and null where a function does not say otherwise abort. What a caller may have from outside never
 * aborts: names, texts and the values of members are refused. Objects are passed as PbObj and mean what they mean in
 * the functions of their types: results are new references, and a changed object that is shared is replaced by a
 * private copy first. */
#ifndef SIPSN_SCHEMA_H
#define SIPSN_SCHEMA_H

#include "sipsn_message_header.h"

PB_BEGIN_DECLS

/* What a member holds. Numbers are read and set as int64_t, everything else as an object. */
enum
{
    SIPSN_SCHEMA_KIND_TEXT        = 1,  /* PbString */
    SIPSN_SCHEMA_KIND_INTEGER     = 2,  /* a number from `lowest` to `highest` */
    SIPSN_SCHEMA_KIND_THOUSANDTHS = 3,  /* a number, a thousand of which are 1: 500 stands for 0.5 */
    SIPSN_SCHEMA_KIND_FLAG        = 4,  /* a number, 0 or 1 */
    SIPSN_SCHEMA_KIND_TIME        = 5,  /* PbTime, a valid one */
    SIPSN_SCHEMA_KIND_ADDRESS     = 6,  /* InAddress */
    SIPSN_SCHEMA_KIND_VERSION     = 7,  /* SipsnVersion */
    SIPSN_SCHEMA_KIND_PARAMETERS  = 8,  /* SipsnGenericParams */
    SIPSN_SCHEMA_KIND_LIST        = 9,  /* PbVector of texts, each a value of `type` where that is not null */
    SIPSN_SCHEMA_KIND_SET         = 10, /* the same, each text once and in ascending order */
    SIPSN_SCHEMA_KIND_OBJECT      = 11  /* an object of `type` */
};

/* How the lines of a header field hold what its type keeps. */
enum
{
    SIPSN_SCHEMA_SHAPE_SINGLE     = 1, /* one value, on the last line */
    SIPSN_SCHEMA_SHAPE_LIST       = 2, /* values of the item type, in order */
    SIPSN_SCHEMA_SHAPE_TOKEN_LIST = 3, /* tokens, in order */
    SIPSN_SCHEMA_SHAPE_TOKEN_SET  = 4  /* tokens, each once */
};

typedef struct SipsnSchemaType SipsnSchemaType;

typedef struct SipsnSchemaMember
{
    const char            *name; /* "port", as JSON and bindings call it */
    int64_t                kind;
    bool                   optional;        /* may be absent: null, or -1 */
    int64_t                lowest, highest; /* of a number */
    const char            *param;           /* the name of a member that is a parameter on the wire, else null */
    const char            *holds;           /* what it holds in words, such as "a host"; else null */
    const SipsnSchemaType *type;            /* of an object or of a list's items, else null */
} SipsnSchemaMember;

struct SipsnSchemaType
{
    const char *name;        /* "SipsnVia" */
    int64_t     memberCount; /* 0 for types whose members are not described: messages, fragments, the stream decoder */
};

typedef struct SipsnSchemaFamily
{
    const char            *name;    /* the canonical name, "Via" */
    const char            *compact; /* the compact form, "V"; null when there is none */
    int64_t                shape;
    const char            *origin;   /* the document that defines it, "RFC 3261" */
    const SipsnSchemaType *type;     /* of the whole header field */
    const SipsnSchemaType *itemType; /* of a list's values, else null */
} SipsnSchemaFamily;

/* ---- What there is ---- */

/* All types, in no promised order. ByName gives null for an unknown name; Of gives an object's type. */
PB_API int64_t                sipsnSchemaTypesLength( void );
PB_API const SipsnSchemaType *sipsnSchemaTypeAt( int64_t index );
PB_API const SipsnSchemaType *sipsnSchemaTypeByName( const char *name );
PB_API const SipsnSchemaType *sipsnSchemaTypeOf( PbObj *obj );

/* A text in canonical form of a value of the type that has every member; of the type of a header field, a line with its
 * name. Null for types without text. */
PB_API const char *sipsnSchemaExample( const SipsnSchemaType *type );

/* All header fields that have a type, in the order of their names. ByName takes any letter case and compact forms, and
 * gives null for a header field without a type. */
PB_API int64_t                  sipsnSchemaFamiliesLength( void );
PB_API const SipsnSchemaFamily *sipsnSchemaFamilyAt( int64_t index );
PB_API const SipsnSchemaFamily *sipsnSchemaFamilyByName( PbString *name );

/* The members of a type; -1 for an unknown name. */
PB_API const SipsnSchemaMember *sipsnSchemaMemberAt( const SipsnSchemaType *type, int64_t member );
PB_API int64_t                  sipsnSchemaMemberIndex( const SipsnSchemaType *type, const char *name );

/* ---- Members of an object ---- */

/* A number, -1 when it is absent; an object, null when it is absent. A member of the other kind aborts. */
PB_API int64_t sipsnSchemaNumber( PbObj *obj, int64_t member );
PB_API PbObj  *sipsnSchemaObject( PbObj *obj, int64_t member );
PB_API bool    sipsnSchemaHas( PbObj *obj, int64_t member );

/* False, with nothing changed, where the member cannot hold that: a number out of range, an object of another type, a
 * text that the member's setter would abort on, any text with CR or LF. A list takes texts and objects of its item
 * type. TryDel is false for a member that is not optional. */
PB_API bool sipsnSchemaTrySetNumber( PbObj **obj, int64_t member, int64_t number );
PB_API bool sipsnSchemaTrySetObject( PbObj **obj, int64_t member, PbObj *value );
PB_API bool sipsnSchemaTryDel( PbObj **obj, int64_t member );

/* An object without members, to be filled by the functions above: what every type's own Create demands is absent.
 * Complete says whether it is all there; an object that is not complete may be given to the functions of the schema
 * only. */
PB_API PbObj *sipsnSchemaCreate( const SipsnSchemaType *type );
PB_API bool   sipsnSchemaComplete( PbObj *obj );

/* ---- Text ---- */

/* Whether values of the type have a text of their own on the wire, as those of lists have. */
PB_API bool sipsnSchemaHasText( const SipsnSchemaType *type );

/* The value that the whole text is, or null; and its canonical text. A type without text aborts. */
PB_API PbObj    *sipsnSchemaTryDecode( const SipsnSchemaType *type, PbString *text );
PB_API PbString *sipsnSchemaEncode( PbObj *value );

/* What TryDecode and Encode of the family's own type do. */
PB_API PbObj              *sipsnSchemaTryDecodeHeader( const SipsnSchemaFamily *family, SipsnMessageHeader *header );
PB_API SipsnMessageHeader *sipsnSchemaEncodeHeader( const SipsnSchemaFamily *family, PbObj *hdr );

/* ---- Why not ---- */

/* Why the text is not a value of the type, in words ("expected a host after the transport"), and, where `place` is not
 * null, the index of the character at which it stops to be one; null when it is. */
PB_API PbString *sipsnSchemaWhyNot( const SipsnSchemaType *type, PbString *text, int64_t *place );

/* The same for a line of a header field by itself; of a list whose items are values, these are looked into, which
 * decoding the header field does not do. */
PB_API PbString *sipsnSchemaWhyNotLine( const SipsnSchemaFamily *family, PbString *line, int64_t *place );

PB_END_DECLS
#endif
