#include "calc/heads.h"

#include <cmath>

#include "calc/flow_paths.h"

namespace zeb {
namespace {

constexpr float kLeastK = 0.01F;

void StartHead(Project& project, int head) {
  if (project.HeadK[head] <= kLeastK) project.HeadK[head] = kLeastK;
  auto flow =
      static_cast<float>(static_cast<double>(project.HeadDensity[head]) * project.HeadArea[head]);
  float pressure = HeadPressureAt(project, head, flow);
  if (project.RestartState == 0 && pressure < project.HeadMinPress[head]) {
    pressure = project.HeadMinPress[head];
    flow = HeadFlowAt(project, head, pressure);
  }
  project.HeadFlow[head] = flow;
  project.HeadFlowChange[head] = flow;
  project.HeadPressure[head] = pressure;
  project.HeadStartPressure[head] = pressure;
}

}  // namespace

bool HeadOperates(const Project& project, int head) {
  return project.SelectedHeadsMode == 0 || project.HeadOn[head] != 0;
}

std::vector<int> OperatingHeads(const Project& project) {
  std::vector<int> heads;
  for (int head = 1; head <= project.HeadCount; ++head) {
    if (HeadOperates(project, head)) heads.push_back(head);
  }
  return heads;
}

float HeadFlowAt(const Project& project, int head, float pressure) {
  const double root = std::sqrt(static_cast<double>(pressure) / project.FluidSG);
  return static_cast<float>(project.HeadK[head] * root);
}

float HeadPressureAt(const Project& project, int head, float flow) {
  const double root = static_cast<double>(flow) / project.HeadK[head];
  return static_cast<float>(project.FluidSG * root * root);
}

void StartHeads(Project& project, std::span<const int> heads) {
  for (const int head : heads) {
    StartHead(project, head);
    project.DesignFlow += project.HeadFlow[head];
  }
}

void StartPipeFlows(Project& project) {
  project.PipeFlow.Clear();
  project.PipeDrop.Clear();
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeHydrant[pipe] != 0.0F) AddAlongPath(project, pipe, project.PipeHydrant[pipe]);
  }
}

float HeightAboveSource(const Project& project, int head) {
  return project.PipeZ[PipeOfHead(project, head)] - project.PipeZ[0];
}

void PushHeadFlowChanges(Project& project, std::span<const int> heads) {
  for (const int head : heads) {
    project.HeadHeight[head] = HeightAboveSource(project, head);
    AddAlongPath(project, PipeOfHead(project, head), project.HeadFlowChange[head]);
  }
}

}  // namespace zeb
