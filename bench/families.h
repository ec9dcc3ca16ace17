// SPDX-License-Identifier: Apache-2.0
// Registers the jobs of each family of functions.
#pragma once

namespace bench {

void addBorders();
void addCopies();
void addChannels();
void addConversions();
void addUnary();
void addBinary();
void addThresholds();
void addReductions();
void addExtremesOfTwoAndBlocks();
void addHistograms();
void addLookups();
void addFixedMasks();
void addBoxes();
void addMedians();
void addGeneralFilters();
void addResizes();
void addSuperResizes();
void addWarps();
void addFouriers();

} // namespace bench
