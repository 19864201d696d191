// LU factors and the systems solved from them: residuals as in LAPACK's tests, and matrices whose pivots are known.
#include "zepcore.h"
#include "zepm.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

namespace
{

constexpr int matricesPerOrder = MATRICES;

template <class T>
struct Calls;
template <>
struct Calls<float32>
{
    static constexpr auto factorOne = zepmLUDecomp_m_32f;
    static constexpr auto factor = zepmLUDecomp_ma_32f;
    static constexpr auto solveOne = zepmLUBackSubst_mv_32f;
    static constexpr auto solveShared = zepmLUBackSubst_mva_32f;
    static constexpr auto solve = zepmLUBackSubst_mava_32f;
    using Wide = double;
};
template <>
struct Calls<float64>
{
    static constexpr auto factorOne = zepmLUDecomp_m_64f;
    static constexpr auto factor = zepmLUDecomp_ma_64f;
    static constexpr auto solveOne = zepmLUBackSubst_mv_64f;
    static constexpr auto solveShared = zepmLUBackSubst_mva_64f;
    static constexpr auto solve = zepmLUBackSubst_mava_64f;
    using Wide = long double;
};

template <class T>
constexpr T eps = std::numeric_limits<T>::epsilon();
template <class T>
constexpr T tiny = 2 * std::numeric_limits<T>::min();

// Dense matrices of one order, and their factors.
template <class T>
struct Matrices
{
    int n, count;
    std::vector<T> a, d;
    std::vector<int32> idx;

    Matrices(int order, int objects)
        : n(order),
          count(objects),
          a(static_cast<size_t>(order * order) * static_cast<size_t>(objects)),
          d(a.size(), T(-77)),
          idx(static_cast<size_t>(order) * static_cast<size_t>(objects), -77)
    {
    }
    Matrices(int order, std::initializer_list<T> elements) : Matrices(order, 1) { a = elements; }

    size_t place(int k, int i, int j) const
    {
        return (static_cast<size_t>(k) * static_cast<size_t>(n) + static_cast<size_t>(i)) * static_cast<size_t>(n) +
               static_cast<size_t>(j);
    }
    T& at(int k, int i, int j) { return a[place(k, i, j)]; }
    int32 pivot(int k, int p) const
    {
        return idx[static_cast<size_t>(k) * static_cast<size_t>(n) + static_cast<size_t>(p)];
    }
    // Element j of row p of the factors.
    T factorAt(int k, int p, int j) const { return d[place(k, pivot(k, p), j)]; }
    int32 row() const { return n * static_cast<int32>(sizeof(T)); }

