/* zepm_product.h: products of matrices.
 */
#ifndef ZEPM_PRODUCT_H
#define ZEPM_PRODUCT_H

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
