// SPDX-License-Identifier: Apache-2.0
// Sums, extremes, norms and the like do not depend on how the images lie in memory.
#include "tests/exports/images.h"

namespace {

using namespace tpx::test;

TEST(Figures, AreThoseOfTheImageHoweverItLies) {
    for (const Export& e : exports()) {
        if (!isCallable(e) || imageParam(e, kDst)) continue;
        for (int variant = 0; variant < variantsOf(e); variant++)
            for (int width : {1, 7, 16, 33, 130}) {
                constexpr int height = 5;
                Content contents[] = {{e, kFirst, width, height, variant},
                                      {e, kSecond, width, height, variant}};
                const auto figures = [&](const Lie& lie) {
                    Places places{};
                    std::vector<std::unique_ptr<GuardedBytes>> memory;
                    for (Side side : {kFirst, kSecond}) {
                        const int row = rowBytes(e, side, width, variant), step = row + lie.padding;
                        memory.push_back(std::make_unique<GuardedBytes>(
                            size_t(step) * (height - 1) + size_t(row), size_t(lie.misalign), lie.edge));
                        for (int y = 0; y < height && row; y++)
                            std::memcpy(memory.back()->data() + y * step, contents[side].row(y), size_t(row));
                        places[side] = {memory.back()->data(), step, 0};
                    }
                    Outs outs;
                    std::memset(&outs, kAround, sizeof outs);
                    EXPECT_GE(call(e, places, width, height, variant, &outs), tpxOk) << e.name;
                    return outs;
                };
                // The last bits of sums of large samples depend on whether rows follow each other without a
                // gap.
                const bool isExact = sizeOf(imageParam(e, kFirst)->type) < 4 || e.operation.ends_with("Inf") ||
                                     e.operation.starts_with("Min") || e.operation.starts_with("Max");
                const Outs expected = figures({64, Edge::Start, 0});
                for (const Lie& lie : {Lie{isExact ? 0 : 3}, Lie{5, Edge::Start, 3}, Lie{24, Edge::End, 8}})
                    if (const Outs outs = figures(lie); std::memcmp(&outs, &expected, sizeof outs) != 0)
                        ADD_FAILURE() << e.name << ": width " << width << ", padding " << lie.padding;
            }
    }
}

} // namespace
