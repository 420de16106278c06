#include "calc/pressure_loss.h"

#include <algorithm>
#include <cmath>

#include "calc/fluid.h"
#include "calc/friction_factor.h"
#include "calc/friction_table.h"
#include "services/design_authorities.h"

namespace zeb {
namespace {

// Columns of the table of equivalent lengths that stand for fittings.
constexpr int kElbow = 1;
constexpr int kWeldedElbow = 2;
constexpr int kTee = 4;

constexpr double kFlowExponent = 1.85;
constexpr double kBoreExponent = 4.87;

// The Reynolds numbers at which the two friction factors begin.
constexpr double kLeastTableReynolds = 4100.0;
constexpr double kLeastFormulaReynolds = 40000.0;

constexpr float kLargestTabledSize = 301.0F;  // mm
constexpr float kLeastBore = 1.0F;            // mm; a smaller one stands for a size not made

struct PipeWall {
  double c;               // Hazen-Williams
  double fitting_factor;  // on equivalent lengths
};

// Steel of C 120 corrodes where air stands in the pipe.
PipeWall WallOf(const Project& project, int pipe) {
  const int type = project.PipeType[pipe];
  const float c = project.TypeC[type];
  const bool dry = project.DrySystem != 0 && pipe >= project.DryFromPipe;
  if (dry && c > 119.0F && c < 121.0F) return {100.0, 0.714};
  return {c, project.TypeFittingFactor[type]};
}

double ElbowLength(const Project& project, int pipe, int size_index) {
  const int elbow = project.PipeSize[pipe] >= project.WeldSize ? kWeldedElbow : kElbow;
  return project.EqLengths[elbow][size_index];
}

double FittingsLength(const Project& project, int pipe, int size_index) {
  const int nominal = project.PipeSize[pipe];
  double elbow = ElbowLength(project, pipe, size_index);
  double tee = project.EqLengths[kTee][size_index];
  if (project.RuleType == kRulesGeneral && nominal > kLargestTabledSize) {
    elbow = 0.0134 * nominal;
    tee = 0.06 * nominal;
  }
  double length = project.PipeElbows[pipe] * elbow + project.PipeTees[pipe] * tee;
  if (const int valve = project.PipeValve[pipe]; valve > 0) {
    length += project.EqLengths[valve][size_index];
  }
  return length;
}

// Equivalent lengths are told for Schedule 40 pipe; another bore changes them (NFPA 13).
double BoreFactor(const Project& project, int pipe, int size_index) {
  const int schedule40 = project.Schedule40Type;
  const int type = project.PipeType[pipe];
  if (schedule40 <= 0 || type == schedule40) return 1.0;
  const float reference = project.PipeBores[size_index][schedule40];
  if (reference <= kLeastBore) return 1.0;
  const double ratio = static_cast<double>(project.PipeBores[size_index][type]) / reference;
  return std::clamp(std::pow(ratio, kBoreExponent), 0.7, 1.3);
}

}  // namespace

void EquivalentLength(Project& project, int pipe, int size_index) {
  const float bore = project.PipeBores[size_index][project.PipeType[pipe]];
  if (bore == 0.0F) throw RuntimeFailure(failure::kDivisionByZero);
  const PipeWall wall = WallOf(project, pipe);
  const double fittings = FittingsLength(project, pipe, size_index) *
                          BoreFactor(project, pipe, size_index) * wall.fitting_factor;
  const double straight =
      static_cast<double>(project.PipeLength[pipe]) + project.PipeAddLength[pipe];
  const double joints = static_cast<double>(project.PipeVJ[pipe]) * project.VJ;
  const auto eq_length = static_cast<float>(straight + fittings + joints);
  project.PipeEqLength[pipe] = eq_length;
  // Hazen-Williams with bar, L/min and mm (EN 12845).
  const double coefficient = static_cast<double>(project.FluidSG) * eq_length * 605000.0 /
                             std::pow(wall.c, kFlowExponent) / std::pow(bore, kBoreExponent);
  project.PipeStartPressure[pipe] = static_cast<float>(coefficient);
}

void PipeDropFromFlow(Project& project, int pipe) {
  static_cast<void>(project.PipeFlow[pipe]);  // fails for a pipe outside the table
  PipeDrops(project).Update(pipe);
}

double PipeVelocityOf(double flow, double bore) {
  return std::fabs(flow) / (0.04712 * bore * bore);
}

double PressureGradient(double drop, double eq_length) {
  return std::fabs(drop) * 1000.0 / (eq_length + 0.001);
}

float BoreOf(const Project& project, int pipe) {
  return project.PipeBores[project.PipeSizeIndex[pipe]][project.PipeType[pipe]];
}

PipeDrops::PipeDrops(Project& project)
    : project_(project),
      loss_model_(project.LossModel),
      sg_(project.FluidSG),
      flow_(project.PipeFlow.Slots()),
      coefficient_(project.PipeStartPressure.Slots()),
      orifice_(project.PipeOrifice.Slots()),
      added_drop_(project.PipePressDrop.Slots()),
      orifice_drop_(project.PipeOrificeDrop.Slots()),
      drop_(project.PipeDrop.Slots()) {}

double PipeDrops::FrictionLoss(int pipe, double flow) const {
  if (loss_model_ != kHazenWilliams) return DarcyLoss(pipe, flow);
  return std::pow(std::fabs(flow), kFlowExponent) * coefficient_[pipe];
}

// Darcy-Weisbach with bar, L/min, m, mm and kg/m3.
double PipeDrops::DarcyLoss(int pipe, double flow) const {
  const double bore = BoreOf(project_, pipe);
  const double density = project_.FluidDensity;
  const double roughness = project_.TypeRoughness[project_.PipeType[pipe]] / bore;
  const double reynolds = std::fabs(flow) * density * 21.22 / (bore * project_.FluidViscosity);
  const double f =
      loss_model_ == kDarcyByTable
          ? MoodyTable().Interpolate(roughness, std::max(reynolds, kLeastTableReynolds))
          : FrictionFactor(roughness, std::max(reynolds, kLeastFormulaReynolds));
  return f * 2.252 * project_.PipeEqLength[pipe] * density * flow * flow / std::pow(bore, 5.0);
}

void PipeDrops::Update(int pipe) const {
  const double flow = flow_[pipe];
  if (flow == 0.0) {
    orifice_drop_[pipe] = 0.0F;
    drop_[pipe] = 0.0F;
    return;
  }
  const double k = orifice_[pipe];
  orifice_drop_[pipe] = k > 1.0 ? static_cast<float>(flow * flow * sg_ / (k * k)) : 0.0F;
  const double drop = FrictionLoss(pipe, flow) + added_drop_[pipe] + orifice_drop_[pipe];
  drop_[pipe] = static_cast<float>(std::copysign(1.0, flow) * drop);
}

}  // namespace zeb
