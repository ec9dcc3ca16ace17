// SPDX-License-Identifier: Apache-2.0
// Tone curves: unary math on samples.
#include "gallery.h"

namespace {

// dst = rule(src), sample by sample.
template <class From, class To, class Convert>
void convert(View<const From> src, View<To> dst, Convert rule) {
    for (int y = 0; y < src.size.height; ++y)
        std::transform(src.at(0, y), src.at(src.size.width, y), dst.at(0, y), rule);
}

} // namespace

void toneCurves(Gallery& gallery, const Image8u& source) {
    gallery.section("Tone curves");
    const ConstPixels src = source.view();
    Image8u result(src.size);
    const Pixels dst = result.view();

    using Curve = decltype(&tpxiSqr_8u_C3RSfs);
    const auto integerCurve = [&](const char* name, const char* function, Curve curve, int scaleFactor,
                                  TpxStatus expectedWarning) {
        const double ms = bestTime([&] {
            check(curve(src.data, src.step, dst.data, dst.step, src.size, scaleFactor), function,
                  expectedWarning);
        });
        gallery.show(dst, {name, function, src.size, src.size, 1, ms});
    };
    integerCurve("Square, a^2 / 256", "tpxiSqr_8u_C3RSfs", tpxiSqr_8u_C3RSfs, 8, tpxOk);
    integerCurve("Square root, 16 sqrt a", "tpxiSqrt_8u_C3RSfs", tpxiSqrt_8u_C3RSfs, -4, tpxOk);
    // A photograph has black samples, whose logarithm is given as 0 with a warning.
    integerCurve("Logarithm, 32 ln a", "tpxiLn_8u_C3RSfs", tpxiLn_8u_C3RSfs, -5, tpxWarnLnZeroArg);

    // In floating point: 0 to 255 becomes 0 to kRange, and the exponential's 1 to e^kRange becomes 0 to 255.
    constexpr float kRange = 3.0f;
    Image32f exponent(src.size);
    Image32f power(src.size);
    const View<Tpx32f> from = exponent.view();
    const View<Tpx32f> to = power.view();
    convert(src, from, [](Tpx8u a) { return a * (kRange / 255.0f); });
    const double ms = bestTime(
        [&] { check(tpxiExp_32f_C3R(from.data, from.step, to.data, to.step, src.size), "tpxiExp_32f_C3R"); });
    const float scale = 255.0f / std::expm1(kRange);
    convert(View<const Tpx32f>(to), dst,
            [scale](Tpx32f a) { return static_cast<Tpx8u>((a - 1.0f) * scale + 0.5f); });
    gallery.show(dst, {"Exponential, of 0 to 3", "tpxiExp_32f_C3R", src.size, src.size, 1, ms});
}
