#include "ui/feature_switches.h"

#include <algorithm>

namespace zeb {

void FeatureSwitches::Add(QAction& action, const std::vector<Feature>& needed,
                          const Condition& condition) {
  actions_.push_back({&action, needed, condition});
  Apply(actions_.back());
}

void FeatureSwitches::Add(QWidget& widget, Feature needed) {
  widgets_.push_back({&widget, needed});
  widget.setEnabled(IsEnabled(needed));
}

void FeatureSwitches::Enable(Feature feature, bool enabled) {
  if (enabled) {
    off_.erase(feature);
  } else {
    off_.insert(feature);
  }
  Refresh();
}

void FeatureSwitches::Refresh() {
  for (const ActionSwitch& row : actions_) Apply(row);
  for (const WidgetSwitch& row : widgets_) row.widget->setEnabled(IsEnabled(row.needed));
}

void FeatureSwitches::Apply(const ActionSwitch& row) const {
  const bool has_features =
      std::ranges::all_of(row.needed, [this](Feature feature) { return IsEnabled(feature); });
  row.action->setEnabled(has_features && (!row.condition || row.condition()));
}

}  // namespace zeb
