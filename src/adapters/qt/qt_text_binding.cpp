#include "adapters/qt/qt_text_binding.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QTextOption>
#include <QTimer>
#include <QVariant>
#include <algorithm>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "adapters/qt/qt_widget_binding.h"

namespace lorimet {
namespace {

// What the three text fields of the toolkit do alike.
class TextBinding : public WidgetBinding {
 public:
  TextBinding(TextBox& box, QWidget* widget) : WidgetBinding(box, widget), box_(box) {}

  ControlDesign Design() const override {
    ControlDesign design = WidgetBinding::Design();
    design.text = FromWidgetText(Read());
    return design;
  }

  void Mirror(unsigned changes) override {
    WidgetBinding::Mirror(changes);
    if (changes & Control::kText) {
      const QString text = ToWidgetText(box_.Text());
      // The same text again would lose the user's place in it.
      if (const QString shown = Shown(text); Read() != text && Read() != shown) Write(shown);
    }
    if ((changes & (Control::kText | Control::kSelection)) && box_.AllSelected()) SelectAll();
  }

  QString CopyText() const override {
    if (!IsReadOnly()) return {};
    return HasSelection() ? Selected() : Read();
  }

  void MouseReleased() override {
    // The click that brought the focus has put the cursor somewhere; what the form selected on
    // getting the focus stands.
    if (box_.AllSelected() && !HasSelection()) SelectAll();
    if (box_.on_click) box_.UserClick();
  }

 protected:
  // What is shown of a text that code has set.
  virtual QString Shown(const QString& text) const { return text; }
  virtual bool IsReadOnly() const = 0;
  virtual QString Selected() const = 0;
  virtual QString Read() const = 0;
  virtual void Write(const QString& text) = 0;
  virtual void SelectAll() = 0;
  virtual bool HasSelection() const = 0;

  TextBox& box_;
};

class LineBinding : public TextBinding {
 public:
  LineBinding(TextBox& box, QLineEdit* edit, const BindingSite& site)
      : TextBinding(box, edit), edit_(edit) {
    QObject::connect(edit, &QLineEdit::textChanged, site.lifetime,
                     [this, dispatch = site.dispatch](const QString& text) {
                       dispatch([this, &text] {
                         Limit(text.size());
                         box_.UserType(FromWidgetText(text));
                       });
                     });
  }

  ControlDesign Design() const override {
    ControlDesign design = TextBinding::Design();
    if (edit_->maxLength() != kNoLimit) design.max_length = edit_->maxLength();
    return design;
  }

  // In a field of numbers the comma, also that of the keypad, is the decimal point.
  bool HandleKey(const QKeyEvent& key) override {
    const bool takes_numbers = edit_->inputMethodHints() & Qt::ImhFormattedNumbersOnly;
    if (!takes_numbers || edit_->isReadOnly() || key.text() != QLatin1String(",")) return false;
    edit_->insert(QStringLiteral("."));
    return true;
  }

 protected:
  // Blanks that fill a field up to its size are in nobody's way: the control keeps them until the
  // user types.
  QString Shown(const QString& text) const override {
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' ')) --end;
    return text.left(end);
  }
  bool IsReadOnly() const override { return edit_->isReadOnly(); }
  QString Selected() const override { return edit_->selectedText(); }
  QString Read() const override { return edit_->text(); }
  void Write(const QString& text) override {
    Limit(text.size());
    edit_->setText(text);
    edit_->setCursorPosition(0);
  }
  void SelectAll() override { edit_->selectAll(); }
  bool HasSelection() const override { return edit_->hasSelectedText(); }

 private:
  static constexpr int kNoLimit = 32767;  // the toolkit's own

  // The limit holds for what the user types; a longer text that code has set stays whole.
  void Limit(qsizetype length) {
    const int wanted = box_.MaxLength() > 0 ? std::max<int>(box_.MaxLength(), length)
                                            : std::max<int>(kNoLimit, length);
    if (edit_->maxLength() == wanted) return;
    const int cursor = edit_->cursorPosition();
    edit_->setMaxLength(wanted);
    edit_->setCursorPosition(cursor);
  }

  QLineEdit* edit_;
};

