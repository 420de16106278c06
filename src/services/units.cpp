#include "services/units.h"

#include <array>
#include <cstddef>
#include <optional>

#include "services/number_text.h"

namespace zeb {
namespace {

struct Unit {
  const char* name;
  double factor;
  int decimals;
};

constexpr std::array kPressureUnits{Unit{"bar", 1.0, 3}, Unit{"Kpa", 100.0, 0},
                                    Unit{"psi", 14.5, 0}};
// The factors of the last two belong to a value in L/sec, though they get one in L/min: figures
// already in use rest on it.
constexpr std::array kFlowUnits{Unit{"L/min", 1.0, 2}, Unit{"L/sec", 60.0, 0},
                                Unit{"US gal/min", 15.85, 1}};

template <std::size_t N>
std::optional<Unit> Chosen(const std::array<Unit, N>& units, int number) {
  if (number < 1 || number > static_cast<int>(N)) return std::nullopt;
  return units[static_cast<std::size_t>(number - 1)];
}

std::string NameOf(const std::optional<Unit>& unit) { return unit ? unit->name : ""; }

std::string TextOf(const std::optional<Unit>& unit, float value) {
  return unit ? FormatDecimals(static_cast<double>(value) * unit->factor, unit->decimals) : "";
}

}  // namespace

std::string Units::PressureUnit() const { return NameOf(Chosen(kPressureUnits, pressure_unit_)); }

std::string Units::FlowUnit() const { return NameOf(Chosen(kFlowUnits, flow_unit_)); }

std::string Units::FormatPressure(float bar) const {
  return TextOf(Chosen(kPressureUnits, pressure_unit_), bar);
}

std::string Units::FormatFlow(float litres_per_minute) const {
  return TextOf(Chosen(kFlowUnits, flow_unit_), litres_per_minute);
}

}  // namespace zeb
