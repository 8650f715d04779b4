/* The library as a module; see pb_module.h. */
#ifndef IRI_MODULE_H
#define IRI_MODULE_H

#include "pb/pb.h"

PB_BEGIN_DECLS

PB_API PbModule *iriModule( void );

PB_END_DECLS
#endif
