#include "platform/message_hook.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <stdexcept>
#include <thread>
#include <vector>

#include "adapters/posix/posix_message_hook.h"

namespace lorimet {
namespace {

constexpr std::uint32_t kPaint = 0x000F;

// Notes the messages it gets and does what the test wants of it.
class Recorder : public WindowProcedure {
 public:
  struct Message {
    std::uintptr_t window;
    std::uint32_t message;
    std::uintptr_t wparam;
    std::intptr_t lparam;
    bool operator==(const Message&) const = default;
  };

  std::intptr_t OnMessage(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                          std::intptr_t lparam) override {
    const Message got{window, message, wparam, lparam};
    messages.push_back(got);
    return action ? action(got) : answer;
  }

  std::vector<std::intptr_t> Statuses() const {
    std::vector<std::intptr_t> statuses;
    for (const Message& message : messages) {
      statuses.push_back(message.lparam);
    }
    return statuses;
  }

  std::vector<Message> messages;
  std::function<std::intptr_t(const Message&)> action;
  std::intptr_t answer = 0;
};

using Statuses = std::vector<std::intptr_t>;

class MessageHookTest : public testing::Test {
 protected:
  void Post(std::int32_t status) { PostBytes(&status, sizeof status); }
  void PostBytes(const void* bytes, std::size_t size) {
    ASSERT_EQ(write(static_cast<int>(hook_.MainWindow()), bytes, size), static_cast<ssize_t>(size));
  }
  bool IsReadable() {
    pollfd watched{hook_.ReadDescriptor(), POLLIN, 0};
    return poll(&watched, 1, 0) == 1;
  }
  // Handles our own message and passes on the others, as a form's procedure does.
  void HandleOurs(Recorder& procedure, WindowProcedure*& previous) {
    procedure.action = [this, &previous](const Recorder::Message& got) -> std::intptr_t {
      if (got.message == hook_.RegisterMessage("NorvickABSError")) {
        return 0;
      }
      return hook_.CallProcedure(previous, got.window, got.message, got.wparam, got.lparam);
    };
  }

  Recorder original_;
  PosixMessageHook hook_{&original_};
  Recorder procedure_;
};

TEST_F(MessageHookTest, RegistersEachNameOnceInTheRangeOfRegisteredMessages) {
  const std::uint32_t message = hook_.RegisterMessage("NorvickABSError");
  EXPECT_GE(message, 0xC000U);
  EXPECT_LE(message, 0xFFFFU);
  EXPECT_EQ(hook_.RegisterMessage("NorvickABSError"), message);
  EXPECT_EQ(hook_.RegisterMessage("norvickabserror"), message);
  EXPECT_NE(hook_.RegisterMessage("Another"), message);
  EXPECT_EQ(hook_.RegisterMessage(""), 0U);
}

TEST_F(MessageHookTest, RunsOutOfNumbersAndSaysSo) {
  std::uint32_t last = 0;
  for (int i = 0; i < 0x4000; ++i) {
    last = hook_.RegisterMessage("message " + std::to_string(i));
  }
  EXPECT_EQ(last, 0U);
  EXPECT_NE(hook_.RegisterMessage("message 0"), 0U);
  EXPECT_NE(hook_.RegisterMessage("NorvickABSError"), 0U);
}

TEST_F(MessageHookTest, TheWindowIsADescriptorThatNobodyInheritsOrWaitsOn) {
  EXPECT_GT(hook_.MainWindow(), 2U);
  for (const int descriptor : {static_cast<int>(hook_.MainWindow()), hook_.ReadDescriptor()}) {
    EXPECT_NE(fcntl(descriptor, F_GETFD) & FD_CLOEXEC, 0);
    EXPECT_NE(fcntl(descriptor, F_GETFL) & O_NONBLOCK, 0);
  }
}

TEST_F(MessageHookTest, HandsStatusesOverInOrderAndWhole) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  for (const std::int32_t status : {-100, 0, -500, -67, 2147483647, -2147483647 - 1}) {
    Post(status);
  }
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{-100, 0, -500, -67, 2147483647, -2147483648LL}));
  const Recorder::Message first{hook_.MainWindow(), hook_.RegisterMessage("NorvickABSError"), 0,
                                -100};
  EXPECT_EQ(procedure_.messages.front(), first);
  EXPECT_FALSE(IsReadable());
  hook_.Drain();
  EXPECT_EQ(procedure_.messages.size(), 6U);
  EXPECT_TRUE(original_.messages.empty());
}

TEST_F(MessageHookTest, TheMessagesNameIsTheHooksToChoose) {
  PosixMessageHook hook(&original_, "Another");
  const std::int32_t status = 5;
  ASSERT_EQ(write(static_cast<int>(hook.MainWindow()), &status, sizeof status), 4);
  hook.Drain();
  ASSERT_EQ(original_.messages.size(), 1U);
  EXPECT_EQ(original_.messages[0].message, hook.RegisterMessage("Another"));
}

