// SPDX-License-Identifier: Apache-2.0
// The exports as data: what the public headers say of each, and one way of calling them all.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "tpxi.h"

namespace tpx::test {

// An argument of any type.
class Value {
 public:
    template <class T>
    Value& operator=(const T& v) {
        static_assert(sizeof v <= sizeof bytes_);
        std::memcpy(bytes_, &v, sizeof v);
        return *this;
    }
    template <class T>
    T as() const {
        T v;
        std::memcpy(&v, bytes_, sizeof v);
        return v;
    }
    void* bytes() { return bytes_; }

 private:
    alignas(8) unsigned char bytes_[32] = {};
};

struct Param {
    std::string type;     // Tpx8u, int, ... without const and stars
    std::string name;     // as the header has it
    int count;            // of an array, else 0
    bool isConst, points; // points: a pointer or an array, at anything
};

struct Export {
    std::string name;
    std::vector<Param> params;
    TpxStatus (*invoke)(void (*)(), const Value*); // null if it gives no status
    void (*function)();

    // From the name tpxi<operation>_<types>_<from><to><flags>.
    std::string operation, types;
    int from, to; // samples that a pixel holds, or planes
    bool fromAC4, toAC4, fromPlanes, toPlanes;
    std::string layout; // as written, "C3" or "C3C1"; empty if the name has none
    std::string flags;  // "R", "IRSfs", "MR", ..., without _L
    bool isLong;

    const Param* param(const std::string& name) const;
    bool isInPlace() const { return param("pSrcDst") != nullptr; }
    bool keepsAlpha() const { return toAC4; }
};

const std::vector<Export>& exports();
// Null if there is none of that name.
const Export* findExport(const std::string& name);

// Bytes of a sample of a type; of records and integers too.
size_t sizeOf(const std::string& type);
TpxDataType dataTypeOf(const std::string& type); // of "8u", 0 if it has none

} // namespace tpx::test
