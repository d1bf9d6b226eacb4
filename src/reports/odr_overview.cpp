#include "reports/odr_overview.h"

#include <array>
#include <optional>

#include "parameters/memory_word.h"
#include "reports/page_form.h"
#include "reports/report_values.h"
#include "reports/text_form.h"
#include "support/dates.h"
#include "support/dictionary.h"
#include "support/numbers.h"

namespace lorimet {
namespace {

struct CounterRow {
  std::string OdrOverview::*text;
  MemoryAddress address;
  const char* sentence;  // of both documents
};

// In the order of the documents; they are read in the opposite one.
constexpr std::array<CounterRow, 4> kCounters = {{
    {&OdrOverview::abs, {0x02, 0x3A, 0x07}, " Total number of ABS activations"},
    {&OdrOverview::stop_light, {0x02, 0x20, 0x30}, " Total number of Stoplight Power activations"},
    {&OdrOverview::level_1,
     {0x02, 0x20, 0x2C},
     " Total number of Level One OVG applications for all ODR data"},
    {&OdrOverview::level_2,
     {0x02, 0x20, 0x2A},
     " Total number of Level Two OVG applications for all ODR data"},
}};

constexpr int kSentenceColumn = 10;  // of the file
constexpr std::size_t kRuleLength = 64;

// Places on the page, in blanks.
constexpr int kCount = 20;
constexpr int kValue = 30;

std::string CounterText(LinkLibrary& link, const MemoryAddress& address) {
  const std::optional<MemoryWord> word = TryMemoryWord(link, address);
  if (!word) return "N/A";
  return " " + std::to_string(ToInteger(word->first * 256 + word->second));
}

// "November 21, 2026   3:07 PM"
std::string Extracted(const std::string& month, const std::tm& now) {
  return DateWords(month, now) + "   " + ReportTime(now);
}

class OdrPage : private PageForm {
 public:
  OdrPage(PagePrinter& printer, const Dictionary& dictionary)
      : PageForm(printer), dictionary_(dictionary) {}

  void Print(const OdrOverview& overview, const std::tm& now) {
    SetFont(kTitleSize, true);
    EmptyLines(2);
    DrawAcross();
    EmptyLines(2);
    printer_.PrintLine(Translate("Norvick Brake Systems"));
    EmptyLines(2);
    SetFont(kTextSize, true);
    PrintValue("Vehicle ID:", overview.vehicle);
    PrintValue("Data Extracted:", Extracted(Translate(MonthName(now.tm_mon)), now));
    for (const CounterRow& row : kCounters) {
      At(kCount);
      SetBold(true);
      printer_.Print(overview.*row.text);
      SetBold(false);
      LineAt(kValue, Translate(row.sentence));
      EmptyLines(1);
    }
    EmptyLines(1);
    DrawAcross();
    printer_.EndDocument();
  }

 private:
  std::string Translate(const char* text) const { return dictionary_.Translate(text); }
  void PrintValue(const char* label, const std::string& value) {
    SetBold(true);
    printer_.Print(Translate(label));
    SetBold(false);
    LineAt(kValue, value);
    EmptyLines(2);
  }

  const Dictionary& dictionary_;
};

}  // namespace

OdrOverview ReadOdrCounters(LinkLibrary& link) {
  OdrOverview overview;
  for (auto row = kCounters.rbegin(); row != kCounters.rend(); ++row)
    overview.*row->text = CounterText(link, row->address);
  return overview;
}

std::string OdrFileText(const OdrOverview& overview, const std::tm& now) {
  const std::string rule(kRuleLength, '-');
  TextForm form;
  form.EmptyLines(1);
  form.Line(rule);
  form.EmptyLines(2);
  form.Line("Norvick Brake Systems - ODR Data");
  form.EmptyLines(2);
  form.Line("VIN : " + overview.vehicle);
  form.EmptyLines(2);
  form.Line("Data Extracted :  " + Extracted(MonthName(now.tm_mon), now));
  form.EmptyLines(2);
  for (const CounterRow& row : kCounters) {
    form.Text(overview.*row.text);
    form.Tab(kSentenceColumn);
    form.Line(row.sentence + 1);
  }
  form.EmptyLines(2);
  form.Line(rule);
  return form.Contents();
}

void PrintOdrOverview(const OdrOverview& overview, const std::tm& now, PagePrinter& printer,
                      const Dictionary& dictionary) {
  OdrPage(printer, dictionary).Print(overview, now);
}

}  // namespace lorimet
