// The argument structs of the symmetric eigenproblems, in the order of the exported functions.
#pragma once

#include "frame/enter.h"

namespace zepm
{

// Eigenvalues of a matrix or of each matrix of an array.
template <class T, class Src>
struct SymmetricValues
{
    static constexpr bool canFail = true;
    using Element = T;
    Src src;
    ScratchBlock pBuffer;
    DenseBlock<T> dstValues;
    int32 widthHeight;
    int32 count = 1;

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(pBuffer) && f(dstValues);
    }
    ZEPM_INLINE bool sizesValid() const { return widthHeight >= 1; }
    ZEPM_INLINE int32 estimate() const
    {
        const Work n = widthHeight;
        return ((n * n + n) * count).estimate();
    }
    ZEPM_INLINE static int32 weight() { return 30; }
    ZEPM_INLINE size_t scratchPerThread() const
    {
        return static_cast<size_t>(widthHeight) * static_cast<size_t>(widthHeight) * sizeof(T);
    }
    ZEPM_INLINE SymmetricValues share(int32 first, int32 n) const
    {
        return {src.from(first), pBuffer, dstValues.from(first, widthHeight), widthHeight, n};
    }
};

// The same with the eigenvectors as the columns of a matrix.
template <class T, class Src, class Dst>
struct SymmetricVectors
{
    static constexpr bool canFail = true;
    using Element = T;
    Src src;
    ScratchBlock pBuffer;
    Dst dst;
    DenseBlock<T> dstValues;
    int32 widthHeight;
    int32 count = 1;

    template <class F>
    ZEPM_INLINE bool operands(F f) const
    {
        return f(src) && f(pBuffer) && f(dst) && f(dstValues);
    }
    ZEPM_INLINE bool sizesValid() const { return widthHeight >= 1; }
    ZEPM_INLINE int32 estimate() const
    {
        const Work n = widthHeight;
        return (n * (Work(2) * n + 1) * count).estimate();
    }
    ZEPM_INLINE static int32 weight() { return 50; }
    ZEPM_INLINE size_t scratchPerThread() const
    {
        return static_cast<size_t>(widthHeight) * static_cast<size_t>(widthHeight) * sizeof(T);
    }
    ZEPM_INLINE SymmetricVectors share(int32 first, int32 n) const
    {
        return {src.from(first), pBuffer, dst.from(first), dstValues.from(first, widthHeight), widthHeight, n};
    }
};

template <class T, class Y>
using SymmetricValuesM = SymmetricValues<T, m<const T, Y>>;
template <class T, class Y>
using SymmetricValuesMa = SymmetricValues<T, ma<const T, Y>>;
template <class T, class Y>
using SymmetricVectorsM = SymmetricVectors<T, m<const T, Y>, m<T, Y>>;
template <class T, class Y>
using SymmetricVectorsMa = SymmetricVectors<T, ma<const T, Y>, ma<T, Y>>;

} // namespace zepm
