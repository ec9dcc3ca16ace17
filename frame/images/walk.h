// SPDX-License-Identifier: Apache-2.0
// The walk of rows: the only loop over the rows of a region.
//
// What is walked is an ImageView, or a side of pixels (frame/images/pixels.h): row(y) gives what the row's work
// takes, and isGapless(width) tells whether rows of that width follow each other without a gap. Widths are in
// the units that the side counts, samples or pixels.
#pragma once

#include "frame/entry/checks.h"
#include "frame/images/view.h"
#include "frame/runs/streaming.h"

namespace tpx {

struct Extent {
    ptrdiff_t width, height;
};

// Bytes that go to and from memory.
template <class... Side>
constexpr uint64_t trafficOf(Extent e, const Side&...) {
    return uint64_t(e.width) * uint64_t(e.height) * uint64_t((... + Side::kUnitBytes));
}

// The samples of a region.
template <class Size>
constexpr Extent samplesOf(Size roi, int channels) {
    return {ptrdiff_t(roi.width) * channels, ptrdiff_t(roi.height)};
}

// Calls row(width, side's row...) for every row, from the first to the last.
template <class Row, class... Side>
inline void walkRows(Extent e, Row row, const Side&... sides) {
    for (ptrdiff_t y = 0; y < e.height; y++) row(e.width, sides.row(y)...);
}

// Rows that follow each other without a gap on every side are one long row.
template <class... Side>
inline Extent joinRows(Extent e, const Side&... sides) {
    return (... && sides.isGapless(e.width)) ? Extent{e.width * e.height, 1} : e;
}
template <class Row, class... Side>
inline void walkJoined(Extent e, Row row, const Side&... sides) {
    walkRows(joinRows(e, sides...), row, sides...);
}

// The walk of whatever may go past the caches: cached(width, rows...) or streamed(width, rows...), as `stream`
// says for the whole call. Ends with the fence if it has streamed.
template <class Cached, class Streamed, class... Side>
inline void walkStreaming(bool stream, Extent e, Cached cached, Streamed streamed, const Side&... sides) {
    if (!stream) return walkJoined(e, cached, sides...);
    walkJoined(e, streamed, sides...);
    streamFence();
}

} // namespace tpx
