#include "model/project.h"

namespace zeb {

void ClearPipe(PipeTables& tables, int pipe) {
  ForEachPipeRow(tables, [pipe](const char*, auto& row) { row[pipe] = {}; });
}

void ClearHead(HeadTables& tables, int head) {
  ForEachHeadRealRow(tables, [head](const char*, auto& row) { row[head] = 0.0F; });
}

}  // namespace zeb
