// Matrices and points of 3D graphics, beside GLM, cglm and Eigen.
//
// All keep the same 16 numbers for the same transform: rows here are columns there, and a product has its factors in
// the other order. GLM computes with its aligned types, whose code is vector code; with "packed" in its name the points
// are its packed types as well. Layouts: dense, points of 12 bytes side by side; records, points of 16 bytes, whose
// last element the peers may read and write.
#include "bench/harness.h"

#define GLM_FORCE_INTRINSICS
#define GLM_FORCE_DEPTH_ZERO_TO_ONE
#include <Eigen/Dense>
#include <float.h>
#include <glm/ext/matrix_transform.hpp>
#include <glm/glm.hpp>
#include <glm/gtc/type_aligned.hpp>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

// Both give the same global names to types of their own.
namespace cglm
{
#include <cglm/cglm.h>
#include <cglm/clipspace/view_lh.h>
} // namespace cglm

using bench::Slot;

namespace
{

using GlmMatrix = glm::aligned_mat4;
using GlmVector = glm::aligned_vec4;

float32* storage(Slot slot, size_t elements) { return bench::Operand<float32>::at(slot, elements); }

// A camera that sees the points, which lie within 2 of the origin.
const float32* camera()
{
    float32* const m = storage(Slot::C, 64);
    const float32 eye[3] = {1, 2, -7}, at[3] = {}, up[3] = {0, 1, 0};
    zepmPerspectiveFovLH_m4_32f(1, 1.5f, 1, 20, m + 16);
    zepmLookAtLH_m4_32f(eye, at, up, m + 32);
    zepmMul_mm4x4_32f(m + 32, m + 16, m);
    return m;
}

const GlmMatrix& glmOf(const float32* m) { return *reinterpret_cast<const GlmMatrix*>(m); }
cglm::vec4* cglmOf(const float32* m) { return reinterpret_cast<cglm::vec4*>(const_cast<float32*>(m)); }
Eigen::Map<const Eigen::Matrix4f, Eigen::Aligned16> eigenOf(const float32* m)
{
    return Eigen::Map<const Eigen::Matrix4f, Eigen::Aligned16>(m);
}
Eigen::Map<Eigen::Matrix4f, Eigen::Aligned16> eigenOf(float32* m)
{
    return Eigen::Map<Eigen::Matrix4f, Eigen::Aligned16>(m);
}

template <class Call>
auto ok(Call call)
{
    return [call] {
        call();
        return stsOk;
    };
}

// ---- Single matrices ------------------------------------------------------------------------------------------------

void singleProduct()
{
    const float32* const a = camera() + 16;
    const float32* const b = camera() + 32;
    float32* const d = storage(Slot::Result, 16);
    const auto eigen = ok([=] { eigenOf(d).noalias() = eigenOf(b) * eigenOf(a); });
    bench::Case<float32> problem("Mul_mm4x4/32f/4x4/dense/n:1", d, 16, eigen, 1e-6);
    problem.add("zepm", [=] { return zepmMul_mm4x4_32f(a, b, d); });
    problem.add("eigen_noalias", eigen);
    problem.add("glm_aligned", ok([=] { *reinterpret_cast<GlmMatrix*>(d) = glmOf(b) * glmOf(a); }));
    problem.add("cglm_inlined", ok([=] { cglm::glm_mat4_mul(cglmOf(b), cglmOf(a), cglmOf(d)); }));
}

void singleInverse()
{
    const float32* const a = camera();
    float32* const d = storage(Slot::Result, 16);
    const auto eigen = ok([=] { eigenOf(d) = eigenOf(a).inverse(); });
    bench::Case<float32> problem("Invert_m4/32f/4x4/dense/n:1", d, 16, eigen, 1e-5);
    problem.add("zepm", [=] { return zepmInvert_m4_32f(a, nullptr, d); });
    problem.add("eigen_inverse", eigen);
    problem.add("glm_aligned", ok([=] { *reinterpret_cast<GlmMatrix*>(d) = glm::inverse(glmOf(a)); }));
    problem.add("cglm_inlined", ok([=] { cglm::glm_mat4_inv(cglmOf(a), cglmOf(d)); }));
}

void singleLookAt()
{
    float32* const v = storage(Slot::A, 16);
    float32* const d = storage(Slot::Result, 16);
    const auto cglm = ok([=] { cglm::glm_lookat_lh(v, v + 4, v + 8, cglmOf(d)); });
    bench::Case<float32> problem("LookAtLH_m4/32f/4x4/dense/n:1", d, 16, cglm, 1e-5);
    problem.add("zepm", [=] { return zepmLookAtLH_m4_32f(v, v + 4, v + 8, d); });
    problem.add("cglm_inlined", cglm);
    problem.add("glm_packed", ok([=] {
                    auto vector = [](const float32* p) { return glm::vec3(p[0], p[1], p[2]); };
                    *reinterpret_cast<glm::mat4*>(d) = glm::lookAtLH(vector(v), vector(v + 4), vector(v + 8));
                }));
}

void singleTransform()
{
    const float32* const m = camera();
    const float32* const p = storage(Slot::A, 4);
    float32* const d = storage(Slot::Result, 4);
    const auto eigen = ok([=] {
        Eigen::Map<Eigen::Vector4f>{d}.noalias() = eigenOf(m) * Eigen::Map<const Eigen::Vector3f>(p).homogeneous();
    });
    bench::Case<float32> problem("AffineTransform_m4v3/32f/3/dense/n:1", d, 4, eigen, 1e-6);
    problem.add("zepm", [=] { return zepmAffineTransform_m4v3_32f(m, p, d); });
    problem.add("eigen_homogeneous", eigen);
    problem.add("glm_aligned", ok([=] {
                    *reinterpret_cast<GlmVector*>(d) = glmOf(m) * GlmVector(p[0], p[1], p[2], 1);
                }));
    problem.add("cglm_inlined", ok([=] {
                    cglm::vec4 v = {p[0], p[1], p[2], 1};
                    cglm::glm_mat4_mulv(cglmOf(m), v, d);
                }));
}

// ---- Arrays of points -----------------------------------------------------------------------------------------------

enum class Result
{
    Vector, // four elements
    Point   // three, divided by the fourth
};

// In elements from point to point.
struct Steps
{
    int src, dst;
};

template <Result result>
void store(float32* d, const float32* v, bool isRecord)
{
    if constexpr (result == Result::Vector)
        std::memcpy(d, v, 16);
    else if (isRecord)
        std::memcpy(d, v, 16);
    else
        std::memcpy(d, v, 12);
}

// Eigen's points: dense or at an outer stride.
template <int Rows, int Step, class T>
auto columns(T* p, int n)
{
    using Matrix = std::conditional_t<std::is_const_v<T>, const Eigen::Matrix<float32, Rows, Eigen::Dynamic>,
                                      Eigen::Matrix<float32, Rows, Eigen::Dynamic>>;
    return Eigen::Map<Matrix, 0, Eigen::OuterStride<Step>>(p, Rows, n);
}

template <Result result, int Src, int Dst>
void arrays(const char* name, const char* layout, int n,
            Status (*zepm)(const float32*, const float32*, int32, float32*, int32, int32))
{
    constexpr bool divides = result == Result::Point;
    constexpr bool isRecord = divides && Dst == 4;
    const float32* const m = camera();
    const float32* const p = storage(Slot::A, static_cast<size_t>(n) * Src);
    const size_t elements = static_cast<size_t>(n) * Dst;
    float32* const d = storage(Slot::Result, elements);
    const std::string caseName =
        std::string(name) + "/32f/3/" + layout + "/n:" + std::to_string(n);

    const auto scalar = [=](bool writesLast) {
        for (int k = 0; k < n; ++k)
        {
            float32 v[4];
            for (int j = 0; j < 4; ++j)
                v[j] = m[12 + j] + m[j] * p[Src * k] + m[4 + j] * p[Src * k + 1] + m[8 + j] * p[Src * k + 2];
            for (int j = 0; j < 3; ++j) d[Dst * k + j] = divides ? v[j] / v[3] : v[j];
            if (!divides || writesLast) d[Dst * k + 3] = divides ? 1 : v[3];
        }
        return stsOk;
    };
    bench::Case<float32> ours(caseName, d, elements, [=] { return scalar(false); }, 1e-5);
    bench::Case<float32> peers(caseName, d, elements, [=] { return scalar(isRecord); }, 1e-5);
    ours.moves(static_cast<double>(n) * 4 * (Src + Dst)); // gaps travel as well
    ours.add("zepm", [=] { return zepm(m, p, 4 * Src, d, 4 * Dst, n); });
    if (n >= 100000) ours.addCopies();

    peers.add("glm_aligned", ok([=] {
                  const GlmMatrix matrix = glmOf(m);
                  for (ptrdiff_t k = 0; k < n; ++k)
                  {
                      const float32* const s = p + Src * k;
                      GlmVector v;
                      if constexpr (Src == 4)
                          v = *reinterpret_cast<const GlmVector*>(s), v.w = 1;
                      else
                          v = GlmVector(s[0], s[1], s[2], 1);
                      v = matrix * v;
                      if constexpr (divides) v /= v.w;
                      store<result>(d + Dst * k, &v.x, isRecord);
                  }
              }));
    peers.add("glm_packed", ok([=] {
                  const glm::mat4 matrix = *reinterpret_cast<const glm::mat4*>(m);
                  for (ptrdiff_t k = 0; k < n; ++k)
                  {
                      const float32* const s = p + Src * k;
                      glm::vec4 v = matrix * glm::vec4(s[0], s[1], s[2], 1);
                      if constexpr (divides) v /= v.w;
                      store<result>(d + Dst * k, &v.x, isRecord);
                  }
              }));
    peers.add("cglm_mulv", ok([=] {
                  for (ptrdiff_t k = 0; k < n; ++k)
                  {
                      const float32* const s = p + Src * k;
                      CGLM_ALIGN(16) cglm::vec4 v = {s[0], s[1], s[2], 1};
                      cglm::glm_mat4_mulv(cglmOf(m), v, v);
                      if constexpr (divides) cglm::glm_vec4_divs(v, v[3], v);
                      store<result>(d + Dst * k, v, isRecord);
                  }
              }));
    peers.add("eigen_map", ok([=] {
                  const Eigen::Matrix4f matrix = eigenOf(m);
                  for (ptrdiff_t k = 0; k < n; ++k)
                  {
                      const Eigen::Vector4f v = matrix * Eigen::Map<const Eigen::Vector3f>(p + Src * k).homogeneous();
                      const Eigen::Vector4f r = divides ? Eigen::Vector4f(v / v[3]) : v;
                      store<result>(d + Dst * k, r.data(), isRecord);
                  }
              }));
    // The last element of a record stays as it was.
    (isRecord ? ours : peers).add("eigen_whole", ok([=] {
        const Eigen::Matrix4f matrix = eigenOf(m);
        const auto points = columns<3, Src>(p, n);
        if constexpr (divides)
        {
            const auto moved = (matrix.topLeftCorner<3, 3>().lazyProduct(points)).colwise() + matrix.col(3).head<3>();
            const auto w = (matrix.row(3).head<3>().lazyProduct(points)).array() + matrix(3, 3);
            columns<3, Dst>(d, n) = (moved.array().rowwise() / w.array()).matrix();
        }
        else
        {
            columns<4, Dst>(d, n) = (matrix.leftCols<3>().lazyProduct(points)).colwise() + matrix.col(3);
        }
    }));
}

} // namespace

void bench::registerBenchmarks()
{
    singleProduct();
    singleInverse();
    singleLookAt();
    singleTransform();
    for (const int n : {1000, 1000000})
    {
        arrays<Result::Vector, 3, 4>("AffineTransform_m4v3a", "dense", n, zepmAffineTransform_m4v3a_32f);
        arrays<Result::Vector, 4, 4>("AffineTransform_m4v3a", "records", n, zepmAffineTransform_m4v3a_32f);
        arrays<Result::Point, 3, 3>("AffineTransformCoord_m4v3a", "dense", n, zepmAffineTransformCoord_m4v3a_32f);
        arrays<Result::Point, 4, 4>("AffineTransformCoord_m4v3a", "records", n, zepmAffineTransformCoord_m4v3a_32f);
    }
}
