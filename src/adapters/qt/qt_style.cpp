#include "adapters/qt/qt_style.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QStringList>
#include <QStyleFactory>

namespace lorimet {
namespace {

constexpr double kFontPoints = 10.0;

struct ColorRow {
  QPalette::ColorRole role;
  const char* normal;
  const char* disabled;
};

// A light grey-blue bench with white fields and one accent. Text on its ground has a contrast of
// at least 7 to 1, of disabled text 3.5 to 1.
constexpr ColorRow kColors[] = {
    {QPalette::Window, "#eef1f4", "#eef1f4"},
    {QPalette::WindowText, "#1b2733", "#6f7a85"},
    {QPalette::Base, "#ffffff", "#e6eaee"},
    {QPalette::AlternateBase, "#f3f7fa", "#e6eaee"},
    {QPalette::Text, "#14202b", "#6f7a85"},
    {QPalette::PlaceholderText, "#6f7a85", "#6f7a85"},
    {QPalette::Button, "#e4e9ee", "#e9edf0"},
    {QPalette::ButtonText, "#1b2733", "#6f7a85"},
    {QPalette::BrightText, "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase, "#fffbe6", "#fffbe6"},
    {QPalette::ToolTipText, "#1b2733", "#1b2733"},
    {QPalette::Highlight, "#1f5f99", "#b9c4ce"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::Link, "#0b5394", "#6f7a85"},
    {QPalette::LinkVisited, "#0b5394", "#6f7a85"},
    {QPalette::Light, "#ffffff", "#ffffff"},
    {QPalette::Midlight, "#f4f6f8", "#f4f6f8"},
    {QPalette::Mid, "#b4bec8", "#c9d1d8"},
    {QPalette::Dark, "#8b97a3", "#a9b3bc"},
    {QPalette::Shadow, "#5b6670", "#8b97a3"},
};

// By kind only, so that the colour of one field, which goes by its name, is the stronger.
constexpr char kSheet[] = R"(
QGroupBox {
  background-color: #f7f9fb;
  border: 1px solid #c3ccd5;
  border-radius: 4px;
  margin-top: 0.7em;
  padding: 0.6em 4px 4px 4px;
}
QGroupBox::title {
  subcontrol-origin: margin;
  subcontrol-position: top left;
  left: 8px;
  padding: 0 4px;
  color: #174a78;
  font-weight: 600;
}
QGroupBox::title:disabled { color: #6f7a85; }
QLineEdit, QPlainTextEdit, QTextEdit, QTableWidget, QListWidget, QTreeWidget, QTextBrowser {
  background-color: #ffffff;
  color: #14202b;
  border: 1px solid #b4bec8;
  border-radius: 3px;
  selection-background-color: #1f5f99;
  selection-color: #ffffff;
}
QLineEdit { padding: 1px 4px; min-height: 20px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QTextEdit:disabled {
  background-color: #e6eaee;
  color: #6f7a85;
  border-color: #ccd4db;
}
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus, QTableWidget:focus, QListWidget:focus,
QTreeWidget:focus, QTextBrowser:focus { border: 2px solid #1f5f99; }
QLineEdit:focus { padding: 0 3px; }
QTableWidget { alternate-background-color: #f3f7fa; gridline-color: #dde3e8; }
QHeaderView::section {
  background-color: #e4e9ee;
  color: #1b2733;
  border: none;
  border-right: 1px solid #c3ccd5;
  border-bottom: 1px solid #c3ccd5;
  padding: 4px 8px;
  font-weight: 600;
}
QPushButton {
  background-color: #fbfcfd;
  color: #1b2733;
  border: 1px solid #a3afba;
  border-radius: 4px;
  padding: 3px 14px;
  min-height: 20px;
  min-width: 64px;
}
QPushButton:hover { background-color: #e8f0f7; border-color: #1f5f99; }
QPushButton:pressed { background-color: #d3e2f0; }
QPushButton:default { border: 2px solid #1f5f99; padding: 2px 13px; }
QPushButton:focus { border: 2px solid #1f5f99; padding: 2px 13px; }
QPushButton:disabled { background-color: #e9edf0; color: #6f7a85; border-color: #ccd4db; }
QRadioButton, QCheckBox { spacing: 6px; min-height: 20px; }
QRadioButton:focus, QCheckBox:focus { border: 1px dashed #1f5f99; border-radius: 3px; }
QProgressBar {
  background-color: #ffffff;
  border: 1px solid #b4bec8;
  border-radius: 3px;
  text-align: center;
  min-height: 18px;
}
QProgressBar::chunk { background-color: #8fcaa6; border-radius: 2px; }
QMenuBar { background-color: #e4e9ee; border-bottom: 1px solid #c3ccd5; }
QMenuBar::item { padding: 4px 10px; background: transparent; }
QMenuBar::item:selected { background-color: #1f5f99; color: #ffffff; }
QMenuBar::item:disabled { color: #8b97a3; }
QToolBar {
  background-color: #eef1f4;
  border-bottom: 1px solid #c3ccd5;
  spacing: 3px;
  padding: 2px;
}
QToolButton { padding: 3px; border: 1px solid transparent; border-radius: 4px; }
QToolButton:hover { background-color: #e8f0f7; border-color: #a3afba; }
QToolButton:focus { border: 2px solid #1f5f99; padding: 2px; }
QToolTip { background-color: #fffbe6; color: #1b2733; border: 1px solid #8b97a3; padding: 2px; }
)";

QPalette WorkshopPalette() {
  QPalette palette;
  for (const ColorRow& row : kColors) {
    palette.setColor(QPalette::Active, row.role, QColor(QLatin1String(row.normal)));
    palette.setColor(QPalette::Inactive, row.role, QColor(QLatin1String(row.normal)));
    palette.setColor(QPalette::Disabled, row.role, QColor(QLatin1String(row.disabled)));
  }
  return palette;
}

// Faces whose digits all have one width, so that a value does not dance while it changes.
QFont WorkshopFont() {
  QFont font;
#ifdef _WIN32
  font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Tahoma")});
#else
  font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans")});
#endif
  font.setPointSizeF(kFontPoints);
  return font;
}

// The system's icons of all its sizes.
QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 20, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/pictures/lorimet_%1.png").arg(size), QSize(size, size));
  return icon;
}

}  // namespace

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(WorkshopPalette());
  QApplication::setFont(WorkshopFont());
  QApplication::setWindowIcon(ProgramIcon());
  application.setStyleSheet(QLatin1String(kSheet));
}

}  // namespace lorimet
