#include "view/pipe_properties.h"

#include <iterator>

#include "calc/heads.h"
#include "calc/pressure_loss.h"
#include "services/number_text.h"
#include "view/display_items.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

using Properties = std::vector<PipeProperty>;

std::string SizeText(const Project& project, int pipe) {
  if (project.PipeSize[pipe] == 0) return "AUTO";
  return PlainText(project.PipeSize[pipe]) + "mm (" + FormatDecimals(BoreOf(project, pipe), 2) +
         ")";
}

std::string TypeText(const Project& project, int pipe) {
  const int type = project.PipeType[pipe];
  return project.PipeTypeRefs[type] + " (" + PlainText(project.TypeC[type]) + ")";
}

std::string LengthText(const Project& project, int pipe) {
  const float length = project.PipeLength[pipe];
  const float equivalent = project.PipeEqLength[pipe];
  std::string text = FormatDecimals(length, 3);
  if (equivalent > 0.0F && equivalent != length) text += " (" + FormatDecimals(equivalent, 3) + ")";
  return text;
}

Properties PipeRows(const Project& project, int pipe) {
  return {
      {"Node No",
       PlainText(project.PipeStartNode[pipe]) + " - " + PlainText(project.PipeEndNode[pipe]), ""},
      {"DN (ID)", SizeText(project, pipe), ""},
      {"Pipe Type", TypeText(project, pipe), ""},
      {"Pipe Length", LengthText(project, pipe), "m"},
      {"Pipe Fittings", FittingsText(project, pipe), ""}};
}

Properties ResultRows(const Project& project, int pipe) {
  const float rise_pressure = project.PipeRise[pipe] / project.AuthorityStatic;
  return {{"Pressure Drop", FormatDecimals(project.PipeDrop[pipe], 3), "bar"},
          {"Start Pressure", FormatDecimals(project.PipeStartPressure[pipe], 3), "bar"},
          {"End Pressure", FormatDecimals(project.PipeEndPressure[pipe], 3), "bar"},
          {"Static", FormatDecimals(rise_pressure, 3), "bar"},
          {"Flow", FormatDecimals(project.PipeFlow[pipe], 1), "L/min"},
          {"Velocity", FormatDecimals(project.PipeVelocity[pipe], 1), "m/s"}};
}

std::string ActualAndWanted(float actual, float wanted, int decimals) {
  return FormatDecimals(actual, decimals) + " - (" + FormatDecimals(wanted, decimals) + ")";
}

Properties HeadRows(const Project& project, int head) {
  Properties rows{{"", "", ""}, {"Head No.", PlainText(head), ""}};
  if (project.HeadCode[head] > 0.0F) {
    rows.push_back({"Head Code", PlainText(project.HeadCode[head]), ""});
  }
  rows.push_back({"K-Factor", FormatDecimals(project.HeadK[head], 2), ""});
  if (IsCalculated(project)) {
    rows.push_back({"Pres - Atl (Min)",
                    ActualAndWanted(project.HeadPressure[head], project.HeadMinPress[head], 2),
                    "bar"});
  }
  const float flow = project.HeadFlow[head];
  const float area = project.HeadArea[head];
  rows.push_back({"Flow)", FormatDecimals(flow, 2), "l/min"});
  rows.push_back({"Area", FormatDecimals(area, 2), "m2"});
  rows.push_back({"Height", FormatDecimals(HeightAboveSource(project, head), 3), "m"});
  if (flow > 0.0F && area > 0.0F) {
    rows.push_back({"Atl dens - (Reqd. dens)",
                    ActualAndWanted(flow / area, project.HeadDensity[head], 1), "mm/min"});
  }
  return rows;
}

void Append(Properties& rows, Properties more) {
  rows.insert(rows.end(), std::make_move_iterator(more.begin()),
              std::make_move_iterator(more.end()));
}

}  // namespace

bool IsInNetwork(const Project& project, int pipe) {
  return pipe >= 1 && pipe <= project.PipeCount && project.CheckBroken == 0;
}

std::vector<PipeProperty> PipeProperties(const Project& project, int pipe) {
  Properties rows = PipeRows(project, pipe);
  if (IsCalculated(project)) Append(rows, ResultRows(project, pipe));
  const int head = project.PipeHead[pipe];
  if (head > 0) Append(rows, HeadRows(project, head));
  return rows;
}

}  // namespace zeb
