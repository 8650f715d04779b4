// The registry of modules, their start and stop in order of dependency, and the module of pb itself.
#include "pb_module.h"

#include "pb_internal.h"
#include "product.h"

PB_DEFINE_MODULE( pb, "Base components", "0.0", "", nullptr, nullptr )

namespace {

constexpr int64_t starting = -1; // in PbModule::starts: its dependencies or itself are being started

PbModule *registry = nullptr;

PbModule *Find( std::string_view name )
{
    PbModule *module = registry;
    while( module && module->record->moduleName != name ) module = module->next;
    return module;
}

PbModule *Dependency( std::string_view name )
{
    PbModule *dependency = Find( name );
    PB_ASSERT( dependency );
    return dependency;
}

void StartDependencies( std::string_view names )
{
    while( !names.empty() ) {
        const size_t blank = names.find( ' ' );
        if( blank != 0 ) pbModuleStart( Dependency( names.substr( 0, blank ) ) );
        names.remove_prefix( blank == names.npos ? names.size() : blank + 1 );
    }
}

void StopDependencies( std::string_view names ) // in the reverse order of their start
{
    while( !names.empty() ) {
        const size_t blank = names.rfind( ' ' );
        const size_t first = blank == names.npos ? 0 : blank + 1;
        if( first < names.size() ) pbModuleStop( Dependency( names.substr( first ) ) );
        names = names.substr( 0, blank == names.npos ? 0 : blank );
    }
}

} // namespace

const PbModuleRecord *pbModuleRecord( PbModule *module )
{
    PB_ASSERT( module );
    return module->record;
}

PbModule *pbModuleFind( const char *name )
{
    PB_ASSERT( name );
    return Find( name );
}

void pbModuleStart( PbModule *module )
{
    PB_ASSERT( module );
    PB_ASSERT( module->starts != starting );
    if( module->starts == 0 ) {
        module->starts = starting;
        StartDependencies( module->record->dependencies );
        if( module->startup ) module->startup();
        module->starts = 0;
    }
    ++module->starts;
}

void pbModuleStop( PbModule *module )
{
    PB_ASSERT( module );
    PB_ASSERT( pbModuleStarted( module ) );
    if( --module->starts > 0 ) return;
    if( module->shutdown ) module->shutdown();
    StopDependencies( module->record->dependencies );
}

bool pbModuleStarted( PbModule *module )
{
    PB_ASSERT( module );
    return module->starts > 0;
}

void pb___ModuleRegister( PbModule *module )
{
    PB_ASSERT( module );
    PB_ASSERT( !pbModuleFind( module->record->moduleName ) );
    module->next = registry;
    registry     = module;
}

void pb___ModuleUnregister( PbModule *module )
{
    PbModule **place = &registry;
    while( *place && *place != module ) place = &( *place )->next;
    PB_ASSERT( *place );
    *place = module->next;
}

PbModule *pbModule( void ) { return &pb___module; }
