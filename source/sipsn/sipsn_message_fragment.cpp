// SipsnMessageFragment: start line, header fields and body of a message. Decoding and encoding have files of their own.
#include "sipsn_message_fragment.h"

#include "sipsn_header_names.h"
#include "sipsn_iri.h"
#include "sipsn_message_internal.h"
#include "sipsn_method.h"
#include "sipsn_reason_phrase.h"

#include <cstring>

using sipsn::StringFrom;

SIPSN_DEFINE_TYPE( SipsnMessageFragment, sipsnMessageFragment, SIPSN_MESSAGE_FRAGMENT, frag, frag, pb::sortNameAsText )

static constexpr int64_t contentLengthNumber = sipsn::HeaderNumber( "Content-Length" );

SipsnMessageFragment *sipsnMessageFragmentCreate( void )
{
    SipsnMessageFragment *frag = pb::New< SipsnMessageFragment >();
    frag->headers              = pb___DictCreateWithCapacity( 8 ); // what a response has at least
    return frag;
}

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

// The canonical form of a name. A known one is recognised in the caller's text, without a string of its own.
static pb::Ref< PbString > Canonical( PbString *name ) { return pb::Ref{ sipsnMessageHeaderNameNormalize( name ) }; }
static pb::Ref< PbString > Canonical( const wchar_t *name, int64_t length )
{
    return Canonical( StringFrom( name, length ).Get() );
}
static pb::Ref< PbString > Canonical( const char *name, int64_t length )
{
    if( name && length == -1 ) length = int64_t( std::strlen( name ) );
    const sipsn::HeaderNameToken token =
        name && length > 0 ? sipsn::ScanHeaderName( reinterpret_cast< const PbByte * >( name ), length )
                           : sipsn::HeaderNameToken{ 0, -1 };
    if( token.number >= 0 && token.length == length )
        return pb::Ref{ pb::Retain( sipsn::HeaderNameAt( token.number ) ) };
    return Canonical( StringFrom( name, length ).Get() );
}

static void DelCanonical( SipsnMessageFragment **frag, pb::Ref< PbString > canonical )
{
    PB_UNSHARE( frag );
    pbDictDelStringKey( &( *frag )->headers, canonical.Get() );
}

SipsnMessageHeader *sipsnMessageFragmentHeader( SipsnMessageFragment *frag, PbString *name )
{
    PB_ASSERT( frag );
    return pb::Retain( sipsn::PeekHeader( frag, Canonical( name ).Get() ) );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderCstr( SipsnMessageFragment *frag, const char *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return pb::Retain( sipsn::PeekHeader( frag, Canonical( name, nameLength ).Get() ) );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name,
                                                     int64_t nameLength )
{
    PB_ASSERT( frag );
    return pb::Retain( sipsn::PeekHeader( frag, Canonical( name, nameLength ).Get() ) );
}

SipsnMessageHeader *sipsn::PeekContentLength( SipsnMessageFragment *frag )
{
    return PeekHeader( frag, HeaderNameAt( contentLengthNumber ) );
}

SipsnMessageHeader *sipsnMessageFragmentHeaderContentLength( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );
    return pb::Retain( sipsn::PeekContentLength( frag ) );
}

bool sipsnMessageFragmentHasHeader( SipsnMessageFragment *frag, PbString *name )
{
    PB_ASSERT( frag );
    return sipsn::PeekHeader( frag, Canonical( name ).Get() ) != nullptr;
}

bool sipsnMessageFragmentHasHeaderCstr( SipsnMessageFragment *frag, const char *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return sipsn::PeekHeader( frag, Canonical( name, nameLength ).Get() ) != nullptr;
}

bool sipsnMessageFragmentHasHeaderWcstr( SipsnMessageFragment *frag, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT( frag );
    return sipsn::PeekHeader( frag, Canonical( name, nameLength ).Get() ) != nullptr;
}

void sipsnMessageFragmentSetHeader( SipsnMessageFragment **frag, SipsnMessageHeader *header )
{
    PB_ASSERT_SLOT( frag );
    PB_ASSERT( header );
    PB_UNSHARE( frag );
    pb::Del( ( *frag )->mayHold );
    pb::Del( ( *frag )->mayHold64 );
    pbDictSetStringKey( &( *frag )->headers, header->name, sipsnMessageHeaderObj( header ) );
}

void sipsnMessageFragmentDelHeader( SipsnMessageFragment **frag, PbString *name )
{
    PB_ASSERT_SLOT( frag );
    DelCanonical( frag, Canonical( name ) );
}

void sipsnMessageFragmentDelHeaderCstr( SipsnMessageFragment **frag, const char *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( frag );
    DelCanonical( frag, Canonical( name, nameLength ) );
}

void sipsnMessageFragmentDelHeaderWcstr( SipsnMessageFragment **frag, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( frag );
    DelCanonical( frag, Canonical( name, nameLength ) );
}

void sipsnMessageFragmentClearHeaders( SipsnMessageFragment **frag )
{
    PB_ASSERT_SLOT( frag );
    PB_UNSHARE( frag );
    pbDictClear( &( *frag )->headers );
}

PbVector *sipsnMessageFragmentHeadersVector( SipsnMessageFragment *frag )
{
    PB_ASSERT( frag );
    return pbDictValuesVector( frag->headers );
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
