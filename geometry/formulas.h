// What becomes of a point. Each formula stands once, over its arithmetic types: a matrix element is a number and a
// point's element a register of several points, or a number in turn; for a single point the matrix element is a whole
// row, which gives all elements of the result at once.
#pragma once

#include "frame/lanes.h"

namespace zepm
{

// ---- Points as rows -------------------------------------------------------------------------------------------------
//
// element(r, p): one element of the result, from the elements r of its column in rows 0 to 3 and those of the point.

// A transform without division: the shorter vectors have z = 0, w = 1; the result has four elements.
template <int N>
struct Affine
{
    static constexpr int in = N, out = 4;
    static constexpr bool divides = false;
    template <class R, class V>
    ZEPM_INLINE static auto element(const R (&r)[4], const V (&p)[N])
    {
        if constexpr (N == 2)
            return r[3] + r[0] * p[0] + r[1] * p[1];
        else if constexpr (N == 3)
            return r[3] + r[0] * p[0] + r[1] * p[1] + r[2] * p[2];
        else
            return r[0] * p[0] + r[1] * p[1] + (r[2] * p[2] + r[3] * p[3]);
    }
};

// All elements are to be divided by that of column 3.
template <int N>
struct Coord
{
    static constexpr int in = N, out = N;
    static constexpr bool divides = true;
    template <class R, class V>
    ZEPM_INLINE static auto element(const R (&r)[4], const V (&p)[N])
    {
        if constexpr (N == 2)
            return r[0] * p[0] + r[3] + r[1] * p[1];
        else
            return r[3] + r[2] * p[2] + (r[0] * p[0] + r[1] * p[1]);
    }
};

// Directions: the translation plays no part.
template <int N>
struct Normal
{
    static constexpr int in = N, out = N;
    static constexpr bool divides = false;
    template <class R, class V>
    ZEPM_INLINE static auto element(const R (&r)[4], const V (&p)[N])
    {
        if constexpr (N == 2)
            return r[0] * p[0] + r[1] * p[1];
        else
            return r[0] * p[0] + r[1] * p[1] + r[2] * p[2];
    }
};

// ---- To and from the viewport ---------------------------------------------------------------------------------------

// d = origin + scale * p, from the cube to the viewport; y points down.
struct ToViewport
{
    float32 origin[3], scale[3];
    ZEPM_INLINE ToViewport(float32 width, float32 height, float32 zMin, float32 zMax)
        : origin{width * 0.5f, height * 0.5f, zMin}, scale{width * 0.5f, 0 - height * 0.5f, zMax - zMin}
    {
    }
    template <class V>
    ZEPM_INLINE V element(int i, V p) const
    {
        return origin[i] + scale[i] * p;
    }
};

// And back.
struct FromViewport
{
    float32 width, height, zMin, depth;
    ZEPM_INLINE FromViewport(float32 vpWidth, float32 vpHeight, float32 from, float32 to)
        : width(vpWidth), height(vpHeight), zMin(from), depth(to - from)
    {
    }
    template <class V>
    ZEPM_INLINE void apply(const V (&p)[3], V (&n)[3]) const
    {
        n[0] = 2.0f * p[0] / width - 1.0f;
        n[1] = -2.0f * p[1] / height + 1.0f;
        n[2] = (p[2] - zMin) / depth;
    }
};

// ---- Arrays of points -----------------------------------------------------------------------------------------------
//
// apply(p, d): the results d of the points p, each V being one element of them.

template <class Formula>
struct Through
{
    static constexpr int in = Formula::in, out = Formula::out;
    float32 e[16];

    template <class V>
    ZEPM_INLINE V element(int j, const V (&p)[in]) const
    {
        const float32 column[4] = {e[j], e[4 + j], e[8 + j], e[12 + j]};
        return Formula::element(column, p);
    }
    template <class V>
    ZEPM_INLINE void apply(const V (&p)[in], V (&d)[out]) const
    {
        ZEPM_UNROLL
        for (int j = 0; j < out; ++j) d[j] = element(j, p);
        if constexpr (Formula::divides)
        {
            const V q = element(3, p);
            ZEPM_UNROLL
            for (int j = 0; j < out; ++j) d[j] = d[j] / q;
        }
    }
};

struct Projection
{
    static constexpr int in = 3, out = 3;
    Through<Coord<3>> combined;
    ToViewport viewport;

    template <class V>
    ZEPM_INLINE void apply(const V (&p)[3], V (&d)[3]) const
    {
        combined.apply(p, d);
        ZEPM_UNROLL
        for (int i = 0; i < 3; ++i) d[i] = viewport.element(i, d[i]);
    }
};

struct Unprojection
{
    static constexpr int in = 3, out = 3;
    FromViewport viewport;
    Through<Coord<3>> inverse;

    template <class V>
    ZEPM_INLINE void apply(const V (&p)[3], V (&d)[3]) const
    {
        V n[3];
        viewport.apply(p, n);
        inverse.apply(n, d);
    }
};

// Points as columns, divided by w where that is possible. The result tells where: a mask, or of numbers whether.
struct Homogeneous
{
    static constexpr int in = 3, out = 3;
    float32 m[4][4];

    template <class V>
    ZEPM_INLINE V element(int i, const V (&p)[3]) const
    {
        return m[i][0] * p[0] + m[i][1] * p[1] + (m[i][2] * p[2] + m[i][3]);
    }
    template <class V>
    ZEPM_INLINE auto apply(const V (&p)[3], V (&d)[3]) const
    {
        const V q = element(3, p);
        const auto isRegular = (q > __FLT_MIN__) | (q < -__FLT_MIN__);
        const V inv = 1.0f / (isRegular ? q : 1.0f);
        ZEPM_UNROLL
        for (int i = 0; i < 3; ++i) d[i] = isRegular ? inv * element(i, p) : __FLT_MAX__;
        return isRegular;
    }
};

} // namespace zepm
