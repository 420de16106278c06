#pragma once

#include <array>
#include <optional>
#include <vector>

#include "model/project.h"

namespace zeb {

// Four heads and the density on the area between them.
struct FourHeads {
  std::array<int, 4> heads{};     // slots, in bearing order
  float flow = 0.0F;              // sum of the four, L/min
  float area = 0.0F;              // in plan between the four, m2
  float density = 0.0F;           // a quarter of the flow on the area, mm/min
  float required_density = 0.0F;  // mean of the four, mm/min
};

// Finds the four heads nearest to a point. One object serves all points of a search.
class FourHeadSearch {
 public:
  // `radius` in m: farther heads take no part.
  FourHeadSearch(const Project& project, float radius) : project_(project), radius_(radius) {}

  // The four operating heads around a point of the plan; nothing when fewer are within the radius.
  [[nodiscard]] std::optional<FourHeads> Around(float x, float y);

 private:
  struct Candidate {
    int head;
    float distance;  // m
    float bearing;   // degrees from the y axis
  };

  [[nodiscard]] std::vector<Candidate> CandidatesAround(float x, float y);
  [[nodiscard]] float BearingOf(int head, float x, float y);
  [[nodiscard]] float PlanArea(const std::array<int, 4>& heads) const;
  [[nodiscard]] FourHeads Measured(const std::array<int, 4>& heads) const;

  const Project& project_;
  float radius_;
  float bearing_ = 0.0F;  // the last one found: between two thresholds a head takes it over
};

// The density of four heads whose plan area is too small to tell, mm/min.
inline constexpr float kNoDensity = 9999.9F;

}  // namespace zeb
