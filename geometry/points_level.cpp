// Formulas over arrays of points: tiles of as many points as a register has lanes, then of four, then single ones. Each
// point sees the operations of the formula in their order, whatever it goes with.
#include "geometry/points.h"
#include "geometry/tile.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

using Source = PointArray<const float32>;
using Destination = PointArray<float32>;

ZEPM_INLINE bool allOf(int isRegular) { return isRegular; }
template <class Mask>
ZEPM_INLINE bool allOf(Mask isRegular)
{
    constexpr int N = sizeof(Mask) / 4;
    int all = -1;
    ZEPM_UNROLL
    for (int lane = 0; lane < N; ++lane) all &= isRegular[lane];
    return all != 0;
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
        return allOf(formula.apply(p, d));
    }
}

template <class Formula>
[[gnu::noinline]] bool onePerStep(const Formula& given, const Source& src, const Destination& dst, ptrdiff_t first,
                                  ptrdiff_t count)
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
[[gnu::noinline]] bool tiles(const Formula& given, const Source& src, const Destination& dst, From from, To to,
                             ptrdiff_t count)
{
    const Formula formula = given;
    bool ok = true;
    ptrdiff_t k = 0;
    auto whole = [&]<int N>(std::integral_constant<int, N>) __attribute__((always_inline))
    {
        for (; k + N <= count; k += N)
        {
            Lanes<N> p[Formula::in], d[Formula::out];
            from.template load<Formula::in, N>(src.at(k), p);
            ok &= applied(formula, p, d);
            to.template store<Formula::out, N>(dst.at(k), d);
        }
    };
    whole(std::integral_constant<int, lanes<float32>>{});
    if constexpr (lanes<float32> > 4) whole(std::integral_constant<int, 4>{});
    return k < count ? onePerStep(formula, src, dst, k, count) && ok : ok;
}

// ---- Overlap --------------------------------------------------------------------------------------------------------

ZEPM_INLINE ptrdiff_t magnitude(ptrdiff_t x) { return x < 0 ? -x : x; }

// The bytes from the lowest to behind the highest.
struct Extent
{
    uintptr_t begin, end;
    template <class T>
    ZEPM_INLINE Extent(const PointArray<T>& a, int size, ptrdiff_t count)
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
    return magnitude(a.stride) >= pointSize ||
           (magnitude(a.stride) == sizeof(T) && a.elementStride >= count * static_cast<ptrdiff_t>(sizeof(T)));
}

// Whether the order of the points plays no part: no result is the source of another point.
template <class Formula>
ZEPM_INLINE bool isFree(const Source& src, const Destination& dst, ptrdiff_t count)
{
    constexpr int size = Formula::in > Formula::out ? Formula::in : Formula::out;
    if (src.p == dst.p && src.stride == dst.stride && src.elementStride == dst.elementStride)
        return isDisjoint(dst, size, count);
    const Extent from(src, Formula::in, count), to(dst, Formula::out, count);
    return isDisjoint(dst, Formula::out, count) && (from.end <= to.begin || to.end <= from.begin);
}

} // namespace

template <class Formula>
bool transformPointArray(const Formula& formula, const Source& src, const Destination& dst, ptrdiff_t count)
{
    constexpr ptrdiff_t sz = sizeof(float32), recordSize = 16;
    if (count < 4 || !isFree<Formula>(src, dst, count)) return onePerStep(formula, src, dst, 0, count);
    if (src.elementStride == sz && dst.elementStride == sz)
    {
        const bool isRecords = src.stride == recordSize && dst.stride == recordSize;
        if constexpr (Formula::in < 4 || Formula::out < 4)
        {
            if (src.stride == Formula::in * sz && dst.stride == Formula::out * sz)
                return tiles(formula, src, dst, Dense{}, Dense{}, count);
        }
        if (isRecords) return tiles(formula, src, dst, Apart<recordSize>{0}, Apart<recordSize>{0}, count);
        return tiles(formula, src, dst, Apart<>{src.stride}, Apart<>{dst.stride}, count);
    }
    if (src.stride == sz && dst.stride == sz)
        return tiles(formula, src, dst, Across{src.elementStride}, Across{dst.elementStride}, count);
    return onePerStep(formula, src, dst, 0, count);
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
