/* zepm.h: numerical operations on small matrices and vectors, one object or arrays of objects.
 *
 *   zepm_types.h        types, status codes, how names and layouts are read
 *   zepm_elementwise.h  Add, Sub
 *   zepmGetLibVersion   below
 */
#ifndef ZEPM_H
#define ZEPM_H

#include "zepm_elementwise.h"
#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* The library's version record: constant, never null, not to be written or freed. */
const LibVersion* zepmGetLibVersion(void);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
