// SPDX-License-Identifier: Apache-2.0
// The region kernel that serves a mask best.
//
// Kernels are many and large, so those of a type are compiled in a file of its own (median_<type>.cpp), and
// callers know them by their address.
#pragma once

#include "filters/border_model.h"
#include "frame/entry/checks.h"

namespace tpx {

// What is called with the arguments, told by its address. It has to outlive this.
template <class... Args>
class CallRef {
 public:
    template <class F>
    CallRef(const F& f)
        : object_(&f),
          call_([](const void* object, Args... args) { (*static_cast<const F*>(object))(args...); }) {}
    void operator()(Args... args) const { call_(object_, args...); }

 private:
    const void* object_;
    void (*call_)(const void*, Args...);
};

template <class T>
using RegionKernel = CallRef<const Region<T, T>&>;

constexpr bool isOdd(TpxiSizeL mask) {
    return mask.width >= 1 && mask.height >= 1 && mask.width % 2 == 1 && mask.height % 2 == 1;
}

// run(kernel) with the region kernel for a mask of odd sides.
template <Layout L, class T>
void withMedianOf(TpxiSizeL mask, CallRef<RegionKernel<T>> run);

} // namespace tpx
