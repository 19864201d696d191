// zepmIdentity, zepmIsIdentity, zepmScaling, zepmTranslation of m4
#include "geometry/fixed.h"
#include "zepm_geometry.h"

using namespace zepm;
using namespace zepm::baseline;

namespace
{

constexpr Matrix4<float32> identity = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

}

Status zepmIdentity_m4_32f(float32* pDst)
{
    storeMatrix(pDst, identity);
    return stsOk;
}

Status zepmIsIdentity_m4_32f(const float32* pSrc, int32* pResult)
{
    const Matrix4<float32> m = loadMatrix(pSrc);
    const auto equal = (m.row[0] == identity.row[0]) & (m.row[1] == identity.row[1]) & (m.row[2] == identity.row[2]) &
                       (m.row[3] == identity.row[3]);
    store<int32>(pResult, (equal[0] & equal[1] & equal[2] & equal[3]) != 0);
    return stsOk;
}

Status zepmScaling_m4_32f(float32 sx, float32 sy, float32 sz, float32* pDst)
{
    storeRows(pDst, {{sx, 0, 0, 0}, {0, sy, 0, 0}, {0, 0, sz, 0}, {0, 0, 0, 1}});
    return stsOk;
}

Status zepmTranslation_m4_32f(float32 tx, float32 ty, float32 tz, float32* pDst)
{
    storeRows(pDst, {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {tx, ty, tz, 1}});
    return stsOk;
}
