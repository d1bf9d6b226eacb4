#include "tour/album.h"

#include <QPixmap>
#include <QWidget>
#include <cstdio>
#include <utility>

namespace lorimet {
namespace {

constexpr int kFastPng = 80;  // quality: little compression, quickly written

constexpr char kHead[] = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Norvick Lorimet: the tour</title>
<style>
body { font-family: sans-serif; max-width: 70em; margin: 2em auto; padding: 0 1em; color: #222; }
h2 { border-bottom: 1px solid #bbb; margin-top: 2em; }
.pictures { display: flex; flex-wrap: wrap; gap: 1.5em; align-items: flex-start; }
figure { margin: 0; max-width: 32em; }
img { max-width: 100%; border: 1px solid #bbb; }
figcaption { color: #555; padding-top: .3em; }
p.step { margin: .2em 0; }
.moment { color: #777; display: inline-block; width: 6em; text-align: right; margin-right: 1em; }
</style>
</head>
<body>
)";

QString NameOf(const QString& language) {
  if (language == QLatin1String("fr")) return QStringLiteral("French");
  if (language == QLatin1String("es")) return QStringLiteral("Spanish");
  return QStringLiteral("English");
}

QString Moment(double moment) { return QStringLiteral("%1 s").arg(moment, 0, 'f', 1); }

}  // namespace

Album::Album(QString folder, QString language)
    : folder_(std::move(folder)),
      language_(std::move(language)),
      transcript_(folder_ + QStringLiteral("/transcript.txt")) {
  transcript_.open(QIODevice::WriteOnly | QIODevice::Text);
}

void Album::Chapter(const QString& title) {
  EndPictures();
  body_ += QStringLiteral("<h2>%1</h2>\n").arg(title.toHtmlEscaped());
  transcript_.write(("\n" + title + "\n").toUtf8());
  std::printf("==> %s\n", qPrintable(title));
}

void Album::Note(double moment, const QString& line) {
  transcript_.write(QStringLiteral("%1  %2\n").arg(Moment(moment), 9).arg(line).toUtf8());
  transcript_.flush();
}

void Album::Tell(double moment, const QString& line) {
  Note(moment, line);
  EndPictures();
  body_ += QStringLiteral("<p class=\"step\"><span class=\"moment\">%1</span>%2</p>\n")
               .arg(Moment(moment), line.toHtmlEscaped());
  std::printf("%11s  %s\n", qPrintable(Moment(moment)), qPrintable(line));
  std::fflush(stdout);
}

QString Album::Keep(QWidget& window, const QString& name, const QString& caption) {
  const QString file = QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QChar('0')).arg(name);
  if (!window.grab().save(folder_ + QChar('/') + file, "PNG", kFastPng)) return {};
  if (!std::exchange(in_pictures_, true)) body_ += QStringLiteral("<div class=\"pictures\">\n");
  body_ += QStringLiteral(
               "<figure><a href=\"%1\"><img src=\"%1\" alt=\"%2\"></a>"
               "<figcaption>%2</figcaption></figure>\n")
               .arg(file, caption.toHtmlEscaped());
  return file;
}

void Album::EndPictures() {
  if (std::exchange(in_pictures_, false)) body_ += QStringLiteral("</div>\n");
}

void Album::Show(const QString& file, const QString& caption) {
  files_ << QStringLiteral("<li><a href=\"%1\">%1</a>: %2</li>\n")
                .arg(file.toHtmlEscaped(), caption.toHtmlEscaped());
}

bool Album::Close(const QString& verdict) {
  QFile page(folder_ + QStringLiteral("/index.html"));
  if (!page.open(QIODevice::WriteOnly | QIODevice::Text)) return false;
  EndPictures();
  const QString text =
      QStringLiteral(
          "<h1>Norvick Lorimet: the tour</h1>\n"
          "<p>The program by itself on the simulated trailer, in %1. %2</p>\n"
          "<p>Moments are seconds of the trailer's time. Everything, step by step: "
          "<a href=\"transcript.txt\">transcript</a>.</p>\n")
          .arg(NameOf(language_), verdict.toHtmlEscaped()) +
      body_ + QStringLiteral("<h2>Files</h2>\n<ul>\n") + files_.join(QString()) +
      QStringLiteral("</ul>\n</body>\n</html>\n");
  return page.write(kHead + text.toUtf8()) > 0 && page.flush() && transcript_.flush();
}

}  // namespace lorimet
