// Modal forms: they return when they are hidden or unloaded, and may follow each other.
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

class ModalTest : public DesktopTest {
 protected:
  ModalTest() : one(desktop, "frmOne"), two(desktop, "frmTwo") {
    form.Show();
    Pump();
  }
  ~ModalTest() override {
    one.Unload();
    two.Unload();
  }

  SampleForm one;
  SampleForm two;
};

TEST_F(ModalTest, ShowReturnsWhenTheFormIsHidden) {
  one.cmdOK.on_click = [this] { one.Hide(); };
  WhenModal([this](QWidget* modal) {
    EXPECT_EQ(modal->objectName(), "frmOne");
    EXPECT_EQ(modal->windowModality(), Qt::WindowModal);
    EXPECT_EQ(modal->windowHandle()->transientParent(), desktop.Window(form)->windowHandle());
    Click(Find<QPushButton>(one, "cmdOK"));
  });
  one.Show(Modality::kModal, &form);
  EXPECT_TRUE(one.Loaded());
  EXPECT_FALSE(desktop.Window(one)->isVisible());
}

TEST_F(ModalTest, ShowReturnsWhenTheFormIsUnloaded) {
  WhenModal([](QWidget* modal) { modal->close(); });
  one.Show(Modality::kModal);
  EXPECT_FALSE(one.Loaded());
}

TEST_F(ModalTest, ModalFormStandsOnAModalForm) {
  one.cmdOK.on_click = [this] {
    two.Show(Modality::kModal);
    one.log.push_back("back");
    one.Unload();
  };
  two.cmdOK.on_click = [this] { two.Unload(); };
  WhenModal([this](QWidget*) {
    WhenModal([this](QWidget* second) {
      EXPECT_EQ(second->windowHandle()->transientParent(), desktop.Window(one)->windowHandle());
      Click(Find<QPushButton>(two, "cmdOK"));
    });
    Click(Find<QPushButton>(one, "cmdOK"));
  });
  one.Show(Modality::kModal);
  EXPECT_EQ(one.log, (std::vector<std::string>{"back", "unload"}));
}

TEST_F(ModalTest, OuterFormMayEndWhileAnInnerOneStands) {
  bool inner_ended = false;
  one.load = [&] {
    one.tmrTick.SetInterval(1);
    one.tmrTick.on_tick = [&] {
      one.tmrTick.SetInterval(0);
      two.Show(Modality::kModal);
      inner_ended = true;
    };
  };
  two.load = [&] {
    two.tmrTick.SetInterval(1);
    two.tmrTick.on_tick = [&] {
      one.Unload();
      two.Unload();
    };
  };
  one.Show(Modality::kModal);
  EXPECT_TRUE(inner_ended);
  EXPECT_FALSE(one.Loaded());
  EXPECT_FALSE(two.Loaded());
}

TEST_F(ModalTest, WizardWalksAThousandTimesOnOneStack) {
  int steps = 0;
  std::uintptr_t shallowest = UINTPTR_MAX;
  std::uintptr_t deepest = 0;
  const auto measure = [&] {
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    shallowest = std::min(shallowest, here);
    deepest = std::max(deepest, here);
  };
  const auto walk = [&](SampleForm& from, SampleForm& to) {
    from.tmrTick.on_tick = [&] {
      measure();
      from.tmrTick.SetInterval(0);
      from.Hide();
      if (++steps == 1000) return;
      to.tmrTick.SetInterval(1);
      from.ContinueWith(to);
    };
  };
  walk(one, two);
  walk(two, one);
  one.tmrTick.SetInterval(1);
  one.Show(Modality::kModal);
  EXPECT_EQ(steps, 1000);
  EXPECT_LT(deepest - shallowest, 4096U);
}

TEST_F(ModalTest, MessageBoxOverAFormThatEndsGoesWithIt) {
  one.load = [&] {
    one.tmrTick.SetInterval(1);
    one.tmrTick.on_tick = [&] {
      if (QApplication::activeModalWidget() != nullptr &&
          QApplication::activeModalWidget()->objectName() == "msgBox")
        one.Unload();
    };
    one.cmdOK.on_click = [&] { one.log.push_back(std::to_string(desktop.ShowMessageBox({}))); };
  };
  WhenModal([this](QWidget*) { Click(Find<QPushButton>(one, "cmdOK")); });
  one.Show(Modality::kModal);
  Pump();
  EXPECT_FALSE(one.Loaded());
  EXPECT_EQ(one.log.size(), 2U);
}

TEST_F(ModalTest, RunEndsWithTheLastForm) {
  QTimer::singleShot(0, qApp, [this] { desktop.Window(form)->close(); });
  desktop.Run();
  EXPECT_TRUE(desktop.LoadedForms().empty());
}

TEST_F(ModalTest, QuittingTheApplicationEndsAModalShow) {
  bool returned = false;
  QTimer::singleShot(0, qApp, [&] {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    one.Show(Modality::kModal);
    returned = true;
  });
  QCoreApplication::exec();
  EXPECT_TRUE(returned);
  EXPECT_TRUE(one.Visible());
}

TEST_F(ModalTest, DoEventsLetsTimersAndPostedEventsRun) {
  bool posted = false;
  QMetaObject::invokeMethod(
      qApp, [&posted] { posted = true; }, Qt::QueuedConnection);
  desktop.DoEvents();
  EXPECT_TRUE(posted);
}

TEST_F(ModalTest, RepaintRunsNoEvent) {
  bool posted = false;
  QMetaObject::invokeMethod(
      qApp, [&posted] { posted = true; }, Qt::QueuedConnection);
  desktop.Repaint();
  EXPECT_FALSE(posted);
  Pump();
}

}  // namespace
}  // namespace lorimet
