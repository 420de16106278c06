#pragma once

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// Nodes by number.
struct NodeTables {
  Table<Int16, kLastNode> NodeStarts;     // times used as a start node
  Table<Int16, kLastNode> NodeEnds;       // times used as an end node
  Table<Int16, kLastNode> NodeFirstPipe;  // the first pipe that ended there
};

// Loops as runs of signed pipe slots: loop i stands in LoopPipes from LoopFirst[i] to LoopLast[i].
// While pipes are read, LoopFirst and LoopLast hold the closing pipe and the pipe it meets.
struct LoopTables {
  Table<Int16, kLastLoop> LoopFirst;
  Table<Int16, kLastLoop> LoopLast;
  Table<Int16, kLastLoopPipe> LoopPipes;
};

}  // namespace zeb
