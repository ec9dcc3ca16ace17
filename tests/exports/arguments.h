// SPDX-License-Identifier: Apache-2.0
// The arguments of any export, given by the names of its parameters.
#pragma once

#include "tests/exports/export.h"

namespace tpx::test {

// A name that the export does not have is passed over; all that is not named is 0. `Self` adds the call.
template <class Self>
class NamedArguments {
 public:
    explicit NamedArguments(const Export& e) : e_(&e) {}

    Self& pointer(const char* name, const void* p) { return set(name, p); }
    Self& integer(const char* name, int64_t v) {
        const Param* const p = e_->param(name);
        return p && p->type == "TpxSizeL" ? set(name, TpxSizeL(v)) : set(name, int(v));
    }
    // A sample by value or a real number.
    Self& real(const char* name, double v) {
        const Param* const p = e_->param(name);
        return p && p->type == "Tpx32f" ? set(name, Tpx32f(v)) : set(name, v);
    }
    Self& bits(const char* name, uint64_t v) { return set(name, v); }
    Self& size(const char* name, int64_t width, int64_t height) { return pair(name, width, height); }
    Self& point(const char* name, int64_t x, int64_t y) { return pair(name, x, y); }
    Self& rect(const char* name, TpxiRect r) { return set(name, r); }
    Self& image(const char* pointer, const char* step, const void* first, ptrdiff_t bytes) {
        this->pointer(pointer, first);
        return integer(step, bytes);
    }

    const Export& function() const { return *e_; }

 protected:
    const Export* e_;
    Value values_[16];

 private:
    template <class T>
    Self& set(const char* name, const T& v) {
        for (size_t i = 0; i < e_->params.size(); i++)
            if (e_->params[i].name == name) values_[i] = v;
        return static_cast<Self&>(*this);
    }
    Self& pair(const char* name, int64_t a, int64_t b) {
        const Param* const p = e_->param(name);
        return p && p->type.ends_with("L") ? set(name, TpxiSizeL{a, b}) : set(name, TpxiSize{int(a), int(b)});
    }
};

} // namespace tpx::test
