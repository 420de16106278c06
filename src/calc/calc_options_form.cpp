#include "calc/calc_options_form.h"

#include <cstddef>

#include "calc/flow_paths.h"
#include "services/number_text.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::size_t kMinVelField = 0;
constexpr std::size_t kMaxVelField = 1;
constexpr std::size_t kMaxPdField = 2;
constexpr std::size_t kNodeField = 3;

// The section of zeb.ini that keeps the limits for the colours of results.
constexpr const char* kSection = "CalcOptions";

// At least one decimal: "6.0".
std::string LimitText(float value) {
  const std::string text = PlainText(value);
  return Contains(text, ".") ? text : text + ".0";
}

// The head at the end of a pipe to this node, 0 when there is none.
int HeadAtNode(const Project& project, int node) {
  for (int head = 1; head <= project.HeadCount; ++head) {
    if (NodeOfHead(project, head) == node) return head;
  }
  return 0;
}

// The node of a text; 0 outside the project's nodes.
int NodeOf(const Project& project, const std::string& text) {
  const double value = Val(text);
  if (!(value >= project.MinNode && value <= project.MaxNode)) return 0;
  return RoundToInt16(value);
}

float HeadsArea(const Project& project) {
  return project.SelectedHeadsMode == 1 ? project.SelectedArea : project.TotalHeadArea;
}

void StoreItem(Project& project, Item item, const std::string& text) {
  if (ItemText(project, item) == text) return;
  ItemText(project, item) = text;
  project.DataChanged = 1;
}

}  // namespace

CalcOptionsForm::CalcOptionsForm(Session& session) : session_(session) {
  const Project& project = session.project;
  ComWaterSupply = ItemText(project, Item::kSupply);
  for (int row = 1; row <= project.SupplyCount; ++row) {
    ComWaterSupplyList.push_back(project.SupplyNames[row]);
  }
  ot.at(kMinVelField) = LimitText(project.minVel);
  ot.at(kMaxVelField) = LimitText(project.maxVel);
  ot.at(kMaxPdField) = LimitText(project.maxPD);
  chkPartSave = project.PartSave != 0;
  chkCalcSource = project.CalcSource != 0;
  txtComment = ItemText(project, Item::kComments);
  ShowRemoteNode();
  ShowDesignArea();
  session.platform.shell.SetPanel(Panel::kHint,
                                  "Click on 'OK' to begin the hydraulic balancing of your system");
}

// A node that is no head of this project was meant for another one.
void CalcOptionsForm::ShowRemoteNode() {
  const std::string text = Trim(session_.project.MrNodeText);
  const int node = NodeOf(session_.project, text);
  chkNo_MRH = text == "0";
  chkFind_MRH = !chkNo_MRH && (node == 0 || HeadAtNode(session_.project, node) == 0);
  if (!chkFind_MRH) ot.at(kNodeField) = text;
  NodeEnabled = !chkFind_MRH && !chkNo_MRH;
}

void CalcOptionsForm::ShowDesignArea() {
  Project& project = session_.project;
  const float area = HeadsArea(project);
  const std::string& specified = ItemText(project, Item::kDesignArea);
  const auto specified_area = static_cast<float>(Val(specified));
  lblDensity = FormatDecimals(Val(ItemText(project, Item::kDensity)), 2) + " mm/min over " +
               Trim(FixedNumber(area, 9, 3)) + " m2";
  lblDesignArea = ItemText(project, Item::kAreaReference);
  if (area < specified_area) {
    lblAreaNote = "But " + Trim(FixedNumber(specified_area, 9, 3)) + " m2 specified";
  } else if (project.PumpCurveIndex > 0 && area > specified_area) {
    lblAreaNote = "Pump curve specified";
  }
  DesignAreaRed = !lblAreaNote.empty();
}

void CalcOptionsForm::chkFind_MRH_Click() {
  if (chkFind_MRH) chkNo_MRH = false;
  ApplyNodeChoice();
}

void CalcOptionsForm::chkNo_MRH_Click() {
  if (chkNo_MRH) chkFind_MRH = false;
  ApplyNodeChoice();
}

void CalcOptionsForm::ApplyNodeChoice() {
  NodeEnabled = !chkFind_MRH && !chkNo_MRH;
  if (chkFind_MRH) ot.at(kNodeField).clear();
  if (chkNo_MRH) ot.at(kNodeField) = "0";
}

void CalcOptionsForm::StoreTexts() {
  Project& project = session_.project;
  StoreItem(project, Item::kSupply, ComWaterSupply);
  StoreItem(project, Item::kComments, txtComment);
  project.PartSave = chkPartSave ? 1 : 0;
}

void CalcOptionsForm::ReadLimits() {
  Project& project = session_.project;
  project.minVel = static_cast<float>(Val(ot.at(kMinVelField)));
  project.maxVel = static_cast<float>(Val(ot.at(kMaxVelField)));
  project.maxPD = static_cast<float>(Val(ot.at(kMaxPdField)));
}

// The settings keep what was typed, the calculation takes what makes sense.
void CalcOptionsForm::KeepLimits() {
  const Project& project = session_.project;
  session_.settings.SetIniValue(kSection, "minVel", PlainText(project.minVel));
  session_.settings.SetIniValue(kSection, "maxVel", PlainText(project.maxVel));
  session_.settings.SetIniValue(kSection, "maxPD", PlainText(project.maxPD));
}

void CalcOptionsForm::CorrectLimits() {
  Project& project = session_.project;
  if (project.minVel > project.maxVel) project.minVel = 0.0F;
  if (project.maxVel > 119.0F) project.maxPD = 119.0F;
  if (project.maxPD < 0.1F) project.maxPD = 0.1F;
}

bool CalcOptionsForm::StoreRemoteNode() {
  Project& project = session_.project;
  std::string& text = ot.at(kNodeField);
  const int node = NodeOf(project, text);
  const int head = node > 0 ? HeadAtNode(project, node) : 0;
  if (node > 0 && head == 0) {
    session_.platform.dialogs.Show(
        {.title = "Incorrect most remotest head node number",
         .text = "The node number " + text + " has not been specified - please retype",
         .icon = MessageIcon::kWarning});
    text.clear();
    return false;
  }
  project.MrNodeText = Trim(text);
  project.ChosenMrHead = head;
  return true;
}

void CalcOptionsForm::OK_Click() {
  Procedure procedure(session_, "frmCalc", "OK_Click");
  procedure.Step(10, [this] { StoreTexts(); });
  procedure.Step(20, [this] { ReadLimits(); });
  procedure.Step(30, [this] { KeepLimits(); });
  procedure.Step(40, [this] { CorrectLimits(); });
  if (!StoreRemoteNode()) return;
  accepted_ = true;
  session_.platform.shell.Close(*this);
}

void CalcOptionsForm::Cancel_Click() {
  session_.platform.shell.Enable(Feature::kDisplayMenu, false);
  session_.project.CalcCancelled = 1;
  session_.platform.shell.Close(*this);
}

}  // namespace zeb
