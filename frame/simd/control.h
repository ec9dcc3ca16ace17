// SPDX-License-Identifier: Apache-2.0
// The calling thread's floating-point control register, for work whose results must not depend on what the
// caller has set there.
#pragma once

#include "frame/simd/core.h"

namespace tpx {

// What a scope asks of the register: the bits in `changes` become those of `value`, and at the end the bits in
// `restores` are again what they were. The lowest six are flags that arithmetic raises.
struct FloatSettings {
    static constexpr Tpx32u kFlags = 0x003F, kUnderflowSeen = 0x0010, kMaskUnderflow = 0x0800,
                            kNoTraps = 0x1F80, kDenormalsAreZeros = 0x0040, kDirection = 0x6000,
                            kFlushToZero = 0x8000,
                            kAll = kFlags | kDenormalsAreZeros | kNoTraps | kDirection | kFlushToZero;
    Tpx32u changes, value, restores;
};

// Rounds in a direction. Exceptions do not trap, and results too small for a normal number are zeros, which no
// rounding to integers tells from the numbers they were; samples that are denormal are taken as they are. All
// of the register comes back.
constexpr FloatSettings roundingAs(Rounding rounding) {
    using S = FloatSettings;
    const bool asCaller = rounding == Rounding::OfThread;
    return {asCaller ? S::kAll & ~S::kDirection : S::kAll,
            S::kNoTraps | S::kFlushToZero | (asCaller ? 0 : Tpx32u(rounding) << 13), S::kAll};
}

// Results too small for a normal number are zeros, and underflow does not trap; else the caller's settings
// hold. Flags that arithmetic raises stay raised, but for that of underflow.
inline constexpr FloatSettings kFlushingToZero = {
    FloatSettings::kFlushToZero | FloatSettings::kMaskUnderflow,
    FloatSettings::kFlushToZero | FloatSettings::kMaskUnderflow,
    FloatSettings::kFlushToZero | FloatSettings::kMaskUnderflow | FloatSettings::kUnderflowSeen};

// Has the settings in force while it lives.
//
// Arithmetic stays inside because its operands come from memory and its results go there.
class FloatControl {
 public:
    explicit FloatControl(FloatSettings settings) : callers_(current()), restores_(settings.restores) {
        change(callers_, settings.changes, settings.value);
    }
    // The register is read again only for what stays in it: that waits for all arithmetic, and takes longer
    // than everything else here.
    ~FloatControl() { change(restores_ == FloatSettings::kAll ? callers_ : current(), restores_, callers_); }
    FloatControl(const FloatControl&) = delete;
    FloatControl& operator=(const FloatControl&) = delete;

    // For good, until someone else changes them.
    static void install(FloatSettings settings) { change(current(), settings.changes, settings.value); }

 private:
    static Tpx32u current() {
        Tpx32u control;
        asm volatile("vstmxcsr %0" : "=m"(control)::"memory");
        return control;
    }
    static void change(Tpx32u control, Tpx32u bits, Tpx32u value) {
        control = (control & ~bits) | (value & bits);
        asm volatile("vldmxcsr %0" ::"m"(control) : "memory");
    }
    Tpx32u callers_, restores_;
};

} // namespace tpx
