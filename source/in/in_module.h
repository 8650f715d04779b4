/* The library as a module; see pb_module.h. */
#ifndef IN_MODULE_H
#define IN_MODULE_H

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API PbModule *inModule( void );

PB_END_DECLS
#endif
