#include "calc/sizing_form.h"

#include <algorithm>

#include "calc/flow_paths.h"
#include "calc/pipe_sizing.h"
#include "calc/unsized_pipes.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr std::size_t kMinNominalField = 3;

// The way from a head to the source, m.
float PathLength(const Project& project, int head) {
  double length = 0.0;
  for (int pipe = PipeOfHead(project, head); pipe > 0; pipe = project.PipeUpstream[pipe]) {
    length += project.PipeLength[pipe];
  }
  return static_cast<float>(length);
}

void FindDistances(Project& project) {
  project.FurthestLength = 0.0F;
  project.FurthestNode = 0;
  project.NearestLength = 0.0F;
  project.NearestNode = 0;
  for (int head = 1; head <= project.HeadCount; ++head) {
    const float length = PathLength(project, head);
    if (head == 1 || length > project.FurthestLength) {
      project.FurthestLength = length;
      project.FurthestNode = NodeOfHead(project, head);
    }
    if (head == 1 || length < project.NearestLength) {
      project.NearestLength = length;
      project.NearestNode = NodeOfHead(project, head);
    }
  }
}

std::string Metres(float length) { return FormatDecimals(length, 3) + " m"; }

float Limited(const std::string& text, float least, float greatest) {
  return std::clamp(static_cast<float>(Val(text)), least, greatest);
}

// Without a head there is no way to spread the drop over: no size is then small enough to pass.
float GradientForTotalDrop(const Project& project) {
  if (project.FurthestLength <= 0.0F) return 0.0F;
  return project.SizingTotalDrop * 1000.0F / project.FurthestLength;
}

}  // namespace

SizingForm::SizingForm(Session& session) : session_(session) {
  Project& project = session.project;
  FindDistances(project);
  ot = {PlainText(project.maxVel), PlainText(project.SizingPdPerM),
        PlainText(project.SizingTotalDrop), PlainText(project.SizingMinNominal)};
  ChooseMethod(project.SizingMethod);
  ShowInformation();
}

void SizingForm::ShowInformation() {
  const Project& project = session_.project;
  const int unsized = project.UnsizedCount;
  lblUnsized = "Number of unsized pipes   =" + SignedText(unsized);
  lblSized = "   Number of sized pipes   =" + SignedText(project.PipeCount - unsized);
  lblFurthest = "Furthest head node =" + SignedText(project.FurthestNode) + " = " +
                Metres(project.FurthestLength);
  lblNearest = "  Nearest head node =" + SignedText(project.NearestNode) + " = " +
               Metres(project.NearestLength);
  lblHighest = "Highest head above source = " + Metres(project.MaxHeadHeight);
}

void SizingForm::ChooseMethod(int method) {
  Option2 = method == kSizeByGradient;
  Option3 = method == kSizeByTotalDrop;
  Option1 = !Option2 && !Option3;
  otEnabled = {Option1, Option2, Option3, true};
}

void SizingForm::Option1_Click() { ChooseMethod(kSizeByVelocity); }
void SizingForm::Option2_Click() { ChooseMethod(kSizeByGradient); }
void SizingForm::Option3_Click() { ChooseMethod(kSizeByTotalDrop); }

void SizingForm::cmdZeroPipes_Click() {
  if (!ZeroAllPipes(session_)) return;
  session_.platform.shell.SetPanel(Panel::kHint, "All pipe size set to 0 mm");
  ShowInformation();
}

void SizingForm::StoreLimits() {
  Project& project = session_.project;
  if (Option1) {
    project.SizingMethod = kSizeByVelocity;
    project.maxVel = Limited(ot[0], 0.5F, 50.0F);
  } else if (Option2) {
    project.SizingMethod = kSizeByGradient;
    project.SizingPdPerM = Limited(ot[1], 1.0F, 1000.0F);
  } else {
    project.SizingMethod = kSizeByTotalDrop;
    project.SizingTotalDrop = Limited(ot[2], 0.5F, 50.0F);
    project.SizingLimit = GradientForTotalDrop(project);
  }
  const float nominal = Limited(ot[kMinNominalField], 0.0F, 300.0F);
  project.SizingMinNominal = nominal < 1.0F ? 0.0F : nominal;
}

void SizingForm::OK_Click() {
  StoreLimits();
  session_.platform.commands.CheckProject(CheckMode::kKeepLines);
  session_.project.SizedCount = 0;
  accepted_ = true;
  session_.platform.shell.Close(*this);
}

void SizingForm::Cancel_Click() {
  session_.platform.shell.Enable(Feature::kDisplayMenu, false);
  session_.project.CalcCancelled = 1;
  session_.platform.shell.Close(*this);
}

}  // namespace zeb
