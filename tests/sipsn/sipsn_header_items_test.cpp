// The law of lists and sets, for every header type that is one: each operation does to the items what it does to the
// same texts in a container of the C++ library, in a private copy.
#include "schema_text.h"

#include <functional>
#include <set>

namespace {

// What the functions of a list are named after.
struct Nouns
{
    std::string type, items, item;
    bool        isSet;
};

const Nouns families[] = {
#define VALUES( Type, name, compact, rfc, Items, Item, Value ) { #Type, #Items, #Item, false },
#define TOKENS( Type, name, compact, rfc, Items, Item, shape )                                                         \
    { #Type, #Items, #Item, std::string_view{ #shape } == "set" },
#define SINGLE( Type, name, compact, rfc )
#include "sipsn/sipsn_families.inc"
};

// A header of a list type and the functions that it has.
class Items
{
public:
    explicit Items( const Nouns &nouns )
        : nouns_{ nouns }, type_{ sipsnSchemaTypeByName( ( "SipsnHeader" + nouns.type ).c_str() ) },
          hdr_{ Find< PbObj *() >( "Create" )() }
    {}

    template< class F > F *Find( const std::string &name ) const
    {
        F *found = Exported< F >( PrefixOf( type_ ) + name );
        EXPECT_TRUE( found ) << name;
        return found;
    }

    template< class... A > void Change( const std::string &verb, A... arguments )
    {
        Find< void( PbObj **, A... ) >( verb )( hdr_.Slot(), arguments... );
    }

    // Two headers have a name of their own for it.
    void Clear()
    {
        const std::string verb = nouns_.type == "Warning" ? "WarningsClear" : "Clear" + nouns_.items;
        Change( nouns_.type == "Contact" ? "Clear" : verb );
    }

    // The texts of the items, which all that gives items agree on.
    std::vector< std::string > Texts( PbObj *hdr ) const
    {
        std::vector< std::string > texts;
        const bool                 areValues = sipsnSchemaMemberAt( type_, 0 )->type != nullptr;
        const int64_t              length    = Find< int64_t( PbObj                 *) >( nouns_.items + "Length" )( hdr );
        const auto at = Find< PbObj *( PbObj *, int64_t ) >( ( areValues ? "TryDecode" : "" ) + nouns_.item + "At" );
        for( int64_t index = 0; index < length; ++index ) texts.push_back( TextOf( ObjPtr{ at( hdr, index ) }.Get() ) );

        const std::string vector = SchemaValue( hdr, 0 ).Text();
        EXPECT_EQ( vector, TextOf( Vector( texts ).Get() ) );
        if( const auto all = Exported< PbObj *( PbObj * ) >( PrefixOf( type_ ) + nouns_.items + "Vector" ) ) {
            EXPECT_EQ( vector, TextOf( ObjPtr{ all( hdr ) }.Get() ) );
        }
        return texts;
    }

    // Items, at least two that differ: values as they are read, or tokens.
    std::vector< ObjPtr > Samples() const
    {
        std::vector< ObjPtr >    samples;
        const SipsnSchemaMember *member = sipsnSchemaMemberAt( type_, 0 );
        if( member->type ) {
            for( int which : { 0, 1 } ) {
                pb::Ref text{ sipsnSchemaEncode( Filled( member->type, which ).Get() ) };
                samples.push_back( ObjPtr{ sipsnSchemaTryDecode( member->type, text.Get() ) } );
            }
        } else
            for( const Value &value : Candidates( member ) ) {
                ObjPtr hdr{ sipsnSchemaCreate( type_ ) };
                if( TrySet( hdr, 0, value ) )
                    samples.push_back( ObjPtr{ pbVectorAt( pbVectorFrom( value.object.Get() ), 0 ) } );
            }
        return samples;
    }

    // Does something to the header, which is shared, and to its texts.
    template< class Texts > void Check( Texts &expected, const std::function< void() > &change )
    {
        const auto   before = this->Texts( hdr_.Get() );
        const ObjPtr kept   = Retained( hdr_.Get() );
        change();
        EXPECT_EQ( this->Texts( hdr_.Get() ), std::vector< std::string >( expected.begin(), expected.end() ) );
        EXPECT_EQ( this->Texts( kept.Get() ), before );
    }

    PbObj *Get() const { return hdr_.Get(); }

private:
    Nouns                  nouns_;
    const SipsnSchemaType *type_;
    ObjPtr                 hdr_;
};

TEST( SipsnHeaderItems, ListsAreVectors )
{
    for( const Nouns &nouns : families ) {
        if( nouns.isSet ) continue;
        SCOPED_TRACE( nouns.type );
        Items                      list{ nouns };
        std::vector< std::string > texts;
        const auto                 samples = list.Samples();
        ASSERT_GE( samples.size(), 2u );
        for( int64_t step = 0; step < 20; ++step ) {
            const ObjPtr     &sample = samples[ size_t( step * step ) % samples.size() ];
            const std::string text   = TextOf( sample.Get() );
            const int64_t     index  = step % int64_t( texts.size() + 1 );
            const auto        place  = [ & ]( int64_t at ) { return texts.begin() + at; };
            list.Check( texts, [ & ] {
                list.Change( "Append" + nouns.item, sample.Get() );
                texts.push_back( text );
            } );
            list.Check( texts, [ & ] {
                list.Change( "Insert" + nouns.item, index, sample.Get() );
                texts.insert( place( index ), text );
            } );
            list.Check( texts, [ & ] {
                list.Change( "Set" + nouns.item + "At", index, samples[ 1 ].Get() );
                texts[ size_t( index ) ] = TextOf( samples[ 1 ].Get() );
            } );
            list.Check( texts, [ & ] {
                list.Change( "Prepend" + nouns.item, sample.Get() );
                texts.insert( texts.begin(), text );
            } );
            list.Check( texts, [ & ] {
                list.Change( "Del" + nouns.item + "At", index );
                texts.erase( place( index ) );
            } );
        }
        list.Check( texts, [ & ] {
            list.Clear();
            texts.clear();
        } );
    }
}

TEST( SipsnHeaderItems, SetsAreSets )
{
    for( const Nouns &nouns : families ) {
        if( !nouns.isSet ) continue;
        SCOPED_TRACE( nouns.type );
        Items                   set{ nouns };
        std::set< std::string > texts;
        const auto              has = set.Find< bool( PbObj *, PbObj              *) >( "Has" + nouns.item );
        for( const ObjPtr &sample : set.Samples() ) {
            ObjPtr one{ sipsnSchemaCreate( sipsnSchemaTypeOf( set.Get() ) ) };
            ASSERT_TRUE( sipsnSchemaTrySetObject( one.Slot(), 0, Vector( { TextOf( sample.Get() ) } ).Get() ) );
            const std::string normal = set.Texts( one.Get() ).front();
            EXPECT_EQ( has( set.Get(), sample.Get() ), texts.contains( normal ) );
            set.Check( texts, [ & ] {
                set.Change( "Set" + nouns.item, sample.Get() );
                set.Change( "Set" + nouns.item, sample.Get() );
                texts.insert( normal );
                EXPECT_TRUE( has( set.Get(), sample.Get() ) );
            } );
            if( texts.size() % 3 == 0 )
                set.Check( texts, [ & ] {
                    set.Change( "Del" + nouns.item, sample.Get() );
                    set.Change( "Del" + nouns.item, sample.Get() );
                    texts.erase( normal );
                    EXPECT_FALSE( has( set.Get(), sample.Get() ) );
                } );
        }
        EXPECT_GE( texts.size(), 2u );
        set.Check( texts, [ & ] {
            set.Clear();
            texts.clear();
        } );
    }
}

TEST( SipsnHeaderItemsDeathTest, MisuseAborts )
{
    for( const Nouns &nouns : families ) {
        SCOPED_TRACE( nouns.type );
        Items        list{ nouns };
        PbObj *const none  = nullptr;
        const auto   fails = [ & ]( const std::string &verb, auto... arguments ) {
            EXPECT_NE( AbortOf( [ & ] { list.Change( verb, arguments... ); } ), "" ) << verb;
        };
        for( const char *verb : { "Append", "Prepend", "Set", "Del" } )
            if( Exported< void >( "sipsnHeader" + nouns.type + verb + nouns.item ) ) fails( verb + nouns.item, none );
        if( nouns.isSet ) continue;
        const ObjPtr sample = std::move( list.Samples()[ 0 ] );
        for( int64_t index : { -1, 1 } ) {
            fails( "Insert" + nouns.item, index, sample.Get() );
            fails( "Set" + nouns.item + "At", index, sample.Get() );
            fails( "Del" + nouns.item + "At", index );
        }
        fails( "Insert" + nouns.item, int64_t{ 0 }, none );
    }
}

} // namespace
