// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/image.h"
#include "../frame/pointwise.h"
#include "models/super.h"
#include "yardsticks.h"

namespace bench {
namespace {

constexpr std::pair<TpxiSize, TpxiSize> kReductions[] = {
    {{192, 192}, {64, 64}},      {{1920, 1080}, {640, 360}}, {{1920, 1080}, {1280, 720}},
    {{1920, 1080}, {1440, 810}}, {{4000, 3000}, {160, 120}}, {{4096, 3072}, {2048, 1536}}};

template <typename T>
using Super = TpxStatus (*)(const T*, int, T*, int, TpxiPoint, TpxiSize, const TpxiResizeSpec*, Tpx8u*);

template <typename T>
void addSuper(const char* name, Super<T> function, TpxDataType type, int channels) {
    for (const auto& [from, to] : kReductions) {
        const Scaling s{Kind::area, type, channels, from, to};
        const double srcSamples = static_cast<double>(from.width) * from.height * channels;
        const double dstSamples = static_cast<double>(to.width) * to.height * channels;
        const Job job{"Resize", name, text(from) + " to " + text(to), dstSamples,
                      (srcSamples + dstSamples) * sizeof(T)};
        addJob(job, [=] {
            const auto src =
                std::make_shared<Image<T>>(s.from, channels, 0, std::is_integral_v<T> ? T(-1) : T(1));
            const auto dst = std::make_shared<Image<T>>(s.to, channels);
            const auto other = std::make_shared<Image<T>>(s.to, channels);
            int bytes = 0;
            int initBytes = 0;
            check(tpxiResizeGetSize_8u(s.from, s.to, tpxInterpolationSuper, 0, &bytes, &initBytes));
            const auto spec = std::make_shared<std::vector<Tpx8u>>(bytes);
            const auto plan = reinterpret_cast<TpxiResizeSpec*>(spec->data());
            check(tpxiResizeSuperInit_8u(s.from, s.to, plan));
            check(tpxiResizeGetBufferSize_8u(plan, s.to, channels, &bytes));
            const auto buffer = std::make_shared<std::vector<Tpx8u>>(bytes);
            const auto run = [=] {
                static_cast<void>(spec); // the plan lies there
                return function(src->data(), src->step(), dst->data(), dst->step(), {0, 0}, s.to, plan,
                                buffer->data());
            };
            const auto scalar =
                [=, x = tpx::model::overlapsOfAll(s.from.width, s.to.width),
                 y = tpx::model::overlapsOfAll(s.from.height, s.to.height)](const Image<T>& to) {
                    constexpr ptrdiff_t kSize = sizeof(T);
                    tpx::model::resizeSuper(src->data(), src->step() / kSize, s.from, to.data(),
                                            to.step() / kSize, s.to, channels, x, y);
                };
            const Image<T> expected(s.to, channels);
            check(run());
            scalar(expected);
            checkSame(*dst, expected, std::is_integral_v<T> ? 0 : 1e-5);
            std::vector<Contender> list = {{kOurs, [=] { run(); }},
                                           {kCopy, [=] { copyImage(*other, *dst); }},
                                           {kScalar, [=] { scalar(*dst); }}};
            for (Contender& yardstick : yardsticks(s)) list.push_back(std::move(yardstick));
            joinOpencv(list, name, {*src}, {*dst});
            return list;
        });
    }
}

} // namespace

void addSuperResizes() {
    addSuper<Tpx8u>("tpxiResizeSuper_8u_C1R", tpxiResizeSuper_8u_C1R, tpxDataType8u, 1);
    addSuper<Tpx8u>("tpxiResizeSuper_8u_C3R", tpxiResizeSuper_8u_C3R, tpxDataType8u, 3);
    addSuper<Tpx8u>("tpxiResizeSuper_8u_C4R", tpxiResizeSuper_8u_C4R, tpxDataType8u, 4);
    addSuper<Tpx16u>("tpxiResizeSuper_16u_C1R", tpxiResizeSuper_16u_C1R, tpxDataType16u, 1);
    addSuper<Tpx32f>("tpxiResizeSuper_32f_C1R", tpxiResizeSuper_32f_C1R, tpxDataType32f, 1);
}

} // namespace bench
