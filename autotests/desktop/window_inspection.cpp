#include "autotests/desktop/window_inspection.h"

#include <QAccessible>
#include <QAction>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPicture>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <algorithm>
#include <map>
#include <set>

namespace lorimet {
namespace {

constexpr int kTitleBar = 32;       // what a window manager adds above
constexpr int kTitleTools = 130;    // icon and buttons beside a window's title
constexpr int kBoxTitleTools = 50;  // a message box has no icon there, and one button

// English captions that share a letter by their design.
bool IsPermitted(const QString& one, const QString& other) {
  static const QStringList kTogether = {"&Tests", "&Tools"};
  static const QStringList kInUtility = {"Start Data&log Only", "&Disable Broadcast"};
  // While the one can be pressed the other cannot.
  static const QStringList kInTurn = {"&Options", "St&op Record"};
  return (kTogether.contains(one) && kTogether.contains(other)) ||
         (kInUtility.contains(one) && kInUtility.contains(other)) ||
         (kInTurn.contains(one) && kInTurn.contains(other));
}

bool IsPicture(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  return label != nullptr && (!label->pixmap(Qt::ReturnByValue).isNull() ||
                              !label->picture(Qt::ReturnByValue).isNull());
}

bool HasWords(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  return label != nullptr && !label->text().trimmed().isEmpty();
}

// What a user reads or uses, but for the toolkit's own parts of such a thing.
bool IsControl(const QWidget* widget) {
  if (qobject_cast<const QPushButton*>(widget) != nullptr) return true;
  if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) return false;
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         qobject_cast<const QTableWidget*>(widget) != nullptr ||
         qobject_cast<const QTabBar*>(widget) != nullptr ||
         qobject_cast<const QProgressBar*>(widget) != nullptr || IsPicture(widget);
}

QString NameOf(QWidget* widget) {
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
  return interface == nullptr ? QString() : interface->text(QAccessible::Name).simplified();
}

bool InScrollArea(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (qobject_cast<const QScrollArea*>(widget) != nullptr) return true;
  return false;
}

QRect PlaceOf(const QWidget* widget) {
  return {widget->mapTo(widget->window(), QPoint(0, 0)), widget->size()};
}

}  // namespace

Inspection::Inspection(QWidget& window) : window_(window) {
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (widget->isVisibleTo(&window) && widget->window() == &window) widgets_ << widget;
}

QStringList Inspection::Run() {
  ClippedWords();
  ClippedTitle();
  Access();
  Names();
  Overlaps();
  Place();
  TabOrder();
  ButtonRows();
  Language();
  if (walks_focus) Focus();
  return complaints_;
}

