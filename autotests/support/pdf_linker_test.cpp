// The vocabulary of the reserved link to a manual.
#include "support/pdf_linker.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "autotests/places.h"
#include "support/dictionary.h"
#include "support/frmPDFDDEForm.h"

namespace lorimet {
namespace {

TEST(PdfLinker, KeepsTheWordsOfTheExchange) {
  EXPECT_STREQ(pdf_linker::kViewer, "AcroRd32.exe");
  EXPECT_STREQ(pdf_linker::kServiceAndTopic, "acroview|control");
  EXPECT_EQ(pdf_linker::OpenDocument(R"(C:\manual.pdf)"), R"([DocOpen(C:\manual.pdf)])");
  EXPECT_EQ(pdf_linker::GoToNamedDestination("SID42"), "[DocGoToNameDest(NULL,SID42)]");
}

class PdfLinkerTest : public testing::Test {
 protected:
  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  TsTranslations translations{InSource("translations")};
  Dictionary dictionary{translations, desktop};
};

TEST_F(PdfLinkerTest, TellsTheReasonsOfAFailureInLines) {
  EXPECT_EQ(pdf_linker::LaunchFailureText(dictionary),
            "Failed to launch Adobe Acrobat Reader due to one of the following reasons:\r\n"
            "1.  Path to the executable contained in the registry is invalid.\r\n"
            "2.  Adobe Acrobat Reader version is not 4.0 or higher.\r\n"
            "3.  Adobe Acrobat Reader has not been installed.");
}

TEST_F(PdfLinkerTest, TellsThemInTheLanguage) {
  const std::string english = pdf_linker::LaunchFailureText(dictionary);
  dictionary.Open();
  for (const int language : {kFrench, kSpanish}) {
    dictionary.SetLanguage(language);
    const std::string text = pdf_linker::LaunchFailureText(dictionary);
    std::istringstream lines(english);
    for (std::string line; std::getline(lines, line, '\r'); lines.ignore())
      EXPECT_EQ(text.find(line), std::string::npos) << line;
    EXPECT_NE(text.find("\r\n1. "), std::string::npos) << text;
    EXPECT_NE(text.find("\r\n2. "), std::string::npos) << text;
    EXPECT_NE(text.find("\r\n3. "), std::string::npos) << text;
  }
}

TEST_F(PdfLinkerTest, HasItsFormWithOneControl) {
  frmPDFDDEForm form(desktop);
  EXPECT_EQ(form.Controls().size(), 1u);
  EXPECT_EQ(form.FindControl("txtDDE"), &form.txtDDE);
}

}  // namespace
}  // namespace lorimet
