#pragma once

namespace zeb {

// The last slot of each model table. Slot 0 of the pipe tables is the source point.
inline constexpr int kLastPipe = 5019;
inline constexpr int kLastLine = 5019;
inline constexpr int kLastHead = 1559;
inline constexpr int kLastHeadCode = 400;
inline constexpr int kLastNode = 9999;
inline constexpr int kLastLoop = 1000;
inline constexpr int kLastLoopPipe = 19999;
inline constexpr int kLastPipeType = 50;
inline constexpr int kLastPipeSize = 30;
inline constexpr int kLastValve = 20;
inline constexpr int kLastSupply = 49;
inline constexpr int kSupplyValues = 17;
inline constexpr int kLastJobReference = 450;
inline constexpr int kLastUndoVersion = 50;
inline constexpr int kLastUndoSequence = 1000;
inline constexpr int kLastVelocityBucket = 119;

// Lines 1 to 18 of a project are its data items; pipe lines start behind them.
inline constexpr int kItemCount = 18;
inline constexpr int kFirstPipeLine = kItemCount + 1;

// Directions that are no compass bearing.
inline constexpr int kDirectionUp = 999;
inline constexpr int kDirectionDown = -999;

}  // namespace zeb
