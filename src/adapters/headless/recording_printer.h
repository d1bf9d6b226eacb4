// A printer of the tests: what is printed is kept, place by place.
#pragma once

#include <string>
#include <vector>

#include "platform/page_printer.h"

namespace lorimet {

// Its measures depend on no machine: of the size of the font a line is 1.15 times as high, a blank
// 0.278 times as wide, any other character 0.556 and a bold one 0.611 times.
class RecordingPrinter : public PagePrinter {
 public:
  // A text or, with an end, a drawn line.
  struct Mark {
    int page = 1;
    int x = 0;
    int y = 0;
    PrinterFont font;
    std::string text;
    int to_x = -1;  // of a drawn line
    int width = 0;  // of a drawn line
    bool operator==(const Mark&) const = default;
  };
  enum class State { kOpen, kEnded, kCancelled };
  struct Document {
    std::string file;  // empty on the printer
    State state = State::kOpen;
    int pages = 1;
    std::vector<Mark> marks;  // empty texts are not among them
  };

  // The marks of a document, one a line: "1 240 0 14 bold: Title" has the page, Y, X and the size,
  // "1 480 0-11000: 5 dots" is a drawn line.
  static std::string Transcript(const Document& document);

  // All so far, the last one perhaps still open.
  const std::vector<Document>& Documents() const { return documents_; }

  bool has_printer = true;
  // Raises error 482 instead of the call of this number that prints, draws or ends; -1 never does.
  int fails_at = -1;
  int page_width = 11200;
  int page_height = 16100;

  bool HasPrinter() override { return has_printer; }
  void PrintToFile(const std::string& path) override { file_ = path; }
  void SetFont(const PrinterFont& font) override { font_ = font; }
  void SetX(int twips) override;
  void Print(const std::string& text) override;
  void PrintLine(const std::string& text) override;
  void DrawLine(int from_x, int to_x, int width) override;
  int TextWidth(const std::string& text) override;
  int PageWidth() override;
  void EndDocument() override;
  void Cancel() override;

 private:
  bool IsOpen() const;
  Document& Open();
  void MayFail();
  void MakeRoom(Document& document, int height);
  int LineHeight() const;

  std::vector<Document> documents_;
  std::string file_;
  PrinterFont font_;
  int x_ = 0;
  int y_ = 0;
  int calls_ = 0;
};

}  // namespace lorimet
