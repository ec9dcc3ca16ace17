// SPDX-License-Identifier: Apache-2.0
// Results that go past the caches are those that stay in them: images just beyond the floors below which
// nothing is streamed, in one run and in rows that begin at every place of a line.
#include <algorithm>
#include <limits>
#include <map>

#include "tests/exports/images.h"
#include "tests/support/cache.h"

namespace {

using namespace tpx::test;

// Above all floors, which are 4 MB of traffic at most, but 6 MB where planes are made.
constexpr int kTraffic = 4500000, kPlanesTraffic = 6500000;
// Long enough for four streams side by side in every row.
constexpr int kLongRow = 70000;

// Destinations begin at a page.
constexpr size_t kRoom = 6 << 20;

class Streaming : public testing::TestWithParam<std::string> {
 protected:
    Streaming() {
        for (size_t i = 0; i < kRoom; i++) before_.data()[i] = Tpx8u(i * 151 >> 3);
    }

    // One way of lying. Tells whether the cache's size was asked for.
    bool compare(const Export& e, int width, int height, int padding, int misalign, int variant) {
        const auto placeOf = [&](Side side, Tpx8u* data) -> Place {
            const int step =
                rowBytes(e, side, width, variant) + padding * std::max(1, bitsPerPixel(e, side) / 8);
            const ptrdiff_t plane = ptrdiff_t(step) * rowsOf(e, side, height) / planesOf(e, side);
            EXPECT_LE(plane * planesOf(e, side), ptrdiff_t(kRoom)) << e.name;
            return {data, step, plane};
        };
        Places places{};
        for (Side side : kSources)
            if (const Param* p = imageParam(e, side)) places[side] = placeOf(side, samples(p->type, side));
        const auto run = [&](int cache, GuardedBytes& memory) {
            std::memcpy(memory.data(), before_.data(), kRoom);
            places[kDst] = placeOf(kDst, memory.data() + misalign);
            const SmallCache small(cache);
            EXPECT_GE(call(e, places, width, height, variant), tpxOk) << e.name;
            return small.queries() > 0;
        };
        if (!run(1, streamed_)) return false;
        run(std::numeric_limits<int>::max(), cached_);
        EXPECT_EQ(std::memcmp(streamed_.data(), cached_.data(), kRoom), 0)
            << e.name << " of " << width << " x " << height << ", padding " << padding << ", arguments "
            << variant;
        return true;
    }

 private:
    // Enough samples for any source.
    Tpx8u* samples(const std::string& type, Side side) {
        std::vector<Tpx8u>& list = samples_[{type, side}];
        if (list.empty()) {
            list.resize(kRoom);
            fillSamples(list.data(), kRoom, type, side);
        }
        return list.data();
    }

    std::map<std::pair<std::string, Side>, std::vector<Tpx8u>> samples_;
    GuardedBytes before_{kRoom}, streamed_{kRoom}, cached_{kRoom};
};

// The forms whose results stay in the caches, whatever their size.
bool neverStreams(const Export& e) {
    const std::string& o = e.operation;
    if (o == "LUT" || o == "LUTPalette" || o == "GrayToBin") return true;
    if (o == "CopyManaged") return true; // by its flags alone; see channels_test.cpp
    if (imageParam(e, kMask) || (e.keepsAlpha() && o != "SwapChannels")) return true;
    if (o == "Ln" && e.types == "8u") return true; // from a table
    if (o == "Set" && e.to == 1 && sizeOf("Tpx" + e.types) == 2) return true;
    const bool oneChannel = e.flags[0] == 'C' || e.layout == "C3C1" || e.layout == "C4C1" ||
                            e.layout == "C1C3" || e.layout == "C1C4";
    return o != "Dup" && oneChannel;
}

TEST_P(Streaming, GivesWhatStaysInTheCaches) {
    for (const Export* e : callable(GetParam())) {
        if (e->isInPlace() || e->isLong || neverStreams(*e)) continue;
        int pixelBits = 0;
        for (Side side : {kFirst, kSecond, kDst}) pixelBits += bitsPerPixel(*e, side) * planesOf(*e, side);
        const int traffic = e->toPlanes ? kPlanesTraffic : kTraffic;
        const int pixels = int(traffic * 8.0 / pixelBits), perRow = kLongRow * 8 / bitsPerPixel(*e, kDst);
        for (int variant = 0; variant < variantsOf(*e); variant++) {
            const bool asks =
                compare(*e, pixels / 3 / 64 * 64 + 64, 3, 0, bitsPerPixel(*e, kDst) / 8, variant) |
                compare(*e, perRow | 1, pixels / perRow + 1, 1, 0, variant);
            EXPECT_TRUE(asks || variant) << e->name << " does not stream"; // not with every order of channels
        }
        if (HasFailure()) return;
    }
}

std::vector<std::string> operationsWithImages() {
    std::vector<std::string> list = operations();
    std::erase_if(list, [](const std::string& o) {
        const auto forms = callable(o);
        return std::all_of(forms.begin(), forms.end(), [](const Export* e) {
            return !imageParam(*e, kDst) || e->isInPlace() || neverStreams(*e);
        });
    });
    return list;
}
INSTANTIATE_TEST_SUITE_P(, Streaming, testing::ValuesIn(operationsWithImages()),
                         [](const auto& test) { return test.param; });

} // namespace
