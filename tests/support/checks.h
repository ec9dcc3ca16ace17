// SPDX-License-Identifier: Apache-2.0
// The order of checks as data: the arguments of a call that succeeds, and the faults in the order in which
// the call finds them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tpxi.h"

namespace tpx::test {

template <class Args>
struct Fault {
    std::string name;
    std::function<void(Args&)> apply;
    TpxStatus status;
};

// Every fault alone gives its status, and of two faults the earlier one gives the status. Faults that touch
// the same argument would hide each other: two of them in a row are not combined if `apply` of the later
// undoes the earlier, so give such pairs the same `name`.
template <class Args, class Call>
void expectCheckOrder(const Args& good, const std::vector<Fault<Args>>& faults, Call call) {
    for (size_t i = 0; i < faults.size(); i++) {
        Args one = good;
        faults[i].apply(one);
        EXPECT_EQ(call(one), faults[i].status) << faults[i].name;
        for (size_t j = i + 1; j < faults.size(); j++) {
            if (faults[i].name == faults[j].name) continue;
            Args two = good;
            faults[j].apply(two);
            faults[i].apply(two);
            EXPECT_EQ(call(two), faults[i].status) << faults[i].name << " before " << faults[j].name;
        }
    }
}

} // namespace tpx::test
