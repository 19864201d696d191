// The kernels of the symmetric eigenproblems: closed forms of orders 1 and 2, one object of any order in the caller's
// scratch, arrays of objects.
#pragma once

#include "eigen/symmetric.h"
#include "eigen/symmetric_forms.h"
#include "eigen/symmetric_groups.h"
#include "frame/groups.h"

namespace zepm
{

// ---- One object -----------------------------------------------------------------------------------------------------

// Elements in memory as numbers of the calculation: float32 elements may take part as float64.
template <class T, class Number_, class Object>
struct StoredElements
{
    using Number = Number_;
    Object object;

    ZEPM_INLINE Number get(int32 i, int32 j) const { return object.get(i, j); }
    ZEPM_INLINE void set(bool mask, int32 i, int32 j, Number x) const
    {
        if (mask) object.set(i, j, static_cast<T>(x));
    }
};

template <class T, class Number_, class Vectors>
struct SingleProblem
{
    using Element = T;
    using Number = Number_;
    using DenseElements = StoredElements<T, Number, StridedObject<T, true>>;

    int32 n;
    DenseElements a;
    Vectors v;
    DenseElements values;

    template <bool BottomUp>
    struct Walk
    {
        using Element = T;
        using Number = Number_;
        static constexpr bool bottomUp = BottomUp, hasVectors = zepm::hasVectors<SingleProblem>;
        const SingleProblem& problem;
        const int32 n = problem.n;

        ZEPM_INLINE int32 at(int32 i) const { return BottomUp ? n - 1 - i : i; }
        ZEPM_INLINE int32 lower(int32 i) const { return BottomUp ? n - 1 - i : i + 1; } // e(i) in a(lower, lower - 1)
        ZEPM_INLINE Number d(int32 i) const { return problem.a.get(at(i), at(i)); }
        ZEPM_INLINE Number e(int32 i) const { return problem.a.get(lower(i), lower(i) - 1); }
        ZEPM_INLINE Number v(int32 row, int32 i) const { return problem.v.get(row, at(i)); }
        ZEPM_INLINE void setD(bool mask, int32 i, Number x) const { problem.a.set(mask, at(i), at(i), x); }
        ZEPM_INLINE void setE(bool mask, int32 i, Number x) const { problem.a.set(mask, lower(i), lower(i) - 1, x); }
        ZEPM_INLINE void setV(bool mask, int32 row, int32 i, Number x) const { problem.v.set(mask, row, at(i), x); }
        ZEPM_INLINE static Number rounded(Number x) { return static_cast<T>(x); }

        ZEPM_INLINE static int32 lastRotation(int32 m) { return m - 1; }
        ZEPM_INLINE static bool isInside(int32, int32) { return true; } // since it begins at lastRotation
    };