    Status factor()
    {
        return Calls<T>::factor(a.data(), n * row(), row(), sizeof(T), idx.data(), d.data(), n * row(), row(),
                                sizeof(T), n, count);
    }
    Status factorOne()
    {
        return Calls<T>::factorOne(a.data(), row(), sizeof(T), idx.data(), d.data(), row(), sizeof(T), n);
    }
    std::vector<T> solve(const std::vector<T>& b) const
    {
        std::vector<T> x(b.size());
        EXPECT_EQ(Calls<T>::solve(d.data(), n * row(), row(), sizeof(T), idx.data(), b.data(), row(), sizeof(T),
                                  x.data(), row(), sizeof(T), n, count),
                  stsOk);
        return x;
    }
};

template <class T>
class Lu : public testing::Test
{
protected:
    std::mt19937 random{7};
    T uniform() { return static_cast<T>(static_cast<double>(random()) * 0x1p-31 - 1); }
    std::vector<T> vector(size_t n)
    {
        std::vector<T> v(n);
        for (T& x : v) x = uniform();
        return v;
    }
};
using Types = testing::Types<float32, float64>;
TYPED_TEST_SUITE(Lu, Types);

// ---- Residuals ------------------------------------------------------------------------------------------------------

// norm(L U - P A) / (n norm(A) eps), in the norm of the largest column sum.
template <class T>
double factorRatio(const Matrices<T>& m, int k)
{
    typename Calls<T>::Wide norm = 0, residual = 0;
    for (int j = 0; j < m.n; ++j)
    {
        typename Calls<T>::Wide sum = 0, difference = 0;
        for (int p = 0; p < m.n; ++p)
        {
            const T original = m.a[m.place(k, m.pivot(k, p), j)];
            typename Calls<T>::Wide x = p <= j ? m.factorAt(k, p, j) : 0;
            for (int i = 0; i < std::min(p, j + 1); ++i)
                x += static_cast<typename Calls<T>::Wide>(m.factorAt(k, p, i)) * m.factorAt(k, i, j);
            sum += std::fabs(original);
            difference += std::fabs(x - original);
        }
        norm = std::max(norm, sum);
        residual = std::max(residual, difference);
    }
    return norm == 0 ? 0 : static_cast<double>(residual / norm / m.n / eps<T>);
}

// norm(b - A x) / (norm(A) norm(x) eps).
template <class T>
double solutionRatio(Matrices<T>& m, const std::vector<T>& b, const std::vector<T>& x, int k)
{
    typename Calls<T>::Wide norm = 0, residual = 0, size = 0;
    for (int j = 0; j < m.n; ++j)
    {
        typename Calls<T>::Wide sum = 0;
        for (int i = 0; i < m.n; ++i) sum += std::fabs(m.at(k, i, j));
        norm = std::max(norm, sum);
    }
    const size_t first = static_cast<size_t>(k) * static_cast<size_t>(m.n);
    for (int i = 0; i < m.n; ++i)
    {
        typename Calls<T>::Wide sum = -static_cast<typename Calls<T>::Wide>(b[first + static_cast<size_t>(i)]);
        for (int j = 0; j < m.n; ++j)
            sum += static_cast<typename Calls<T>::Wide>(m.at(k, i, j)) * x[first + static_cast<size_t>(j)];
        residual += std::fabs(sum);
        size += std::fabs(x[first + static_cast<size_t>(i)]);
    }
    return norm * size == 0 ? 0 : static_cast<double>(residual / norm / size / eps<T>);
}

// LAPACK's gate. The distribution is printed where there are matrices enough.
void report(const std::string& what, int n, std::vector<double> ratios)
{
    std::sort(ratios.begin(), ratios.end());
    auto quantile = [&](double q) { return ratios[static_cast<size_t>(q * static_cast<double>(ratios.size() - 1))]; };
    if (ratios.size() >= 100000)
        std::printf("%-17s order %2d: median %5.3f, 99 %% %5.3f, 99.9 %% %5.3f, largest %5.3f\n", what.c_str(), n,
                    quantile(0.5), quantile(0.99), quantile(0.999), ratios.back());
    EXPECT_LT(ratios.back(), 30) << what << ", order " << n;
    EXPECT_FALSE(std::isnan(std::accumulate(ratios.begin(), ratios.end(), 0.0))) << what << ", order " << n;
}

template <class T>
void testResiduals(const char* what, Matrices<T>& m, const std::vector<T>& b)
{
    ASSERT_EQ(m.factor(), stsOk) << what << ", order " << m.n;
    const std::vector<T> x = m.solve(b);
    std::vector<double> ofFactors, ofSolutions;
    for (int k = 0; k < m.count; ++k)
    {
        std::vector<int32> rows(m.idx.begin() + k * m.n, m.idx.begin() + (k + 1) * m.n);
        std::sort(rows.begin(), rows.end());
        for (int i = 0; i < m.n; ++i) ASSERT_EQ(rows[static_cast<size_t>(i)], i) << what << ", matrix " << k;
        for (int p = 0; p < m.n; ++p) // partial pivoting; the reciprocal may round a multiplier past 1
            for (int j = 0; j < p; ++j) ASSERT_LE(std::fabs(m.factorAt(k, p, j)), 1 + 2 * eps<T>) << what;
        ofFactors.push_back(factorRatio(m, k));
        ofSolutions.push_back(solutionRatio(m, b, x, k));
    }
    report(std::string(what) + " factors", m.n, ofFactors);
    report(std::string(what) + " solutions", m.n, ofSolutions);
}

TYPED_TEST(Lu, ResidualsOfRandomMatrices)
{
    for (int n = 1; n <= 10; ++n)
    {
        Matrices<TypeParam> m(n, matricesPerOrder);
        for (TypeParam& x : m.a) x = this->uniform();
        for (int k = 0; k < m.count; ++k) // by a chance of about 1e-7 each, a matrix of order 1 or 2 is singular
            if (n <= 2) m.at(k, 0, 0) += std::copysign(TypeParam(2), m.at(k, 0, 0));
        testResiduals("random", m, this->vector(m.idx.size()));
    }
}

// Conditions up to 1 / eps: orthogonal reflections on either side of a falling diagonal. Rows and columns scaled by
// powers of 2; the looping orders take no small pivots, so that there matrices are scaled up.
TYPED_TEST(Lu, ResidualsOfDifficultMatrices)
{
    using T = TypeParam;
    for (const int n : {2, 3, 4, 5, 6, 7, 10})
    {
        const int steps = 20, count = 50 * steps;
        Matrices<T> ladder(n, count), rows(n, count), columns(n, count), huge(n, count);
        for (int k = 0; k < count; ++k)
        {
            const T condition = std::pow(eps<T>, -T(k % steps) / T(steps));
            std::vector<T> u = this->vector(static_cast<size_t>(n)), v = this->vector(static_cast<size_t>(n));
            const T uu = std::inner_product(u.begin(), u.end(), u.begin(), T(0));
            const T vv = std::inner_product(v.begin(), v.end(), v.begin(), T(0));
            for (int i = 0; i < n; ++i)
                for (int j = 0; j < n; ++j)
                {
                    T sum = 0;
                    for (int s = 0; s < n; ++s)
                        sum += (T(i == s) - 2 * u[static_cast<size_t>(i)] * u[static_cast<size_t>(s)] / uu) *
                               std::pow(condition, -T(s) / T(n - 1)) *
                               (T(s == j) - 2 * v[static_cast<size_t>(s)] * v[static_cast<size_t>(j)] / vv);
                    // The scale keeps the last pivot above the absolute tolerance.
                    ladder.at(k, i, j) = std::ldexp(sum, std::numeric_limits<T>::digits + 4);
                    const T x = this->uniform() + T(2) * T((i + k) % n == j);
                    rows.at(k, i, j) = std::ldexp(x, 4 * ((i + k) % n));
                    columns.at(k, i, j) = std::ldexp(x, 4 * ((j + k) % n));
                    huge.at(k, i, j) = std::ldexp(x, std::numeric_limits<T>::max_exponent / 2 - 8);
                }
        }
        const std::vector<T> b = this->vector(ladder.idx.size());
        testResiduals("ladder", ladder, b);
        testResiduals("graded rows", rows, b);
        testResiduals("graded columns", columns, b);
        testResiduals("huge", huge, b);
        if (n >= 3 && n <= 6) // small pivots too
        {
            for (T& x : columns.a) x = std::ldexp(x, -100);
            testResiduals("small", columns, b);
        }
    }
}

// ---- Pivots ---------------------------------------------------------------------------------------------------------

// A matrix of any order with one of order 3 at its end, the identity in front.
template <class T>
Matrices<T> bordered(int n, const T (&block)[3][3])
{
    Matrices<T> m(n, 1);
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j) m.at(0, i, j) = i >= n - 3 && j >= n - 3 ? block[i - n + 3][j - n + 3] : T(i == j);
    return m;
}

