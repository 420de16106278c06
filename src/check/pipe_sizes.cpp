#include "check/pipe_sizes.h"

#include <cstdlib>
#include <string>

#include "check/correction.h"
#include "services/number_text.h"

namespace zeb {
namespace {

// The pipe data mark a size that a type does not have by a bore up to this, mm.
constexpr float kAbsentBore = 1.0F;

bool HasSize(const Project& project, int type, int size_index) {
  return project.PipeBores[size_index][type] > kAbsentBore;
}

// The last column whose nominal size lies nearest to `size`; 0 for a type without sizes.
int NearestSize(const Project& project, int type, int size) {
  int nearest = 0;
  int least_distance = 0;
  for (int index = 1; index <= project.PipeSizeCount; ++index) {
    if (!HasSize(project, type, index)) continue;
    const int distance = std::abs(project.NominalSize(type, index) - size);
    if (nearest != 0 && distance > least_distance) continue;
    nearest = index;
    least_distance = distance;
  }
  return nearest;
}

std::string SizesOf(const Project& project, int type) {
  std::string sizes;
  for (int index = 1; index <= project.PipeSizeCount; ++index) {
    if (HasSize(project, type, index)) {
      sizes += SignedText(project.NominalSize(type, index)) + " ";
    }
  }
  return sizes;
}

void TakeNearestSize(CheckRun& run, PipeInput& input, int nearest) {
  const Project& project = run.project;
  const int size = nearest != 0 ? project.NominalSize(input.type, nearest) : input.size;
  ReportCorrection(run, input, Fault::kSize,
                   {{"size", SignedText(input.size)},
                    {"type", SignedText(input.type)},
                    {"description", project.PipeTypeDescriptions[input.type]},
                    {"sizes", SizesOf(project, input.type)},
                    {"n", SignedText(size)}});
  input.size_index = nearest;
  input.size = size;
}

}  // namespace

void TakePipeType(CheckRun& run, PipeInput& input, std::string_view word) {
  const Project& project = run.project;
  input.type = ValInt16(word);
  if (input.type == 0) input.type = input.slot == 1 ? 1 : int{project.PipeType[input.slot - 1]};
  if (input.type >= 1 && input.type <= project.PipeTypeCount) return;
  ReportCorrection(run, input, Fault::kPipeType,
                   {{"type", SignedText(input.type)},
                    {"n", SignedText(project.PipeTypeCount)},
                    {"file", project.PipeDataFile}});
  input.type = 1;
}

void FindPipeSize(CheckRun& run, PipeInput& input) {
  Project& project = run.project;
  if (input.size == 0) ++project.UnsizedCount;
  const int nearest = NearestSize(project, input.type, input.size);
  if (nearest != 0 && project.NominalSize(input.type, nearest) == input.size) {
    input.size_index = nearest;
  } else if (input.size > 1) {
    TakeNearestSize(run, input, nearest);
  }
}

}  // namespace zeb
