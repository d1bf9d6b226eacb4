#include "adapters/qt/qt_page_printer.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QPrinter>
#include <QPrinterInfo>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr double kTwipsPerInch = 1440.0;

}  // namespace

// The pages that are being printed, in the printer's own pixels.
class QtPagePrinter::Document {
 public:
  explicit Document(const std::string& pdf_file)
      : printer_(QPrinter::HighResolution), is_file_(!pdf_file.empty()) {
    if (is_file_) {
      printer_.setOutputFormat(QPrinter::PdfFormat);
      printer_.setOutputFileName(ToQString(pdf_file));
    } else if (!HasPrinter()) {
      throw RuntimeError(ErrorNumber::kPrinterError);
    }
    if (!printer_.isValid() || !painter_.begin(&printer_))
      throw RuntimeError(ErrorNumber::kPrinterError);
  }

  void SetFace(const Face& face) {
    QFont font(ToQString(face.family));
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(face.points);
    font.setBold(face.bold);
    painter_.setFont(font);
  }

  void Print(const QString& text) {
    const QFontMetricsF metrics = Metrics();
    if (y_ + metrics.height() > PageHeight()) NewPage();
    painter_.drawText(QPointF(x_, y_ + metrics.ascent()), text);
    x_ += metrics.horizontalAdvance(text);
  }

  void NewLine() {
    x_ = 0.0;
    y_ += Metrics().lineSpacing();
  }

  void NewPage() {
    if (!printer_.newPage()) throw RuntimeError(ErrorNumber::kPrinterError);
    y_ = 0.0;
  }

  void DrawLine(double from, double to, int width) {
    painter_.setPen(QPen(Qt::black, width));
    painter_.drawLine(QPointF(from, y_), QPointF(to, y_));
  }

  void End(bool keep) {
    if (!keep) printer_.abort();
    const bool ended = painter_.end();
    if (keep && (!ended || printer_.printerState() == QPrinter::Error))
      throw RuntimeError(ErrorNumber::kPrinterError);
  }

  void SetX(double x) { x_ = x; }
  double TextWidth(const QString& text) const { return Metrics().horizontalAdvance(text); }
  double PageWidth() const { return printer_.pageLayout().paintRectPixels(Resolution()).width(); }
  double FromTwips(int twips) const { return twips * Resolution() / kTwipsPerInch; }
  int ToTwips(double pixels) const {
    return static_cast<int>(pixels * kTwipsPerInch / Resolution() + 0.5);
  }

 private:
  int Resolution() const { return printer_.resolution(); }
  QFontMetricsF Metrics() const { return QFontMetricsF(painter_.font(), &printer_); }
  double PageHeight() const { return printer_.pageLayout().paintRectPixels(Resolution()).height(); }

  mutable QPrinter printer_;
  QPainter painter_;
  bool is_file_;
  double x_ = 0.0;
  double y_ = 0.0;
};

QtPagePrinter::QtPagePrinter(std::string pdf_file) : pdf_file_(std::move(pdf_file)) {}

QtPagePrinter::~QtPagePrinter() = default;

bool QtPagePrinter::HasPrinter() { return !QPrinterInfo::defaultPrinter().isNull(); }

QtPagePrinter::Document& QtPagePrinter::Open() {
  if (document_ == nullptr) {
    document_ = std::make_unique<Document>(pdf_file_);
    document_->SetFace(face_);
  }
  return *document_;
}

void QtPagePrinter::PrintLine(const std::string& text) {
  Print(text);
  Open().NewLine();
}

void QtPagePrinter::NewPage() { Open().NewPage(); }

void QtPagePrinter::EndDocument() {
  if (document_ == nullptr) return;
  const auto document = std::exchange(document_, nullptr);
  document->End(true);
}

void QtPagePrinter::Cancel() {
  if (document_ == nullptr) return;
  const auto document = std::exchange(document_, nullptr);
  document->End(false);
}

void QtPagePrinter::SetFont(const std::string& family, double points, bool bold) {
  face_ = {family, points, bold};
  if (document_ != nullptr) document_->SetFace(face_);
}

void QtPagePrinter::Print(const std::string& text) { Open().Print(ToQString(text)); }

void QtPagePrinter::SetX(int twips) {
  Document& document = Open();
  document.SetX(document.FromTwips(twips));
}

int QtPagePrinter::TextWidth(const std::string& text) {
  Document& document = Open();
  return document.ToTwips(document.TextWidth(ToQString(text)));
}

int QtPagePrinter::PageWidth() {
  Document& document = Open();
  return document.ToTwips(document.PageWidth());
}

void QtPagePrinter::DrawLine(int from_x, int to_x, int width) {
  Document& document = Open();
  document.DrawLine(document.FromTwips(from_x), document.FromTwips(to_x), width);
}

}  // namespace lorimet