// QPlainTextEdit and QTextEdit, which have no ancestor with these functions.
//
// A box whose designer has given it the property "runsOn" shows a text that changes all the time:
// the view follows the end of it, unless the user has scrolled away, and stands still while
// something is selected or the mouse is pressed. What runs on could not be read or copied.
template <typename Edit>
class PageBinding : public TextBinding {
 public:
  PageBinding(TextBox& box, Edit* edit, const BindingSite& site)
      : TextBinding(box, edit),
        edit_(edit),
        lifetime_(site.lifetime),
        runs_on_(edit->property("runsOn").toBool()) {
    QObject::connect(edit, &Edit::textChanged, site.lifetime,
                     [this, dispatch = site.dispatch] { dispatch([this] { Typed(); }); });
    if (runs_on_) FollowEnd();
    if (edit->frameShape() == QFrame::NoFrame) Center();  // it heads a column
  }

  ControlDesign Design() const override {
    ControlDesign design = TextBinding::Design();
    const QVariant limit = edit_->property("maxLength");
    if (limit.isValid()) design.max_length = limit.toInt();
    return design;
  }

 protected:
  bool IsReadOnly() const override { return edit_->isReadOnly(); }
  QString Selected() const override { return edit_->textCursor().selection().toPlainText(); }
  QString Read() const override { return edit_->toPlainText(); }
  void Write(const QString& text) override {
    if (!runs_on_)
      edit_->setPlainText(text);
    else if (HasSelection() || QGuiApplication::mouseButtons() != Qt::NoButton)
      WriteLater();
    else
      WriteRunning(text);
  }
  void SelectAll() override { edit_->selectAll(); }
  bool HasSelection() const override { return edit_->textCursor().hasSelection(); }

 private:
  static constexpr int kLookAgain = 100;  // ms

  void Center() {
    QTextOption option = edit_->document()->defaultTextOption();
    option.setAlignment(Qt::AlignHCenter);
    edit_->document()->setDefaultTextOption(option);
  }

  void WriteLater() {
    if (std::exchange(waits_, true)) return;
    QTimer::singleShot(kLookAgain, lifetime_, [this] {
      waits_ = false;
      Mirror(Control::kText);
    });
  }

  // Where the user leaves the bar tells whether he looks at the end; another size of the box moves
  // it no further from there.
  void FollowEnd() {
    QScrollBar* down = edit_->verticalScrollBar();
    QObject::connect(down, &QScrollBar::valueChanged, lifetime_, [this, down](int place) {
      if (!writing_) follows_ = place == down->maximum();
    });
    QObject::connect(down, &QScrollBar::rangeChanged, lifetime_, [this, down] {
      if (!writing_ && follows_) down->setValue(down->maximum());
    });
  }

  void WriteRunning(const QString& text) {
    QScrollBar* down = edit_->verticalScrollBar();
    QScrollBar* right = edit_->horizontalScrollBar();
    const QPoint place(right->value(), down->value());
    writing_ = true;
    edit_->setPlainText(text);
    down->setValue(follows_ ? down->maximum() : place.y());
    right->setValue(place.x());
    writing_ = false;
  }

  void Typed() {
    if (writing_) return;
    const std::string typed = FromWidgetText(Read());
    if (TooLong(typed) && typed.size() > box_.Text().size())
      Restore();
    else
      box_.UserType(typed);
  }

  bool TooLong(const std::string& text) const {
    return box_.MaxLength() > 0 && ToQString(text).size() > box_.MaxLength();
  }

  void Restore() {
    const int position = edit_->textCursor().position();
    edit_->setPlainText(ToWidgetText(box_.Text()));
    QTextCursor cursor = edit_->textCursor();
    cursor.setPosition(std::min<int>(position, Read().size()));
    edit_->setTextCursor(cursor);
  }

  Edit* edit_;
  QObject* lifetime_;
  bool runs_on_;
  bool waits_ = false;
  bool writing_ = false;
  bool follows_ = true;
};

}  // namespace

std::unique_ptr<Binding> BindTextBox(TextBox& box, QWidget* widget, const BindingSite& site) {
  if (auto* line = qobject_cast<QLineEdit*>(widget))
    return std::make_unique<LineBinding>(box, line, site);
  if (auto* plain = qobject_cast<QPlainTextEdit*>(widget))
    return std::make_unique<PageBinding<QPlainTextEdit>>(box, plain, site);
  if (auto* page = qobject_cast<QTextEdit*>(widget))
    return std::make_unique<PageBinding<QTextEdit>>(box, page, site);
  return nullptr;
}

}  // namespace lorimet
