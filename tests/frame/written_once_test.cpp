// The example of HACKING.md, complete: an algorithm written once serves one object and a group of objects in lanes, in
// every layout, and a failing object ends the call where it would end a loop over single objects.
#include "frame/enter.h"
#include "frame/groups.h"
#include "frame/sums.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace zepm
{
namespace
{

// ---- The algorithm: x becomes x / |x|; a squared length at or below least fails --------------------------------------

template <int N, class Number>
ZEPM_INLINE auto normalise(Number (&x)[N], const Number& least)
{
    const FixedOrder<N> n;
    const Number square = sumFromFirst(n, 0, N, [&](int32 j) ZEPM_INLINED { return x[j] * x[j]; });
    const Number length = squareRoot(square);
    ascend(n, 0, N, [&](int32 j) ZEPM_INLINED { x[j] = x[j] / length; });
    return least >= square;
}

constexpr float32 least = 0x1p-20f;

// ---- One object of any layout ----------------------------------------------------------------------------------------

template <int N, class Source, class Destination>
Status normaliseOne(const Source& source, const Destination& destination)
{
    float32 x[N];
    for (int32 j = 0; j < N; ++j) x[j] = source.get(0, j);
    if (any(normalise(x, least))) return stsSingularErr;
    for (int32 j = 0; j < N; ++j) destination.set(0, j, x[j]);
    return stsOk;
}

// ---- A group, one object in each lane: nothing is written where one fails --------------------------------------------

template <int N, int W, class Source, class Destination>
bool normaliseGroup(const Source& source, const Destination& destination, int32 k, int32 size)
{
    using namespace ZEPM_LEVEL;
    Vec<float32, W> x[1][N];
    if constexpr (hasContiguousRows<Source>)
        RowGroup<const float32, W>(source, k, size).template readVectors<N>(x[0]);
    else
        gatherElements<float32, W>(source, k, size, x);
    if (any(normalise(x[0], broadcast<float32, W>(least)))) return false;
    if constexpr (hasContiguousRows<Destination>)
        RowGroup<float32, W>(destination, k, size).template writeVectors<N>(x[0]);
    else
        scatterElements<float32, W>(destination, k, size, x);
    return true;
}

// ---- The kernel ------------------------------------------------------------------------------------------------------

template <int N, class Source, class Destination>
Status normaliseArray(const Source& source, const Destination& destination, int32 count)
{
    constexpr int W = ZEPM_LEVEL::lanes<float32>;
    return forGroups(
        count, W, 2, [&](int32 k, int32 size) { return normaliseGroup<N, W>(source, destination, k, size); },
        [&](int32 k) { return normaliseOne<N>(source.object(k), destination.object(k)); });
}

// ---- Does it? --------------------------------------------------------------------------------------------------------

constexpr int length = 5, most = 23;

// As many objects as given, of which number failing has no length; single objects against groups.
template <bool Contiguous>
void check(int32 count, int32 failing)
{
    constexpr ptrdiff_t step = Contiguous ? 4 : 12, stride0 = length * step + 8;
    std::mt19937 random(static_cast<unsigned>(count * 100 + failing));
    std::vector<char> from(most * stride0, 'x'), single(from), grouped(from);
    const StridedView<const float32, Contiguous, false> source{from.data(), stride0, 0, step};
    for (int32 k = 0; k < count; ++k)
        for (int32 j = 0; j < length; ++j)
            store<float32>(from.data() + k * stride0 + j * step,
                           k == failing ? 0.0f : static_cast<float32>(random() % 1000) + 1.0f);

    Status expected = stsOk;
    const StridedView<float32, Contiguous, false> toSingle{single.data(), stride0, 0, step};
    for (int32 k = 0; k < count && expected == stsOk; ++k)
        expected = normaliseOne<length>(source.object(k), toSingle.object(k));

    const StridedView<float32, Contiguous, false> toGrouped{grouped.data(), stride0, 0, step};
    EXPECT_EQ((normaliseArray<length>(source, toGrouped, count)), expected) << count << " objects, failing " << failing;
    EXPECT_EQ(single, grouped) << count << " objects, failing " << failing;
}

TEST(WrittenOnce, GroupsAsSingleObjects)
{
    for (int32 count = 0; count <= most; ++count)
        for (int32 failing = -1; failing < count; ++failing)
        {
            check<true>(count, failing);
            check<false>(count, failing);
        }
}

} // namespace
} // namespace zepm
