/* zepm_geometry.h: fixed-size 3D geometry.
 */
#ifndef ZEPM_GEOMETRY_H
#define ZEPM_GEOMETRY_H

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
