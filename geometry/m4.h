// Inverses of 4 by 4 matrices, compiled for each instruction-set level from m4_level.cpp. A result may be a source.
#pragma once

#include "frame/levels.h"

namespace zepm
{

#define ZEPM_DECLARE_LEVEL(level)                                                                                      \
    namespace level                                                                                                    \
    {                                                                                                                  \
    Status invert(const float32* pSrc, float32* pDet, float32* pDst);                                                  \
    Status invertInFloat64(const float32* pSrc, float32* pDst);                                                        \
    }
ZEPM_DECLARE_LEVEL(ssse3)
ZEPM_DECLARE_LEVEL(avx2)
ZEPM_DECLARE_LEVEL(avx512)
#undef ZEPM_DECLARE_LEVEL

} // namespace zepm
