/* Modules: libraries that are started before use and stopped after it.
 *
 * A library registers its module when it is loaded. Starting a module first starts those that its record names as
 * dependencies; a module that is started n times stops at the nth stop. Start and stop are called from one thread at a
 * time, with no other call into the libraries in progress. */
#ifndef PB_MODULE_H
#define PB_MODULE_H

#include "pb_obj.h"

PB_BEGIN_DECLS

/* What identifies a build. Texts are never null. */
struct PbModuleRecord
{
    int64_t     recordVersion; /* the layout of this record: 2 */
    const char *productName;
    const char *productTraceName;
    int64_t     productMajor;
    int64_t     productMinor;
    int64_t     productPatch;
    const char *buildTime; /* "UTC 2024-09-30 09:46:59 (Monday)" */
    const char *companyName;
    const char *rightsNotice;
    const char *moduleName;
    const char *moduleDescription;
    const char *moduleVersion;
    const char *dependencies; /* module names, separated by blanks */
    const char *reserved;
    const char *versionString; /* "###QK_VERSION### " and what identifies product, platform and module */
};

PB_API const PbModuleRecord *pbModuleRecord( PbModule *module );

/* The registered module of that name, or null. */
PB_API PbModule *pbModuleFind( const char *name );

/* Starts a module and, before it, what it depends on; stops it and, after it, what it depends on. An unregistered
 * dependency, a circle of dependencies, or a stop without a start aborts. */
PB_API void pbModuleStart( PbModule *module );
PB_API void pbModuleStop( PbModule *module );
PB_API bool pbModuleStarted( PbModule *module );

/* Called by a library as it is loaded and unloaded. */
PB_API void pb___ModuleRegister( PbModule *module );
PB_API void pb___ModuleUnregister( PbModule *module );

/* pb's own module. */
PB_API PbModule *pbModule( void );

PB_END_DECLS
#endif