// Of equal magnitudes that wins which stands first in the order of the pivots: once row 2 has taken the place of row 0,
// row 1 stands before row 0.
TYPED_TEST(Lu, TiesGoToTheFirstInThePivotOrder)
{
    for (const int n : {3, 4, 5, 6, 7, 9})
    {
        auto m = bordered<TypeParam>(n, {{1, 3, 5}, {1, -1, 2}, {4, 4, 4}}); // column 1 then holds 2, -2
        auto allEqual = bordered<TypeParam>(n, {{2, 1, 0}, {-2, 1, 1}, {2, 0, 3}});
        ASSERT_EQ(m.factorOne(), stsOk);
        ASSERT_EQ(allEqual.factorOne(), stsOk);
        EXPECT_EQ(m.pivot(0, n - 3), n - 1);
        EXPECT_EQ(m.pivot(0, n - 2), n - 2);
        EXPECT_EQ(m.pivot(0, n - 1), n - 3);
        EXPECT_EQ(allEqual.pivot(0, n - 3), n - 3);
    }
}

// Both sides of each tolerance, as the first, as a middle and as the last pivot.
TYPED_TEST(Lu, Tolerances)
{
    using T = TypeParam;
    for (int n = 1; n <= 9; ++n)
    {
        const bool written = n >= 3 && n <= 6;
        const T least = written ? tiny<T> : std::nextafter(eps<T>, T(1));
        for (const int p : {0, n / 2, n - 1})
            for (const T sign : {T(1), T(-1)})
            {
                Matrices<T> m(n, 1);
                for (int i = 0; i < n; ++i) m.at(0, i, i) = 1;
                m.at(0, p, p) = sign * least;
                EXPECT_EQ(m.factorOne(), stsOk) << n;
                m.at(0, p, p) = sign * std::nextafter(least, T(0));
                EXPECT_EQ(m.factorOne(), stsSingularErr) << n;
            }
    }
}

