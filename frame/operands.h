// Operand blocks and views.
//
// A block holds one operand's arguments, in order, under the letters of the exported names: v, m a vector or matrix,
// va, ma arrays of them, c, ca constants. Its second parameter is the layout. A view made from a block reaches element
// (i, j) of object k; a vector is a matrix of one row.
//
// Base pointers may have any alignment, so elements go through load and store; offsets are ptrdiff_t, since k * stride0
// passes 2 GiB. Everything here is always inlined: sources of several instruction-set levels include it, and a function
// that the linker could share would be compiled for the wrong one.
#pragma once

#include "zepm_types.h"

#include <cstddef>
#include <type_traits>

#define ZEPM_INLINE [[gnu::always_inline]] inline
// Written behind the parameters of a lambda.
#define ZEPM_INLINED __attribute__((always_inline))

namespace zepm
{

struct S // one base pointer and strides
{
};
struct L // a table of objects
{
};
struct P // a table of elements
{
};

template <class T>
ZEPM_INLINE std::remove_const_t<T> load(const void* p)
{
    std::remove_const_t<T> x;
    __builtin_memcpy(&x, p, sizeof x);
    return x;
}

template <class T>
ZEPM_INLINE void store(void* p, T x)
{
    __builtin_memcpy(p, &x, sizeof x);
}

// The operand's bytes, const as its elements are.
template <class T>
using Bytes = std::conditional_t<std::is_const_v<T>, const char*, char*>;

template <class T>
ZEPM_INLINE Bytes<T> bytes(T* p)
{
    return reinterpret_cast<Bytes<T>>(p);
}

// ---- Views ----------------------------------------------------------------------------------------------------------

// Elements of one object at strides; with contiguous elements stride2 is a compile-time fact.
template <class T, bool Contiguous>
struct StridedObject
{
    Bytes<T> p;
    ptrdiff_t stride1;
    ptrdiff_t stride2;

    ZEPM_INLINE Bytes<T> at(int32 i, int32 j) const
    {
        return p + i * stride1 + j * (Contiguous ? static_cast<ptrdiff_t>(sizeof(T)) : stride2);
    }
    ZEPM_INLINE auto get(int32 i, int32 j) const { return load<T>(at(i, j)); }
    ZEPM_INLINE void set(int32 i, int32 j, T x) const { store<T>(at(i, j), x); }
};

// Elements of one object behind a table of width entries a row.
template <class T>
struct TableObject
{
    T* const* pp;
    ptrdiff_t offset;
    ptrdiff_t width;

