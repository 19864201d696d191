// Groups of symmetric matrices, one in each lane. Each lane performs the operations of its own object alone, in their
// order; what the others still need is done under a mask.
#include "eigen/symmetric_groups.h"

#include "eigen/symmetric.h"

namespace zepm::ZEPM_LEVEL
{

namespace
{

template <class N>
inline constexpr int32 largestOrder = largestGroupOrder;
template <int32 Order>
inline constexpr int32 largestOrder<FixedOrder<Order>> = Order;

// Rows of n elements of each object of a group. float32 elements may be held as float64.
template <class T, class Number, class N, int Rows>
struct GroupElements
{
    N n;
    Number x[Rows * largestOrder<N>];

    ZEPM_INLINE static Number rounded(const Number& value)
    {
        if constexpr (sizeof(T) < sizeof(value.part[0][0]))
            return asFloat32(value);
        else
            return value;
    }
    ZEPM_INLINE const Number& get(int32 i, int32 j) const { return x[i * n + j]; }
    ZEPM_INLINE void set(bool, int32 i, int32 j, const Number& value) { x[i * n + j] = rounded(value); }
    template <class Mask>
    ZEPM_INLINE void set(const Mask& mask, int32 i, int32 j, const Number& value)
    {
        x[i * n + j] = select(mask, rounded(value), x[i * n + j]);
    }
};

template <class T, class Number_, class N, bool WithVectors>
struct SymmetricGroup
{
    using Element = T;
    using Number = Number_;
    using Mask = typename NumberTraits<Number>::Mask;
    using Matrix = GroupElements<T, Number, N, largestOrder<N>>;
    using Row = GroupElements<T, Number, N, 1>;

    N n;
    Matrix a;
    std::conditional_t<WithVectors, Matrix, NoVectors> v;
    Row values;

    ZEPM_INLINE explicit SymmetricGroup(N order) : n(order)
    {
        a.n = values.n = order;
        if constexpr (WithVectors) v.n = order;
    }

    // Each lane walks in its own direction.
    struct Walk
    {
        using Element = T;
        using Number = Number_;
        static constexpr bool hasVectors = WithVectors;
        N n;
        Mask bottomUp;
        Row diagonal, subdiagonal;
        std::conditional_t<WithVectors, Matrix, NoVectors>& vectors;

        ZEPM_INLINE const Number& d(int32 i) const { return diagonal.get(0, i); }
        ZEPM_INLINE const Number& e(int32 i) const { return subdiagonal.get(0, i); }
        ZEPM_INLINE const Number& v(int32 row, int32 i) const { return vectors.get(row, i); }
        ZEPM_INLINE void setD(const Mask& mask, int32 i, const Number& x) { diagonal.set(mask, 0, i, x); }
        ZEPM_INLINE void setE(const Mask& mask, int32 i, const Number& x) { subdiagonal.set(mask, 0, i, x); }
        ZEPM_INLINE void setV(const Mask& mask, int32 row, int32 i, const Number& x) { vectors.set(mask, row, i, x); }
        ZEPM_INLINE static Number rounded(const Number& x) { return Matrix::rounded(x); }

        ZEPM_INLINE int32 lastRotation(const Number&) const { return n - 2; }
        ZEPM_INLINE static Mask isInside(int32 i, const Number& m) { return m > Number(i); }
    };

