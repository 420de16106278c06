#include "ui/status_panels.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>

#include "ui/icons.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr std::array<const char*, 7> kTips{"",
                                           "Pipes, loops, heads and their area",
                                           "What a click on the drawing does",
                                           "View",
                                           "Lowest and highest node",
                                           "Errors of the last check. A click shows or hides "
                                           "their boxes.",
                                           "Green when the project is saved"};

// What the panel is for: its tip while it has no other.
QString TipOf(Panel panel) { return kTips.at(static_cast<std::size_t>(panel) - 1); }

// A long hint must not make the window wider; it is cut and stands whole in its tip.
class HintLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  [[nodiscard]] QSize minimumSizeHint() const override { return {0, QLabel::sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (text().isEmpty()) {
      QLabel::paintEvent(event);
      return;
    }
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), shown, QPalette::WindowText);
  }
};

}  // namespace

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent) {
  for (int index = 0; index < kPanels; ++index) {
    // The first panel takes what the others leave.
    const bool is_hint = index == 0;
    QLabel* label = is_hint ? new HintLabel(this) : new QLabel(this);
    label->setObjectName(QStringLiteral("panel%1").arg(index + 1));
    label->setToolTip(TipOf(static_cast<Panel>(index + 1)));
    label->setTextFormat(Qt::PlainText);
    label->installEventFilter(this);
    addPermanentWidget(label, is_hint ? 1 : 0);
    labels_.at(static_cast<std::size_t>(index)) = label;
  }
  LabelOf(Panel::kErrors).setCursor(Qt::PointingHandCursor);
  LabelOf(Panel::kSaveState).setMinimumWidth(24);
}

QLabel& StatusPanels::LabelOf(Panel panel) const {
  return *labels_.at(static_cast<std::size_t>(panel) - 1);
}

void StatusPanels::SetText(Panel panel, const std::string& text) {
  LabelOf(panel).setText(ShownText(text));
  if (panel == Panel::kHint) LabelOf(panel).setToolTip(ShownText(text));
}

void StatusPanels::SetTip(Panel panel, const std::string& text) {
  LabelOf(panel).setToolTip(text.empty() ? TipOf(panel) : ShownText(text));
}

void StatusPanels::SetPicture(Panel panel, std::string_view picture) {
  const int size = fontMetrics().height();
  const QString name = ShownText(picture);
  LabelOf(panel).setPixmap(ProgramIcon(name).pixmap(QSize(size, size), devicePixelRatioF()));
  LabelOf(panel).setProperty("picture", name);
}

bool StatusPanels::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress)
    for (int index = 0; index < kPanels; ++index)
      if (watched == labels_.at(static_cast<std::size_t>(index)))
        emit PanelClicked(static_cast<Panel>(index + 1));
  return QStatusBar::eventFilter(watched, event);
}

}  // namespace zeb
