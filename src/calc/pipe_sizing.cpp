#include "calc/pipe_sizing.h"

#include "calc/pressure_loss.h"

namespace zeb {
namespace {

constexpr float kLeastBore = 1.0F;  // mm; a smaller one stands for a size not made

// What a size may use up of a limit.
float Safely(float limit) { return static_cast<float>(0.8 * limit); }

bool IsMade(const Project& project, int pipe, int size) {
  return project.PipeBores[size][project.PipeType[pipe]] > kLeastBore;
}

void SetSize(Project& project, int pipe, int size) {
  project.PipeSizeIndex[pipe] = size;
  project.PipeSize[pipe] = project.NominalSize(project.PipeType[pipe], size);
}

float VelocityAt(const Project& project, int pipe, int size) {
  const float bore = project.PipeBores[size][project.PipeType[pipe]];
  return static_cast<float>(PipeVelocityOf(project.PipeFlow[pipe], bore));
}

// mbar/m, with the fittings that the pipe has at this size. The length of the trial stays.
float GradientAt(Project& project, int pipe, int size) {
  const Int16 present_index = project.PipeSizeIndex[pipe];
  const Int16 present_size = project.PipeSize[pipe];
  SetSize(project, pipe, size);
  EquivalentLength(project, pipe, size);
  PipeDropFromFlow(project, pipe);
  project.PipeSizeIndex[pipe] = present_index;
  project.PipeSize[pipe] = present_size;
  return static_cast<float>(PressureGradient(project.PipeDrop[pipe], project.PipeEqLength[pipe]));
}

bool Suits(Project& project, int pipe, int size) {
  switch (project.SizingMethod) {
    case kSizeByGradient:
      return GradientAt(project, pipe, size) <= Safely(project.SizingPdPerM);
    case kSizeByTotalDrop:
      return GradientAt(project, pipe, size) <= Safely(project.SizingLimit);
    default:
      return VelocityAt(project, pipe, size) <= Safely(project.maxVel);
  }
}

// 0 when the pipe's type has no size at all.
int SuitableSize(Project& project, int pipe) {
  int largest = 0;
  for (int size = 1; size <= project.PipeSizeCount; ++size) {
    if (!IsMade(project, pipe, size)) continue;
    largest = size;
    const auto nominal = static_cast<float>(project.NominalSize(project.PipeType[pipe], size));
    if (nominal >= project.SizingMinNominal && Suits(project, pipe, size)) return size;
  }
  return largest;
}

}  // namespace

void ChoosePipeSize(Session& session, int pipe) {
  Project& project = session.project;
  const int present = project.PipeSizeIndex[pipe];
  const int size = SuitableSize(project, pipe);
  if (size <= present) return;
  if (present == 0) ++project.SizedCount;
  SetSize(project, pipe, size);
  EquivalentLength(project, pipe, size);
}

}  // namespace zeb
