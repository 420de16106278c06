#include "view/display_items.h"

#include <array>
#include <cmath>

#include "services/number_text.h"
#include "services/text.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

std::string Decimals(float value, int decimals) {
  constexpr int kAmpleWidth = 30;
  return TrimLeft(FixedNumber(value, kAmpleWidth, decimals));
}

std::string DirectionText(const Project& project, int pipe) {
  const float direction = project.PipeDirection[pipe];
  return std::fabs(direction) > 360.0F ? std::string() : Decimals(direction, 1);
}

std::string HeadCodeText(const Project& project, int pipe) {
  return PlainText(project.HeadCode[project.PipeHead[pipe]]);
}

std::string HeadAreaText(const Project& project, int pipe) {
  return Decimals(project.HeadArea[project.PipeHead[pipe]], 3);
}

std::string PressureDropText(const Project& project, int pipe) {
  const float drop = std::fabs(project.PipeDrop[pipe]);
  if (drop <= 0.0F || std::nearbyint(project.PipeEqLength[pipe]) == 0.0F) return {};
  return Decimals(drop, 3);
}

// Where an item's text belongs: to pipes, to nodes (once each), or to nodes with a head.
enum class Subject { kNothing, kPipe, kNode, kHead, kHeadDensity };

// `pipe` is a slot; 0 is the source point.
using TextOfSlot = std::string (*)(const Project& project, int pipe);

struct ItemRow {
  const char* menu_text = "";
  Subject subject = Subject::kNothing;
  TextOfSlot text = nullptr;
  TextOfSlot source_text = nullptr;  // of the first pipe, for the node where it starts
  bool needs_calculation = false;
  TextArrow arrow = TextArrow::kNone;
};

constexpr std::array kItems{
    ItemRow{"No Text", Subject::kNothing},
    ItemRow{"Node Numbers", Subject::kNode,
            [](const Project& p, int pipe) { return PlainText(p.PipeEndNode[pipe]); },
            [](const Project& p, int pipe) { return PlainText(p.PipeStartNode[pipe]); }},
    ItemRow{"Pipe Size", Subject::kPipe,
            [](const Project& p, int pipe) { return PlainText(p.PipeSize[pipe]); }},
    ItemRow{"Pipe Length", Subject::kPipe,
            [](const Project& p, int pipe) { return Decimals(p.PipeLengthIn[pipe], 3); }},
    ItemRow{.menu_text = "Direction (deg)",
            .subject = Subject::kPipe,
            .text = DirectionText,
            .arrow = TextArrow::kDrawnDirection},
    ItemRow{.menu_text = "Slope (deg)",
            .subject = Subject::kPipe,
            .text = [](const Project& p, int pipe) { return Decimals(p.PipeSlope[pipe], 1); },
            .arrow = TextArrow::kDrawnDirection},
    ItemRow{"Pipe Types", Subject::kPipe,
            [](const Project& p, int pipe) { return p.PipeTypeRefs[p.PipeType[pipe]]; }},
    ItemRow{"Fittings", Subject::kPipe, FittingsText},
    ItemRow{.menu_text = "Equiv Lengths",
            .subject = Subject::kPipe,
            .text = [](const Project& p, int pipe) { return Decimals(p.PipeEqLength[pipe], 3); },
            .needs_calculation = true},
    ItemRow{"Heights", Subject::kNode,
            [](const Project& p, int pipe) { return Decimals(p.PipeZ[pipe], 3); },
            [](const Project& p, int /*pipe*/) { return Decimals(p.PipeZ[0], 3); }},
    ItemRow{"Head Codes", Subject::kHead, HeadCodeText},
    ItemRow{"Head Areas", Subject::kHead, HeadAreaText},
    ItemRow{
        .menu_text = "Flow Rate",
        .subject = Subject::kPipe,
        .text = [](const Project& p, int pipe) { return Decimals(std::fabs(p.PipeFlow[pipe]), 1); },
        .needs_calculation = true,
        .arrow = TextArrow::kFlowDirection},
    ItemRow{"Pressures", Subject::kNode,
            [](const Project& p, int pipe) { return Decimals(p.PipeEndPressure[pipe], 3); },
            [](const Project& p, int pipe) { return Decimals(p.PipeStartPressure[pipe], 3); },
            true},
    ItemRow{.menu_text = "Velocities",
            .subject = Subject::kPipe,
            .text = [](const Project& p, int pipe) { return Decimals(p.PipeVelocity[pipe], 2); },
            .needs_calculation = true},
    ItemRow{.menu_text = "Pressure Drops",
            .subject = Subject::kPipe,
            .text = PressureDropText,
            .needs_calculation = true},
    ItemRow{"Head Densities", Subject::kHeadDensity},
    ItemRow{"Actual pipe length", Subject::kPipe,
            [](const Project& p, int pipe) { return PlainText(p.PipeLength[pipe]); }},
};

