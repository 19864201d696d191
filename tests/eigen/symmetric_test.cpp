// The symmetric eigenproblems as a user has them: accuracy by LAPACK's test ratios and beside LAPACK, what is refused
// as singular, and what an array leaves behind where an object fails.
#include "tests/check/symmetric_reference.h"
#include "zepcore.h"
#include "zepm.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#ifdef HAS_LAPACK
#include <lapacke.h>
#endif

namespace
{

template <class T>
struct Calls;
template <>
struct Calls<float32>
{
    static constexpr auto values = zepmEigenValuesSym_m_32f;
    static constexpr auto vectors = zepmEigenValuesVectorsSym_m_32f;
    static constexpr auto arrayValues = zepmEigenValuesSym_ma_32f;
    static constexpr auto arrayVectors = zepmEigenValuesVectorsSym_ma_32f;
#ifdef HAS_LAPACK
    static constexpr auto syev = LAPACKE_ssyev;
#endif
};
template <>
struct Calls<float64>
{
    static constexpr auto values = zepmEigenValuesSym_m_64f;
    static constexpr auto vectors = zepmEigenValuesVectorsSym_m_64f;
    static constexpr auto arrayValues = zepmEigenValuesSym_ma_64f;
    static constexpr auto arrayVectors = zepmEigenValuesVectorsSym_ma_64f;
#ifdef HAS_LAPACK
    static constexpr auto syev = LAPACKE_dsyev;
#endif
};

template <class T>
constexpr T eps = std::numeric_limits<T>::epsilon();

// Matrices of one order by rows, one behind the other, with their values and vectors.
template <class T>
struct Array
{
    int n, count;
    std::vector<T> matrices, vectors, values, buffer;

    Array(int order, int objects)
        : n(order),
          count(objects),
          matrices(at(objects)),
          vectors(at(objects)),
          values(at(objects) / static_cast<size_t>(order)),
          buffer(at(1))
    {
    }
    size_t at(int k) const { return static_cast<size_t>(k) * static_cast<size_t>(n * n); }
    T* matrix(int k) { return matrices.data() + at(k); }
    T* vectorsOf(int k) { return vectors.data() + at(k); }
    T* valuesOf(int k) { return values.data() + static_cast<ptrdiff_t>(k) * n; }

    static constexpr int sz = sizeof(T);
    Status solve(bool withVectors)
    {
        if (!withVectors)
            return Calls<T>::arrayValues(matrix(0), n * n * sz, n * sz, sz, buffer.data(), valuesOf(0), n, count);
        return Calls<T>::arrayVectors(matrix(0), n * n * sz, n * sz, sz, buffer.data(), vectorsOf(0), n * n * sz,
                                      n * sz, sz, valuesOf(0), n, count);
    }
    Status solveObject(int k, bool withVectors)
    {
        if (!withVectors) return Calls<T>::values(matrix(k), n * sz, sz, buffer.data(), valuesOf(k), n);
        return Calls<T>::vectors(matrix(k), n * sz, sz, buffer.data(), vectorsOf(k), n * sz, sz, valuesOf(k), n);
    }
};

// ---- Matrices -------------------------------------------------------------------------------------------------------

enum class Kind
{
    Random,
    Clustered,
    Repeated,
    Graded,
    Diagonal,
    Tridiagonal,
    Scaled,
    Count
};

// The matrix q diag(values) transposed(q), q a product of random reflectors.
template <class T>
void compose(T* a, const std::vector<double>& values, std::mt19937& random)
{
    std::normal_distribution<double> normal;
    const size_t n = values.size();
    std::vector<double> m(n * n), u(n);
    for (size_t i = 0; i < n; ++i) m[i * n + i] = values[i];
    for (int times = 0; times < 2; ++times)
    {
        double uu = 0;
        for (double& x : u) x = normal(random), uu += x * x;
        auto reflect = [&](size_t row, size_t column) { // from the left, from the right
            for (size_t j = 0; j < n; ++j)
            {
                double t = 0;
                for (size_t i = 0; i < n; ++i) t += m[i * row + j * column] * u[i];
                for (size_t i = 0; i < n; ++i) m[i * row + j * column] -= 2 * t / uu * u[i];
            }
        };
        reflect(n, 1);
        reflect(1, n);
    }
    for (size_t i = 0; i < n; ++i)
        for (size_t j = 0; j <= i; ++j) a[i * n + j] = a[j * n + i] = static_cast<T>(m[i * n + j]);
}

template <class T>
void fill(T* a, int n, Kind kind, std::mt19937& random)
{
    std::uniform_real_distribution<double> uniform(-1, 1);
    const auto size = static_cast<size_t>(n);
    std::vector<double> values(size);
    switch (kind)
    {
    case Kind::Clustered:
        for (double& x : values) x = 1 + 4 * eps<T> * uniform(random);
        return compose(a, values, random);
    case Kind::Repeated:
        for (double& x : values) x = random() % 2 ? 1 : -2;
        return compose(a, values, random);
    case Kind::Graded:
        for (size_t i = 0; i < size; ++i) values[i] = std::ldexp(1 + uniform(random) / 2, static_cast<int>(4 * i));
        return compose(a, values, random);
    default: break;
    }
    const double scale = kind == Kind::Scaled ? std::ldexp(1.0, static_cast<int>(random() % 81) - 40) : 1;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j)
        {
            double x = scale * uniform(random);
            if (kind == Kind::Diagonal && i != j) x = 0;
            if (kind == Kind::Tridiagonal && i - j > 1) x = 0;
            a[i * n + j] = a[j * n + i] = static_cast<T>(x);
        }
}

