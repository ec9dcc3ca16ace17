// SPDX-License-Identifier: Apache-2.0
#include "../families.h"
#include "../frame/pointwise.h"
#include "models/models.h"

#include <cmath>

namespace bench {
namespace {

constexpr const char* kGroup = "Conversion";

// What a race moves: samples of the source range, channels, and how many pixels share a sample of either image
// (8 in images of bits).
struct Pixels {
    double low, high;
    int channels = 1, perSource = 1, perDestination = 1;
    Sizes sizes = Sizes::middle;
};

// `ours` is called with (source, its step, destination, its step, size), `scalar` with (source, destination,
// number of samples) for each row. The copy beside them reads half of the bytes that both images have and
// writes the other half.
template <typename S, typename D, typename Ours, typename Scalar>
void addConversion(const char* name, Pixels pixels, Ours ours, Scalar scalar) {
    const int channels = pixels.channels;
    const double pixelBytes =
        channels * (double{sizeof(S)} / pixels.perSource + double{sizeof(D)} / pixels.perDestination);
    for (const TpxiSize size : sizes(pixels.sizes, static_cast<size_t>(std::ceil(pixelBytes / 2)))) {
        const double count = static_cast<double>(size.width) * size.height;
        addJob({kGroup, name, text(size), count * channels, count * pixelBytes}, [=] {
            const TpxiSize srcSize = {size.width / pixels.perSource, size.height};
            const TpxiSize dstSize = {size.width / pixels.perDestination, size.height};
            const TpxiSize half = {static_cast<int>(size.width * pixelBytes / 2), size.height};
            const auto src = std::make_shared<Image<S>>(srcSize, channels, pixels.low, pixels.high);
            const auto dst = std::make_shared<Image<D>>(dstSize, channels);
            const auto from = std::make_shared<Image<Tpx8u>>(half, 1),
                       to = std::make_shared<Image<Tpx8u>>(half, 1);
            const auto runOurs = [=] { return ours(src->data(), src->step(), dst->data(), dst->step(), size); };
            const auto runScalar = [=] {
                const size_t length = static_cast<size_t>(size.width) * channels;
                for (int y = 0; y < size.height; ++y) scalar(src->row(y), dst->row(y), length);
            };
            if (src->bytes() < beyondCacheBytes() / 4) {
                runScalar();
                const Image<D> expected(dstSize, channels);
                for (int y = 0; y < size.height; ++y)
                    std::memcpy(expected.row(y), dst->row(y), dst->rowBytes());
                check(runOurs());
                checkSame(*dst, expected, 0);
            }
            std::vector<Contender> list = {
                {kOurs, [=] { runOurs(); }}, {kCopy, [=] { copyImage(*from, *to); }}, {kScalar, runScalar}};
            joinOpencv(list, name, {*src}, {*dst});
            return list;
        });
    }
}

template <typename S, typename D, typename F>
void addCast(const char* name, F function, int channels = 1, Sizes sizes = Sizes::middle) {
    addConversion<S, D>(
        name, {std::is_signed_v<S> ? -300.0 : 0.0, sizeof(S) == 1 ? 255.0 : 300.0, channels, 1, 1, sizes},
        function, tpx::model::convertInteger<S, D>);
}

// Extra arguments are the rounding mode, or it and the scale factor.
template <typename S, typename D, typename F, typename... Factor>
void addRounded(const char* name, F function, Sizes sizes, int mode, Factor... n) {
    const auto ours = [=](const S* src, int srcStep, D* dst, int dstStep, TpxiSize size) {
        return function(src, srcStep, dst, dstStep, size, mode, n...);
    };
    addConversion<S, D>(
        name, {std::is_signed_v<S> ? -300.0 : 0.0, sizeof(S) == 2 ? 65535.0 : 70000.0, 1, 1, 1, sizes}, ours,
        [=](const S* src, D* dst, size_t length) {
            tpx::model::convertRounded<S, D>(src, dst, length, mode, (0 + ... + n));
        });
}

template <typename T, typename F>
void addUnpack(const char* name, F function) {
    const auto ours = [=](const Tpx8u* src, int srcStep, T* dst, int dstStep, TpxiSize size) {
        return function(src, srcStep, 0, dst, dstStep, size, T{3}, T{9});
    };
    addConversion<Tpx8u, T>(name, {.low = 0, .high = 255, .perSource = 8}, ours,
                            [](const Tpx8u* src, T* dst, size_t length) {
                                tpx::model::unpackBits<T>(src, dst, length, T{3}, T{9});
                            });
}

template <typename T, typename F>
void addPack(const char* name, F function) {
    const auto ours = [=](const T* src, int srcStep, Tpx8u* dst, int dstStep, TpxiSize size) {
        return function(src, srcStep, dst, dstStep, 0, size, T{100});
    };
    addConversion<T, Tpx8u>(
        name, {.low = 0, .high = 255, .perDestination = 8}, ours,
        [](const T* src, Tpx8u* dst, size_t length) { tpx::model::packBits<T>(src, dst, length, T{100}); });
}

} // namespace

void addConversions() {
    addCast<Tpx8u, Tpx16s>("tpxiConvert_8u16s_C1R", tpxiConvert_8u16s_C1R, 1, Sizes::all);
    addCast<Tpx8u, Tpx16u>("tpxiConvert_8u16u_C1R", tpxiConvert_8u16u_C1R);
    addCast<Tpx8u, Tpx32s>("tpxiConvert_8u32s_C1R", tpxiConvert_8u32s_C1R);
    addCast<Tpx8u, Tpx32f>("tpxiConvert_8u32f_C1R", tpxiConvert_8u32f_C1R);
    addCast<Tpx16u, Tpx32f>("tpxiConvert_16u32f_C1R", tpxiConvert_16u32f_C1R);
    addCast<Tpx8u, Tpx32f>("tpxiConvert_8u32f_C3R", tpxiConvert_8u32f_C3R, 3);
    addCast<Tpx16s, Tpx32f>("tpxiConvert_16s32f_C3R", tpxiConvert_16s32f_C3R, 3);
    addCast<Tpx32u, Tpx32f>("tpxiConvert_32u32f_C1R", tpxiConvert_32u32f_C1R);
    addCast<Tpx16u, Tpx8u>("tpxiConvert_16u8u_C1R", tpxiConvert_16u8u_C1R, 1, Sizes::all);
    addCast<Tpx32s, Tpx8u>("tpxiConvert_32s8u_C1R", tpxiConvert_32s8u_C1R);
    addRounded<Tpx32f, Tpx8u>("tpxiConvert_32f8u_C1R nearest", tpxiConvert_32f8u_C1R, Sizes::all, 1);
    addRounded<Tpx32f, Tpx16u>("tpxiConvert_32f16u_C1R nearest", tpxiConvert_32f16u_C1R, Sizes::withinCache, 1);
    addRounded<Tpx32f, Tpx16s>("tpxiConvert_32f16s_C1R nearest", tpxiConvert_32f16s_C1R, Sizes::withinCache, 1);
    addRounded<Tpx32f, Tpx16s>("tpxiConvert_32f16s_C1R away", tpxiConvert_32f16s_C1R, Sizes::middle, 2);
    addRounded<Tpx32f, Tpx32u>("tpxiConvert_32f32u_C1RSfs nearest, 1", tpxiConvert_32f32u_C1RSfs, Sizes::middle,
                               1, 1);
    addRounded<Tpx64f, Tpx16u>("tpxiConvert_64f16u_C1RSfs nearest, 1", tpxiConvert_64f16u_C1RSfs, Sizes::middle,
                               1, 1);
    addRounded<Tpx32s, Tpx16s>("tpxiConvert_32s16s_C1RSfs nearest, 3", tpxiConvert_32s16s_C1RSfs, Sizes::all, 1,
                               3);
    addRounded<Tpx16u, Tpx8s>("tpxiConvert_16u8s_C1RSfs nearest, 3", tpxiConvert_16u8s_C1RSfs, Sizes::middle, 1,
                              3);
    addUnpack<Tpx8u>("tpxiBinToGray_1u8u_C1R", tpxiBinToGray_1u8u_C1R);
    addUnpack<Tpx32f>("tpxiBinToGray_1u32f_C1R", tpxiBinToGray_1u32f_C1R);
    addPack<Tpx8u>("tpxiGrayToBin_8u1u_C1R", tpxiGrayToBin_8u1u_C1R);
    addPack<Tpx32f>("tpxiGrayToBin_32f1u_C1R", tpxiGrayToBin_32f1u_C1R);
}

} // namespace bench
