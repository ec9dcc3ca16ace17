// SPDX-License-Identifier: Apache-2.0
// tpxiCopy*Border through their exported names, and the rule of the borders.
#include "frame/images/border.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/support/checks.h"
#include "tests/support/guarded.h"

namespace {

using namespace tpx::test;
using tpx::Border;

// ---- Model: a walk from pixel 0 to the coordinate, one step at a time -----------------------------------

int64_t walk(Border kind, int64_t c, int64_t n) {
    int64_t at = 0, mirrored = 1;
    for (int64_t i = 0; i != c; i += c < 0 ? -1 : 1) switch (kind) {
            case Border::Mirror: // whichever way it sets out, it meets the same pixels
                if (n == 1) break;
                if (at + mirrored < 0 || at + mirrored >= n) mirrored = -mirrored;
                at += mirrored;
                break;
            case Border::Wrap:
                at = c < 0 ? (at == 0 ? n - 1 : at - 1) : (at == n - 1 ? 0 : at + 1);
                break;
            default:
                if (c > 0 && at < n - 1) at++;
        }
    return at;
}

// ---- Every exported form under one signature ------------------------------------------------------------

template <class T>
struct Args {
    const T* src;
    TpxSizeL srcStep;
    TpxiSizeL srcSize;
    T* dst; // in place: the source's first pixel
    TpxSizeL dstStep;
    TpxiSizeL dstSize;
    TpxSizeL top, left;
    const T* value;
};

template <class T>
struct Form {
    const char* name;
    Border kind;
    int channels;
    bool keepsAlpha, inPlace;
    std::function<TpxStatus(const Args<T>&)> run;
};

// Short forms get what fits them best.
template <class Int>
Int narrow(TpxSizeL v) {
    using Limits = std::numeric_limits<Int>;
    return Int(std::clamp<TpxSizeL>(v, Limits::min(), Limits::max()));
}
template <class Size>
Size narrowSize(TpxiSizeL s) {
    using Int = decltype(Size::width);
    return {narrow<Int>(s.width), narrow<Int>(s.height)};
}
template <class V, class T>
V valueAs(const T* value) {
    if constexpr (std::is_pointer_v<V>)
        return value;
    else
        return *value;
}

template <class T, class Int, class Size, class... V>
std::function<TpxStatus(const Args<T>&)> uniform(TpxStatus (*f)(const T*, Int, Size, T*, Int, Size, Int, Int,
                                                                V...)) {
    return [f](const Args<T>& a) {
        return f(a.src, narrow<Int>(a.srcStep), narrowSize<Size>(a.srcSize), a.dst, narrow<Int>(a.dstStep),
                 narrowSize<Size>(a.dstSize), narrow<Int>(a.top), narrow<Int>(a.left), valueAs<V>(a.value)...);
    };
}
template <class T, class Int, class Size, class... V>
std::function<TpxStatus(const Args<T>&)> uniform(TpxStatus (*f)(T*, Int, Size, Size, Int, Int, V...)) {
    return [f](const Args<T>& a) {
        return f(a.dst, narrow<Int>(a.dstStep), narrowSize<Size>(a.srcSize), narrowSize<Size>(a.dstSize),
                 narrow<Int>(a.top), narrow<Int>(a.left), valueAs<V>(a.value)...);
    };
}

#define FORM(B, T, L, channels, flags, inPlace)                                            \
    Form<Tpx##T> {                                                                         \
#B " " #L#flags, Border::B, channels,                                              \
            #L[0] == 'A', inPlace, uniform < Tpx##T>(tpxiCopy##B##Border_##T##_##L##flags) \
    }
#define CONST(T, L, n) \
    FORM(Const, T, L, n, R, false), FORM(Const, T, L, n, R_L, false), FORM(Const, T, L, n, IR_L, true)
#define KIND(B, T, L, n)                                                                  \
    FORM(B, T, L, n, R, false), FORM(B, T, L, n, R_L, false), FORM(B, T, L, n, IR, true), \
        FORM(B, T, L, n, IR_L, true)
#define ALL_FORMS(T)                                                                                \
    CONST(T, C1, 1), CONST(T, C3, 3), CONST(T, C4, 4), CONST(T, AC4, 4), KIND(Replicate, T, C1, 1), \
        KIND(Replicate, T, C3, 3), KIND(Replicate, T, C4, 4), KIND(Replicate, T, AC4, 4),           \
        KIND(Mirror, T, C1, 1), KIND(Mirror, T, C3, 3), KIND(Mirror, T, C4, 4)

// A type for every set of names, since 16u and 16s, 32s and 32f are functions of their own.
struct Names8u {
    using T = Tpx8u;
    static std::vector<Form<T>> forms() { return {ALL_FORMS(8u)}; }
};
struct Names16u {
    using T = Tpx16u;
    static std::vector<Form<T>> forms() { return {ALL_FORMS(16u)}; }
};
struct Names16s {
    using T = Tpx16s;
    static std::vector<Form<T>> forms() { return {ALL_FORMS(16s)}; }
};
struct Names32s {
    using T = Tpx32s;
    static std::vector<Form<T>> forms() { return {ALL_FORMS(32s), KIND(Wrap, 32s, C1, 1)}; }
};
struct Names32f {
    using T = Tpx32f;
    static std::vector<Form<T>> forms() { return {ALL_FORMS(32f), KIND(Wrap, 32f, C1, 1)}; }
};