// ---- Ratios ---------------------------------------------------------------------------------------------------------

struct Ratios
{
    double residual, orthogonality;
};

// LAPACK's test ratios: the 1-norms of a - v diag(w) transposed(v) over n |a| eps and of 1 - v transposed(v) over n
// eps. The library's tolerances are absolute, so that |a| counts as 1 at least.
template <class T>
Ratios ratiosOf(const T* a, const T* v, const T* w, int n)
{
    double norm = 1, residual = 0, orthogonality = 0;
    for (int j = 0; j < n; ++j)
    {
        double ofA = 0, ofResidual = 0, ofV = 0;
        for (int i = 0; i < n; ++i)
        {
            long double difference = -static_cast<long double>(a[i * n + j]), product = i == j ? -1 : 0;
            for (int k = 0; k < n; ++k)
            {
                const long double vv = static_cast<long double>(v[i * n + k]) * static_cast<long double>(v[j * n + k]);
                product += vv;
                difference += vv * static_cast<long double>(w[k]);
            }
            ofA += std::fabs(static_cast<double>(a[i * n + j]));
            ofResidual += static_cast<double>(std::fabs(difference));
            ofV += static_cast<double>(std::fabs(product));
        }
        norm = std::max(norm, ofA);
        residual = std::max(residual, ofResidual);
        orthogonality = std::max(orthogonality, ofV);
    }
    return {residual / (n * norm * static_cast<double>(eps<T>)), orthogonality / (n * static_cast<double>(eps<T>))};
}

double median(std::vector<double>& list)
{
    if (list.empty()) return 0;
    std::nth_element(list.begin(), list.begin() + static_cast<ptrdiff_t>(list.size() / 2), list.end());
    return list[list.size() / 2];
}

// Descending; at order 2 the larger magnitude first.
template <class T>
bool isInOrder(const T* w, int n)
{
    if (n == 2) return std::fabs(w[0]) >= std::fabs(w[1]) * (1 - 4 * eps<T>);
    return std::is_sorted(w, w + n, std::greater<T>());
}

#ifdef HAS_LAPACK
// Beside LAPACK: the values within the residual's gate, the ratio into the list.
template <class T>
void compareWithLapack(Array<T>& array, int k, std::vector<double>& residuals)
{
    const int n = array.n;
    std::vector<T> v(array.matrix(k), array.matrix(k) + n * n), w(static_cast<size_t>(n));
    ASSERT_EQ(Calls<T>::syev(LAPACK_ROW_MAJOR, 'V', 'L', n, v.data(), n, w.data()), 0);
    residuals.push_back(ratiosOf(array.matrix(k), v.data(), w.data(), n).residual);
    std::vector<T> ours(array.valuesOf(k), array.valuesOf(k) + n);
    std::sort(ours.begin(), ours.end());
    const double norm = std::max(1.0, std::max(std::fabs(double(w.front())), std::fabs(double(w.back()))));
    for (size_t i = 0; i < w.size(); ++i) ASSERT_NEAR(double(ours[i]), double(w[i]), 50 * n * norm * double(eps<T>));
}
#endif

template <class T>
class Symmetric : public testing::Test
{
};
using Types = testing::Types<float32, float64>;

class TypeNames
{
public:
    template <class T>
    static std::string GetName(int)
    {
        return sizeof(T) == 4 ? "32f" : "64f";
    }
};

} // namespace

TYPED_TEST_SUITE(Symmetric, Types, TypeNames);

