#include "tour/operator_screen.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>
#include <iterator>

#include "tour/hand.h"

namespace lorimet {
namespace {

struct ButtonRow {
  BoxButton button;
  QMessageBox::StandardButton standard;
};
constexpr ButtonRow kButtons[] = {
    {kBoxYes, QMessageBox::Yes},
    {kBoxNo, QMessageBox::No},
    {kBoxOk, QMessageBox::Ok},
    {kBoxCancel, QMessageBox::Cancel},
};

QMessageBox* StandingBox() {
  return qobject_cast<QMessageBox*>(FindWindow(QStringLiteral("msgBox")));
}

}  // namespace

// Not within the look at the screen: what the click opens runs an event loop of its own.
void OperatorScreen::ClickSoon(QAbstractButton* button) const {
  if (button == nullptr) return;
  const QMessageBox* box = StandingBox();
  if (on_press)
    on_press(
        box == nullptr
            ? QStringLiteral("%1 of %2").arg(button->objectName(), QString::fromStdString(Name()))
            : QStringLiteral("%1 to \"%2\"").arg(button->text(), box->text().simplified()));
  QMetaObject::invokeMethod(
      qApp,
      [alive = QPointer<QAbstractButton>(button)] {
        if (alive) lorimet::Click(*alive);
      },
      Qt::QueuedConnection);
}

unsigned OperatorScreen::BoxButtons() const {
  const QMessageBox* box = StandingBox();
  unsigned buttons = 0;
  if (box == nullptr) return buttons;
  for (const ButtonRow& row : kButtons)
    if (box->button(row.standard) != nullptr) buttons |= row.button;
  return buttons;
}

void OperatorScreen::AnswerBox(BoxButton answer) {
  for (const ButtonRow& row : kButtons)
    if (row.button == answer) ClickSoon(StandingBox()->button(row.standard));
}

void OperatorScreen::Click(Button& button) {
  ClickSoon(FindIn<QAbstractButton>(QString::fromStdString(Name()),
                                    QString::fromStdString(button.Name())));
}

}  // namespace lorimet
