// SipsnMessageFragment: start line, header fields and body of a message. Decoding and encoding have files of their own.
#include "sipsn_message_fragment.h"

#include "sipsn_field_walk.h"
#include "sipsn_iri.h"
#include "sipsn_message_internal.h"
#include "sipsn_method.h"
#include "sipsn_reason_phrase.h"

#include <algorithm>
#include <cstring>

using sipsn::StringFrom;

SIPSN_DEFINE_TYPE( SipsnMessageFragment, sipsnMessageFragment, SIPSN_MESSAGE_FRAGMENT, frag, frag, pb::sortNameAsText )

static constexpr int64_t contentLengthNumber = sipsn::HeaderNumber( "Content-Length" );

SipsnMessageFragment *sipsnMessageFragmentCreate( void ) { return pb::New< SipsnMessageFragment >(); }

SipsnMessageFragment *sipsnMessageFragmentCreateRequest( SipsnVersion *version, PbString *method, PbString *iri )
{
    pb::Ref frag{ sipsnMessageFragmentCreate() };
    sipsnMessageFragmentSetRequest( frag.Slot(), version, method, iri );
    return frag.Detach();
}

SipsnMessageFragment *sipsnMessageFragmentCreateRequestCstr( SipsnVersion *version, const char *method,
                                                             int64_t methodLength, PbString *iri )
{
    return sipsnMessageFragmentCreateRequest( version, StringFrom( method, methodLength ).Get(), iri );
}

SipsnMessageFragment *sipsnMessageFragmentCreateRequestWcstr( SipsnVersion *version, const wchar_t *method,
                                                              int64_t methodLength, PbString *iri )
{
    return sipsnMessageFragmentCreateRequest( version, StringFrom( method, methodLength ).Get(), iri );
}

SipsnMessageFragment *sipsnMessageFragmentCreateResponse( SipsnVersion *version, int64_t sc )
{
    pb::Ref frag{ sipsnMessageFragmentCreate() };
    sipsnMessageFragmentSetResponse( frag.Slot(), version, sc );
    return frag.Detach();
}

SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhrase( SipsnVersion *version, int64_t sc,
                                                                          PbString *reasonPhrase )
{
    pb::Ref frag{ sipsnMessageFragmentCreate() };
    sipsnMessageFragmentSetResponseWithReasonPhrase( frag.Slot(), version, sc, reasonPhrase );
    return frag.Detach();
}

SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhraseCstr( SipsnVersion *version, int64_t sc,
                                                                              const char *reasonPhrase,
                                                                              int64_t     reasonPhraseLength )
{
    return sipsnMessageFragmentCreateResponseWithReasonPhrase( version, sc,
                                                               StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

SipsnMessageFragment *sipsnMessageFragmentCreateResponseWithReasonPhraseWcstr( SipsnVersion *version, int64_t sc,
                                                                               const wchar_t *reasonPhrase,
                                                                               int64_t        reasonPhraseLength )
{
    return sipsnMessageFragmentCreateResponseWithReasonPhrase( version, sc,
                                                               StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

// ---- The kind of start line ------------------------------------------------------------------------

bool sipsnMessageFragmentIsRequest( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );
    return frag->requestMethod && frag->requestIri && frag->version;
}

bool sipsnMessageFragmentIsResponse( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );
    return frag->responseStatusCode != SIPSN_STATUS_CODE_INVALID && frag->responseReasonPhrase;
}

bool sipsnMessageFragmentIsNeitherRequestNorResponse( SipsnMessageFragment *frag )
{
    return !sipsnMessageFragmentHasVersion( frag );
}

void sipsnMessageFragmentSetRequest( SipsnMessageFragment **frag, SipsnVersion *version, PbString *method,
                                     PbString *iri )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( version );
    PB_ASSERT( sipsnMethodOk( method ) );
    PB_ASSERT( sipsnIriOk( iri ) );
    PB_UNSHARE( frag );
    pb::Set( ( *frag )->version, pb::Retain( version ) );
    pb::Set( ( *frag )->requestMethod, pb::Retain( method ) );
    pb::Set( ( *frag )->requestIri, pb::Retain( iri ) );
    pb::Del( ( *frag )->responseStatusCode );
    pb::Del( ( *frag )->responseReasonPhrase );
}

void sipsnMessageFragmentSetRequestCstr( SipsnMessageFragment **frag, SipsnVersion *version, const char *method,
                                         int64_t methodLength, PbString *iri )
{
    sipsnMessageFragmentSetRequest( frag, version, StringFrom( method, methodLength ).Get(), iri );
}

void sipsnMessageFragmentSetRequestWcstr( SipsnMessageFragment **frag, SipsnVersion *version, const wchar_t *method,
                                          int64_t methodLength, PbString *iri )
{
    sipsnMessageFragmentSetRequest( frag, version, StringFrom( method, methodLength ).Get(), iri );
}

void sipsnMessageFragmentSetResponse( SipsnMessageFragment **frag, SipsnVersion *version, int64_t sc )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( version );
    pb::Ref reasonPhrase{ sipsnStatusCodeReasonPhrase( sc ) };
    sipsnMessageFragmentSetResponseWithReasonPhrase( frag, version, sc, reasonPhrase.Get() );
}

