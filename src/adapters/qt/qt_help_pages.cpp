#include "adapters/qt/qt_help_pages.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocumentFragment>
#include <algorithm>

namespace lorimet {
namespace {

constexpr int kTitleRank = 100;
constexpr int kWholeWordRank = 5;
constexpr int kMostHitsCounted = 10;
constexpr qsizetype kSnippetBefore = 50;
constexpr qsizetype kSnippetLength = 170;

// Text without case and accents, and where each of its characters stood.
struct Folded {
  QString text;
  std::vector<qsizetype> places;
};

Folded Fold(const QString& text) {
  Folded folded;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QString plain = QString(text[i]).normalized(QString::NormalizationForm_KD);
    for (const QChar character : plain.toCaseFolded()) {
      if (character.category() == QChar::Mark_NonSpacing) continue;
      folded.text += character;
      folded.places.push_back(i);
    }
  }
  return folded;
}

QStringList Words(const QString& text) {
  static const QRegularExpression separators(QStringLiteral("[^\\p{L}\\p{N}]+"));
  return Fold(text).text.split(separators, Qt::SkipEmptyParts);
}

// Where words of the text begin with `word`.
std::vector<qsizetype> Find(const QString& text, const QString& word) {
  std::vector<qsizetype> found;
  for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1))
    if (at == 0 || !text[at - 1].isLetterOrNumber()) found.push_back(at);
  return found;
}

bool IsWholeWord(const QString& text, qsizetype at, qsizetype length) {
  return at + length == text.size() || !text[at + length].isLetterOrNumber();
}

QString Emphasize(const QString& snippet, const QStringList& words) {
  const Folded folded = Fold(snippet);
  std::vector<bool> bold(static_cast<std::size_t>(snippet.size()), false);
  for (const QString& word : words)
    for (const qsizetype at : Find(folded.text, word))
      for (qsizetype i = at; i < at + word.size(); ++i)
        bold[static_cast<std::size_t>(folded.places[static_cast<std::size_t>(i)])] = true;
  QString html;
  bool is_bold = false;
  for (qsizetype i = 0; i < snippet.size(); ++i) {
    const bool wanted = bold[static_cast<std::size_t>(i)];
    if (wanted != is_bold) html += wanted ? QStringLiteral("<b>") : QStringLiteral("</b>");
    is_bold = wanted;
    html += QString(snippet[i]).toHtmlEscaped();
  }
  return is_bold ? html + QStringLiteral("</b>") : html;
}

QString Snippet(const QString& text, qsizetype around, const QStringList& words) {
  qsizetype from = std::max<qsizetype>(0, around - kSnippetBefore);
  // Not in the middle of a word.
  while (from > 0 && from < around && !text[from - 1].isSpace()) ++from;
  const qsizetype to = std::min(text.size(), from + kSnippetLength);
  QString html = Emphasize(text.mid(from, to - from), words);
  if (from > 0) html.prepend(QStringLiteral("… "));
  if (to < text.size()) html += QStringLiteral(" …");
  return html;
}

QString ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString PlainText(const QString& html) {
  return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

QString TitleOf(const QString& html, const QString& file) {
  static const QRegularExpression title(
      QStringLiteral("<title[^>]*>(.*?)</title>|<h1[^>]*>(.*?)</h1>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = title.match(html);
  const QString words = PlainText(match.captured(1) + match.captured(2));
  return words.isEmpty() ? file : words;
}

// The text of the page alone: the words of the head are no part of it.
QString BodyOf(const QString& html) {
  static const QRegularExpression head(
      QStringLiteral("<head.*?</head>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  QString body = html;
  body.remove(head);
  return PlainText(body);
}

std::vector<HelpEntry> ReadContents(const QString& html) {
  static const QRegularExpression tags(
      QStringLiteral("<(/?[uo]l)[^>]*>|<a\\s[^>]*href=\"([^\"]*)\"[^>]*>(.*?)</a>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  std::vector<HelpEntry> entries;
  int level = -1;
  for (auto all = tags.globalMatch(html); all.hasNext();) {
    const QRegularExpressionMatch match = all.next();
    if (match.hasCaptured(2))
      entries.push_back({PlainText(match.captured(3)), match.captured(2), std::max(level, 0)});
    else
      level += match.captured(1).startsWith(QLatin1Char('/')) ? -1 : 1;
  }
  return entries;
}

// Whether the page holds the word, and how much it is about it.
bool Rank(const HelpPage& page, const QString& word, int& rank) {
  const QString text = Fold(page.text).text;
  const auto found = Find(text, word);
  const bool in_title = !Find(Fold(page.title).text, word).empty();
  if (found.empty() && !in_title) return false;
  if (in_title) rank += kTitleRank;
  rank += std::min(static_cast<int>(found.size()), kMostHitsCounted);
  for (const qsizetype at : found)
    if (IsWholeWord(text, at, word.size())) {
      rank += kWholeWordRank;
      break;
    }
  return true;
}

qsizetype FirstPlace(const HelpPage& page, const QStringList& words) {
  const Folded folded = Fold(page.text);
  qsizetype first = page.text.size();
  for (const QString& word : words) {
    const auto found = Find(folded.text, word);
    if (!found.empty())
      first = std::min(first, folded.places[static_cast<std::size_t>(found.front())]);
  }
  return first == page.text.size() ? 0 : first;
}

}  // namespace

bool HelpPages::Read(const QString& folder) {
  pages_.clear();
  contents_.clear();
  folder_ = folder;
  const QDir dir(folder);
  if (!dir.exists(QStringLiteral("index.html"))) return false;
  for (const QString& file : dir.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name)) {
    const QString html = ReadAll(dir.filePath(file));
    if (file == QLatin1String("index.html"))
      contents_ = ReadContents(html);
    else
      pages_.push_back({file, TitleOf(html, file), BodyOf(html)});
  }
  return true;
}

std::vector<HelpHit> HelpPages::Search(const QString& words) const {
  const QStringList wanted = Words(words);
  std::vector<HelpHit> hits;
  if (wanted.isEmpty()) return hits;
  for (const HelpPage& page : pages_) {
    int rank = 0;
    const bool has_all =
        std::ranges::all_of(wanted, [&](const QString& word) { return Rank(page, word, rank); });
    if (!has_all) continue;
    hits.push_back({&page, Snippet(page.text, FirstPlace(page, wanted), wanted), rank});
  }
  std::ranges::stable_sort(hits, std::ranges::greater(), &HelpHit::rank);
  return hits;
}

}  // namespace lorimet
