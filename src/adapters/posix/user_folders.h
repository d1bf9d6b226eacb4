// Where the program lies and where its user keeps things.
#pragma once

#include <string>

namespace lorimet {

// All folders are whole paths with no separator at their end; the root is the empty text.

// The running executable's file; empty when the system does not tell.
std::string ExecutablePath();
// The folder that a file lies in.
std::string FolderOf(const std::string& path);
std::string HomeFolder();
// $XDG_CONFIG_HOME, or .config in the home folder.
std::string ConfigFolder();
// The documents folder that user-dirs.dirs in the config folder names, or Documents in the home
// folder.
std::string DocumentsFolder();
// Makes a folder and those above it, for this user alone; true when it is there afterwards.
bool MakeFolder(const std::string& folder);

}  // namespace lorimet
