// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/image.h"
#include "../frame/pointwise.h"
#include "models/models.h"
#include "yardsticks.h"

namespace bench {
namespace {

constexpr std::pair<TpxiSize, TpxiSize> kScalings[] = {
    {{64, 64}, {96, 96}},       {{1920, 1080}, {1280, 720}}, {{1920, 1080}, {640, 360}},
    {{640, 480}, {1600, 1200}}, {{640, 480}, {317, 239}},    {{4096, 3072}, {2560, 1920}}};

// What the families need from the typed calls around a resize.
template <typename T>
struct Plan;
#define PLAN(T, type)                                                         \
    template <>                                                               \
    struct Plan<T> {                                                          \
        static constexpr TpxDataType kType = tpxDataType##type;               \
        static constexpr auto getSize = tpxiResizeGetSize_##type;             \
        static constexpr auto getBufferSize = tpxiResizeGetBufferSize_##type; \
        static constexpr auto linearInit = tpxiResizeLinearInit_##type;       \
        static constexpr auto nearestInit = tpxiResizeNearestInit_##type;     \
        static constexpr auto cubicInit = tpxiResizeCubicInit_##type;         \
        static constexpr auto lanczosInit = tpxiResizeLanczosInit_##type;     \
    };
PLAN(Tpx8u, 8u)
PLAN(Tpx16u, 16u)
PLAN(Tpx32f, 32f)

template <typename T>
using Linear = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, TpxBorderType, const T*,
                             const TpxiResizeSpec*, Tpx8u*);
template <typename T>
using Nearest = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiResizeSpec*, Tpx8u*);

TpxInterpolationType interpolationOf(Kind kind) {
    return kind == Kind::nearest  ? tpxInterpolationNearest
           : kind == Kind::linear ? tpxInterpolationLinear
           : kind == Kind::cubic  ? tpxInterpolationCubic
                                  : tpxInterpolationLanczos;
}

// The images, plans and buffers of one race.
template <typename T>
struct Resize {
    Image<T> src;
    Image<T> dst;
    Image<T> other; // as large as the destination: the source of the copy
    std::vector<Tpx8u> spec;
    std::vector<Tpx8u> buffer;

    Resize(const Scaling& s, bool antialiasing)
        : src(s.from, s.channels, 0, std::is_integral_v<T> ? T(-1) : T(1)),
          dst(s.to, s.channels),
          other(s.to, s.channels) {
        int specBytes = 0;
        int bytes = 0;
        check(Plan<T>::getSize(s.from, s.to, interpolationOf(s.kind), antialiasing, &specBytes, &bytes));
        spec.resize(specBytes);
        buffer.resize(bytes);
        check(init(s, antialiasing));
        check(Plan<T>::getBufferSize(plan(), s.to, s.channels, &bytes));
        buffer.resize(bytes);
    }
    TpxStatus init(const Scaling& s, bool antialiasing) {
        switch (s.kind) {
            case Kind::nearest:
                return Plan<T>::nearestInit(s.from, s.to, plan());
            case Kind::linear:
                return Plan<T>::linearInit(s.from, s.to, plan());
            case Kind::cubic:
                return antialiasing ? tpxiResizeAntialiasingCubicInit(s.from, s.to, kCubicB, kCubicC, plan(),
                                                                      buffer.data())
                                    : Plan<T>::cubicInit(s.from, s.to, kCubicB, kCubicC, plan(), buffer.data());
            default:
                return antialiasing ? tpxiResizeAntialiasingLanczosInit(s.from, s.to, 3, plan(), buffer.data())
                                    : Plan<T>::lanczosInit(s.from, s.to, 3, plan(), buffer.data());
        }
    }
    TpxiResizeSpec* plan() { return reinterpret_cast<TpxiResizeSpec*>(spec.data()); }

    TpxStatus run(Linear<T> function, const Image<T>& to) {
        return function(src.data(), src.step(), to.data(), to.step(), {0, 0}, to.size(), tpxBorderReplicate,
                        nullptr, plan(), buffer.data());
    }
    TpxStatus run(Nearest<T> function, const Image<T>& to) {
        return function(src.data(), src.step(), to.data(), to.step(), {0, 0}, to.size(), plan(), buffer.data());
    }
};

template <typename T>
std::function<void(const Image<T>&, const Image<T>&)> scalarResize(const Scaling& s, bool antialiasing) {
    constexpr ptrdiff_t kSize = sizeof(T);
    if (s.kind == Kind::linear)
        return [s, x = tpx::model::Axis(s.from.width, s.to.width),
                y = tpx::model::Axis(s.from.height, s.to.height)](const Image<T>& src, const Image<T>& dst) {
            tpx::model::resizeLinear(src.data(), src.step() / kSize, dst.data(), dst.step() / kSize, s.channels,
                                     x, y);
        };
    if (s.kind != Kind::nearest) {
        const auto kernel = s.kind == Kind::cubic ? tpx::model::cubicKernel(kCubicB, kCubicC)
                            : antialiasing        ? tpx::model::directLanczosKernel(3)
                                                  : tpx::model::lanczosKernel(3);
        return [s, x = tpx::model::TapAxis(s.from.width, s.to.width, kernel, antialiasing),
                y = tpx::model::TapAxis(s.from.height, s.to.height, kernel, antialiasing)](
                   const Image<T>& src, const Image<T>& dst) {
            tpx::model::resizeTaps(src.data(), src.step() / kSize, dst.data(), dst.step() / kSize, s.channels,
                                   s.from, x, y);
        };
    }
    return [s, x = tpx::model::nearestAxis(s.from.width, s.to.width),
            y = tpx::model::nearestAxis(s.from.height, s.to.height)](const Image<T>& src, const Image<T>& dst) {
        tpx::model::resizeNearest(src.data(), src.step() / kSize, dst.data(), dst.step() / kSize, s.channels, x,
                                  y);
    };
}

