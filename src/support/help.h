// The help file's path and the two help commands.
#pragma once

#include <string>

#include "platform/process.h"

namespace lorimet {

class Desktop;
class Dictionary;
class Form;
class Settings;

class Help {
 public:
  Help(Settings& settings, Process& process, HelpViewer& viewer, Dictionary& dictionary,
       Desktop& desktop)
      : settings_(settings),
        process_(process),
        viewer_(viewer),
        dictionary_(dictionary),
        desktop_(desktop) {}

  // At each change of language: the folder of the setting HelpDir, else the program's, and in it
  // "Trailer.hlp".
  void BuildPath();
  const std::string& HelpFile() const { return HelpFile_; }

  // `title` heads the box that says that there is no help. A run-time error of the viewer is shown.
  void ShowContents(const std::string& title) { Show(title, HelpCommand::kContents); }
  void ShowSearch(const std::string& title) { Show(title, HelpCommand::kPartialKey); }
  // The page of a screen; the contents for a screen that has none.
  void ShowPage(const Form& form);

 private:
  void Show(const std::string& title, HelpCommand command, const std::string& key = {});

  Settings& settings_;
  Process& process_;
  HelpViewer& viewer_;
  Dictionary& dictionary_;
  Desktop& desktop_;
  std::string HelpFile_;
};

}  // namespace lorimet
