// The table of the functions of single vectors and matrices.
#include "rows.h"

#include <array>
#include <string>
#include <tuple>

namespace geometry
{

namespace
{

// The next argument by its type.
class Arguments
{
public:
    Arguments(const std::vector<const float32*>& s, const Numbers<float32>& v, float32* d) : src(s), val(v), dst(d) {}
    void take(const float32*& p) { p = src.at(nextSource++); }
    void take(float32& x) { x = val.at(nextValue++); }
    void take(float32*& p) { p = dst; }

private:
    const std::vector<const float32*>& src;
    const Numbers<float32>& val;
    float32* dst;
    size_t nextSource = 0, nextValue = 0;
};

template <class... Parameter>
auto callOf(Status (*function)(Parameter...))
{
    return [function](const std::vector<const float32*>& s, const Numbers<float32>& v, float32* d) {
        Arguments arguments(s, v, d);
        std::tuple<Parameter...> taken;
        std::apply([&](auto&... parameter) { (arguments.take(parameter), ...); }, taken);
        return std::apply(function, taken);
    };
}

// A function with every operation in the order of its reference.
template <class Function, class Reference>
Row row(const char* name, Function function, std::vector<size_t> sources, size_t values, size_t size, Reference ref)
{
    return {name, callOf(function), std::move(sources), values, size, ref, ref};
}

// A function whose order of operations is its own.
template <class Function, class Reference>
Row freeRow(const char* name, Function function, std::vector<size_t> sources, size_t values, size_t size,
            Reference ref)
{
    return {name, callOf(function), std::move(sources), values, size, nullptr, ref};
}

// ---- References -----------------------------------------------------------------------------------------------------
//
// [](s, v, d): the sources s[n][i], the numbers v[n], the results d[i], of float32 or Bounded.

template <class T>
T dot(const std::vector<T>& a, const std::vector<T>& b)
{
    T sum = a[0] * b[0];
    for (size_t i = 1; i < a.size(); ++i) sum = sum + a[i] * b[i];
    return sum;
}

template <class T>
std::vector<T> cross(const std::vector<T>& a, const std::vector<T>& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

template <class T>
std::vector<T> normalized(const std::vector<T>& a)
{
    const T length = root(dot(a, a));
    std::vector<T> result;
    for (const T& x : a) result.push_back(x / length);
    return result;
}

template <class T>
std::vector<T> difference(const std::vector<T>& a, const std::vector<T>& b)
{
    std::vector<T> result;
    for (size_t i = 0; i < a.size(); ++i) result.push_back(a[i] - b[i]);
    return result;
}

template <class T>
std::vector<T> hermite(const std::vector<T>& a, const std::vector<T>& b, const std::vector<T>& c,
                       const std::vector<T>& d, T t)
{
    const T t2 = t * t, t3 = t2 * t;
    const T h0 = inDouble([](auto, auto x2, auto x3) { return x3 - 3.0 * x2 + x3; }, t, t2, t3);
    const T h1 = inDouble([](auto x, auto x2, auto x3) { return x - x2 - x2 + x3; }, t, t2, t3);
    const T h3 = inDouble([](auto, auto x2, auto x3) { return x3 - x2; }, t, t2, t3);
    std::vector<T> result;
    for (size_t i = 0; i < a.size(); ++i) result.push_back((a[i] - c[i]) * h0 + (a[i] + b[i] * h1 + d[i] * h3));
    return result;
}

template <class T>
std::vector<T> half(std::vector<T> x)
{
    for (T& e : x) e = e * T(0.5f);
    return x;
}

template <class T>
void lookAlong(const std::vector<T>& forward, const std::vector<T>& eye, const std::vector<T>& up, std::vector<T>& d)
{
    const std::vector<T> z = normalized(forward), x = normalized(cross(up, z)), y = cross(z, x);
    for (size_t i = 0; i < 3; ++i) d[4 * i] = x[i], d[4 * i + 1] = y[i], d[4 * i + 2] = z[i], d[4 * i + 3] = T(0);
    d[12] = T(0) - dot(x, eye), d[13] = T(0) - dot(y, eye), d[14] = T(0) - dot(z, eye), d[15] = T(1);
}

// The elements that are not zero.
template <class T>
void setElements(std::vector<T>& d, std::initializer_list<std::pair<size_t, T>> elements)
{
    for (T& x : d) x = T(0);
    for (const auto& [place, x] : elements) d[place] = x;
}

template <class T>
std::vector<T> times(const std::vector<T>& a, const std::vector<T>& b)
{
    std::vector<T> d;
    for (size_t i = 0; i < 4; ++i)
        for (size_t j = 0; j < 4; ++j)
            d.push_back(a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j] + a[4 * i + 2] * b[8 + j] + a[4 * i + 3] * b[12 + j]);
    return d;
}

template <class T>
std::vector<T> transposed(const std::vector<T>& a)
{
    std::vector<T> d;
    for (size_t i = 0; i < 16; ++i) d.push_back(a[i % 4 * 4 + i / 4]);
    return d;
}

template <class T>
std::vector<T> inverse(const std::vector<T>& m, T reciprocalDeterminant)
{
    std::vector<T> d;
    for (size_t i = 0; i < 4; ++i)
        for (size_t j = 0; j < 4; ++j) d.push_back(cofactor(m, j, i) * reciprocalDeterminant);
    return d;
}

template <class T>
T determinant(const std::vector<T>& m)
{
    return m[0] * cofactor(m, 0, 0) + m[1] * cofactor(m, 0, 1) + m[2] * cofactor(m, 0, 2) + m[3] * cofactor(m, 0, 3);
}

template <class T>
std::vector<T> affine(const std::vector<T>& m, const std::vector<T>& p)
{
    std::vector<T> d;
    for (size_t j = 0; j < 4; ++j)
    {
        if (p.size() == 2) d.push_back(m[12 + j] + m[j] * p[0] + m[4 + j] * p[1]);
        if (p.size() == 3) d.push_back(m[12 + j] + m[j] * p[0] + m[4 + j] * p[1] + m[8 + j] * p[2]);
        if (p.size() == 4) d.push_back(m[j] * p[0] + m[4 + j] * p[1] + (m[8 + j] * p[2] + m[12 + j] * p[3]));
    }
    return d;
}

template <class T>
std::vector<T> coord(const std::vector<T>& m, const std::vector<T>& p)
{
    std::vector<T> d;
    auto element = [&](size_t j) {
        if (p.size() == 2) return m[j] * p[0] + m[12 + j] + m[4 + j] * p[1];
        return m[12 + j] + m[8 + j] * p[2] + (m[j] * p[0] + m[4 + j] * p[1]);
    };
    for (size_t j = 0; j < p.size(); ++j) d.push_back(element(j) / element(3));
    return d;
}

template <class T>
std::vector<T> projected(const std::vector<T>& p, const std::vector<T>& v)
{
    const T w = v[0] * T(0.5f), h = v[1] * T(0.5f);
    return {w + w * p[0], h + (T(0) - h) * p[1], v[2] + (v[3] - v[2]) * p[2]};
}


// ---- The table ------------------------------------------------------------------------------------------------------

#define V2_V3_V4(operation)                                                                                            \
    {"zepm" #operation "_v2_32f", "zepm" #operation "_v3_32f", "zepm" #operation "_v4_32f"},                           \
        zepm##operation##_v2_32f, zepm##operation##_v3_32f, zepm##operation##_v4_32f
#define NAMED(name) #name, name

class Table
{
public:
    std::vector<Row> rows;

    // The three sizes of an operation with so many sources and numbers.
    template <class F, class Reference>
    void vectors(std::array<const char*, 3> names, F f2, F f3, F f4, size_t sources, size_t values, Reference ref)
    {
        addVectors<F>(names, {f2, f3, f4}, sources, values, 0, ref);
    }
    // The same with one number for a result.
    template <class F, class Reference>
    void numbers(std::array<const char*, 3> names, F f2, F f3, F f4, size_t sources, Reference ref)
    {
        addVectors<F>(names, {f2, f3, f4}, sources, 0, 1, ref);
    }
    // A matrix from numbers.
    template <class F, class Reference>
    void builder(const char* name, F function, size_t values, Reference ref)
    {
        rows.push_back(row(name, function, {}, values, 16, ref));
    }
    template <class F, class Reference>
    void add(const char* name, F function, std::vector<size_t> sources, size_t size, Reference ref)
    {
        rows.push_back(row(name, function, std::move(sources), 0, size, ref));
    }

private:
    template <class F, class Reference>
    void addVectors(std::array<const char*, 3> names, std::array<F, 3> f, size_t sources, size_t values, size_t size,
                    Reference ref)
    {
        for (size_t n = 0; n < 3; ++n)
            rows.push_back(row(names[n], f[n], std::vector<size_t>(sources, n + 2), values, size ? size : n + 2, ref));
    }
};

// d[i] = formula(s, v, i)
template <class Formula>
auto each(Formula formula)
{
    return [formula](const auto& s, const auto& v, auto& d) {
        for (size_t i = 0; i < d.size(); ++i) d[i] = formula(s, v, i);
    };
}

void addVectors(Table& table)
{
    table.vectors(V2_V3_V4(Add), 2, 0, each([](auto& s, auto&, size_t i) { return s[0][i] + s[1][i]; }));
    table.vectors(V2_V3_V4(Sub), 2, 0, each([](auto& s, auto&, size_t i) { return s[0][i] - s[1][i]; }));
    table.vectors(V2_V3_V4(MulC), 1, 1, each([](auto& s, auto& v, size_t i) { return s[0][i] * v[0]; }));
    table.numbers(V2_V3_V4(DotProduct), 2, [](auto& s, auto&, auto& d) { d[0] = dot(s[0], s[1]); });
    table.numbers(V2_V3_V4(LenSqr), 1, [](auto& s, auto&, auto& d) { d[0] = dot(s[0], s[0]); });
    table.numbers(V2_V3_V4(Len), 1, [](auto& s, auto&, auto& d) { d[0] = root(dot(s[0], s[0])); });
    table.vectors(V2_V3_V4(Normalize), 1, 0, [](auto& s, auto&, auto& d) { d = normalized(s[0]); });
    table.add(NAMED(zepmCrossProduct_v2_32f), {2, 2}, 1,
              [](auto& s, auto&, auto& d) { d[0] = s[0][0] * s[1][1] - s[0][1] * s[1][0]; });
    table.add(NAMED(zepmCrossProduct_v3_32f), {3, 3}, 3, [](auto& s, auto&, auto& d) { d = cross(s[0], s[1]); });
    table.add(NAMED(zepmCrossProduct_v4_32f), {4, 4, 4}, 4, [](auto& s, auto&, auto& d) {
        const auto zero = d[0] - d[0];
        for (size_t i = 0; i < 4; ++i)
            d[i] = i % 2 ? zero - minorWithout(i, s[0], s[1], s[2]) : minorWithout(i, s[0], s[1], s[2]);
    });
    table.vectors(V2_V3_V4(BaryCentric), 3, 2, each([](auto& s, auto& v, size_t i) {
                      return (s[1][i] - s[0][i]) * v[0] + s[0][i] + (s[2][i] - s[0][i]) * v[1];
                  }));
    table.vectors(V2_V3_V4(Hermite), 4, 1,
                  [](auto& s, auto& v, auto& d) { d = hermite(s[0], s[1], s[2], s[3], v[0]); });
    table.vectors(V2_V3_V4(InterpolationCatmullRom), 4, 1, [](auto& s, auto& v, auto& d) {
        d = hermite(s[1], half(difference(s[2], s[0])), s[2], half(difference(s[3], s[1])), v[0]);
    });
    table.vectors(V2_V3_V4(InterpolationLinear), 2, 1, each([](auto& s, auto& v, size_t i) {
                      return s[0][i] + (s[1][i] - s[0][i]) * v[0];
                  }));
}

void addBuilders(Table& table)
{
    table.builder(NAMED(zepmIdentity_m4_32f), 0,
                  [](auto&, auto&, auto& d) { setElements(d, {{0, 1}, {5, 1}, {10, 1}, {15, 1}}); });
    table.builder(NAMED(zepmScaling_m4_32f), 3, [](auto&, auto& v, auto& d) {
        setElements(d, {{0, v[0]}, {5, v[1]}, {10, v[2]}, {15, 1}});
    });
    table.builder(NAMED(zepmTranslation_m4_32f), 3, [](auto&, auto& v, auto& d) {
        setElements(d, {{0, 1}, {5, 1}, {10, 1}, {12, v[0]}, {13, v[1]}, {14, v[2]}, {15, 1}});
    });
    table.builder(NAMED(zepmRotationX_m4_32f), 1, [](auto&, auto& v, auto& d) {
        const auto s = sine(v[0]), c = cosine(v[0]);
        setElements(d, {{0, 1}, {5, c}, {6, s}, {9, -s}, {10, c}, {15, 1}});
    });
    table.builder(NAMED(zepmRotationY_m4_32f), 1, [](auto&, auto& v, auto& d) {
        const auto s = sine(v[0]), c = cosine(v[0]);
        setElements(d, {{0, c}, {2, -s}, {5, 1}, {8, s}, {10, c}, {15, 1}});
    });
    table.builder(NAMED(zepmRotationZ_m4_32f), 1, [](auto&, auto& v, auto& d) {
        const auto s = sine(v[0]), c = cosine(v[0]);
        setElements(d, {{0, c}, {1, s}, {4, -s}, {5, c}, {10, 1}, {15, 1}});
    });
    table.rows.push_back(row(NAMED(zepmRotationAxis_v3m4_32f), {3}, 1, 16, [](auto& sources, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T s = sine(v[0]), c = cosine(v[0]), q = T(1) - c;
        const auto axis = normalized(sources[0]);
        const T x = axis[0], y = axis[1], z = axis[2];
        setElements(d, {{0, q * x * x + c},
                        {1, q * y * x + s * z},
                        {2, q * z * x - s * y},
                        {4, q * x * y - s * z},
                        {5, q * y * y + c},
                        {6, y * (q * z) + s * x},
                        {8, s * y + q * x * z},
                        {9, q * y * z - s * x},
                        {10, c + z * (q * z)},
                        {15, 1}});
    }));
    table.builder(NAMED(zepmRotationYawPitchRoll_m4_32f), 3, [](auto&, auto& v, auto& d) {
        const auto sy = sine(v[0]), cy = cosine(v[0]), sp = sine(v[1]), cp = cosine(v[1]);
        const auto sr = sine(v[2]), cr = cosine(v[2]);
        setElements(d, {{0, sy * sp * sr + cy * cr},
                        {1, sr * cp},
                        {2, sp * cy * sr - sy * cr},
                        {4, sy * sp * cr - cy * sr},
                        {5, cr * cp},
                        {6, sy * sr + cr * (sp * cy)},
                        {8, sy * cp},
                        {9, -sp},
                        {10, cy * cp},
                        {15, 1}});
    });
    table.add(NAMED(zepmLookAtLH_m4_32f), {3, 3, 3}, 16,
              [](auto& s, auto&, auto& d) { lookAlong(difference(s[1], s[0]), s[0], s[2], d); });
    table.add(NAMED(zepmLookAtRH_m4_32f), {3, 3, 3}, 16,
              [](auto& s, auto&, auto& d) { lookAlong(difference(s[0], s[1]), s[0], s[2], d); });
}

void addProjections(Table& table)
{
    // v: w, h, zn, zf
    table.builder(NAMED(zepmOrthoLH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        setElements(d, {{0, T(2) / v[0]},
                        {5, T(2) / v[1]},
                        {10, T(1) / (v[3] - v[2])},
                        {14, v[2] / (T(0) - (v[3] - v[2]))},
                        {15, 1}});
    });
    table.builder(NAMED(zepmOrthoRH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        setElements(d, {{0, T(2) / v[0]},
                        {5, T(2) / v[1]},
                        {10, T(1) / (v[2] - v[3])},
                        {14, v[2] / (v[2] - v[3])},
                        {15, 1}});
    });
    table.builder(NAMED(zepmPerspectiveLH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        setElements(d, {{0, (v[2] + v[2]) / v[0]},
                        {5, (v[2] + v[2]) / v[1]},
                        {10, v[3] / (v[3] - v[2])},
                        {11, 1},
                        {14, v[2] * v[3] / (T(0) - (v[3] - v[2]))}});
    });
    table.builder(NAMED(zepmPerspectiveRH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        setElements(d, {{0, (v[2] + v[2]) / v[0]},
                        {5, (v[2] + v[2]) / v[1]},
                        {10, v[3] / (v[2] - v[3])},
                        {11, -1},
                        {14, v[2] * v[3] / (v[2] - v[3])}});
    });
    // v: fovY, aspect, zn, zf
    table.builder(NAMED(zepmPerspectiveFovLH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T y = shortCosine(T(0.5) * v[0]) / shortSine(T(0.5) * v[0]);
        setElements(d, {{0, y / v[1]},
                        {5, y},
                        {10, v[3] / (v[3] - v[2])},
                        {11, 1},
                        {14, (T(0) - v[2] * v[3]) / (v[3] - v[2])}});
    });
    table.builder(NAMED(zepmPerspectiveFovRH_m4_32f), 4, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T y = shortCosine(T(0.5) * v[0]) / shortSine(T(0.5) * v[0]);
        setElements(d, {{0, y / v[1]},
                        {5, y},
                        {10, v[3] / (v[2] - v[3])},
                        {11, -1},
                        {14, v[2] * v[3] / (v[2] - v[3])}});
    });
    // v: l, r, b, t, zn, zf
    table.builder(NAMED(zepmOrthoOffCenterLH_m4_32f), 6, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T w = v[1] - v[0], h = v[3] - v[2], depth = v[5] - v[4];
        setElements(d, {{0, T(2) / w},
                        {5, T(2) / h},
                        {10, T(1) / depth},
                        {12, (v[0] + v[1]) / (T(0) - w)},
                        {13, (v[2] + v[3]) / (T(0) - h)},
                        {14, v[4] / (T(0) - depth)},
                        {15, 1}});
    });
    table.builder(NAMED(zepmOrthoOffCenterRH_m4_32f), 6, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T w = v[1] - v[0], h = v[3] - v[2], depth = v[4] - v[5];
        setElements(d, {{0, T(2) / w},
                        {5, T(2) / h},
                        {10, T(1) / depth},
                        {12, (v[0] + v[1]) / (T(0) - w)},
                        {13, (v[2] + v[3]) / (T(0) - h)},
                        {14, v[4] / depth},
                        {15, 1}});
    });
    table.builder(NAMED(zepmPerspectiveOffCenterLH_m4_32f), 6, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T w = v[1] - v[0], h = v[3] - v[2], depth = v[5] - v[4];
        setElements(d, {{0, (v[4] + v[4]) / w},
                        {5, (v[4] + v[4]) / h},
                        {8, (v[0] + v[1]) / (T(0) - w)},
                        {9, (v[2] + v[3]) / (T(0) - h)},
                        {10, v[5] / depth},
                        {11, 1},
                        {14, v[4] * v[5] / (T(0) - depth)}});
    });
    table.builder(NAMED(zepmPerspectiveOffCenterRH_m4_32f), 6, [](auto&, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const T w = v[1] - v[0], h = v[3] - v[2], depth = v[4] - v[5];
        setElements(d, {{0, (v[4] + v[4]) / w},
                        {5, (v[4] + v[4]) / h},
                        {8, (v[0] + v[1]) / w},
                        {9, (v[2] + v[3]) / h},
                        {10, v[5] / depth},
                        {11, -1},
                        {14, v[4] * v[5] / depth}});
    });
}

