#include "calc/four_heads.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "calc/heads.h"

namespace zeb {
namespace {

constexpr float kLeastHeadArea = 0.5F;           // m2
constexpr float kAddedBuildingDistance = 99.9F;  // m: keeps a building out of the nearest four

double BearingFromNorth(double dx, double dy) {
  double bearing = std::atan(dx / dy) * 180.0 / std::numbers::pi;
  if (dy < 0.0) bearing += 180.0;
  if (dy > 0.0 && dx < 0.0) bearing += 360.0;
  return bearing >= 360.0 ? bearing - 360.0 : bearing;
}

}  // namespace

float FourHeadSearch::BearingOf(int head, float x, float y) {
  const float dx = project_.HeadX[head] - x;
  const float dy = project_.HeadY[head] - y;
  if (std::fabs(dy) > 0.01F) {
    bearing_ = static_cast<float>(BearingFromNorth(dx, dy));
  } else if (std::fabs(dy) < 0.009F) {
    bearing_ = project_.HeadX[head] > x ? 90.0F : 270.0F;
    if (x == 0.0F) bearing_ = 999.9F;
  }
  return bearing_;
}

std::vector<FourHeadSearch::Candidate> FourHeadSearch::CandidatesAround(float x, float y) {
  std::vector<Candidate> candidates;
  for (int head = 1; head <= project_.HeadCount; ++head) {
    if (!HeadOperates(project_, head) || project_.HeadArea[head] < kLeastHeadArea) continue;
    const float dx = project_.HeadX[head] - x;
    const float dy = project_.HeadY[head] - y;
    const bool building = project_.HeadCode[head] < 0.0F;
    const float distance = building ? kAddedBuildingDistance : std::hypot(dx, dy);
    if (distance > radius_) continue;
    candidates.push_back({head, distance, BearingOf(head, x, y)});
  }
  return candidates;
}

std::optional<FourHeads> FourHeadSearch::Around(float x, float y) {
  std::vector<Candidate> candidates = CandidatesAround(x, y);
  if (candidates.size() < 4) return std::nullopt;
  std::ranges::stable_sort(candidates, {}, &Candidate::distance);
  candidates.resize(4);
  std::ranges::stable_sort(candidates, {}, &Candidate::bearing);
  std::array<int, 4> heads{};
  std::ranges::transform(candidates, heads.begin(), &Candidate::head);
  return Measured(heads);
}

float FourHeadSearch::PlanArea(const std::array<int, 4>& heads) const {
  double twice_area = 0.0;
  int before = heads.back();
  for (const int head : heads) {
    const double x_sum = static_cast<double>(project_.HeadX[before]) + project_.HeadX[head];
    twice_area += x_sum * (static_cast<double>(project_.HeadY[before]) - project_.HeadY[head]);
    before = head;
  }
  return static_cast<float>(std::fabs(twice_area) / 2.0);
}

FourHeads FourHeadSearch::Measured(const std::array<int, 4>& heads) const {
  FourHeads four{.heads = heads, .area = PlanArea(heads)};
  for (const int head : heads) {
    four.flow += project_.HeadFlow[head];
    four.required_density += project_.HeadDensity[head] / 4.0F;
  }
  four.density = four.area > 1.0F ? four.flow / four.area / 4.0F : kNoDensity;
  return four;
}

}  // namespace zeb
