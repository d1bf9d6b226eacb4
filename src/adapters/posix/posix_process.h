// Other programs, the program's folder and the single instance, where there are processes and
// advisory locks.
#pragma once

#include <string>
#include <vector>

#include "adapters/posix/file_descriptor.h"
#include "platform/process.h"

namespace lorimet {

class PosixProcess : public Process {
 public:
  // `runtime_root` holds the users' runtime folders, and `temporary_folder` takes the lock of a
  // user who has none.
  explicit PosixProcess(std::string temporary_folder = "/tmp",
                        std::string runtime_root = "/run/user");

  // The claim is a lock that the kernel takes back when the process ends, however it ends. Where no
  // place for the lock can be had nothing can be known of other instances, and the claim is
  // granted.
  bool ClaimSingleInstance() override;
  // A folder is no file.
  bool FileExists(const std::string& path) override;
  // The path may hold blanks; the arguments are split at theirs. The program gets a session of its
  // own and none of this program's files, and is nobody's zombie when it ends.
  bool Start(const std::string& path, const std::string& arguments) override;
  std::string ProgramFolder() override;

 private:
  std::string temporary_folder_;
  std::string runtime_root_;
  std::string executable_;
  std::vector<FileDescriptor> instance_locks_;
};

// The folder that a program of this executable works in: its own, or under a system prefix the
// user's. Not made here.
std::string ProgramFolderOf(const std::string& executable);

}  // namespace lorimet
