// SPDX-License-Identifier: Apache-2.0
// The companion's cache queries, which every test program answers in its place.
#pragma once

#include "tpxcore.h"

namespace tpx::test {

// While it lives, the largest cache has so many bytes and lines of such a length, or the query fails. By
// default nothing fits, so that results go past the caches wherever they may. Without one the queries give the
// processor's answer.
class SmallCache {
 public:
    explicit SmallCache(int bytes = 1, int line = 64, TpxStatus status = tpxOk);
    ~SmallCache();
    SmallCache(const SmallCache&) = delete;
    SmallCache& operator=(const SmallCache&) = delete;

    // How often its size has been asked for.
    int queries() const;
};

} // namespace tpx::test
