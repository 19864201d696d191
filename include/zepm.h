/* zepm.h: numerical operations on small matrices and vectors, one object or arrays of objects.
 *
 *   zepm_types.h        types, status codes, how names and layouts are read
 *   zepm_elementwise.h  Add, Sub, Mul by a constant
 *   zepm_movement.h     Copy, Extract, LoadIdentity, Transpose
 *   zepm_vector.h       inner and vector products, norms, traces, linear combinations
 *   zepm_product.h      products of matrices
 *   zepm_solver.h       direct solvers
 *   zepm_eigen.h        eigenproblems
 *   zepm_geometry.h     fixed-size 3D geometry
 *   zepmGetLibVersion   below
 */
#ifndef ZEPM_H
#define ZEPM_H

#include "zepm_eigen.h"
#include "zepm_elementwise.h"
#include "zepm_geometry.h"
#include "zepm_movement.h"
#include "zepm_product.h"
#include "zepm_solver.h"
#include "zepm_types.h"
#include "zepm_vector.h"

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

/* With -DZEPM_CHECK=1 mistakes in calls are reported; see there. */
#if defined(ZEPM_CHECK) && ZEPM_CHECK
#include "zepm_check.h"
#endif

#endif
