// The 3D math beside glm, cglm and Eigen: arrays of points, packed and as the positions of vertices of 32 bytes, and
// single calls over 1,000 objects. Peers are inlined into their loops. Each has its own order of operations, and
// glm and cglm multiply by reciprocals where we divide: results are not compared here.

#define GLM_ENABLE_EXPERIMENTAL
#define CGLM_DEFINE_PRINTS 0
#include <cglm/cglm.h>
#include <cglm/clipspace/ortho_lh_zo.h>
#include <cglm/clipspace/persp_lh_zo.h>
#include <cglm/clipspace/project_zo.h>
#include <cglm/clipspace/view_lh_zo.h>

#include <Eigen/Dense>
#include <algorithm>
#include <cstring>
#include <glm/glm.hpp>
#include <glm/gtc/matrix_transform.hpp>
#include <glm/gtx/spline.hpp>

#include "memory.hpp"
#include "rows.hpp"
#include "vorm/vorm.h"

namespace bench {

namespace {

constexpr int count = residentObjects;
constexpr float width = 640, height = 480;

// A camera before the objects, so that nothing lies behind it.
struct Scene {
    float world[16], view[16], projection[16], all[16];
    Scene()
    {
        const float eye[] = {0.5f, 1, -9}, at[] = {1, 1, 1}, up[] = {0, 1, 0};
        vormRotationYawPitchRoll_m4_32f(world, 0.3f, 0.2f, 0.1f);
        vormLookAtLH_m4_32f(eye, at, up, view);
        vormPerspectiveFovLH_m4_32f(projection, 0.8f, width / height, 1, 20);
        vormMul_mm4x4_32f(world, view, all);
        vormMul_mm4x4_32f(all, projection, all);
    }
};
const Scene& scene()
{
    static const Scene instance;
    return instance;
}

// What is read of an object and written of it, and how far apart objects are, in floats.
template <int srcLen, int dstLen, int srcStep, int dstStep>
struct Objects {
    static constexpr int srcBytes = srcStep * 4, dstBytes = dstStep * 4;
    float *src = Memory::region<float>(count * srcStep), *dst = Memory::region<float>(count * dstStep);
    Objects() { fill(src, count * srcStep), fill(dst, count * dstStep); }

