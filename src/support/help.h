// The help file's path and the two help commands.
#pragma once

#include <string>

namespace lorimet {

class Desktop;
class Dictionary;
class HelpViewer;
class Process;
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
  void ShowContents(const std::string& title) { Show(title, false); }
  void ShowSearch(const std::string& title) { Show(title, true); }

 private:
  void Show(const std::string& title, bool search);

  Settings& settings_;
  Process& process_;
  HelpViewer& viewer_;
  Dictionary& dictionary_;
  Desktop& desktop_;
  std::string HelpFile_;
};

}  // namespace lorimet
