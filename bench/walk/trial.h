// SPDX-License-Identifier: Apache-2.0
// Trials: calls of every export with arguments that make sense, by what the headers say of it. Images are made
// once; plans, and what else only the library that made it understands, are made by each library that takes
// part.
#pragma once

#include <tpxi.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "library.h"
#include "tests/exports/arguments.h"

namespace bench::walk {

using tpx::test::Export;

// Memory of a plan or a work buffer.
using Block = std::shared_ptr<Tpx8u[]>;
Block makeBlock(size_t bytes);

// An export of one library with all of its arguments. It keeps the blocks that are made for it.
class Call : public tpx::test::NamedArguments<Call> {
 public:
    // Throws if the library has no such function.
    Call(const Library& library, const std::string& name);

    TpxStatus operator()() const { return e_->invoke(function_, values_); }
    // Throws if the call fails.
    void make() const;

    void assign(const tpx::test::Value (&values)[16]) { std::copy(values, values + 16, values_); }
    Call& keep(Block block) {
        blocks_.push_back(std::move(block));
        return *this;
    }
    Call& keepAllOf(const Call& other) {
        blocks_.insert(blocks_.end(), other.blocks_.begin(), other.blocks_.end());
        return *this;
    }

 private:
    void (*function_)();
    std::vector<Block> blocks_;
};

class Trial {
 public:
    virtual ~Trial() = default;
    virtual Call bind(const Library& library) = 0;

    TpxiSize size;
    int number;               // of the export's trials
    bool isPointwise = false; // with as much work for each row, whatever their number
    double bytes = 0;         // of images read and written
    double samples = 0;       // of the destination, or of the source if there is none
    bool writes = true;       // an image
    std::string text;         // what sets it apart from other trials of the export; may be empty
};

// How many trials an export has; 0 if it has none, of which whyNone() tells the reason.
int trialsOf(const Export& e);
const char* whyNone(const Export& e);
std::unique_ptr<Trial> makeTrial(const Export& e, int number, TpxiSize size);

} // namespace bench::walk
