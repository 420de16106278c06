#include "ui/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <utility>

// The icons lie in a static library, which a program must ask for them.
static void LoadIcons() { Q_INIT_RESOURCE(zeb); }

namespace zeb {
namespace {

QByteArray IconSource(const QString& name) {
  LoadIcons();
  QFile file(":/icons/" + name + ".svg");
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SvgIconEngine final : public QIconEngine {
 public:
  SvgIconEngine(QByteArray source, qreal turned_degrees)
      : source_(std::move(source)), turned_degrees_(turned_degrees) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const bool disabled = mode == QIcon::Disabled;
    QByteArray coloured = source_;
    const QColor colour = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    coloured.replace("currentColor", colour.name().toLatin1());
    QSvgRenderer renderer(coloured);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(disabled ? 0.3 : 1.0);
    painter->translate(QRectF(rect).center());
    painter->rotate(turned_degrees_);
    const QSizeF size = QSizeF(renderer.defaultSize()).scaled(rect.size(), Qt::KeepAspectRatio);
    renderer.render(painter, QRectF(QPointF(-size.width() / 2, -size.height() / 2), size));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(*this); }

 private:
  QByteArray source_;
  qreal turned_degrees_;
};

}  // namespace

QIcon ProgramIcon(const QString& name, qreal turned_degrees) {
  return QIcon(new SvgIconEngine(IconSource(name), turned_degrees));
}

}  // namespace zeb
