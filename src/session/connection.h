// Opening and closing the link to the ECU.
#pragma once

#include <cstdint>

namespace lorimet {

class Desktop;
class Dictionary;
class LinkLibrary;
class LinkMessages;
class Settings;
class TextBox;
class frmRP1210Err;
struct SessionRecords;

// What the connection uses of the rest of the program.
struct ConnectionParts {
  LinkLibrary& link;
  LinkMessages& messages;
  Settings& settings;
  Dictionary& dictionary;
  Desktop& desktop;
  SessionRecords& records;
  frmRP1210Err& rp1210_error;
};

// Reads the settings, puts the message hook in place and connects. 0 on success; -1 on failure,
// after the library's text was written to `error_text` and shown in its dialog; the hook stays.
// A run-time error shows its number and description and raises kObjectError.
std::int16_t ConnectECU(const ConnectionParts& parts, TextBox& error_text);

// Removes the hook and disconnects. 0 on success, -1 when the library's result was not 0. Run-time
// errors as in ConnectECU.
std::int16_t DisconnectECU(const ConnectionParts& parts);

}  // namespace lorimet
