// The process port: other programs, this program's folder, and its single instance.
#pragma once

#include <string>

namespace lorimet {

class Process {
 public:
  virtual ~Process() = default;
  // False when another instance of the same user on this machine holds the program.
  virtual bool ClaimSingleInstance() = 0;
  virtual bool FileExists(const std::string& path) = 0;
  // Starts a program with a normal, focused window, without waiting for it. The command line is the
  // path, then a blank and the arguments if there are any. False when it could not be started.
  virtual bool Start(const std::string& path, const std::string& arguments) = 0;
  // The folder that the program's own files lie in and new ones go to; no separator at its end.
  virtual std::string ProgramFolder() = 0;
};

// The help viewer: the three calls that the program makes of it. The key is the words to search
// for, or the page, a file of help/<language>/.
enum class HelpCommand { kContents = 3, kPartialKey = 0x105, kPage = 1 };
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  virtual void Show(const std::string& help_file, HelpCommand command, const std::string& key) = 0;
};

}  // namespace lorimet