Status invertWithoutDet(const float32* pSrc, float32* pDst) { return zepmInvert_m4_32f(pSrc, nullptr, pDst); }

void addMatrices(Table& table)
{
    table.add(NAMED(zepmMul_mm4x4_32f), {16, 16}, 16, [](auto& s, auto&, auto& d) { d = times(s[0], s[1]); });
    table.add(NAMED(zepmMulTranspose_m4_32f), {16, 16}, 16,
              [](auto& s, auto&, auto& d) { d = transposed(times(s[0], s[1])); });
    table.add(NAMED(zepmTranspose_m4_32f), {16}, 16, [](auto& s, auto&, auto& d) { d = transposed(s[0]); });
    table.add(NAMED(zepmDet_m4_32f), {16}, 1, [](auto& s, auto&, auto& d) { d[0] = determinant(s[0]); });
    table.rows.push_back(freeRow("zepmInvert_m4_32f", invertWithoutDet, {16}, 0, 16, [](auto& s, auto&, auto& d) {
        d = inverse(s[0], estimatedReciprocal(determinant(s[0])));
    }));
}

void addPoints(Table& table)
{
    const auto affineOf = [](auto& s, auto&, auto& d) { d = affine(s[0], s[1]); };
    table.add(NAMED(zepmAffineTransform_m4v2_32f), {16, 2}, 4, affineOf);
    table.add(NAMED(zepmAffineTransform_m4v3_32f), {16, 3}, 4, affineOf);
    table.add(NAMED(zepmAffineTransform_m4v4_32f), {16, 4}, 4, affineOf);
    const auto coordOf = [](auto& s, auto&, auto& d) { d = coord(s[0], s[1]); };
    table.add(NAMED(zepmAffineTransformCoord_m4v2_32f), {16, 2}, 2, coordOf);
    table.add(NAMED(zepmAffineTransformCoord_m4v3_32f), {16, 3}, 3, coordOf);
    const auto normalOf = [](auto& s, auto&, auto& d) {
        for (size_t j = 0; j < d.size(); ++j)
        {
            d[j] = s[0][j] * s[1][0] + s[0][4 + j] * s[1][1];
            if (d.size() == 3) d[j] = d[j] + s[0][8 + j] * s[1][2];
        }
    };
    table.add(NAMED(zepmAffineTransformNormal_m4v2_32f), {16, 2}, 2, normalOf);
    table.add(NAMED(zepmAffineTransformNormal_m4v3_32f), {16, 3}, 3, normalOf);
    // s: projection, view, world, point; v: width, height, zMin, zMax
    table.rows.push_back(freeRow(NAMED(zepmProject_m4v3_32f), {16, 16, 16, 3}, 4, 3, [](auto& s, auto& v, auto& d) {
        auto p = affine(s[0], affine(s[1], affine(s[2], s[3])));
        for (size_t i = 0; i < 3; ++i) p[i] = p[i] / p[3];
        d = projected(p, v);
    }));
    // The inverse is more exact than a bound for float32 arithmetic says.
    table.rows.push_back(freeRow(NAMED(zepmUnproject_m4v3_32f), {16, 16, 16, 3}, 4, 3, [](auto& s, auto& v, auto& d) {
        using T = std::decay_t<decltype(d[0])>;
        const auto m = times(times(s[2], s[1]), s[0]);
        d = coord(inverse(m, T(1) / determinant(m)),
                  {T(2) * s[3][0] / v[0] - T(1), T(-2) * s[3][1] / v[1] + T(1), (s[3][2] - v[2]) / (v[3] - v[2])});
    }));
}

} // namespace

const std::vector<Row>& allRows()
{
    static const std::vector<Row> rows = [] {
        Table table;
        addVectors(table);
        addBuilders(table);
        addProjections(table);
        addMatrices(table);
        addPoints(table);
        return table.rows;
    }();
    return rows;
}

} // namespace geometry