    template <class Body>
    ZEPM_INLINE bool walk(Body body) const
    {
        Walk<false> down{*this};
        Walk<true> up{*this};
        const bool isDown = magnitude(a.get(n - 1, n - 1)) > magnitude(a.get(0, 0));
        if (!(isDown ? body(down) : body(up))) return false;
        for (int32 i = 0; i < n; ++i) values.set(true, 0, i, a.get(i, i));
        return true;
    }
};

template <class T>
ZEPM_INLINE auto denseRows(char* p, int32 rowLength)
{
    constexpr ptrdiff_t sz = sizeof(T);
    return StridedObject<T, true>{p, rowLength * sz, sz};
}

// 1 / sqrt(g * g + 1), its root and quotient in float64.
template <class T>
ZEPM_INLINE T cosineOf(T g)
{
    return static_cast<T>(1.0 / squareRoot(static_cast<float64>(g * g + T(1))));
}

// The eigenvalue of larger magnitude stands first: a negative trace gives ascending order.
template <Rules rules, class T, class Source, class Vectors, class Values>
ZEPM_INLINE Status solveSymmetricOrder2(const Source& source, [[maybe_unused]] const Vectors& v, const Values& values)
{
    constexpr T eps = tolerance<T>;
    const T a = source.get(0, 0), b = source.get(0, 1), c = source.get(1, 1);
    const T det = c * a - b * b;
    if ((rules.lowOrder2Threshold ? static_cast<T>(tolerance<float64>) : eps) >= magnitude(det)) return stsSingularErr;
    const T t = c + a;
    const T d = a - c, q = T(2) * b;
    const T r = squareRoot(d * d + q * q);
    const bool isNegative = t < -eps;
    if (t > eps || isNegative)
    {
        const T larger = (isNegative ? t - r : r + t) * T(0.5);
        values.set(0, 0, larger);
        values.set(0, 1, (a * c - b * b) / larger);
    }
    else
    {
        values.set(0, 0, T(0.5) * r);
        values.set(0, 1, T(-0.5) * r);
    }
    if constexpr (!std::is_same_v<Vectors, NoVectors>)
    {
        const bool isFalling = d < -eps;
        const T w = isFalling ? d - r : d + r;
        T x = 1, y = 0;
        if (magnitude(w) > magnitude(q))
        {
            const T g = -q / w;
            y = cosineOf(g);
            x = g * y;
        }
        else if (!(eps >= magnitude(q)))
        {
            const T g = -w / q;
            x = cosineOf(g);
            y = g * x;
        }
        if (isNegative == isFalling)
        {
            const T former = x;
            x = -y;
            y = former;
        }
        v.set(0, 0, x);
        v.set(1, 0, y);
        v.set(0, 1, -y);
        v.set(1, 1, x);
    }
    return stsOk;
}

template <Rules rules, class T, class Source, class Vectors>
ZEPM_INLINE Status solveSymmetricObject(const Source& source, const Vectors& v, char* values, char* pBuffer, int32 n)
{
    constexpr bool withVectors = !std::is_same_v<Vectors, NoVectors>;
    const auto dense = denseRows<T>(values, n);
    if (n == 1)
    {
        dense.set(0, 0, source.get(0, 0));
        if constexpr (withVectors) v.set(0, 0, T(1));
        return stsOk;
    }
    if (n == 2) return solveSymmetricOrder2<rules, T>(source, v, dense);

    using Number = std::conditional_t<rules.wideScalars, float64, T>;
    const auto scratch = denseRows<T>(pBuffer, n);
    for (int32 i = 0; i < n; ++i)
        for (int32 j = 0; j < n; ++j)
        {
            scratch.set(i, j, source.get(i, j));
            if constexpr (withVectors) v.set(i, j, i == j ? T(1) : T(0));
        }
    if constexpr (withVectors)
    {
        SingleProblem<T, Number, StoredElements<T, Number, Vectors>> problem{n, {scratch}, {v}, {dense}};
        return diagonaliseAndSort<rules>(problem);
    }
    else
    {
        SingleProblem<T, Number, NoVectors> problem{n, {scratch}, v, {dense}};
        return diagonaliseAndSort<rules>(problem);
    }
}

// ---- Kernels --------------------------------------------------------------------------------------------------------

// How a kernel reaches the elements: contiguous ones, ones at stride2, ones behind a table.
enum Access
{
    Packed,
    Strided,
    Table
};

template <Access access, class X>
ZEPM_INLINE auto vectorsOf(const X& x)
{
    if constexpr (requires { x.dst; })
        return x.dst.template view<access == Packed>(x.widthHeight);
    else
        return NoVectors{};
}
template <class View>
ZEPM_INLINE auto vectorsOfObject(const View& view, int32 k)
{
    return view.object(k);
}
ZEPM_INLINE NoVectors vectorsOfObject(const NoVectors& none, int32) { return none; }

template <Rules rules, Access access, class X>
ZEPM_INLINE Status solveSymmetric(const X& x)
{
    using T = typename X::Element;
    return solveSymmetricObject<rules, T>(x.src.template view<access == Packed>(x.widthHeight).object(0),
                                          vectorsOfObject(vectorsOf<access>(x), 0), bytes(x.dstValues.p), x.pBuffer.p,
                                          x.widthHeight);
}

// Where the order is small, objects go in groups.
template <Rules rules, Access access, class X>
ZEPM_INLINE Status solveSymmetricArray(const X& x)
{
    using T = typename X::Element;
    constexpr bool withVectors = requires { x.dst; };
    const int32 n = x.widthHeight;
    const auto source = x.src.template view<access == Packed>(n);
    const auto v = vectorsOf<access>(x);
    const auto one = [&](int32 k) ZEPM_INLINED {
        return solveSymmetricObject<rules, T>(source.object(k), vectorsOfObject(v, k),
                                              bytes(x.dstValues.object(k, n).p), x.pBuffer.p, n);
    };
    if (n < smallestGroupOrder || n > largestGroupOrder)
    {
        for (int32 k = 0; k < x.count; ++k)
            if (const Status status = one(k)) return status;
        return stsOk;
    }
    SymmetricCall call;
    call.src = placesOf(x.src, n);
    if constexpr (withVectors) call.vectors = placesOf(x.dst, n);
    call.values = bytes(x.dstValues.p);
    call.order = n;
    const SymmetricGroupSolver groups = ZEPM_AT_LEVEL(symmetricGroupSolver<T, withVectors>)(n);
    return forGroups(
        x.count, groups.size, 1, [&](int32 k, int32 size) ZEPM_INLINED { return groups.solve(call, k, size); }, one);
}

} // namespace zepm
