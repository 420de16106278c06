#include "services/form_position.h"

#include <array>

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
    const std::string text = settings.GetSetting(kSection, form + stored.ending, "");
    if (IsNumeric(text)) position.*stored.value = ValInt16(text);
  }
  return position;
}

}  // namespace zeb
