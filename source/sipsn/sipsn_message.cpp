// SipsnMessage: a fragment that is a request or a response. Nearly every function does what the fragment's of that name
// does.
#include "sipsn_message.h"

#include "sipsn_message_internal.h"

SIPSN_DEFINE_TYPE( SipsnMessage, sipsnMessage, SIPSN_MESSAGE, msg, msg, pb::sortNameAsText )

// Takes over the reference of a request or a response.
static SipsnMessage *CreateOwning( SipsnMessageFragment *fragment )
{
    SipsnMessage *msg = pb::New< SipsnMessage >();
    msg->fragment     = fragment;
    return msg;
}

SipsnMessage *sipsnMessageCreate( SipsnMessageFragment *fragment )
{
    PB_ASSERT( sipsnMessageFragmentIsRequest( fragment ) || sipsnMessageFragmentIsResponse( fragment ) );
    return CreateOwning( pb::Retain( fragment ) );
}

SipsnMessage *sipsnMessageCreateRequest( SipsnVersion *version, PbString *method, PbString *iri )
{
    return CreateOwning( sipsnMessageFragmentCreateRequest( version, method, iri ) );
}

SipsnMessage *sipsnMessageCreateRequestCstr( SipsnVersion *version, const char *method, int64_t methodLength,
                                             PbString *iri )
{
    return CreateOwning( sipsnMessageFragmentCreateRequestCstr( version, method, methodLength, iri ) );
}

SipsnMessage *sipsnMessageCreateRequestWcstr( SipsnVersion *version, const wchar_t *method, int64_t methodLength,
                                              PbString *iri )
{
    return CreateOwning( sipsnMessageFragmentCreateRequestWcstr( version, method, methodLength, iri ) );
}

SipsnMessage *sipsnMessageCreateResponse( SipsnVersion *version, int64_t sc )
{
    return CreateOwning( sipsnMessageFragmentCreateResponse( version, sc ) );
}

SipsnMessage *sipsnMessageCreateResponseWithReasonPhrase( SipsnVersion *version, int64_t sc, PbString *reasonPhrase )
{
    return CreateOwning( sipsnMessageFragmentCreateResponseWithReasonPhrase( version, sc, reasonPhrase ) );
}

SipsnMessage *sipsnMessageCreateResponseWithReasonPhraseCstr( SipsnVersion *version, int64_t sc,
                                                              const char *reasonPhrase, int64_t reasonPhraseLength )
{
    return CreateOwning(
        sipsnMessageFragmentCreateResponseWithReasonPhraseCstr( version, sc, reasonPhrase, reasonPhraseLength ) );
}

SipsnMessage *sipsnMessageCreateResponseWithReasonPhraseWcstr( SipsnVersion *version, int64_t sc,
                                                               const wchar_t *reasonPhrase, int64_t reasonPhraseLength )
{
    return CreateOwning(
        sipsnMessageFragmentCreateResponseWithReasonPhraseWcstr( version, sc, reasonPhrase, reasonPhraseLength ) );
}

SipsnMessageFragment *sipsnMessageFragment( SipsnMessage *msg ) { return PB_GET( msg, fragment ); }

bool sipsnMessageIsRequest( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentIsRequest( msg->fragment );
}

bool sipsnMessageIsResponse( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentIsResponse( msg->fragment );
}

void sipsnMessageSetRequest( SipsnMessage **msg, SipsnVersion *version, PbString *method, PbString *iri )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequest( &( *msg )->fragment, version, method, iri );
}

void sipsnMessageSetRequestCstr( SipsnMessage **msg, SipsnVersion *version, const char *method, int64_t methodLength,
                                 PbString *iri )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestCstr( &( *msg )->fragment, version, method, methodLength, iri );
}

void sipsnMessageSetRequestWcstr( SipsnMessage **msg, SipsnVersion *version, const wchar_t *method,
                                  int64_t methodLength, PbString *iri )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestWcstr( &( *msg )->fragment, version, method, methodLength, iri );
}

void sipsnMessageSetResponse( SipsnMessage **msg, SipsnVersion *version, int64_t sc )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponse( &( *msg )->fragment, version, sc );
}

void sipsnMessageSetResponseWithReasonPhrase( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                              PbString *reasonPhrase )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseWithReasonPhrase( &( *msg )->fragment, version, sc, reasonPhrase );
}

void sipsnMessageSetResponseWithReasonPhraseCstr( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                                  const char *reasonPhrase, int64_t reasonPhraseLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseWithReasonPhraseCstr( &( *msg )->fragment, version, sc, reasonPhrase,
                                                         reasonPhraseLength );
}

void sipsnMessageSetResponseWithReasonPhraseWcstr( SipsnMessage **msg, SipsnVersion *version, int64_t sc,
                                                   const wchar_t *reasonPhrase, int64_t reasonPhraseLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseWithReasonPhraseWcstr( &( *msg )->fragment, version, sc, reasonPhrase,
                                                          reasonPhraseLength );
}

PbString *sipsnMessageRequestMethod( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentRequestMethod( msg->fragment );
}

void sipsnMessageSetRequestMethod( SipsnMessage **msg, PbString *method )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestMethod( &( *msg )->fragment, method );
}

