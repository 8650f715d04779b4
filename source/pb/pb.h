/* pb: objects, strings, containers, buffers, stores, time, formats and modules. This file includes all of it. */
#ifndef PB_H
#define PB_H

/* ./dev lists: includes */
#include "pb_buffer.h"
#include "pb_charset.h"
#include "pb_dict.h"
#include "pb_format.h"
#include "pb_mem.h"
#include "pb_module.h"
#include "pb_obj.h"
#include "pb_store.h"
#include "pb_string.h"
#include "pb_time.h"
#include "pb_types.h"
#include "pb_vector.h"
/* ./dev lists: end */

#endif
