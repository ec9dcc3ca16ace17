// tpxiConvert: layouts, shapes, steps, checks, and the caller's floating-point control.
#include <gtest/gtest.h>
#include <immintrin.h>
#include <tpxcore.h>

#include "tests/support/checks.h"
#include "tests/support/convert_forms.h"

namespace {

using namespace tpx::test;

// Samples in turn from `values`, beginning somewhere.
template <class T>
void fillFrom(GuardedImage<T>& image, const std::vector<T>& values, size_t at) {
    image.fill([&](int, int, int) { return values[at++ % values.size()]; });
}

TEST(Convert, EveryShapeAndLayout) {
    eachConvertForm([](const auto& form) {
        using Form = std::remove_cvref_t<decltype(form)>;
        SCOPED_TRACE(form.name);
        const auto values = tellingSamples<typename Form::S>();
        size_t at = 77;
        const auto check = [&](int width, Lie srcLie, Lie dstLie) {
            constexpr int height = 3;
            const int mode = width % 3, n = width % 5 - 1;
            GuardedImage<typename Form::S> src(width, height, form.channels, srcLie);
            GuardedImage<typename Form::D> dst(width, height, form.channels, dstLie),
                old(width, height, form.channels);
            fillFrom(src, values, at += 1009);
            old.copySamplesFrom(dst.randomise(5));
            EXPECT_EQ(form.run(src.data(), src.step(), dst.data(), dst.step(), dst.size(), mode, n), tpxOk);
            ASSERT_TRUE(matches(dst,
                                [&](int x, int y, int c) {
                                    return form.keepsAlpha && c == 3
                                               ? old.at(x, y, c)
                                               : form.model(src.at(x, y, c), mode,
                                                            form.kind == Kind::Scaled ? n : 0);
                                }))
                << "mode " << mode << ", factor " << n;
        };
        sweepShapes([&](int width, Lie srcLie, Lie dstLie) {
            if (width < 40 || width % 16 < 2) check(width, srcLie, dstLie);
        });
        // Contiguous rows of both become one; steps need not be whole samples.
        for (int width : {1, 7, 16, 33, 257})
            for (const Lie& lie : {Lie{}, Lie{1, Edge::End, 1}, Lie{3, Edge::Start, 5}}) check(width, lie, lie);
    });
}

// A form whose types are forgotten, so that what does not depend on them is compiled once.
struct AnyForm {
    const char* name;
    Kind kind;
    std::function<TpxStatus(const void*, int, void*, int, TpxiSize, int mode, int scaleFactor)> run;
};
template <class S, class D>
AnyForm anyForm(const ConvertForm<S, D>& form) {
    return {
        form.name, form.kind,
        [run = form.run](const void* src, int srcStep, void* dst, int dstStep, TpxiSize size, int mode, int n) {
            return run(static_cast<const S*>(src), srcStep, static_cast<D*>(dst), dstStep, size, mode, n);
        }};
}

void checkOrder(const AnyForm& form) {
    struct Args {
        Tpx64f src[4] = {}, dst[4] = {9, 9, 9, 9};
        bool nullSrc = false, nullDst = false;
        TpxiSize size = {1, 1};
        int srcStep = 32, dstStep = 32;
    };
    SCOPED_TRACE(form.name);
    const auto call = [&](Args a) {
        const TpxStatus s = form.run(a.nullSrc ? nullptr : a.src, a.srcStep, a.nullDst ? nullptr : a.dst,
                                     a.dstStep, a.size, 1, 0);
        EXPECT_TRUE(s == tpxOk || a.dst[0] == 9);
        return s;
    };
    const auto zeroSource = [](Args& a) { a.srcStep = 0; };
    const auto negativeDestination = [](Args& a) { a.dstStep = -32; };
    std::vector<Fault<Args>> faults = {{"source", [](Args& a) { a.nullSrc = true; }, tpxErrNullPointer},
                                       {"destination", [](Args& a) { a.nullDst = true; }, tpxErrNullPointer},
                                       {"size", [](Args& a) { a.size.width = 0; }, tpxErrSize},
                                       {"size", [](Args& a) { a.size.height = -1; }, tpxErrSize}};
    if (form.kind != Kind::Positive && form.kind != Kind::Scaled) {
        faults.push_back({"source step", zeroSource, tpxErrStep});
        faults.push_back({"destination step", negativeDestination, tpxErrStep});
    } else {
        Args a;
        zeroSource(a);
        negativeDestination(a);
        EXPECT_EQ(call(a), tpxOk);
    }
    expectCheckOrder(Args{}, faults, call);
}

TEST(Convert, OrderOfChecks) {
    eachConvertForm([](const auto& form) { checkOrder(anyForm(form)); });
    EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(nullptr, 0, {0, 1}, 1, 0), tpxErrNullPointer);
    Tpx32u sample = 0;
    EXPECT_EQ(tpxiConvert_32f32u_C1IRSfs(&sample, 0, {0, 1}, 1, 0), tpxErrSize);
}

