#pragma once

#include "services/session.h"

namespace zeb {

// Values of SizingMethod: what a chosen size keeps within its limit.
inline constexpr int kSizeByVelocity = 1;   // maxVel, m/s
inline constexpr int kSizeByGradient = 2;   // SizingPdPerM, mbar/m
inline constexpr int kSizeByTotalDrop = 3;  // SizingLimit, mbar/m

// Chooses the first size of an unsized pipe that keeps its present flow well within the limit of
// the sizing method, or the largest. The size never goes down. Sets PipeSizeIndex, PipeSize and the
// equivalent length.
void ChoosePipeSize(Session& session, int pipe);

}  // namespace zeb
