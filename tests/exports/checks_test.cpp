// SPDX-License-Identifier: Apache-2.0
// The order of checks of the families that share one: pointers, the region's size, steps, where bits begin.
#include "tests/support/checks.h"
#include "tests/exports/images.h"

namespace {

using namespace tpx::test;

enum class Steps { Free, Tested };

struct Family {
    const char* operation;
    Steps steps;
};
// Families with an order of their own have a test of their own.
constexpr Family kFamilies[] = {
    {"Abs", Steps::Tested},       {"Sqr", Steps::Tested},      {"Sqrt", Steps::Tested},
    {"Ln", Steps::Tested},        {"Exp", Steps::Tested},      {"Add", Steps::Free},
    {"Sub", Steps::Free},         {"Mul", Steps::Free},        {"MinEvery", Steps::Tested},
    {"MaxEvery", Steps::Tested},  {"Convert", Steps::Tested},  {"Copy", Steps::Free},
    {"CopyManaged", Steps::Free}, {"Dup", Steps::Free},        {"Set", Steps::Free},
    {"BinToGray", Steps::Tested}, {"GrayToBin", Steps::Tested}};

using Spoils = std::vector<std::function<void(Value*)>>;

Fault<Spoils> fault(const std::string& name, TpxStatus status, std::function<void(Value*)> spoil) {
    return {name, [spoil](Spoils& list) { list.push_back(spoil); }, status};
}

std::vector<Fault<Spoils>> faultsOf(const Export& e, Steps steps) {
    std::vector<Fault<Spoils>> pointers, sizes, badSteps, offset;
    Fault<Spoils> width;
    for (size_t i = 0; i < e.params.size(); i++) {
        const Param& p = e.params[i];
        const auto with = [i](auto bad) { return [i, bad](Value* v) { v[i] = bad; }; };
        if (p.points) pointers.push_back(fault(p.name, tpxErrNullPointer, with(static_cast<void*>(nullptr))));
        if (p.type == "TpxiSize") {
            width = fault("size", tpxErrSize, with(TpxiSize{0, 1}));
            sizes = {fault("size", tpxErrSize, with(TpxiSize{1, -1}))};
        }
        if (p.type == "TpxiSizeL") {
            width = fault("size", tpxErrSize, with(TpxiSizeL{0, 1}));
            sizes = {fault("size", tpxErrSize, with(TpxiSizeL{1, -1}))};
        }
        if (p.name.ends_with("Step"))
            for (int bad : {0, -16}) badSteps.push_back(fault(p.name, tpxErrStep, with(bad)));
        if (p.name.ends_with("BitOffset")) offset.push_back(fault(p.name, tpxErrSize, with(-8)));
    }
    // Of two sources, pixels of several channels have their width looked at before all else.
    const bool widthFirst =
        (e.operation == "Add" || e.operation == "Sub" || e.operation == "Mul") && e.from > 1 && !e.fromAC4;
    // Converting integers to unsigned ones, and with a scale factor, steps are free.
    if (e.operation == "Convert" && e.flags.ends_with("s")) steps = Steps::Free;
    std::vector<Fault<Spoils>> list;
    if (widthFirst) list.push_back(width);
    list.insert(list.end(), pointers.begin(), pointers.end());
    if (!widthFirst) list.push_back(width);
    list.insert(list.end(), sizes.begin(), sizes.end());
    if (steps == Steps::Tested) list.insert(list.end(), badSteps.begin(), badSteps.end());
    list.insert(list.end(), offset.begin(), offset.end());
    return list;
}

TEST(Checks, PointersThenSizeThenStepsAndNothingIsWritten) {
    for (const Family& family : kFamilies)
        for (const Export* e : callable(family.operation)) {
            SCOPED_TRACE(e->name);
            Tpx8u images[kSides][64];
            Places places;
            for (int side = 0; side < kSides; side++) {
                std::memset(images[side], 1, sizeof images[side]);
                places.of[side] = {images[side], 16, 16};
            }
            expectCheckOrder(Spoils{}, faultsOf(*e, family.steps), [&](const Spoils& spoils) {
                const TpxStatus status = call(*e, places, 1, 1, 0, nullptr, 0, -1, [&](Value* values) {
                    for (const auto& spoil : spoils) spoil(values);
                });
                EXPECT_TRUE(status >= tpxOk || std::memcmp(images[kDst], images[kMask], 64) == 0) << "written";
                return status;
            });
        }
}

} // namespace