TEST_F(MessageHookTest, KeepsTheFrontOfAStatusUntilItsRestArrives) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  const std::int32_t statuses[] = {-100, 7};
  const auto* bytes = reinterpret_cast<const char*>(statuses);
  for (std::size_t i = 0; i < sizeof statuses; ++i) {
    PostBytes(bytes + i, 1);
    hook_.Drain();
    EXPECT_FALSE(IsReadable());
    EXPECT_EQ(procedure_.messages.size(), (i + 1) / 4);
  }
  EXPECT_EQ(procedure_.Statuses(), (Statuses{-100, 7}));
}

TEST_F(MessageHookTest, ANestedDrainHandlesWhatIsBehindOnceAndInOrder) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  std::vector<std::string> steps;
  procedure_.action = [&](const Recorder::Message& got) -> std::intptr_t {
    steps.push_back("in " + std::to_string(got.lparam));
    if (got.lparam == 1 || got.lparam == 3) {
      EXPECT_TRUE(IsReadable());
      hook_.Drain();
    }
    steps.push_back("out " + std::to_string(got.lparam));
    return 0;
  };
  for (const std::int32_t status : {1, 2, 3, 4}) {
    Post(status);
  }
  hook_.Drain();
  EXPECT_EQ(steps, (std::vector<std::string>{"in 1", "in 2", "out 2", "in 3", "in 4", "out 4",
                                             "out 3", "out 1"}));
}

TEST_F(MessageHookTest, DrainLeavesWhatArrivesWhileItRuns) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  procedure_.action = [&](const Recorder::Message&) -> std::intptr_t {
    Post(2);
    return 0;
  };
  Post(1);
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{1}));
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{1, 2}));
}

TEST_F(MessageHookTest, AnErrorInTheProcedureLosesNoOtherStatus) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  procedure_.action = [](const Recorder::Message& got) -> std::intptr_t {
    return got.lparam == 1 ? throw std::runtime_error("one") : 0;
  };
  Post(1);
  Post(2);
  EXPECT_THROW(hook_.Drain(), std::runtime_error);
  EXPECT_TRUE(IsReadable());
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{1, 2}));
  // The chain of the message that failed is forgotten: the next one takes its usual way.
  EXPECT_EQ(hook_.CallProcedure(&procedure_, hook_.MainWindow(), kPaint, 0, 3), 0);
  EXPECT_EQ(procedure_.messages.size(), 3U);
}

TEST_F(MessageHookTest, DropsWhatIsOnItsWayButNotHalfAStatus) {
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  Post(1);
  Post(2);
  const std::int32_t third = 3;
  PostBytes(&third, 1);
  hook_.DropPending();
  EXPECT_FALSE(IsReadable());
  hook_.Drain();
  EXPECT_TRUE(procedure_.messages.empty());
  PostBytes(reinterpret_cast<const char*>(&third) + 1, 3);
  Post(4);
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{3, 4}));
}

TEST_F(MessageHookTest, AFloodEndsNeitherTheDroppingNorTheDraining) {
  // Each of the two may take what a full pipe holds, 1 MiB, and what was on its way.
  constexpr std::size_t kFlood = 8U << 20U;
  std::atomic<bool> enough = false;
  std::thread library([&] {
    const std::vector<std::int32_t> statuses(1000, 0);
    std::size_t written = 0;
    while (!enough && written < kFlood) {
      // Larger bites than the reader's; a full pipe refuses them.
      const ssize_t count = write(static_cast<int>(hook_.MainWindow()), statuses.data(),
                                  statuses.size() * sizeof(std::int32_t));
      if (count > 0) written += static_cast<std::size_t>(count);
    }
    EXPECT_TRUE(enough) << "the reader did not come back while the flood went on";
  });
  while (!IsReadable()) {
  }
  hook_.DropPending();
  hook_.Drain();
  enough = true;
  library.join();
}

TEST_F(MessageHookTest, TheOriginalProcedureIsThereBeforeAndAfterTheHook) {
  Post(1);
  hook_.Drain();
  EXPECT_EQ(original_.Statuses(), (Statuses{1}));
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow(), &procedure_), &original_);
  Post(2);
  hook_.Drain();
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow(), &original_), &procedure_);
  Post(3);
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{2}));
  EXPECT_EQ(original_.Statuses(), (Statuses{1, 3}));
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow(), nullptr), &procedure_);
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow(), &procedure_), &original_);
}