    ZEPM_INLINE Bytes<T> at(int32 i, int32 j) const { return bytes(pp[i * width + j]) + offset; }
    ZEPM_INLINE auto get(int32 i, int32 j) const { return load<T>(at(i, j)); }
    ZEPM_INLINE void set(int32 i, int32 j, T x) const { store<T>(at(i, j), x); }
};

template <class T>
struct ConstantObject
{
    T val;
    ZEPM_INLINE T get(int32, int32) const { return val; }
};

template <class T, bool Contiguous, bool Fixed>
struct StridedView
{
    static constexpr bool fixed = Fixed; // the same object for every k
    Bytes<T> p;
    ptrdiff_t stride0, stride1, stride2;
    ZEPM_INLINE StridedObject<T, Contiguous> object(int32 k) const
    {
        return {Fixed ? p : p + k * stride0, stride1, stride2};
    }
};

template <class T, bool Contiguous>
struct ListView
{
    static constexpr bool fixed = false;
    T* const* pp;
    ptrdiff_t shift, stride1, stride2;
    ZEPM_INLINE StridedObject<T, Contiguous> object(int32 k) const { return {bytes(pp[k]) + shift, stride1, stride2}; }
};

template <class T, bool Fixed>
struct TableView
{
    static constexpr bool fixed = Fixed;
    T* const* pp;
    ptrdiff_t shift, stride0, width;
    ZEPM_INLINE TableObject<T> object(int32 k) const { return {pp, Fixed ? shift : shift + k * stride0, width}; }
};

template <class T>
struct ConstantView
{
    static constexpr bool fixed = true;
    T val;
    ZEPM_INLINE ConstantObject<T> object(int32) const { return {val}; }
};

template <class T>
struct ConstantArrayView
{
    static constexpr bool fixed = false;
    const char* p;
    ptrdiff_t stride0;
    ZEPM_INLINE ConstantObject<T> object(int32 k) const { return {load<T>(p + k * stride0)}; }
};

template <class T>
struct ConstantListView
{
    static constexpr bool fixed = false;
    const T* const* pp;
    ptrdiff_t shift;
    ZEPM_INLINE ConstantObject<T> object(int32 k) const { return {load<T>(bytes(pp[k]) + shift)}; }
};

// Element (i, j) of the transpose is element (j, i) as stored.
template <class Object>
struct TransposedObject
{
    Object stored;
    ZEPM_INLINE auto at(int32 i, int32 j) const { return stored.at(j, i); }
    ZEPM_INLINE auto get(int32 i, int32 j) const { return stored.get(j, i); }
};

template <class View>
struct TransposedView
{
    static constexpr bool fixed = View::fixed;
    View stored;
    ZEPM_INLINE auto object(int32 k) const { return TransposedObject<decltype(stored.object(k))>{stored.object(k)}; }
};

// ---- Blocks ---------------------------------------------------------------------------------------------------------

template <class T>
ZEPM_INLINE bool validStride(int32 stride)
{
    return stride >= 1 && stride % static_cast<int32>(sizeof(T)) == 0;
}

template <class T>
ZEPM_INLINE bool validShift(int32 shift)
{
    return shift >= 0 && shift % static_cast<int32>(sizeof(T)) == 0;
}

// What a block without strides, shift or pointer answers to the questions about them.
template <class T>
struct Block
{
    using Element = T;
    ZEPM_INLINE bool isNull() const { return false; }
    ZEPM_INLINE bool stridesValid() const { return true; }
    ZEPM_INLINE bool shiftValid() const { return true; }
    ZEPM_INLINE bool contiguous() const { return true; }
    ZEPM_INLINE uint32_t gaps(int32) const { return 0; }
};

// The strides from object to object and from row to row, of the operands that have them. The others do not store any:
// on short calls each store counts.
template <bool IsArray>
struct ObjectStride
{
    int32 stride0;
};
template <>
struct ObjectStride<false>
{
    static constexpr int32 stride0 = 0;
};
template <int Rank>
struct RowStride
{
    int32 stride1;
};
template <>
struct RowStride<1>
{
    static constexpr int32 stride1 = 0;
};

// One base pointer; stride0 in arrays, stride1 in matrices (Rank 2).
template <class T, bool IsArray, int Rank>
struct StridedBlock : Block<T>, ObjectStride<IsArray>, RowStride<Rank>
{
    static constexpr bool isArray = IsArray;
    static constexpr int rank = Rank;
    T* p;
    using ObjectStride<IsArray>::stride0;
    using RowStride<Rank>::stride1;
    int32 stride2;

    ZEPM_INLINE StridedBlock(T* base, int32 s2) requires(!IsArray && Rank == 1) : p(base), stride2(s2) {}
    ZEPM_INLINE StridedBlock(T* base, int32 s0, int32 s2) requires(IsArray&& Rank == 1)
        : ObjectStride<IsArray>{s0}, p(base), stride2(s2)
    {
    }
    ZEPM_INLINE StridedBlock(T* base, int32 s1, int32 s2) requires(!IsArray && Rank == 2)
        : RowStride<Rank>{s1}, p(base), stride2(s2)
    {
    }
    ZEPM_INLINE StridedBlock(T* base, int32 s0, int32 s1, int32 s2) requires(IsArray&& Rank == 2)
        : ObjectStride<IsArray>{s0}, RowStride<Rank>{s1}, p(base), stride2(s2)
    {
    }

    ZEPM_INLINE bool isNull() const { return !p; }
    ZEPM_INLINE bool stridesValid() const
    {
        return (!IsArray || validStride<T>(stride0)) && (Rank < 2 || validStride<T>(stride1)) &&
               validStride<T>(stride2);
    }
    ZEPM_INLINE bool contiguous() const { return stride2 == sizeof(T); }
    // 0 if the elements are contiguous and each row of so many begins where the one before ends.
    ZEPM_INLINE uint32_t gaps(int32 rowLength) const
    {
        const uint32_t between = static_cast<uint32_t>(stride2) ^ sizeof(T);
        if constexpr (Rank == 1)
            return between;
        else
            return between | (static_cast<uint32_t>(stride1) ^ static_cast<uint32_t>(rowLength) * sizeof(T));
    }
    ZEPM_INLINE StridedBlock from(int32 first) const
    {
        StridedBlock share = *this;
        share.p = reinterpret_cast<T*>(bytes(p) + static_cast<ptrdiff_t>(first) * stride0);
        return share;
    }
    ZEPM_INLINE const StridedBlock& object(int32) const requires(!IsArray) { return *this; }
    template <bool Contiguous>
    ZEPM_INLINE auto view(int32) const
    {
        return StridedView<T, Contiguous, !IsArray>{bytes(p), stride0, stride1, stride2};
    }
};

// A table of objects: always an array.
template <class T, int Rank>
struct ListBlock : Block<T>, RowStride<Rank>
{
    static constexpr bool isArray = true;
    static constexpr int rank = Rank;
    T* const* pp;
    int32 roiShift;
    using RowStride<Rank>::stride1;
    int32 stride2;