// Whether the definition gives the decomposition of another matrix: its tolerances are absolute, and an early end of a
// sweep or a closing update that is left out changes the matrix. Such an object is to be returned as it is defined, and
// has no accuracy to test.
template <class T, class Scalar>
bool isDisturbed(const T* a, int n, bool wideRoots)
{
    if (n < 3) return false;
    const check::Kernel kernel{true, sizeof(Scalar) > sizeof(T), wideRoots, wideRoots, true, 0};
    check::Eigenproblem<T, Scalar> object(kernel, n, [&](int i, int j) { return a[i * n + j]; });
    object.run();
    return object.isDisturbed;
}

// Each matrix by itself and in an array, which in float32 is another arithmetic, in small orders another path.
TYPED_TEST(Symmetric, Ratios)
{
    using T = TypeParam;
    constexpr int perBatch = 100, kinds = static_cast<int>(Kind::Count);
    std::mt19937 random(1);
    for (int n = 1; n <= 10; ++n)
    {
        std::vector<double> single, array, peer;
        int refused = 0, failed = 0, disturbed = 0;
        for (int batch = 0; batch < MATRICES / perBatch; ++batch)
        {
            const Kind kind = static_cast<Kind>(batch % kinds);
            SCOPED_TRACE("order " + std::to_string(n) + ", kind " + std::to_string(static_cast<int>(kind)));
            for (int k = 0; k < perBatch; ++k)
            {
                Array<T> one(n, 1);
                fill(one.matrix(0), n, kind, random);
                auto check = [&](Status status, bool isAccurate, std::vector<double>& residuals) {
                    failed += status == stsEigenFailErr;
                    refused += status == stsSingularErr;
                    disturbed += kind != Kind::Scaled && !isAccurate;
                    if (status == stsEigenFailErr || (status == stsSingularErr && n == 2) || !isAccurate) return;
                    const Ratios ratios = ratiosOf(one.matrix(0), one.vectorsOf(0), one.valuesOf(0), n);
                    ASSERT_LT(ratios.residual, 50);
                    ASSERT_LT(ratios.orthogonality, 50);
                    residuals.push_back(ratios.residual);
                };
                const Status status = one.solveObject(0, true);
                const bool isAccurate = !isDisturbed<T, T>(one.matrix(0), n, sizeof(T) == 4);
                // A matrix refused as singular has its values and vectors in order as well.
                ASSERT_NO_FATAL_FAILURE(check(status, isAccurate, single));
                ASSERT_TRUE(status != stsOk || isInOrder(one.valuesOf(0), n));
#ifdef HAS_LAPACK
                if (k % 10 == 0 && isAccurate && status == stsOk)
                {
                    ASSERT_NO_FATAL_FAILURE(compareWithLapack(one, 0, peer));
                }
#endif
                const Status inArray = one.solve(true);
                ASSERT_NO_FATAL_FAILURE(check(inArray, !isDisturbed<T, float64>(one.matrix(0), n, false), array));
                ASSERT_TRUE(inArray != stsOk || isInOrder(one.valuesOf(0), n));
            }
        }
        const double ofSingle = median(single), ofArray = median(array), ofPeer = median(peer);
        std::printf("order %2d: median residual %.3f, in arrays %.3f, LAPACK %.3f; of %d calls %d refused as singular, "
                    "%d failed to converge, %d unscaled ones disturbed\n",
                    n, ofSingle, ofArray, ofPeer, 2 * MATRICES, refused, failed, disturbed);
        EXPECT_LT(failed, 2 * MATRICES / 500);
        EXPECT_LT(disturbed, 2 * MATRICES / 8); // most of them with repeated or clustered values
#ifdef HAS_LAPACK
        EXPECT_LE(ofSingle, 2 * ofPeer) << "order " << n;
        EXPECT_LE(ofArray, 2 * ofPeer) << "order " << n;
#endif
    }
}

// ---- Refusal --------------------------------------------------------------------------------------------------------

// The product of the values decides, at eps exactly. Of diagonal matrices every factor is known.
TYPED_TEST(Symmetric, RefusedAtTheTolerance)
{
    using T = TypeParam;
    for (int n = 3; n <= 10; ++n)
        for (const bool withVectors : {false, true})
            for (const bool isLast : {false, true}) // the largest element: the direction
                for (const T factor : {T(1), T(1) + eps<T>})
                {
                    Array<T> array(n, 1);
                    for (int i = 0; i < n; ++i) array.matrix(0)[i * n + i] = i == (isLast ? n - 1 : 0) ? T(4) : T(1);
                    array.matrix(0)[n + 1] = -eps<T> / 4 * factor;
                    const Status expected = factor > 1 ? stsOk : stsSingularErr;
                    EXPECT_EQ(array.solve(withVectors), expected) << n;
                    if (expected != stsOk)
                    {
                        EXPECT_EQ(array.valuesOf(0)[1], -eps<T> / 4) << "not in order, n " << n;
                    }
                    EXPECT_EQ(array.solveObject(0, withVectors), expected) << n;
                    EXPECT_EQ(isInOrder(array.valuesOf(0), n), expected == stsOk || withVectors) << n;
                }
}

