#include "view/height_limits_form.h"

#include <algorithm>

#include "services/number_text.h"
#include "services/text.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

constexpr float kHighestLimit = 99.99F;
constexpr float kDefaultDepth = 3.0F;

std::string HeightText(float height) { return FormatDecimals(height, 1); }

}  // namespace

HeightLimitsForm::HeightLimitsForm(Session& session)
    : Message("Current heights on job are from " + HeightText(session.project.MinZ) + " to " +
              HeightText(session.project.MaxZ) + " m" + std::string(kLineBreak) +
              std::string(kLineBreak) +
              "You can restrict the pipes shown on subsequent elevations and isometrics by giving "
              "the appropriate minimum and maximum heights below or click on 'Cancel' to show all "
              "the pipes."),
      MinHeight(HeightText(session.project.MinZLimit)),
      MaxHeight(HeightText(session.project.MaxZLimit)),
      session_(session) {}

void HeightLimitsForm::cmdOK_Click() {
  Project& project = session_.project;
  project.ZLimitOn = kHeightsRestricted;
  project.MinZLimit = std::max(static_cast<float>(Val(MinHeight)), 0.0F);
  project.MaxZLimit = std::min(static_cast<float>(Val(MaxHeight)), kHighestLimit);
  if (project.MaxZLimit <= project.MinZLimit) {
    project.MaxZLimit = project.MinZLimit + kDefaultDepth;
  }
  session_.platform.shell.Close(*this);
}

void HeightLimitsForm::cmdCancel_Click() {
  session_.project.ZLimitOn = kHeightsFree;
  session_.platform.shell.Close(*this);
}

}  // namespace zeb