template <class Names>
class Borders : public testing::Test {};
using AllNames = testing::Types<Names8u, Names16u, Names16s, Names32s, Names32f>;
TYPED_TEST_SUITE(Borders, AllNames);

template <class T>
GuardedImage<T>& randomBits(GuardedImage<T>& image, unsigned seed) {
    std::minstd_rand random(seed);
    return image.fill([&](int, int, int) {
        const uint32_t bits = uint32_t(random() >> 2) * 0x9E3779B1u;
        T v;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    });
}

struct Margins {
    int left, top, right, bottom;
};

// Runs a form and compares every sample of the destination with the model.
template <class T>
void expectBorders(const Form<T>& form, TpxiSize size, Margins m, Lie srcLie, Lie dstLie) {
    GuardedImage<T> src(size.width, size.height, form.channels, srcLie);
    GuardedImage<T> dst(m.left + size.width + m.right, m.top + size.height + m.bottom, form.channels, dstLie);
    GuardedImage<T> old(dst.width(), dst.height(), form.channels),
        value(form.keepsAlpha ? 3 : form.channels, 1, 1);
    randomBits(src, 1);
    randomBits(value, 2);
    old.copySamplesFrom(randomBits(dst, 3));
    T* const inside = dst.data();
    T* const image = reinterpret_cast<T*>(reinterpret_cast<char*>(inside) + ptrdiff_t(m.top) * dst.step() +
                                          ptrdiff_t(m.left) * form.channels * ptrdiff_t(sizeof(T)));
    ASSERT_EQ(form.run({src.data(),
                        src.step(),
                        {size.width, size.height},
                        form.inPlace ? image : inside,
                        dst.step(),
                        {dst.width(), dst.height()},
                        m.top,
                        m.left,
                        value.data()}),
              tpxOk);
    ASSERT_TRUE(matches(dst,
                        [&](int x, int y, int c) {
                            if (form.keepsAlpha && c == 3) return old.at(x, y, 3);
                            x -= m.left;
                            y -= m.top;
                            const bool outside = x < 0 || x >= size.width || y < 0 || y >= size.height;
                            if (form.kind == Border::Const && outside) return value.at(c, 0);
                            if (outside)
                                x = int(walk(form.kind, x, size.width)),
                                y = int(walk(form.kind, y, size.height));
                            return form.inPlace ? old.at(x + m.left, y + m.top, c) : src.at(x, y, c);
                        }))
        << size.width << " x " << size.height << " with margins " << m.left << " " << m.top << " " << m.right
        << " " << m.bottom;
}

// ---- Results --------------------------------------------------------------------------------------------

TYPED_TEST(Borders, WidthsAndMarginsAroundEveryLaneCount) {
    for (const auto& form : TypeParam::forms()) {
        SCOPED_TRACE(form.name);
        for (int width : {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 15, 16, 17, 18, 31, 33, 48, 70})
            for (int margin : {0, 1, 2, 3, 4, 5, 6, 7, 8, 14, 15, 16, 17, 24, 33, 50}) {
                const int other = (margin * 7 + width) % 37;
                const Lie lie = {width % 3 * 5, margin % 2 ? Edge::End : Edge::Start, margin % 5};
                const Lie opposite = {margin % 4, margin % 2 ? Edge::Start : Edge::End, width % 4};
                expectBorders(form, {width, 2}, {margin, 1, other, 1}, lie, opposite);
                expectBorders(form, {width, 2}, {other, 0, margin, 2}, opposite, lie);
                if (this->HasFatalFailure()) return;
            }
    }
}

TYPED_TEST(Borders, RowsAboveAndBelowAndMarginsWiderThanTheSource) {
    const Margins margins[] = {{0, 0, 0, 0},   {3, 1, 0, 2},   {0, 4, 2, 0},   {8, 8, 8, 8},
                               {1, 9, 30, 20}, {40, 23, 1, 5}, {150, 1, 85, 4}};
    for (const auto& form : TypeParam::forms()) {
        SCOPED_TRACE(form.name);
        for (const TpxiSize size : {TpxiSize{1, 1}, {1, 4}, {5, 1}, {2, 2}, {3, 4}, {17, 6}})
            for (const Margins& m : margins) {
                expectBorders(form, size, m, {1, Edge::Start, 0}, {7, Edge::End, 0});
                expectBorders(form, size, m, {0, Edge::End, 0}, {0, Edge::Start, 3});
                if (this->HasFatalFailure()) return;
            }
    }
}

