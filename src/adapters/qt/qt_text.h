// Texts on their way between the controls, which hold UTF-8 with CR LF line ends, and Qt.
#pragma once

#include <QString>

#include <string>

namespace lorimet {

inline QString ToQString(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQString(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// A widget breaks its lines at LF.
inline QString ToWidgetText(const std::string& text) {
  QString result = ToQString(text);
  result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return result;
}

inline std::string FromWidgetText(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return FromQString(text);
}

}  // namespace lorimet
