// Owned: a reference to one of the libraries' objects that is released at the end of its scope.
#pragma once

#include "sipsn/sipsn.h"

#include <utility>

namespace tool {

// How an object is released; one line for each type that the tool holds.
template< class T > inline constexpr void ( *releaseOf )( T * ) = nullptr;

template<> inline constexpr auto releaseOf< PbObj >                     = pbObjRelease;
template<> inline constexpr auto releaseOf< PbString >                  = pbStringRelease;
template<> inline constexpr auto releaseOf< PbBuffer >                  = pbBufferRelease;
template<> inline constexpr auto releaseOf< PbVector >                  = pbVectorRelease;
template<> inline constexpr auto releaseOf< SipsnVersion >              = sipsnVersionRelease;
template<> inline constexpr auto releaseOf< SipsnMessage >              = sipsnMessageRelease;
template<> inline constexpr auto releaseOf< SipsnMessageFragment >      = sipsnMessageFragmentRelease;
template<> inline constexpr auto releaseOf< SipsnMessageHeader >        = sipsnMessageHeaderRelease;
template<> inline constexpr auto releaseOf< SipsnMessageStreamDecoder > = sipsnMessageStreamDecoderRelease;
template<> inline constexpr auto releaseOf< SipsnContact >              = sipsnContactRelease;
template<> inline constexpr auto releaseOf< SipsnGenericParam >         = sipsnGenericParamRelease;
template<> inline constexpr auto releaseOf< SipsnHeaderContact >        = sipsnHeaderContactRelease;
template<> inline constexpr auto releaseOf< SipsnHeaderTo >             = sipsnHeaderToRelease;
template<> inline constexpr auto releaseOf< SipsnUri >                  = sipsnUriRelease;

template< class T, void ( *release )( T * ) = releaseOf< T > > class Owned
{
public:
    Owned() = default;
    explicit Owned( T *owned ) : object_{ owned } {}
    Owned( Owned &&other ) noexcept : object_{ std::exchange( other.object_, nullptr ) } {}
    Owned &operator=( Owned other ) noexcept
    {
        std::swap( object_, other.object_ );
        return *this;
    }
    ~Owned()
    {
        if( object_ ) release( object_ );
    }

    T       *Get() const { return object_; }
    T      **Slot() { return &object_; } // for functions that change the object
    explicit operator bool() const { return object_ != nullptr; }

private:
    T *object_ = nullptr;
};

} // namespace tool
