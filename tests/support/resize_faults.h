// SPDX-License-Identifier: Apache-2.0
// The arguments of a resize's processing calls, and what is wrong with them in the order of the checks.
#pragma once

#include <vector>

#include "tests/support/checks.h"

namespace tpx::test {

template <class T>
struct ResizeArgs {
    const T* src;
    int srcStep;
    T* dst;
    int dstStep;
    TpxiPoint at;
    TpxiSize size;
    TpxBorderType border;
    const TpxiResizeSpec* spec;
    Tpx8u* buffer;
};

// Plans that a call refuses: before it looks at the size, as being of the other sharpness, and as of another
// kind (null if it takes all kinds, or has refused that one before).
struct RefusedPlans {
    std::vector<const TpxiResizeSpec*> ofOtherCalls;
    const TpxiResizeSpec* otherSharpness;
    const TpxiResizeSpec* otherKind;
};

// For a destination of `side` pixels either way.
template <class T>
std::vector<Fault<ResizeArgs<T>>> resizeFaults(bool takesBorder, const RefusedPlans& refused, int side) {
    using A = ResizeArgs<T>;
    std::vector<Fault<A>> faults;
    const auto plan = [&](const TpxiResizeSpec* spec, TpxStatus status) {
        faults.push_back({"plan", [=](A& a) { a.spec = spec; }, status});
    };
    if (takesBorder)
        for (TpxBorderType border : {0x100u, 0x101u, 0u, 6u, 0x10u, 0xF6u, 0xFFFFFFFFu})
            faults.push_back({"border", [=](A& a) { a.border = border; }, tpxErrBorder});
    faults.push_back({"source", [](A& a) { a.src = nullptr; }, tpxErrNullPointer});
    faults.push_back({"destination", [](A& a) { a.dst = nullptr; }, tpxErrNullPointer});
    plan(nullptr, tpxErrNullPointer);
    faults.push_back({"buffer", [](A& a) { a.buffer = nullptr; }, tpxErrNullPointer});
    faults.push_back({"width", [](A& a) { a.size.width = 0; }, tpxWarnNoOperation});
    faults.push_back({"height", [](A& a) { a.size.height = 0; }, tpxWarnNoOperation});
    for (const TpxiResizeSpec* spec : refused.ofOtherCalls) plan(spec, tpxErrContext);
    faults.push_back({"width", [](A& a) { a.size.width = -1; }, tpxErrSize});
    faults.push_back({"height", [](A& a) { a.size.height = -7; }, tpxErrSize});
    if (sizeof(T) > 1) {
        faults.push_back({"source step", [](A& a) { a.srcStep++; }, tpxErrStep});
        faults.push_back({"destination step", [](A& a) { a.dstStep++; }, tpxErrStep});
    }
    for (int at : {-1, side}) {
        faults.push_back({"x", [=](A& a) { a.at.x = at; }, tpxErrOutOfRange});
        faults.push_back({"y", [=](A& a) { a.at.y = at; }, tpxErrOutOfRange});
    }
    plan(refused.otherSharpness, tpxErrUnsupportedMode);
    if (refused.otherKind) plan(refused.otherKind, tpxErrContext);
    return faults;
}

} // namespace tpx::test
