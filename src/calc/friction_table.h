#pragma once

#include <array>

namespace zeb {

// Darcy friction factors by Reynolds number and relative roughness, read off Moody's diagram.
class FrictionTable {
 public:
  static constexpr int kRows = 18;    // from 1; row 0 holds the relative roughness
  static constexpr int kColumns = 8;  // from 1; column 0 holds the Reynolds number

  FrictionTable();

  [[nodiscard]] float At(int row, int column) const { return cells_.at(row).at(column); }

  // Linear in both directions between the neighbouring rows and columns, beyond the table's last
  // ones too. The Reynolds number is at least that of the first row. A relative roughness up to
  // that of the first column takes its share of the Reynolds column.
  [[nodiscard]] double Interpolate(double relative_roughness, double reynolds) const;

 private:
  [[nodiscard]] int ColumnFor(float relative_roughness) const;
  [[nodiscard]] int RowFor(float reynolds) const;

  std::array<std::array<float, kColumns + 1>, kRows + 1> cells_{};
};

// The one table of the program.
[[nodiscard]] const FrictionTable& MoodyTable();

}  // namespace zeb