TEST_F(MessageHookTest, AnotherWindowHasNoProcedureToChange) {
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow() + 1, &procedure_), nullptr);
  Post(1);
  hook_.Drain();
  EXPECT_TRUE(procedure_.messages.empty());
}

TEST_F(MessageHookTest, AWindowWithNoProcedureIgnoresItsMessages) {
  PosixMessageHook hook;
  const std::int32_t status = -100;
  ASSERT_EQ(write(static_cast<int>(hook.MainWindow()), &status, sizeof status), 4);
  hook.Drain();
  EXPECT_EQ(hook.Send(kPaint, 1, 2), 0);
  WindowProcedure* previous = hook.SetProcedure(hook.MainWindow(), &procedure_);
  ASSERT_NE(previous, nullptr);
  EXPECT_EQ(hook.CallProcedure(previous, hook.MainWindow(), kPaint, 1, 2), 0);
}

TEST_F(MessageHookTest, OtherMessagesReachTheOriginalThroughTheHook) {
  WindowProcedure* previous = nullptr;
  HandleOurs(procedure_, previous);
  previous = hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  original_.answer = 42;
  EXPECT_EQ(hook_.Send(kPaint, 1, 2), 42);
  EXPECT_EQ(original_.messages,
            (std::vector<Recorder::Message>{{hook_.MainWindow(), kPaint, 1, 2}}));
  EXPECT_EQ(procedure_.messages, original_.messages);
}

TEST_F(MessageHookTest, ADoubleHookReachesTheOriginalAndHandlesEachStatusOnce) {
  WindowProcedure* previous = nullptr;
  HandleOurs(procedure_, previous);
  previous = hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  previous = hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  ASSERT_EQ(previous, &procedure_);
  original_.answer = 42;
  EXPECT_EQ(hook_.Send(kPaint, 1, 2), 42);
  EXPECT_EQ(procedure_.messages.size(), 1U);
  EXPECT_EQ(original_.messages.size(), 1U);
  Post(-100);
  hook_.Drain();
  EXPECT_EQ(procedure_.Statuses(), (Statuses{2, -100}));
  EXPECT_EQ(original_.messages.size(), 1U);
  // Removing it puts back what it found: itself.
  EXPECT_EQ(hook_.SetProcedure(hook_.MainWindow(), previous), &procedure_);
  EXPECT_EQ(hook_.Send(kPaint, 1, 2), 42);
  EXPECT_EQ(original_.messages.size(), 2U);
}

TEST_F(MessageHookTest, ADoubleHookStandsMessagesInsideMessages) {
  WindowProcedure* previous = &procedure_;
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  procedure_.action = [&](const Recorder::Message& got) -> std::intptr_t {
    if (got.lparam > 0) {
      hook_.Send(got.message, got.wparam, got.lparam - 1);
    }
    return hook_.CallProcedure(previous, got.window, got.message, got.wparam, got.lparam);
  };
  hook_.Send(kPaint, 0, 2);
  EXPECT_EQ(procedure_.Statuses(), (Statuses{2, 1, 0}));
  EXPECT_EQ(original_.Statuses(), (Statuses{0, 1, 2}));
}

TEST_F(MessageHookTest, HooksOnTopOfOneAnotherAreEachCalledOnce) {
  Recorder upper;
  WindowProcedure* below_lower = nullptr;
  WindowProcedure* below_upper = nullptr;
  HandleOurs(procedure_, below_lower);
  HandleOurs(upper, below_upper);
  below_lower = hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  below_upper = hook_.SetProcedure(hook_.MainWindow(), &upper);
  hook_.Send(kPaint, 0, 1);
  below_lower = hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  ASSERT_EQ(below_lower, &upper);
  hook_.Send(kPaint, 0, 2);
  EXPECT_EQ(procedure_.Statuses(), (Statuses{1, 2}));
  EXPECT_EQ(upper.Statuses(), (Statuses{1, 2}));
  EXPECT_EQ(original_.Statuses(), (Statuses{1, 2}));
}

TEST_F(MessageHookTest, AWriterIsNeverHeldUpWhileNobodyReads) {
  // More than any pipe holds: the thread must come back by itself, as in a disconnect that waits.
  std::size_t written = 0;
  std::thread library([&] {
    const std::int32_t status = -100;
    for (int i = 0; i < 1'000'000; ++i) {
      written += write(static_cast<int>(hook_.MainWindow()), &status, sizeof status) == 4 ? 1 : 0;
    }
  });
  library.join();
  EXPECT_LT(written, 1'000'000U);
  EXPECT_GE(written, 1024U);
  hook_.SetProcedure(hook_.MainWindow(), &procedure_);
  hook_.Drain();
  EXPECT_EQ(procedure_.messages.size(), written);
  EXPECT_EQ(procedure_.messages.back().lparam, -100);
}

}  // namespace
}  // namespace lorimet