// `F` is Linear<T>, which all but nearest have, or Nearest<T>.
template <typename T, typename F>
void addResize(Kind kind, const char* name, F function, int channels, bool antialiasing = false) {
    for (const auto& [from, to] : kScalings) {
        if (antialiasing && from.width < to.width) continue; // the plain kernel
        const Scaling s{kind, Plan<T>::kType, channels, from, to};
        const double srcSamples = static_cast<double>(from.width) * from.height * channels;
        const double dstSamples = static_cast<double>(to.width) * to.height * channels;
        const Job job{"Resize", name, text(from) + " to " + text(to), dstSamples,
                      (srcSamples + dstSamples) * sizeof(T)};
        addJob(job, [=] {
            const auto resize = std::make_shared<Resize<T>>(s, antialiasing);
            const auto scalar = scalarResize<T>(s, antialiasing);
            const Image<T> expected(s.to, channels);
            check(resize->run(function, resize->dst));
            scalar(resize->src, expected);
            // Linear: a plan may round its weights, or a border, in another place.
            checkSame(resize->dst, expected, kind == Kind::nearest ? 0 : std::is_integral_v<T> ? 1 : 1e-5);
            std::vector<Contender> list = {{kOurs, [=] { resize->run(function, resize->dst); }},
                                           {kCopy, [=] { copyImage(resize->other, resize->dst); }},
                                           {kScalar, [=] { scalar(resize->src, resize->dst); }}};
            for (Contender& other : yardsticks(s)) list.push_back(std::move(other));
            joinOpencv(list, name, {resize->src}, {resize->dst});
            return list;
        });
    }
}

#define LINEAR(T, types, channels) \
    addResize<T, Linear<T>>(Kind::linear, "tpxiResizeLinear_" #types, tpxiResizeLinear_##types, channels)
#define NEAREST(T, types, channels) \
    addResize<T, Nearest<T>>(Kind::nearest, "tpxiResizeNearest_" #types, tpxiResizeNearest_##types, channels)
#define CUBIC(T, types, channels) \
    addResize<T, Linear<T>>(Kind::cubic, "tpxiResizeCubic_" #types, tpxiResizeCubic_##types, channels)
#define LANCZOS3(T, types, channels)                                                 \
    addResize<T, Linear<T>>(Kind::lanczos3, "tpxiResizeLanczos_" #types ", 3 lobes", \
                            tpxiResizeLanczos_##types, channels)
#define ANTIALIASING(T, types, channels)                                                       \
    addResize<T, Linear<T>>(Kind::cubic, "tpxiResizeAntialiasing_" #types ", cubic",           \
                            tpxiResizeAntialiasing_##types, channels, true);                   \
    addResize<T, Linear<T>>(Kind::lanczos3, "tpxiResizeAntialiasing_" #types ", Lanczos of 3", \
                            tpxiResizeAntialiasing_##types, channels, true)

} // namespace

void addResizes() {
    LINEAR(Tpx8u, 8u_C1R, 1);
    LINEAR(Tpx8u, 8u_C3R, 3);
    LINEAR(Tpx8u, 8u_C4R, 4);
    LINEAR(Tpx16u, 16u_C1R, 1);
    LINEAR(Tpx32f, 32f_C1R, 1);
    LINEAR(Tpx32f, 32f_C3R, 3);
    NEAREST(Tpx8u, 8u_C1R, 1);
    NEAREST(Tpx8u, 8u_C3R, 3);
    NEAREST(Tpx8u, 8u_C4R, 4);
    NEAREST(Tpx16u, 16u_C1R, 1);
    NEAREST(Tpx32f, 32f_C1R, 1);
    CUBIC(Tpx8u, 8u_C1R, 1);
    CUBIC(Tpx8u, 8u_C3R, 3);
    CUBIC(Tpx16u, 16u_C1R, 1);
    CUBIC(Tpx32f, 32f_C1R, 1);
    LANCZOS3(Tpx8u, 8u_C1R, 1);
    LANCZOS3(Tpx8u, 8u_C3R, 3);
    ANTIALIASING(Tpx8u, 8u_C1R, 1);
    ANTIALIASING(Tpx16u, 16u_C1R, 1);
    ANTIALIASING(Tpx32f, 32f_C1R, 1);
}

} // namespace bench
