// Formulas over arrays of points: tiles of as many points as a register has lanes, then of four, then single ones. Each
// point sees the operations of the formula in their order, whatever it goes with.
#include "frame/streams.h"
#include "geometry/points.h"
#include "geometry/points_in_lanes.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

using Source = PointArray<const float32>;
using Destination = PointArray<float32>;

// Whether the formula succeeded: on one point, or in all lanes.
ZEPM_INLINE bool inAll(int isRegular) { return isRegular; }
template <class Mask>
ZEPM_INLINE bool inAll(Mask isRegular)
{
    return allOf(isRegular);
}

// The formula on points in registers; whether it succeeded on all.
template <class Formula, class V>
ZEPM_INLINE bool applied(const Formula& formula, const V (&p)[Formula::in], V (&d)[Formula::out])
{
    if constexpr (std::is_void_v<decltype(formula.apply(p, d))>)
    {
        formula.apply(p, d);
        return true;
    }
    else
    {
        return inAll(formula.apply(p, d));
    }
}

template <class Formula>
[[gnu::noinline]] bool onePerStep(const Formula& given, Source src, Destination dst, ptrdiff_t first, ptrdiff_t count)
{
    const Formula formula = given; // no store can change it
    bool ok = true;
    for (ptrdiff_t k = first; k < count; ++k)
    {
        float32 p[Formula::in], d[Formula::out];
        for (int j = 0; j < Formula::in; ++j) p[j] = load<float32>(src.at(k, j));
        ok &= applied(formula, p, d);
        for (int j = 0; j < Formula::out; ++j) store<float32>(dst.at(k, j), d[j]);
    }
    return ok;
}

template <class Formula, class From, class To>
[[gnu::noinline]] bool pointsTogether(const Formula& given, Source src, Destination dst, From from, To to,
                                      ptrdiff_t count)
{
    const Formula formula = given;
    bool ok = true;
    ptrdiff_t k = 0;
    auto whole = [&]<int N>(std::integral_constant<int, N>) ZEPM_INLINED {
        for (; k + N <= count; k += N)
        {
            Vec<float32, N> p[Formula::in], d[Formula::out];
            from.template load<Formula::in, N>(src.at(k), p);
            ok &= applied(formula, p, d);
            to.template store<Formula::out, N>(dst.at(k), d);
        }
    };
    whole(std::integral_constant<int, lanes<float32>>{});
    if constexpr (lanes < float32 >> 4) whole(std::integral_constant<int, 4>{});
    return k < count ? onePerStep(formula, src, dst, k, count) && ok : ok;
}

// ---- Results of four elements ---------------------------------------------------------------------------------------

// Points of three elements without gaps, one in each piece. Reads a register in full.
template <int N>
ZEPM_INLINE Vec<float32, N> loadDense3(const char* p)
{
    return permute<float32, N>(loadVec<float32, N>(p), [](int lane) { return lane / 4 * 3 + lane % 4 - lane % 4 / 3; });
}

// Results of four elements: a result is one piece, and so is each row of the matrix, so nothing is transposed. The steps
// are the strides if they are known at compile time (12: three elements without gaps, 16: records), else 0.
template <int SrcStep, int DstStep, class Formula>
[[gnu::noinline]] bool rowwise(const Through<Formula>& formula, Source src, Destination dst, ptrdiff_t count)
{
    constexpr int N = lanes<float32>, pieces = N / 4, in = Formula::in;
    constexpr int atOnce = 4 * pieces, further = SrcStep == 12 ? (pieces + 2) / 3 : 0; // points, points read in part
    Vec<float32, N> rows[4];
    ZEPM_UNROLL
    for (int i = 0; i < 4; ++i) rows[i] = repeat<float32, 4, pieces>(loadVec<float32, 4>(bytes(formula.e + 4 * i)));
    ptrdiff_t k = 0;
    for (; k + atOnce + further <= count; k += atOnce)
    {
        ZEPM_UNROLL
        for (int step = 0; step < atOnce; step += pieces)
        {
            const char* const from = src.at(k) + step * (SrcStep ? SrcStep : src.stride);
            char* const to = dst.at(k) + step * (DstStep ? DstStep : dst.stride);
            Vec<float32, N> points, p[in];
            if constexpr (SrcStep == 12)
                points = loadDense3<N>(from);
            else if constexpr (SrcStep == 16)
                points = loadRecords<in, N>(from);
            else
                points = loadPoints<in, N>(from, src.stride);
            p[0] = spread<float32, N, 0>(points);
            p[1] = spread<float32, N, 1>(points);
            if constexpr (in > 2) p[2] = spread<float32, N, 2>(points);
            if constexpr (in > 3) p[3] = spread<float32, N, 3>(points);
            const Vec<float32, N> d = Formula::element(rows, p);
            if constexpr (DstStep == 16)
                storeRecords<4, N>(to, d);
            else
                storePoints<4, N>(to, dst.stride, d);
        }
    }
    return onePerStep(formula, src, dst, k, count);
}

// ---- Overlap --------------------------------------------------------------------------------------------------------

ZEPM_INLINE ptrdiff_t distance(ptrdiff_t x) { return x < 0 ? -x : x; }

