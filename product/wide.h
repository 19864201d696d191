// Products of matrices with contiguous rows, as wide as the registers of the level.
//
// The result of an order is computed in panels of columns. A register of a panel holds blocks of lanes, each block the
// columns of one result row; where a row fills only part of a register, the blocks are rows of the same object or the
// same row of several objects. Every lane sees the operations of its element in their order:
//
//     result(row i) = a(i, 0) * b(row 0) + a(i, 1) * b(row 1) + ...
//
// with a(i, k) in all lanes of a block. A transposed factor differs in where a lane comes from, and in nothing else.
//
// No byte outside an object's elements is touched. A row that is no whole number of registers is loaded in one piece
// with the start of the next row of the same object where rows lie without gaps (solid objects), else in pieces; it is
// stored likewise, and the next row then overwrites what reached into it.
#pragma once

#include "frame/pieces.h"
#include "product/products.h"
#include "product/rows3.h"

namespace zepm::ZEPM_LEVEL
{

// ---- Pieces of registers --------------------------------------------------------------------------------------------

constexpr int powerOfTwoFrom(int n)
{
    int power = 1;
    while (power < n) power *= 2;
    return power;
}

constexpr int greatestCommonDivisor(int m, int n) { return n == 0 ? m : greatestCommonDivisor(n, m % n); }

// A vector of blocks of N lanes each, block(r) for r from First on.
template <class T, int N, int Blocks, int First = 0, class Block>
ZEPM_INLINE Vec<T, N * Blocks> joinBlocks(Block block)
{
    if constexpr (Blocks == 1)
        return block.template operator()<First>();
    else
        return join<T, N * Blocks / 2>(joinBlocks<T, N, Blocks / 2, First>(block),
                                       joinBlocks<T, N, Blocks / 2, First + Blocks / 2>(block));
}

// ---- Where the objects lie ------------------------------------------------------------------------------------------

// An object's rows. Those of a solid object have no gaps between them.
template <class T, int Order, bool Solid>
struct Rows
{
    const char* p;
    ptrdiff_t stride1;

    ZEPM_INLINE const char* at(int i, int j) const { return p + i * (Solid ? Order * sz<T> : stride1) + j * sz<T>; }
    // Whether N elements from element (I, J) on lie within the object.
    template <int N, int I, int J>
    static constexpr bool holds = Solid ? I* Order + J + N <= Order* Order : J + N <= Order;

    // Row I from column J on: Count elements in N lanes, what follows in the others.
    template <int N, int Count, int I, int J>
    ZEPM_INLINE Vec<T, N> get() const
    {
        return loadFirst < T, N, holds<N, I, J> ? N : Count > (at(I, J));
    }
    // The same, Times over.
    template <int N, int Count, int I, int J, int Times>
    ZEPM_INLINE Vec<T, N * Times> getRepeated() const
    {
#if defined(__AVX__)
        // One load, where the compiler would spend a shuffle.
        if constexpr (Times == 2 && N == pieceLength<T> && (Count == N || holds<N, I, J>))
            return reinterpret_cast<Vec<T, N * Times>>(_mm256_broadcast_ps(reinterpret_cast<const __m128*>(at(I, J))));
        else
#endif
            return repeat<T, N, Times>(get<N, Count, I, J>());
    }
    // Rows are to be set in ascending order.
    template <int N, int Count, int I, int J>
    ZEPM_INLINE void set(Vec<T, N> x) const
    {
        storeFirst<T, N, holds<N, I, J> ? N : Count>(const_cast<char*>(at(I, J)), x);
    }
};

// The objects of an operand one after another. Without IsList no operand is behind a table.
template <bool IsList>
struct Objects
{
    const char* p;
    ptrdiff_t step, shift;
    bool isListed;

    ZEPM_INLINE Objects(const MatrixOperand& operand, bool isList)
        : p(operand.p),
          step(operand.isFixed    ? 0
               : IsList && isList ? static_cast<ptrdiff_t>(sizeof(char*))
                                  : operand.step),
          shift(operand.step),
          isListed(IsList && isList && !operand.isFixed)
    {
    }
    ZEPM_INLINE const char* object(int r) const
    {
        const char* const at = p + r * step;
        return isListed ? load<const char*>(at) + shift : at;
    }
    ZEPM_INLINE void advance(int objects) { p += objects * step; }
};

// ---- Panels ---------------------------------------------------------------------------------------------------------

// Which of the factors is the same for every object.
enum class Fixed
{
    None,
    First,
    Second
};

// Streams stores past the caches; results without gaps start at a multiple of 16 then.
template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid, bool Streams = false>
struct Factors
{
    using Object = Rows<T, Order, Solid>;
    // Orders that no kernel has a body of its own for are here for speed alone.
    static constexpr bool fromZero = Order > 6;
    static constexpr ptrdiff_t size = Order * Order * sz<T>;

