// The printer port: what holds for the real printer and for that of the tests, and the PDF file
// that the real one makes.
#include "platform/page_printer.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <memory>

#include <sys/resource.h>

#include "adapters/headless/recording_printer.h"
#include "adapters/qt/qt_page_printer.h"
#include "adapters/qt/qt_text.h"
#include "autotests/common/gestures.h"
#include "autotests/desktop/desktop_fixture.h"

namespace lorimet {
namespace {

using testing_support::ErrorOf;

const PrinterFont kTitle{"Arial", 14, true};
const PrinterFont kBody{"Arial", 9.75, false};
const PrinterFont kBold{"Arial", 9.75, true};
constexpr double kDotsPerTwip = 600.0 / 1440.0;

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string Blanks(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

// One of the two printers, and the pages that its last document had.
struct Side {
  const char* name;
  std::function<std::unique_ptr<PagePrinter>()> make;
  std::function<int(PagePrinter&, const QString& file)> pages;
};

int PagesInPdf(const QString& file) {
  static const QRegularExpression kPage("/Type\\s*/Page\\b");
  return static_cast<int>(QString::fromLatin1(BytesOf(file)).count(kPage));
}

const Side kSides[] = {
    {"Qt", [] { return std::make_unique<QtPagePrinter>(); },
     [](PagePrinter&, const QString& file) { return PagesInPdf(file); }},
    {"Recording",
     [] {
       auto printer = std::make_unique<RecordingPrinter>();
       printer->has_printer = false;
       return printer;
     },
     [](PagePrinter& printer, const QString&) {
       return static_cast<RecordingPrinter&>(printer).Documents().back().pages;
     }},
};

class PagePrinterContract : public testing::TestWithParam<Side> {
 protected:
  void SetUp() override { printer_->PrintToFile(FromQString(file_)); }

  int PagesOfLines(const PrinterFont& font, int lines) {
    printer_->PrintToFile(FromQString(file_));
    printer_->SetFont(font);
    for (int i = 0; i < lines; ++i) printer_->PrintLine("a line");
    printer_->EndDocument();
    return GetParam().pages(*printer_, file_);
  }

  QTemporaryDir folder_;
  QString file_ = folder_.filePath("pages.pdf");
  std::unique_ptr<PagePrinter> printer_ = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Sides, PagePrinterContract, testing::ValuesIn(kSides),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(PagePrinterContract, ARunOfBlanksIsAsWideAsItsBlanks) {
  printer_->SetFont(kBody);
  const double blank = printer_->TextWidth(Blanks(1000)) / 1000.0;
  for (const int count : {8, 15, 20, 50, 120, 180})
    EXPECT_NEAR(printer_->TextWidth(Blanks(count)), count * blank, 1.0) << count;
  EXPECT_EQ(printer_->TextWidth(""), 0);
  EXPECT_GT(printer_->TextWidth("M"), printer_->TextWidth(" "));
}

TEST_P(PagePrinterContract, WidthsAreThoseOfTheFontInForce) {
  printer_->SetFont(kBody);
  const int small = printer_->TextWidth("Sensors");
  printer_->SetFont({"Arial", 39, false});
  EXPECT_NEAR(printer_->TextWidth("Sensors"), 4 * small, 0.04 * small);
  printer_->SetFont(kBold);
  EXPECT_GT(printer_->TextWidth("Sensors"), small);
}

TEST_P(PagePrinterContract, ControlCharactersHaveNoWidth) {
  printer_->SetFont(kBody);
  const std::string text(
      "4S\0\0/\x01\x7F"
      "2M",
      9);
  EXPECT_EQ(printer_->TextWidth(text), printer_->TextWidth("4S/2M"));
}

// Columns are so many blanks wide, in bold heads as in the rows under them.
TEST_P(PagePrinterContract, ThePageHasRoomForTheFaultTablesColumns) {
  printer_->SetFont(kBold);
  const int head = printer_->TextWidth(Blanks(165));
  EXPECT_LE(head + printer_->TextWidth("Count"), printer_->PageWidth());
  EXPECT_LE(printer_->PageWidth(), 8.5 * 1440);
  printer_->SetFont(kBody);
  EXPECT_NEAR(printer_->TextWidth(Blanks(165)), head, 20);
}

TEST_P(PagePrinterContract, ALineThatThePageHasNoRoomForBeginsTheNext) {
  EXPECT_EQ(PagesOfLines(kBody, 60), 1);
  EXPECT_EQ(PagesOfLines(kBody, 100), 2);
  EXPECT_EQ(PagesOfLines(kTitle, 60), 2);
  EXPECT_EQ(PagesOfLines(kBody, 220), 4);
}

TEST_P(PagePrinterContract, EmptyLinesFillThePageLikeOthers) {
  printer_->SetFont(kBody);
  for (int i = 0; i < 100; ++i) printer_->PrintLine("");
  printer_->EndDocument();
  EXPECT_EQ(GetParam().pages(*printer_, file_), 2);
}

TEST_P(PagePrinterContract, EndingOrCancellingNothingDoesNothing) {
  printer_->EndDocument();
  printer_->Cancel();
  EXPECT_FALSE(QFile::exists(file_));
  printer_->PrintToFile(FromQString(file_));
  printer_->PrintLine("x");
  printer_->Cancel();
  EXPECT_EQ(ErrorOf([&] { printer_->EndDocument(); }), 0);
}

TEST_P(PagePrinterContract, AFileIsForOneDocument) {
  printer_->PrintLine("x");
  printer_->EndDocument();
  if (printer_->HasPrinter()) GTEST_SKIP() << "nothing may be printed on a real printer";
  EXPECT_EQ(ErrorOf([&] { printer_->PrintLine("x"); }), 482);
  printer_->Cancel();
  printer_->PrintToFile(FromQString(file_));
  printer_->Cancel();
  EXPECT_EQ(ErrorOf([&] { printer_->PrintLine("x"); }), 482);
}

// What stands in a page's content: the texts with their places, and the lines, in dots.
struct PdfText {
  int size;
  double x;
  double baseline;
  int glyphs;
};
struct PdfLine {
  double x;
  double y;
  double to_x;
  double to_y;
};

QList<QString> PageContents(const QByteArray& pdf) {
  static const QRegularExpression kStream("/Filter /FlateDecode\\s*>>\\s*stream\\n");
  QList<QString> contents;
  const QString text = QString::fromLatin1(pdf);
  for (auto match = kStream.globalMatch(text); match.hasNext();) {
    const qsizetype begin = match.next().capturedEnd();
    // The length that comes first is a hint to the reader alone.
    const QByteArray packed =
        QByteArray(4, '\1') + pdf.mid(begin, pdf.indexOf("endstream", begin) - begin);
    const QString content = QString::fromLatin1(qUncompress(packed));
    if (content.startsWith("/GSa")) contents.append(content);
  }
  return contents;
}

std::vector<PdfText> TextsIn(const QString& content) {
  static const QRegularExpression kText(
      "BT\\n/F\\d+ (\\d+) Tf[^\\n]*\\n([\\d.]+) -([\\d.]+) Td(.*?)ET",
      QRegularExpression::DotMatchesEverythingOption);
  std::vector<PdfText> texts;
  for (auto match = kText.globalMatch(content); match.hasNext();) {
    const auto found = match.next();
    texts.push_back({found.captured(1).toInt(), found.captured(2).toDouble(),
                     found.captured(3).toDouble(),
                     static_cast<int>(found.captured(4).count("Tj"))});
  }
  return texts;
}

std::vector<PdfLine> LinesIn(const QString& content) {
  static const QRegularExpression kLine("([\\d.]+) ([\\d.]+) m\\n([\\d.]+) ([\\d.]+) l\\nS");
  std::vector<PdfLine> lines;
  for (auto match = kLine.globalMatch(content); match.hasNext();) {
    const auto found = match.next();
    lines.push_back({found.captured(1).toDouble(), found.captured(2).toDouble(),
                     found.captured(3).toDouble(), found.captured(4).toDouble()});
  }
  return lines;
}

class QtPagePrinterTest : public testing::Test {
 protected:
  void SetUp() override { printer_.PrintToFile(FromQString(file_)); }
  // What the folder holds.
  QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

  QTemporaryDir folder_;
  QString file_ = folder_.filePath("pages.pdf");
  QtPagePrinter printer_;
};

TEST_F(QtPagePrinterTest, TextsStandWhereTheyWerePut) {
  printer_.SetFont(kTitle);
  printer_.PrintLine("Title");
  printer_.SetFont(kBody);
  printer_.SetX(1440);
  printer_.Print("left open");
  const int width = printer_.TextWidth("left open");
  printer_.PrintLine("!");
  printer_.PrintLine(std::string("N\0\x01L", 4));
  printer_.EndDocument();

  const QList<QString> pages = PageContents(BytesOf(file_));
  ASSERT_EQ(pages.size(), 1);
  const std::vector<PdfText> texts = TextsIn(pages[0]);
  ASSERT_EQ(texts.size(), 4U);
  EXPECT_NEAR(texts[0].size, 14 * 600 / 72.0, 1.0);
  EXPECT_EQ(texts[0].x, 0.0);
  EXPECT_EQ(texts[0].glyphs, 5);
  EXPECT_NEAR(texts[1].size, 9.75 * 600 / 72.0, 1.0);
  EXPECT_NEAR(texts[1].x, 600.0, 0.1);
  EXPECT_NEAR(texts[2].x, (1440 + width) * kDotsPerTwip, 1.0);
  EXPECT_EQ(texts[2].baseline, texts[1].baseline);
  EXPECT_EQ(texts[3].x, 0.0);
  EXPECT_EQ(texts[3].glyphs, 2) << "a control character shows";
  EXPECT_GT(texts[3].baseline, texts[2].baseline + 80);
}

TEST_F(QtPagePrinterTest, DrawnLinesGoFromAndToTheirTwips) {
  printer_.SetFont(kBody);
  printer_.PrintLine("Sensor");
  printer_.DrawLine(1000, 4000, 5);
  printer_.PrintLine("c");
  const int page = printer_.PageWidth();
  printer_.DrawLine(0, page, 5);
  printer_.EndDocument();

  const QString content = PageContents(BytesOf(file_)).value(0);
  const std::vector<PdfLine> lines = LinesIn(content);
  const std::vector<PdfText> texts = TextsIn(content);
  ASSERT_EQ(lines.size(), 2U);
  ASSERT_EQ(texts.size(), 2U);
  EXPECT_TRUE(content.contains("\n5 w ")) << "as thick as five dots";
  EXPECT_NEAR(lines[0].x, 1000 * kDotsPerTwip, 1.0);
  EXPECT_NEAR(lines[0].to_x, 4000 * kDotsPerTwip, 1.0);
  EXPECT_EQ(lines[0].y, lines[0].to_y);
  EXPECT_GT(lines[0].y, texts[0].baseline) << "under the line before";
  EXPECT_LT(lines[0].y, texts[1].baseline) << "over the line behind";
  EXPECT_EQ(lines[1].x, 0.0);
  EXPECT_NEAR(lines[1].to_x, page * kDotsPerTwip, 1.0);
  EXPECT_GT(lines[1].y, texts[1].baseline);
}

TEST_F(QtPagePrinterTest, PagesAreSheetsOfPaper) {
  printer_.PrintLine("x");
  printer_.EndDocument();
  EXPECT_TRUE(BytesOf(file_).contains("/MediaBox [0 0 595")) << "A4";
}

TEST_F(QtPagePrinterTest, TheFileComesIntoBeingAtTheEnd) {
  printer_.PrintLine("x");
  EXPECT_FALSE(QFile::exists(file_));
  printer_.EndDocument();
  EXPECT_TRUE(BytesOf(file_).startsWith("%PDF"));
  EXPECT_EQ(Names(), QStringList{"pages.pdf"});
}

TEST_F(QtPagePrinterTest, WhatIsCancelledLeavesNothing) {
  for (int i = 0; i < 300; ++i) printer_.PrintLine("a line");
  printer_.Cancel();
  EXPECT_EQ(Names(), QStringList());
  {
    QtPagePrinter forgotten;
    forgotten.PrintToFile(FromQString(file_));
    forgotten.PrintLine("x");
  }
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(QtPagePrinterTest, AFileThatCannotBeWrittenIsError482) {
  printer_.PrintToFile(FromQString(folder_.filePath("none/pages.pdf")));
  EXPECT_EQ(ErrorOf([&] { printer_.PrintLine("x"); }), 482);
  printer_.Cancel();
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(QtPagePrinterTest, AFullDiskIsError482AndKeepsTheOldFile) {
  QFile old(file_);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old");
  old.close();
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{2000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const int number = ErrorOf([&] {
    for (int i = 0; i < 300; ++i) printer_.PrintLine("line " + std::to_string(i));
    printer_.EndDocument();
  });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(number, 482);
  printer_.Cancel();
  EXPECT_EQ(BytesOf(file_), "old");
  EXPECT_EQ(Names(), QStringList{"pages.pdf"});
}

TEST_F(QtPagePrinterTest, WithoutAPrinterItIsError482) {
  QtPagePrinter printer;
  if (printer.HasPrinter()) GTEST_SKIP() << "this machine has a printer";
  EXPECT_EQ(ErrorOf([&] { printer.PrintLine("x"); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.TextWidth("x"); }), 482);
}

}  // namespace
}  // namespace lorimet