void sipsnMessageSetRequestMethodCstr( SipsnMessage **msg, const char *method, int64_t methodLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestMethodCstr( &( *msg )->fragment, method, methodLength );
}

void sipsnMessageSetRequestMethodWcstr( SipsnMessage **msg, const wchar_t *method, int64_t methodLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestMethodWcstr( &( *msg )->fragment, method, methodLength );
}

PbString *sipsnMessageRequestIri( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentRequestIri( msg->fragment );
}

void sipsnMessageSetRequestIri( SipsnMessage **msg, PbString *iri )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestIri( &( *msg )->fragment, iri );
}

void sipsnMessageSetRequestIriCstr( SipsnMessage **msg, const char *iri, int64_t iriLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestIriCstr( &( *msg )->fragment, iri, iriLength );
}

void sipsnMessageSetRequestIriWcstr( SipsnMessage **msg, const wchar_t *iri, int64_t iriLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetRequestIriWcstr( &( *msg )->fragment, iri, iriLength );
}

int64_t sipsnMessageResponseStatusCode( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentResponseStatusCode( msg->fragment );
}

void sipsnMessageSetResponseStatusCode( SipsnMessage **msg, int64_t sc, bool setReasonPhrase )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseStatusCode( &( *msg )->fragment, sc, setReasonPhrase );
}

PbString *sipsnMessageResponseReasonPhrase( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentResponseReasonPhrase( msg->fragment );
}

void sipsnMessageSetResponseReasonPhrase( SipsnMessage **msg, PbString *reasonPhrase )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseReasonPhrase( &( *msg )->fragment, reasonPhrase );
}

void sipsnMessageSetResponseReasonPhraseCstr( SipsnMessage **msg, const char *reasonPhrase, int64_t reasonPhraseLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseReasonPhraseCstr( &( *msg )->fragment, reasonPhrase, reasonPhraseLength );
}

void sipsnMessageSetResponseReasonPhraseWcstr( SipsnMessage **msg, const wchar_t *reasonPhrase,
                                               int64_t reasonPhraseLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetResponseReasonPhraseWcstr( &( *msg )->fragment, reasonPhrase, reasonPhraseLength );
}

SipsnVersion *sipsnMessageVersion( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentVersion( msg->fragment );
}

void sipsnMessageSetVersion( SipsnMessage **msg, SipsnVersion *version )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetVersion( &( *msg )->fragment, version );
}

SipsnMessageHeader *sipsnMessageHeader( SipsnMessage *msg, PbString *name )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHeader( msg->fragment, name );
}

SipsnMessageHeader *sipsnMessageHeaderCstr( SipsnMessage *msg, const char *name, int64_t nameLength )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHeaderCstr( msg->fragment, name, nameLength );
}

SipsnMessageHeader *sipsnMessageHeaderWcstr( SipsnMessage *msg, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHeaderWcstr( msg->fragment, name, nameLength );
}

bool sipsnMessageHasHeader( SipsnMessage *msg, PbString *name )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHasHeader( msg->fragment, name );
}

bool sipsnMessageHasHeaderCstr( SipsnMessage *msg, const char *name, int64_t nameLength )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHasHeaderCstr( msg->fragment, name, nameLength );
}

bool sipsnMessageHasHeaderWcstr( SipsnMessage *msg, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHasHeaderWcstr( msg->fragment, name, nameLength );
}

void sipsnMessageSetHeader( SipsnMessage **msg, SipsnMessageHeader *header )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetHeader( &( *msg )->fragment, header );
}

void sipsnMessageDelHeader( SipsnMessage **msg, PbString *name )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentDelHeader( &( *msg )->fragment, name );
}

void sipsnMessageDelHeaderCstr( SipsnMessage **msg, const char *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentDelHeaderCstr( &( *msg )->fragment, name, nameLength );
}

void sipsnMessageDelHeaderWcstr( SipsnMessage **msg, const wchar_t *name, int64_t nameLength )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentDelHeaderWcstr( &( *msg )->fragment, name, nameLength );
}

PbVector *sipsnMessageHeadersVector( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHeadersVector( msg->fragment );
}

PbBuffer *sipsnMessageBody( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentBody( msg->fragment );
}

bool sipsnMessageHasBody( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentHasBody( msg->fragment );
}

void sipsnMessageSetBody( SipsnMessage **msg, PbBuffer *body )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentSetBody( &( *msg )->fragment, body );
}

void sipsnMessageDelBody( SipsnMessage **msg )
{
    PB_ASSERT_SLOT( msg );
    PB_UNSHARE( msg );
    sipsnMessageFragmentDelBody( &( *msg )->fragment );
}

// ---- Wire form -------------------------------------------------------------------------------------

SipsnMessage *sipsnMessageTryDecode( PbBuffer *buf )
{
    pb::Ref fragment{ sipsnMessageFragmentTryDecode( buf ) };
    if( !fragment ) return nullptr;
    if( !sipsnMessageFragmentIsRequest( fragment.Get() ) && !sipsnMessageFragmentIsResponse( fragment.Get() ) )
        return nullptr;
    return CreateOwning( fragment.Detach() );
}

PbBuffer *sipsnMessageEncode( SipsnMessage *msg )
{
    PB_ASSERT( msg );
    return sipsnMessageFragmentEncode( msg->fragment );
}
