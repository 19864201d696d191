/* zepm_solver.h: direct solvers.
 */
#ifndef ZEPM_SOLVER_H
#define ZEPM_SOLVER_H

#include "zepm_types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
