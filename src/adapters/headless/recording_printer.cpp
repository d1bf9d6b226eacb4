#include "adapters/headless/recording_printer.h"

#include <cmath>
#include <cstdint>
#include <sstream>
#include <utility>

#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr double kTwipsPerPoint = 20.0;
constexpr double kLineHeight = 1.15;
constexpr double kBlank = 0.278;
constexpr double kRegular = 0.556;
constexpr double kBold = 0.611;

int Rounded(double twips) { return static_cast<int>(std::lround(twips)); }

// Part of a character that an earlier byte of UTF-8 began, or a control character.
bool HasNoWidth(char c) {
  const auto byte = static_cast<std::uint8_t>(c);
  return (byte & 0xC0) == 0x80 || byte < 0x20 || byte == 0x7F;
}

}  // namespace

std::string RecordingPrinter::Transcript(const Document& document) {
  std::ostringstream text;
  for (const Mark& mark : document.marks) {
    text << mark.page << ' ' << mark.y << ' ' << mark.x;
    if (mark.to_x >= 0) {
      text << '-' << mark.to_x << ": " << mark.width << " dots\n";
    } else {
      text << ' ' << mark.font.points << (mark.font.bold ? " bold: " : ": ") << mark.text << '\n';
    }
  }
  return text.str();
}

bool RecordingPrinter::IsOpen() const {
  return !documents_.empty() && documents_.back().state == State::kOpen;
}

RecordingPrinter::Document& RecordingPrinter::Open() {
  if (!IsOpen()) {
    const std::string file = std::exchange(file_, {});
    if (file.empty() && !has_printer) throw RuntimeError(ErrorNumber::kPrinterError);
    documents_.push_back({file, State::kOpen, 1, {}});
    x_ = 0;
    y_ = 0;
  }
  return documents_.back();
}

void RecordingPrinter::MayFail() {
  if (calls_++ == fails_at) throw RuntimeError(ErrorNumber::kPrinterError);
}

void RecordingPrinter::MakeRoom(Document& document, int height) {
  if (y_ + height <= page_height) return;
  ++document.pages;
  y_ = 0;
}

int RecordingPrinter::LineHeight() const {
  return Rounded(font_.points * kTwipsPerPoint * kLineHeight);
}

void RecordingPrinter::SetX(int twips) {
  Open();
  x_ = twips;
}

void RecordingPrinter::Print(const std::string& text) {
  Document& document = Open();
  MayFail();
  MakeRoom(document, LineHeight());
  if (!text.empty()) document.marks.push_back({document.pages, x_, y_, font_, text});
  x_ += RecordingPrinter::TextWidth(text);
}

void RecordingPrinter::PrintLine(const std::string& text) {
  RecordingPrinter::Print(text);
  x_ = 0;
  y_ += LineHeight();
}

void RecordingPrinter::DrawLine(int from_x, int to_x, int width) {
  Document& document = Open();
  MayFail();
  MakeRoom(document, width);
  document.marks.push_back({document.pages, from_x, y_, font_, "", to_x, width});
}

int RecordingPrinter::TextWidth(const std::string& text) {
  Open();
  double width = 0.0;
  for (const char c : text) {
    if (HasNoWidth(c)) continue;
    width += c == ' ' ? kBlank : font_.bold ? kBold : kRegular;
  }
  return Rounded(width * font_.points * kTwipsPerPoint);
}

int RecordingPrinter::PageWidth() {
  Open();
  return page_width;
}

void RecordingPrinter::EndDocument() {
  file_.clear();
  if (!IsOpen()) return;
  try {
    MayFail();
  } catch (const RuntimeError&) {
    documents_.back().state = State::kCancelled;
    throw;
  }
  documents_.back().state = State::kEnded;
}

void RecordingPrinter::Cancel() {
  file_.clear();
  if (IsOpen()) documents_.back().state = State::kCancelled;
}

}  // namespace lorimet
