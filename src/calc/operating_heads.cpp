#include "calc/operating_heads.h"

#include <algorithm>
#include <string>

#include "calc/flow_paths.h"
#include "calc/whole_network.h"
#include "model/model_state.h"
#include "services/number_text.h"

namespace zeb {
namespace {

void CountPick(Project& project) {
  int count = 0;
  double area = 0.0;
  for (int head = 1; head <= project.HeadCount; ++head) {
    if (project.HeadOn[head] == 0) continue;
    ++count;
    area += project.HeadArea[head];
  }
  project.SelectedHeadCount = count;
  project.SelectedArea = static_cast<float>(area);
}

void Toggle(Project& project, int head) {
  project.HeadOn[head] = project.HeadOn[head] == 0 ? 1 : 0;
}

std::string PickText(const Project& project) {
  return PlainText(project.SelectedHeadCount) +
         " heads = " + FormatDecimals(project.SelectedArea, 1) + " m2";
}

// The next redraw shows it again behind the view's title.
void ShowPrompt(Session& session, const std::string& prompt) {
  session.project.ViewHint = prompt;
  session.platform.shell.SetPanel(Panel::kHint, prompt);
}

void ShowPickPrompt(Session& session) {
  ShowPrompt(session, PickText(session.project) + ": Select heads - press F12 to calculate");
}

// The results that stand belong to other heads.
void BeginPick(Session& session) {
  session.platform.commands.ViewCommandReset();
  Project& project = session.project;
  project.SelectedHeadsMode = 1;
  project.ModelState = model_state::kRead;
  project.MrHead1 = project.MrHead2 = project.MrHead3 = project.MrHead4 = 0;
  session.platform.shell.Enable(Feature::kDisplayMenu, false);
  session.platform.shell.Enable(Feature::kPrintMenu, false);
}

void ClearPick(Project& project) {
  project.HeadOn.Clear();
  CountPick(project);
}

// A picture without a box: it tells the pointer commands apart.
void SetPointerCommand(Session& session, int command) {
  Project& project = session.project;
  const bool box = command == kHeadBoxCommand;
  project.CommandMode = command;
  project.HeadBoxState = box ? 1 : 0;
  project.HeadBoxX1 = project.HeadBoxY1 = project.HeadBoxX2 = project.HeadBoxY2 = 0.0F;
  session.platform.shell.SetPicturePointer(box ? PicturePointer::kArrow : PicturePointer::kCross);
  session.platform.shell.SetPanel(Panel::kMode, "OPERATING HEADS");
}

// False when there is no network to pick from.
bool BeginNewPick(Session& session, int command) {
  if (!TakeWholeNetwork(session)) return false;
  BeginPick(session);
  ClearPick(session.project);
  session.platform.shell.Redraw();
  SetPointerCommand(session, command);
  return true;
}

}  // namespace

void Cind(Session& session) {
  if (BeginNewPick(session, kPickHeadCommand)) ShowPickPrompt(session);
}

void Cboxes(Session& session) {
  if (BeginNewPick(session, kHeadBoxCommand))
    ShowPrompt(session, "Select head group - press F12 to calculate");
}

void Ccurr(Session& session) {
  if (session.project.SelectedHeadCount == 0) {
    session.platform.dialogs.Show({.title = "No heads selected yet",
                                   .text = "Use other 'Calculate' option first",
                                   .icon = MessageIcon::kInformation});
    return;
  }
  if (!TakeWholeNetwork(session)) return;
  BeginPick(session);
  session.platform.shell.Redraw();
  SetPointerCommand(session, kPickHeadCommand);
  ShowPrompt(session,
             PickText(session.project) + " - click to turn on/off head and thne F12 to calculate");
}

void ToggleHead(Session& session, int head) {
  Toggle(session.project, head);
  CountPick(session.project);
  session.platform.shell.Redraw();
  ShowPickPrompt(session);
}

void ToggleHeadsInBox(Session& session, float x1, float y1, float x2, float y2) {
  Project& project = session.project;
  const auto [left, right] = std::minmax(x1, x2);
  const auto [top, bottom] = std::minmax(y1, y2);
  for (int head = 1; head <= project.HeadCount; ++head) {
    const int pipe = PipeOfHead(project, head);
    const float x = project.PipeScreenX2[pipe];
    const float y = project.PipeScreenY2[pipe];
    if (x >= left && x <= right && y >= top && y <= bottom) Toggle(project, head);
  }
  CountPick(project);
  session.platform.shell.Redraw();
  ShowPrompt(session, PickText(project) + " - draw another zoom box or press F12 to calculate");
}

std::vector<int> PickHeadsByNodes(Session& session, const std::vector<int>& nodes) {
  BeginPick(session);
  Project& project = session.project;
  project.HeadOn.Clear();
  std::vector<int> missing;
  for (const int node : nodes) {
    bool found = false;
    for (int head = 1; head <= project.HeadCount; ++head) {
      if (NodeOfHead(project, head) != node) continue;
      project.HeadOn[head] = 1;
      found = true;
    }
    if (!found) missing.push_back(node);
  }
  CountPick(project);
  return missing;
}

void PickAllHeads(Session& session) {
  Project& project = session.project;
  project.SelectedHeadsMode = 0;
  project.SelectedHeadCount = 0;
  std::ranges::fill(project.HeadOn.Slots(), Int16(1));
  session.platform.shell.Redraw();
}

}  // namespace zeb
