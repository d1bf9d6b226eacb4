// The contract of all desktops, on the one without a display.
#include "autotests/common/desktop_contract.h"

#include "adapters/headless/headless_desktop.h"

namespace lorimet::testing_support {
namespace {

struct HeadlessStage {
  void Post(std::function<void()> event) { desktop.After(0, std::move(event)); }
  bool Until(const std::function<bool()>& done) {
    for (int i = 0; i < 1000 && !done(); ++i) desktop.Run(1);
    return done();
  }
  void Sleep(std::uint32_t milliseconds) { clock.Sleep(milliseconds); }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Headless, DesktopContract, HeadlessStage);

}  // namespace
}  // namespace lorimet::testing_support
