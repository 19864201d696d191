/* zepm_eigen.h: eigenproblems.
 */
#ifndef ZEPM_EIGEN_H
#define ZEPM_EIGEN_H

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