    // Columns First to First + Columns - 1 of the result in registers of up to Width lanes.
    template <int Width, int First, int Columns>
    struct Panel
    {
        static constexpr int blockLanes = powerOfTwoFrom(Columns);
        // Behind the first panel, which takes one object at a time then, so do the others.
        static constexpr int blocks =
            First == 0 ? Width / blockLanes : greatestCommonDivisor(Order, Width / blockLanes);
        static constexpr int rowsTogether = greatestCommonDivisor(Order, blocks);
        static constexpr int objects = blocks / rowsTogether;
        static constexpr int registers = Order / rowsTogether;
        static constexpr int N = blocks * blockLanes;
        // Whether the lanes of a block hold a row of a factor, and a(i, k) comes from there.
        static constexpr bool permutes = blocks > 1 && First == 0;
        // Whether each register is a piece of one object.
        static constexpr bool isWhole = Solid && Order == blockLanes && objects == 1;
        using V = Vec<T, N>;

        // Block r of register q is this row of that object.
        static constexpr int rowOf(int q, int r) { return q * rowsTogether + r % rowsTogether; }
        static constexpr int objectOf(int r) { return r / rowsTogether; }

        // Row I, the same in all blocks of an object.
        template <int I, class Object>
        ZEPM_INLINE static V rowOfAll(const Object (&x)[objects])
        {
            return joinBlocks<T, blockLanes * rowsTogether, objects>([&]<int R>() ZEPM_INLINED {
                return x[R].template getRepeated<blockLanes, Columns, I, First, rowsTogether>();
            });
        }

        struct FirstFactor
        {
            V rows[permutes ? (Transposes1 ? Order : registers) : 1];
            const Object* object;

            ZEPM_INLINE explicit FirstFactor(const Object (&a)[objects]) : object(a)
            {
                if constexpr (permutes && Transposes1)
                    each<Order>([&]<int I>() ZEPM_INLINED { rows[I] = rowOfAll<I>(a); });
                else if constexpr (permutes)
                    each<registers>([&]<int Q>() ZEPM_INLINED {
                        if constexpr (isWhole)
                            rows[Q] = loadVec<T, N>(a[0].at(rowOf(Q, 0), 0));
                        else
                            rows[Q] = joinBlocks<T, blockLanes, blocks>([&]<int R>() ZEPM_INLINED {
                                return a[objectOf(R)].template get<blockLanes, Columns, rowOf(Q, R), 0>();
                            });
                    });
            }
            // a(i, K) for the rows of register Q.
            template <int Q, int K>
            ZEPM_INLINE V get() const
            {
                if constexpr (permutes && Transposes1)
                    return permute<T, N>(
                        rows[K], [](int lane) { return lane / blockLanes * blockLanes + rowOf(Q, lane / blockLanes); });
                else if constexpr (permutes)
                    return permute<T, N>(rows[Q], [](int lane) { return lane / blockLanes * blockLanes + K; });
                else
                    return joinBlocks<T, blockLanes, blocks>([&]<int R>() ZEPM_INLINED {
                        constexpr int i = rowOf(Q, R);
                        return broadcast<T, blockLanes>(
                            load<T>(Transposes1 ? object[objectOf(R)].at(K, i) : object[objectOf(R)].at(i, K)));
                    });
            }
        };

        struct SecondFactor
        {
            V rows[Order];

