#include "session/connection.h"

#include <string>

#include "platform/controls.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "session/library_text.h"
#include "session/link_library.h"
#include "session/link_messages.h"
#include "session/session_state.h"
#include "support/dictionary.h"
#include "support/error_report.h"
#include "support/frmRP1210Err.h"
#include "support/settings.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::size_t kErrorTextLength = 1024;
constexpr std::int32_t kHighestClientId = 127;  // RP1210: client identifiers are 0 to 127

void ReadSettings(Settings& settings, SessionRecords& records) {
  records.vendor = settings.GetVendor();
  records.device_id = settings.GetDeviceID();
  records.protocol = settings.GetProtocol();
}

std::int32_t CallConnect(const ConnectionParts& parts) {
  SessionRecords& records = parts.records;
  LibraryText protocol(records.protocol);
  LibraryText vendor(records.vendor);
  const std::int32_t result =
      parts.link.Connect(protocol.Data(), static_cast<std::uint32_t>(parts.messages.MainWindow()),
                         vendor.Data(), records.device_id, records.lECUFamily, &records.before_2,
                         &records.before_1, &records.link_status, &records.ecu_data,
                         &records.after_1, &records.after_2, &records.after_3, &records.after_word);
  records.protocol = protocol.Text();
  records.vendor = vendor.Text();
  return result;
}

// The library fills a text of fixed length with blanks behind its words; the dictionary knows the
// words alone.
std::string TranslateFixed(const Dictionary& dictionary, const std::string& text) {
  if (text.empty()) return text;
  return PadRight(dictionary.Translate(TrimRight(text)), kErrorTextLength);
}

void ShowConnectError(const ConnectionParts& parts, TextBox& error_text, std::int32_t code) {
  const std::string text =
      TranslateFixed(parts.dictionary, LinkErrorText(parts.link, code, kErrorTextLength));
  error_text.SetText(parts.dictionary.Translate("RP1210A Error: ") + std::to_string(code) + kCrLf +
                     text + kCrLf);
  parts.rp1210_error.strErrorText = text;
  parts.rp1210_error.lngRP1210Err = code;
  parts.rp1210_error.Show(Modality::kModal);
}

}  // namespace

std::int16_t ConnectECU(const ConnectionParts& parts, TextBox& error_text) {
  return WithErrorReport(parts.desktop, [&]() -> std::int16_t {
    ReadSettings(parts.settings, parts.records);
    parts.messages.SubclassMainWindow();
    const std::int32_t result = CallConnect(parts);
    // A result that does not fit 16 bits stays what it is, and is an error with its full number.
    if (result >= 0 && result <= kHighestClientId) return 0;
    ShowConnectError(parts, error_text, result);
    return -1;
  });
}

std::int16_t DisconnectECU(const ConnectionParts& parts) {
  return WithErrorReport(parts.desktop, [&]() -> std::int16_t {
    parts.messages.UnsubclassMainWindow();
    const std::int32_t result = parts.link.Disconnect();
    parts.messages.DropPending();
    return result == 0 ? std::int16_t{0} : std::int16_t{-1};
  });
}

}  // namespace lorimet
