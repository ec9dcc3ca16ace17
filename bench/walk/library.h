// SPDX-License-Identifier: Apache-2.0
// A build of the library that is loaded beside others, each with a companion of its own.
#pragma once

#include <string>

namespace bench::walk {

class Library {
 public:
    // Of a file, or of libtpxie9.so in a folder. Throws what the loader says.
    explicit Library(const std::string& path);
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    // Null if it has no such function.
    void (*find(const std::string& name) const)();

 private:
    void* handle_;
};

} // namespace bench::walk
