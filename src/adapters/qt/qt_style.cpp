#include "adapters/qt/qt_style.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QStyleFactory>

namespace lorimet {
namespace {

constexpr double kFontPoints = 10.0;

struct ColorRow {
  const char* name;
  const char* light;
  const char* dark;
};

// A light grey-blue bench with white fields and one accent, and the same by night. Words have a
// contrast of at least 7 to 1 with what they stand on, faint ones 4.5, the edges of what can be
// used 3.
constexpr ColorRow kColors[] = {
    {"ground", "#eef1f4", "#22282e"},     // of windows
    {"frame", "#f7f9fb", "#2a3138"},      // of what stands together
    {"field", "#ffffff", "#1a1f24"},      // that can be typed in
    {"stripe", "#f3f7fa", "#20262c"},     // of every other row
    {"shown", "#e9eef2", "#333b43"},      // of a field that only shows
    {"off", "#e6eaee", "#2b3238"},        // of what is disabled
    {"words", "#14202b", "#eef2f5"},      // on all of these
    {"faint", "#5b6670", "#aab5bf"},      // words of what is disabled, hints
    {"edge", "#76828d", "#8f9ba6"},       // of fields and buttons
    {"line", "#c3ccd5", "#48525c"},       // between things
    {"button", "#fbfcfd", "#343c44"},     // the ground of one
    {"under", "#e8f0f7", "#3d4853"},      // the same below the mouse
    {"pressed", "#d3e2f0", "#4a5763"},    // and pressed
    {"bar", "#e4e9ee", "#2b3238"},        // of menus and heads
    {"accent", "#1f5f99", "#7ab8ee"},     // the focus, what is selected
    {"on accent", "#ffffff", "#0d1a26"},  // words there
    {"chosen", "#1f5f99", "#2f7cc0"},     // a box that is ticked, in white
    {"title", "#174a78", "#a5d0f4"},      // of a frame
    {"link", "#0b5394", "#8cc4f5"},       // words to follow
    {"tip", "#fffbe6", "#38382a"},        // the ground of one
    {"done", "#8fcaa6", "#3f7d58"},       // of a bar
};

struct RoleRow {
  QPalette::ColorRole role;
  const char* normal;
  const char* disabled;
};

constexpr RoleRow kRoles[] = {
    {QPalette::Window, "ground", "ground"},
    {QPalette::WindowText, "words", "faint"},
    {QPalette::Base, "field", "off"},
    {QPalette::AlternateBase, "stripe", "off"},
    {QPalette::Text, "words", "faint"},
    {QPalette::PlaceholderText, "faint", "faint"},
    {QPalette::Button, "bar", "off"},
    {QPalette::ButtonText, "words", "faint"},
    {QPalette::BrightText, "on accent", "on accent"},
    {QPalette::ToolTipBase, "tip", "tip"},
    {QPalette::ToolTipText, "words", "words"},
    {QPalette::Highlight, "accent", "line"},
    {QPalette::HighlightedText, "on accent", "words"},
    {QPalette::Link, "link", "faint"},
    {QPalette::LinkVisited, "link", "faint"},
    {QPalette::Light, "field", "field"},
    {QPalette::Midlight, "frame", "frame"},
    {QPalette::Mid, "line", "line"},
    {QPalette::Dark, "edge", "line"},
    {QPalette::Shadow, "faint", "edge"},
};

// By kind only, so that the colour of one field, which goes by its name, is the stronger.
constexpr char kSheet[] = R"(
QGroupBox {
  background-color: @frame;
  border: 1px solid @line;
  border-radius: 4px;
  margin-top: 0.7em;
  padding: 0.6em 4px 4px 4px;
}
QGroupBox::title {
  subcontrol-origin: margin;
  subcontrol-position: top left;
  left: 8px;
  padding: 0 4px;
  color: @title;
  font-weight: 600;
}
QGroupBox::title:disabled { color: @faint; }
QLineEdit, QPlainTextEdit, QTextEdit, QTableWidget, QListWidget, QTreeWidget, QTextBrowser {
  background-color: @field;
  border: 1px solid @edge;
  border-radius: 3px;
  selection-background-color: @accent;
  selection-color: @on accent;
}
QLineEdit { padding: 1px 4px; min-height: 20px; }
QLineEdit[readOnly="true"], QPlainTextEdit[readOnly="true"] {
  background-color: @shown;
  border: 1px solid @line;
  border-bottom: 1px solid @edge;
  border-radius: 0;
}
QMainWindow QLineEdit[readOnly="true"], QMainWindow QPlainTextEdit[readOnly="true"] {
  background-color: @field;
}
QLineEdit[frame="false"] { background-color: transparent; border: none; }
QLineEdit:disabled, QPlainTextEdit:disabled, QTextEdit:disabled {
  background-color: @off;
  color: @faint;
  border-color: @line;
}
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus, QTableWidget:focus, QListWidget:focus,
QTreeWidget:focus, QTextBrowser:focus { border: 2px solid @accent; }
QLineEdit:focus { padding: 0 3px; }
QTableWidget { alternate-background-color: @stripe; gridline-color: @line; }
QTableWidget::item { padding: 0 5px; }
QHeaderView::section {
  background-color: @bar;
  color: @words;
  border: none;
  border-right: 1px solid @line;
  border-bottom: 1px solid @line;
  padding: 4px 8px;
  font-weight: 600;
}
QPushButton {
  background-color: @button;
  color: @words;
  border: 1px solid @edge;
  border-radius: 4px;
  padding: 3px 14px;
  min-height: 20px;
  min-width: 80px;
}
QPushButton:hover { background-color: @under; border-color: @accent; }
QPushButton:pressed { background-color: @pressed; }
QPushButton:default { border: 2px solid @accent; padding: 2px 13px; }
QPushButton:focus { border: 2px solid @accent; padding: 2px 13px; background-color: @under; }
QPushButton:disabled { background-color: @off; color: @faint; border-color: @line; }
QRadioButton, QCheckBox { spacing: 6px; min-height: 20px; }
QRadioButton::indicator, QCheckBox::indicator {
  width: 13px;
  height: 13px;
  background-color: @field;
  border: 1px solid @edge;
}
QRadioButton::indicator { width: 14px; height: 14px; border-radius: 8px; }
QCheckBox::indicator { border-radius: 2px; }
QRadioButton::indicator:checked { border: 5px solid @chosen; width: 6px; height: 6px; }
QCheckBox::indicator:checked { background-color: @chosen; image: url(:/pictures/check.png); }
QRadioButton::indicator:disabled, QCheckBox::indicator:disabled {
  background-color: @off;
  border-color: @line;
}
QRadioButton::indicator:checked:disabled { border-color: @faint; }
QCheckBox::indicator:checked:disabled { background-color: @faint; }
QRadioButton:focus, QCheckBox:focus { border: 1px dashed @accent; border-radius: 3px; }
QProgressBar {
  background-color: @field;
  color: @words;
  border: 1px solid @edge;
  border-radius: 3px;
  text-align: center;
  min-height: 18px;
}
QProgressBar::chunk { background-color: @done; border-radius: 2px; }
QMenuBar { background-color: @bar; border-bottom: 1px solid @line; }
QMenuBar::item { padding: 4px 10px; background: transparent; }
QMenuBar::item:selected { background-color: @accent; color: @on accent; }
QMenuBar::item:disabled { color: @faint; }
QToolBar {
  background-color: @ground;
  border-bottom: 1px solid @line;
  spacing: 3px;
  padding: 2px;
}
QToolButton { padding: 3px; border: 1px solid transparent; border-radius: 4px; }
QToolButton:hover { background-color: @under; border-color: @edge; }
QToolButton:focus { border: 2px solid @accent; padding: 2px; }
QTabBar { border: 1px solid transparent; }
QTabBar:focus { border: 1px dashed @accent; }
QToolTip { background-color: @tip; color: @words; border: 1px solid @edge; padding: 2px; }
)";

QString ColorOf(const QString& name, bool dark) {
  for (const ColorRow& row : kColors)
    if (name == QLatin1String(row.name)) return QLatin1String(dark ? row.dark : row.light);
  qFatal("There is no colour \"%s\".", qPrintable(name));
}

QString Sheet(bool dark) {
  QString sheet = QLatin1String(kSheet);
  for (const ColorRow& row : kColors)
    sheet.replace(QRegularExpression(QStringLiteral("@%1\\b").arg(QLatin1String(row.name))),
                  QLatin1String(dark ? row.dark : row.light));
  return sheet;
}

QPalette WorkshopPalette(bool dark) {
  QPalette palette;
  for (const RoleRow& row : kRoles) {
    const QColor normal(ColorOf(QLatin1String(row.normal), dark));
    palette.setColor(QPalette::Active, row.role, normal);
    palette.setColor(QPalette::Inactive, row.role, normal);
    palette.setColor(QPalette::Disabled, row.role,
                     QColor(ColorOf(QLatin1String(row.disabled), dark)));
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

void ApplyStyle(QApplication& application, Look look) {
  constexpr int kHalfLight = 128;
  const bool by_night = QApplication::palette().color(QPalette::Window).lightness() < kHalfLight;
  const bool dark = look == Look::kAsTheDesktop ? by_night : look == Look::kDark;
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(WorkshopPalette(dark));
  QApplication::setFont(WorkshopFont());
  QApplication::setWindowIcon(ProgramIcon());
  application.setStyleSheet(Sheet(dark));
}

}  // namespace lorimet
