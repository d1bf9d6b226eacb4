#include "tour/script.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QToolBar>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "adapters/qt/qt_desktop.h"
#include "tour/album.h"
#include "tour/driven_time.h"
#include "tour/hand.h"
#include "tour/simulated_trailer.h"

namespace lorimet {
namespace {

constexpr double kPatience = 120;  // s of the trailer's time until a step that waits fails the tour
constexpr double kSettle = 0.2;    // s for a screen to be laid out and filled
constexpr char kMain[] = "frmZeltMain";

QAction* ActionOf(const QString& name) { return FindIn<QAction>(kMain, name); }

// Where a command of the toolbar can be clicked; null for one of a menu.
QWidget* ToolOf(QAction* action) {
  auto* bar = FindIn<QToolBar>(kMain, QString());
  return bar == nullptr ? nullptr : bar->widgetForAction(action);
}

}  // namespace

Script::Script(QtDesktop& desktop, DrivenTime& time, SimulatedTrailer& trailer,
               simulator::ScriptedOperator& hand, Album& album, QString files, Translator translate)
    : desktop_(desktop),
      time_(time),
      trailer_(trailer),
      hand_(hand),
      album_(album),
      files_(std::move(files)),
      translate_(std::move(translate)) {}

double Script::Seconds() const { return static_cast<double>(time_.Milliseconds()) / 1000; }

// --- Waiting -----------------------------------------------------------------------------------

void Script::When(const QString& what, Condition ready, std::function<void()> act) {
  steps_.push_back({what, std::move(ready), std::move(act)});
}

void Script::Do(std::function<void()> act) {
  steps_.push_back({QStringLiteral("a moment"), [] { return true; }, std::move(act), false});
}

void Script::UntilShown(const QString& window) {
  Until(window, [window] { return FindWindow(window) != nullptr; });
}

void Script::UntilGone(const QString& window) {
  Until(QStringLiteral("the end of ") + window, [window] { return FindWindow(window) == nullptr; });
}

void Script::UntilText(const QString& window, const QString& name,
                       std::function<bool(const QString& text)> fits) {
  Until(QStringLiteral("what %1.%2 should show").arg(window, name),
        [window, name, fits = std::move(fits)] { return fits(TextIn(window, name)); });
}

void Script::Pause(double seconds) {
  auto end = std::make_shared<double>(-1);
  const auto over = [this, end, seconds] {
    if (*end < 0) *end = Seconds() + seconds;
    return Seconds() >= *end;
  };
  steps_.push_back({QStringLiteral("a pause"), over, [] {}, false});
}

bool Script::Look() {
  if (steps_.empty() || !steps_.front().ready()) return false;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  waiting_since_ = Seconds();
  if (step.noted) album_.Note(Seconds(), step.what);
  // What is done may run an event loop of its own, in which the steps behind it go on.
  QMetaObject::invokeMethod(qApp, step.act, Qt::QueuedConnection);
  return true;
}

void Script::CheckPatience() const {
  if (!steps_.empty() && Seconds() - waiting_since_ > kPatience)
    Fail(QStringLiteral("The tour cannot go on: it waits for %1, and there stands %2")
             .arg(steps_.front().what, StandingWindows()));
}

void Script::Fail(const QString& why) const {
  album_.Note(Seconds(), why);
  album_.Close(QStringLiteral("It failed: ") + why);
  std::fflush(stdout);
  std::fprintf(stderr, "    %s\n", qPrintable(why));
  std::fflush(nullptr);
  std::_Exit(1);
}

// --- What is told and shown ----------------------------------------------------------------------

void Script::Chapter(const QString& title) {
  Do([this, title] { album_.Chapter(title); });
}

void Script::Tell(const QString& line) {
  Do([this, line] { album_.Tell(Seconds(), line); });
}

void Script::Picture(const QString& window, const QString& name, const QString& caption,
                     Content content) {
  UntilShown(window);
  Pause(kSettle);
  When(
      QStringLiteral("a picture: ") + caption, [window] { return FindWindow(window) != nullptr; },
      [this, window, name, caption, content] {
        QWidget* shown = FindWindow(window);
        const QString file = album_.Keep(*shown, name, caption);
        if (file.isEmpty()) Fail(QStringLiteral("The picture of %1 cannot be written").arg(window));
        const QStringList errors = {QStringLiteral("Error:"),
                                    QString::fromStdString(translate_("Error:"))};
        const QString wrong = WrongWith(*shown, content, errors);
        if (!wrong.isEmpty())
          Fail(QStringLiteral("%1 shows %2 in an error state: %3").arg(file, window, wrong));
      });
}

void Script::Check(std::function<QString()> wrong) {
  Do([this, wrong = std::move(wrong)] {
    if (const QString why = wrong(); !why.isEmpty()) Fail(why);
  });
}

void Script::CheckFile(const QString& file, const QString& caption) {
  Check([this, file, caption] {
    const QFileInfo written(files_ + QChar('/') + file);
    if (written.size() <= 0) return QStringLiteral("The program has not written ") + file;
    album_.Show(QFileInfo(files_).fileName() + QChar('/') + file, caption);
    return QString();
  });
}

// --- What is done --------------------------------------------------------------------------------

void Script::Press(const QString& window, const QString& button) {
  const auto find = [window, button] { return FindIn<QAbstractButton>(window, button); };
  When(
      QStringLiteral("%1.%2").arg(window, button),
      [find] {
        const QAbstractButton* found = find();
        return found != nullptr && found->isVisible() && found->isEnabled();
      },
      [find] { Click(*find()); });
}

void Script::Command(const QString& action) {
  When(
      action,
      [action] {
        const QAction* found = ActionOf(action);
        return found != nullptr && found->isEnabled() &&
               QApplication::activeModalWidget() == nullptr;
      },
      [this, action] {
        QWidget* tool = ToolOf(ActionOf(action));
        if (tool != nullptr)
          Click(*tool);
        else
          ClickMenu(action);
      });
}

void Script::Close(const QString& window) {
  When(
      QStringLiteral("the close box of ") + window,
      [window] { return FindWindow(window) != nullptr; },
      [window] { FindWindow(window)->close(); });
  UntilGone(window);
}

// The menu's title, then the command in the menu that opens.
void Script::ClickMenu(const QString& action) {
  auto* bar = FindIn<QMenuBar>(kMain, QString());
  for (QAction* title : bar->actions()) {
    QMenu* menu = title->menu();
    QAction* command = ActionOf(action);
    if (menu == nullptr || !menu->actions().contains(command)) continue;
    steps_.push_front(
        {QStringLiteral("the menu of ") + action, [menu] { return menu->isVisible(); },
         [menu, command] { ClickAt(*menu, menu->actionGeometry(command).center()); }});
    return ClickAt(*bar, bar->actionGeometry(title).center());
  }
  Fail(action + QStringLiteral(" is in no menu"));
}

void Script::Type(const QString& window, const QString& field, const QString& text) {
  const auto find = [window, field] { return FindIn<QWidget>(window, field); };
  When(
      QStringLiteral("\"%1\" into %2.%3").arg(text, window, field),
      [find] { return find() != nullptr && find()->isEnabled(); },
      [find, text] { TypeInto(*find(), text); });
}

// Some boxes stay in English.
bool Script::BoxSays(const std::string& text) const {
  const auto* box = qobject_cast<QMessageBox*>(FindWindow(QStringLiteral("msgBox")));
  if (box == nullptr) return false;
  const QString said = box->text().simplified();
  return said.contains(QString::fromStdString(text).simplified()) ||
         said.contains(QString::fromStdString(translate_(text)).simplified());
}

void Script::Answer(const std::string& text, int button) {
  When(
      QStringLiteral("the box \"%1\"").arg(QString::fromStdString(text)),
      [] { return FindWindow(QStringLiteral("msgBox")) != nullptr; },
      [this, text, button] {
        if (!BoxSays(text))
          Fail(QStringLiteral("There stands %1, in place of a box that says \"%2\"")
                   .arg(StandingWindows(), QString::fromStdString(translate_(text))));
        auto* box = qobject_cast<QMessageBox*>(FindWindow(QStringLiteral("msgBox")));
        QAbstractButton* pressed = box->button(static_cast<QMessageBox::StandardButton>(button));
        if (pressed == nullptr) Fail(QStringLiteral("The box lacks a button"));
        Click(*pressed);
      });
}

void Script::ChooseFile(const QString& path) {
  const auto dialog = [] {
    return qobject_cast<QFileDialog*>(FindWindow(QStringLiteral("dlgFile")));
  };
  const auto button = [dialog]() -> QAbstractButton* {
    if (dialog() == nullptr) return nullptr;
    return dialog()->findChild<QDialogButtonBox*>()->button(
        dialog()->acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save
                                                          : QDialogButtonBox::Open);
  };
  When(
      QStringLiteral("the file dialog, for ") + path, [dialog] { return dialog() != nullptr; },
      [dialog, path] { dialog()->findChild<QLineEdit*>()->setText(path); });
  // The dialog looks for the file by itself. Typing would bring its list of proposals up.
  When(
      QStringLiteral("the file dialog's button"),
      [button] { return button() != nullptr && button()->isEnabled(); },
      [button] { Click(*button()); });
  UntilGone(QStringLiteral("dlgFile"));
}

void Script::AtTrailer(const QString& command) {
  When(
      QStringLiteral("at the trailer: ") + command, [] { return true; },
      [this, command] { trailer_.Do(command.toStdString()); });
}

// --- The operator --------------------------------------------------------------------------------

void Script::OperateUntil(const QString& what, Condition condition) {
  Do([this] { operated_ = Seconds(); });
  Until(what, [this, condition = std::move(condition)] {
    if (condition()) return true;
    hand_.Step(Seconds() - operated_);
    operated_ = Seconds();
    return false;
  });
}

void Script::Operate(const QString& what) {
  // Between two screens there may be none for a moment.
  OperateUntil(what, [this, gone = -1.0]() mutable {
    const bool none = QApplication::activeModalWidget() == nullptr;
    if (!none)
      gone = -1;
    else if (gone < 0)
      gone = Seconds();
    return none && Seconds() - gone >= kSettle;
  });
  Check([this] {
    return hand_.GivenUp() == 0 ? QString() : QStringLiteral("The operator has given a test up");
  });
}

void Script::OperateUntilShown(const QString& window) {
  OperateUntil(window, [window] { return FindWindow(window) != nullptr; });
}

void Script::OperateUntilText(const QString& window, const QString& name, const std::string& text) {
  OperateUntil(QStringLiteral("\"%1\" in %2.%3").arg(QString::fromStdString(text), window, name),
               [this, window, name, text] {
                 const QString wanted = QString::fromStdString(translate_(text)).simplified();
                 const QString shown = TextIn(window, name).simplified();
                 // Some texts stay in English.
                 return shown.contains(wanted) ||
                        shown.contains(QString::fromStdString(text).simplified());
               });
}

void Script::OperateUntilBox(const std::string& text) {
  OperateUntil(QStringLiteral("the box \"%1\"").arg(QString::fromStdString(text)),
               [this, text] { return BoxSays(text); });
}

}  // namespace lorimet
