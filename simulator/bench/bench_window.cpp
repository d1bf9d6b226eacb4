#include "simulator/bench/bench_window.h"

#include <QCompleter>
#include <QGroupBox>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStringListModel>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "simulator/bench/colors.h"

namespace lorimet::bench {
namespace {

constexpr int kShownAnswers = 200;  // lines
constexpr QSize kSize(1180, 740);
constexpr int kProgram = 980;  // pixels of width that the program's main window takes
constexpr int kFrame = 40;     // pixels of height that the frame of a window takes
constexpr int kLow = 560;      // pixels of height that a column of everything needs
constexpr int kHigh = 620;     // pixels of height that leave room below the picture
constexpr int kBetween = 40;   // pixels of the margins and between two columns

struct LanguageRow {
  const char* code;
  const char* name;
};
constexpr LanguageRow kLanguageRows[] = {
    {"en", "English"}, {"fr", "Fran\u00E7ais"}, {"es", "Espa\u00F1ol"}};

QString SheetOf(const Colors& colors) {
  return QStringLiteral(
             "#frmBenchHead { background-color: %1; border: 1px solid %2; border-radius: 6px; }"
             "QPushButton[advised=\"true\"] { border: 2px solid %3; background-color: %4; }"
             "QCheckBox[advised=\"true\"] { border: 2px solid %3; border-radius: 3px;"
             " background-color: %4; }"
             "QPushButton { padding: 2px 6px; }"
             "QPushButton:checked { border: 2px solid %2; padding: 1px 5px; font-weight: 600; }")
      .arg(colors.ground.name(), colors.accent.name(), colors.advised.name(),
           colors.advised_ground.name());
}

}  // namespace

BenchWindow::BenchWindow(const QString& socket, std::vector<Ready> trailers,
                         const QString& language, std::function<void()> start_program)
    : start_program_(std::move(start_program)), socket_(bench_, socket) {
  setObjectName(QStringLiteral("frmBench"));
  setStyleSheet(SheetOf(Colors(palette())));
  texts_.SetLanguage(language);
  picture_ = new TrailerPicture(texts_, this);
  panel_ = new ControlPanel(
      texts_, std::move(trailers), [this](const std::string& command) { Do(command); }, this);
  picture_->on_spin = [this](int position) {
    Do("spin " + std::to_string(position) + " " + std::to_string(panel_->HandSpeed()));
  };
  MakeColumns();
  resize(kSize);
  bench_.on_seen = [this] { Refresh(); };
  bench_.on_answer = [this](const std::string& done, const Answer& answer) {
    ShowAnswer(done, answer);
  };
  texts_.Bind([this] { Name(); });
}

BenchWindow::~BenchWindow() { bench_.on_seen = nullptr; }

// --- The parts -----------------------------------------------------------------------------------

void BenchWindow::MakeColumns() {
  below_ = new QWidget(this);
  below_row_ = new QBoxLayout(QBoxLayout::LeftToRight, below_);
  below_row_->setContentsMargins(0, 0, 0, 0);
  below_row_->addWidget(MakeRequests(), 3);
  below_row_->addWidget(MakeCommandLine(), 2);
  scroll_ = new QScrollArea(this);
  auto* all = new QWidget(scroll_);
  column_ = new QVBoxLayout(all);
  column_->setContentsMargins(0, 0, 0, 0);
  column_->setSpacing(4);
  column_->addWidget(panel_);
  column_->addStretch();
  scroll_->setWidget(all);
  scroll_->setWidgetResizable(true);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll_->setFocusPolicy(Qt::NoFocus);
  panel_->on_advised = [this](QWidget* place) { scroll_->ensureWidgetVisible(place, 0, 20); };
  grid_ = new QGridLayout(this);
  grid_->setContentsMargins(8, 8, 8, 8);
  grid_->setSizeConstraint(QLayout::SetNoConstraint);
  grid_->addWidget(MakeHead(), 0, 0, 1, 2);
}

QWidget* BenchWindow::MakeHead() {
  head_ = new QFrame(this);
  head_->setObjectName(QStringLiteral("frmBenchHead"));
  auto* grid = new QGridLayout(head_);
  waits_ = new QLabel(head_);
  waits_->setObjectName(QStringLiteral("lblWaits"));
  next_ = new QLabel(head_);
  next_->setObjectName(QStringLiteral("lblNext"));
  QFont large = next_->font();
  large.setPointSizeF(large.pointSizeF() * 1.35);
  large.setBold(true);
  next_->setFont(large);
  for (QLabel* label : {waits_, next_}) {
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  grid->addWidget(waits_, 0, 0);
  grid->addWidget(next_, 1, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(3, 1);
  start_ = new QPushButton(head_);
  start_->setObjectName(QStringLiteral("cmdStartProgram"));
  start_->setAutoDefault(false);
  start_->hide();
  connect(start_, &QPushButton::clicked, this, [this] {
    if (start_program_) start_program_();
  });
  grid->addWidget(start_, 2, 0, 1, 2, Qt::AlignLeft);
  language_ = new QComboBox(head_);
  language_->setObjectName(QStringLiteral("cmbLanguage"));
  for (const LanguageRow& each : kLanguageRows)
    language_->addItem(QString::fromUtf8(each.name), QLatin1String(each.code));
  language_->setCurrentIndex(language_->findData(texts_.Language()));
  connect(language_, &QComboBox::activated, this,
          [this](int index) { texts_.SetLanguage(language_->itemData(index).toString()); });
  grid->addWidget(language_, 0, 1, Qt::AlignTop);
  return head_;
}

QWidget* BenchWindow::MakeRequests() {
  auto* box = new QGroupBox(this);
  auto* column = new QVBoxLayout(box);
  requests_ = new QListWidget(box);
  requests_->setObjectName(QStringLiteral("lstRequests"));
  requests_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  requests_->setMinimumHeight(requests_->fontMetrics().lineSpacing() * 5);
  requests_->setMaximumHeight(requests_->fontMetrics().lineSpacing() * 8);
  column->addWidget(requests_);
  texts_.Bind([this, box] {
    box->setTitle(texts_.Translate("What the ECU was told last"));
    requests_->setAccessibleName(box->title());
  });
  return box;
}

QWidget* BenchWindow::MakeCommandLine() {
  auto* box = new QGroupBox(this);
  auto* column = new QVBoxLayout(box);
  answers_ = new QPlainTextEdit(box);
  answers_->setObjectName(QStringLiteral("txtAnswers"));
  answers_->setReadOnly(true);
  answers_->setTabChangesFocus(true);
  answers_->setMaximumBlockCount(kShownAnswers);
  answers_->setMinimumHeight(answers_->fontMetrics().lineSpacing() * 2);
  answers_->setMaximumHeight(answers_->fontMetrics().lineSpacing() * 4);
  usage_ = new QLabel(box);
  usage_->setTextFormat(Qt::PlainText);
  usage_->setForegroundRole(QPalette::PlaceholderText);
  usage_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  command_ = new QLineEdit(box);
  command_->setObjectName(QStringLiteral("txtCommand"));
  QStringList lines;
  for (const std::string& line : Completions()) lines << QString::fromStdString(line);
  auto* completer = new QCompleter(lines, command_);
  completer->setFilterMode(Qt::MatchContains);
  command_->setCompleter(completer);
  connect(command_, &QLineEdit::returnPressed, this, [this] { Enter(); });
  connect(command_, &QLineEdit::textChanged, this, [this](const QString& text) {
    usage_->setText(QString::fromStdString(UsageOf(text.toStdString())));
  });
  auto* caption = new QLabel(box);
  caption->setBuddy(command_);
  auto* row = new QHBoxLayout;
  row->addWidget(caption);
  row->addWidget(command_, 1);
  column->addLayout(row);
  column->addWidget(usage_);
  column->addWidget(answers_);
  texts_.Bind([this, box, caption] {
    box->setTitle(texts_.Translate("Every other command"));
    caption->setText(texts_.Translate("Co&mmand:"));
    answers_->setAccessibleName(texts_.Translate("Answers"));
    command_->setPlaceholderText(texts_.Translate("Such as: drive 30"));
  });
  return box;
}

// --- Where they lie ------------------------------------------------------------------------------

// The picture beside what a person does, or above it in a window that is narrow.
void BenchWindow::Arrange() {
  const int room = width() - scroll_->minimumWidth() - kBetween;
  const bool beside = room >= picture_->minimumSizeHint().width();
  const bool below = height() >= kHigh && room >= LeastBelow(0).width() + LeastBelow(1).width();
  if (arranged_ && beside == beside_ && below == below_picture_) return;
  arranged_ = true;
  beside_ = beside;
  below_picture_ = below;
  for (QWidget* widget : std::initializer_list<QWidget*>{picture_, scroll_, below_})
    grid_->removeWidget(widget);
  column_->removeWidget(below_);
  grid_->addWidget(picture_, 1, 0);
  if (below) {
    grid_->addWidget(below_, 2, 0);
  } else {
    column_->insertWidget(1, below_);
  }
  below_row_->setDirection(below ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  if (beside) {
    grid_->addWidget(scroll_, 1, 1, 2, 1);
  } else {
    grid_->addWidget(scroll_, 2, 0);
  }
  below_->show();
  grid_->setColumnStretch(0, 3);
  grid_->setColumnStretch(1, beside ? 2 : 0);
  grid_->setRowStretch(1, 3);
  grid_->setRowStretch(2, beside ? 0 : 2);
}

QSize BenchWindow::LeastBelow(int part) const { return below_row_->itemAt(part)->minimumSize(); }

// The widths follow the words of the language and the style.
void BenchWindow::Fit() {
  const int least =
      std::max({panel_->minimumSizeHint().width(), LeastBelow(0).width(), LeastBelow(1).width()});
  scroll_->setMinimumWidth(least + scroll_->verticalScrollBar()->sizeHint().width());
  const QMargins margins = grid_->contentsMargins();
  setMinimumSize(scroll_->minimumWidth() + margins.left() + margins.right(), kLow / 2);
  Arrange();
}

bool BenchWindow::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) Fit();
  return QWidget::event(event);
}

void BenchWindow::resizeEvent(QResizeEvent* event) {
  if (event->size().width() != event->oldSize().width()) head_->setMinimumHeight(0);
  Arrange();
}

void BenchWindow::StandBesideTheProgram() {
  const QRect free = screen()->availableGeometry();
  const int high = free.height() - kFrame;
  int wide = std::clamp(free.width() - kProgram, minimumWidth(), kSize.width());
  if (high < kLow) wide = std::min(kSize.width(), free.width());
  resize(wide, beside_ && high >= kLow ? std::min(high, kSize.height()) : high);
  if (!beside_) resize(wide, high);
  move(free.right() + 1 - wide, free.top());
}

// --- What happens --------------------------------------------------------------------------------

void BenchWindow::Name() {
  setWindowTitle(texts_.Translate("Norvick Lorimet - Trailer Bench"));
  language_->setAccessibleName(texts_.Translate("Language"));
  start_->setText(texts_.Translate("Start the program"));
  Refresh();
  Fit();
}

void BenchWindow::ComeForward() {
  setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
  show();
  raise();
  activateWindow();
}

void BenchWindow::Do(const std::string& command) {
  bench_.Do(command);
  socket_.Send();
}

void BenchWindow::Enter() {
  const QString line = command_->text().trimmed();
  if (line.isEmpty() || bench_.Where() != Presence::kThere) return;
  typed_ = line;
  Do(line.toStdString());
  command_->clear();
}

// Of what was clicked only complaints are shown; of what was typed every answer is.
void BenchWindow::ShowAnswer(const std::string& command, const Answer& answer) {
  const QString line = QString::fromStdString(command);
  const bool typed = line == typed_;
  if (typed) typed_.clear();
  if (answer.ok && !typed) return;
  QString text = QString::fromUtf8(answer.text.c_str());
  if (answer.ok && text.isEmpty()) text = texts_.Translate("done");
  answers_->appendPlainText(line + QStringLiteral(": ") + text);
}

void BenchWindow::Refresh() {
  if (answers_ == nullptr) return;
  const Advice advice = AdviceFor(bench_);
  const bool there = bench_.Where() == Presence::kThere;
  start_->setVisible(bench_.Where() == Presence::kAbsent && start_program_ != nullptr);
  ShowAdvice(advice);
  picture_->Show(bench_.Seen(), advice, there);
  panel_->Show(bench_.Seen(), advice, there);
  command_->setEnabled(there);
  ShowRequests();
}

void BenchWindow::ShowAdvice(const Advice& advice) {
  const QString waits = texts_.Translate(advice.waits);
  const QString next = texts_.Translate(advice.next);
  if (waits_->text() == waits && next_->text() == next) return;
  waits_->setText(waits);
  next_->setText(next);
  head_->setAccessibleName(waits + QLatin1Char(' ') + next);
  // A line more of it must not push the wheels away under the mouse, so it never shrinks.
  head_->setMinimumHeight(std::max(
      head_->minimumHeight(), head_->layout()->totalHeightForWidth(head_->contentsRect().width())));
}

// "12.4 s   Brakes in test mode   StartRoutine(0x37, 3, [00 00 02])"
QString BenchWindow::Line(const ToldLine& told) const {
  const ToldRequest request = ReadRequest(told.text);
  const std::string words = WordsOf(request);
  QString line = QStringLiteral("%1 s   ").arg(told.time, 0, 'f', 1);
  if (!words.empty()) line += texts_.Translate(words) + QStringLiteral("   ");
  const std::size_t arguments = std::min(told.text.find('('), told.text.size());
  return line + QString::fromStdString(request.operation + told.text.substr(arguments));
}

void BenchWindow::ShowRequests() {
  const auto& lines = bench_.Requests();
  if (lines.size() < shown_requests_) requests_->clear();
  const int before = requests_->count();
  for (std::size_t i = lines.size(); i > 0 && lines[i - 1].time > shown_until_; --i)
    requests_->insertItem(before, new QListWidgetItem(Line(lines[i - 1])));
  for (int i = before; i < requests_->count(); ++i)
    requests_->item(i)->setToolTip(requests_->item(i)->text());
  while (requests_->count() > static_cast<int>(Bench::kKeptRequests)) delete requests_->takeItem(0);
  if (requests_->count() != before) requests_->scrollToBottom();
  shown_requests_ = lines.size();
  shown_until_ = lines.empty() ? -1 : lines.back().time;
}

}  // namespace lorimet::bench
