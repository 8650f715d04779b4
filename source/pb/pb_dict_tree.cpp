// The weight-balanced tree of large dictionaries.
#include "pb_dict_tree.h"

namespace pb {

namespace {

// Neither side of a node weighs more than `delta` times the other; a single rotation restores that when the inner
// grandchild weighs less than `gamma` times the outer one, else a double one does. The pair 3 and 2 is proven for
// insertion and deletion alike (Hirai and Yamamoto, "Balancing weight-balanced trees").
constexpr int64_t delta = 3;
constexpr int64_t gamma = 2;

int64_t SizeOf( const DictNode *node ) { return node ? node->size : 0; }
int64_t Weight( const DictNode *node ) { return SizeOf( node ) + 1; }

void CountAnew( DictNode *node ) { node->size = SizeOf( node->left ) + 1 + SizeOf( node->right ); }

DictNode *NewNode( DictEntry entry )
{
    auto *node = static_cast< DictNode * >( pbMemAllocN( 1, sizeof( DictNode ) ) );
    *node      = { .entry = entry, .left = nullptr, .right = nullptr, .size = 1 };
    return node;
}

// Lifts the child on the heavy side, given as the member that leads there, above the node.
void Rotate( DictNode *&node, DictNode *DictNode::*heavy, DictNode *DictNode::*light )
{
    DictNode *child = node->*heavy;
    node->*heavy    = child->*light;
    child->*light   = node;
    CountAnew( node );
    CountAnew( child );
    node = child;
}

void RotateFrom( DictNode *&node, DictNode *DictNode::*heavy, DictNode *DictNode::*light )
{
    DictNode *&child = node->*heavy;
    if( Weight( child->*light ) >= gamma * Weight( child->*heavy ) ) Rotate( child, light, heavy );
    Rotate( node, heavy, light );
}

// After one entry was inserted or removed below the node.
void Balance( DictNode *&node )
{
    if( Weight( node->left ) > delta * Weight( node->right ) )
        RotateFrom( node, &DictNode::left, &DictNode::right );
    else if( Weight( node->right ) > delta * Weight( node->left ) )
        RotateFrom( node, &DictNode::right, &DictNode::left );
    else
        CountAnew( node );
}

// Takes the node with the lowest key out of a tree that is not empty.
DictNode *DetachFirst( DictNode *&node )
{
    if( !node->left ) {
        DictNode *first = node;
        node            = first->right;
        return first;
    }
    DictNode *first = DetachFirst( node->left );
    Balance( node );
    return first;
}

DictEntry RemoveRoot( DictNode *&node )
{
    DictNode       *root    = node;
    const DictEntry removed = root->entry;
    if( root->left && root->right ) {
        DictNode *next = DetachFirst( root->right );
        next->left     = root->left;
        next->right    = root->right;
        node           = next;
        Balance( node );
    } else
        node = root->left ? root->left : root->right;
    pbMemFree( root );
    return removed;
}

} // namespace

DictNode *BuildTree( const DictEntry *entries, int64_t count )
{
    if( count == 0 ) return nullptr;
    const int64_t middle = count / 2;
    DictNode     *node   = NewNode( entries[ middle ] );
    node->left           = BuildTree( entries, middle );
    node->right          = BuildTree( entries + middle + 1, count - middle - 1 );
    node->size           = count;
    return node;
}

DictNode *CopyTree( const DictNode *node )
{
    if( !node ) return nullptr;
    DictNode *copy = NewNode( { Retain( node->entry.key ), Retain( node->entry.value ) } );
    copy->left     = CopyTree( node->left );
    copy->right    = CopyTree( node->right );
    copy->size     = node->size;
    return copy;
}

void FreeTree( DictNode *node )
{
    if( !node ) return;
    FreeTree( node->left );
    Drop( node->entry );
    FreeTree( node->right );
    pbMemFree( node );
}

void FreeNodes( DictNode *node )
{
    if( !node ) return;
    FreeNodes( node->left );
    FreeNodes( node->right );
    pbMemFree( node );
}

DictEntry *FindInTree( DictNode *node, const PbString *key )
{
    while( node ) {
        const int order = CompareKeys( key, node->entry.key );
        if( order == 0 ) return &node->entry;
        node = order < 0 ? node->left : node->right;
    }
    return nullptr;
}

DictEntry *TreeEntryAt( DictNode *node, int64_t index )
{
    for( ;; ) {
        const int64_t before = SizeOf( node->left );
        if( index == before ) return &node->entry;
        if( index < before )
            node = node->left;
        else {
            index -= before + 1;
            node = node->right;
        }
    }
}

void VisitTree( DictNode *node, void ( *visit )( void *context, PbObj *value ), void *context )
{
    for( ; node; node = node->right ) {
        VisitTree( node->left, visit, context );
        visit( context, node->entry.value );
    }
}

void SetInTree( DictNode *&node, DictEntry owned )
{
    if( !node ) {
        node = NewNode( owned );
        return;
    }
    const int order = CompareKeys( owned.key, node->entry.key );
    if( order == 0 ) {
        Replace( node->entry, owned );
        return;
    }
    SetInTree( order < 0 ? node->left : node->right, owned );
    Balance( node );
}

bool RemoveFromTree( DictNode *&node, const PbString *key, DictEntry &removed )
{
    if( !node ) return false;
    const int order = CompareKeys( key, node->entry.key );
    if( order == 0 ) {
        removed = RemoveRoot( node );
        return true;
    }
    if( !RemoveFromTree( order < 0 ? node->left : node->right, key, removed ) ) return false;
    Balance( node );
    return true;
}

} // namespace pb
