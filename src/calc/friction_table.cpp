#include "calc/friction_table.h"

#include <string_view>

#include "services/number_text.h"

namespace zeb {
namespace {

constexpr int kFieldWidth = 7;

constexpr std::array<float, FrictionTable::kColumns> kRoughnesses{1e-08F, 1e-05F, 2e-05F,  4e-05F,
                                                                  6e-05F, 8e-05F, 0.0001F, 0.0002F};

struct FactorRow {
  float reynolds;
  std::string_view factors;  // one field for each relative roughness
};

constexpr std::array<FactorRow, FrictionTable::kRows> kFactorRows{{
    {4000.0F, " 0.0400 0.0400 0.0400 0.0400 0.0400 0.0400 0.0400 0.0400"},
    {10000.0F, " 0.0310 0.0310 0.0310 0.0310 0.0310 0.0310 0.0310 0.0310"},
    {20000.0F, " 0.0258 0.0258 0.0258 0.0258 0.0258 0.0258 0.0260 0.0262"},
    {40000.0F, " 0.0220 0.0220 0.0220 0.0220 0.0220 0.0224 0.0226 0.0226"},
    {60000.0F, " 0.0200 0.0200 0.0200 0.0200 0.0200 0.0200 0.0200 0.0210"},
    {80000.0F, " 0.0190 0.0190 0.0190 0.0190 0.0190 0.0190 0.0190 0.0200"},
    {100000.0F, " 0.0180 0.0180 0.0182 0.0184 0.0186 0.0187 0.0188 0.0190"},
    {200000.0F, " 0.0155 0.0155 0.0156 0.0157 0.0160 0.0163 0.0165 0.0172"},
    {400000.0F, " 0.0137 0.0138 0.0140 0.0142 0.0144 0.0147 0.0149 0.0158"},
    {600000.0F, " 0.0126 0.0127 0.0130 0.0133 0.0137 0.0140 0.0142 0.0153"},
    {800000.0F, " 0.0121 0.0122 0.0124 0.0128 0.0132 0.0136 0.0138 0.0150"},
    {1000000.0F, " 0.0117 0.0118 0.0121 0.0126 0.0129 0.0133 0.0136 0.0147"},
    {2000000.0F, " 0.0104 0.0106 0.0110 0.0116 0.0121 0.0125 0.0128 0.0142"},
    {4000000.0F, " 0.0094 0.0098 0.0102 0.0110 0.0117 0.0120 0.0124 0.0140"},
    {6000000.0F, " 0.0087 0.0095 0.0098 0.0108 0.0114 0.0118 0.0123 0.0139"},
    {8000000.0F, " 0.0084 0.0092 0.0097 0.0106 0.0113 0.0117 0.0122 0.0138"},
    {10000000.0F, " 0.0081 0.0090 0.0096 0.0105 0.0112 0.0115 0.0120 0.0138"},
    {1e8F, " 0.0060 0.0080 0.0090 0.0099 0.0110 0.0115 0.0120 0.0138"},
}};

// Where `value` lies between `low` and `high`, as a share of their distance.
double ShareOf(double value, float low, float high) {
  return (value - low) / (static_cast<double>(high) - low);
}

double Between(double low, double high, double share) { return low + (high - low) * share; }

}  // namespace

FrictionTable::FrictionTable() {
  for (int column = 1; column <= kColumns; ++column) {
    cells_[0].at(column) = kRoughnesses.at(column - 1);
  }
  for (int row = 1; row <= kRows; ++row) {
    const FactorRow& source = kFactorRows.at(row - 1);
    cells_.at(row)[0] = source.reynolds;
    for (int column = 1; column <= kColumns; ++column) {
      cells_.at(row).at(column) =
          static_cast<float>(Val(source.factors.substr((column - 1) * kFieldWidth, kFieldWidth)));
    }
  }
}

int FrictionTable::ColumnFor(float relative_roughness) const {
  for (int column = 1; column < kColumns; ++column) {
    if (At(0, column) >= relative_roughness) return column;
  }
  return kColumns;
}

int FrictionTable::RowFor(float reynolds) const {
  for (int row = 2; row < kRows; ++row) {
    if (At(row, 0) >= reynolds) return row;
  }
  return kRows;
}

double FrictionTable::Interpolate(double relative_roughness, double reynolds) const {
  const int column = ColumnFor(static_cast<float>(relative_roughness));
  const int row = RowFor(static_cast<float>(reynolds));
  const double share = ShareOf(relative_roughness, At(0, column - 1), At(0, column));
  const double below = Between(At(row - 1, column - 1), At(row - 1, column), share);
  const double above = Between(At(row, column - 1), At(row, column), share);
  return Between(below, above, ShareOf(reynolds, At(row - 1, 0), At(row, 0)));
}

const FrictionTable& MoodyTable() {
  static const FrictionTable table;
  return table;
}

}  // namespace zeb
