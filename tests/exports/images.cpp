// SPDX-License-Identifier: Apache-2.0
#include "tests/exports/images.h"

#include <algorithm>
#include <random>
#include <set>

namespace tpx::test {
namespace {

template <class T, class Next>
void fillReal(Tpx8u* bytes, size_t count, Next next) {
    for (size_t i = 0; i < count; i++) {
        const T v = T(int(next() % 2000001) - 1000000) / T(next() % 2 ? 1000 : 8000);
        std::memcpy(bytes + i * sizeof v, &v, sizeof v);
    }
}

} // namespace

void fillSamples(Tpx8u* bytes, size_t count, const std::string& type, Side side) {
    uint64_t state = 0x9E3779B97F4A7C15u * unsigned(side + 1);
    const auto next = [&] {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return uint32_t(state >> 33);
    };
    if (type == "Tpx32f") return fillReal<float>(bytes, count / 4, next);
    if (type == "Tpx64f") return fillReal<double>(bytes, count / 8, next);
    // Half of the integers are small. A mask has as many zeros as other values.
    const size_t sample = sizeOf(type);
    for (size_t i = 0; i + sample <= count; i += sample) {
        const uint32_t bits = next();
        uint32_t v = bits & 1 ? bits >> 1 : (bits >> 1) % 128;
        if (side == kMask && bits & 2) v = 0;
        std::memcpy(bytes + i, &v, sample);
    }
}

Content::Content(const Export& e, Side side, int width, int height, int variant)
    : rowBytes_(rowBytes(e, side, width, variant)), rows_(rowsOf(e, side, height)), planes_(planesOf(e, side)) {
    const Param* const param = imageParam(e, side);
    if (!param) return;
    bytes_.resize(size_t(rowBytes_) * size_t(rows_));
    fillSamples(bytes_.data(), bytes_.size(), param->type, side);
}

std::vector<const Export*> callable(const std::string& operation) {
    std::vector<const Export*> list;
    for (const Export& e : exports())
        if (e.operation == operation && isCallable(e)) list.push_back(&e);
    return list;
}

std::vector<std::string> operations() {
    std::set<std::string> names;
    for (const Export& e : exports())
        if (isCallable(e)) names.insert(e.operation);
    return {names.begin(), names.end()};
}

} // namespace tpx::test
