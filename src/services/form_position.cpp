#include "services/form_position.h"

#include <array>
#include <cmath>

#include "services/number_text.h"

namespace zeb {
namespace {

struct StoredValue {
  const char* ending;
  std::optional<int> FormPosition::*value;
};

constexpr std::array kStoredValues{
    StoredValue{"_Top", &FormPosition::top}, StoredValue{"_Left", &FormPosition::left},
    StoredValue{"Width", &FormPosition::width}, StoredValue{"Height", &FormPosition::height}};

const std::string kSection(setting::kFormPositionSection);

// A damaged value counts as none.
std::optional<int> PlaceOf(const std::string& text) {
  constexpr double kFarthest = 32767.0;
  const double value = Val(text);
  if (!IsNumeric(text) || !(std::abs(value) <= kFarthest)) return std::nullopt;
  return RoundToInt16(value);
}

}  // namespace

void SaveFormPos(Settings& settings, const std::string& form, const FormPosition& position) {
  for (const StoredValue& stored : kStoredValues) {
    const std::optional<int> value = position.*stored.value;
    if (value) settings.SaveSetting(kSection, form + stored.ending, PlainText(*value));
  }
}

FormPosition LoadFormPos(Settings& settings, const std::string& form) {
  FormPosition position;
  for (const StoredValue& stored : kStoredValues) {
    position.*stored.value = PlaceOf(settings.GetSetting(kSection, form + stored.ending, ""));
  }
  return position;
}

}  // namespace zeb
