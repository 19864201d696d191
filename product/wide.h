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

// ---- Where the objects lie ------------------------------------------------------------------------------------------

// An object's rows. Those of a solid object have no gaps between them.
template <class T, int Order, bool Solid>
struct FactorRows
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
        if constexpr (Times == 2 && N == pieceLength<T> && (Count == N || holds<N, I, J>))
            return loadTwice<T>(at(I, J));
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

// ---- Panels ---------------------------------------------------------------------------------------------------------

// Which of the factors is the same for every object.
enum class FixedFactor
{
    None,
    First,
    Second
};

// Streams stores past the caches; results without gaps start at a multiple of 16 then.
template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid, bool Streams = false>
struct Factors
{
    using Object = FactorRows<T, Order, Solid>;
    // Above order 6 sums begin with +0, as in the kernels without a body for an order.
    static constexpr bool fromZero = Order > 6;
    static constexpr ptrdiff_t size = Order * Order * sz<T>;

    // Columns First to First + Columns - 1 of the result in registers of up to Width lanes.
    template <int Width, int First, int Columns>
    struct Panel
    {
        static constexpr int blockLanes = powerOfTwoFrom(Columns);
        // If the order needs more than one panel, the first takes one object at a time, and so do the others.
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
            return joinParts<T, blockLanes * rowsTogether, objects>([&]<int R>() ZEPM_INLINED {
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
                            rows[Q] = joinParts<T, blockLanes, blocks>([&]<int R>() ZEPM_INLINED {
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
                    return joinParts<T, blockLanes, blocks>([&]<int R>() ZEPM_INLINED {
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
                        rows[K] = eachLane<T, N>([&](int lane) ZEPM_INLINED {
                            const int j = lane % blockLanes;
                            return load<T>(b[objectOf(lane / blockLanes)].at(First + (j < Columns ? j : 0), K));
                        });
                    });
                else
                    // Each 16 bytes hold E elements of one stored row, then one element of E stored rows.
                    each<(Order + E - 1) / E>([&]<int Group>() ZEPM_INLINED {
                        V stored[E];
                        each<E>([&]<int S>() ZEPM_INLINED {
                            stored[S] = joinParts<T, blockLanes * rowsTogether, objects>([&]<int R>() __attribute__((
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
            // A block: in each 16 bytes g, elements from column K on of stored row First + g * E + S.
            template <int K, int S>
            ZEPM_INLINE static Vec<T, blockLanes> storedColumns(const Object& b)
            {
                constexpr int E = pieceLength<T>;
                return joinParts<T, E, blockLanes / E>([&]<int G>() ZEPM_INLINED {
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
                    splitParts<T, blockLanes, blocks>(sum, [&]<int R>(Vec<T, blockLanes> x) ZEPM_INLINED {
                        d[objectOf(R)].template set<blockLanes, Columns, rowOf(Q, R), First>(x);
                    });
            });
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
        template <FixedFactor fixed>
        ZEPM_INLINE void multiply(const Object (&objectA)[objects], const Object (&objectB)[objects],
                                  const Object (&d)[objects]) const
        {
            using A = typename Own::FirstFactor;
            using B = typename Own::SecondFactor;
            if constexpr (fixed == FixedFactor::First)
                Own::multiply(a, B(objectB), d);
            else if constexpr (fixed == FixedFactor::Second)
                Own::multiply(A(objectA), b, d);
            else
                Own::multiply(A(objectA), B(objectB), d);
            rest.template multiply<fixed>(objectA, objectB, d);
        }
    };
    template <int Width, int First>
    requires(First >= Order) struct Panels<Width, First>
    {
        template <class Object_>
        ZEPM_INLINE Panels(const Object_&, const Object_&)
        {
        }
        template <FixedFactor, class Object_>
        ZEPM_INLINE void multiply(const Object_&, const Object_&, const Object_&) const
        {
        }
    };

    // All objects in groups, then those left over in registers of half the width.
    template <int Width, FixedFactor fixed, class Found>
    ZEPM_INLINE static void multiply(Found a, Found b, Found d, const ProductCall& call, ptrdiff_t count)
    {
        using All = Panels<Width>;
        constexpr int G = All::objects;
        auto gathered = [&](const Found& x, const MatrixSequence& operand) ZEPM_INLINED {
            return [&]<int... R>(std::integer_sequence<int, R...>) ZEPM_INLINED
            {
                return Group<G>{{{x.at(R), operand.stride1}...}};
            }
            (std::make_integer_sequence<int, G>{});
        };
        if (count >= G)
        {
            const auto fixedA = gathered(a, call.a), fixedB = gathered(b, call.b);
            const All panels(fixedA.object, fixedB.object);
            const FetchedAhead aheadA(a.p, call.a.isFixed() ? 1 : count * call.a.step);
            const FetchedAhead aheadB(b.p, call.b.isFixed() ? 1 : count * call.b.step);
            // Fetches as many bytes ahead in each source as the next step reads.
            auto fetch = [&](ptrdiff_t bytes) ZEPM_INLINED {
                for (ptrdiff_t line = 0; line < bytes; line += 64)
                {
                    if constexpr (fixed != FixedFactor::First) aheadA.from(a.p + line);
                    if constexpr (fixed != FixedFactor::Second) aheadB.from(b.p + line);
                }
            };
            auto multiplyGroup = [&](const Group<G>& objectD) ZEPM_INLINED {
                const auto objectA = fixed == FixedFactor::First ? fixedA : gathered(a, call.a);
                const auto objectB = fixed == FixedFactor::Second ? fixedB : gathered(b, call.b);
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
                    Found x({buffer, size}, false);
                    fetch(many * size);
                    for (int k = 0; k < many; k += G, x.advance(G)) multiplyGroup(gathered(x, call.d));
                    char* const to = const_cast<char*>(d.at());
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

template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid, FixedFactor fixed, bool Streams>
[[gnu::noinline]] void multiplyOrder(const ProductCall& call)
{
    // Solid is asked of the strided layout alone, so the objects of a list are never solid.
    using Found = Walk<!Solid>;
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
    auto ofFixed = [&]<FixedFactor fixed>()
                       ZEPM_INLINED { multiplyOrder<T, Order, Transposes1, Transposes2, Solid, fixed, Streams>(call); };
    // A fixed first factor is held where that saves shuffles; elsewhere its elements come from memory anyway.
    constexpr bool holdsFirst = Solid && !Streams && SolidPanel<T, Order, Transposes1, Transposes2>::permutes;
    if (call.b.isFixed()) return ofFixed.template operator()<FixedFactor::Second>();
    if constexpr (holdsFirst)
        if (call.a.isFixed()) return ofFixed.template operator()<FixedFactor::First>();
    ofFixed.template operator()<FixedFactor::None>();
}

// Whether rows of all objects go together.
template <class T, bool Transposes1>
ZEPM_INLINE bool takesRowsOf3(const ProductCall& call)
{
    constexpr ptrdiff_t size = 9 * sz<T>;
    return sizeof(T) == 4 && !Transposes1 && call.b.isFixed() && call.a.step == size && call.d.step == size &&
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
template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid>
ZEPM_INLINE void multiplyPair(const MatrixSequence& a, const MatrixSequence& b, const MatrixSequence& d)
{
    using These = Factors<T, Order, Transposes1, Transposes2, Solid>;
    using All = typename These::template Panels<pieceLength<T>>;
    const typename These::Object objectA[]{{a.p, a.stride1}}, objectB[]{{b.p, b.stride1}}, objectD[]{{d.p, d.stride1}};
    All(objectA, objectB).template multiply<FixedFactor::None>(objectA, objectB, objectD);
}

// The same with both factors in registers before a result is stored: a destination may be a source.
template <class T, int Order, bool Transposes1, bool Transposes2, bool Solid>
ZEPM_INLINE void multiplyHeldPair(const MatrixSequence& a, const MatrixSequence& b, const MatrixSequence& d)
{
    constexpr int E = pieceLength<T>, pieces = (Order + E - 1) / E;
    using V = Vec<T, E>;
    using Object = FactorRows<T, Order, Solid>;
    auto hold = [&](const MatrixSequence& x, V(&rows)[pieces * E][pieces]) ZEPM_INLINED {
        each<Order>([&]<int I>() ZEPM_INLINED {
            each<pieces>([&]<int Q>() ZEPM_INLINED {
                constexpr int count = Order - Q * E < E ? Order - Q * E : E;
                rows[I][Q] = Object{x.p, x.stride1}.template get<E, count, I, Q * E>();
            });
        });
    };
    V rowsA[pieces * E][pieces]{}, rowsB[pieces * E][pieces]{};
    hold(a, rowsA);
    hold(b, rowsB);
    if constexpr (Transposes2)
    {
        V stored[pieces * E][pieces];
        __builtin_memcpy(stored, rowsB, sizeof stored);
        each<pieces>([&]<int P>() ZEPM_INLINED {
            each<pieces>([&]<int Q>() ZEPM_INLINED {
                V square[E];
                each<E>([&]<int S>() ZEPM_INLINED { square[S] = stored[P * E + S][Q]; });
                transposePieces<T, E>(square);
                each<E>([&]<int S>() ZEPM_INLINED { rowsB[Q * E + S][P] = square[S]; });
            });
        });
    }
    each<Order>([&]<int I>() ZEPM_INLINED {
        each<pieces>([&]<int Q>() ZEPM_INLINED {
            auto product = [&]<int K>() ZEPM_INLINED {
                constexpr int row = Transposes1 ? K : I, column = Transposes1 ? I : K;
                return spread<T, E, column % E>(rowsA[row][column / E]) * rowsB[K][Q];
            };
            V sum = product.template operator()<0>();
            each<Order - 1>([&]<int K>() ZEPM_INLINED { sum += product.template operator()<K + 1>(); });
            constexpr int count = Order - Q * E < E ? Order - Q * E : E;
            Object{d.p, d.stride1}.template set<E, count, I, Q * E>(sum);
        });
    });
}

} // namespace zepm::ZEPM_LEVEL