    ZEPM_INLINE ListBlock(T* const* table, int32 shift, int32 s2) requires(Rank == 1)
        : pp(table), roiShift(shift), stride2(s2)
    {
    }
    ZEPM_INLINE ListBlock(T* const* table, int32 shift, int32 s1, int32 s2) requires(Rank == 2)
        : RowStride<Rank>{s1}, pp(table), roiShift(shift), stride2(s2)
    {
    }

    ZEPM_INLINE bool isNull() const { return !pp; }
    ZEPM_INLINE bool stridesValid() const { return (Rank < 2 || validStride<T>(stride1)) && validStride<T>(stride2); }
    ZEPM_INLINE bool shiftValid() const { return validShift<T>(roiShift); }
    ZEPM_INLINE bool contiguous() const { return stride2 == sizeof(T); }
    ZEPM_INLINE ListBlock from(int32 first) const
    {
        ListBlock share = *this;
        share.pp += first;
        return share;
    }
    // Object k by itself, in the standard layout.
    ZEPM_INLINE StridedBlock<T, false, Rank> object(int32 k) const
    {
        T* const p = reinterpret_cast<T*>(bytes(pp[k]) + roiShift);
        if constexpr (Rank == 1)
            return {p, stride2};
        else
            return {p, stride1, stride2};
    }
    template <bool Contiguous>
    ZEPM_INLINE auto view(int32) const
    {
        return ListView<T, Contiguous>{pp, roiShift, stride1, stride2};
    }
};

// A table of elements, rowLength entries for each row; stride0 in arrays.
template <class T, bool IsArray>
struct TableBlock : Block<T>, ObjectStride<IsArray>
{
    static constexpr bool isArray = IsArray;
    T* const* pp;
    int32 roiShift;
    using ObjectStride<IsArray>::stride0;
    ptrdiff_t shareOffset = 0; // first * stride0, which the interface's 32-bit shift could not hold

    ZEPM_INLINE TableBlock(T* const* table, int32 shift) requires(!IsArray) : pp(table), roiShift(shift) {}
    ZEPM_INLINE TableBlock(T* const* table, int32 shift, int32 s0) requires(IsArray)
        : ObjectStride<IsArray>{s0}, pp(table), roiShift(shift)
    {
    }

    ZEPM_INLINE bool isNull() const { return !pp; }
    ZEPM_INLINE bool stridesValid() const { return !IsArray || validStride<T>(stride0); }
    ZEPM_INLINE bool shiftValid() const { return validShift<T>(roiShift); }
    ZEPM_INLINE TableBlock from(int32 first) const
    {
        TableBlock share = *this;
        share.shareOffset += static_cast<ptrdiff_t>(first) * stride0;
        return share;
    }
    template <bool>
    ZEPM_INLINE auto view(int32 rowLength) const
    {
        return TableView<T, !IsArray>{pp, roiShift + shareOffset, stride0, rowLength};
    }
};

template <class T>
struct ConstantBlock : Block<T>
{
    static constexpr bool isArray = false;
    T val;

    ZEPM_INLINE ConstantBlock(T value) : val(value) {}
    ZEPM_INLINE ConstantBlock from(int32) const { return *this; }
    ZEPM_INLINE const ConstantBlock& object(int32) const { return *this; }
    template <bool>
    ZEPM_INLINE auto view(int32) const
    {
        return ConstantView<T>{val};
    }
};

// Constants at stride0, one for each object.
template <class T>
struct ConstantArrayBlock : Block<T>
{
    static constexpr bool isArray = true;
    const T* p;
    int32 stride0;

    ZEPM_INLINE ConstantArrayBlock(const T* base, int32 s0) : p(base), stride0(s0) {}
    ZEPM_INLINE bool isNull() const { return !p; }
    ZEPM_INLINE bool stridesValid() const { return validStride<T>(stride0); }
    ZEPM_INLINE ConstantArrayBlock from(int32 first) const
    {
        return {reinterpret_cast<const T*>(bytes(p) + static_cast<ptrdiff_t>(first) * stride0), stride0};
    }
    template <bool>
    ZEPM_INLINE auto view(int32) const
    {
        return ConstantArrayView<T>{bytes(p), stride0};
    }
};

// A table of constants, one entry for each object.
template <class T>
struct ConstantListBlock : Block<T>
{
    static constexpr bool isArray = true;
    const T* const* pp;
    int32 roiShift;

