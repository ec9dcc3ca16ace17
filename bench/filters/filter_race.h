// SPDX-License-Identifier: Apache-2.0
// Races of neighbourhood filters: one line registers a function at its sizes, beside a copy of the
// destination's bytes and the plain form of its rule.
#pragma once

#include <vector>

#include "../frame/pointwise.h"

namespace bench {

struct FilterRace {
    const char* group;
    std::string function;
    int channels = 1;
    int reach = 1;     // pixels that the mask sees on each side
    double high = 255; // of the source's samples, from 0
    double tolerance = 0;
    Sizes sizes = Sizes::middle;
};

// (source, step, destination, step, size, work buffer); the edge is replicated.
template <typename S, typename D>
using Filter = std::function<TpxStatus(const S*, int, D*, int, TpxiSize, Tpx8u*)>;
// The plain form reads a source that goes on around the region. Steps are in samples.
template <typename S, typename D>
using ScalarFilter = std::function<void(const S*, ptrdiff_t, D*, ptrdiff_t, TpxiSize)>;
using BufferBytes = std::function<int(TpxiSize)>;

template <typename S, typename D>
void addFilter(const FilterRace& what, Filter<S, D> ours, BufferBytes bufferBytes, ScalarFilter<S, D> scalar,
               Operands constants = {}) {
    for (const TpxiSize size : sizes(what.sizes, what.channels * sizeof(D))) {
        const double samples = static_cast<double>(size.width) * size.height * what.channels;
        addJob({what.group, what.function, text(size), samples, samples * (sizeof(S) + sizeof(D))}, [=] {
            const TpxiSize around = {size.width + 2 * what.reach, size.height + 2 * what.reach};
            struct Images {
                Image<S> src, padded;
                Image<D> dst, expected, other;
                std::vector<Tpx8u> buffer;
            };
            const std::shared_ptr<Images> i(new Images{{size, what.channels, 0, what.high},
                                                       {around, what.channels},
                                                       {size, what.channels},
                                                       {size, what.channels},
                                                       {size, what.channels},
                                                       std::vector<Tpx8u>(size_t(bufferBytes(size)))});
            for (int y = 0; y < around.height; ++y)
                for (int x = 0; x < around.width; ++x)
                    for (int c = 0; c < what.channels; ++c) {
                        const int sx = std::clamp(x - what.reach, 0, size.width - 1),
                                  sy = std::clamp(y - what.reach, 0, size.height - 1);
                        i->padded.row(y)[x * what.channels + c] = i->src.row(sy)[sx * what.channels + c];
                    }
            const auto runOurs = [=] {
                return ours(i->src.data(), i->src.step(), i->dst.data(), i->dst.step(), size, i->buffer.data());
            };
            const auto runScalar = [=] {
                scalar(i->padded.row(what.reach) + what.reach * what.channels,
                       i->padded.step() / ptrdiff_t(sizeof(S)), i->expected.data(),
                       i->expected.step() / ptrdiff_t(sizeof(D)), size);
            };
            check(runOurs());
            runScalar();
            checkSame(i->dst, i->expected, what.tolerance);
            std::vector<Contender> list = {{kOurs, [=] { runOurs(); }},
                                           {kCopy, [=] { copyImage(i->other, i->dst); }},
                                           {kScalar, runScalar}};
            Operands from = constants;
            from.insert(from.begin(), i->src);
            joinOpencv(list, what.function, from, {i->dst});
            return list;
        });
    }
}

} // namespace bench
