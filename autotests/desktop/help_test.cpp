// The help viewer: its pages, its search, and its window by name.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>

#include "adapters/qt/qt_help_pages.h"
#include "adapters/qt/qt_help_viewer.h"
#include "adapters/qt/qt_help_window.h"
#include "adapters/qt/qt_text.h"
#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

class HelpTest : public testing::Test {
 protected:
  HelpTest()
      : viewer(FromQString(folder.path()), [this](const std::string& text) {
          return text == "Search" && french ? "Recherche" : text;
        }) {
    Write("en/index.html",
          "<html><head><title>Contents</title></head><body><h1>Help</h1><ul>"
          "<li><a href=\"faults.html\">Faults</a><ul>"
          "<li><a href=\"clear.html#all\">Clearing</a></li></ul></li>"
          "<li><a href=\"brakes.html\">Br&eacute;mse</a></li></ul></body></html>");
    Write("en/faults.html",
          "<html><head><title>Faults</title></head><body>The ECU keeps faults.</body></html>");
    Write("en/clear.html",
          "<html><body><h1>Clearing</h1><p>Stored faults go, active ones come back.</p></body>"
          "</html>");
    Write("en/brakes.html",
          "<html><head><title>Bremsdruck</title></head><body><p>Pression d\u2019air "
          "\u00c9LEV\u00c9E</p></body></html>");
    Write("fr/index.html",
          "<html><body><ul><li><a href=\"un.html\">D\u00e9fauts</a></li></ul></body></html>");
    Write("fr/un.html", "<html><head><title>Un</title></head><body>D\u00e9faut</body></html>");
  }

  void Write(const QString& name, const char* text) const {
    const QString path = folder.path() + "/help/" + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  static QWidget* Window() {
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->objectName() == "frmHelp") return widget;
    return nullptr;
  }
  template <typename Widget>
  static Widget* Find(const char* name) {
    return Window()->findChild<Widget*>(QLatin1String(name));
  }

  // A form, and a dialog that stands modally on it while something happens.
  struct SampleStage {
    QtDesktop desktop{{{"frmSample", BuildSampleWindow}, {"frmOne", BuildSampleDialog}}};
    SampleForm form{desktop};
    SampleForm dialog{desktop, "frmOne"};

    void ShowModally(const std::function<void()>& action) {
      form.Show();
      DesktopTest::WhenModal([&](QWidget*) {
        action();
        dialog.Unload();
      });
      dialog.Show(Modality::kModal, &form);
      form.Unload();
      DesktopTest::Pump();
    }
  };

  QTemporaryDir folder;
  bool french = false;
  QtHelpViewer viewer;
};

std::vector<QString> Files(const std::vector<HelpHit>& hits) {
  std::vector<QString> files;
  for (const HelpHit& hit : hits) files.push_back(hit.page->file);
  return files;
}

TEST_F(HelpTest, ContentsAreTheLinksOfTheIndex) {
  HelpPages pages;
  ASSERT_TRUE(pages.Read(folder.path() + "/help/en"));
  ASSERT_EQ(pages.Contents().size(), 3U);
  EXPECT_EQ(pages.Contents()[1].caption, "Clearing");
  EXPECT_EQ(pages.Contents()[1].target, "clear.html#all");
  EXPECT_EQ(pages.Contents()[1].level, 1);
  EXPECT_EQ(pages.Contents()[2].caption, QString::fromUtf8("Br\u00e9mse"));
  EXPECT_EQ(pages.Contents()[2].level, 0);
}

TEST_F(HelpTest, FolderWithoutAnIndexHasNoPages) {
  HelpPages pages;
  EXPECT_FALSE(pages.Read(folder.path()));
  EXPECT_TRUE(pages.Search("faults").empty());
}

TEST_F(HelpTest, SearchRanksATitleHigherThanAText) {
  HelpPages pages;
  pages.Read(folder.path() + "/help/en");
  EXPECT_EQ(Files(pages.Search("faults")), (std::vector<QString>{"faults.html", "clear.html"}));
}

