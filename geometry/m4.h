// Inverses of 4 by 4 matrices, compiled for each instruction-set level from m4_level.cpp. A result may be a source.
#pragma once

#include "frame/levels.h"

namespace zepm
{

ZEPM_EACH_LEVEL(Status invert(const float32* pSrc, float32* pDet, float32* pDst);
                Status invertInFloat64(const float32* pSrc, float32* pDst);)

} // namespace zepm
