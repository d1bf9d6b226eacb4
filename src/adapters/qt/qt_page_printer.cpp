#include "adapters/qt/qt_page_printer.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <cmath>
#include <utility>

#include "adapters/qt/qt_text.h"
#include "platform/runtime_error.h"

namespace lorimet {
namespace {

constexpr double kTwipsPerInch = 1440.0;
constexpr int kPdfDotsPerInch = 600;
constexpr double kPdfMarginPoints = 18.0;

[[noreturn]] void Fail() { throw RuntimeError(ErrorNumber::kPrinterError); }

// Control characters have no picture, and a font's box for them is not wanted.
QString Printable(const std::string& text) {
  QString shown = ToQString(text);
  shown.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return shown;
}

}  // namespace

// What the pages are painted on.
class QtPagePrinter::Device {
 public:
  virtual ~Device() = default;
  virtual QPagedPaintDevice& Pages() = 0;
  // False when the device refuses to begin.
  virtual bool IsReady() = 0;
  // Called with the painter gone; false when not all has arrived.
  virtual bool Finish() = 0;
  // Called with the painter still at work.
  virtual void Abort() = 0;
};

class QtPagePrinter::DefaultPrinter : public Device {
 public:
  QPagedPaintDevice& Pages() override { return printer_; }
  bool IsReady() override { return !QPrinterInfo::defaultPrinter().isNull() && printer_.isValid(); }
  bool Finish() override { return printer_.printerState() != QPrinter::Error; }
  void Abort() override { printer_.abort(); }

 private:
  QPrinter printer_{QPrinter::HighResolution};
};

// The pages are kept until the end: what a device of Qt's writes in parts and loses on a full disk,
// it does not tell.
class QtPagePrinter::PdfFile : public Device {
 public:
  explicit PdfFile(const std::string& path) : file_(ToQString(path)), writer_(&bytes_) {
    writer_.setResolution(kPdfDotsPerInch);
    writer_.setPageMargins({kPdfMarginPoints, kPdfMarginPoints, kPdfMarginPoints, kPdfMarginPoints},
                           QPageLayout::Point);
    writer_.setCreator("Norvick Lorimet");
  }
  QPagedPaintDevice& Pages() override { return writer_; }
  bool IsReady() override {
    return file_.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
           bytes_.open(QIODevice::WriteOnly);
  }
  bool Finish() override {
    const QByteArray& bytes = bytes_.data();
    return file_.write(bytes) == bytes.size() && file_.commit();
  }
  void Abort() override {}  // what is not committed goes

 private:
  QSaveFile file_;
  QBuffer bytes_;
  QPdfWriter writer_;
};

// The pages that are being printed, in the device's own dots.
class QtPagePrinter::Document {
 public:
  explicit Document(std::unique_ptr<Device> device) : device_(std::move(device)) {
    if (!device_->IsReady() || !painter_.begin(&device_->Pages())) Fail();
  }

  void SetFont(const PrinterFont& font) {
    QFont face(ToQString(font.name));
    face.setStyleHint(QFont::SansSerif);
    face.setPointSizeF(font.points);
    face.setBold(font.bold);
    painter_.setFont(face);
  }

  void SetX(double x) { x_ = x; }

  void Print(const QString& text) {
    const QFontMetricsF metrics = Metrics();
    MakeRoom(metrics.height());
    painter_.drawText(QPointF(x_, y_ + metrics.ascent()), text);
    x_ += metrics.horizontalAdvance(text);
  }

  void NewLine() {
    x_ = 0.0;
    y_ += Metrics().lineSpacing();
  }

  void DrawLine(double from, double to, int width) {
    MakeRoom(width);
    painter_.setPen(QPen(Qt::black, width, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(QPointF(from, y_), QPointF(to, y_));
  }

  // False when not all has arrived.
  bool End() {
    const bool painted = painter_.end();
    return device_->Finish() && painted;
  }

  void Abort() {
    device_->Abort();
    painter_.end();
  }

  double TextWidth(const QString& text) const { return Metrics().horizontalAdvance(text); }
  double PageWidth() const { return PrintablePart().width(); }
  double FromTwips(int twips) const { return twips * Resolution() / kTwipsPerInch; }
  int ToTwips(double dots) const {
    return static_cast<int>(std::lround(dots * kTwipsPerInch / Resolution()));
  }

 private:
  int Resolution() const { return device_->Pages().logicalDpiX(); }
  QFontMetricsF Metrics() const { return QFontMetricsF(painter_.font(), &device_->Pages()); }
  QRect PrintablePart() const {
    return device_->Pages().pageLayout().paintRectPixels(Resolution());
  }

  void MakeRoom(double height) {
    if (y_ + height <= PrintablePart().height()) return;
    if (!device_->Pages().newPage()) Fail();
    y_ = 0.0;
  }

  std::unique_ptr<Device> device_;
  QPainter painter_;
  double x_ = 0.0;
  double y_ = 0.0;
};

QtPagePrinter::QtPagePrinter() = default;

QtPagePrinter::~QtPagePrinter() { QtPagePrinter::Cancel(); }

bool QtPagePrinter::HasPrinter() { return !QPrinterInfo::defaultPrinter().isNull(); }

void QtPagePrinter::PrintToFile(const std::string& path) { file_ = path; }

QtPagePrinter::Document& QtPagePrinter::Open() {
  if (document_ == nullptr) {
    const std::string file = std::exchange(file_, {});
    std::unique_ptr<Device> device;
    if (file.empty()) {
      device = std::make_unique<DefaultPrinter>();
    } else {
      device = std::make_unique<PdfFile>(file);
    }
    document_ = std::make_unique<Document>(std::move(device));
    document_->SetFont(font_);
  }
  return *document_;
}

void QtPagePrinter::SetFont(const PrinterFont& font) {
  font_ = font;
  if (document_ != nullptr) document_->SetFont(font_);
}

void QtPagePrinter::SetX(int twips) {
  Document& document = Open();
  document.SetX(document.FromTwips(twips));
}

void QtPagePrinter::Print(const std::string& text) { Open().Print(Printable(text)); }

void QtPagePrinter::PrintLine(const std::string& text) {
  QtPagePrinter::Print(text);
  Open().NewLine();
}

void QtPagePrinter::DrawLine(int from_x, int to_x, int width) {
  Document& document = Open();
  document.DrawLine(document.FromTwips(from_x), document.FromTwips(to_x), width);
}

int QtPagePrinter::TextWidth(const std::string& text) {
  Document& document = Open();
  return document.ToTwips(document.TextWidth(Printable(text)));
}

int QtPagePrinter::PageWidth() {
  Document& document = Open();
  return document.ToTwips(document.PageWidth());
}

void QtPagePrinter::EndDocument() {
  file_.clear();
  if (document_ == nullptr) return;
  const auto document = std::exchange(document_, nullptr);
  if (!document->End()) Fail();
}

void QtPagePrinter::Cancel() {
  file_.clear();
  if (document_ == nullptr) return;
  const auto document = std::exchange(document_, nullptr);
  document->Abort();
}

}  // namespace lorimet