TEST_F(HelpTest, SearchMindsNeitherCaseNorAccents) {
  HelpPages pages;
  pages.Read(folder.path() + "/help/en");
  EXPECT_EQ(Files(pages.Search("elevee")), (std::vector<QString>{"brakes.html"}));
  EXPECT_EQ(Files(pages.Search(QString::fromUtf8("PR\u00c9SSION"))),
            (std::vector<QString>{"brakes.html"}));
}

TEST_F(HelpTest, SearchWantsEveryWordFromItsBeginning) {
  HelpPages pages;
  pages.Read(folder.path() + "/help/en");
  EXPECT_EQ(Files(pages.Search("stored fault")), (std::vector<QString>{"clear.html"}));
  EXPECT_TRUE(pages.Search("stored pressure").empty());
  EXPECT_TRUE(pages.Search("aults").empty());
  EXPECT_TRUE(pages.Search("  ").empty());
}

TEST_F(HelpTest, SnippetShowsTheFoundWordsInBold) {
  HelpPages pages;
  pages.Read(folder.path() + "/help/en");
  const auto hits = pages.Search("stored");
  ASSERT_EQ(hits.size(), 1U);
  EXPECT_TRUE(hits[0].snippet.contains("<b>Stored</b> faults go")) << FromQString(hits[0].snippet);
}

TEST_F(HelpTest, ContentsCommandOpensAtTheContents) {
  viewer.Show("", HelpCommand::kContents, "");
  ASSERT_NE(Window(), nullptr);
  EXPECT_TRUE(Window()->isVisible());
  EXPECT_EQ(Window()->windowModality(), Qt::NonModal);
  EXPECT_EQ(Find<QTreeWidget>("lstHelpContents")->topLevelItemCount(), 2);
  EXPECT_TRUE(Find<QTextBrowser>("txtHelpPage")->toPlainText().startsWith("Help"));
}

TEST_F(HelpTest, SearchCommandOpensAtTheSearch) {
  viewer.Show("", HelpCommand::kPartialKey, "");
  auto* words = Find<QLineEdit>("txtHelpSearch");
  EXPECT_EQ(Window()->focusWidget(), words);
  words->setText("faults");
  auto* results = Find<QListWidget>("lstHelpResults");
  ASSERT_EQ(results->count(), 2);
  results->setCurrentRow(1);
  EXPECT_TRUE(Find<QTextBrowser>("txtHelpPage")->toPlainText().contains("active ones"));
}

TEST_F(HelpTest, PageCommandOpensAtThatPageAndAtTheContentsWithoutIt) {
  viewer.Show("", HelpCommand::kPage, "faults.html");
  EXPECT_EQ(Find<QTextBrowser>("txtHelpPage")->toPlainText(), "The ECU keeps faults.");
  EXPECT_EQ(Window()->focusWidget(), Find<QTextBrowser>("txtHelpPage"));
  viewer.Show("", HelpCommand::kPage, "nowhere.html");
  EXPECT_TRUE(Find<QTextBrowser>("txtHelpPage")->toPlainText().startsWith("Help"));
}

// The lightest and the darkest colour in a picture.
std::pair<int, int> Range(const QImage& picture) {
  std::pair<int, int> range{255, 0};
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const int grey = qGray(picture.pixel(x, y));
      range = {std::min(range.first, grey), std::max(range.second, grey)};
    }
  return range;
}

TEST_F(HelpTest, SelectedResultIsLightOnDarkAndTheOthersDarkOnLight) {
  viewer.Show("", HelpCommand::kPartialKey, "faults");
  DesktopTest::Pump();
  auto* results = Find<QListWidget>("lstHelpResults");
  ASSERT_EQ(results->count(), 2);
  for (const int selected : {1, 0}) {
    results->setCurrentRow(selected);
    results->setFocus();
    DesktopTest::Pump();
    const QImage picture = results->viewport()->grab().toImage();
    for (int row = 0; row < 2; ++row) {
      const QRect place = results->visualItemRect(results->item(row)).adjusted(6, 6, -6, -6);
      const QImage words = picture.copy(place);
      const int ground = qGray(words.pixel(0, 0));
      const auto [darkest, lightest] = Range(words);
      if (row == selected) {
        EXPECT_LT(ground, 110);
        EXPECT_GT(lightest, 220);
      } else {
        EXPECT_GT(ground, 220);
        EXPECT_LT(darkest, 60);
      }
    }
  }
}

