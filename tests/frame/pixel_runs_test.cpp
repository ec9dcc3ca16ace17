// Runs of pixels past the caches: the same pixels as through them, from every address.
#include "frame/images/pixels.h"

#include "tests/support/samples.h"

namespace {

using namespace tpx::test;
using tpx::Block;

// Long enough for several places side by side, single lines after them, and a rest.
constexpr int kWidths[] = {1, 15, 63, 64, 65, 79, 200, 4 * 4096, 4 * 4096 + 3 * 64 + 5};

template <class T>
class PixelRuns : public testing::Test {};
using Types = testing::Types<Tpx8u, Tpx16u, Tpx32u>;
TYPED_TEST_SUITE(PixelRuns, Types);

template <class T, int N>
void expectJoinsAndSplits(int width, int misalign, int apart) {
    GuardedImage<T> pixels(width, 1, N, {0, Edge::Start, misalign}),
        back(width, 1, N, {0, Edge::End, misalign});
    randomBits(pixels, unsigned(width));
    std::vector<std::unique_ptr<GuardedImage<T>>> planes;
    T* pointers[N];
    for (int c = 0; c < N; c++) {
        planes.push_back(
            std::make_unique<GuardedImage<T>>(width, 1, 1, Lie{0, Edge::Start, misalign + c * apart}));
        pointers[c] = planes.back()->data();
    }
    const tpx::Planes<T, N> to(pointers, 0);
    const auto split = [](const Block<N>& a) { return tpx::deinterleave<sizeof(T)>(a); };
    const auto join = [](const Block<N>& a) { return tpx::interleave<sizeof(T)>(a); };
    tpx::mapPixelRunStreaming(width, split, to, tpx::Interleaved<const T, N>(pixels.data(), 0));
    for (int c = 0; c < N; c++)
        ASSERT_TRUE(matches(*planes[size_t(c)], [&](int x, int, int) { return pixels.at(x, 0, c); }));
    tpx::mapPixelRunStreaming(width, join, tpx::Interleaved<T, N>(back.data(), 0),
                              tpx::Planes<const T, N>(pointers, 0));
    tpx::streamFence();
    ASSERT_TRUE(matches(back, [&](int x, int, int c) { return pixels.at(x, 0, c); }));
}

TYPED_TEST(PixelRuns, StreamedFromEveryAddress) {
    using T = TypeParam;
    for (int width : kWidths)
        for (int misalign = 0; misalign<64; misalign += width> 1000 ? 13 : 1)
            for (int apart : {0, 1, 64}) {
                expectJoinsAndSplits<T, 3>(width, misalign, apart);
                expectJoinsAndSplits<T, 4>(width, misalign, apart);
            }
}

} // namespace
