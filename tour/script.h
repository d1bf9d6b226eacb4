// The tour's script: one step behind the other, each of which waits for what the screen shows and
// then does what a person would do. A step that cannot go on fails the tour.
#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <string>

#include "simulator/operator/scripted_operator.h"
#include "tour/screen_check.h"

namespace lorimet {

class Album;
class DrivenTime;
class QtDesktop;
class SimulatedTrailer;

class Script {
 public:
  using Translator = std::function<std::string(const std::string&)>;
  using Condition = std::function<bool()>;

  // All of them outlive the script. Files that the program writes lie in `files`.
  Script(QtDesktop& desktop, DrivenTime& time, SimulatedTrailer& trailer,
         simulator::ScriptedOperator& hand, Album& album, QString files, Translator translate);

  // --- The words of the plan. Each adds a step.
  void Chapter(const QString& title);
  // Tells how far the tour is.
  void Tell(const QString& line);
  void When(const QString& what, Condition ready, std::function<void()> act);
  void Until(const QString& what, Condition ready) {
    When(what, std::move(ready), [] {});
  }
  void Do(std::function<void()> act);
  void UntilShown(const QString& window);
  void UntilGone(const QString& window);
  // Waits until a field or label shows what `fits`.
  void UntilText(const QString& window, const QString& name,
                 std::function<bool(const QString& text)> fits);
  // Lets time pass.
  void Pause(double seconds);
  void Picture(const QString& window, const QString& name, const QString& caption,
               Content content = Content::kGood);
  // Clicks: a button; a command of the main window's menu or, "tbrABS_...", of its toolbar.
  void Press(const QString& window, const QString& button);
  void Command(const QString& action);
  // By its close box, until it is gone.
  void Close(const QString& window);
  void Type(const QString& window, const QString& field, const QString& text);
  // Answers a message box, which must say `text` in the language of the tour, with a button of
  // QMessageBox.
  void Answer(const std::string& text, int button);
  // Names the file that a file dialog asks for.
  void ChooseFile(const QString& path);
  // What somebody does at the trailer.
  void AtTrailer(const QString& command);
  // The operator works at the tests by himself, until their screens and messages are gone...
  void Operate(const QString& what);
  // ... or a screen comes up, or a field shows a text, or a message stands that says one, in the
  // tour's language.
  void OperateUntilShown(const QString& window);
  void OperateUntilText(const QString& window, const QString& name, const std::string& text);
  void OperateUntilBox(const std::string& text);
  // Fails the tour with what `wrong` says, if it says anything.
  void Check(std::function<QString()> wrong);
  void CheckFile(const QString& file, const QString& caption);

  // --- The run.
  // One look at the program; true when something was done. To be called when it has nothing to do.
  bool Look();
  // Fails the tour when nothing has gone on for too long.
  void CheckPatience() const;
  bool Done() const { return steps_.empty(); }
  [[noreturn]] void Fail(const QString& why) const;

  double Seconds() const;
  SimulatedTrailer& Trailer() const { return trailer_; }
  const QString& Files() const { return files_; }
  std::string Translate(const std::string& text) const { return translate_(text); }

 private:
  struct Step {
    QString what;
    Condition ready;
    std::function<void()> act;
    bool noted = true;  // in the transcript
  };

  void ClickMenu(const QString& action);
  void OperateUntil(const QString& what, Condition condition);
  bool BoxSays(const std::string& text) const;

  QtDesktop& desktop_;
  DrivenTime& time_;
  SimulatedTrailer& trailer_;
  simulator::ScriptedOperator& hand_;
  Album& album_;
  QString files_;
  Translator translate_;
  std::deque<Step> steps_;
  double waiting_since_ = 0;
  double operated_ = 0;  // until when
};

}  // namespace lorimet
