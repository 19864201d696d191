// Vector products over arrays, objects in lanes: dense or at any distance by transposition, records of 16 bytes by
// shuffles within them, elements of successive objects side by side as they lie; all others one by one.
#include "frame/groups.h"
#include "geometry/points_in_lanes.h"
#include "vector/cross.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

// ---- Objects in lanes, from k on ------------------------------------------------------------------------------------

template <class T, int W, class View>
ZEPM_INLINE void readThree(const View& view, int32 k, Vec<T, W> (&x)[3])
{
    if constexpr (View::fixed)
    {
        const auto object = view.object(0);
        ZEPM_UNROLL
        for (int j = 0; j < 3; ++j) x[j] = broadcast<T, W>(object.get(0, j));
    }
    else
        RowGroup<const T, W>(view, k, W).readVectors(x);
}

template <class T, int W, class A, class B, class D>
ZEPM_INLINE void groupOfVectors(const A& a, const B& b, const D& d, int32 k)
{
    Vec<T, W> x[3], y[3], z[3];
    readThree<T, W>(a, k, x);
    readThree<T, W>(b, k, y);
    cross(x, y, z);
    RowGroup<T, W>(d, k, W).writeVectors(z);
}

// ---- Elements side by side ------------------------------------------------------------------------------------------

template <class View>
ZEPM_INLINE bool liesAcross(const View& view)
{
    if constexpr (requires { view.stride0; })
        return View::fixed || view.stride0 == sizeof(view.object(0).get(0, 0));
    else
        return false;
}
template <class T, int W, class View>
ZEPM_INLINE Vec<T, W> across(const View& view, int32 k, int32 j)
{
    if constexpr (View::fixed)
        return broadcast<T, W>(view.object(0).get(0, j));
    else
        return loadVec<T, W>(view.object(k).at(0, j));
}
template <class T, int W, class A, class B, class D>
ZEPM_INLINE void groupAcross(const A& a, const B& b, const D& d, int32 k)
{
    const Vec<T, W> x[3] = {across<T, W>(a, k, 0), across<T, W>(a, k, 1), across<T, W>(a, k, 2)};
    const Vec<T, W> y[3] = {across<T, W>(b, k, 0), across<T, W>(b, k, 1), across<T, W>(b, k, 2)};
    Vec<T, W> z[3];
    cross(x, y, z);
    const auto object = d.object(k);
    ZEPM_UNROLL
    for (int j = 0; j < 3; ++j) storeVec<T, W>(object.at(0, j), z[j]);
}

// ---- Records of 16 bytes --------------------------------------------------------------------------------------------

// A record in each piece; the last lane of each holds anything.
template <int N>
ZEPM_INLINE Vec<float32, N> crossRecords(Vec<float32, N> a, Vec<float32, N> b)
{
    const auto yzx = [](Vec<float32, N> x) ZEPM_INLINED { return shufflePieces<float32, N, 1, 2, 0, 3>(x, x); };
    const auto zxy = [](Vec<float32, N> x) ZEPM_INLINED { return shufflePieces<float32, N, 2, 0, 1, 3>(x, x); };
    return yzx(a) * zxy(b) - zxy(a) * yzx(b);
}

template <int N, class View>
ZEPM_INLINE Vec<float32, N> recordsOf(const View& view, int32 k)
{
    if constexpr (View::fixed)
        return repeat<float32, 4, N / 4>(loadFirst<float32, 4, 3>(view.p));
    else
        return loadRecords<3, N>(view.p + k * view.stride0);
}

template <class A, class B, class D>
[[gnu::noinline]] void records(const A& a, const B& b, const D& d, int32 count)
{
    constexpr int N = lanes<float32>;
    int32 k = 0;
    for (; k <= count - N / 4; k += N / 4)
        storeRecords<3, N>(d.p + k * d.stride0, crossRecords<N>(recordsOf<N>(a, k), recordsOf<N>(b, k)));
    for (; k < count; ++k)
        storeRecords<3, 4>(d.p + k * d.stride0, crossRecords<4>(recordsOf<4>(a, k), recordsOf<4>(b, k)));
}

template <class View>
ZEPM_INLINE bool liesInRecords(const View& view)
{
    return View::fixed || view.stride0 == 16;
}

// ---- Loops ----------------------------------------------------------------------------------------------------------

// group.operator()<W>(k) for W objects from k on, one(k) for those that do not fill a piece. Every object is done once:
// its result may stand where a source was.
template <class T, class Group, class One>
ZEPM_INLINE void forGroupsOnce(int32 count, Group group, One one)
{
    constexpr int W = lanes<T>, C = pieceLength<T>;
    int32 k = 0;
    for (; k <= count - W; k += W) group.template operator()<W>(k);
    if constexpr (C < W)
        for (; k <= count - C; k += C) group.template operator()<C>(k);
    for (; k < count; ++k) one(k);
}

} // namespace

