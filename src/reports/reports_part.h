// The reports and the recorded data put together.
#pragma once

namespace lorimet {

struct SessionPart;
struct SupportPart;

struct ReportsPart {
  ReportsPart(SupportPart& support, SessionPart& session);
};

}  // namespace lorimet