// The bytes from the lowest to behind the highest.
struct ByteRange
{
    uintptr_t begin, end;
    template <class T>
    ZEPM_INLINE ByteRange(const PointArray<T>& a, int size, ptrdiff_t count)
    {
        const auto first = reinterpret_cast<uintptr_t>(a.p);
        const ptrdiff_t last = (count - 1) * a.stride;
        begin = first + static_cast<uintptr_t>(last < 0 ? last : 0);
        end = first + static_cast<uintptr_t>(last < 0 ? 0 : last) +
              static_cast<uintptr_t>((size - 1) * a.elementStride) + sizeof(T);
    }
};

// Whether no two points have a byte in common.
template <class T>
ZEPM_INLINE bool isDisjoint(const PointArray<T>& a, int size, ptrdiff_t count)
{
    const ptrdiff_t pointSize = (size - 1) * a.elementStride + static_cast<ptrdiff_t>(sizeof(T));
    return distance(a.stride) >= pointSize ||
           (distance(a.stride) == sizeof(T) && a.elementStride >= count * static_cast<ptrdiff_t>(sizeof(T)));
}

// Whether the order of the points plays no part: no result is the source of another point.
template <class Formula>
ZEPM_INLINE bool isFree(const Source& src, const Destination& dst, ptrdiff_t count)
{
    constexpr int size = Formula::in > Formula::out ? Formula::in : Formula::out;
    if (src.p == dst.p && src.stride == dst.stride && src.elementStride == dst.elementStride)
        return isDisjoint(dst, size, count);
    const ByteRange from(src, Formula::in, count), to(dst, Formula::out, count);
    return isDisjoint(dst, Formula::out, count) && (from.end <= to.begin || to.end <= from.begin);
}

// Any order of the points.
template <class Formula>
[[gnu::noinline]] bool transformFree(const Formula& formula, const Source& src, const Destination& dst, ptrdiff_t count)
{
    constexpr ptrdiff_t sz = sizeof(float32), recordSize = 16;
    if (src.elementStride == sz && dst.elementStride == sz)
    {
        if constexpr (Formula::out == 4)
        {
            if (dst.stride != recordSize) return rowwise<0, 0>(formula, src, dst, count);
            if (src.stride == recordSize) return rowwise<recordSize, recordSize>(formula, src, dst, count);
            if constexpr (Formula::in == 3)
            {
                if (src.stride == 3 * sz) return rowwise<3 * sz, recordSize>(formula, src, dst, count);
            }
            return rowwise<0, recordSize>(formula, src, dst, count);
        }
        else
        {
            if (src.stride == Formula::in * sz && dst.stride == Formula::out * sz)
                return pointsTogether(formula, src, dst, PointsDense{}, PointsDense{}, count);
            if (src.stride == recordSize && dst.stride == recordSize)
                return pointsTogether(formula, src, dst, PointsApart<true>{recordSize}, PointsApart<true>{recordSize},
                                      count);
            return pointsTogether(formula, src, dst, PointsApart<false>{src.stride}, PointsApart<false>{dst.stride},
                                  count);
        }
    }
    if constexpr (std::is_same_v<Formula, Homogeneous>) // the one with element strides
    {
        if (src.stride == sz && dst.stride == sz)
            return pointsTogether(formula, src, dst, PointsAcross{src.elementStride}, PointsAcross{dst.elementStride},
                                  count);
    }
    return onePerStep(formula, src, dst, 0, count);
}

} // namespace

template <class Formula>
bool transformPointArray(const Formula& formula, const Source& src, const Destination& dst, ptrdiff_t count)
{
    if (count < 4 || !isFree<Formula>(src, dst, count)) return onePerStep(formula, src, dst, 0, count);
    constexpr ptrdiff_t size = Formula::out * sizeof(float32);
    const bool isDense = dst.elementStride == sizeof(float32) && dst.stride == size;
    if (!isDense || src.p == dst.p || !isBeyondCaches(count * size, 1)) return transformFree(formula, src, dst, count);
    bool ok = true;
    streamObjects(bytes(dst.p), size, count, {bytes(src.p), src.stride}, {nullptr, 0},
                  [&](ptrdiff_t first, ptrdiff_t n, char* to) {
                      const Source part{reinterpret_cast<const float32*>(src.at(first)), src.stride, src.elementStride};
                      ok &= transformFree(formula, part, {reinterpret_cast<float32*>(to), size}, n);
                  });
    return ok;
}

#define ZEPM_INSTANTIATE(...)                                                                                          \
    template bool transformPointArray<__VA_ARGS__>(const __VA_ARGS__&, const Source&, const Destination&, ptrdiff_t);
ZEPM_INSTANTIATE(Through<Affine<2>>)
ZEPM_INSTANTIATE(Through<Affine<3>>)
ZEPM_INSTANTIATE(Through<Affine<4>>)
ZEPM_INSTANTIATE(Through<Coord<2>>)
ZEPM_INSTANTIATE(Through<Coord<3>>)
ZEPM_INSTANTIATE(Through<Normal<2>>)
ZEPM_INSTANTIATE(Through<Normal<3>>)
ZEPM_INSTANTIATE(Projection)
ZEPM_INSTANTIATE(Unprojection)
ZEPM_INSTANTIATE(Homogeneous)
#undef ZEPM_INSTANTIATE

} // namespace zepm::ZEPM_LEVEL