const ItemRow& Row(int item) { return kItems.at(static_cast<std::size_t>(item)); }

bool IsCalculated(const Project& project) { return project.ModelState == model_state::kCalculated; }

}  // namespace

std::vector<std::string> DisplayMenuEntries() {
  std::vector<std::string> entries;
  entries.reserve(kItems.size());
  for (const ItemRow& row : kItems) entries.emplace_back(row.menu_text);
  return entries;
}

DisplayTexts::DisplayTexts(const Project& project, int item) : project_(project), item_(item) {
  if (item < 0 || item >= static_cast<int>(kItems.size())) {
    throw RuntimeFailure(failure::kSubscriptOutOfRange);
  }
}

TextPlace DisplayTexts::Place() const {
  return Row(item_).subject == Subject::kPipe ? TextPlace::kMiddle : TextPlace::kNode;
}

TextArrow DisplayTexts::Arrow() const { return Row(item_).arrow; }

std::string DisplayTexts::PipeText(int pipe) {
  const ItemRow& row = Row(item_);
  if (row.needs_calculation && !IsCalculated(project_)) return {};
  const int head = project_.PipeHead[pipe];
  switch (row.subject) {
    case Subject::kPipe:
      return TrimLeft(row.text(project_, pipe));
    case Subject::kNode:
      return IsFirstAtNode(project_.PipeEndNode[pipe]) ? row.text(project_, pipe) : std::string();
    case Subject::kHead:
      return head > 0 ? row.text(project_, pipe) : std::string();
    case Subject::kHeadDensity:
      return head > 0 ? DensityText(head) : std::string();
    default:
      return {};
  }
}

std::string DisplayTexts::SourceText() const {
  constexpr int kFirstPipe = 1;
  const TextOfSlot text = Row(item_).source_text;
  return text != nullptr ? text(project_, kFirstPipe) : std::string();
}

std::string DisplayTexts::HeadFlowText(int pipe) const {
  const int head = project_.PipeHead[pipe];
  if (Row(item_).arrow != TextArrow::kFlowDirection || head <= 0) return {};
  const float flow = project_.HeadFlow[head];
  return std::fabs(flow - project_.PipeFlow[pipe]) > 0.5F ? Decimals(flow, 1) : std::string();
}

bool DisplayTexts::IsFirstAtNode(int node) {
  if (node < 0 || node > kLastNode) throw RuntimeFailure(failure::kSubscriptOutOfRange);
  const auto flag = static_cast<std::size_t>(node);
  if (shown_nodes_[flag]) return false;
  shown_nodes_.set(flag);
  return true;
}

// The density that the head gives, or else is asked for. A head without an area shows that of the
// head before.
std::string DisplayTexts::DensityText(int head) {
  const float area = project_.HeadArea[head];
  if (area > 0.1F) {
    last_density_ =
        IsCalculated(project_) ? project_.HeadFlow[head] / area : project_.HeadDensity[head];
  }
  return Decimals(last_density_, 2);
}

std::string FittingsText(const Project& project, int pipe) {
  std::string text;
  if (project.PipeElbows[pipe] > 0) text += PlainText(project.PipeElbows[pipe]) + "E";
  if (project.PipeTees[pipe] > 0) text += PlainText(project.PipeTees[pipe]) + "T";
  const int valve = project.PipeValve[pipe];
  if (valve > 0) text += " " + project.ValveRefs[valve];
  return text;
}

}  // namespace zeb
