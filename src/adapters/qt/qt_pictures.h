// The program's own pictures, as fine as the screen and by night light on dark.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

class QWidget;

namespace lorimet {

// The picture of a name, without a folder and an ending.
QPixmap LoadPicture(const QString& name, double pixel_ratio);
QIcon LoadIcon(const QString& name);
// Gives those that a window was designed with the look of the hour.
void AdaptPictures(QWidget& window);

}  // namespace lorimet
