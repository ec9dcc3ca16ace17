// SPDX-License-Identifier: Apache-2.0
// tpxiConvert: layouts, steps, checks, and the caller's floating-point control.
#include <gtest/gtest.h>
#include <immintrin.h>

#include "tests/support/convert_forms.h"

namespace {

using namespace tpx::test;

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

} // namespace
