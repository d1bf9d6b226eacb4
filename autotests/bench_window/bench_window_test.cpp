// The bench's window on a real simulated trailer and its socket, by the window system's own road.
#include "simulator/bench/bench_window.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLocalSocket>
#include <QScrollArea>
#include <QWindow>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "adapters/qt/qt_style.h"
#include "autotests/places.h"
#include "simulator/bench/single_bench.h"
#include "simulator/library/library.h"

// The toolkit exports these for its own tests; they bring an event as the window system would.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers,
                                               const QString& text = QString(),
                                               bool autorepeat = false, ushort count = 1);
QT_END_NAMESPACE

namespace lorimet::bench {
namespace {

QApplication& Application() {
  static int count = 1;
  static char name[] = "bench_window_tests";
  static char* arguments[] = {name, nullptr};
  // Never deleted: the toolkit's own statics may be gone before it.
  static auto* const application = [] {
    auto* made = new QApplication(count, arguments);
    ApplyStyle(*made);
    return made;
  }();
  return *application;
}

class BenchWindowTest : public testing::Test {
 protected:
  BenchWindowTest() {
    Application();
    folder_ = std::filesystem::temp_directory_path() / ("bench-" + std::to_string(getpid()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    setenv("LORIMET32_STATE", "none", 1);
    setenv("LORIMET32_CONTROL", (folder_ / "control").c_str(), 1);
    unsetenv("LORIMET32_SCENARIO");
  }
  ~BenchWindowTest() override {
    window_.reset();
    library_.reset();
    std::filesystem::remove_all(folder_);
  }

  QString Socket() const { return QString::fromStdString((folder_ / "control.socket").string()); }
  void StartTrailer() { library_.emplace(); }
  void Show(const char* language = "en") {
    window_ = std::make_unique<BenchWindow>(
        Socket(), ReadyTrailers({InSource("simulator/scenarios")}), QLatin1String(language));
    window_->show();
  }
  // Runs the window's events until something comes true, with a generous limit.
  static bool Eventually(const std::function<bool()>& condition) {
    QElapsedTimer limit;
    limit.start();
    while (!condition()) {
      if (limit.hasExpired(20'000)) return false;
      QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return true;
  }
  bool There() {
    return Eventually([this] { return window_->Model().Where() == Presence::kThere; });
  }
  const Sight& Seen() const { return window_->Model().Seen(); }
  template <typename Widget>
  Widget* Find(const char* name) {
    return window_->findChild<Widget*>(QLatin1String(name));
  }
  void Click(QWidget* widget) {
    static int time = 0;
    time += 2000;  // never a double click
    window_->findChild<QScrollArea*>()->ensureWidgetVisible(widget);
    const QPointF local = widget->mapTo(window_.get(), widget->rect().center());
    const QPointF global = window_->mapToGlobal(local);
    QWindow* handle = window_->windowHandle();
    qt_handleMouseEvent(handle, local, global, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, time);
    qt_handleMouseEvent(handle, local, global, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, time + 10);
  }

  std::filesystem::path folder_;
  std::optional<simulator::Library> library_;
  std::unique_ptr<BenchWindow> window_;
};

TEST_F(BenchWindowTest, AClickOnAWheelTurnsTheTrailersWheel) {
  StartTrailer();
  Show();
  ASSERT_TRUE(There());
  ASSERT_TRUE(Eventually([this] { return Find<QWidget>("wheel_2")->isVisible(); }));
  Click(Find<QWidget>("wheel_2"));
  EXPECT_TRUE(Eventually([this] { return Seen().Wheel(2).speed > 4; }));
  EXPECT_EQ(Seen().Wheel(3).speed, 0);
}

TEST_F(BenchWindowTest, ItsNumberSpinsAWheelAndIsALetterWhereOneTypes) {
  StartTrailer();
  Show();
  ASSERT_TRUE(There());
  window_->activateWindow();
  ASSERT_TRUE(Eventually([this] { return window_->isActiveWindow(); }));
  qt_sendShortcutOverrideEvent(window_->windowHandle(), 0, Qt::Key_5, Qt::NoModifier,
                               QStringLiteral("5"));
  EXPECT_TRUE(Eventually([this] { return Seen().Wheel(5).speed > 4; }));
  Find<QWidget>("txtCommand")->setFocus();
  EXPECT_FALSE(qt_sendShortcutOverrideEvent(window_->windowHandle(), 0, Qt::Key_6, Qt::NoModifier,
                                            QStringLiteral("6")))
      << "the field takes the digit";
}

TEST_F(BenchWindowTest, TheNewcomersCommandsReachTheTrailer) {
  StartTrailer();
  Show();
  ASSERT_TRUE(There());
  struct Row {
    const char* button;
    bool (*seen)(const Sight&);
  };
  const Row rows[] = {
      {"cmdPress", [](const Sight& s) { return s.pedal == 90; }},
      {"cmdRelease", [](const Sight& s) { return s.pedal == 0; }},
      {"chkCompressor", [](const Sight& s) { return !s.compressor; }},
      {"cmdPump", [](const Sight& s) { return s.supply > 114; }},
      {"cmdLaden", [](const Sight& s) { return s.load == 1; }},
      {"cmdUnladen", [](const Sight& s) { return s.load == 0; }},
      {"chkParkingBrake", [](const Sight& s) { return s.parking_brake; }},
      {"chkCable", [](const Sight& s) { return !s.cable; }},
      {"chkAdapter", [](const Sight& s) { return !s.adapter; }},
      {"cmdBreak", [](const Sight& s) { return s.defects == "modulator"; }},
      {"cmdMend", [](const Sight& s) { return s.defects == "none"; }},
      {"cmdFail", [](const Sight& s) { return s.failures.ends_with("refuse"); }},
      {"cmdHeal", [](const Sight& s) { return s.failures == "none"; }},
      {"cmdFault", [](const Sight& s) { return s.faults > 0; }},
      {"chkPower", [](const Sight& s) { return s.ecu == "off"; }},
  };
  for (const Row& row : rows) {
    auto* button = Find<QAbstractButton>(row.button);
    ASSERT_NE(button, nullptr) << row.button;
    Click(button);
    EXPECT_TRUE(Eventually([&] { return row.seen(Seen()); })) << row.button;
  }
}

TEST_F(BenchWindowTest, AnotherTrailerIsChosenByItsName) {
  StartTrailer();
  Show("fr");
  ASSERT_TRUE(There());
  auto* trailers = Find<QComboBox>("cmbTrailer");
  ASSERT_EQ(trailers->currentIndex(), 0);
  emit trailers->activated(2);
  EXPECT_TRUE(Eventually([this] { return Seen().configuration == "2S/1M"; }));
  EXPECT_TRUE(Eventually([&] { return trailers->currentIndex() == 2; }));
}

TEST_F(BenchWindowTest, SaysThatThereIsNoTrailerAndFindsItByItself) {
  Show();
  const auto next = [this] { return Find<QLabel>("lblWaits")->text(); };
  EXPECT_EQ(next(), "There is no simulated trailer.");
  StartTrailer();
  ASSERT_TRUE(There());
  EXPECT_EQ(next(), "No program is connected to the trailer.");
  library_.reset();
  EXPECT_TRUE(Eventually([&] { return next() == "There is no simulated trailer."; }));
  StartTrailer();
  EXPECT_TRUE(There());
}

TEST_F(BenchWindowTest, WhatIsBrokenStandsThereInTheLanguageOfThePerson) {
  StartTrailer();
  Show("fr");
  ASSERT_TRUE(There());
  window_->Do("defect modulator H1 dead");
  window_->Do("defect lamp dead");
  const auto shown = [this] { return Find<QLabel>("lblDefects")->text(); };
  EXPECT_TRUE(Eventually([&] { return shown().contains(QStringLiteral("Modulateur")); }));
  EXPECT_TRUE(shown().contains(QStringLiteral(", "))) << shown().toStdString();
  window_->Do("repair all");
  EXPECT_TRUE(Eventually([&] { return shown().endsWith(QStringLiteral(": -")); }));
}

TEST_F(BenchWindowTest, ASecondBenchBringsTheFirstOneForward) {
  const QString meeting = Socket() + QStringLiteral(".bench");
  SingleBench second(meeting);
  EXPECT_FALSE(second.CallTheOther());
  Show();
  window_->showMinimized();
  SingleBench first(meeting);
  first.Stand([this] { window_->ComeForward(); });
  EXPECT_TRUE(second.CallTheOther());
  EXPECT_TRUE(Eventually([this] { return !window_->isMinimized() && window_->isActiveWindow(); }));
}

TEST_F(BenchWindowTest, WaitsWhileSomebodyElseHasTheTrailer) {
  StartTrailer();
  QLocalSocket other;
  other.connectToServer(Socket());
  ASSERT_TRUE(other.waitForConnected(5000));
  other.write("get time\n");
  ASSERT_TRUE(Eventually([&] { return other.bytesAvailable() > 0; }));
  Show();
  EXPECT_TRUE(Eventually([this] { return window_->Model().Where() == Presence::kTaken; }));
  EXPECT_EQ(Find<QLabel>("lblWaits")->text(), "Somebody else has this trailer.");
  other.disconnectFromServer();
  EXPECT_TRUE(There());
}

// What cannot be read, or lies over something else, in the window as it stands.
std::string Clipped(const QWidget& window) {
  std::string found;
  const auto complain = [&found](const QWidget* widget, const char* what) {
    found += std::string("\n  ") + widget->metaObject()->className() + " " +
             widget->objectName().toStdString() + " " + what;
  };
  std::vector<const QWidget*> leaves;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      if (button->width() < button->minimumSizeHint().width() ||
          button->width() <
              button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width())
        complain(button, "has no room for its words");
      leaves.push_back(widget);
    } else if (qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLabel*>(widget) ||
               qobject_cast<const QAbstractSpinBox*>(widget)) {
      leaves.push_back(widget);
    }
    const auto* scroll = window.findChild<QScrollArea*>();
    const QWidget* part = scroll->widget()->isAncestorOf(widget) ? scroll->viewport() : &window;
    const int left = widget->mapTo(&window, QPoint()).x() - part->mapTo(&window, QPoint()).x();
    if (left < 0 || left + widget->width() > part->width()) complain(widget, "is cut off");
  }
  for (std::size_t i = 0; i < leaves.size(); ++i)
    for (std::size_t k = i + 1; k < leaves.size(); ++k)
      if (leaves[i]->parent() == leaves[k]->parent() &&
          leaves[i]->geometry().intersects(leaves[k]->geometry()))
        complain(leaves[i], ("lies over " + leaves[k]->objectName().toStdString()).c_str());
  return found;
}

TEST_F(BenchWindowTest, NothingIsClippedInAnyLanguageAndSize) {
  StartTrailer();
  for (const char* language : {"en", "fr", "es"}) {
    Show(language);
    ASSERT_TRUE(There());
    for (const QSize& size : {QSize(0, 728), QSize(0, 300), QSize(683, 344), QSize(940, 740),
                              QSize(1180, 740), QSize(1900, 1000)}) {
      window_->resize(size.expandedTo(window_->minimumSize()));
      QApplication::processEvents();
      EXPECT_EQ(Clipped(*window_), "") << language << " " << size.width() << "x" << size.height();
    }
    EXPECT_LT(window_->minimumWidth(), 400) << language << ": no room beside the program";
  }
}

TEST_F(BenchWindowTest, ADeedThatIsAdvisedIsInSightInANarrowWindow) {
  StartTrailer();
  Show();
  ASSERT_TRUE(There());
  window_->resize(window_->minimumWidth(), 600);
  const auto in_sight = [this](const char* name) {
    auto* widget = Find<QWidget>(name);
    return widget->visibleRegion().boundingRect() == widget->rect();
  };
  EXPECT_TRUE(Eventually([&] { return in_sight("cmdPump"); }));
  EXPECT_FALSE(in_sight("chkAdapter"));
  window_->Do("adapter off");
  EXPECT_TRUE(Eventually([&] { return in_sight("chkAdapter"); }));
}

TEST_F(BenchWindowTest, EverythingThatTakesTheFocusHasANameOfItsOwn) {
  StartTrailer();
  Show();
  ASSERT_TRUE(There());
  std::set<QString> names;
  for (QWidget* widget : window_->findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
    if (widget->objectName().startsWith(QLatin1String("qt_"))) continue;
    QAccessibleInterface* side = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(side, nullptr);
    const QString name = side->text(QAccessible::Name);
    EXPECT_FALSE(name.isEmpty()) << widget->objectName().toStdString();
    EXPECT_TRUE(names.insert(name).second) << name.toStdString();
  }
  EXPECT_GT(names.size(), 25u);
}

}  // namespace
}  // namespace lorimet::bench
