// The pages of the help and the search in them.
#pragma once

#include <QString>

#include <vector>

namespace lorimet {

struct HelpPage {
  QString file;   // its name within the folder
  QString title;  // from its <title>, else its first heading, else its name
  QString text;   // what it says, without its tags
};

struct HelpHit {
  const HelpPage* page = nullptr;
  QString snippet;  // the words around the first place, as HTML with the found words in bold
  int rank = 0;     // higher is better
};

struct HelpEntry {
  QString caption;
  QString target;  // a page, with or without a place in it
  int level = 0;   // how deep in the contents
};

class HelpPages {
 public:
  // Reads the HTML pages of a folder; false when it has no index.html.
  bool Read(const QString& folder);

  const QString& Folder() const { return folder_; }
  // The links of index.html, in their order.
  const std::vector<HelpEntry>& Contents() const { return contents_; }
  // The pages that hold each of the words, the best first. A word counts from the beginning of a
  // longer one on; case and accents do not matter.
  std::vector<HelpHit> Search(const QString& words) const;

 private:
  QString folder_;
  std::vector<HelpPage> pages_;
  std::vector<HelpEntry> contents_;
};

}  // namespace lorimet
