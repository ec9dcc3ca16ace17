// SPDX-License-Identifier: Apache-2.0
// No call uses more than 64 KB of stack: fibres, and threads of programs that have many, have little.
#include <pthread.h>

#include <algorithm>
#include <functional>

#include "tests/exports/images.h"
#include "tpxi.hpp"

namespace {

using namespace tpx::test;

constexpr size_t kLimit = 65536;
constexpr Tpx8u kPaint = 0x5A;

// Paints what a call may take of the stack and a good deal more, calls, and looks how deep the paint is gone.
// Calls once before, since the loader binds names on the same stack.
[[gnu::noinline]] size_t depthOf(const std::function<void()>& call) {
    constexpr ptrdiff_t kPainted = 2 * kLimit, kOwn = 256;
    call();
    Tpx8u* const here = static_cast<Tpx8u*>(__builtin_frame_address(0)) - kOwn;
    volatile Tpx8u* const lowest = here - kPainted;
    for (ptrdiff_t i = 0; i < kPainted; i++) lowest[i] = kPaint;
    call();
    ptrdiff_t left = 0;
    while (left < kPainted && lowest[left] == kPaint) left++;
    return size_t(kPainted - left + kOwn);
}

template <class T, int C>
struct Pictures {
    tpxi::Image<T, C> src, dst;

    Pictures(TpxiSize from, TpxiSize to) : src(from), dst(to) {
        for (int y = 0; y < from.height; y++)
            for (int i = 0; i < from.width * C; i++) src.row(y)[i] = T((i * 31 + y * 17) % 97);
    }
};

void expectDepth(const std::function<void()>& call, const std::string& name) {
    EXPECT_LE(depthOf(call), kLimit) << name;
}

// Calls that have bands, histograms and sorted lists on the stack.
template <class T, int C>
void deepOnes(const std::string& type) {
    const TpxiSize size{300, 70}, tall{40, 400}, small{13, 30};
    Pictures<T, C> p(size, size);
    for (int width : {3, 5, 7, 15, 17, 31, 45})
        for (int height : {3, 5, 15, 31}) {
            const auto work = tpxi::filterMedianBorderBuffer(p.src, p.dst, {width, height});
            expectDepth(
                [&] {
                    tpxi::filterMedianBorder(p.src, p.dst, {width, height}, tpxBorderReplicate, {}, work);
                },
                "median of " + type);
        }
    for (const auto& plan : {tpxi::ResizePlan<T>::super(tall, small), tpxi::ResizePlan<T>::lanczos(tall, small),
                             tpxi::ResizePlan<T>::cubic(tall, {300, 300}),
                             tpxi::ResizePlan<T>::antialiasingLanczos(tall, small)}) {
        Pictures<T, C> q(plan.srcSize(), plan.dstSize());
        const auto buffer = plan.buffer(C);
        expectDepth([&] { plan(q.src, q.dst, buffer); }, "resize of " + type);
    }
}

void* everything(void*) {
    for (const std::string& operation : operations())
        for (const Export* e : callable(operation)) {
            if (isBorder(*e) && e->isInPlace()) continue; // which work as the others do
            constexpr int kWidth = 300, kHeight = 6;
            Places places{};
            std::vector<Content> sides;
            sides.reserve(kSides);
            for (Side side : {kFirst, kSecond, kMask, kDst})
                if (imageParam(*e, side)) {
                    sides.emplace_back(*e, side, kWidth + 16, kHeight + 16, 0);
                    places[side] = sides.back().place();
                }
            Outs outs;
            expectDepth([&] { call(*e, places, kWidth, kHeight, 0, &outs); }, e->name);
        }
    deepOnes<Tpx8u, 1>("8u");
    deepOnes<Tpx16u, 1>("16u");
    deepOnes<Tpx32f, 1>("32f");
    deepOnes<Tpx8u, 3>("8u C3");
    deepOnes<Tpx16s, 3>("16s C3");
    return nullptr;
}

TEST(Stack, NoCallTakesMoreThan64KB) {
#if defined __SANITIZE_ADDRESS__
    GTEST_SKIP() << "frames of watched code are larger";
#endif
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 16 * kLimit);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, everything, nullptr), 0);
    pthread_join(thread, nullptr);
}

} // namespace
