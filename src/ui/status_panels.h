#pragma once

#include <QStatusBar>
#include <array>
#include <string>
#include <string_view>

#include "platform/shell.h"

class QLabel;

namespace zeb {

// The status bar with its seven panels, whose object names are panel1 to panel7.
class StatusPanels final : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusPanels(QWidget* parent = nullptr);

  void SetText(Panel panel, const std::string& text);
  void SetTip(Panel panel, const std::string& text);
  void SetPicture(Panel panel, std::string_view picture);

 signals:
  void PanelClicked(zeb::Panel panel);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr int kPanels = 7;

  [[nodiscard]] QLabel& LabelOf(Panel panel) const;

  std::array<QLabel*, kPanels> labels_{};
};

}  // namespace zeb
