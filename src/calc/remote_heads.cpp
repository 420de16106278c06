#include "calc/remote_heads.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "calc/density_warning.h"
#include "calc/design_area.h"
#include "calc/flow_paths.h"
#include "calc/four_heads.h"
#include "model/real_arithmetic.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::array kMrHeads{&SystemValues::MrHead1, &SystemValues::MrHead2,
                              &SystemValues::MrHead3, &SystemValues::MrHead4};
constexpr std::array kMrNodes{&SystemValues::MrNode1, &SystemValues::MrNode2,
                              &SystemValues::MrNode3, &SystemValues::MrNode4};
constexpr std::array kMrReals{&SystemValues::MrFlow,        &SystemValues::MrArea,
                              &SystemValues::MrDensity,     &SystemValues::MrRequiredDensity,
                              &SystemValues::MrAreaAverage, &SystemValues::AmaoFlowA,
                              &SystemValues::AmaoFlowB,     &SystemValues::AmaoDifference,
                              &SystemValues::ZOffset};

int EndNodeOf(const Project& project, int head) {
  return project.PipeEndNode[PipeOfHead(project, head)];
}

void ClearOutputs(Project& project) {
  for (const auto value : kMrHeads) project.*value = 0;
  for (const auto value : kMrNodes) project.*value = 0;
  for (const auto value : kMrReals) project.*value = 0.0F;
  project.LeastDensityHead = 0;
}

bool RulesWantNoSearch(const Project& project) {
  return project.RuleType == kRulesNfpa || project.RuleType == kRulesFm ||
         Contains(ItemText(project, Item::kAuthority), "BS 9251") ||
         ContainsNoCase(ItemText(project, Item::kInstallation), "-4MRH") ||
         Trim(project.MrNodeText) == "0";
}

bool TooFewHeads(const Project& project) {
  if (project.HeadCount < 4) return true;
  return project.SelectedHeadsMode == 1 && project.SelectedHeadCount < 4;
}

// The best of four search centres, one toward each corner of the plan from the centre head.
std::optional<FourHeads> LowestDensity(const Project& project, int centre) {
  const float offset = 0.4F * std::sqrt(project.MaxArea);
  FourHeadSearch search(project, std::sqrt(2.0F * project.MaxArea) + offset);
  struct Corner {
    float x, y;
  };
  constexpr std::array<Corner, 4> kCorners{{{1, 1}, {1, -1}, {-1, -1}, {-1, 1}}};
  std::optional<FourHeads> best;
  for (const Corner corner : kCorners) {
    const auto four = search.Around(project.HeadX[centre] + corner.x * offset,
                                    project.HeadY[centre] + corner.y * offset);
    if (four && four->density < (best ? best->density : kNoDensity)) best = four;
  }
  return best;
}

// The head with the least flow on its own area.
int DriestHead(const Project& project, const FourHeads& four) {
  return *std::ranges::min_element(four.heads, {}, [&](int head) {
    return project.HeadFlow[head] / std::max(project.HeadArea[head], 0.001F);
  });
}

void StoreFour(Project& project, const FourHeads& four) {
  project.MrFlow = four.flow;
  project.MrArea = four.area;
  project.MrDensity = four.density;
  project.MrRequiredDensity = four.required_density;
  for (std::size_t i = 0; i < four.heads.size(); ++i) {
    const int head = four.heads.at(i);
    project.*kMrHeads.at(i) = head;
    project.*kMrNodes.at(i) = EndNodeOf(project, head);
    project.MrAreaAverage += project.HeadArea[head] / 4.0F;
  }
  project.LeastDensityHead = DriestHead(project, four);
  project.RemotestHead = project.LeastDensityHead;
}

// The head that the search goes around: the user's choice, or the one that governs the duty.
int CentreHead(Project& project) {
  if (project.ChosenMrHead > 0) project.RemotestHead = project.ChosenMrHead;
  return project.RemotestHead;
}

void SearchAround(Session& session, int centre) {
  Project& project = session.project;
  session.platform.shell.SetPanel(Panel::kHint, "Searching for 4 most remote heads");
  const std::optional<FourHeads> four = LowestDensity(project, centre);
  if (!four) {
    project.RemotestHead = 0;
    return;
  }
  StoreFour(project, *four);
  FindDesignAreaFlows(project, centre);
}

void Search(Session& session) {
  Project& project = session.project;
  const int centre = CentreHead(project);
  ClearOutputs(project);
  const bool skipped =
      RulesWantNoSearch(project) || TooFewHeads(project) || project.HeadCode[centre] < 0.0F;
  if (!skipped) SearchAround(session, centre);
  if (project.RemotestHead > 0) project.RemotestNode = EndNodeOf(project, project.RemotestHead);
}

}  // namespace

void SearchRemoteHeads(Session& session) {
  try {
    ClearRealArithmeticFlags();
    Search(session);
    CheckRealArithmeticFlags();
  } catch (const RuntimeFailure&) {
    ClearRealArithmeticFlags();
    session.platform.dialogs.Show({.title = "MRHEADS - Remote Head Calculation ",
                                   .text = "Cannot determine 4 remotest heads",
                                   .icon = MessageIcon::kWarning});
  }
  WarnOfLowDensity(session);
}

}  // namespace zeb
