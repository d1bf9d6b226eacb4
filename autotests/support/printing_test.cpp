#include "support/printing.h"

#include <gtest/gtest.h>

#include "adapters/headless/headless_ports.h"
#include "adapters/headless/recording_printer.h"
#include "platform/runtime_error.h"
#include "support/text.h"

namespace lorimet {
namespace {

class PrintingTest : public testing::Test {
 protected:
  static std::string Path(const std::string& name) {
    return std::string("/program") + kPathSeparator + name;
  }
  // The file of the document that is printed next.
  std::string Printed() {
    printer_.PrintLine("x");
    printer_.EndDocument();
    return printer_.Documents().back().file;
  }

  RecordingPrinter printer_;
  HeadlessProcess process_;
};

TEST_F(PrintingTest, GoesToThePrinterWhereThereIsOne) {
  EXPECT_EQ(SendToPrinterOrFile(printer_, process_, "AB1234"), "");
  EXPECT_EQ(Printed(), "");
  EXPECT_EQ(SendToPrinterOrFile(printer_, process_, "A/B"), "") << "no file is made";
}

TEST_F(PrintingTest, GoesToAFileWhereThereIsNone) {
  printer_.has_printer = false;
  EXPECT_EQ(SendToPrinterOrFile(printer_, process_, "AB1234"), Path("AB1234.pdf"));
  EXPECT_EQ(Printed(), Path("AB1234.pdf"));
}

TEST_F(PrintingTest, TakesTheNextNumberWhenTheNameIsTaken) {
  printer_.has_printer = false;
  process_.files = {Path("AB1234.pdf")};
  EXPECT_EQ(SendToPrinterOrFile(printer_, process_, "AB1234"), Path("AB1234 2.pdf"));
  process_.files = {Path("AB1234.pdf"), Path("AB1234 2.pdf"), Path("AB1234 3.pdf")};
  EXPECT_EQ(SendToPrinterOrFile(printer_, process_, "AB1234"), Path("AB1234 4.pdf"));
  EXPECT_EQ(Printed(), Path("AB1234 4.pdf"));
}

TEST_F(PrintingTest, NeverLeavesTheProgramsFolder) {
  printer_.has_printer = false;
  for (const char* stem : {"..", "../AB", "C:AB", "NUL", ""}) {
    try {
      SendToPrinterOrFile(printer_, process_, stem);
      ADD_FAILURE() << stem;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 52) << stem;
    }
  }
}

}  // namespace
}  // namespace lorimet
