#pragma once

#include <string>
#include <vector>

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// Where a sequence number of the undo history stands, and how many lines that version has.
struct UndoIndexRow {
  Int16 Slot;
  Int16 LineCount;
};

struct UndoTables {
  // A version holds lines 1 to its line count, at index 0 on.
  Table<std::vector<std::string>, kLastUndoVersion> UndoLines;
  Table<std::string, kLastUndoVersion> UndoNames;
  Table<UndoIndexRow, kLastUndoSequence> UndoIndex;
};

}  // namespace zeb
