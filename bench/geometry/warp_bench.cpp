// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/image.h"
#include "../frame/pointwise.h"
#include "models/remap.h"
#include "models/warp.h"

#include <cmath>
#include <numbers>

namespace bench {
namespace {

template <typename T>
using Warp = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiWarpSpec*, Tpx8u*);

// A picture turned about its middle, from the destination to the source. Quarter turns are exact: positions on
// the image's edge would else be inside or outside by their rounding.
tpx::model::AffineWarp rotation(TpxiSize size, double degrees, TpxInterpolationType interpolation) {
    const double a = degrees * std::numbers::pi / 180;
    const double c = degrees == 90 ? 0 : std::cos(a);
    const double s = degrees == 90 ? 1 : std::sin(a);
    const double x = (size.width - 1) / 2.0;
    const double y = (size.height - 1) / 2.0;
    return {{{c, -s, x - c * x + s * y}, {s, c, y - s * x - c * y}},
            size,
            interpolation,
            0,
            0.5,
            tpxBorderTransparent,
            {}};
}

std::vector<Tpx8u> planOf(const tpx::model::AffineWarp& warp, TpxDataType type, int channels) {
    int bytes = 0;
    int initBytes = 0;
    check(tpxiWarpAffineGetSize(warp.src, warp.src, type, warp.toSource, warp.interpolation, 1, warp.border,
                                &bytes, &initBytes));
    std::vector<Tpx8u> plan(bytes);
    std::vector<Tpx8u> init(initBytes);
    auto* spec = reinterpret_cast<TpxiWarpSpec*>(plan.data());
    if (warp.interpolation == tpxInterpolationCubic)
        check(tpxiWarpAffineCubicInit(warp.src, warp.src, type, warp.toSource, 1, channels, warp.B, warp.C,
                                      warp.border, nullptr, 0, spec, init.data()));
    else
        check((warp.interpolation == tpxInterpolationLinear ? tpxiWarpAffineLinearInit
                                                            : tpxiWarpAffineNearestInit)(
            warp.src, warp.src, type, warp.toSource, 1, channels, warp.border, nullptr, 0, spec));
    return plan;
}

// The same picture, seen at an angle: at the right and at the lower edge it is further away.
tpx::model::PerspectiveWarp rectification(TpxiSize size, double degrees, TpxInterpolationType interpolation) {
    tpx::model::PerspectiveWarp warp{rotation(size, degrees, interpolation),
                                     {0.2 / size.width, 0.1 / size.height, 1}};
    for (int k = 0; k < 2; k++) warp.toSource[0][k] += warp.divisor[k] * size.width / 10;
    return warp;
}

std::vector<Tpx8u> planOf(const tpx::model::PerspectiveWarp& warp, TpxDataType type, int channels) {
    const TpxiRect all = tpxiWarpGetRectInfinite();
    Tpx64f coeffs[3][3];
    for (int k = 0; k < 3; k++)
        for (int i = 0; i < 3; i++) coeffs[i][k] = i < 2 ? warp.toSource[i][k] : warp.divisor[k];
    int bytes = 0;
    int initBytes = 0;
    check(tpxiWarpPerspectiveGetSize(warp.src, all, warp.src, type, coeffs, warp.interpolation, 1, warp.border,
                                     &bytes, &initBytes));
    std::vector<Tpx8u> plan(bytes);
    std::vector<Tpx8u> init(initBytes);
    auto* spec = reinterpret_cast<TpxiWarpSpec*>(plan.data());
    if (warp.interpolation == tpxInterpolationCubic)
        check(tpxiWarpPerspectiveCubicInit(warp.src, all, warp.src, type, coeffs, 1, channels, warp.B, warp.C,
                                           warp.border, nullptr, 0, spec, init.data()));
    else
        check((warp.interpolation == tpxInterpolationLinear ? tpxiWarpPerspectiveLinearInit
                                                            : tpxiWarpPerspectiveNearestInit)(
            warp.src, all, warp.src, type, coeffs, 1, channels, warp.border, nullptr, 0, spec, init.data()));
    return plan;
}

// By rows, as OpenCV has it.
std::vector<double> matrixOf(const tpx::model::AffineWarp& warp) {
    std::vector<double> matrix;
    for (const auto& row : warp.toSource) matrix.insert(matrix.end(), std::begin(row), std::end(row));
    return matrix;
}
std::vector<double> matrixOf(const tpx::model::PerspectiveWarp& warp) {
    std::vector<double> matrix = matrixOf(static_cast<const tpx::model::AffineWarp&>(warp));
    matrix.insert(matrix.end(), std::begin(warp.divisor), std::end(warp.divisor));
    return matrix;
}

template <typename T, typename MakeWarp>
void addWarp(const char* name, Warp<T> function, TpxInterpolationType interpolation, int channels,
             double degrees, MakeWarp makeWarp) {
    for (const TpxiSize size : {TpxiSize{640, 480}, TpxiSize{1920, 1080}}) {
        const double samples = static_cast<double>(size.width) * size.height * channels;
        const std::string angle = std::to_string(static_cast<int>(degrees)) + " degrees";
        const std::string whole = std::string(name) + ", " + angle;
        addJob({"Warp", whole, text(size), samples, samples * sizeof(T) * 2}, [=] {
            const auto warp = makeWarp(size, degrees, interpolation);
            const auto plan = std::make_shared<std::vector<Tpx8u>>(planOf(warp, kTypeOf<T>, channels));
            int bytes = 0;
            check(tpxiWarpGetBufferSize(reinterpret_cast<const TpxiWarpSpec*>(plan->data()), size, &bytes));
            const auto buffer = std::make_shared<std::vector<Tpx8u>>(bytes);
            const auto src =
                std::make_shared<Image<T>>(size, channels, 0, std::is_integral_v<T> ? T(-1) : T(1));
            const auto dst = std::make_shared<Image<T>>(size, channels);
            const auto ours = [=] {
                return function(src->data(), src->step(), dst->data(), dst->step(), {0, 0}, size,
                                reinterpret_cast<const TpxiWarpSpec*>(plan->data()), buffer->data());
            };
            const auto scalar = [=](const Image<T>& to) {
                constexpr ptrdiff_t kSize = sizeof(T);
                tpx::model::warpImage(warp, src->data(), src->step() / kSize, to.data(), to.step() / kSize,
                                      channels, size);
            };
            const Image<T> expected(size, channels);
            check(ours());
            scalar(expected);
            checkSame(*dst, expected,
                      interpolation == tpxInterpolationNearest ? 0
                      : std::is_integral_v<T>                  ? 1
                                                               : 1e-5);
            std::vector<Contender> list = {{kOurs, [=] { ours(); }},
                                           {kCopy, [=] { copyImage(*src, *dst); }},
                                           {kScalar, [=] { scalar(*dst); }}};
            joinOpencv(list, whole, {*src, Operand(matrixOf(warp), 3)}, {*dst});
            return list;
        });
    }
}

#define WARP(T, map, make, kind, types, channels, degrees)                                              \
    addWarp<T>("tpxiWarp" #map #kind "_" #types, tpxiWarp##map##kind##_##types, tpxInterpolation##kind, \
               channels, degrees, make)
#define AFFINE(T, kind, types, channels, degrees) WARP(T, Affine, rotation, kind, types, channels, degrees)
#define PERSPECTIVE(T, kind, types, channels, degrees) \
    WARP(T, Perspective, rectification, kind, types, channels, degrees)

template <typename T>
using MapOf = std::conditional_t<sizeof(T) == 8, Tpx64f, Tpx32f>;
template <typename T>
using Remap = TpxStatus (*)(const T*, TpxiSize, int, TpxiRect, const MapOf<T>*, int, const MapOf<T>*, int, T*,
                            int, TpxiSize, int);

// The same rotation by maps.
template <typename T>
void addRemap(const std::string& name, Remap<T> function, int interpolation, int channels) {
    using Map = MapOf<T>;
    for (const TpxiSize size : {TpxiSize{640, 480}, TpxiSize{1920, 1080}}) {
        const double samples = static_cast<double>(size.width) * size.height * channels;
        addJob({"Warp", name, text(size), samples, samples * sizeof(T) * 2}, [=] {
            const auto src =
                std::make_shared<Image<T>>(size, channels, 0, std::is_integral_v<T> ? T(-1) : T(1));
            const auto dst = std::make_shared<Image<T>>(size, channels);
            const auto xMap = std::make_shared<Image<Map>>(size, 1);
            const auto yMap = std::make_shared<Image<Map>>(size, 1);
            constexpr ptrdiff_t kMapSize = sizeof(Map);
            const ptrdiff_t mapStep = xMap->step() / kMapSize;
            const auto warp = rotation(size, 15, tpxInterpolationLinear);
            for (int y = 0; y < size.height; ++y)
                for (int x = 0; x < size.width; ++x) {
                    const auto at = warp.place(x, y);
                    xMap->data()[y * mapStep + x] = static_cast<Map>(at.x);
                    yMap->data()[y * mapStep + x] = static_cast<Map>(at.y);
                }
            const TpxiRect roi = {0, 0, size.width, size.height};
            const auto ours = [=] {
                return function(src->data(), size, src->step(), roi, xMap->data(), xMap->step(), yMap->data(),
                                yMap->step(), dst->data(), dst->step(), size, interpolation);
            };
            const auto scalar = [=](const Image<T>& to) {
                constexpr ptrdiff_t kSize = sizeof(T);
                tpx::model::remap(tpx::model::Remap{size, roi, interpolation}, src->data(), src->step() / kSize,
                                  xMap->data(), yMap->data(), mapStep, to.data(), to.step() / kSize, channels,
                                  size);
            };
            const Image<T> expected(size, channels);
            check(ours());
            scalar(expected);
            checkSame(*dst, expected, std::is_integral_v<T> ? 1 : 1e-5);
            std::vector<Contender> list = {{kOurs, [=] { ours(); }},
                                           {kCopy, [=] { copyImage(*src, *dst); }},
                                           {kScalar, [=] { scalar(*dst); }}};
            joinOpencv(list, name, {*src, *xMap, *yMap}, {*dst});
            return list;
        });
    }
}

#define REMAP(T, types, channels, kind, interpolation) \
    addRemap<T>("tpxiRemap_" #types ", " kind, tpxiRemap_##types, interpolation, channels)

} // namespace

void addWarps() {
    AFFINE(Tpx8u, Nearest, 8u_C1R, 1, 15);
    AFFINE(Tpx8u, Nearest, 8u_C3R, 3, 15);
    AFFINE(Tpx8u, Linear, 8u_C1R, 1, 15);
    AFFINE(Tpx8u, Linear, 8u_C3R, 3, 15);
    AFFINE(Tpx8u, Linear, 8u_C4R, 4, 15);
    AFFINE(Tpx16u, Linear, 16u_C1R, 1, 15);
    AFFINE(Tpx32f, Linear, 32f_C1R, 1, 15);
    AFFINE(Tpx64f, Linear, 64f_C1R, 1, 15);
    AFFINE(Tpx8u, Cubic, 8u_C1R, 1, 15);
    AFFINE(Tpx8u, Cubic, 8u_C3R, 3, 15);
    AFFINE(Tpx32f, Cubic, 32f_C1R, 1, 15);
    AFFINE(Tpx8u, Nearest, 8u_C1R, 1, 90);
    AFFINE(Tpx8u, Linear, 8u_C3R, 3, 90);
    PERSPECTIVE(Tpx8u, Nearest, 8u_C1R, 1, 15);
    PERSPECTIVE(Tpx8u, Linear, 8u_C1R, 1, 15);
    PERSPECTIVE(Tpx8u, Linear, 8u_C3R, 3, 15);
    PERSPECTIVE(Tpx32f, Linear, 32f_C1R, 1, 15);
    PERSPECTIVE(Tpx8u, Cubic, 8u_C1R, 1, 15);
    REMAP(Tpx8u, 8u_C1R, 1, "nearest", 1);
    REMAP(Tpx8u, 8u_C1R, 1, "linear", 2);
    REMAP(Tpx8u, 8u_C3R, 3, "linear", 2);
    REMAP(Tpx16u, 16u_C1R, 1, "linear", 2);
    REMAP(Tpx32f, 32f_C1R, 1, "linear", 2);
    REMAP(Tpx64f, 64f_C1R, 1, "linear", 2);
    REMAP(Tpx8u, 8u_C1R, 1, "cubic", 4);
    REMAP(Tpx8u, 8u_C3R, 3, "cubic", 4);
    REMAP(Tpx8u, 8u_C1R, 1, "Catmull-Rom", 6);
    REMAP(Tpx8u, 8u_C1R, 1, "Lanczos", 16);
    REMAP(Tpx8u, 8u_C3R, 3, "Lanczos", 16);
    REMAP(Tpx32f, 32f_C1R, 1, "Lanczos", 16);
}

} // namespace bench
