// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

#include <array>

namespace bench {
namespace {

constexpr int kMargin = 8; // on every side

// Where the pixels along an axis of `length` and its two margins come from.
std::vector<int> axis(int length, int (*from)(int, int)) {
    std::vector<int> source;
    for (int c = -kMargin; c < length + kMargin; ++c) source.push_back(from(c, length));
    return source;
}
int replicated(int c, int length) { return std::clamp(c, 0, length - 1); }
int mirrored(int c, int length) { return c < 0 ? -c : c < length ? c : 2 * length - 2 - c; }
int wrapped(int c, int length) { return (c + length) % length; }

// `ours` takes the arguments of a border copy up to the margins, `scalar` the source and the destination. The
// copy beside it moves an image of the destination's size.
template <typename T, typename F, typename Scalar>
void addBorder(const char* name, int channels, F ours, Scalar scalar) {
    for (const TpxiSize size :
         sizes(channels == 1 ? Sizes::withinCache : Sizes::middle, channels * sizeof(T))) {
        const TpxiSize whole = {size.width + 2 * kMargin, size.height + 2 * kMargin};
        const double samples = static_cast<double>(whole.width) * whole.height * channels;
        addJob({"Borders", name, text(size), samples, 2 * samples * sizeof(T)}, [=] {
            const auto src = std::make_shared<Image<T>>(size, channels, 0, 100);
            const auto dst = std::make_shared<Image<T>>(whole, channels);
            const auto other = std::make_shared<Image<T>>(whole, channels, 0, 100);
            const auto runOurs = [=](const Image<T>& to) {
                return ours(src->data(), src->step(), size, to.data(), to.step(), whole, kMargin, kMargin);
            };
            const Image<T> got(whole, channels);
            check(runOurs(got));
            scalar(*src, *dst);
            checkSame(got, *dst, 0);
            std::vector<Contender> list = {{kOurs, [=] { runOurs(*dst); }},
                                           {kCopy, [=] { copyImage(*other, *dst); }},
                                           {kScalar, [=] { scalar(*src, *dst); }}};
            joinOpencv(list, name, {*src}, {*dst});
            return list;
        });
    }
}

template <typename T, typename F>
void addByRule(const char* name, int channels, F ours, int (*from)(int, int)) {
    addBorder<T>(name, channels, ours, [=](const Image<T>& src, const Image<T>& dst) {
        tpx::model::resizeNearest(src.data(), src.step() / ptrdiff_t(sizeof(T)), dst.data(),
                                  dst.step() / ptrdiff_t(sizeof(T)), channels, axis(src.size().width, from),
                                  axis(src.size().height, from));
    });
}

template <typename T, typename F, typename Value>
void addConst(const char* name, int channels, F function, const Value& value) {
    addBorder<T>(
        name, channels,
        [=](auto... arguments) {
            if constexpr (std::is_arithmetic_v<Value>)
                return function(arguments..., value);
            else
                return function(arguments..., value.data());
        },
        [=](const Image<T>& src, const Image<T>& dst) {
            const T* pixel;
            if constexpr (std::is_arithmetic_v<Value>)
                pixel = &value;
            else
                pixel = value.data();
            for (int y = 0; y < dst.size().height; ++y)
                tpx::model::set(pixel, static_cast<size_t>(channels), dst.row(y), dst.rowSamples());
            for (int y = 0; y < src.size().height; ++y)
                tpx::model::copy(src.row(y), dst.row(y + kMargin) + kMargin * channels, src.rowSamples());
        });
}

} // namespace

void addBorders() {
    addConst<Tpx8u>("tpxiCopyConstBorder_8u_C1R", 1, tpxiCopyConstBorder_8u_C1R, Tpx8u{7});
    addConst<Tpx8u>("tpxiCopyConstBorder_8u_C3R", 3, tpxiCopyConstBorder_8u_C3R, std::array<Tpx8u, 3>{7, 8, 9});
    addConst<Tpx16u>("tpxiCopyConstBorder_16u_C1R", 1, tpxiCopyConstBorder_16u_C1R, Tpx16u{7});
    addByRule<Tpx8u>("tpxiCopyReplicateBorder_8u_C1R", 1, tpxiCopyReplicateBorder_8u_C1R, replicated);
    addByRule<Tpx8u>("tpxiCopyReplicateBorder_8u_C3R", 3, tpxiCopyReplicateBorder_8u_C3R, replicated);
    addByRule<Tpx16u>("tpxiCopyReplicateBorder_16u_C1R", 1, tpxiCopyReplicateBorder_16u_C1R, replicated);
    addByRule<Tpx32f>("tpxiCopyReplicateBorder_32f_C1R", 1, tpxiCopyReplicateBorder_32f_C1R, replicated);
    addByRule<Tpx8u>("tpxiCopyMirrorBorder_8u_C1R", 1, tpxiCopyMirrorBorder_8u_C1R, mirrored);
    addByRule<Tpx8u>("tpxiCopyMirrorBorder_8u_C3R", 3, tpxiCopyMirrorBorder_8u_C3R, mirrored);
    addByRule<Tpx16u>("tpxiCopyMirrorBorder_16u_C1R", 1, tpxiCopyMirrorBorder_16u_C1R, mirrored);
    addByRule<Tpx32f>("tpxiCopyMirrorBorder_32f_C1R", 1, tpxiCopyMirrorBorder_32f_C1R, mirrored);
    addByRule<Tpx32f>("tpxiCopyWrapBorder_32f_C1R", 1, tpxiCopyWrapBorder_32f_C1R, wrapped);
}

} // namespace bench
