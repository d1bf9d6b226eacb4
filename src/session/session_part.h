// The session put together: the records that the library fills, its messages, the main form.
#pragma once

#include "session/frmZeltMain.h"
#include "session/link_messages.h"
#include "session/session_state.h"

namespace lorimet {

struct Ports;
struct SupportPart;

struct SessionPart {
  SessionPart(const Ports& ports, SupportPart& support);

  SessionRecords records;
  LinkMessages messages;
  frmZeltMain main_form;
};

}  // namespace lorimet