void sipsnMessageFragmentSetResponseWithReasonPhrase( SipsnMessageFragment **frag, SipsnVersion *version, int64_t sc,
                                                      PbString *reasonPhrase )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( version );
    PB_ASSERT( sipsnStatusCodeOk( sc ) );
    PB_ASSERT( sipsnReasonPhraseOk( reasonPhrase ) );
    PB_UNSHARE( frag );
    pb::Del( ( *frag )->requestMethod );
    pb::Del( ( *frag )->requestIri );
    pb::Set( ( *frag )->version, pb::Retain( version ) );
    pb::Set( ( *frag )->responseStatusCode, sc );
    pb::Set( ( *frag )->responseReasonPhrase, pb::Retain( reasonPhrase ) );
}

void sipsnMessageFragmentSetResponseWithReasonPhraseCstr( SipsnMessageFragment **frag, SipsnVersion *version,
                                                          int64_t sc, const char *reasonPhrase,
                                                          int64_t reasonPhraseLength )
{
    sipsnMessageFragmentSetResponseWithReasonPhrase( frag, version, sc,
                                                     StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

void sipsnMessageFragmentSetResponseWithReasonPhraseWcstr( SipsnMessageFragment **frag, SipsnVersion *version,
                                                           int64_t sc, const wchar_t *reasonPhrase,
                                                           int64_t reasonPhraseLength )
{
    sipsnMessageFragmentSetResponseWithReasonPhrase( frag, version, sc,
                                                     StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

void sipsnMessageFragmentSetNeitherRequestNorResponse( SipsnMessageFragment **frag )
{
    PB_ASSERT_SLOT( frag );
    PB_UNSHARE( frag );
    pb::Del( ( *frag )->version );
    pb::Del( ( *frag )->requestMethod );
    pb::Del( ( *frag )->requestIri );
    pb::Del( ( *frag )->responseStatusCode );
    pb::Del( ( *frag )->responseReasonPhrase );
}

// ---- Members of the start line ---------------------------------------------------------------------

PbString *sipsnMessageFragmentRequestMethod( SipsnMessageFragment *frag ) { return PB_GET( frag, requestMethod ); }

void sipsnMessageFragmentSetRequestMethod( SipsnMessageFragment **frag, PbString *method )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( (*frag)->requestMethod );
    PB_SET( frag, requestMethod, sipsnMethodOk( method ), pb::Retain( method ) );
}

void sipsnMessageFragmentSetRequestMethodCstr( SipsnMessageFragment **frag, const char *method, int64_t methodLength )
{
    sipsnMessageFragmentSetRequestMethod( frag, StringFrom( method, methodLength ).Get() );
}

void sipsnMessageFragmentSetRequestMethodWcstr( SipsnMessageFragment **frag, const wchar_t *method,
                                                int64_t methodLength )
{
    sipsnMessageFragmentSetRequestMethod( frag, StringFrom( method, methodLength ).Get() );
}

PbString *sipsnMessageFragmentRequestIri( SipsnMessageFragment *frag ) { return PB_GET( frag, requestIri ); }

void sipsnMessageFragmentSetRequestIri( SipsnMessageFragment **frag, PbString *iri )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( (*frag)->requestMethod );
    PB_SET( frag, requestIri, sipsnIriOk( iri ), pb::Retain( iri ) );
}

void sipsnMessageFragmentSetRequestIriCstr( SipsnMessageFragment **frag, const char *iri, int64_t iriLength )
{
    sipsnMessageFragmentSetRequestIri( frag, StringFrom( iri, iriLength ).Get() );
}

void sipsnMessageFragmentSetRequestIriWcstr( SipsnMessageFragment **frag, const wchar_t *iri, int64_t iriLength )
{
    sipsnMessageFragmentSetRequestIri( frag, StringFrom( iri, iriLength ).Get() );
}

int64_t sipsnMessageFragmentResponseStatusCode( SipsnMessageFragment *frag )
{
    return PB_GET( frag, responseStatusCode );
}

void sipsnMessageFragmentSetResponseStatusCode( SipsnMessageFragment **frag, int64_t sc, bool setReasonPhrase )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( (*frag)->responseStatusCode != SIPSN_STATUS_CODE_INVALID );
    PB_SET( frag, responseStatusCode, sipsnStatusCodeOk( sc ), sc );
    if( setReasonPhrase ) pb::Set( ( *frag )->responseReasonPhrase, sipsnStatusCodeReasonPhrase( sc ) );
}

PbString *sipsnMessageFragmentResponseReasonPhrase( SipsnMessageFragment *frag )
{
    return PB_GET( frag, responseReasonPhrase );
}

void sipsnMessageFragmentSetResponseReasonPhrase( SipsnMessageFragment **frag, PbString *reasonPhrase )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( (*frag)->responseReasonPhrase );
    PB_SET( frag, responseReasonPhrase, sipsnReasonPhraseOk( reasonPhrase ), pb::Retain( reasonPhrase ) );
}

