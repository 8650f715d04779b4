// The functions that every header type has, by the type's name and over plain objects.
#pragma once

#include "exports.h"
#include "sipsn/sipsn.h"

struct HeaderFunctions
{
    explicit HeaderFunctions( const std::string &type ) : prefix{ "sipsnHeader" + type } {} // "Via"

    template< class F > F *Find( const std::string &rest ) const { return Exported< F >( prefix + rest ); }

    std::string prefix;

    PbObj *( *tryDecode )( SipsnMessageHeader * )      = Find< PbObj *( SipsnMessageHeader      *) >( "TryDecode" );
    SipsnMessageHeader *( *encode )( PbObj *hdr )      = Find< SipsnMessageHeader *( PbObj      *) >( "Encode" );
    PbObj *( *tryDecodeFromMessage )( SipsnMessage * ) = Find< PbObj *( SipsnMessage * ) >( "TryDecodeFromMessage" );
    void ( *encodeToMessage )( PbObj         *hdr,
                               SipsnMessage **msg )    = Find< void( PbObj *, SipsnMessage    **) >( "EncodeToMessage" );
    bool ( *presentInMessage )( SipsnMessage *msg )    = Find< bool( SipsnMessage    *) >( "PresentInMessage" );
    void ( *removeFromMessage )( SipsnMessage **msg )  = Find< void( SipsnMessage  **) >( "RemoveFromMessage" );
    PbStore *( *store )( PbObj *hdr )                  = Find< PbStore *( PbObj                  *) >( "Store" );
    PbObj *( *tryRestore )( PbStore *store )           = Find< PbObj *( PbStore           *) >( "TryRestore" );
};
