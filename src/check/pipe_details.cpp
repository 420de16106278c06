#include "check/pipe_details.h"

#include "check/widen.h"

namespace zeb {
namespace {

void SumLengths(Project& project, int pipe) {
  const int type = project.PipeType[pipe];
  const int size = project.PipeSizeIndex[pipe];
  const float length = project.PipeLength[pipe] + project.PipeAddLength[pipe];
  const double bore = project.PipeBores[size][type];  // mm
  const double volume = length * 3.14159 * bore * bore / 4000000.0;
  project.PipeLengthByTypeSize[size][type] += length;
  project.TotalLength += length;
  project.TotalVolume = static_cast<float>(project.TotalVolume + volume);
}

void SeedExtremes(Project& project) {
  project.MinSize = project.MaxSize = project.PipeSize[1];
  project.MinLength = project.MaxLength = project.PipeLength[1];
  project.MinNode = project.MaxNode = project.PipeStartNode[1];
}

void WidenExtremes(Project& project, int pipe) {
  Widen(project.MinSize, project.MaxSize, project.PipeSize[pipe]);
  Widen(project.MinLength, project.MaxLength, project.PipeLength[pipe]);
  Widen(project.MinNode, project.MaxNode, project.PipeStartNode[pipe]);
  Widen(project.MinNode, project.MaxNode, project.PipeEndNode[pipe]);
}

void CountSpecialItems(Project& project, int pipe) {
  if (project.PipeHead[pipe] > 0) project.PipeHydrant[pipe] = 0.0F;
  if (project.PipeHydrant[pipe] != 0.0F) {
    ++project.HydrantCount;
    project.TotalHydrantFlow += project.PipeHydrant[pipe];
  }
  if (project.PipeOrifice[pipe] > 0.0F) ++project.OrificeCount;
}

}  // namespace

void SumUpPipes(CheckRun& run) {
  Project& project = run.project;
  project.PipeLengthByTypeSize.Clear();
  if (run.pipes > 0) SeedExtremes(project);
  for (int pipe = 1; pipe <= run.pipes; ++pipe) {
    SumLengths(project, pipe);
    WidenExtremes(project, pipe);
    CountSpecialItems(project, pipe);
  }
}

}  // namespace zeb