// Scaled by powers of two, a tridiagonal matrix that grows downward is refused exactly where the product of its values
// is within eps; they stand all the same.
TYPED_TEST(Symmetric, RefusedByScale)
{
    using T = TypeParam;
    std::mt19937 random(2);
    std::uniform_real_distribution<double> uniform(0.25, 1);
    int refused = 0, accepted = 0;
    for (int times = 0; times < 4000; ++times)
    {
        const int n = 3 + times % 8;
        const double scale = std::ldexp(1.0, times / 8 % 81 - 40);
        Array<T> array(n, 1);
        for (int i = 0; i < n; ++i)
        {
            array.matrix(0)[i * n + i] = static_cast<T>(scale * (2 + uniform(random) + (i == n - 1)));
            if (i == 0) continue;
            const T x = static_cast<T>(scale * uniform(random) / 2);
            array.matrix(0)[i * n + i - 1] = array.matrix(0)[(i - 1) * n + i] = x;
        }
        const Status status = array.solveObject(0, true);
        double product = 1;
        for (int i = 0; i < n; ++i) product *= static_cast<double>(array.valuesOf(0)[i]);
        const double margin = product / static_cast<double>(eps<T>);
        if (margin < 0.99)
        {
            EXPECT_EQ(status, stsSingularErr) << n << ' ' << scale;
        }
        if (margin > 1.01)
        {
            EXPECT_EQ(status, stsOk) << n << ' ' << scale;
        }
        ++(status == stsOk ? accepted : refused);
        if (isDisturbed<T, T>(array.matrix(0), n, sizeof(T) == 4)) continue;
        const Ratios ratios = ratiosOf(array.matrix(0), array.vectorsOf(0), array.valuesOf(0), n);
        ASSERT_LT(ratios.residual, 50);
        ASSERT_LT(ratios.orthogonality, 50);
    }
    EXPECT_GT(refused, 500);
    EXPECT_GT(accepted, 500);
}

// Upwards the product takes in a diagonal element at every split, here the zero from which the values 1 and -1 come;
// downwards it is the values' own.
TYPED_TEST(Symmetric, ProductByDirection)
{
    using T = TypeParam;
    for (const bool withVectors : {false, true})
    {
        Array<T> up(3, 1), down(3, 1);
        up.matrices = {2, 0, 0, 0, 0, 1, 0, 1, 0};
        down.matrices = {0, 1, 0, 1, 0, 0, 0, 0, 2};
        EXPECT_EQ(up.solve(withVectors), stsSingularErr);
        EXPECT_EQ(up.solveObject(0, withVectors), stsSingularErr);
        EXPECT_EQ(down.solve(withVectors), stsOk);
        EXPECT_EQ(down.solveObject(0, withVectors), stsOk);
    }
}

// The order 2 tolerance of the packed float32 array of values alone is that of float64, in its driver too.
TEST(SymmetricOrder2, TolerancesDiffer)
{
    for (const int count : {1, 400})
        for (const int threads : {1, 3})
        {
            zepSetNumThreads(threads);
            zepSetMinParallelWork(0); // the limits of the functions alone
            std::vector<float32> a, wide, buffer(4), w(800), v(1600);
            std::vector<const float32*> table;
            for (int k = 0; k < count; ++k)
                for (const float32 x : {1.0f, 0.0f, 0.0f, 1e-10f}) a.push_back(x), wide.push_back(x), wide.push_back(7);
            for (int k = 0; k < count; ++k) table.push_back(a.data() + 4 * k);
            float32* const p = buffer.data();
            EXPECT_EQ(zepmEigenValuesSym_ma_32f(a.data(), 16, 8, 4, p, w.data(), 2, count), stsOk);
            EXPECT_EQ(w[static_cast<size_t>(2 * count - 1)], 1e-10f);
            EXPECT_EQ(zepmEigenValuesSym_ma_32f(wide.data(), 32, 16, 8, p, w.data(), 2, count), stsSingularErr);
            EXPECT_EQ(zepmEigenValuesSym_ma_32f_L(table.data(), 0, 8, 4, p, w.data(), 2, count), stsSingularErr);
            EXPECT_EQ(zepmEigenValuesVectorsSym_ma_32f(a.data(), 16, 8, 4, p, v.data(), 16, 8, 4, w.data(), 2, count),
                      stsSingularErr);
            EXPECT_EQ(zepmEigenValuesSym_m_32f(a.data(), 8, 4, p, w.data(), 2), stsSingularErr);
        }
    zepSetNumThreads(1);
}