template <bool Contiguous, class X>
Status crossArrays(const X& x)
{
    using T = typename decltype(x.dst)::Element;
    const auto a = x.src1.template view<Contiguous>(3);
    const auto b = x.src2.template view<Contiguous>(3);
    const auto d = x.dst.template view<Contiguous>(3);
    const auto one = [&](int32 k) ZEPM_INLINED { crossOne(a.object(k), b.object(k), d.object(k)); };
    if constexpr (Contiguous)
    {
        if constexpr (std::is_same_v<T, float32> && !isListBlock<decltype(x.dst)>)
        {
            if (liesInRecords(a) && liesInRecords(b) && liesInRecords(d))
            {
                records(a, b, d, x.count);
                return stsOk;
            }
        }
        forGroupsOnce<T>(
            x.count, [&]<int W>(int32 k) ZEPM_INLINED { groupOfVectors<T, W>(a, b, d, k); }, one);
        return stsOk;
    }
    else
    {
        if (liesAcross(a) && liesAcross(b) && liesAcross(d))
        {
            forGroupsOnce<T>(
                x.count, [&]<int W>(int32 k) ZEPM_INLINED { groupAcross<T, W>(a, b, d, k); }, one);
            return stsOk;
        }
        for (int32 k = 0; k < x.count; ++k) one(k);
        return stsOk;
    }
}

template Status crossArrays<true, CrossVav<float32, S>>(const CrossVav<float32, S>&);
template Status crossArrays<true, CrossVav<float32, L>>(const CrossVav<float32, L>&);
template Status crossArrays<false, CrossVav<float32, S>>(const CrossVav<float32, S>&);
template Status crossArrays<false, CrossVav<float32, L>>(const CrossVav<float32, L>&);
template Status crossArrays<false, CrossVav<float32, P>>(const CrossVav<float32, P>&);
template Status crossArrays<true, CrossVav<float64, S>>(const CrossVav<float64, S>&);
template Status crossArrays<true, CrossVav<float64, L>>(const CrossVav<float64, L>&);
template Status crossArrays<false, CrossVav<float64, S>>(const CrossVav<float64, S>&);
template Status crossArrays<false, CrossVav<float64, L>>(const CrossVav<float64, L>&);
template Status crossArrays<false, CrossVav<float64, P>>(const CrossVav<float64, P>&);
template Status crossArrays<true, CrossVva<float32, S>>(const CrossVva<float32, S>&);
template Status crossArrays<true, CrossVva<float32, L>>(const CrossVva<float32, L>&);
template Status crossArrays<false, CrossVva<float32, S>>(const CrossVva<float32, S>&);
template Status crossArrays<false, CrossVva<float32, L>>(const CrossVva<float32, L>&);
template Status crossArrays<false, CrossVva<float32, P>>(const CrossVva<float32, P>&);
template Status crossArrays<true, CrossVva<float64, S>>(const CrossVva<float64, S>&);
template Status crossArrays<true, CrossVva<float64, L>>(const CrossVva<float64, L>&);
template Status crossArrays<false, CrossVva<float64, S>>(const CrossVva<float64, S>&);
template Status crossArrays<false, CrossVva<float64, L>>(const CrossVva<float64, L>&);
template Status crossArrays<false, CrossVva<float64, P>>(const CrossVva<float64, P>&);
template Status crossArrays<true, CrossVava<float32, S>>(const CrossVava<float32, S>&);
template Status crossArrays<true, CrossVava<float32, L>>(const CrossVava<float32, L>&);
template Status crossArrays<false, CrossVava<float32, S>>(const CrossVava<float32, S>&);
template Status crossArrays<false, CrossVava<float32, L>>(const CrossVava<float32, L>&);
template Status crossArrays<false, CrossVava<float32, P>>(const CrossVava<float32, P>&);
template Status crossArrays<true, CrossVava<float64, S>>(const CrossVava<float64, S>&);
template Status crossArrays<true, CrossVava<float64, L>>(const CrossVava<float64, L>&);
template Status crossArrays<false, CrossVava<float64, S>>(const CrossVava<float64, S>&);
template Status crossArrays<false, CrossVava<float64, L>>(const CrossVava<float64, L>&);
template Status crossArrays<false, CrossVava<float64, P>>(const CrossVava<float64, P>&);

} // namespace zepm::ZEPM_LEVEL
