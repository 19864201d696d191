// Element-wise calls on contiguous rows. The order of the operations is free here: each result element is one operation
// on its own two elements, which are read before it is written.
#include "elementwise/row.h"
#include "elementwise/rows.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

template <bool IsList>
ZEPM_INLINE const char* object(const RowOperand& operand, ptrdiff_t k)
{
    if (operand.isFixed) return operand.p;
    if constexpr (IsList)
        return load<const char*>(operand.p + k * static_cast<ptrdiff_t>(sizeof(char*))) + operand.stride0;
    else
        return operand.p + k * operand.stride0;
}

// Object by object, row by row; Length 0 is any length.
template <class T, int Length, bool IsConstant, bool IsList, class Op>
ZEPM_INLINE void objects(Op op, const RowCall& call)
{
    const RowCall c = call; // the stores cannot change a copy
    for (ptrdiff_t k = 0; k < c.count; ++k)
    {
        const char* a = object<IsList>(c.a, k);
        const char* b = object<IsList>(c.b, k);
        char* d = const_cast<char*>(object<IsList>(c.d, k));
        for (ptrdiff_t i = 0; i < c.height; ++i)
        {
            auto along = [&](auto operand) __attribute__((always_inline))
            {
                if constexpr (Length > 0)
                    rowOf<T, Length>(op, a, operand, d);
                else
                    row<T>(op, a, operand, d, c.width);
            };
            if constexpr (IsConstant)
                along(load<T>(b));
            else
                along(b);
            a += c.a.stride1;
            if constexpr (!IsConstant) b += c.b.stride1;
            d += c.d.stride1;
        }
    }
}

template <class T, bool IsConstant, bool IsList, class Op>
void objectsByLength(Op op, const RowCall& call)
{
    switch (call.width)
    {
    case 3: return objects<T, 3, IsConstant, IsList>(op, call);
    case 4: return objects<T, 4, IsConstant, IsList>(op, call);
    case 5: return objects<T, 5, IsConstant, IsList>(op, call);
    case 6: return objects<T, 6, IsConstant, IsList>(op, call);
    default: return objects<T, 0, IsConstant, IsList>(op, call);
    }
}

// ---- Dense objects of few elements ----------------------------------------------------------------------------------
//
// As many objects as a register has lanes fill Length registers exactly, whatever the length. In register r of such a
// group lane n holds element (r * lanes + n) % Length of object (r * lanes + n) / Length.

template <class T, int Length>
struct StreamedOperand
{
    const char* p;
    template <int R>
    ZEPM_INLINE Vec<T, lanes<T>> get(ptrdiff_t group) const
    {
        return loadVec<T, lanes<T>>(p + (group * Length + R) * registerBytes);
    }
    ZEPM_INLINE void enterGroup(ptrdiff_t) {}
};

template <class T, int Length>
struct FixedOperand
{
    char repeated[Length * registerBytes];
    ZEPM_INLINE explicit FixedOperand(const char* p)
    {
        for (int k = 0; k < lanes<T>; ++k) __builtin_memcpy(repeated + k * Length * sz<T>, p, Length * sizeof(T));
    }
    template <int R>
    ZEPM_INLINE Vec<T, lanes<T>> get(ptrdiff_t) const
    {
        return loadVec<T, lanes<T>>(repeated + R * registerBytes);
    }
    ZEPM_INLINE void enterGroup(ptrdiff_t) {}
};

template <class T, int Length>
struct ConstantOperand
{
    const char* p;
    Vec<T, lanes<T>> constants;
    template <int R>
    struct Place
    {
        constexpr int operator()(int lane) const { return (R * lanes<T> + lane) / Length; }
    };
    template <int R>
    ZEPM_INLINE Vec<T, lanes<T>> get(ptrdiff_t) const
    {
        return permute<T, lanes<T>>(constants, Place<R>{});
    }
    ZEPM_INLINE void enterGroup(ptrdiff_t group) { constants = loadVec<T, lanes<T>>(p + group * registerBytes); }
};

template <class T, int Length, class Op, class A, class B>
ZEPM_INLINE void groups(Op op, A a, B b, char* d, ptrdiff_t count)
{
    for (ptrdiff_t group = 0; group < count; ++group)
    {
        a.enterGroup(group);
        b.enterGroup(group);
        [&]<int... R>(std::integer_sequence<int, R...>) __attribute__((always_inline))
        {
            (storeVec<T, lanes<T>>(d + (group * Length + R) * registerBytes,
                                   op(a.template get<R>(group), b.template get<R>(group))),
             ...);
        }
        (std::make_integer_sequence<int, Length>{});
    }
}

