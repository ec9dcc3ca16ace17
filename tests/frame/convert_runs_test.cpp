// The runs from samples of one type to samples of another: every length and misalignment, nothing outside
// touched.
#include <gtest/gtest.h>

#include "frame/runs/memory_runs.h"
#include "tests/support/guarded.h"

using namespace tpx;
using namespace tpx::test;

namespace {

template <class S, class D>
struct Conversion {
    using Source = S;
    using Destination = D;
};

template <class Types>
class ConvertRuns : public testing::Test {};
using AllTypes =
    testing::Types<Conversion<Tpx8u, Tpx16u>, Conversion<Tpx8s, Tpx32s>, Conversion<Tpx16s, Tpx32f>,
                   Conversion<Tpx8s, Tpx64f>, Conversion<Tpx16u, Tpx32u>>;
TYPED_TEST_SUITE(ConvertRuns, AllTypes);

TYPED_TEST(ConvertRuns, EveryLengthEveryWay) {
    using S = typename TypeParam::Source;
    using D = typename TypeParam::Destination;
    const auto rule = [](const S* p) { return loadAs<D>(p); };
    std::vector<int> lengths;
    for (int n = 1; n < 200; n++) lengths.push_back(n);
    for (int pages : {1, 4, 5, 9})
        for (int off : {-1, 0, 1, 131}) lengths.push_back(pages * 4096 / int(sizeof(D)) + off);
    for (int len : lengths)
        for (int misalign : {0, 1, 4, int(sizeof(D)), 3 * int(sizeof(D))})
            for (const Edge edge : {Edge::End, Edge::Start}) {
                GuardedImage<S> src(len, 1, 1, {0, edge, misalign % 5});
                GuardedImage<D> dst(len, 1, 1, {0, edge, misalign});
                src.randomise(unsigned(len));
                const auto isCast = [&] {
                    return matches(dst, [&](int x, int, int) { return D(src.at(x, 0)); });
                };
                convertRun(src.data(), dst.data(), len, rule);
                ASSERT_TRUE(isCast());
                dst.fill([](int, int, int) { return 7; });
                convertRunStreaming(src.data(), dst.data(), len, rule);
                streamFence();
                ASSERT_TRUE(isCast()) << "past the caches";
                if constexpr (sizeof(D) <= 4) {
                    if (len % 4) continue;
                    dst.fill([](int, int, int) { return 7; });
                    convertColours(src.data(), dst.data(), len, rule);
                    ASSERT_TRUE(matches(dst, [&](int x, int, int) {
                        return x % 4 == 3 ? D(7) : D(src.at(x, 0));
                    })) << "all but alpha";
                }
            }
}

} // namespace
