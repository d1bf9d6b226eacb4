#include "adapters/posix/user_folders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace lorimet {

namespace {

std::string WithoutTrailingSeparators(std::string folder) {
  while (!folder.empty() && folder.back() == '/') {
    folder.pop_back();
  }
  return folder;
}

// A folder that the environment names; a relative one does not count.
std::string FolderFromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && value[0] == '/' ? WithoutTrailingSeparators(value) : std::string();
}

// The text between the double quotes, in which a backslash protects the next character.
std::string Unquoted(std::string_view quoted) {
  std::string text;
  for (std::size_t i = 1; i < quoted.size() && quoted[i] != '"'; ++i) {
    if (quoted[i] == '\\' && i + 1 < quoted.size()) {
      ++i;
    }
    text += quoted[i];
  }
  return text;
}

}  // namespace

std::string ExecutablePath() {
  std::error_code error;
  std::string path = std::filesystem::read_symlink("/proc/self/exe", error).string();
  // What the kernel adds to the name of a file that was replaced under the running program.
  constexpr std::string_view kDeleted = " (deleted)";
  if (path.ends_with(kDeleted)) {
    path.resize(path.size() - kDeleted.size());
  }
  return path;
}

std::string FolderOf(const std::string& path) {
  const std::size_t separator = path.rfind('/');
  return separator == std::string::npos ? "." : path.substr(0, separator);
}

std::string HomeFolder() {
  std::string home = FolderFromEnvironment("HOME");
  if (home.empty()) {
    const passwd* user = getpwuid(getuid());
    home = user != nullptr ? WithoutTrailingSeparators(user->pw_dir) : std::string();
  }
  return home;
}

std::string ConfigFolder() {
  const std::string folder = FolderFromEnvironment("XDG_CONFIG_HOME");
  return folder.empty() ? HomeFolder() + "/.config" : folder;
}

std::string DocumentsFolder() {
  constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=";
  constexpr std::string_view kHome = "$HOME";
  std::string folder;
  std::ifstream file(ConfigFolder() + "/user-dirs.dirs");
  for (std::string line; std::getline(file, line);) {
    line.erase(0, line.find_first_not_of(" \t"));
    if (!line.starts_with(kKey) || line.size() <= kKey.size() || line[kKey.size()] != '"') {
      continue;
    }
    const std::string value = Unquoted(std::string_view{line}.substr(kKey.size()));
    if (value == kHome || value.starts_with("$HOME/")) {
      folder = WithoutTrailingSeparators(HomeFolder() + value.substr(kHome.size()));
    } else if (value.starts_with("/")) {
      folder = WithoutTrailingSeparators(value);
    }
  }
  return folder.empty() ? HomeFolder() + "/Documents" : folder;
}

bool MakeFolder(const std::string& folder) {
  for (std::size_t end = 0; end != std::string::npos;) {
    end = folder.find('/', end + 1);
    const std::string part = folder.substr(0, end);
    if (!part.empty() && part != ".") {
      mkdir(part.c_str(), 0700);
    }
  }
  struct stat status {};
  return stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace lorimet