// Column 1 has no pivot once rows 0 and 2 have changed places.
TYPED_TEST(Lu, WhatAFailureLeaves)
{
    using T = TypeParam;
    Matrices<T> m(4, {1, 2, 5, 6, 2, 4, 7, 7, 4, 8, 8, 8, 1, 2, 3, 9});
    EXPECT_EQ(m.factorOne(), stsSingularErr);
    EXPECT_EQ(m.idx, (std::vector<int32>{2, 1, 0, 3}));
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) EXPECT_EQ(m.d[m.place(0, i, j)], i == 2 ? m.at(0, i, j) : T(-77));

    Matrices<T> zero(3, 1), looped(7, 1);
    EXPECT_EQ(zero.factorOne(), stsSingularErr);
    EXPECT_EQ(zero.idx, (std::vector<int32>{0, 1, 2}));
    EXPECT_EQ(zero.d, std::vector<T>(9, T(-77)));

    // The last pivot vanishes: rows 0 and 6 are proportional.
    for (int i = 0; i < 7; ++i) looped.at(0, i, i) = 1;
    looped.at(0, 6, 0) = 2;
    looped.at(0, 6, 6) = 0;
    EXPECT_EQ(looped.factorOne(), stsSingularErr);
    EXPECT_EQ(looped.idx, (std::vector<int32>{6, 1, 2, 3, 4, 5, 0}));
    EXPECT_EQ(looped.d[0], T(0.5));
    EXPECT_EQ(looped.d[looped.place(0, 6, 0)], T(2));
}

// NaNs are never chosen over numbers and never fail; infinities are large.
TYPED_TEST(Lu, NansAndInfinities)
{
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN(), inf = std::numeric_limits<T>::infinity();
    for (const int n : {3, 7})
    {
        auto first = bordered<T>(n, {{nan, 1, 0}, {9, 1, 0}, {9, 1, 3}}),
             last = bordered<T>(n, {{1, 1, 0}, {nan, 1, 0}, {2, 1, 3}});
        auto infinite = bordered<T>(n, {{9, 1, 1}, {-inf, 1, 0}, {inf, 1, 3}});
        EXPECT_EQ(first.factorOne(), stsOk);
        EXPECT_EQ(first.pivot(0, n - 3), n - 3);
        EXPECT_EQ(last.factorOne(), stsOk);
        EXPECT_EQ(last.pivot(0, n - 3), n - 1);
        EXPECT_EQ(infinite.factorOne(), stsOk);
        EXPECT_EQ(infinite.pivot(0, n - 3), n - 2);
    }
}

