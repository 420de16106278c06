#include "batch/pipe_data_print.h"

#include "model/project.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kColumn = 7;

void AppendLine(std::string& out, const std::string& line) {
  out.append(TrimRight(line)).append(kLineBreak);
}

std::string RowHead(int number, const std::string& reference) {
  return FixedNumber(static_cast<float>(number), 3, 0) + " " + PadOrCut(reference, 4);
}

void AppendTypes(std::string& out, const Project& project) {
  AppendLine(out, "Pipe types");
  AppendLine(out, " No Ref      C Factor Rough. mm Sizes Description");
  for (int type = 1; type <= project.PipeTypeCount; ++type) {
    AppendLine(out, RowHead(type, project.PipeTypeRefs[type]) +
                        FixedNumber(project.TypeC[type], 5, 0) +
                        FixedNumber(project.TypeFittingFactor[type], 7, 3) +
                        FixedNumber(project.TypeRoughness[type], 10, 4) +
                        FixedNumber(project.TypeSizesLine[type], 6, 0) + " " +
                        project.PipeTypeDescriptions[type]);
  }
}

void AppendNominalSizes(std::string& out, const Project& project) {
  AppendLine(out, "");
  AppendLine(out, "Nominal sizes in mm");
  for (int line = 0; line <= 2; ++line) {
    std::string row = RowHead(line + 1, "");
    for (int size = 1; size <= project.PipeSizeCount; ++size) {
      row += FixedNumber(static_cast<float>(project.NominalSizes[line][size]), kColumn, 0);
    }
    AppendLine(out, row);
  }
}

void AppendBores(std::string& out, const Project& project) {
  AppendLine(out, "");
  AppendLine(out, "Bores in mm");
  for (int type = 1; type <= project.PipeTypeCount; ++type) {
    std::string row = RowHead(type, project.PipeTypeRefs[type]);
    for (int size = 1; size <= project.PipeSizeCount; ++size) {
      row += FixedNumber(project.PipeBores[size][type], kColumn, 2);
    }
    AppendLine(out, row);
  }
}

template <class Lengths>
void AppendEqLengths(std::string& out, const Project& project, const std::string& heading,
                     const Lengths& lengths) {
  AppendLine(out, "");
  AppendLine(out, heading);
  for (int valve = 1; valve <= project.ValveCount; ++valve) {
    std::string row = RowHead(valve, project.ValveRefs[valve]);
    for (int size = 1; size <= project.PipeSizeCount; ++size) {
      row += FixedNumber(lengths[valve][size], kColumn, 2);
    }
    AppendLine(out, row + " " + project.ValveDescriptions[valve]);
  }
}

}  // namespace

std::string PipeDataText(const Project& project) {
  std::string out;
  AppendTypes(out, project);
  AppendNominalSizes(out, project);
  AppendBores(out, project);
  AppendEqLengths(out, project, "Equivalent lengths in m", project.EqLengthsLpc);
  AppendEqLengths(out, project, "Equivalent lengths in ft", project.EqLengthsNfpa);
  return out;
}

}  // namespace zeb
