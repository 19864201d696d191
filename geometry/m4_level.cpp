// Operations on 4 by 4 matrices.
#include "geometry/m4.h"
#include "geometry/groups.h"
#include "geometry/inverse.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// The rows of a matrix, N / 4 in each register.
template <int N>
struct Rows
{
    Lanes<N> part[16 / N];
};

// Each element summed in index order.
template <int N>
ZEPM_INLINE Rows<N> product(const float32* a, const float32* b)
{
    Lanes<N> row[4];
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) row[i] = repeatedGroup<N>(b + 4 * i);
    Rows<N> d;
    ZEPM_UNROLL
    for (int i = 0; i < 16 / N; ++i)
    {
        const Lanes<N> x = loadVec<float32, N>(bytes(a + N * i));
        d.part[i] = spread<N, 0>(x) * row[0] + spread<N, 1>(x) * row[1] + spread<N, 2>(x) * row[2] +
                    spread<N, 3>(x) * row[3];
    }
    return d;
}

} // namespace

Status multiply(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    constexpr int N = lanes<float32>;
    const Rows<N> d = product<N>(pSrc1, pSrc2);
    ZEPM_UNROLL
    for (int i = 0; i < 16 / N; ++i) storeVec<float32, N>(bytes(pDst + N * i), d.part[i]);
    return stsOk;
}

Status multiplyTransposed(const float32* pSrc1, const float32* pSrc2, float32* pDst)
{
    const Rows<4> d = product<4>(pSrc1, pSrc2);
    storeMatrix(pDst, transposed(Matrix4<float32>{{d.part[0], d.part[1], d.part[2], d.part[3]}}));
    return stsOk;
}

Status invert(const float32* pSrc, float32* pDet, float32* pDst)
{
    const Cofactors<float32> cofactors(loadMatrix(pSrc));
    if (cofactors.isSingular())
    {
        if (pDet) store<float32>(pDet, 0);
        return stsSingularErr;
    }
    if (pDet) store<float32>(pDet, cofactors.determinant);
    storeMatrix(pDst, cofactors.inverse());
    return stsOk;
}

// Rounded to float32 at the end.
Status invertInFloat64(const float32* pSrc, float32* pDst)
{
    const Matrix4<float32> m = loadMatrix(pSrc);
    Matrix4<float64> wide;
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) wide.row[i] = __builtin_convertvector(m.row[i], Vec<float64, 4>);
    const Cofactors<float64> cofactors(wide);
    if (cofactors.isSingular()) return stsSingularErr;
    const Matrix4<float64> inverse = cofactors.inverse();
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) storeFixed<4>(pDst + 4 * i, __builtin_convertvector(inverse.row[i], Fixed<4>));
    return stsOk;
}

} // namespace zepm::ZEPM_LEVEL
