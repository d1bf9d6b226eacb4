// A page for the printer as it is printed item by item: places in runs of blanks of the font in
// force, and empty lines.
#pragma once

#include <string>

#include "platform/page_printer.h"

namespace lorimet {

class PageForm {
 public:
  explicit PageForm(PagePrinter& printer) : printer_(printer) {}

 protected:
  static constexpr const char* kFont = "Arial";
  static constexpr double kTitleSize = 14;  // points
  static constexpr double kTextSize = 9.75;
  static constexpr int kLineWidth = 5;  // dots of the printer

  void SetFont(double points, bool bold) {
    font_ = {kFont, points, bold};
    printer_.SetFont(font_);
  }
  void SetBold(bool bold) { SetFont(font_.points, bold); }
  void At(int blanks) {
    printer_.SetX(printer_.TextWidth(std::string(static_cast<std::size_t>(blanks), ' ')));
  }
  void PrintAt(int blanks, const std::string& text) {
    At(blanks);
    printer_.Print(text);
  }
  void LineAt(int blanks, const std::string& text) {
    At(blanks);
    printer_.PrintLine(text);
  }
  void EmptyLines(int count) {
    for (int i = 0; i < count; ++i) printer_.PrintLine("");
  }
  // Across the page, above the current line.
  void DrawAcross() { printer_.DrawLine(0, printer_.PageWidth(), kLineWidth); }

  PagePrinter& printer_;

 private:
  PrinterFont font_;
};

}  // namespace lorimet
