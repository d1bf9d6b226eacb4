// The printer of the tests: where it says that things were printed.
#include "platform/page_printer.h"

#include <gtest/gtest.h>

#include "adapters/headless/recording_printer.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

using State = RecordingPrinter::State;

const PrinterFont kTitle{"Arial", 14, true};
const PrinterFont kBody{"Arial", 10, false};

TEST(RecordingPrinterTest, KeepsEveryTextWithItsPlaceAndFont) {
  RecordingPrinter printer;
  printer.SetFont(kTitle);
  printer.PrintLine("");
  printer.PrintLine("Title");
  printer.SetFont(kBody);
  printer.Print("VIN:");
  printer.SetX(printer.TextWidth(std::string(50, ' ')));
  printer.PrintLine("AB");
  printer.Print("a ");
  printer.Print("é");
  printer.PrintLine(std::string("\0b", 2));
  printer.EndDocument();
  ASSERT_EQ(printer.Documents().size(), 1U);
  EXPECT_EQ(printer.Documents()[0].state, State::kEnded);
  EXPECT_EQ(printer.Documents()[0].file, "");
  EXPECT_EQ(printer.Documents()[0].pages, 1);
  EXPECT_EQ(RecordingPrinter::Transcript(printer.Documents()[0]),
            std::string("1 322 0 14 bold: Title\n"
                        "1 644 0 10: VIN:\n"
                        "1 644 2780 10: AB\n"
                        "1 874 0 10: a \n"
                        "1 874 167 10: é\n"
                        "1 874 278 10: ") +
                '\0' + "b\n");
}

TEST(RecordingPrinterTest, KeepsDrawnLinesAndBreaksPages) {
  RecordingPrinter printer;
  printer.page_height = 700;
  printer.SetFont(kBody);
  printer.PrintLine("1");
  printer.DrawLine(1000, 4000, 5);
  printer.PrintLine("2");
  printer.PrintLine("3");
  printer.PrintLine("4");
  printer.DrawLine(0, printer.PageWidth(), 5);
  EXPECT_EQ(printer.Documents()[0].state, State::kOpen);
  EXPECT_EQ(printer.Documents()[0].pages, 2);
  EXPECT_EQ(RecordingPrinter::Transcript(printer.Documents()[0]),
            "1 0 0 10: 1\n"
            "1 230 1000-4000: 5 dots\n"
            "1 230 0 10: 2\n"
            "1 460 0 10: 3\n"
            "2 0 0 10: 4\n"
            "2 230 0-11200: 5 dots\n");
}

TEST(RecordingPrinterTest, FailsOnOrderAtAnyCall) {
  for (int at = 0; at < 3; ++at) {
    RecordingPrinter printer;
    printer.fails_at = at;
    int reached = 0;
    try {
      printer.PrintLine("x");
      ++reached;
      printer.DrawLine(0, 1, 5);
      ++reached;
      printer.EndDocument();
      ++reached;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 482);
    }
    EXPECT_EQ(reached, at);
    printer.Cancel();
    printer.EndDocument();
    EXPECT_EQ(printer.Documents().back().state, State::kCancelled);
  }
}

}  // namespace
}  // namespace lorimet