// ---- Failures in arrays ---------------------------------------------------------------------------------------------

namespace
{

// Objects first to end - 1, a share: solved up to the first that fails, then untouched. Whether one fails.
template <class T>
bool checkShare(Array<T>& array, Array<T>& singly, bool withVectors, int first, int end,
                const std::vector<int>& failing, T untouched)
{
    const int n = array.n;
    int k = first;
    for (; k < end && !std::count(failing.begin(), failing.end(), k); ++k)
    {
        EXPECT_TRUE(std::equal(array.valuesOf(k), array.valuesOf(k) + n, singly.valuesOf(k))) << k;
        if (withVectors)
        {
            EXPECT_TRUE(std::equal(array.vectorsOf(k), array.vectorsOf(k) + n * n, singly.vectorsOf(k))) << k;
        }
    }
    const bool fails = k < end;
    for (++k; k < end; ++k)
    {
        EXPECT_EQ(std::count(array.valuesOf(k), array.valuesOf(k) + n, untouched), n) << k;
        EXPECT_EQ(std::count(array.vectorsOf(k), array.vectorsOf(k) + n * n, untouched), n * n) << k;
    }
    return fails;
}

} // namespace

// In each share the objects before its first failure are solved, those behind it untouched; the other shares run to
// their ends. A forked call leaves the caller's scratch alone.
TYPED_TEST(Symmetric, PartialResults)
{
    using T = TypeParam;
    constexpr T untouched = 77;
    constexpr int count = 402;
    std::mt19937 random(3);
    const std::vector<std::vector<int>> failures = {{}, {0}, {57}, {401}, {30, 31, 250}};
    for (const int n : {2, 3, 4, 6, 7, 10})
    {
        Array<T> regular(n, count);
        std::array<Array<T>, 2> singly{regular, regular}; // solved one by one, without vectors and with them
        for (int k = 0; k < count; ++k)
        {
            Array<T> alone(n, 1);
            auto isSolved = [&](bool withVectors) {
                if (alone.solve(withVectors) != stsOk) return false;
                std::copy_n(alone.valuesOf(0), n, singly[withVectors].valuesOf(k));
                std::copy_n(alone.vectorsOf(0), n * n, singly[withVectors].vectorsOf(k));
                return true;
            };
            do // one of a few thousand fails to converge
                fill(alone.matrix(0), n, Kind::Random, random);
            while (!isSolved(false) || !isSolved(true));
            std::copy_n(alone.matrix(0), n * n, regular.matrix(k));
        }
        for (const bool withVectors : {false, true})
            for (const int threads : {1, 2, 5})
                for (const std::vector<int>& failing : failures)
                    for (const bool isNan : {false, true})
                    {
                        if (isNan && n == 2) continue; // no iteration to fail
                        Array<T> array = regular;
                        for (const int k : failing)
                            std::fill_n(array.matrix(k), n * n, isNan ? std::numeric_limits<T>::quiet_NaN() : T(0));
                        for (auto* list : {&array.vectors, &array.values, &array.buffer})
                            std::fill(list->begin(), list->end(), untouched);
                        zepSetNumThreads(threads);
                        zepSetMinParallelWork(0); // the limits of the functions alone
                        const Status status = array.solve(withVectors);
                        zepSetNumThreads(1);
                        SCOPED_TRACE("order " + std::to_string(n) + ", " + std::to_string(threads) + " threads");
                        bool anyFails = false;
                        for (int share = 0, first = 0; share < threads; ++share)
                        {
                            const int end = first + count / threads + (share < count % threads ? 1 : 0);
                            anyFails =
                                checkShare(array, singly[withVectors], withVectors, first, end, failing, untouched) ||
                                anyFails;
                            first = end;
                        }
                        ASSERT_EQ(anyFails, !failing.empty());
                        ASSERT_EQ(status, !anyFails ? stsOk : isNan ? stsEigenFailErr : stsSingularErr);
                        if (threads > 1)
                        {
                            ASSERT_EQ(std::count(array.buffer.begin(), array.buffer.end(), untouched), n * n);
                        }
                        if (this->HasFailure()) return;
                    }
    }
}