// Equal pointers mean the image lies in the destination, whatever the source's step says.
TYPED_TEST(Borders, EqualPointersMeanInPlace) {
    using T = typename TypeParam::T;
    for (const auto& form : TypeParam::forms()) {
        if (form.inPlace || form.kind == Border::Const) continue;
        Form<T> same = form;
        same.inPlace = true;
        same.run = [&](Args<T> a) {
            a.src = a.dst;
            a.srcStep = -1;
            return form.run(a);
        };
        SCOPED_TRACE(form.name);
        for (int width : {1, 4, 11, 40}) expectBorders(same, {width, 3}, {9, 5, 21, 1}, {}, {3, Edge::End, 0});
    }
}

// Steps beyond 32 bits; of the memory between the rows nothing is touched.
TYPED_TEST(Borders, LongSteps) {
    using T = typename TypeParam::T;
    constexpr TpxSizeL step = TpxSizeL(3) << 30;
    void* const memory = mmap(nullptr, size_t(3 * step), PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    const auto row = [&](int y) { return reinterpret_cast<T*>(static_cast<char*>(memory) + y * step); };
    const T source[4] = {1, 2, 3, 4};
    for (const auto& form : TypeParam::forms()) {
        if (std::string(form.name).back() != 'L' || form.keepsAlpha) continue;
        for (int y = 0; y < 3; y++) std::fill_n(row(y), 12, T(9));
        std::copy_n(source, form.channels, row(1) + form.channels);
        const auto dst = form.inPlace ? row(1) + form.channels : row(0);
        EXPECT_EQ(form.run({source, step, {1, 1}, dst, step, {3, 3}, 1, 1, source}), tpxOk) << form.name;
        for (int y = 0; y < 3; y++)
            for (int i = 0; i < 3 * form.channels; i++)
                ASSERT_EQ(row(y)[i], source[i % form.channels]) << form.name << " " << y << " " << i;
    }
    munmap(memory, size_t(3 * step));
}

// ---- The rule and the checks ----------------------------------------------------------------------------

template <Border B>
void expectRule() {
    for (int64_t n = 1; n <= 12; n++) {
        for (int64_t c = -50; c <= 50; c++)
            EXPECT_EQ(tpx::borderSource<B>(c, n), c >= 0 && c < n ? c : walk(B, c, n)) << c << " of " << n;
        const int64_t far = (int64_t(1) << 40) / tpx::borderPeriod<B>(n) * tpx::borderPeriod<B>(n);
        if (B == Border::Replicate) continue;
        for (int64_t c = -n; c <= n; c++) {
            EXPECT_EQ(tpx::borderSource<B>(c - far, n), tpx::borderSource<B>(c, n));
            EXPECT_EQ(tpx::borderSource<B>(c + far, n), tpx::borderSource<B>(c, n));
        }
    }
}

TEST(BorderRule, WalksAlongTheAxis) {
    expectRule<Border::Replicate>();
    expectRule<Border::Mirror>();
    expectRule<Border::Wrap>();
}

TYPED_TEST(Borders, OrderOfChecks) {
    using T = typename TypeParam::T;
    using A = Args<T>;
    constexpr TpxSizeL most = std::numeric_limits<TpxSizeL>::max();
    T src[16] = {}, dst[64];
    std::fill_n(dst, 64, T(9));
    const T value[4] = {};
    for (const auto& form : TypeParam::forms()) {
        SCOPED_TRACE(form.name);
        std::vector<Fault<A>> faults = {
            {"destination", [](A& a) { a.dst = nullptr; }, tpxErrNullPointer},
            {"destination's step", [](A& a) { a.dstStep = 0; }, tpxErrStep},
            {"source's width", [](A& a) { a.srcSize.width = 0; }, tpxErrSize},
            {"source's height", [](A& a) { a.srcSize.height = -1; }, tpxErrSize},
            {"destination's width", [](A& a) { a.dstSize.width = -4; }, tpxErrSize},
            {"destination's height", [](A& a) { a.dstSize.height = 0; }, tpxErrSize},
            {"top", [](A& a) { a.top = -1; }, tpxErrSize},
            {"left", [](A& a) { a.left = -1; }, tpxErrSize},
            {"left", [](A& a) { a.left = 3; }, tpxErrSize},
            {"top", [](A& a) { a.top = 2; }, tpxErrSize},
            {"left", [](A& a) { a.left = most; }, tpxErrSize},
            {"top", [](A& a) { a.top = most; }, tpxErrSize},
            {"source's width", [](A& a) { a.srcSize.width = most; }, tpxErrSize},
            {"source's height", [](A& a) { a.srcSize.height = most; }, tpxErrSize}};
        if (!form.inPlace) {
            faults.insert(faults.begin(), {"source", [](A& a) { a.src = nullptr; }, tpxErrNullPointer});
            faults.insert(faults.begin() + 2, {"source's step", [](A& a) { a.srcStep = -3; }, tpxErrStep});
        }
        if (form.kind == Border::Const && form.channels > 1)
            faults.push_back({"value", [](A& a) { a.value = nullptr; }, tpxErrNullPointer});
        expectCheckOrder(A{src, 16, {1, 1}, dst, 64, {3, 2}, 1, 1, value}, faults, form.run);
        EXPECT_EQ(std::count(dst, dst + 64, T(9)), 64);
    }
}

} // namespace
