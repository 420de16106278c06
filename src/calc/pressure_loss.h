#pragma once

#include <span>

#include "model/project.h"

namespace zeb {

// Sets PipeEqLength (m) of a pipe as it would be at the size of column `size_index`, and its
// Hazen-Williams coefficient, which stands in PipeStartPressure while the calculation runs. Needs
// the fluid settings. A size without a bore is a division by zero.
void EquivalentLength(Project& project, int pipe, int size_index);

// Sets PipeOrificeDrop and PipeDrop (bar) from PipeFlow.
void PipeDropFromFlow(Project& project, int pipe);

// m/s, from L/min and mm.
[[nodiscard]] double PipeVelocityOf(double flow, double bore);

// mbar/m, from bar and m.
[[nodiscard]] double PressureGradient(double drop, double eq_length);

// The bore of a pipe at its present size, mm.
[[nodiscard]] float BoreOf(const Project& project, int pipe);

// PipeDropFromFlow for many pipes in a row: what is the same for all is looked up once, and the
// pipe number is taken on trust. Valid while the project's tables stand.
class PipeDrops {
 public:
  explicit PipeDrops(Project& project);

  void Update(int pipe) const;

 private:
  [[nodiscard]] double FrictionLoss(int pipe, double flow) const;
  [[nodiscard]] double DarcyLoss(int pipe, double flow) const;

  const Project& project_;
  int loss_model_;
  double sg_;
  std::span<const float> flow_;
  std::span<const float> coefficient_;
  std::span<const float> orifice_;
  std::span<const float> added_drop_;
  std::span<float> orifice_drop_;
  std::span<float> drop_;
};

}  // namespace zeb
