// SPDX-License-Identifier: Apache-2.0
// How an implementation is opened. The public header is the only list of the exports: a stub jumps through
// the slot of its name to the e9_ function that TPX_ENTRY defines.
#pragma once

#include "tpxi.h"

namespace tpx {

template <class F>
struct ReturnType;
template <class R, class... A>
struct ReturnType<R(A...)> {
    using type = R;
};

} // namespace tpx

// TPX_ENTRY(tpxiName)(arguments) { ... }. A signature other than the prototype's does not compile.
#define TPX_ENTRY(name)                  \
    extern "C" decltype(name) e9_##name; \
    tpx::ReturnType<decltype(name)>::type e9_##name
