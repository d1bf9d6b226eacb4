// The entry of the program.
#pragma once

namespace lorimet {

class Desktop;
class Dictionary;
class LinkMessages;
class Process;
class frmErr;
class frmZeltMain;

struct EntryParts {
  Process& process;
  LinkMessages& messages;
  Dictionary& dictionary;
  Desktop& desktop;
  frmZeltMain& main_form;
  frmErr& err;
};

enum class EntryResult {
  kRunning,  // the main form is shown; events are to be run until it is unloaded
  kEnded,    // the program has nothing more to do: a second instance, or the user closed it
};

// Makes sure of the single instance, registers the message, and loads and shows the main form with
// its first connection. A run-time error is shown and raised on as kObjectError, which ends the
// process.
EntryResult Main(const EntryParts& parts);

}  // namespace lorimet
