// SPDX-License-Identifier: Apache-2.0
// The version record, and the hooks that the loader calls.
#include "frame/entry/entry.h"

namespace {

constexpr TpxLibraryVersion kVersion = {
    2017, 0, 3, 55431, {'e', '9', 0, 0}, "tpxIP AVX (e9)", "2017.0.3 (r55431)", "Apr 12 2017"};

} // namespace

TPX_ENTRY(tpxiGetLibVersion)() { return &kVersion; }

// The dynamic section names these two (cmake/Library.cmake). There is nothing to set up or to tear down: any
// function can be called first.
extern "C" {
void initializer();
void destructor();
void initializer() {}
void destructor() {}
}
