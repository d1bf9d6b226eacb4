// Pages on the default printer, or in a file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/page_printer.h"

namespace lorimet {

// A document begins with the first call that prints and ends with EndDocument or Cancel. Places and
// widths are in twips from the left edge of the page's printable part. Error 482 without a printer.
class QtPagePrinter : public PagePrinter {
 public:
  // A file name makes the pages a PDF file of that name.
  explicit QtPagePrinter(std::string pdf_file = {});
  ~QtPagePrinter() override;

  // Whether the system has a default printer.
  static bool HasPrinter();

  // Prints at the current place and begins a new line.
  void PrintLine(const std::string& text) override;
  void NewPage() override;
  void EndDocument() override;

  // Throws the document away, as far as the printer has not got it already.
  void Cancel();
  void SetFont(const std::string& family, double points, bool bold);
  // Prints at the current place and leaves the place behind the text.
  void Print(const std::string& text);
  // Moves the current place within the line.
  void SetX(int twips);
  int TextWidth(const std::string& text);
  int PageWidth();
  // A black line at the height of the current line, `width` device pixels thick.
  void DrawLine(int from_x, int to_x, int width);

 private:
  class Document;
  struct Face {
    std::string family = "Arial";
    double points = 10.0;
    bool bold = false;
  };

  Document& Open();

  std::string pdf_file_;
  Face face_;
  std::unique_ptr<Document> document_;
};

}  // namespace lorimet
