// An array call large enough to be shared among threads, for tests of everything around it.
#pragma once

#include "zepm.h"

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <vector>

using ArrayCall = decltype(zepmAdd_vava_32f);

constexpr int32 arrayLen = 7;
constexpr int32 arrayCount = 1000;
constexpr int32 arrayWork = 3 * arrayLen * arrayCount; // elements read and written; above every limit of the function

// Whether the call gives the sums that it should.
inline bool addsRight(ArrayCall* add)
{
    constexpr size_t size = size_t{arrayLen} * arrayCount;
    constexpr int32 stride2 = sizeof(float32), stride0 = arrayLen * stride2;
    std::vector<float32> a(size), b(size), sum(size), expected(size);
    for (size_t n = 0; n < size; ++n)
    {
        a[n] = static_cast<float32>(n);
        b[n] = 0.5f;
        expected[n] = static_cast<float32>(n) + 0.5f;
    }
    const Status status =
        add(a.data(), stride0, stride2, b.data(), stride0, stride2, sum.data(), stride0, stride2, arrayLen, arrayCount);
    return status == stsOk && sum == expected;
}

inline auto threadsOfThisProcess()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), std::filesystem::directory_iterator());
}
