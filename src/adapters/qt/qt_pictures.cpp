#include "adapters/qt/qt_pictures.h"

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPalette>

namespace lorimet {
namespace {

bool IsNight() {
  const QPalette palette = QApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

// By night with the lightness of each dot reversed; the hues stay.
QPixmap OfTheHour(const QPixmap& picture) {
  if (picture.isNull() || !IsNight()) return picture;
  QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor dot = image.pixelColor(x, y);
      image.setPixelColor(
          x, y,
          QColor::fromHsl(dot.hslHue(), dot.hslSaturation(), 255 - dot.lightness(), dot.alpha()));
    }
  return QPixmap::fromImage(image);
}

}  // namespace

QPixmap LoadPicture(const QString& name, double pixel_ratio) {
  const QString path = QStringLiteral(":/pictures/") + name;
  const QString fine = path + QStringLiteral("@2x.png");
  const bool is_fine = pixel_ratio > 1.0 && QFile::exists(fine);
  QPixmap pixmap(is_fine ? fine : path + QStringLiteral(".png"));
  if (is_fine) pixmap.setDevicePixelRatio(2.0);
  return OfTheHour(pixmap);
}

QIcon LoadIcon(const QString& name) {
  QIcon icon(LoadPicture(name, 1.0));
  icon.addPixmap(LoadPicture(name, 2.0));
  return icon;
}

void AdaptPictures(QWidget& window) {
  if (!IsNight()) return;
  for (QLabel* label : window.findChildren<QLabel*>())
    if (const QPixmap pixmap = label->pixmap(Qt::ReturnByValue); !pixmap.isNull())
      label->setPixmap(OfTheHour(pixmap));
  for (QAction* action : window.findChildren<QAction*>()) {
    const QIcon designed = action->icon();
    QIcon icon;
    for (const QSize& size : designed.availableSizes())
      for (const double ratio : {1.0, 2.0}) icon.addPixmap(OfTheHour(designed.pixmap(size, ratio)));
    if (!designed.isNull()) action->setIcon(icon);
  }
}

}  // namespace lorimet