            ZEPM_INLINE explicit SecondFactor(const Object (&b)[objects])
            {
                constexpr int E = pieceLength<T>;
                if constexpr (!Transposes2)
                    each<Order>([&]<int K>() ZEPM_INLINED { rows[K] = rowOfAll<K>(b); });
                else if constexpr (blockLanes < E)
                    each<Order>([&]<int K>() ZEPM_INLINED {
                        rows[K] = [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
                        {
                            return joinLanes({load<T>(b[objectOf(Lane / blockLanes)].at(
                                First + (Lane % blockLanes < Columns ? Lane % blockLanes : 0), K))...});
                        }
                        (std::make_integer_sequence<int, N>{});
                    });
                else
                    // Each 16 bytes hold E elements of one stored row, then one element of E stored rows.
                    each<(Order + E - 1) / E>([&]<int Group>() ZEPM_INLINED {
                        V stored[E];
                        each<E>([&]<int S>() ZEPM_INLINED {
                            stored[S] = joinBlocks<T, blockLanes * rowsTogether, objects>([&]<int R>() __attribute__((
                                always_inline)) {
                                return repeat<T, blockLanes, rowsTogether>(storedColumns<Group * E, S>(b[R]));
                            });
                        });
                        transposePieces<T, N>(stored);
                        each<E>([&]<int S>() ZEPM_INLINED {
                            if constexpr (Group * E + S < Order) rows[Group * E + S] = stored[S];
                        });
                    });
            }

        private:
            ZEPM_INLINE static V joinLanes(const T (&x)[N])
            {
                return [&]<int... Lane>(std::integer_sequence<int, Lane...>) ZEPM_INLINED
                {
                    if constexpr (N == 1)
                        return x[0];
                    else
                        return V{x[Lane]...};
                }
                (std::make_integer_sequence<int, N>{});
            }
            // A block: in each 16 bytes g, elements from column K on of stored row First + g * E + S.
            template <int K, int S>
            ZEPM_INLINE static Vec<T, blockLanes> storedColumns(const Object& b)
            {
                constexpr int E = pieceLength<T>;
                return joinBlocks<T, E, blockLanes / E>([&]<int G>() ZEPM_INLINED {
                    constexpr int j = First + G * E + S;
                    if constexpr (j < Order)
                        return b.template get<E, (Order - K < E ? Order - K : E), j, K>();
                    else
                        return Vec<T, E>{};
                });
            }
        };

        ZEPM_INLINE static void multiply(const FirstFactor& a, const SecondFactor& b, const Object (&d)[objects])
        {
            each<registers>([&]<int Q>() ZEPM_INLINED {
                V sum = a.template get<Q, 0>() * b.rows[0];
                if constexpr (fromZero) sum = V{} + sum; // products of -0 give +0
                each<Order - 1>([&]<int K>() ZEPM_INLINED { sum += a.template get<Q, K + 1>() * b.rows[K + 1]; });
                char* const to = const_cast<char*>(d[0].at(rowOf(Q, 0), 0));
                if constexpr (isWhole && Streams)
                    streamPieces<T, N>(to, sum);
                else if constexpr (isWhole)
                    storeVec<T, N>(to, sum);
                else
                    storeBlocks<Q, 0, blocks>(sum, d);
            });
        }

        template <int Q, int R, int Blocks>
        ZEPM_INLINE static void storeBlocks(Vec<T, blockLanes * Blocks> x, const Object (&d)[objects])
        {
            if constexpr (Blocks == 1)
                d[objectOf(R)].template set<blockLanes, Columns, rowOf(Q, R), First>(x);
            else
            {
                storeBlocks<Q, R, Blocks / 2>(half<T, blockLanes * Blocks, 0>(x), d);
                storeBlocks<Q, R + Blocks / 2, Blocks / 2>(half<T, blockLanes * Blocks, 1>(x), d);
            }
        }
    };

    // The panels of an order: this one, and what is right of it.
    template <int Width, int First = 0>
    struct Panels
    {
        using Own = Panel<Width, First, (Order - First < Width ? Order - First : Width)>;
        using Rest = Panels<Width, First + Width>;
        static constexpr int objects = Own::objects;
        typename Own::FirstFactor a;
        typename Own::SecondFactor b;
        Rest rest;

        // Both factors, of which those that change are loaded again for each group of objects.
        ZEPM_INLINE Panels(const Object (&objectA)[objects], const Object (&objectB)[objects])
            : a(objectA), b(objectB), rest(objectA, objectB)
        {
        }
        template <Fixed fixed>
        ZEPM_INLINE void multiply(const Object (&objectA)[objects], const Object (&objectB)[objects],
                                  const Object (&d)[objects]) const
        {
            using A = typename Own::FirstFactor;
            using B = typename Own::SecondFactor;
            if constexpr (fixed == Fixed::First)
                Own::multiply(a, B(objectB), d);
            else if constexpr (fixed == Fixed::Second)
                Own::multiply(A(objectA), b, d);
            else
                Own::multiply(A(objectA), B(objectB), d);
            rest.template multiply<fixed>(objectA, objectB, d);
        }
    };
    template <int Width, int First>
    requires(First >= Order) struct Panels<Width, First>
    {
        template <class Objects>
        ZEPM_INLINE Panels(const Objects&, const Objects&)
        {
        }
        template <Fixed, class Objects>
        ZEPM_INLINE void multiply(const Objects&, const Objects&, const Objects&) const
        {
        }
    };

