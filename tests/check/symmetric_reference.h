// The symmetric eigenproblem of order 3 and above, written down plainly: what the library must give to the bit.
#pragma once

#include "zepm_types.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace check
{

// What is particular to a kernel.
struct Kernel
{
    bool withVectors;
    bool wideScalars;                       // float64 scalars over float32 elements
    bool wideRootTopDown, wideRootBottomUp; // the root in the shift in float64
    bool sortsSingular;                     // a singular object is sorted before it is reported
    double order2Threshold;
};

// One object, step by step in the order of the definition; every array starts at 0. R is the type of the scalars.
template <class T, class R>
struct Eigenproblem
{
    const Kernel kernel;
    const int n;
    std::vector<std::vector<T>> A, V;
    std::vector<T> values;
    const R eps = R(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);
    T prod = 1;
    // Whether the definition changed the matrix by more than its rotations and reflectors do: where it does not reflect
    // a column, ends a sweep early or leaves out a closing update. The decomposition is then that of another matrix.
    bool isDisturbed = false;

    Eigenproblem(const Kernel& particular, int order, auto element) : kernel(particular), n(order), values(order)
    {
        for (int i = 0; i < n; ++i)
        {
            A.emplace_back();
            for (int j = 0; j < n; ++j) A.back().push_back(element(i, j));
        }
    }

    static R root(R x) { return std::sqrt(x); }

    void householder(int k)
    {
        R ss = R(A[k + 1][k]) * R(A[k + 1][k]);
        for (int i = k + 2; i < n; ++i) ss += R(A[i][k]) * R(A[i][k]);
        const R s = root(ss), x = A[k + 1][k];
        std::vector<T> u(n);
        for (int i = k + 2; i < n; ++i) u[i] = A[i][k];
        R rest = 0;
        for (int i = k + 2; i < n; ++i) rest = std::max(rest, std::abs(R(A[i][k])));
        auto passesOver = [&] { isDisturbed = isDisturbed || rest > 4 * eps; };
        if (kernel.withVectors && eps >= std::abs(x - s)) return passesOver();
        if (kernel.wideScalars && eps >= ss) return passesOver();
        R h;
        if (x > eps)
            u[k + 1] = T(x + s), h = (ss + x * s) * 2;
        else if (std::abs(x) <= eps)
            u[k + 1] = T(s), h = ss + ss;
        else
            u[k + 1] = T(x - s), h = (ss - x * s) * 2;
        if (eps >= h) return passesOver();
        const R beta = 2 / h;
        auto project = [&](auto element, int from, int to) {
            for (int line = from; line < to; ++line)
            {
                R t = R(element(line, k + 1)) * R(u[k + 1]);
                for (int i = k + 2; i < n; ++i) t += R(element(line, i)) * R(u[i]);
                t = beta * t;
                for (int i = k + 1; i < n; ++i) element(line, i) = T(R(element(line, i)) - t * R(u[i]));
            }
        };
        project([&](int j, int i) -> T& { return A[i][j]; }, k, n);
        project([&](int i, int j) -> T& { return A[i][j]; }, k, n);
        if (!kernel.withVectors) return;
        if (k > 0) return project([&](int i, int j) -> T& { return V[i][j]; }, 1, n);
        for (int i = 1; i < n; ++i)
        {
            V[i][i] = T(1 - beta * (R(u[i]) * R(u[i])));
            for (int j = i + 1; j < n; ++j) V[i][j] = V[j][i] = T(-beta * R(u[i]) * R(u[j]));
        }
    }

    T& d(int i) { return A[i][i]; }
    T& e(int i) { return A[i + 1][i]; }
    bool isZero(T x) const { return double(eps) >= std::abs(double(x) * 0.5); }

    R shift(R p, bool wide) const { return wide ? R(std::sqrt(double(p * p) + 1.0)) : root(p * p + 1); }
    void coefficients(R f, R g, R r, R& c, R& s) const
    {
        if (kernel.wideScalars)
        {
            const R over = 1 / r;
            c = g * over, s = f * over;
        }
        else
        {
            c = g / r, s = f / r;
        }
    }

    bool topDown()
    {
        for (int l = 0; l < n; ++l)
            for (int iter = 0;; ++iter)
            {
                int m = l;
                while (m < n - 1 && !isZero(e(m))) ++m;
                if (m == l) break;
                if (iter == 30) return false;
                R g = e(l), p = (R(d(l + 1)) - R(d(l))) / (2 * g), r = shift(p, kernel.wideRootTopDown);
                g = (R(d(m)) - R(d(l))) + R(e(l)) / (p > eps ? p + r : p - r);
                R s = 1, c = 1, pp = 0, t = 0;
                bool endsEarly = false;
                for (int i = m - 1; i >= l && !endsEarly; --i)
                {
                    const R f = s * R(e(i)), b = c * R(e(i));
                    r = root(f * f + g * g);
                    if (i != m - 1) e(i + 1) = T(r);
                    if (eps >= std::abs(r))
                    {
                        d(i + 1) = T(R(d(i + 1)) - pp);
                        e(m - 1) = 0;
                        endsEarly = isDisturbed = true;
                        continue;
                    }
                    coefficients(f, g, r, c, s);
                    for (auto& row : V)
                    {
                        const R v0 = row[i], v1 = row[i + 1];
                        row[i + 1] = T(s * v0 + c * v1);
                        row[i] = T(c * v0 - s * v1);
                    }
                    const R g2 = R(d(i + 1)) - pp;
                    t = (R(d(i)) - g2) * s + 2 * c * b;
                    pp = t * s;
                    d(i + 1) = T(g2 + pp);
                    g = t * c - b;
                }
                if (endsEarly) continue;
                if (std::abs(t) > eps || l == 0)
                    d(l) = T(R(d(l)) - pp), e(l) = T(g);
                else
                    isDisturbed = isDisturbed || std::abs(R(e(l)) - g) > 4 * eps;
            }
        for (int i = 0; i < n; ++i) values[i] = d(i), prod *= d(i);
        return true;
    }

    bool bottomUp()
    {
        for (int l = n - 1; l >= 1; --l)
            for (int iter = 0;; ++iter)
            {
                int m = l;
                for (; m > 0; --m)
                    if (isZero(e(m - 1)))
                    {
                        values[m] = d(m), prod *= d(m);
                        break;
                    }
                if (m == l) break;
                if (iter == 30) return false;
                R g = e(l - 1), p = (R(d(l - 1)) - R(d(l))) / (2 * g), r = shift(p, kernel.wideRootBottomUp);
                g = (R(d(m)) - R(d(l))) + R(e(l - 1)) / (p > eps ? p + r : p - r);
                R s = 1, c = 1, pp = 0, t = 0;
                bool endsEarly = false;
                for (int i = m; i <= l - 1 && !endsEarly; ++i)
                {
                    const R f = s * R(e(i)), b = c * R(e(i));
                    r = root(f * f + g * g);
                    if (i != m) e(i - 1) = T(r);
                    if (eps >= std::abs(r))
                    {
                        d(i) = T(R(d(i)) - pp);
                        e(m) = 0;
                        endsEarly = isDisturbed = true;
                        continue;
                    }
                    coefficients(f, g, r, c, s);
                    for (auto& row : V)
                    {
                        const R v0 = row[i], v1 = row[i + 1];
                        row[i] = T(c * v0 + s * v1);
                        row[i + 1] = T(c * v1 - s * v0);
                    }
                    const R g2 = R(d(i)) - pp;
                    t = (R(d(i + 1)) - g2) * s + 2 * c * b;
                    pp = t * s;
                    d(i) = T(g2 + pp);
                    g = t * c - b;
                }
                if (endsEarly) continue;
                if (std::abs(t) > eps)
                    d(l) = T(R(d(l)) - pp), e(l - 1) = T(g);
                else
                    isDisturbed = isDisturbed || std::abs(R(e(l - 1)) - g) > 4 * eps;
            }
        values[0] = d(0), prod *= d(0);
        return true;
    }

    void sort()
    {
        for (int i = 0; i < n - 1; ++i)
        {
            int largest = i;
            for (int j = i + 1; j < n; ++j)
                if (values[j] > values[largest]) largest = j;
            std::swap(values[i], values[largest]);
            for (auto& row : V) std::swap(row[i], row[largest]);
        }
    }

    Status run()
    {
        if (kernel.withVectors)
        {
            V.assign(n, std::vector<T>(n));
            for (int i = 0; i < n; ++i) V[i][i] = 1;
        }
        for (int k = 0; k < n - 2; ++k) householder(k);
        if (!(std::abs(d(n - 1)) > std::abs(d(0)) ? topDown() : bottomUp())) return stsEigenFailErr;
        const bool isSingular = eps >= std::abs(prod);
        if (!isSingular || kernel.sortsSingular) sort();
        return isSingular ? stsSingularErr : stsOk;
    }
};

} // namespace check