// Forms whose steps are free walk memory as given.
TEST(Convert, NegativeAndZeroSteps) {
    const Tpx32s rows[3][2] = {{-1, 2}, {3, 70000}, {5, 6}};
    Tpx32u out[3][2] = {};
    EXPECT_EQ(tpxiConvert_32s32u_C1Rs(rows[2], -8, out[0], 8, {2, 3}), tpxOk);
    EXPECT_EQ(out[0][0], 5u);
    EXPECT_EQ(out[2][0], 0u);
    Tpx16s narrow[2] = {};
    EXPECT_EQ(tpxiConvert_32s16s_C1RSfs(rows[0], 8, narrow, 0, {2, 2}, 1, 0), tpxOk);
    EXPECT_EQ(narrow[0], 3);
    EXPECT_EQ(narrow[1], 32767);
}

// The four rounding directions and denormals taken as zeros, with some flags set and with traps for all: no
// trap, and control and flags as they were. `check(control)` looks at the samples of each.
constexpr unsigned kNoTraps = 0x1F80, kRoundingBits = 0x6000;

void underEveryControl(const AnyForm& form, const void* src, void* dst, int len, int mode, int n,
                       const std::function<void(unsigned)>& check) {
    constexpr unsigned kZeros = 0x8040;
    const unsigned callers = _mm_getcsr();
    for (unsigned control = 0; control < 16; control++) {
        const unsigned word =
            (control % 4) << 13 | (control & 4 ? kZeros : 0) | (control & 8 ? 0x21 : kNoTraps | 0x14);
        const auto under = [&](const void* p) {
            _mm_setcsr(word);
            const TpxStatus status = form.run(p, 1, dst, 1, {len, 1}, mode, n);
            const unsigned after = _mm_getcsr();
            _mm_setcsr(callers);
            EXPECT_EQ(after, word);
            return status;
        };
        EXPECT_EQ(under(src), tpxOk);
        check(word);
        EXPECT_EQ(under(nullptr), tpxErrNullPointer);
    }
}

// The same samples whatever the caller set, except that 32-bit integers are rounded as the caller rounds.
TEST(Convert, TheCallersControl) {
    eachConvertForm([&](const auto& form) {
        using Form = std::remove_cvref_t<decltype(form)>;
        using D = typename Form::D;
        constexpr bool isRounded = sizeof(typename Form::S) == 4 && std::is_same_v<D, Tpx32f>;
        SCOPED_TRACE(form.name);
        const auto values = tellingSamples<typename Form::S>();
        const int len = int(values.size()) / form.channels, count = len * form.channels;
        for (int mode : {0, 1, 2})
            for (int n : {0, 1, -3, -140, 140}) {
                if ((n && form.kind != Kind::Scaled) || (mode && form.kind < Kind::Rounding)) continue;
                std::vector<D> expected(static_cast<size_t>(count)), got(static_cast<size_t>(count));
                for (size_t i = 0; i < expected.size(); i++) expected[i] = form.model(values[i], mode, n);
                underEveryControl(anyForm(form), values.data(), got.data(), len, mode, n, [&](unsigned word) {
                    if (isRounded) {
                        const unsigned callers = _mm_getcsr();
                        _mm_setcsr(kNoTraps | (word & kRoundingBits));
                        for (size_t i = 0; i < expected.size(); i++) {
                            volatile Tpx64s integer = Tpx64s(values[i]);
                            expected[i] = D(integer);
                        }
                        _mm_setcsr(callers);
                    }
                    for (size_t i = 0; i < expected.size(); i++) {
                        if ((form.keepsAlpha && i % 4 == 3) || sameBits(got[i], expected[i])) continue;
                        ADD_FAILURE() << "control " << std::hex << word << std::dec << ", mode " << mode
                                      << ", factor " << n << ", sample " << +values[i] << ": " << +got[i];
                        return;
                    }
                });
            }
    });
}

// Images beyond the largest cache, where that is small enough to be gone beyond.
TEST(ConvertLarge, PastTheCaches) {
    int cache = 0;
    if (tpxGetMaxCacheSizeB(&cache) != tpxOk || cache > 1 << 29) GTEST_SKIP() << "the cache is too large";
    for (int padding : {0, 12}) {
        const int width = 60001, height = cache / width / 6 + 2;
        GuardedImage<Tpx32s> wide(width, height, 1, {padding, Edge::End, 4});
        GuardedImage<Tpx16s> narrow(width, height, 1, {padding / 2, Edge::Start, 2});
        for (int y = 0; y < height; y++)
            for (int x = y % 7; x < width; x += 13) narrow.set(x, y, 0, Tpx16s(x * 31 + y));
        EXPECT_EQ(tpxiConvert_16s32s_C1R(narrow.data(), narrow.step(), wide.data(), wide.step(), wide.size()),
                  tpxOk);
        bool same = wide.paddingIntact();
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++) same = same && wide.at(x, y) == narrow.at(x, y);
        EXPECT_TRUE(same);
        EXPECT_EQ(tpxiConvert_32s16s_C1RSfs(wide.data(), wide.step(), narrow.data(), narrow.step(), wide.size(),
                                            0, 3),
                  tpxOk);
        same = narrow.paddingIntact();
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++) same = same && narrow.at(x, y) == wide.at(x, y) / 8;
        EXPECT_TRUE(same);
    }
}

} // namespace
