#pragma once

#include <string>
#include <vector>

#include "model/check_fault.h"
#include "model/head_tables.h"
#include "model/limits.h"
#include "model/network_tables.h"
#include "model/pipe_data_tables.h"
#include "model/pipe_tables.h"
#include "model/supply_tables.h"
#include "model/system_values.h"
#include "model/table.h"
#include "model/undo_tables.h"

namespace zeb {

// The open project: its text lines, which are the master, and the tables rebuilt from them by each
// check. Every row and value is reached by its name.
struct Project : PipeTables,
                 HeadTables,
                 HeadCodeTables,
                 NodeTables,
                 LoopTables,
                 PipeDataTables,
                 SupplyTables,
                 UndoTables,
                 SystemValues {
  // Lines 1 to 18 are the project items, pipe lines and comments follow, then END.
  Table<std::string, kLastLine> PipeLines;

  Table<Int16, kLastVelocityBucket> VelocityBuckets;  // pipes by whole m/s

  std::vector<CheckFault> Faults;  // reported since the start of the last check, in order

  int JobReferenceCount = 0;
  Table<std::string, kLastJobReference> JobReferences;  // from 1, "KEY=text"
};

// Empty all rows of one slot, before it is filled anew.
void ClearPipe(PipeTables& tables, int pipe);
void ClearHead(HeadTables& tables, int head);

// The project item of that number, 1 to 18, by its meaning.
enum class Item {
  kProjectName = 1,
  kAddress,
  kProjectNumber,
  kDesigner,
  kAuthority,
  kInsurer,
  kFluid,
  kWeldSize,
  kPipeData,
  kSupply,
  kAreaReference,
  kInstallation,  // also holds option codes such as "-LC"
  kHazard,
  kDensity,
  kDesignArea,
  kDrawing,
  kIssue,
  kComments,
};

[[nodiscard]] inline std::string& ItemText(Project& project, Item item) {
  return project.PipeLines[static_cast<int>(item)];
}
[[nodiscard]] inline const std::string& ItemText(const Project& project, Item item) {
  return project.PipeLines[static_cast<int>(item)];
}

}  // namespace zeb