void sipsnMessageFragmentSetResponseReasonPhraseCstr( SipsnMessageFragment **frag, const char *reasonPhrase,
                                                      int64_t reasonPhraseLength )
{
    sipsnMessageFragmentSetResponseReasonPhrase( frag, StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

void sipsnMessageFragmentSetResponseReasonPhraseWcstr( SipsnMessageFragment **frag, const wchar_t *reasonPhrase,
                                                       int64_t reasonPhraseLength )
{
    sipsnMessageFragmentSetResponseReasonPhrase( frag, StringFrom( reasonPhrase, reasonPhraseLength ).Get() );
}

SipsnVersion *sipsnMessageFragmentVersion( SipsnMessageFragment *frag ) { return PB_GET( frag, version ); }
bool          sipsnMessageFragmentHasVersion( SipsnMessageFragment *frag ) { return PB_HAS( frag, version ); }

void sipsnMessageFragmentSetVersion( SipsnMessageFragment **frag, SipsnVersion *version )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( (*frag)->version );
    PB_SET( frag, version, version, pb::Retain( version ) );
}

// ---- Header fields ---------------------------------------------------------------------------------

namespace {

// A name in its canonical form. A known one is recognised in the caller's text, without a string of its own.
struct FieldName
{
    int64_t             number;
    pb::Ref< PbString > other; // of another name

    explicit FieldName( PbString *name ) : number{ name ? sipsn::KnownHeaderNumber( name->chs, name->length ) : -1 }
    {
        if( number < 0 ) other = pb::Ref{ sipsnMessageHeaderNameNormalize( name ) };
    }
    FieldName( const wchar_t *name, int64_t length ) : FieldName( StringFrom( name, length ).Get() ) {}
    FieldName( const char *name, int64_t length ) : number{ -1 }
    {
        if( name && length == -1 ) length = int64_t( std::strlen( name ) );
        if( name && length > 0 )
            number = sipsn::KnownHeaderNumber( reinterpret_cast< const PbByte * >( name ), length );
        if( number < 0 ) other = pb::Ref{ sipsnMessageHeaderNameNormalize( StringFrom( name, length ).Get() ) };
    }
};

SipsnMessageHeader *PeekOther( SipsnMessageFragment *frag, PbString *name )
{
    return frag->others ? reinterpret_cast< SipsnMessageHeader * >( pb___DictPeek( frag->others, name ) ) : nullptr;
}

// Where the header of a known name is among the objects, or would be. Few messages have many.
int64_t PlaceOfKnown( SipsnMessageFragment *frag, int64_t number )
{
    const auto headers = sipsn::KnownHeaders( frag );
    size_t     at      = headers.size();
    while( at > 0 && headers[ at - 1 ]->number >= number ) --at;
    return int64_t( at );
}

// A header of lines in the table.
SipsnMessageHeader *MakeHeader( SipsnMessageFragment *frag, int64_t first, int64_t end )
{
    const sipsn::FieldTable *table  = frag->received;
    const int64_t            number = table->NumberAt( first );
    if( end - first == 1 ) return sipsn::CreateHeader( number, sipsn::TextOf( table->ValueAt( first ) ) );

    pb::Ref lines{ pb___VectorCreateWithCapacity( end - first ) };
    for( int64_t at = first; at < end; ++at )
        pb___VectorAppendOwned( lines.Slot(), pb::AsObj( sipsn::TextOf( table->ValueAt( at ) ) ) );
    return sipsn::CreateHeader( number, lines.Detach() );
}

// A new reference, or null.
SipsnMessageHeader *KnownHeader( SipsnMessageFragment *frag, int64_t number )
{
    if( !frag->inReceived.Has( number ) ) return pb::Retain( sipsn::PeekKnown( frag, number ) );
    const auto [ first, count ] = frag->received->Find( number );
    return MakeHeader( frag, first, first + count );
}

SipsnMessageHeader *Header( SipsnMessageFragment *frag, const FieldName &name )
{
    if( name.number >= 0 ) return KnownHeader( frag, name.number );
    return pb::Retain( PeekOther( frag, name.other.Get() ) );
}

bool HasHeader( SipsnMessageFragment *frag, const FieldName &name )
{
    if( name.number >= 0 ) return sipsn::HasKnown( frag, name.number );
    return PeekOther( frag, name.other.Get() ) != nullptr;
}

void DelHeader( SipsnMessageFragment **frag, const FieldName &name )
{
    PB_UNSHARE( frag );
    if( name.number < 0 ) {
        if( ( *frag )->others ) pbDictDelStringKey( &( *frag )->others, name.other.Get() );
        return;
    }
    ( *frag )->inReceived.Remove( name.number );
    if( !( *frag )->inKnown.Has( name.number ) ) return;
    pbVectorDelAt( &( *frag )->known, PlaceOfKnown( *frag, name.number ) );
    ( *frag )->inKnown.Remove( name.number );
}

} // namespace

int64_t sipsn::FirstNumberBehind( PbString *name )
{
    const auto stands = []( std::string_view known, PbString *other ) {
        return std::lexicographical_compare( known.begin(), known.end(), other->chs + 0, other->chs + other->length );
    };
    return std::lower_bound( std::begin( headerNames ), std::end( headerNames ), name, stands ) - headerNames;
}

SipsnMessageHeader *sipsn::PeekKnown( SipsnMessageFragment *frag, int64_t number )
{
    if( !frag->inKnown.Has( number ) ) return nullptr;
    return KnownHeaders( frag )[ size_t( PlaceOfKnown( frag, number ) ) ];
}

SipsnMessageHeader *sipsnMessageFragmentHeader( SipsnMessageFragment *frag, PbString *name )
{
    PB_ASSERT( frag );
    return Header( frag, FieldName{ name } );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderCstr( SipsnMessageFragment *frag, const char *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return Header( frag, { name, nameLength } );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name,
                                                     int64_t nameLength )
{
    PB_ASSERT( frag );
    return Header( frag, { name, nameLength } );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderContentLength( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );
    return KnownHeader( frag, contentLengthNumber );
}

bool sipsnMessageFragmentHasHeader( SipsnMessageFragment *frag, PbString *name )
{
    PB_ASSERT( frag );
    return HasHeader( frag, FieldName{ name } );
}

bool sipsnMessageFragmentHasHeaderCstr( SipsnMessageFragment *frag, const char *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return HasHeader( frag, { name, nameLength } );
}

bool sipsnMessageFragmentHasHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return HasHeader( frag, { name, nameLength } );
}

void sipsnMessageFragmentSetHeader( SipsnMessageFragment **frag, SipsnMessageHeader *header )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( header );
    PB_UNSHARE( frag );
    const int64_t number = header->number;
    if( number < 0 ) {
        if( !( *frag )->others ) ( *frag )->others = pbDictCreate();
        pbDictSetStringKey( &( *frag )->others, header->name, sipsnMessageHeaderObj( header ) );
        return;
    }
    if( !( *frag )->known ) ( *frag )->known = pb___VectorCreateWithCapacity( 8 ); // what a response has at least
    const int64_t place = PlaceOfKnown( *frag, number );
    if( ( *frag )->inKnown.Has( number ) )
        pbVectorSetAt( &( *frag )->known, place, sipsnMessageHeaderObj( header ) );
    else
        pbVectorInsert( &( *frag )->known, place, sipsnMessageHeaderObj( header ) );
    ( *frag )->inKnown.Add( number );
    ( *frag )->inReceived.Remove( number );
}