// ---- Forms ----------------------------------------------------------------------------------------------------------

// The forms of the solve: mava is mv for each; mva differs by its reciprocals where they are used; the solution may
// take the place of the right-hand side at orders 3 to 6, and where no rows were exchanged.
TYPED_TEST(Lu, FormsOfTheSolve)
{
    using T = TypeParam;
    for (int n = 1; n <= 9; ++n)
    {
        const int count = 200;
        const bool written = n >= 3 && n <= 6;
        Matrices<T> m(n, count);
        for (T& x : m.a) x = this->uniform();
        for (int k = 0; k < count; ++k)
            for (int i = 0; i < n; ++i) m.at(k, i, written ? (i + k) % n : i) += T(2 * n);
        ASSERT_EQ(m.factor(), stsOk);
        const std::vector<T> b = this->vector(m.idx.size());
        const std::vector<T> x = m.solve(b);
        std::vector<T> one(b.size()), shared(b.size()), inPlace = b;
        const int32 sz = sizeof(T), row = m.row();
        for (int k = 0; k < count; ++k)
        {
            const size_t at = static_cast<size_t>(k * n);
            ASSERT_EQ(Calls<T>::solveOne(&m.d[m.place(k, 0, 0)], row, sz, &m.idx[at], &b[at], sz, &one[at], sz, n),
                      stsOk);
        }
        EXPECT_EQ(x, one) << n;
        ASSERT_EQ(Calls<T>::solve(m.d.data(), n * row, row, sz, m.idx.data(), inPlace.data(), row, sz, inPlace.data(),
                                  row, sz, n, count),
                  stsOk);
        EXPECT_EQ(inPlace, x) << n;
        for (int k = 0; k < count; ++k)
        {
            const size_t at = static_cast<size_t>(k * n);
            ASSERT_EQ(Calls<T>::solveOne(m.d.data(), row, sz, m.idx.data(), &b[at], sz, &one[at], sz, n), stsOk);
        }
        ASSERT_EQ(Calls<T>::solveShared(m.d.data(), row, sz, m.idx.data(), b.data(), row, sz, shared.data(), row, sz, n,
                                        count),
                  stsOk);
        EXPECT_EQ(shared == one, !written) << n;
        for (size_t i = 0; i < b.size(); ++i) EXPECT_NEAR(shared[i], one[i], 8 * eps<T>) << n;
    }
}

// A singular matrix ends its thread's share and no other.
TYPED_TEST(Lu, FirstFailureEndsTheShare)
{
    using T = TypeParam;
    for (const int n : {4, 8})
        for (const int threads : {1, 4})
        {
            Matrices<T> m(n, 64);
            for (T& x : m.a) x = this->uniform();
            for (const int singular : {5, 11, 40})
                for (int i = 0; i < n; ++i) m.at(singular, i, n - 1) = 0;
            Matrices<T> expected = m;
            zepSetNumThreads(threads);
            zepSetMinParallelWork(0); // the limits of the functions alone
            EXPECT_EQ(m.factor(), stsSingularErr);
            zepSetNumThreads(1);
            const int share = 64 / threads;
            for (int first = 0; first < 64; first += share)
                for (int k = first; k < first + share; ++k)
                {
                    Matrices<T> one(n, 1);
                    std::copy_n(m.a.begin() + k * n * n, n * n, one.a.begin());
                    const Status status = one.factorOne();
                    std::copy_n(one.d.begin(), n * n, expected.d.begin() + k * n * n);
                    std::copy_n(one.idx.begin(), n, expected.idx.begin() + k * n);
                    if (status != stsOk) break;
                }
            EXPECT_EQ(m.idx, expected.idx) << n << ", " << threads << " threads";
            EXPECT_EQ(m.d, expected.d) << n << ", " << threads << " threads";
        }
}

} // namespace
