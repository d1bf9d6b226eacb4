// The printer port: pages of text, printed at a current place.
#pragma once

#include <string>

namespace lorimet {

struct PrinterFont {
  std::string name = "Arial";
  double points = 10.0;
  bool bold = false;
  bool operator==(const PrinterFont&) const = default;
};

// Places and widths are twips (1,440 to the inch); X 0 is the left edge of the page's printable
// part, and the first line of a page lies at its top. A document begins with the first call that
// prints or measures. Each call but Cancel raises error 482 when the printer fails; the document is
// then still to be ended by Cancel.
class PagePrinter {
 public:
  virtual ~PagePrinter() = default;

  // Whether the system has a default printer.
  virtual bool HasPrinter() = 0;
  // Makes the next document a PDF file of this whole path, which comes into being at its end, in
  // place of pages on the default printer.
  virtual void PrintToFile(const std::string& path) = 0;

  // The font in force stays so until the next call, through the end of a document too.
  virtual void SetFont(const PrinterFont& font) = 0;
  // Moves the current place within the line.
  virtual void SetX(int twips) = 0;
  // Prints at the current place and leaves the place behind the text. A text that the page has no
  // room for below begins the next page. Control characters show as nothing.
  virtual void Print(const std::string& text) = 0;
  // The same, and begins a new line as high as the font in force.
  virtual void PrintLine(const std::string& text) = 0;
  // A black line at the top of the current line, `width` dots of the printer thick. The current
  // place stays.
  virtual void DrawLine(int from_x, int to_x, int width) = 0;
  // In the font in force.
  virtual int TextWidth(const std::string& text) = 0;
  virtual int PageWidth() = 0;

  // Sends the document off; nothing when none was begun.
  virtual void EndDocument() = 0;
  // Throws the document away, as far as the printer has not got it already. Never fails.
  virtual void Cancel() = 0;
};

}  // namespace lorimet
