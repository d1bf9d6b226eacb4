// The program's only inbound channel from the link library: the registered message and its codes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/message_hook.h"

namespace lorimet {

class Desktop;
class Dictionary;
class LinkLibrary;
class TextBox;
class frmErr;
struct ECUData;

// Status codes that the registered message carries.
constexpr std::int32_t kStatusHealthy = 0;
constexpr std::int32_t kStatusOdrEnded = -66;
constexpr std::int32_t kStatusOdrStep = -67;
constexpr std::int32_t kStatusLinkError = -100;
constexpr std::int32_t kStatusMessageLost = -500;

class LinkMessages : public WindowProcedure {
 public:
  LinkMessages(MessageHook& hook, Desktop& desktop, Dictionary& dictionary, LinkLibrary& link,
               ECUData& ecu_data, frmErr& err)
      : hook_(hook),
        desktop_(desktop),
        dictionary_(dictionary),
        link_(link),
        ecu_data_(ecu_data),
        frmErr_(err) {}

  // Registers the message name. Always true: a failed registration gives the identifier 0, which
  // is a value too and does not stop the program.
  bool RegisterMessages();
  // Puts this procedure before the main window's own, at each connect.
  void SubclassMainWindow();
  void UnsubclassMainWindow();
  // Drops what the library posted while it closed.
  void DropPending() { hook_.DropPending(); }
  // The text box of the message center, to which every link error is written.
  void SetErrorControl(TextBox* control) { ctlErrorText_ = control; }

  std::uint32_t MessageId() const { return lABSErrorMsg_; }
  std::uintptr_t MainWindow() const { return hMainWnd_; }
  std::int32_t LastLinkError() const { return lLastLinkError_; }
  // What stood before this procedure at the last subclassing; this object itself after a second
  // subclassing with no removal between.
  WindowProcedure* PreviousProcedure() const { return lPrevWndProc_; }

  std::intptr_t OnMessage(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                          std::intptr_t lparam) override {
    return WindowProc(window, message, wparam, lparam);
  }

  // The upload screen's part in a step: its text (empty for a step that has none) and the bar's
  // value. Empty while that screen is not open.
  std::function<void(const std::string& text, int step)> show_upload_step;

 private:
  std::intptr_t WindowProc(std::uintptr_t hwnd, std::uint32_t uMsg, std::uintptr_t wParam,
                           std::intptr_t lParam);
  void OnStatus(std::int32_t status);
  void ShowLinkError(std::int32_t status);
  void RunOdrStep();

  MessageHook& hook_;
  Desktop& desktop_;
  Dictionary& dictionary_;
  LinkLibrary& link_;
  ECUData& ecu_data_;
  frmErr& frmErr_;
  std::uint32_t lABSErrorMsg_ = 0;
  WindowProcedure* lPrevWndProc_ = nullptr;
  std::uintptr_t hMainWnd_ = 0;
  TextBox* ctlErrorText_ = nullptr;
  std::int32_t lLastLinkError_ = 0;
};

}  // namespace lorimet