    ZEPM_INLINE ConstantListBlock(const T* const* table, int32 shift) : pp(table), roiShift(shift) {}
    ZEPM_INLINE bool isNull() const { return !pp; }
    ZEPM_INLINE bool shiftValid() const { return validShift<T>(roiShift); }
    ZEPM_INLINE ConstantListBlock from(int32 first) const { return {pp + first, roiShift}; }
    template <bool>
    ZEPM_INLINE auto view(int32) const
    {
        return ConstantListView<T>{pp, roiShift};
    }
};

// ---- Operands with a pointer of their own in every layout -----------------------------------------------------------

// The elements of one object, side by side. Row numbers are int32, const or not.
template <class T>
struct DenseObject
{
    T* p;
    ZEPM_INLINE auto get(int32 i) const { return load<T>(p + i); }
    ZEPM_INLINE void set(int32 i, T x) const { store<T>(p + i, x); }
};

// The same number of elements for each object, without gaps.
template <class T>
struct DenseBlock : Block<T>
{
    T* p;

    ZEPM_INLINE DenseBlock(T* base) : p(base) {}
    ZEPM_INLINE bool isNull() const { return !p; }
    ZEPM_INLINE DenseBlock from(int32 first, int32 each) const { return object(first, each).p; }
    ZEPM_INLINE DenseObject<T> object(int32 k, int32 each) const { return {p + static_cast<ptrdiff_t>(k) * each}; }
};

// The caller's room for one object at a time, or a thread's part of the driver's.
struct ScratchBlock : Block<char>
{
    char* p;

    template <class T>
    ZEPM_INLINE ScratchBlock(T* base) : p(reinterpret_cast<char*>(base))
    {
    }
    ZEPM_INLINE bool isNull() const { return !p; }
};

// ---- The letters of the names ---------------------------------------------------------------------------------------

// A t operand: the block of a matrix, seen through its transpose.
template <class Matrix>
struct TransposedBlock : Matrix
{
    using Matrix::Matrix;
    ZEPM_INLINE TransposedBlock(const Matrix& stored) : Matrix(stored) {}
    ZEPM_INLINE TransposedBlock from(int32 first) const { return Matrix::from(first); }
    template <bool Contiguous>
    ZEPM_INLINE auto view(int32 rowLength) const
    {
        auto stored = Matrix::template view<Contiguous>(rowLength);
        return TransposedView<decltype(stored)>{stored};
    }
};

// What a block is, for kernels that treat some kinds in a way of their own.
template <class>
inline constexpr bool isConstantBlock = false;
template <class T>
inline constexpr bool isConstantBlock<ConstantBlock<T>> = true;
template <class T>
inline constexpr bool isConstantBlock<ConstantArrayBlock<T>> = true;
template <class T>
inline constexpr bool isConstantBlock<ConstantListBlock<T>> = true;

template <class>
inline constexpr bool isListBlock = false;
template <class T, int Rank>
inline constexpr bool isListBlock<ListBlock<T, Rank>> = true;

template <class>
inline constexpr bool isTransposedBlock = false;
template <class Matrix>
inline constexpr bool isTransposedBlock<TransposedBlock<Matrix>> = true;

// The blocks under the letters of the names. In L a single operand has no table.
template <class Layout, class Strided, class List, class Table>
using ByLayout =
    std::conditional_t<std::is_same_v<Layout, S>, Strided, std::conditional_t<std::is_same_v<Layout, L>, List, Table>>;

template <class T, class Y>
using v = ByLayout<Y, StridedBlock<T, false, 1>, StridedBlock<T, false, 1>, TableBlock<T, false>>;
template <class T, class Y>
using m = ByLayout<Y, StridedBlock<T, false, 2>, StridedBlock<T, false, 2>, TableBlock<T, false>>;
template <class T, class Y>
using t = TransposedBlock<m<T, Y>>;
template <class T, class Y>
using va = ByLayout<Y, StridedBlock<T, true, 1>, ListBlock<T, 1>, TableBlock<T, true>>;
template <class T, class Y>
using ma = ByLayout<Y, StridedBlock<T, true, 2>, ListBlock<T, 2>, TableBlock<T, true>>;
template <class T, class Y>
using ta = TransposedBlock<ma<T, Y>>;
template <class T>
using c = ConstantBlock<T>;
template <class T, class Y>
using ca = ByLayout<Y, ConstantArrayBlock<T>, ConstantListBlock<T>, ConstantArrayBlock<T>>;

} // namespace zepm
