// SPDX-License-Identifier: Apache-2.0
// The SIMD operations: what the operators of the language lack on registers of samples. They, and a kernel that
// lives on one particular shuffle, are the only places that name an instruction.
#pragma once

#include "frame/simd/channels.h"
#include "frame/simd/core.h"
#include "frame/simd/gather.h"
#include "frame/simd/integer.h"
#include "frame/simd/real.h"
#include "frame/simd/shuffle.h"
