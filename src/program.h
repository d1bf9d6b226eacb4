// The program put together from its ports: one part a folder, each with its records and forms.
//
// The desktop program, the tour and the tests of the whole program start the same way from here;
// they differ in the adapters that they bring. Who looks into a part includes that part's header.
#pragma once

#include <memory>

#include "session/entry.h"
#include "session/ports.h"

namespace lorimet {

class RuntimeError;
struct FaultsPart;
struct MonitorPart;
struct ParametersPart;
struct ReportsPart;
struct SessionPart;
struct SupportPart;
struct TestsPart;

class Program {
 public:
  explicit Program(const Ports& ports);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The entry; kEnded also after a run-time error, which the user has then been told and which
  // ExitStatus shows.
  EntryResult Start();
  // Tells the user of a run-time error that nobody handled and closes the link in order; the
  // process is to end with ExitStatus.
  void OnUnhandledError(const RuntimeError& error);
  // Closes the link in order when the system ends the program: without its screens, the launcher or
  // a word to a user who may be gone. Does nothing before the main form is loaded and after its own
  // close-down.
  void End();
  // 0, or 1 after a run-time error that ended the program.
  int ExitStatus() const { return exit_status_; }

 private:
  Ports ports_;
  int exit_status_ = 0;

 public:
  // From the lowest floor up; each plugs itself into those below.
  const std::unique_ptr<SupportPart> support;
  const std::unique_ptr<SessionPart> session;
  const std::unique_ptr<FaultsPart> faults;
  const std::unique_ptr<ParametersPart> parameters;
  const std::unique_ptr<MonitorPart> monitor;
  const std::unique_ptr<TestsPart> tests;
  const std::unique_ptr<ReportsPart> reports;
};

}  // namespace lorimet