    // All objects in groups, then those left over in registers of half the width.
    template <int Width, Fixed fixed, class Found>
    ZEPM_INLINE static void multiply(Found a, Found b, Found d, const ProductCall& call, ptrdiff_t count)
    {
        using All = Panels<Width>;
        constexpr int G = All::objects;
        auto gathered = [&](const Found& x, const MatrixOperand& operand) ZEPM_INLINED {
            return [&]<int... R>(std::integer_sequence<int, R...>) ZEPM_INLINED
            {
                return Group<G>{{{x.object(R), operand.stride1}...}};
            }
            (std::make_integer_sequence<int, G>{});
        };
        if (count >= G)
        {
            const auto fixedA = gathered(a, call.a), fixedB = gathered(b, call.b);
            const All panels(fixedA.object, fixedB.object);
            const FetchedAhead aheadA(a.p, call.a.isFixed ? 1 : count * call.a.step);
            const FetchedAhead aheadB(b.p, call.b.isFixed ? 1 : count * call.b.step);
            // Fetches as many bytes ahead in each source as the next step reads.
            auto fetch = [&](ptrdiff_t bytes) ZEPM_INLINED {
                for (ptrdiff_t line = 0; line < bytes; line += 64)
                {
                    if constexpr (fixed != Fixed::First) aheadA.from(a.p + line);
                    if constexpr (fixed != Fixed::Second) aheadB.from(b.p + line);
                }
            };
            auto multiplyGroup = [&](const Group<G>& objectD) ZEPM_INLINED {
                const auto objectA = fixed == Fixed::First ? fixedA : gathered(a, call.a);
                const auto objectB = fixed == Fixed::Second ? fixedB : gathered(b, call.b);
                panels.template multiply<fixed>(objectA.object, objectB.object, objectD.object);
                a.advance(G), b.advance(G);
            };
            if constexpr (Streams && !All::Own::isWhole)
            {
                // As many as are whole cache lines meet in a buffer.
                constexpr int many = 16;
                alignas(64) char buffer[many * size];
                for (; count >= many; count -= many)
                {
                    Found x({buffer, size, call.d.stride1, false}, false);
                    fetch(many * size);
                    for (int k = 0; k < many; k += G, x.advance(G)) multiplyGroup(gathered(x, call.d));
                    char* const to = const_cast<char*>(d.object(0));
                    for (ptrdiff_t i = 0; i < many * size; i += registerBytes)
                        streamPieces<T, lanes<T>>(to + i, loadVec<T, lanes<T>>(buffer + i));
                    d.advance(many);
                }
            }
            for (; count >= G; count -= G)
            {
                if (Streams) fetch(G * size);
                multiplyGroup(gathered(d, call.d));
                d.advance(G);
            }
        }
        if constexpr (G > 1)
        {
            if (count > 0) multiply<Width / 2, fixed>(a, b, d, call, count);
        }
    }

private:
    template <int G>
    struct Group
    {
        Object object[G];
    };
};

// ---- The bodies of the orders ---------------------------------------------------------------------------------------

template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid, Fixed fixed, bool Streams>
[[gnu::noinline]] void multiplyOrder(const ProductCall& call)
{
    // Objects of a list are not looked at for gaps.
    using Found = Objects<!Solid>;
    Factors<T, Order, Transposes1, Transposes2, Solid, Streams>::template multiply<lanes<T>, fixed>(
        Found(call.a, call.isList), Found(call.b, call.isList), Found(call.d, call.isList), call, call.count);
}

template <class T>
ZEPM_INLINE bool isSolid(const ProductCall& call, int order)
{
    const ptrdiff_t rowSize = order * sz<T>;
    return !call.isList && call.a.stride1 == rowSize && call.b.stride1 == rowSize && call.d.stride1 == rowSize;
}

// The first panel of solid objects.
template <class T, int Order, bool Transposes1, bool Transposes2>
using SolidPanel = typename Factors<T, Order, Transposes1, Transposes2, true>::template Panels<lanes<T>>::Own;

template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid, bool Streams = false>
ZEPM_INLINE void multiplyObjectsOfOrder(const ProductCall& call)
{
    auto ofFixed = [&]<Fixed fixed>()
                       ZEPM_INLINED { multiplyOrder<T, Order, Transposes1, Transposes2, Solid, fixed, Streams>(call); };
    // A fixed first factor is held where that saves shuffles; elsewhere its elements come from memory anyway.
    constexpr bool holdsFirst = Solid && !Streams && SolidPanel<T, Order, Transposes1, Transposes2>::permutes;
    if (call.b.isFixed) return ofFixed.template operator()<Fixed::Second>();
    if constexpr (holdsFirst)
        if (call.a.isFixed) return ofFixed.template operator()<Fixed::First>();
    ofFixed.template operator()<Fixed::None>();
}

// Whether rows of all objects go together.
template <class T, bool Transposes1>
ZEPM_INLINE bool takesRowsOf3(const ProductCall& call)
{
    constexpr ptrdiff_t size = 9 * sz<T>;
    return sizeof(T) == 4 && !Transposes1 && call.b.isFixed && call.a.step == size && call.d.step == size &&
           isSolid<T>(call, 3);
}

template <class T, int Order, bool Transposes1, bool Transposes2>
ZEPM_INLINE void multiplyOrder(const ProductCall& call)
{
    if constexpr (Order == 3)
        if (takesRowsOf3<T, Transposes1>(call)) return multiplyRowsOf3<Transposes2>(call);
    isSolid<T>(call, Order) ? multiplyObjectsOfOrder<T, Order, Transposes1, Transposes2, true>(call)
                            : multiplyObjectsOfOrder<T, Order, Transposes1, Transposes2, false>(call);
}

// The first objects of a call, and those behind them.
ZEPM_INLINE ProductCall firstOf(ProductCall call, ptrdiff_t objects)
{
    call.count = objects;
    return call;
}
ZEPM_INLINE ProductCall behind(ProductCall call, ptrdiff_t objects)
{
    call.a.p += objects * call.a.toNext(), call.b.p += objects * call.b.toNext(), call.d.p += objects * call.d.step;
    call.count -= objects;
    return call;
}

// Results stored past the caches soon after they are computed, from the first on that starts 16 bytes: whether one
// does.
template <class T, int Order, bool Transposes1, bool Transposes2>
[[gnu::noinline]] bool streamOrder(const ProductCall& call)
{
    const auto d = reinterpret_cast<uintptr_t>(call.d.p);
    if constexpr (Order == 3)
        if (d % sizeof(T) == 0 && takesRowsOf3<T, Transposes1>(call))
        {
            multiplyRowsOf3<Transposes2, true>(call);
            fenceStreams();
            return true;
        }
    if (!isSolid<T>(call, Order)) return false;
    for (ptrdiff_t head = 0; head < 4; ++head)
        if ((d + static_cast<uintptr_t>(head * call.d.step)) % 16 == 0)
        {
            if (head > 0) multiplyObjectsOfOrder<T, Order, Transposes1, Transposes2, true>(firstOf(call, head));
            multiplyObjectsOfOrder<T, Order, Transposes1, Transposes2, true, true>(behind(call, head));
            fenceStreams();
            return true;
        }
    return false;
}

// One pair, without the road to another level.
template <class T, int Order, bool Transposes1, bool Transposes2>
ZEPM_INLINE void multiplyPair(const MatrixOperand& a, const MatrixOperand& b, const MatrixOperand& d)
{
    auto multiply = [&]<bool Solid>() ZEPM_INLINED {
        using These = Factors<T, Order, Transposes1, Transposes2, Solid>;
        using All = typename These::template Panels<pieceLength<T>>;
        const typename These::Object objectA[]{{a.p, a.stride1}}, objectB[]{{b.p, b.stride1}},
            objectD[]{{d.p, d.stride1}};
        All(objectA, objectB).template multiply<Fixed::None>(objectA, objectB, objectD);
    };
    constexpr ptrdiff_t rowSize = Order * sz<T>;
    a.stride1 == rowSize&& b.stride1 == rowSize&& d.stride1 == rowSize ? multiply.template operator()<true>()
                                                                       : multiply.template operator()<false>();
}

} // namespace zepm::ZEPM_LEVEL