void sipsnMessageFragmentDelHeader( SipsnMessageFragment **frag, PbString *name )
{
    PB_ASSERT_SLOT( frag );
    DelHeader( frag, FieldName{ name } );
}

void sipsnMessageFragmentDelHeaderCstr( SipsnMessageFragment **frag, const char *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( frag );
    DelHeader( frag, { name, nameLength } );
}

void sipsnMessageFragmentDelHeaderWcstr( SipsnMessageFragment **frag, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( frag );
    DelHeader( frag, { name, nameLength } );
}

void sipsnMessageFragmentClearHeaders( SipsnMessageFragment **frag )
{
    PB_ASSERT_SLOT( frag );
    PB_UNSHARE( frag );
    pb::Del( ( *frag )->received );
    pb::Del( ( *frag )->inReceived );
    pb::Del( ( *frag )->known );
    pb::Del( ( *frag )->inKnown );
    pb::Del( ( *frag )->others );
}

PbVector *sipsnMessageFragmentHeadersVector( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );

    struct Collect
    {
        SipsnMessageFragment *frag;
        pb::Ref< PbVector >   headers{ pbVectorCreate() };

        void Add( SipsnMessageHeader *owned ) { pb___VectorAppendOwned( headers.Slot(), pb::AsObj( owned ) ); }
        void Received( int64_t first, int64_t end )
        {
            for( int64_t at = first; at < end; first = at ) {
                while( at < end && frag->received->NumberAt( at ) == frag->received->NumberAt( first ) ) ++at;
                Add( MakeHeader( frag, first, at ) );
            }
        }
        void Header( SipsnMessageHeader *header ) { Add( pb::Retain( header ) ); }
    } collect{ frag };
    sipsn::FieldWalk{ frag, collect }.All();
    return collect.headers.Detach();
}

// ---- The body --------------------------------------------------------------------------------------

PbBuffer *sipsnMessageFragmentBody( SipsnMessageFragment *frag ) { return PB_GET( frag, body ); }
bool      sipsnMessageFragmentHasBody( SipsnMessageFragment *frag ) { return PB_HAS( frag, body ); }
void      sipsnMessageFragmentSetBody( SipsnMessageFragment **frag, PbBuffer *body )
{
    PB_SET( frag, body, body, pb::Retain( body ) );
}
void sipsnMessageFragmentDelBody( SipsnMessageFragment **frag ) { PB_DEL( frag, body ); }

// ---- Start-up and shutdown -------------------------------------------------------------------------

void sipsn___MessageFragmentStartup( void ) {}
void sipsn___MessageFragmentShutdown( void ) {}
