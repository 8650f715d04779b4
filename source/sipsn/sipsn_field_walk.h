// Going through the header fields of a message in the order of their names, wherever they are kept. C++ only; never
// installed.
#pragma once

#include "sipsn_message_internal.h"

namespace sipsn {

// The number of the first known name behind another name.
int64_t FirstNumberBehind( PbString *name );

// Visits the header fields of a fragment: `visit.Received( first, end )` for lines of the table, as many names at once
// as stand together, `visit.Header( header )` for an object.
template< class Visit > class FieldWalk
{
public:
    FieldWalk( SipsnMessageFragment *frag, Visit &visit )
        : frag_{ frag }, visit_{ visit }, known_{ KnownHeaders( frag ) }, lineCount_{ frag->received
                                                                                          ? frag->received->count
                                                                                          : 0 }
    {}

    void All()
    {
        if( frag_->others ) pb___DictVisitValues( frag_->others, VisitOther, this );
        KnownBefore( headerNameCount );
    }

private:
    static void VisitOther( void *walk, PbObj *field )
    {
        auto *self   = static_cast< FieldWalk   *>( walk );
        auto *header = reinterpret_cast< SipsnMessageHeader * >( field );
        self->KnownBefore( FirstNumberBehind( header->name ) );
        self->visit_.Header( header );
    }

    void KnownBefore( int64_t limit )
    {
        for( ; !known_.empty() && known_.front()->number < limit; known_ = known_.subspan( 1 ) ) {
            if( line_ < lineCount_ ) ReceivedBefore( known_.front()->number );
            visit_.Header( known_.front() );
        }
        if( line_ < lineCount_ ) ReceivedBefore( limit );
    }

    // Lines that are there no longer stand between those that are.
    void ReceivedBefore( int64_t limit )
    {
        const NameSet there   = frag_->inReceived;
        const auto   *numbers = frag_->received->Numbers();
        int64_t       first = line_, at = line_;
        for( ; at < lineCount_ && numbers[ at ] < limit; ++at ) {
            if( there.Has( numbers[ at ] ) ) continue;
            if( at > first ) visit_.Received( first, at );
            first = at + 1;
        }
        if( at > first ) visit_.Received( first, at );
        line_ = at;
    }

    SipsnMessageFragment                  *frag_;
    Visit                                 &visit_;
    std::span< SipsnMessageHeader *const > known_; // that are left
    int64_t                                lineCount_;
    int64_t                                line_ = 0; // the first that is left
};

} // namespace sipsn