void Inspection::ClippedWords() {
  for (QWidget* widget : widgets_) {
    const QSize size = widget->size();
    QSize needed = size;
    if (auto* label = qobject_cast<QLabel*>(widget); HasWords(widget)) {
      needed =
          label->wordWrap() ? QSize(0, label->heightForWidth(size.width())) : label->sizeHint();
    } else if (IsControl(widget) && qobject_cast<QAbstractButton*>(widget) != nullptr) {
      needed = widget->sizeHint();
    } else if (widget->width() <= 1) {
      continue;  // where the focus of the panel is kept
    } else if (auto* line = qobject_cast<QLineEdit*>(widget); line != nullptr) {
      const int words = line->fontMetrics().horizontalAdvance(line->displayText());
      if (line->isReadOnly()) needed.setWidth(words + 6);
    } else if (auto* page = qobject_cast<QPlainTextEdit*>(widget); page != nullptr) {
      if (page->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
        needed.setHeight(size.height() + page->verticalScrollBar()->maximum());
    } else if (auto* box = qobject_cast<QGroupBox*>(widget); box != nullptr) {
      QFont font = box->font();
      font.setWeight(QFont::DemiBold);
      needed.setWidth(QFontMetrics(font).horizontalAdvance(box->title()) + 20);
    } else if (auto* table = qobject_cast<QTableWidget*>(widget); table != nullptr) {
      const QHeaderView* head = table->horizontalHeader();
      for (int i = 0; i < head->count(); ++i)
        if (head->sectionSizeHint(i) > head->sectionSize(i))
          Complain(QString("%1: head %2 is clipped").arg(widget->objectName()).arg(i));
      CrampedCells(*table);
    }
    if (needed.width() > size.width() || needed.height() > size.height() + 1)
      Complain(QString("%1: is clipped, %2x%3 of %4x%5")
                   .arg(widget->objectName())
                   .arg(size.width())
                   .arg(size.height())
                   .arg(needed.width())
                   .arg(needed.height()));
  }
}

// A column that is as wide as its words has some room beside them.
void Inspection::CrampedCells(const QTableWidget& table) {
  constexpr int kRoom = 8;
  for (int column = 0; column < table.columnCount(); ++column) {
    if (table.horizontalHeader()->sectionResizeMode(column) == QHeaderView::Stretch) continue;
    for (int row = 0; row < table.rowCount(); ++row)
      if (const QString words = table.item(row, column)->text();
          table.fontMetrics().horizontalAdvance(words) + kRoom > table.columnWidth(column))
        Complain(QString("%1: \"%2\" is cramped").arg(table.objectName(), words));
  }
}

void Inspection::ClippedTitle() {
  QFont font = window_.font();
  font.setBold(true);
  const int words = QFontMetrics(font).horizontalAdvance(window_.windowTitle());
  const bool is_box = qobject_cast<const QMessageBox*>(&window_) != nullptr;
  if (words + (is_box ? kBoxTitleTools : kTitleTools) > window_.width())
    Complain("the title is clipped");
}

void Inspection::Doubles(const QStringList& captions, const QString& where) {
  std::map<QString, QString> taken;
  for (const QString& caption : captions) {
    const QString key = QKeySequence::mnemonic(caption).toString();
    if (key.isEmpty()) continue;
    const auto [other, free] = taken.try_emplace(key, caption);
    if (!free && !IsPermitted(caption, other->second))
      Complain(QString("%1: \"%2\" and \"%3\" have one letter").arg(where, caption, other->second));
  }
}

void Inspection::Access() {
  QStringList captions;
  for (QWidget* widget : widgets_) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) captions << button->text();
    if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
      captions << label->text();
    if (auto* bar = qobject_cast<QMenuBar*>(widget))
      for (const QAction* action : bar->actions()) captions << action->text();
  }
  Doubles(captions, "the window");
  for (const QMenu* menu : window_.findChildren<QMenu*>()) {
    captions.clear();
    for (const QAction* action : menu->actions()) captions << action->text();
    Doubles(captions, menu->objectName());
  }
}

void Inspection::Names() {
  std::map<QString, QString> names;
  std::set<QString> objects;
  for (QWidget* widget : widgets_) {
    if (!IsControl(widget)) continue;
    const QString object = widget->objectName();
    if (!object.isEmpty() && !objects.insert(object).second) Complain(object + ": is there twice");
    const QString name = NameOf(widget);
    if (name.isEmpty()) Complain(object + ": has no name");
    // What a screen reader says: a progress bar and a field may both be a status.
    const QString said = name + " " + widget->metaObject()->className();
    const auto [other, free] = names.try_emplace(said, object);
    if (!name.isEmpty() && !free)
      Complain(QString("%1: is called \"%2\" as %3 is").arg(object, name, other->second));
  }
}

// A picture may have fields on it.
void Inspection::Overlaps() {
  QList<QWidget*> leaves;
  for (QWidget* widget : widgets_)
    if ((IsControl(widget) || HasWords(widget)) && !IsPicture(widget)) leaves << widget;
  for (qsizetype i = 0; i < leaves.size(); ++i)
    for (qsizetype k = i + 1; k < leaves.size(); ++k) {
      if (leaves[i]->isAncestorOf(leaves[k]) || leaves[k]->isAncestorOf(leaves[i])) continue;
      if (InScrollArea(leaves[i]) != InScrollArea(leaves[k])) continue;
      if (PlaceOf(leaves[i]).intersects(PlaceOf(leaves[k])))
        Complain(leaves[i]->objectName() + ": overlaps " + leaves[k]->objectName());
    }
}

