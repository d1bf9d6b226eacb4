// Pages on the default printer, or in a PDF file.
#pragma once

#include <memory>
#include <string>

#include "platform/page_printer.h"

namespace lorimet {

// A file is written under a temporary name and takes its own at the end of the document.
class QtPagePrinter : public PagePrinter {
 public:
  QtPagePrinter();
  // Cancels what was not ended.
  ~QtPagePrinter() override;

  bool HasPrinter() override;
  void PrintToFile(const std::string& path) override;
  void SetFont(const PrinterFont& font) override;
  void SetX(int twips) override;
  void Print(const std::string& text) override;
  void PrintLine(const std::string& text) override;
  void DrawLine(int from_x, int to_x, int width) override;
  int TextWidth(const std::string& text) override;
  int PageWidth() override;
  void EndDocument() override;
  void Cancel() override;

 private:
  class Device;
  class DefaultPrinter;
  class PdfFile;
  class Document;

  Document& Open();

  std::string file_;
  PrinterFont font_;
  std::unique_ptr<Document> document_;
};

}  // namespace lorimet
