#include "made_network.h"

#include <array>
#include <cmath>

#include "calc/fluid.h"
#include "model/model_state.h"

namespace zeb::test {

MadeNetwork::MadeNetwork(Project& project) : project_(project) {
  constexpr std::array kBores{27.3F, 41.9F, 53.1F, 80.9F, 105.3F, 339.6F};
  constexpr std::array kNominals{25, 40, 50, 80, 100, 350};
  project.PipeTypeCount = 1;
  project.PipeSizeCount = static_cast<int>(kBores.size());
  project.TypeC[1] = 120.0F;
  project.TypeFittingFactor[1] = 1.0F;
  project.TypeSizesLine[1] = 1.0F;
  project.TypeRoughness[1] = 0.046F;
  for (int size = 1; size <= project.PipeSizeCount; ++size) {
    project.NominalSizes[0][size] = kNominals.at(size - 1);
    project.PipeBores[size][1] = kBores.at(size - 1);
    project.EqLengths[1][size] = 1.0F;
    project.EqLengths[2][size] = 0.5F;
    project.EqLengths[4][size] = 3.0F;
    project.EqLengths[5][size] = 2.0F;
  }
  project.SupplyCount = 1;
  project.SupplyNames[1] = "None";
  ItemText(project, Item::kSupply) = "None";
  ItemText(project, Item::kFluid) = "Water";
  ItemText(project, Item::kDensity) = "5.0";
  project.WeldSize = 65;
  project.RuleType = 1;
  project.AuthorityStatic = 10.0F;
  project.ModelState = model_state::kChecked;
  ReadFluidSettings(project);
}

int MadeNetwork::Pipe(int start, int end, int size_index, float length, float rise) {
  const int pipe = ++project_.PipeCount;
  if (pipe == 1) project_.SourceNode = start;
  project_.PipeStartNode[pipe] = start;
  project_.PipeEndNode[pipe] = end;
  project_.PipeUpstream[pipe] = project_.NodeFirstPipe[start];
  if (project_.NodeFirstPipe[end] == 0) project_.NodeFirstPipe[end] = pipe;
  project_.PipeType[pipe] = 1;
  project_.PipeSizeIndex[pipe] = size_index;
  project_.PipeSize[pipe] = project_.NominalSizes[0][size_index];
  project_.PipeLength[pipe] = length;
  project_.PipeRise[pipe] = rise;
  project_.PipeZ[pipe] = project_.PipeZ[project_.PipeUpstream[pipe]] + rise;
  return pipe;
}

int MadeNetwork::Head(int pipe, float k, float area, float density, float min_press) {
  const int head = ++project_.HeadCount;
  project_.PipeHead[pipe] = head;
  project_.HeadPipe[head] = static_cast<float>(pipe);
  project_.HeadK[head] = k;
  project_.HeadArea[head] = area;
  project_.HeadDensity[head] = density;
  project_.HeadMinPress[head] = min_press;
  project_.HeadCode[head] = 1.0F;
  return head;
}

void MadeNetwork::Loop(std::initializer_list<int> pipes) {
  const int loop = ++project_.LoopCount;
  project_.LoopFirst[loop] = project_.LoopListLength + 1;
  for (const int pipe : pipes) project_.LoopPipes[++project_.LoopListLength] = pipe;
  project_.LoopLast[loop] = project_.LoopListLength;
}

void MadeNetwork::Supply(std::initializer_list<float> points, float tank_height) {
  const int row = ++project_.SupplyCount;
  project_.SupplyNames[row] = "Pump  ";
  ItemText(project_, Item::kSupply) = "Pump";
  SupplyValues& values = project_.SupplyTable[row];
  std::size_t at = 0;
  for (const float value : points) values.at(at++) = value;
  for (; at < kTankHeightValue; ++at) values.at(at) = values.at(at - 2);
  values.at(kTankHeightValue) = tank_height;
}

double LossOf(double flow, double bore, double length) {
  return 6.05e5 * std::pow(flow, 1.85) * length / std::pow(120.0, 1.85) / std::pow(bore, 4.87);
}

}  // namespace zeb::test
