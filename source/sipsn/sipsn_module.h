/* The library as a module: start it before the first call of any other function, stop it after the last.
 *
 *     pbModuleStart( sipsnModule() );
 *     ...
 *     pbModuleStop( sipsnModule() );
 */
#ifndef SIPSN_MODULE_H
#define SIPSN_MODULE_H

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API PbModule *sipsnModule( void );

PB_END_DECLS
#endif