void Inspection::Place() {
  const QSize screen = window_.screen()->availableSize();
  if (window_.width() > screen.width() || window_.height() + kTitleBar > screen.height())
    Complain(QString("the window is larger than the screen: %1x%2")
                 .arg(window_.width())
                 .arg(window_.height()));
  for (const QWidget* widget : widgets_)
    if (const auto* area = qobject_cast<const QScrollArea*>(widget))
      if (area->horizontalScrollBar()->maximum() > 0)
        Complain(area->objectName() + ": must be scrolled sideways");
  for (QWidget* widget : widgets_)
    if (IsControl(widget) && !InScrollArea(widget) && !window_.rect().contains(PlaceOf(widget)))
      Complain(widget->objectName() + ": is beyond the edge");
}

// Within one container the tabulator goes to the right or down.
void Inspection::TabOrder() {
  QWidget* before = nullptr;
  for (QWidget* widget = window_.nextInFocusChain(); widget != &window_;
       widget = widget->nextInFocusChain()) {
    if (!widgets_.contains(widget) || !IsControl(widget) || !widget->isEnabled() ||
        !(widget->focusPolicy() & Qt::TabFocus))
      continue;
    if (before != nullptr && before->parentWidget() == widget->parentWidget()) {
      const QRect from = PlaceOf(before);
      const QRect to = PlaceOf(widget);
      const bool in_row = from.top() <= to.center().y() && to.top() <= from.center().y();
      const bool back =
          in_row ? to.right() < from.left() : to.bottom() < from.top() && to.left() <= from.right();
      if (back)
        Complain(before->objectName() + ": the tabulator goes back to " + widget->objectName());
    }
    before = widget;
  }
}

// Those that stand side by side are as high as each other, and on one line.
void Inspection::ButtonRows() {
  for (const QWidget* one : widgets_)
    for (const QWidget* other : widgets_) {
      if (one >= other || one->parentWidget() != other->parentWidget()) continue;
      if (qobject_cast<const QPushButton*>(one) == nullptr ||
          qobject_cast<const QPushButton*>(other) == nullptr)
        continue;
      const QRect a = one->geometry();
      const QRect b = other->geometry();
      if (a.bottom() < b.top() || b.bottom() < a.top()) continue;
      if (a.top() != b.top() || a.height() != b.height())
        Complain(one->objectName() + ": is not in one row with " + other->objectName());
    }
}

void Inspection::Language() {
  if (!translate) return;
  QStringList texts = {window_.windowTitle()};
  for (QWidget* widget : widgets_) {
    if (const auto* label = qobject_cast<QLabel*>(widget)) texts << label->text();
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) texts << button->text();
    if (const auto* box = qobject_cast<QGroupBox*>(widget)) texts << box->title();
    if (const auto* line = qobject_cast<QLineEdit*>(widget))
      texts << line->text() << line->placeholderText();
    if (const auto* page = qobject_cast<QPlainTextEdit*>(widget)) texts << page->toPlainText();
    if (const auto* tabs = qobject_cast<QTabBar*>(widget))
      for (int i = 0; i < tabs->count(); ++i) texts << tabs->tabText(i);
    if (const auto* table = qobject_cast<QTableWidget*>(widget))
      for (int i = 0; i < table->columnCount(); ++i)
        texts << table->horizontalHeaderItem(i)->text();
    texts << widget->toolTip();
  }
  for (const QAction* action : window_.findChildren<QAction*>())
    if (action->isVisible()) texts << action->text();
  for (const QString& text : texts)
    if (const QString translated = translate(text); translated != text)
      Complain(QString("\"%1\" is not \"%2\"").arg(text, translated));
}

void Inspection::Focus() {
  for (QWidget* widget : widgets_) {
    const bool can_have =
        IsControl(widget) && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
    if (!can_have || widget->size().width() < 8) continue;
    widget->clearFocus();
    const QImage without = widget->grab().toImage();
    widget->setFocus(Qt::TabFocusReason);
    if (widget->hasFocus() && widget->grab().toImage() == without)
      Complain(widget->objectName() + ": the focus does not show");
  }
}

}  // namespace lorimet
