#pragma once

#include <string>

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// The rows of the per-head table, the one place that names them.
//
//   HeadArea            m2
//   HeadFlow            L/min
//   HeadPressure        bar
//   HeadFlowChange      L/min in the last pass
//   HeadSourcePressure  source pressure that this head needs, bar
//   HeadHeight          m above the source
//   HeadK               L/min per root bar
//   HeadMinPress        bar
//   HeadOrifice         mm; negative marks a head below its duty
//   HeadDensity         required, mm/min
//   HeadPipe            slot of the pipe that ends at the head
//   HeadStartPressure   required pressure, bar
//   HeadCode            head code; -1 for a special discharge
//   HeadX, HeadY        plan position, m
#define ZEB_HEAD_REAL_ROWS(X) \
  X(HeadArea) \
  X(HeadFlow) \
  X(HeadPressure) \
  X(HeadFlowChange) \
  X(HeadSourcePressure) \
  X(HeadHeight) \
  X(HeadK) \
  X(HeadMinPress) \
  X(HeadOrifice) \
  X(HeadDensity) \
  X(HeadPipe) \
  X(HeadStartPressure) \
  X(HeadCode) \
  X(HeadX) \
  X(HeadY)

struct HeadTables {
#define ZEB_REAL_ROW(name) Table<float, kLastHead> name;
  ZEB_HEAD_REAL_ROWS(ZEB_REAL_ROW)
#undef ZEB_REAL_ROW
  Table<Int16, kLastHead> HeadOn;  // 1 when the head operates in selected-heads mode
};

// Calls visit(name, row) for every real row, in table order.
template <class Tables, class Visit>
void ForEachHeadRealRow(Tables& tables, Visit visit) {
#define ZEB_VISIT(name) visit(#name, tables.name);
  ZEB_HEAD_REAL_ROWS(ZEB_VISIT)
#undef ZEB_VISIT
}

// The head codes: their lines, and the table that the check parses from them. A head's code is the
// list position.
struct HeadCodeTables {
  Table<std::string, kLastHeadCode> HeadCodeLines;
  Table<float, kLastHeadCode> HeadCodeOrifice;  // mm
  Table<float, kLastHeadCode> HeadCodeK;        // L/min per root bar
  Table<float, kLastHeadCode> HeadCodePress;    // minimum, bar
  Table<float, kLastHeadCode> HeadCodeUses;     // number of heads
  Table<float, kLastHeadCode> HeadCodeMinArea;  // m2
  Table<float, kLastHeadCode> HeadCodeMaxArea;  // m2
};

}  // namespace zeb
