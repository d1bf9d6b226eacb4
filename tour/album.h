// What the tour leaves in its folder: pictures with their captions, the list of files written, a
// transcript, and the page that shows them all.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

class QWidget;

namespace lorimet {

class Album {
 public:
  // The folder stands. `language` is that of the pictures: en, fr or es.
  Album(QString folder, QString language);

  const QString& Folder() const { return folder_; }

  // Each begins a section of the page.
  void Chapter(const QString& title);
  // A line of the transcript; `moment` in seconds of the trailer's time.
  void Note(double moment, const QString& line);
  // The same, for the page and the terminal as well.
  void Tell(double moment, const QString& line);
  // The file's name; empty when it cannot be written.
  QString Keep(QWidget& window, const QString& name, const QString& caption);
  // A file of the folder that somebody may want to open.
  void Show(const QString& file, const QString& caption);
  // Writes the page. `verdict` says how the tour ended.
  bool Close(const QString& verdict);

 private:
  void EndPictures();

  QString folder_;
  QString language_;
  QString body_;
  QStringList files_;
  QFile transcript_;
  int pictures_ = 0;
  bool in_pictures_ = false;  // the page's last element holds them, and is open
};

}  // namespace lorimet
