// The main window's menus by keyboard, and what the form keeps of the keys.
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "autotests/desktop/screens_fixture.h"

namespace lorimet {
namespace {

class MenuKeysTest : public ScreensTest {
 protected:
  void SetUp() override { Start(); }

  QWidget* Window() { return desktop.Window(program.session->main_form); }
  QMenuBar* Bar() { return Window()->findChild<QMenuBar*>(); }
  std::vector<QMenu*> Menus() {
    std::vector<QMenu*> menus;
    for (QAction* action : Bar()->actions())
      if (action->isVisible()) menus.push_back(action->menu());
    return menus;
  }
  static Qt::Key LetterOf(const QString& caption) {
    return static_cast<Qt::Key>(caption[caption.indexOf('&') + 1].toUpper().unicode());
  }
  static std::vector<QAction*> Choices(const QMenu& menu) {
    std::vector<QAction*> choices;
    for (QAction* action : menu.actions())
      if (action->isVisible() && action->isEnabled() && !action->isSeparator())
        choices.push_back(action);
    return choices;
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
    road::Key(Window(), key, modifiers, text);
  }
};

TEST_F(MenuKeysTest, EveryMenuOpensByItsLetterIsWalkedAndIsLeft) {
  ASSERT_GE(Menus().size(), 6U);
  for (QMenu* menu : Menus()) {
    const QString title = menu->title();
    ASSERT_TRUE(title.contains('&')) << qPrintable(title);
    // Two menus share a letter: pressed again it goes on to the next.
    Press(LetterOf(title), Qt::AltModifier);
    if (QApplication::activePopupWidget() != menu) {
      Press(Qt::Key_Escape);
      Press(Qt::Key_Escape);
      Press(LetterOf(title), Qt::AltModifier);
    }
    ASSERT_EQ(QApplication::activePopupWidget(), menu) << qPrintable(title);
    const auto choices = Choices(*menu);
    ASSERT_FALSE(choices.empty()) << qPrintable(title);
    Press(Qt::Key_Home);
    EXPECT_EQ(menu->activeAction(), choices.front()) << qPrintable(title);
    if (choices.size() > 1) {
      Press(Qt::Key_Down);
      EXPECT_EQ(menu->activeAction(), choices[1]) << qPrintable(title);
      Press(Qt::Key_Up);
      EXPECT_EQ(menu->activeAction(), choices.front()) << qPrintable(title);
    }
    Press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << qPrintable(title);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Bar()->hasFocus()) << qPrintable(title);
  }
  EXPECT_TRUE(link.calls.empty());
  EXPECT_TRUE(program.session->main_form.Visible());
}

TEST_F(MenuKeysTest, F10OpensTheFirstMenuAndTheArrowsWalkThroughAll) {
  const auto menus = Menus();
  QWidget* before = QApplication::focusWidget();
  Press(Qt::Key_F10);
  for (QMenu* menu : menus) {
    EXPECT_EQ(QApplication::activePopupWidget(), menu) << qPrintable(menu->title());
    Press(Qt::Key_Right);
  }
  EXPECT_EQ(QApplication::activePopupWidget(), menus.front());
  Press(Qt::Key_Left);
  EXPECT_EQ(QApplication::activePopupWidget(), menus.back());
  Press(Qt::Key_Escape);
  Press(Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(MenuKeysTest, EnterAndALetterChoose) {
  const auto contents = [this] { return static_cast<int>(help_viewer.calls.size()); };
  QMenu* help = Menus().back();
  Press(LetterOf(help->title()), Qt::AltModifier);
  Press(Qt::Key_Home);
  Press(Qt::Key_Return, Qt::NoModifier, "\r");
  ASSERT_EQ(contents(), 1);
  EXPECT_EQ(help_viewer.calls[0].command, HelpCommand::kContents);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Press(LetterOf(help->title()), Qt::AltModifier);
  const QString second = Choices(*help)[1]->text();
  Press(LetterOf(second), Qt::NoModifier, QString(QChar(LetterOf(second))).toLower());
  ASSERT_EQ(contents(), 2);
  EXPECT_EQ(help_viewer.calls[1].command, HelpCommand::kPartialKey);
}

TEST_F(MenuKeysTest, FormStillSwallowsItsKeysAndKnowsItsChord) {
  const auto utility = [this] { return program.session->main_form.mnuABS[7].Visible(); };
  EXPECT_FALSE(utility());
  Press(Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
  EXPECT_TRUE(utility());
  Press(Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
  EXPECT_FALSE(utility());
  Press(Qt::Key_F9, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(utility());
  Press(Qt::Key_F1);
  ASSERT_EQ(help_viewer.calls.size(), 1U);
  EXPECT_EQ(help_viewer.calls[0].command, HelpCommand::kContents);
}

}  // namespace
}  // namespace lorimet