template <class T, int Length, class Op>
ZEPM_INLINE void groupsOf(Op op, const RowCall& c, ptrdiff_t count)
{
    using Streamed = StreamedOperand<T, Length>;
    using Fixed = FixedOperand<T, Length>;
    char* const d = const_cast<char*>(c.d.p);
    if (c.isConstant && c.a.isFixed)
        groups<T, Length>(op, Fixed(c.a.p), ConstantOperand<T, Length>{c.b.p, {}}, d, count);
    else if (c.isConstant)
        groups<T, Length>(op, Streamed{c.a.p}, ConstantOperand<T, Length>{c.b.p, {}}, d, count);
    else if (c.a.isFixed)
        groups<T, Length>(op, Fixed(c.a.p), Streamed{c.b.p}, d, count);
    else
        groups<T, Length>(op, Streamed{c.a.p}, Fixed(c.b.p), d, count);
}

// The objects that fill whole groups; returns how many they are.
template <class T, class Op>
ptrdiff_t denseObjects(Op op, const RowCall& c)
{
    const ptrdiff_t size = c.width * sz<T>;
    auto dense = [&](const RowOperand& operand, ptrdiff_t step) __attribute__((always_inline))
    {
        return operand.isFixed || operand.stride0 == step;
    };
    if (c.isList || c.height != 1 || !dense(c.d, size) || !dense(c.a, size)) return 0;
    if (!dense(c.b, c.isConstant ? sz<T> : size)) return 0;
    const ptrdiff_t count = c.count / lanes<T>;
    switch (c.width)
    {
    case 3: groupsOf<T, 3>(op, c, count); break;
    case 4: groupsOf<T, 4>(op, c, count); break;
    case 5: groupsOf<T, 5>(op, c, count); break;
    case 6: groupsOf<T, 6>(op, c, count); break;
    default: return 0;
    }
    return count * lanes<T>;
}

// ---- The call -------------------------------------------------------------------------------------------------------

// Rows that follow one another without a gap are one row, and so are objects, where the second operand allows it.
template <class T>
ZEPM_INLINE RowCall joined(RowCall c)
{
    const ptrdiff_t rowSize = c.width * sz<T>;
    auto follow = [&](const RowOperand& operand) __attribute__((always_inline)) { return operand.stride1 == rowSize; };
    if (c.height > 1 && follow(c.a) && follow(c.d) && (c.isConstant || follow(c.b)))
    {
        c.width *= c.height;
        c.height = 1;
    }
    const ptrdiff_t size = c.width * sz<T>;
    auto next = [&](const RowOperand& operand) __attribute__((always_inline))
    {
        return !operand.isFixed && operand.stride0 == size;
    };
    if (!c.isList && c.height == 1 && next(c.a) && next(c.d) && (c.isConstant ? c.b.isFixed : next(c.b)))
    {
        c.width *= c.count;
        c.count = 1;
    }
    return c;
}

} // namespace

template <class Op, class T>
void combineRows(const RowCall& call)
{
    RowCall c = joined<T>(call);
    if (c.count >= lanes<T>)
    {
        const ptrdiff_t done = denseObjects<T>(Op{}, c);
        auto skip = [&](RowOperand & operand) __attribute__((always_inline))
        {
            if (!operand.isFixed) operand.p += done * operand.stride0;
        };
        if (done > 0) skip(c.a), skip(c.b), skip(c.d);
        c.count -= done;
    }
    if (c.isConstant)
        c.isList ? objectsByLength<T, true, true>(Op{}, c) : objectsByLength<T, true, false>(Op{}, c);
    else
        c.isList ? objectsByLength<T, false, true>(Op{}, c) : objectsByLength<T, false, false>(Op{}, c);
}

template void combineRows<Plus, float32>(const RowCall&);
template void combineRows<Plus, float64>(const RowCall&);
template void combineRows<Minus, float32>(const RowCall&);
template void combineRows<Minus, float64>(const RowCall&);
template void combineRows<MinusFrom, float32>(const RowCall&);
template void combineRows<MinusFrom, float64>(const RowCall&);

} // namespace zepm::ZEPM_LEVEL