    template <class Each>
    Contestant each(const char* name, const Each& work) const
    {
        return {name, [*this, work] {
                    for (int n = 0; n < count; ++n) work(src + n * srcStep, dst + n * dstStep);
                }};
    }
};

glm::mat4 glmMatrix(const float* p)
{
    glm::mat4 m;
    std::memcpy(&m[0][0], p, sizeof m);
    return m;
}
template <class V>
void put(float* to, const V& v)
{
    std::memcpy(to, &v, sizeof v);
}
using Matrix = Eigen::Matrix4f;  // column by column: the columns are our rows
struct alignas(32) Aligned {
    mat4 m;
    explicit Aligned(const float* p) { std::memcpy(m, p, sizeof m); }
};

template <int len>
glm::vec4 glmPoint(const float* p)
{
    return {p[0], p[1], len > 2 ? p[2] : 0, len > 3 ? p[3] : 1};
}
template <int len>
Eigen::Vector4f eigenPoint(const float* p)
{
    return {p[0], p[1], len > 2 ? p[2] : 0, len > 3 ? p[3] : 1};
}

template <int len, int srcStep, int dstStep, class Call>
Task affine(Call call)
{
    const Objects<len, 4, srcStep, dstStep> o;
    const float* const m = scene().all;
    const glm::mat4 g = glmMatrix(m);
    static Aligned c(m);
    const Matrix e = Eigen::Map<const Matrix>(m);
    return {{{"vorm", [=] { call(m, o.src, o.srcBytes, o.dst, o.dstBytes, count); }},
             o.each("glm", [=](const float* p, float* q) { put(q, g * glmPoint<len>(p)); }),
             o.each("cglm",
                    [=](const float* p, float* q) {
                        vec4 v = {p[0], p[1], len > 2 ? p[2] : 0, len > 3 ? p[3] : 1}, r;
                        glm_mat4_mulv(c.m, v, r);
                        put(q, r);
                    }),
             o.each("Eigen", [=](const float* p, float* q) {
                 Eigen::Map<Eigen::Vector4f>(q).noalias() = e * eigenPoint<len>(p);
             })}};
}

template <int len, int srcStep, int dstStep, class Call>
Task coord(Call call)
{
    const Objects<len, len, srcStep, dstStep> o;
    const float* const m = scene().all;
    const glm::mat4 g = glmMatrix(m);
    static Aligned c(m);
    const Matrix e = Eigen::Map<const Matrix>(m);
    return {{{"vorm", [=] { call(m, o.src, o.srcBytes, o.dst, o.dstBytes, count); }},
             o.each("glm",
                    [=](const float* p, float* q) {
                        const glm::vec4 r = g * glmPoint<len>(p);
                        put(q, glm::vec<len, float>(r) / r.w);
                    }),
             o.each("cglm",
                    [=](const float* p, float* q) {
                        vec4 v = {p[0], p[1], len > 2 ? p[2] : 0, 1}, r;
                        glm_mat4_mulv(c.m, v, r);
                        glm_vec4_divs(r, r[3], r);
                        std::memcpy(q, r, len * sizeof(float));
                    }),
             o.each("Eigen", [=](const float* p, float* q) {
                 const Eigen::Vector4f r = e * eigenPoint<len>(p);
                 Eigen::Map<Eigen::Matrix<float, len, 1>>{q} = r.head<len>() / r[3];
             })}};
}

template <int len, int srcStep, int dstStep, class Call>
Task normal(Call call)
{
    const Objects<len, len, srcStep, dstStep> o;
    const float* const m = scene().all;
    const glm::mat<len, len, float> g(glmMatrix(m));
    static Aligned c(m);
    const Eigen::Matrix<float, len, len> e = Eigen::Map<const Matrix>(m).topLeftCorner<len, len>();
    Task task{{{"vorm", [=] { call(m, o.src, o.srcBytes, o.dst, o.dstBytes, count); }},
               o.each("glm",
                      [=](const float* p, float* q) {
                          glm::vec<len, float> v;
                          std::memcpy(&v, p, sizeof v);
                          put(q, g * v);
                      }),
               o.each("Eigen", [=](const float* p, float* q) {
                   using V = Eigen::Matrix<float, len, 1>;
                   Eigen::Map<V>(q).noalias() = e * Eigen::Map<const V>(p);
               })}};
    if constexpr (len == 3)
        task.contestants.push_back(o.each("cglm", [=](const float* p, float* q) {
            vec3 v = {p[0], p[1], p[2]}, r;
            glm_mat4_mulv3(c.m, v, 0, r);
            put(q, r);
        }));
    return task;
}

// Peers know two matrices; the product of view and world is theirs beforehand.
template <int step>
Task project()
{
    const Objects<3, 3, step, step> o;
    const Scene& s = scene();
    float worldView[16];
    vormMul_mm4x4_32f(s.world, s.view, worldView);
    const glm::mat4 g = glmMatrix(worldView), projection = glmMatrix(s.projection);
    const glm::vec4 viewport(0, 0, width, height);
    static Aligned c(s.all);
    const Matrix e = Eigen::Map<const Matrix>(s.all);
    return {
        {{"vorm",
          [=, &s] {
              vormProject_m4v3a_32f(s.projection, s.view, s.world, o.src, step * 4, o.dst, step * 4, count, width,
                                    height, 0, 1);
          }},
         o.each("glm", [=](const float* p,
                           float* q) { put(q, glm::projectZO(glm::vec3(p[0], p[1], p[2]), g, projection, viewport)); }),
         o.each("cglm",
                [=](const float* p, float* q) {
                    vec3 v = {p[0], p[1], p[2]}, r;
                    vec4 port = {0, 0, width, height};
                    glm_project_zo(v, c.m, port, r);
                    put(q, r);
                }),
         o.each("Eigen", [=](const float* p, float* q) {
             const Eigen::Vector4f r = e * eigenPoint<3>(p);
             const Eigen::Array3f middle(width / 2, height / 2, 0), reach(width / 2, -height / 2, 1);
             Eigen::Map<Eigen::Array3f>{q} = middle + reach * (r.head<3>() / r[3]).array();
         })}};
}

template <int step>
Task unproject()
{
    const Objects<3, 3, step, step> o;
    const Scene& s = scene();
    static Aligned c(s.all);
    const Matrix e = Eigen::Map<const Matrix>(s.all);
    const glm::mat4 g = glm::inverse(glmMatrix(s.all));
    return {{{"vorm",
              [=, &s] {
                  vormUnproject_m4v3a_32f(s.projection, s.view, s.world, o.src, step * 4, o.dst, step * 4, count, width,
                                          height, 0, 1);
              }},
             o.each("glm, inverse beforehand",
                    [=](const float* p, float* q) {
                        const glm::vec4 r = g * glm::vec4(2 * p[0] / width - 1, 1 - 2 * p[1] / height, p[2], 1);
                        put(q, glm::vec3(r) / r.w);
                    }),
             {"Eigen", [=] {
                  const Matrix inverse = e.inverse();
                  for (int n = 0; n < count; ++n) {
                      const float* const p = o.src + n * step;
                      const Eigen::Vector4f unit(2 * p[0] / width - 1, 1 - 2 * p[1] / height, p[2], 1);
                      const Eigen::Vector4f r = inverse * unit;
                      Eigen::Map<Eigen::Vector3f>{o.dst + n* step} = r.head<3>() / r[3];
                  }
              }}}};
}

// Column vectors: Eigen's rows are ours.
template <int step>
Task columnVectors()
{
    const Objects<3, 3, step, step> o;
    const float* const m = scene().all;
    const Eigen::Matrix4f transposed = Eigen::Map<const Matrix>(m);
    static float rows[16];
    vormTranspose_m4_32f(m, rows);
    return {
        {{"vorm", [=] { vormAffineTransform3DH_mva_32f(rows, 16, 4, o.src, step * 4, 4, o.dst, step * 4, 4, count); }},
         o.each("Eigen", [=](const float* p, float* q) {
             const Eigen::Vector4f r = transposed * eigenPoint<3>(p);
             Eigen::Map<Eigen::Vector3f>{q} = r.head<3>() * (1 / r[3]);
         })}};
}

// Single calls. The matrices come from regions at multiples of 64 bytes.
template <int srcStep, int dstStep, class Ours, class... Peer>
Task single(const Ours& ours, const std::pair<const char*, Peer>&... peers)
{
    const Objects<srcStep, dstStep, srcStep, dstStep> o;
    return {{o.each("vorm", ours), o.each(peers.first, peers.second)...}};
}

// The members for single points, called for each point of an array.
template <VormStatus (*call)(const float*, const float*, float*)>
void eachPoint(const float* m, const float* src, int srcBytes, float* dst, int dstBytes, int points)
{
    for (int n = 0; n < points; ++n) call(m, src + n * (srcBytes / 4), dst + n * (dstBytes / 4));
}

mat4& asCglm(const float* p) { return *reinterpret_cast<mat4*>(const_cast<float*>(p)); }
float* writable(const float* p) { return const_cast<float*>(p); }

void addSingle(Section& s)
{
    using In = const float*;
    using Out = float*;
    using Map = Eigen::Map<const Matrix>;
    using MapOut = Eigen::Map<Matrix>;
    const auto add = [&](const char* name, double wanted, auto prepare) {
        s.rows.push_back({name, count, prepare, wanted});
    };
    add("vormMul_mm4x4", 1.1, [] {
        return single<32, 16>(
            [](In p, Out q) { vormMul_mm4x4_32f(p, p + 16, q); },
            std::pair{"glm", [](In p, Out q) { put(q, glmMatrix(p + 16) * glmMatrix(p)); }},
            std::pair{"cglm", [](In p, Out q) { glm_mat4_mul(asCglm(p + 16), asCglm(p), asCglm(q)); }},
            std::pair{"Eigen", [](In p, Out q) { MapOut(q).noalias() = Map(p + 16) * Map(p); }});
    });
    add("vormInvert_m4", 1.1, [] {
        return single<16, 16>([](In p, Out q) { vormInvert_m4_32f(p, nullptr, q); },
                              std::pair{"glm", [](In p, Out q) { put(q, glm::inverse(glmMatrix(p))); }},
                              std::pair{"cglm", [](In p, Out q) { glm_mat4_inv(asCglm(p), asCglm(q)); }},
                              std::pair{"cglm fast", [](In p, Out q) { glm_mat4_inv_fast(asCglm(p), asCglm(q)); }},
                              std::pair{"Eigen", [](In p, Out q) { MapOut{q} = Map(p).inverse(); }});
    });
    add("vormDet_m4", 1, [] {
        return single<16, 1>([](In p, Out q) { vormDet_m4_32f(p, q); },
                             std::pair{"glm", [](In p, Out q) { *q = glm::determinant(glmMatrix(p)); }},
                             std::pair{"cglm", [](In p, Out q) { *q = glm_mat4_det(asCglm(p)); }},
                             std::pair{"Eigen", [](In p, Out q) { *q = Map(p).determinant(); }});
    });
    add("vormTranspose_m4", 0.9, [] {
        return single<16, 16>([](In p, Out q) { vormTranspose_m4_32f(p, q); },
                              std::pair{"glm", [](In p, Out q) { put(q, glm::transpose(glmMatrix(p))); }},
                              std::pair{"cglm", [](In p, Out q) { glm_mat4_transpose_to(asCglm(p), asCglm(q)); }},
                              std::pair{"Eigen", [](In p, Out q) { MapOut{q} = Map(p).transpose(); }});
    });
    add("vormMulTranspose_m4", 1, [] {
        return single<32, 16>(
            [](In p, Out q) { vormMulTranspose_m4_32f(p, p + 16, q); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::transpose(glmMatrix(p + 16) * glmMatrix(p))); }},
            std::pair{"Eigen", [](In p, Out q) { MapOut(q).noalias() = (Map(p + 16) * Map(p)).transpose(); }});
    });
    add("vormLookAtLH_m4", 1, [] {
        return single<9, 16>([](In p, Out q) { vormLookAtLH_m4_32f(p, p + 3, p + 6, q); },
                             std::pair{"glm",
                                       [](In p, Out q) {
                                           const auto at = [](In v) { return glm::vec3(v[0], v[1], v[2]); };
                                           put(q, glm::lookAtLH(at(p), at(p + 3), at(p + 6)));
                                       }},
                             std::pair{"cglm", [](In p, Out q) {
                                           glm_lookat_lh_zo(writable(p), writable(p + 3), writable(p + 6), asCglm(q));
                                       }});
    });
    add("vormRotationAxis_v3m4", 1, [] {
        return single<4, 16>(
            [](In p, Out q) { vormRotationAxis_v3m4_32f(p, q, p[3]); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::rotate(glm::mat4(1), p[3], glm::vec3(p[0], p[1], p[2]))); }},
            std::pair{"cglm", [](In p, Out q) { glm_rotate_make(asCglm(q), p[3], writable(p)); }},
            std::pair{"Eigen", [](In p, Out q) {
                          const Eigen::Vector3f axis(p[0], p[1], p[2]);
                          MapOut m(q);
                          m.setIdentity();
                          m.topLeftCorner<3, 3>() = Eigen::AngleAxisf(p[3], axis.normalized()).toRotationMatrix();
                      }});
    });
    add("vormRotationX_m4", 1, [] {
        return single<1, 16>(
            [](In p, Out q) { vormRotationX_m4_32f(q, p[0]); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::rotate(glm::mat4(1), p[0], glm::vec3(1, 0, 0))); }});
    });
    add("vormPerspectiveFovLH_m4", 1, [] {
        return single<2, 16>(
            [](In p, Out q) { vormPerspectiveFovLH_m4_32f(q, p[0], p[1], 1, 20); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::perspectiveLH_ZO(p[0], p[1], 1.0f, 20.0f)); }},
            std::pair{"cglm", [](In p, Out q) { glm_perspective_lh_zo(p[0], p[1], 1, 20, asCglm(q)); }});
    });
    add("vormOrthoOffCenterLH_m4", 1, [] {
        return single<6, 16>(
            [](In p, Out q) { vormOrthoOffCenterLH_m4_32f(q, -p[0], p[1], -p[2], p[3], p[4], p[5] + 20); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::orthoLH_ZO(-p[0], p[1], -p[2], p[3], p[4], p[5] + 20)); }},
            std::pair{"cglm",
                      [](In p, Out q) { glm_ortho_lh_zo(-p[0], p[1], -p[2], p[3], p[4], p[5] + 20, asCglm(q)); }});
    });
    add("vormNormalize_v3", 0.8, [] {
        return single<3, 3>([](In p, Out q) { vormNormalize_v3_32f(p, q); },
                            std::pair{"glm", [](In p, Out q) { put(q, glm::normalize(glm::vec3(p[0], p[1], p[2]))); }},
                            std::pair{"cglm", [](In p, Out q) { glm_vec3_normalize_to(writable(p), q); }},
                            std::pair{"Eigen", [](In p, Out q) {
                                          Eigen::Map<Eigen::Vector3f>{q} =
                                              Eigen::Map<const Eigen::Vector3f>(p).normalized();
                                      }});
    });
    add("vormAffineTransform_m4v4", 0, [] { return affine<4, 4, 4>(eachPoint<vormAffineTransform_m4v4_32f>); });
    add("vormAffineTransformCoord_m4v3", 0,
        [] { return coord<3, 3, 3>(eachPoint<vormAffineTransformCoord_m4v3_32f>); });
    add("vormAffineTransformNormal_m4v3", 0,
        [] { return normal<3, 3, 3>(eachPoint<vormAffineTransformNormal_m4v3_32f>); });
    add("vormPerspectiveLH_m4", 0, [] {
        return single<4, 16>(
            [](In p, Out q) { vormPerspectiveLH_m4_32f(q, p[0], p[1], p[2], p[3] + 20); },
            std::pair{"glm", [](In p, Out q) { put(q, glm::frustumLH_ZO(-p[0], p[0], -p[1], p[1], p[2], p[3] + 20)); }},
            std::pair{"cglm",
                      [](In p, Out q) { glm_frustum_lh_zo(-p[0], p[0], -p[1], p[1], p[2], p[3] + 20, asCglm(q)); }});
    });
    add("vormInterpolationCatmullRom_v3", 0, [] {
        return single<13, 3>([](In p, Out q) { vormInterpolationCatmullRom_v3_32f(p, p + 3, p + 6, p + 9, q, p[12]); },
                             std::pair{"glm", [](In p, Out q) {
                                           const auto at = [](In v) { return glm::vec3(v[0], v[1], v[2]); };
                                           put(q, glm::catmullRom(at(p), at(p + 3), at(p + 6), at(p + 9), p[12]));
                                       }});
    });
}

}  // namespace

