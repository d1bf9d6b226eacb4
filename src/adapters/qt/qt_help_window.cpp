#include "adapters/qt/qt_help_window.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>
#include <utility>

#include "adapters/qt/qt_pictures.h"
#include "adapters/qt/qt_text.h"

namespace lorimet {
namespace {

constexpr int kTargetRole = Qt::UserRole;
constexpr QSize kWindowSize(900, 620);
constexpr QSize kFrame(16, 48);  // what a window manager may put round a window
constexpr int kSideWidth = 330;

// A list row with the title of the page and the words around what was found.
QWidget* ResultRow(const HelpHit& hit) {
  auto* label = new QLabel(QStringLiteral("<p style=\"margin:0\"><b>%1</b></p><p "
                                          "style=\"margin:0\">%2</p>")
                               .arg(hit.page->title.toHtmlEscaped(), hit.snippet));
  label->setTextFormat(Qt::RichText);
  label->setWordWrap(true);
  label->setMargin(4);
  label->setAttribute(Qt::WA_TransparentForMouseEvents);
  return label;
}

}  // namespace

HelpWindow::HelpWindow(Translator translate)
    : translate_(std::move(translate)),
      page_(new QTextBrowser),
      sides_(new QTabWidget),
      contents_(new QTreeWidget),
      words_(new QLineEdit),
      results_(new QListWidget),
      found_(new QLabel) {
  setObjectName(QStringLiteral("frmHelp"));
  page_->setObjectName(QStringLiteral("txtHelpPage"));
  page_->setOpenExternalLinks(false);
  contents_->setObjectName(QStringLiteral("lstHelpContents"));
  words_->setObjectName(QStringLiteral("txtHelpSearch"));
  results_->setObjectName(QStringLiteral("lstHelpResults"));
  found_->setObjectName(QStringLiteral("lblHelpFound"));
  BuildTools();
  BuildSides();
  auto* splitter = new QSplitter;
  splitter->addWidget(sides_);
  splitter->addWidget(page_);
  splitter->setStretchFactor(1, 1);
  splitter->setSizes({kSideWidth, kWindowSize.width() - kSideWidth});
  setCentralWidget(splitter);
  SetWords();
  resize(kWindowSize.boundedTo(screen()->availableSize() - kFrame));
}

QString HelpWindow::Words(const char* text) const { return ToWidgetText(translate_(text)); }

void HelpWindow::BuildTools() {
  QToolBar* tools = addToolBar(QString());
  tools->setObjectName(QStringLiteral("tbrHelp"));
  tools->setMovable(false);
  tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  back_ = tools->addAction(LoadIcon(QStringLiteral("back")), QString());
  forward_ = tools->addAction(LoadIcon(QStringLiteral("next")), QString());
  home_ = tools->addAction(LoadIcon(QStringLiteral("home")), QString());
  back_->setObjectName(QStringLiteral("tbrHelp_back"));
  forward_->setObjectName(QStringLiteral("tbrHelp_forward"));
  home_->setObjectName(QStringLiteral("tbrHelp_home"));
  back_->setShortcut(QKeySequence::Back);
  forward_->setShortcut(QKeySequence::Forward);
  home_->setShortcut(Qt::ALT | Qt::Key_Home);
  connect(back_, &QAction::triggered, page_, &QTextBrowser::backward);
  connect(forward_, &QAction::triggered, page_, &QTextBrowser::forward);
  connect(home_, &QAction::triggered, page_, &QTextBrowser::home);
  connect(page_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
  back_->setEnabled(false);
  forward_->setEnabled(false);
  auto* close = new QAction(this);
  close->setShortcut(Qt::Key_Escape);
  connect(close, &QAction::triggered, this, &QWidget::close);
  addAction(close);
}

void HelpWindow::BuildSides() {
  contents_->setHeaderHidden(true);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) page_->setSource(QUrl(item->data(0, kTargetRole).toString()));
  });
  results_->setWordWrap(true);
  // A bar that comes with the rows would lie on their words.
  results_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  results_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  connect(results_, &QListWidget::currentItemChanged, this, &HelpWindow::Choose);
  // What is selected has another ground, also while it is not current.
  connect(results_, &QListWidget::itemSelectionChanged, this, [this] {
    for (int row = 0; row < results_->count(); ++row) {
      QListWidgetItem* item = results_->item(row);
      if (QWidget* words = results_->itemWidget(item))
        words->setForegroundRole(item->isSelected() ? QPalette::HighlightedText : QPalette::Text);
    }
  });
  words_->setClearButtonEnabled(true);
  connect(words_, &QLineEdit::textChanged, this, &HelpWindow::Search);
  connect(words_, &QLineEdit::returnPressed, this, [this] {
    if (results_->count() == 0) return;
    results_->setCurrentRow(0);
    results_->setFocus();
  });
  found_->setWordWrap(true);
  auto* search = new QWidget;
  auto* layout = new QVBoxLayout(search);
  layout->addWidget(words_);
  layout->addWidget(found_);
  layout->addWidget(results_, 1);
  sides_->addTab(contents_, QString());
  sides_->addTab(search, QString());
  connect(sides_, &QTabWidget::currentChanged, this, [this, search] {
    if (sides_->currentWidget() == search) words_->setFocus();
  });
}

