// Every screen of the program in every language: nothing is clipped or covered, everything can be
// reached by keyboard and has a name, and the window fits its screen.
//
// Each of the screen sizes is a process of its own. LORIMET_LOOK_PICTURES names a folder that takes
// a picture of every screen.
#include <QAccessible>
#include <QDialog>
#include <QDir>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPicture>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <set>

#include "adapters/headless/ui_design.h"
#include "autotests/desktop/screens_fixture.h"

namespace lorimet {
namespace {

constexpr int kTitleBar = 32;     // what a window manager adds above
constexpr int kTitleTools = 130;  // icon and buttons beside a window's title
constexpr const char* kLanguageNames[] = {"en", "fr", "es"};
constexpr int kLanguages[] = {kEnglish, kFrench, kSpanish};

struct ScreenSetup {
  const char* name;
  QSize pixels;
  const char* scale;
};

constexpr ScreenSetup kSetups[] = {
    {"Small", {1024, 768}, "1"},
    {"Laptop", {1366, 768}, "1.25"},
    {"Fine", {2048, 1536}, "2"},
};

// English captions that share a letter by their design.
bool IsPermitted(const QString& one, const QString& other) {
  static const QStringList kTogether = {"&Tests", "&Tools"};
  static const QStringList kInUtility = {"Start Data&log Only", "&Disable Broadcast"};
  return (kTogether.contains(one) && kTogether.contains(other)) ||
         (kInUtility.contains(one) && kInUtility.contains(other));
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
  if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) return false;
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QPushButton*>(widget) != nullptr ||
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

// The complaints about one window.
class Inspection {
 public:
  explicit Inspection(QWidget& window) : window_(window) {
    for (QWidget* widget : window.findChildren<QWidget*>())
      if (widget->isVisibleTo(&window) && widget->window() == &window) widgets_ << widget;
  }

  QStringList Run(bool with_focus) {
    ClippedWords();
    ClippedTitles();
    Access();
    Names();
    Overlaps();
    Place();
    TabOrder();
    if (with_focus) Focus();
    return complaints_;
  }

 private:
  void Complain(const QString& complaint) { complaints_ << complaint; }

