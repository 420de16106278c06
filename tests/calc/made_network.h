#pragma once

#include <initializer_list>

#include "model/project.h"

namespace zeb::test {

// A network put together row by row, of steel with C 120 and roughness 0.046 mm in bores of 27.3,
// 41.9, 53.1, 80.9 and 105.3 mm (size columns 1 to 5, nominal 25, 40, 50, 80 and 100 mm; DN 350 as
// column 6). Water, no supply, 10 m of head per bar. Elbow, welded elbow, tee and valve 5 are 1.0,
// 0.5, 3.0 and 2.0 m in every size.
class MadeNetwork {
 public:
  explicit MadeNetwork(Project& project);

  // A pipe behind the first one that ends at its start node; the first starts at the source. Its
  // slot.
  int Pipe(int start, int end, int size_index, float length, float rise = 0.0F);
  // A head at the end of a pipe. Its slot.
  int Head(int pipe, float k, float area, float density, float min_press);
  // Signed pipe slots.
  void Loop(std::initializer_list<int> pipes);
  // The supply named "Pump": flow and pressure of the points, the last one repeated to the eighth.
  void Supply(std::initializer_list<float> points, float tank_height = 0.0F);

 private:
  Project& project_;
};

// The friction loss in bar by the equation of Hazen and Williams for C 120.
[[nodiscard]] double LossOf(double flow, double bore, double length);

}  // namespace zeb::test
