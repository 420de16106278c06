#include "calc/control_head.h"

#include "calc/heads.h"

namespace zeb {
namespace {

void SetByLaw(Project& project, int head, float pressure) {
  project.HeadPressure[head] = pressure;
  project.HeadFlow[head] = HeadFlowAt(project, head, pressure);
}

// The pass's own change of this head stays out of the pipes: only the step from there counts.
void PinToRequiredPressure(Project& project, int head) {
  const float flow = project.HeadFlow[head];
  project.HeadPressure[head] = HeadPressureAt(project, head, flow);
  if (project.HeadPressure[head] != project.HeadStartPressure[head]) {
    SetByLaw(project, head, project.HeadStartPressure[head]);
  }
  project.HeadFlowChange[head] = project.HeadFlow[head] - flow;
}

void PinToDensity(Project& project, int head, float flow_before) {
  const float flow = project.HeadArea[head] * project.HeadDensity[head];
  project.HeadFlow[head] = flow;
  project.HeadPressure[head] = HeadPressureAt(project, head, flow);
  if (project.HeadPressure[head] < project.HeadStartPressure[head]) {
    SetByLaw(project, head, project.HeadStartPressure[head]);
  }
  project.HeadFlowChange[head] = project.HeadFlow[head] - flow_before;
}

bool PressureGoverns(const Project& project, const PassFigures& figures) {
  if (figures.least_margin > 0.0F) return false;
  const int head = figures.least_density_head;
  return head == 0 || figures.least_density >= project.HeadDensity[head];
}

}  // namespace

void ChooseControlHead(Project& project, const PassFigures& figures) {
  const int density_head = figures.least_density_head;
  const int weakest = density_head != 0 ? density_head : figures.least_margin_head;
  if (figures.over_final_tol == 0 || project.PumpCurveIndex != 0) {
    project.ControlHead = weakest;
  } else if (PressureGoverns(project, figures)) {
    project.ControlHead = figures.least_margin_head;
    PinToRequiredPressure(project, figures.least_margin_head);
  } else {
    project.ControlHead = weakest;
    if (density_head != 0) PinToDensity(project, density_head, figures.least_density_flow_before);
  }
}

}  // namespace zeb