  void ClippedWords() {
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

  void ClippedTitles() {
    QFont font = window_.font();
    font.setBold(true);
    const int words = QFontMetrics(font).horizontalAdvance(window_.windowTitle());
    if (words + kTitleTools > window_.width()) Complain("the title is clipped");
  }

  void Doubles(const QStringList& captions, const QString& where) {
    std::map<QString, QString> taken;
    for (const QString& caption : captions) {
      const QString key = QKeySequence::mnemonic(caption).toString();
      if (key.isEmpty()) continue;
      const auto [other, free] = taken.try_emplace(key, caption);
      if (!free && !IsPermitted(caption, other->second))
        Complain(
            QString("%1: \"%2\" and \"%3\" have one letter").arg(where, caption, other->second));
    }
  }

  void Access() {
    QStringList captions;
    for (QWidget* widget : widgets_) {
      if (auto* button = qobject_cast<QAbstractButton*>(widget)) captions << button->text();
      if (auto* label = qobject_cast<QLabel*>(widget);
          label != nullptr && label->buddy() != nullptr)
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

  void Names() {
    std::map<QString, QString> names;
    std::set<QString> objects;
    for (QWidget* widget : widgets_) {
      if (!IsControl(widget)) continue;
      const QString object = widget->objectName();
      if (!objects.insert(object).second) Complain(object + ": is there twice");
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
  void Overlaps() {
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

  void Place() {
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
  void TabOrder() {
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
        const bool back = in_row ? to.right() < from.left()
                                 : to.bottom() < from.top() && to.left() <= from.right();
        if (back)
          Complain(before->objectName() + ": the tabulator goes back to " + widget->objectName());
      }
      before = widget;
    }
  }

  void Focus() {
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

  QWidget& window_;
  QList<QWidget*> widgets_;
  QStringList complaints_;
};

class EveryScreen : public ScreensTest, public testing::WithParamInterface<ScreenSetup> {
 protected:
  // The walk again, in a process whose screen is the one of the test.
  void RunOnScreen() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("screen.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QString(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2,
                           "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(GetParam().pixels.width())
                   .arg(GetParam().pixels.height())
                   .toUtf8());
    file.close();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName());
    environment.insert("QT_SCALE_FACTOR", GetParam().scale);
    environment.insert("LORIMET_LOOK_SCREEN", GetParam().name);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    process.start(QCoreApplication::applicationFilePath(),
                  {QString("--gtest_filter=%1.%2").arg(test->test_suite_name(), test->name())});
    ASSERT_TRUE(process.waitForFinished(110'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
  }

  void SetUp() override {
    if (!qEnvironmentVariableIsSet("LORIMET_LOOK_SCREEN")) return;
    link.always["FaultGetCount"] = 3;
    link.fault_data = [](void* first) {
      const std::vector<FaultRecord> records = {
          {0, 5, 7, 0, 0, 0}, {0, 7, 3, 0, 1, 2}, {0, 13, 2, 0, 1, 1}};
      std::ranges::copy(records, static_cast<FaultRecord*>(first));
    };
    AnswerBoxes();
    Start();
    FillRecord();
  }

  void FillRecord() {
    ECUData& ecu = Ecu();
    ecu.bNumSensors.Store(4);
    ecu.bNumModulators.Store(2);
    ecu.nNumAxles.Store(3);
    ecu.nAxleSensors[0].Store(1);
    ecu.nAxleSensors[2].Store(2);
    ecu.dSupplyPress.Store(112.4);
    ecu.dMainBellows.Store(61.0);
    ecu.dBrake1Press.Store(87.0);
    ecu.dBrake2Press.Store(86.0);
    ecu.dServiceBrake.Store(88.2);
    ecu.dPrimaryVolts.Store(1240.0);
    ecu.dOdometer.Store(123456.7);
    ecu.SysName.Store("Trailer ABS/EBS");
    ecu.SerialNum.Store("NV-1001");
  }

  void Walk(std::size_t language) {
    boxes = 0;
    Dictionary& dictionary = program.support->dictionary;
    dictionary.SetLanguage(kLanguages[language]);
    dictionary.TranslateForm(program.session->main_form);
    for (std::size_t i = 2; i <= 5; ++i)
      Ecu().dWheelSpeed[i].Store(12.3 + static_cast<double>(10 * language + i));
    program.session->main_form.DisplayCompId();
    program.session->main_form.UpdateLiveData();
    QTimer modals;
    QObject::connect(&modals, &QTimer::timeout, [this, language] { LookAtModals(language); });
    modals.start(0);
    for (Form* form : std::vector<Form*>(desktop.Forms())) {
      form->Load();
      boxes = 0;
      if (!form->Loaded()) continue;
      if (desktop.Window(*form)->objectName() == "frmPDFDDEForm") continue;
      form->Show();
      Look(*form, language);
      if (form != &program.session->main_form) form->Hide();
    }
    for (std::size_t i = desktop.LoadedForms().size(); i-- > 1;)
      if (i < desktop.LoadedForms().size()) desktop.LoadedForms()[i]->Unload();
    Pump();
  }

  // A screen that opens itself while it loads is looked at where it stands.
  void LookAtModals(std::size_t language) {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr || window->objectName() == "msgBox" || looking_) return;
    if (auto* dialog = qobject_cast<QDialog*>(window); window->objectName() == "dlgFile")
      return dialog->reject();
    for (Form* form : std::vector<Form*>(desktop.LoadedForms())) {
      if (desktop.Window(*form) != window) continue;
      Look(*form, language);
      form->Unload();
      if (form->Loaded()) form->Hide();
    }
  }

  void Look(Form& form, std::size_t language) {
    looking_ = true;
    Pump();
    QWidget* window = desktop.Window(form);
    window->activateWindow();
    Pump();
    Keep(*window, language);
    seen.insert(form.Name());
    for (const QString& complaint : Inspection(*window).Run(language == 0))
      ADD_FAILURE() << form.Name() << " " << kLanguageNames[language] << " "
                    << complaint.toStdString();
    looking_ = false;
  }

  static void Keep(QWidget& window, std::size_t language) {
    const QString folder = qEnvironmentVariable("LORIMET_LOOK_PICTURES");
    if (folder.isEmpty()) return;
    window.grab().save(QString("%1/%2-%3-%4.png")
                           .arg(folder, window.objectName(), kLanguageNames[language],
                                qEnvironmentVariable("LORIMET_LOOK_SCREEN")));
  }

  std::set<std::string> seen;

 private:
  bool looking_ = false;
};

TEST_P(EveryScreen, CanBeReadReachedAndUsed) {
  if (!qEnvironmentVariableIsSet("LORIMET_LOOK_SCREEN")) return RunOnScreen();
  for (std::size_t language = 0; language < std::size(kLanguages); ++language) Walk(language);
  for (const std::string& name : UiFormNames())
    EXPECT_TRUE(seen.contains(name) || name == "frmPDFDDEForm") << name << " was not looked at";
}

INSTANTIATE_TEST_SUITE_P(, EveryScreen, testing::ValuesIn(kSetups),
                         [](const auto& setup) { return setup.param.name; });

}  // namespace
}  // namespace lorimet