void HelpWindow::SetWords() {
  setWindowTitle(Words("Help"));
  back_->setText(Words("Back"));
  forward_->setText(Words("Next"));
  home_->setText(Words("Home"));
  sides_->setTabText(0, Words("Contents"));
  sides_->setTabText(1, Words("Search"));
  contents_->setAccessibleName(Words("Contents"));
  words_->setPlaceholderText(Words("Words to look for"));
  words_->setAccessibleName(Words("Words to look for"));
  results_->setAccessibleName(Words("Pages found"));
  page_->setAccessibleName(Words("Help page"));
}

void HelpWindow::Open(const QStringList& folders) {
  if (has_pages_ && folders.contains(pages_.Folder())) return;
  for (const QString& folder : folders) {
    has_pages_ = pages_.Read(folder);
    if (!has_pages_) continue;
    page_->setSearchPaths({folder});
    FillContents();
    page_->setSource(QUrl(QStringLiteral("index.html")));
    return;
  }
  contents_->clear();
  ShowMissing(folders);
}

void HelpWindow::FillContents() {
  contents_->clear();
  std::vector<QTreeWidgetItem*> above;
  for (const HelpEntry& entry : pages_.Contents()) {
    const auto level = std::min(static_cast<std::size_t>(entry.level), above.size());
    above.resize(level);
    auto* item = above.empty() ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(above.back());
    item->setText(0, entry.caption);
    item->setData(0, kTargetRole, entry.target);
    above.push_back(item);
  }
  contents_->expandAll();
}

void HelpWindow::ShowMissing(const QStringList& folders) {
  QString html = QStringLiteral("<h2>%1</h2><p>%2</p><ul>")
                     .arg(Words("The help pages were not found.").toHtmlEscaped(),
                          Words("They were looked for in these folders:").toHtmlEscaped());
  for (const QString& folder : folders)
    html += QStringLiteral("<li>%1</li>").arg(QDir::toNativeSeparators(folder).toHtmlEscaped());
  page_->setHtml(html + QStringLiteral("</ul>"));
}

void HelpWindow::ShowContents() {
  sides_->setCurrentIndex(0);
  if (has_pages_) page_->setSource(QUrl(QStringLiteral("index.html")));
  contents_->setFocus();
}

void HelpWindow::ShowPage(const QString& page) {
  ShowContents();
  if (!has_pages_ || !QFileInfo::exists(pages_.Folder() + QLatin1Char('/') + page)) return;
  page_->setSource(QUrl(page));
  page_->setFocus();
}

void HelpWindow::ShowSearch(const QString& words) {
  sides_->setCurrentIndex(1);
  if (!words.isEmpty()) words_->setText(words);
  words_->selectAll();
  words_->setFocus();
}

void HelpWindow::Choose(QListWidgetItem* item) {
  if (item != nullptr) page_->setSource(QUrl(item->data(kTargetRole).toString()));
}

void HelpWindow::Search() {
  results_->clear();
  const auto hits = pages_.Search(words_->text());
  for (const HelpHit& hit : hits) {
    auto* item = new QListWidgetItem(results_);
    item->setData(kTargetRole, hit.page->file);
    item->setData(Qt::AccessibleTextRole, hit.page->title);
    QWidget* row = ResultRow(hit);
    row->setFixedWidth(std::max(results_->viewport()->width(), kSideWidth / 2));
    item->setSizeHint(QSize(0, row->heightForWidth(row->width())));
    results_->setItemWidget(item, row);
  }
  const bool has_words = !words_->text().trimmed().isEmpty();
  found_->setText(has_words && hits.empty() ? Words("No page holds all of these words.")
                                            : QString());
}

}  // namespace lorimet