TEST_F(HelpTest, OpenHelpTakesClicksAndClosesWhateverStandsModally) {
  SampleStage stage;
  viewer.Show("", HelpCommand::kContents, "");
  stage.ShowModally([&] {
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    auto* page = Find<QTextBrowser>("txtHelpPage");
    auto* contents = Find<QTreeWidget>("lstHelpContents");
    const QRect second = contents->visualItemRect(contents->topLevelItem(1));
    road::Click(contents->viewport(), second.center());
    EXPECT_TRUE(page->toPlainText().startsWith("Pression")) << FromQString(page->toPlainText());
    // The window behind the modal one takes nothing.
    const auto clicks = stage.form.log.size();
    road::Click(stage.desktop.Window(stage.form)->findChild<QWidget*>("cmdOK"));
    EXPECT_EQ(stage.form.log.size(), clicks);
    Window()->activateWindow();
    DesktopTest::Pump();
    road::Key(Window(), Qt::Key_Escape);
    EXPECT_FALSE(Window()->isVisible());
    viewer.Show("", HelpCommand::kContents, "");
    EXPECT_TRUE(Window()->isVisible());
    EXPECT_TRUE(Window()->close());
  });
}

TEST_F(HelpTest, HelpFilesFolderComesFirst) {
  const QTemporaryDir other;
  QDir(other.path()).mkpath("help/en");
  QFile index(other.filePath("help/en/index.html"));
  ASSERT_TRUE(index.open(QIODevice::WriteOnly));
  index.write("<html><body>Elsewhere</body></html>");
  index.close();
  viewer.Show(FromQString(other.path()) + "\\Trailer.hlp", HelpCommand::kContents, "");
  EXPECT_EQ(Find<QTextBrowser>("txtHelpPage")->toPlainText(), "Elsewhere");
}

TEST_F(HelpTest, LanguageChoosesPagesAndWords) {
  french = true;
  viewer.SetLanguage(1);
  viewer.Show("", HelpCommand::kContents, "");
  EXPECT_EQ(Find<QTreeWidget>("lstHelpContents")->topLevelItem(0)->text(0),
            QString::fromUtf8("D\u00e9fauts"));
  EXPECT_EQ(Window()->findChild<QTabWidget*>()->tabText(1), "Recherche");
}

TEST_F(HelpTest, LanguageWithoutPagesShowsTheEnglishOnes) {
  viewer.SetLanguage(3);
  viewer.Show("", HelpCommand::kContents, "");
  EXPECT_EQ(Find<QTreeWidget>("lstHelpContents")->topLevelItemCount(), 2);
}

TEST(HelpViewerTest, MissingPagesSayWhereTheyWereLookedFor) {
  const QTemporaryDir empty;
  const std::string folder = FromQString(empty.path());
  QtHelpViewer viewer(
      folder, [](const std::string& text) { return text; }, folder);
  viewer.Show("/some/where/Trailer.hlp", HelpCommand::kContents, "");
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() != "frmHelp") continue;
    const QString text = widget->findChild<QTextBrowser*>("txtHelpPage")->toPlainText();
    EXPECT_TRUE(text.contains("not found"));
    EXPECT_TRUE(text.contains(QDir::toNativeSeparators(empty.path())));
    EXPECT_TRUE(text.contains(QDir::toNativeSeparators("/some/where/help/en")));
    return;
  }
  FAIL() << "no window";
}

}  // namespace
}  // namespace lorimet
