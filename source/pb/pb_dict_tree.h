// What a large dictionary keeps its entries in: a search tree balanced by weight, so that one number per node serves
// both the balance and the access by index. C++ only; never installed.
#pragma once

#include "pb_frame.h"

namespace pb {

struct DictEntry // owns both references
{
    PbString *key;
    PbObj    *value;
};

inline void Drop( DictEntry &entry )
{
    ReleaseAndPoison( entry.key );
    ReleaseAndPoison( entry.value );
}

// Stores the new entry before it releases the old one, which may be the same.
inline void Replace( DictEntry &entry, DictEntry owned )
{
    std::swap( entry, owned );
    Release( owned.key );
    Release( owned.value );
}

// Negative, 0 or positive, by code point. The first character mostly tells.
inline int CompareKeys( const PbString *a, const PbString *b )
{
    if( a == b ) return 0;
    if( a->length > 0 && b->length > 0 && a->chs[ 0 ] != b->chs[ 0 ] ) return a->chs[ 0 ] < b->chs[ 0 ] ? -1 : 1;
    const int64_t common = a->length < b->length ? a->length : b->length;
    for( int64_t i = 1; i < common; ++i )
        if( a->chs[ i ] != b->chs[ i ] ) return a->chs[ i ] < b->chs[ i ] ? -1 : 1;
    return ( a->length > b->length ) - ( a->length < b->length );
}

struct DictNode
{
    DictEntry entry;
    DictNode *left;
    DictNode *right;
    int64_t   size; // how many entries stand in the node and below it
};

// A tree is its root, null when empty. No function goes deeper than the tree, at most two and a half times the binary
// logarithm of its size.
DictNode  *BuildTree( const DictEntry *entries, int64_t count ); // from ascending keys; takes over the references
DictNode  *CopyTree( const DictNode *node );
void       FreeTree( DictNode *node );
void       FreeNodes( DictNode *node );                       // but not what they hold
DictEntry *FindInTree( DictNode *node, const PbString *key ); // null when absent
DictEntry *TreeEntryAt( DictNode *node, int64_t index );
void       VisitTree( DictNode *node, void ( *visit )( void *context, PbObj *value ), void *context );
void       SetInTree( DictNode *&node, DictEntry owned );
bool       RemoveFromTree( DictNode *&node, const PbString *key, DictEntry &removed ); // false when absent

} // namespace pb
