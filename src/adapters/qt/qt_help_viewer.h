// The help viewer: HTML pages beside the program, with contents and full-text search.
#pragma once

#include <QPointer>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/process.h"

namespace lorimet {

class HelpWindow;

class QtHelpViewer : public HelpViewer {
 public:
  using Translator = std::function<std::string(const std::string&)>;

  // The program's folder, where a folder "help" is looked for, with one folder a language in it;
  // and what puts the viewer's own words into the current language.
  // `executable_folder` is looked in as well, and the share/ beside it; empty is this program's.
  QtHelpViewer(std::string program_folder, Translator translate,
               std::string executable_folder = {});
  ~QtHelpViewer() override;

  // An index of the dictionary's languages; a language without pages shows the English ones.
  void SetLanguage(int language);
  // The folder of `help_file` is looked in first. Error 53 never comes: where there are no pages
  // the window says so.
  void Show(const std::string& help_file, HelpCommand command, const std::string& key) override;

 private:
  std::vector<std::string> Folders(const std::string& help_file) const;

  std::string program_folder_;
  std::string executable_folder_;
  Translator translate_;
  int language_ = 0;
  QPointer<HelpWindow> window_;
};

}  // namespace lorimet
