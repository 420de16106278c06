#include "calc/limit_lists.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "calc/flow_paths.h"
#include "calc/heads.h"
#include "calc/limit_list_form.h"
#include "calc/result_tables.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::size_t kMostText = 60000;  // characters that a list can show

struct PipeLimit {
  bool (*breaks)(const Project& project, int pipe);
  const char* header;
  float SystemValues::*limit;
  const char* unit;
};

constexpr std::array<PipeLimit, 3> kPipeLimits{{
    {[](const Project& project, int pipe) { return project.PipeVelocity[pipe] <= project.minVel; },
     " pipes with velocities under", &SystemValues::minVel, " m/s"},
    {[](const Project& project, int pipe) { return project.PipeVelocity[pipe] >= project.maxVel; },
     " pipes with velocities over", &SystemValues::maxVel, " m/s"},
    {[](const Project& project, int pipe) {
       return std::fabs(project.PipeDrop[pipe]) >= project.maxPD;
     },
     " pipes with pressure drops over", &SystemValues::maxPD, " bar"},
}};

struct HeadLimit {
  bool (*breaks)(const Project& project, int head);
  const char* header;
};

bool IsFarOverRequiredFlow(const Project& project, int head) {
  const float required = HeadFlowAt(project, head, project.HeadStartPressure[head]);
  return project.HeadFlow[head] > 3.0F * required;
}

constexpr std::array<HeadLimit, 3> kHeadLimits{{
    {IsUnderPressure, " heads are under their minimum specified pressures"},
    {IsUnderDensity, " heads are under their minimum specified density"},
    {IsFarOverRequiredFlow, " heads are over 3 x required minimum flow"},
}};

std::string PipeRow(const Project& project, int pipe) {
  return FixedNumber(project.PipeStartNode[pipe], 5, 0) +
         FixedNumber(project.PipeEndNode[pipe], 6, 0) + FixedNumber(project.PipeSize[pipe], 5, 0) +
         FixedNumber(project.PipeFlow[pipe], 9, 1) + FixedNumber(project.PipeVelocity[pipe], 8, 2) +
         FixedNumber(project.PipeEqLength[pipe], 8, 2) + FixedNumber(project.PipeDrop[pipe], 9, 3);
}

std::string HeadRow(const Project& project, int head) {
  return FixedNumber(NodeOfHead(project, head), 4, 0) + FixedNumber(project.HeadFlow[head], 8, 1) +
         FixedNumber(project.HeadArea[head], 7, 3) + FixedNumber(project.HeadDensity[head], 6, 1) +
         FixedNumber(ActualDensity(project, head), 10, 2) +
         FixedNumber(project.HeadMinPress[head], 7, 2) +
         FixedNumber(project.HeadPressure[head], 9, 3);
}

template <class RowOf>
std::string Rows(const std::vector<int>& slots, RowOf row_of) {
  std::string rows;
  for (const int slot : slots) {
    if (rows.size() >= kMostText) break;
    rows.append(row_of(slot)).append(kLineBreak);
  }
  return rows;
}

void ShowList(Session& session, int kind, const std::string& header, std::string rows) {
  session.project.LimitListKind = kind;
  LimitListForm form(session, header, std::move(rows));
  session.platform.shell.ShowModal(form);
}

void ListPipes(Session& session, const PipeLimit& limit) {
  Project& project = session.project;
  std::vector<int> listed;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (!limit.breaks(project, pipe)) continue;
    listed.push_back(pipe);
    project.PipeError[pipe] = 1;
  }
  if (listed.empty()) return;
  const int count = static_cast<int>(listed.size());
  ShowList(session, kPipesBeyondLimits,
           PlainText(count) + limit.header + SignedText(project.*limit.limit) + limit.unit,
           Rows(listed, [&](int pipe) { return PipeRow(project, pipe); }));
}

void ListHeads(Session& session, const HeadLimit& limit) {
  Project& project = session.project;
  std::vector<int> listed;
  for (const int head : OperatingHeads(project)) {
    if (project.HeadCode[head] < 0.0F || !limit.breaks(project, head)) continue;
    listed.push_back(head);
    MarkHead(project, head);
  }
  if (listed.empty()) return;
  const int count = static_cast<int>(listed.size());
  ShowList(session, kHeadsBelowDuty, PlainText(count) + limit.header,
           Rows(listed, [&](int head) { return HeadRow(project, head); }));
}

}  // namespace

void ShowLimitLists(Session& session) {
  for (const PipeLimit& limit : kPipeLimits) ListPipes(session, limit);
  for (const HeadLimit& limit : kHeadLimits) ListHeads(session, limit);
}

}  // namespace zeb
