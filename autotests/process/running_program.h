// The real program as a process of its own, on the real library file, with folders of its own.
#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "autotests/places.h"
#include "autotests/platform/native_fixture.h"

namespace lorimet {

// Looks again and again until something comes true, and gives up after a generous time.
bool Eventually(const std::function<bool()>& condition);

// The processes that this one has started, or that have lost the parent whom it had started.
std::vector<pid_t> LivingChildren();

// What one user has: settings, the lock of the single instance, the simulated trailer.
class ProcessTest : public testing::Test {
 protected:
  static inline const std::string kLibrary = InBuild("libLorimet32.so");
  static inline const std::string kRecorder = InBuild("autotests/liblorimet_link_recorder.so");

  static inline const std::string kStubborn = InBuild("autotests/liblorimet_stubborn_library.so");

  ProcessTest();
  // Ends what the programs have started and left behind.
  ~ProcessTest() override;

  // A row of the product's key in the registry, such as "DeviceID"="7"; before the first run.
  void StoreSetting(const std::string& row) { settings_ += row + "\r\n"; }
  // A script that leaves its arguments in the file "launched".
  void InstallLauncher();
  // The program of a path as the launcher.
  void NameLauncher(const std::string& path);
  // A command to the simulated trailer.
  void Trailer(const std::string& command);
  // The counts that the library gives for the operations so far; needs a connection.
  std::map<std::string, int> Requests();
  // The operations in their order, when the recorder is the link library.
  std::vector<std::string> Record() const;

  // One run of the program; killed, if it still runs, at the end of its life, and a failure of the
  // test if it complained.
  class Run {
   public:
    Run(ProcessTest& test, const std::string& name, std::string program = "lorimet",
        std::vector<std::string> arguments = {});
    ~Run();
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    // What the window probe answers; nothing when it refuses or cannot be reached.
    std::optional<std::string> Ask(const std::string& command) const;
    // As Ask, until it is not refused any more.
    bool Tell(const std::string& command) const;
    // Waits until a property has a value.
    testing::AssertionResult Shows(const std::string& window, const std::string& name,
                                   const std::string& property, const std::string& value) const;
    testing::AssertionResult ShowsWindow(const std::string& window) const;
    testing::AssertionResult ShowsNoWindow(const std::string& window) const;
    std::string Get(const std::string& window, const std::string& name,
                    const std::string& property) const {
      return Ask("get " + window + " " + name + " " + property).value_or("(nothing)");
    }

    bool Stands();
    // The exit status, -1 when a signal ended it; fails the test when it does not end.
    int ExitStatus();
    void Kill();
    // Asks it to end as the system does.
    void Terminate() const;
    // What it wrote to its standard outputs, which is to be nothing.
    std::string Complaints() const;

   private:
    [[noreturn]] void Become(const std::map<std::string, std::string>& variables) const;
    // Takes the child's end, if it has come.
    bool Reaped();

    std::string program_;
    std::vector<std::string> arguments_;
    std::string output_;
    std::string socket_;
    pid_t child_ = -1;
    std::optional<int> status_;
  };

  std::map<std::string, std::string> environment;
  ScratchFolder folder;

 private:
  void WriteSettings() const;

  std::string settings_;
  std::string machine_;
};

}  // namespace lorimet