void addMath3d(Sections& sections)
{
    Section& s = sections.emplace_back(
        Section{"3D math",
                "Arrays of 1,000 points, packed or in vertices of 32 bytes, and single calls for each of 1,000 "
                "objects. Peers are inlined and the distances of their objects constants."});
    const auto add = [&](const std::string& name, double wanted, auto packed, auto apart) {
        s.rows.push_back({name + ", packed", count, packed, wanted});
        s.rows.push_back({name + ", 32 bytes apart", count, apart, std::min(wanted, 1.0)});
    };
    add(
        "vormAffineTransform_m4v2a", 1, [] { return affine<2, 2, 4>(vormAffineTransform_m4v2a_32f); },
        [] { return affine<2, 8, 8>(vormAffineTransform_m4v2a_32f); });
    add(
        "vormAffineTransform_m4v3a", 1.3, [] { return affine<3, 3, 4>(vormAffineTransform_m4v3a_32f); },
        [] { return affine<3, 8, 8>(vormAffineTransform_m4v3a_32f); });
    add(
        "vormAffineTransform_m4v4a", 1.3, [] { return affine<4, 4, 4>(vormAffineTransform_m4v4a_32f); },
        [] { return affine<4, 8, 8>(vormAffineTransform_m4v4a_32f); });
    add(
        "vormAffineTransformCoord_m4v2a", 1.2, [] { return coord<2, 2, 2>(vormAffineTransformCoord_m4v2a_32f); },
        [] { return coord<2, 8, 8>(vormAffineTransformCoord_m4v2a_32f); });
    add(
        "vormAffineTransformCoord_m4v3a", 1.2, [] { return coord<3, 3, 3>(vormAffineTransformCoord_m4v3a_32f); },
        [] { return coord<3, 8, 8>(vormAffineTransformCoord_m4v3a_32f); });
    add(
        "vormAffineTransformNormal_m4v2a", 1, [] { return normal<2, 2, 2>(vormAffineTransformNormal_m4v2a_32f); },
        [] { return normal<2, 8, 8>(vormAffineTransformNormal_m4v2a_32f); });
    add(
        "vormAffineTransformNormal_m4v3a", 2, [] { return normal<3, 3, 3>(vormAffineTransformNormal_m4v3a_32f); },
        [] { return normal<3, 8, 8>(vormAffineTransformNormal_m4v3a_32f); });
    add("vormProject_m4v3a", 1.2, project<3>, project<8>);
    add("vormUnproject_m4v3a", 1, unproject<3>, unproject<8>);
    add("vormAffineTransform3DH_mva", 1, columnVectors<3>, columnVectors<8>);
    addSingle(s);
}

}  // namespace bench
