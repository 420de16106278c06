#pragma once

#include <QAction>
#include <QMenu>
#include <QWidget>
#include <functional>
#include <set>
#include <vector>

#include "platform/shell.h"

namespace zeb {

// Enables and disables actions and widgets by the features that they need, and actions by a further
// condition.
class FeatureSwitches {
 public:
  using Condition = std::function<bool()>;
  void Add(QAction& action, const std::vector<Feature>& needed, const Condition& condition = {});
  void Add(QWidget& widget, Feature needed);

  void Enable(Feature feature, bool enabled);
  // Asks the conditions again.
  void Refresh();
  [[nodiscard]] bool IsEnabled(Feature feature) const { return !off_.contains(feature); }

 private:
  struct ActionSwitch {
    QAction* action;
    std::vector<Feature> needed;
    Condition condition;
  };
  struct WidgetSwitch {
    QWidget* widget;
    Feature needed;
  };

  void Apply(const ActionSwitch& row) const;

  std::vector<ActionSwitch> actions_;
  std::vector<WidgetSwitch> widgets_;
  std::set<Feature> off_;
};

}  // namespace zeb