    template <class Body>
    ZEPM_INLINE bool walk(Body body)
    {
        const int32 last = n - 1;
        Walk w{n, !(magnitude(a.get(last, last)) > magnitude(a.get(0, 0))), {n, {}}, {n, {}}, v};
        ascend(n, 0, n, [&](int32 i) ZEPM_INLINED {
            w.diagonal.x[i] = select(w.bottomUp, a.get(last - i, last - i), a.get(i, i));
        });
        ascend(n, 0, last, [&](int32 i) ZEPM_INLINED {
            w.subdiagonal.x[i] = select(w.bottomUp, a.get(last - i, last - i - 1), a.get(i + 1, i));
        });
        mirrorVectors(w.bottomUp);
        if (!body(w)) return false;
        ascend(n, 0, n, [&](int32 i) ZEPM_INLINED { values.x[i] = select(w.bottomUp, w.d(last - i), w.d(i)); });
        mirrorVectors(w.bottomUp);
        return true;
    }

private:
    ZEPM_INLINE void mirrorVectors(const Mask& mask)
    {
        if constexpr (WithVectors)
            ascend(n, 0, n, [&](int32 row) ZEPM_INLINED {
                ascend(n, 0, n / 2, [&](int32 i) ZEPM_INLINED {
                    const Number x = v.get(row, i), y = v.get(row, n - 1 - i);
                    v.set(mask, row, i, y);
                    v.set(mask, row, n - 1 - i, x);
                });
            });
    }
};

template <class T, bool WithVectors>
inline constexpr Rules rules{.wideScalars = WithVectors && sizeof(T) == 4};

template <class T, bool WithVectors>
using NumberOf = Numbers<std::conditional_t<rules<T, WithVectors>.wideScalars, float64, T>, 2>;

template <class T, bool WithVectors, class N>
bool solveGroup(const SymmetricCall& call, int32 k, int32 count)
{
    using Number = NumberOf<T, WithVectors>;
    constexpr int size = Number::count;
    N n{};
    if constexpr (!isWrittenOut<N>) n = call.order;

    SymmetricGroup<T, Number, N, WithVectors> group(n);
    uintptr_t objects[size];
    for (int32 lane = 0; lane < size; ++lane) objects[lane] = call.src.object(k + (lane < count ? lane : 0));
    ascend(n, 0, n * n, [&](int32 ij) ZEPM_INLINED { gatherNumbers<T>(group.a.x[ij], call.src.element[ij], objects); });
    if constexpr (WithVectors)
        ascend(n, 0, n * n, [&](int32 ij) ZEPM_INLINED { group.v.x[ij] = Number(ij % (n + 1) == 0 ? 1 : 0); });

    if (diagonaliseAndSort<rules<T, WithVectors>>(group) != stsOk) return false;

    T values[largestOrder<N>][size];
    ascend(n, 0, n, [&](int32 i) ZEPM_INLINED { storeNumbers(values[i], group.values.x[i]); });
    char* const to = call.values + static_cast<ptrdiff_t>(k) * n * sz<T>;
    for (int32 lane = 0; lane < count; ++lane)
        ascend(n, 0, n, [&](int32 i) ZEPM_INLINED { store<T>(to + (lane * n + i) * sz<T>, values[i][lane]); });
    if constexpr (WithVectors)
    {
        T vectors[largestOrder<N> * largestOrder<N>][size];
        ascend(n, 0, n * n, [&](int32 ij) ZEPM_INLINED { storeNumbers(vectors[ij], group.v.x[ij]); });
        for (int32 lane = 0; lane < count; ++lane)
        {
            const uintptr_t object = call.vectors.object(k + lane);
            ascend(n, 0, n * n, [&](int32 ij) ZEPM_INLINED {
                store<T>(reinterpret_cast<char*>(call.vectors.element[ij] + object), vectors[ij][lane]);
            });
        }
    }
    return true;
}

} // namespace

template <class T, bool WithVectors>
SymmetricGroupSolver symmetricGroupSolver(int32 order)
{
    return {NumberOf<T, WithVectors>::count,
            order == 3 ? solveGroup<T, WithVectors, FixedOrder<3>> : solveGroup<T, WithVectors, int32>};
}

template SymmetricGroupSolver symmetricGroupSolver<float32, false>(int32);
template SymmetricGroupSolver symmetricGroupSolver<float32, true>(int32);
template SymmetricGroupSolver symmetricGroupSolver<float64, false>(int32);
template SymmetricGroupSolver symmetricGroupSolver<float64, true>(int32);

} // namespace zepm::ZEPM_LEVEL
