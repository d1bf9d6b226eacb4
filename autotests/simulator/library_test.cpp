#if !defined(_WIN32)

#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "autotests/places.h"
#include "session/ecu_data.h"
#include "session/lorimet32.h"
#include "simulator/library/driven_time.h"

namespace lorimet::simulator {
namespace {

using namespace std::chrono_literals;

// The library file itself, loaded as a program loads it.
class LibraryTest : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = std::filesystem::temp_directory_path() /
              ("lorimet32-" + std::to_string(getpid()) + "-" +
               testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    setenv("LORIMET32_STATE", (folder_ / "deep" / "state").c_str(), 1);
    setenv("LORIMET32_CONTROL", (folder_ / "control").c_str(), 1);
    unsetenv("LORIMET32_SCENARIO");
    ASSERT_EQ(pipe(pipe_), 0);
    Load();
  }
  void TearDown() override {
    Unload();
    close(pipe_[0]);
    close(pipe_[1]);
    std::filesystem::remove_all(folder_);
  }

  void Load() {
    library_ = dlopen(InBuild("libLorimet32.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library_, nullptr) << dlerror();
  }
  void Unload() {
    if (library_ != nullptr) dlclose(library_);
    library_ = nullptr;
  }

  template <typename Function>
  Function* Get(const char* name) {
    auto* function = reinterpret_cast<Function*>(dlsym(library_, name));
    if (function == nullptr) throw std::runtime_error(name);
    return function;
  }
  std::int32_t Connect() {
    return Get<decltype(::Connect)>("Connect")(
        protocol_.data(), static_cast<std::uint32_t>(pipe_[1]), vendor_.data(), -1, 3, nullptr,
        nullptr, &link_status_, &record_, nullptr, nullptr, nullptr, nullptr);
  }
  std::int32_t Call(const char* name) { return Get<std::int32_t()>(name)(); }

  // Waits until something comes true, with a generous limit.
  static bool Eventually(const std::function<bool()>& condition) {
    const auto limit = std::chrono::steady_clock::now() + 20s;
    while (!condition()) {
      if (std::chrono::steady_clock::now() > limit) return false;
      std::this_thread::yield();
    }
    return true;
  }
  // The next status, or nothing within the limit.
  std::optional<std::int32_t> NextStatus(int milliseconds = 20000) {
    pollfd readable{pipe_[0], POLLIN, 0};
    if (poll(&readable, 1, milliseconds) != 1) return std::nullopt;
    std::int32_t status = 0;
    if (read(pipe_[0], &status, sizeof status) != sizeof status) return std::nullopt;
    return status;
  }
  bool StatusComes(std::int32_t wanted) {
    for (int i = 0; i < 50; ++i)
      if (const auto status = NextStatus(); !status || *status == wanted) return status.has_value();
    return false;
  }
  // What a socket gives until its other end is closed.
  static std::string AllFrom(int connection) {
    std::string text;
    char bytes[256];
    ssize_t count = 0;
    while ((count = recv(connection, bytes, sizeof bytes, 0)) > 0)
      text.append(bytes, static_cast<std::size_t>(count));
    return text;
  }
  std::string Contents(const char* file) {
    std::ifstream stream(folder_ / file);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }
  void Control(const std::string& text) {
    std::ofstream(folder_ / "control", std::ios::app) << text;
  }

  std::filesystem::path folder_;
  void* library_ = nullptr;
  int pipe_[2] = {-1, -1};
  ECUData record_ = {};
  LinkStatus link_status_ = {};
  std::array<char, 1024> protocol_ = {'-', '1'};
  std::array<char, 1024> vendor_ = {};
};

TEST_F(LibraryTest, ExportsEveryOperationOfTheContract) {
#define LORIMET32_CHECK(name, parameters, arguments) \
  EXPECT_NE(dlsym(library_, #name), nullptr) << #name;
  LORIMET32_OPERATIONS(LORIMET32_CHECK)
#undef LORIMET32_CHECK
}

TEST_F(LibraryTest, ReadsByItselfWhileItIsConnected) {
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(Call("Trailer_ABS_QOR_ReadStaticData"), 0);
  EXPECT_EQ(record_.nLinkJobDone.Load(), 0);
  EXPECT_TRUE(Eventually([&] { return link_status_.bLinkAttained.Load() != 0; }));
  EXPECT_TRUE(Eventually([&] { return record_.dSupplyPress.Load() > 100; }));
  EXPECT_TRUE(Eventually([&] { return record_.nLinkJobDone.Load() == 1; }));
  EXPECT_EQ(record_.bNumModulators.Load(), 2);
  EXPECT_EQ(NextStatus(), 0);
  EXPECT_EQ(Call("Disconnect"), 0);
}

TEST_F(LibraryTest, WritesAndPostsNothingOnceDisconnectHasReturned) {
  ASSERT_EQ(Connect(), 0);
  ASSERT_TRUE(StatusComes(0));
  ASSERT_EQ(Call("Disconnect"), 0);
  while (NextStatus(0)) {
  }
  record_.dSupplyPress.Store(3);
  EXPECT_EQ(NextStatus(1300), std::nullopt);
  EXPECT_EQ(record_.dSupplyPress.Load(), 3);
}

TEST_F(LibraryTest, IsSteeredByLinesAppendedToTheControlFile) {
  ASSERT_EQ(Connect(), 0);
  ASSERT_TRUE(StatusComes(0));
  Control("field dSupplyPress 42\ncable ");
  EXPECT_TRUE(Eventually([&] { return record_.dSupplyPress.Load() == 42; }));
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "1\n"; }));
  Control("out\n");
  EXPECT_TRUE(StatusComes(-100));
  Control("cable in\nnonsense\n");
  EXPECT_TRUE(StatusComes(0));
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "4\n"; }));
  EXPECT_EQ(Contents("control.errors"), "line 4: unknown command 'nonsense'\n");
  Control("report\n");
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "5\n"; }));
  EXPECT_NE(Contents("control.report").find("Connect 1\n"), std::string::npos);
  Call("Disconnect");
}

TEST_F(LibraryTest, TakesCommandsBeforeItConnects) {
  Control("failure no_adapter times=1\n");
  EXPECT_EQ(Connect(), 142);
  EXPECT_EQ(Connect(), 0);
}

TEST_F(LibraryTest, AnswersEachCommandWithItsNumberConnectedOrNot) {
  Control("get flag\nfly\n");
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "2\n"; }))
      << "nobody has called the library yet";
  EXPECT_EQ(Contents("control.answers"), "1 ok 2\n2 unknown command 'fly'\n");
  ASSERT_EQ(Connect(), 0);
  Control("flag 7\nget flag\n");
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "4\n"; }));
  EXPECT_EQ(Contents("control.answers"), "1 ok 2\n2 unknown command 'fly'\n3 ok\n4 ok 7\n");
  Control("after 0.1 supply lots\n");
  EXPECT_TRUE(Eventually(
      [&] { return Contents("control.errors").find("supply: 'lots'") != std::string::npos; }));
}

TEST_F(LibraryTest, ItsTimeRunsFromTheLoadingOn) {
  int asked = 0;
  const auto time = [&] {
    Control("get time\n");
    const std::string number = std::to_string(++asked) + " ok ";
    std::string answers;
    EXPECT_TRUE(Eventually([&] {
      answers = Contents("control.answers");
      return answers.find(number) != std::string::npos && answers.ends_with('\n');
    }));
    return std::stod(answers.substr(answers.find(number) + number.size()));
  };
  const double first = time();
  EXPECT_TRUE(Eventually([&] { return time() > first + 0.1; }));
}

TEST_F(LibraryTest, ItsTimeCanBeDriven) {
  const auto advance = [this](std::int32_t milliseconds) {
    Get<decltype(::SimulatorAdvance)>("SimulatorAdvance")(milliseconds);
  };
  const auto time = [&] {
    Control("get time\n");
    advance(0);
    const std::string answers = Contents("control.answers");
    return std::stod(answers.substr(answers.rfind("ok ") + 3));
  };
  ASSERT_EQ(Connect(), 0);
  const double begun = time();
  advance(300);
  EXPECT_EQ(NextStatus(0), 0) << "the first answer of the ECU";
  advance(3'600'000);
  EXPECT_NEAR(time() - begun, 3600.3, 0.001);
  while (NextStatus(0)) {
  }
  EXPECT_EQ(NextStatus(1300), std::nullopt) << "its own thread still makes time pass";
  EXPECT_NEAR(time() - begun, 3600.3, 0.001);
  Control("failure never_answer operation=Trailer_ABS_KWP_StartSession value=40 times=1\n");
  advance(0);
  EXPECT_EQ(Get<decltype(::Trailer_ABS_KWP_StartSession)>("Trailer_ABS_KWP_StartSession")(0x83), 1);
  EXPECT_NEAR(time() - begun, 3640.3, 0.001) << "a call that waits waits in the trailer's time";
}

TEST_F(LibraryTest, ASocketBesideTheControlFileServesOneWriterAtATime) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  const std::string name = folder_ / "control.socket";
  ASSERT_LT(name.size(), sizeof address.sun_path);
  name.copy(address.sun_path, name.size());
  int client = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  timeval limit = {20, 0};
  setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  const auto expect = [&](const std::string& text, const std::string& expected) {
    EXPECT_EQ(send(client, text.data(), text.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(text.size()));
    std::string answer;
    while (answer.size() < expected.size()) {
      char bytes[256];
      const ssize_t count = recv(client, bytes, sizeof bytes, 0);
      if (count <= 0) break;
      answer.append(bytes, static_cast<std::size_t>(count));
    }
    EXPECT_EQ(answer, expected);
  };
  expect("flag 9\nget fl", "1 ok\n");
  expect("ag\nfly\n", "2 ok 9\n3 unknown command 'fly'\n");
  const int other = socket(AF_UNIX, SOCK_STREAM, 0);
  setsockopt(other, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  ASSERT_EQ(connect(other, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(AllFrom(other), "0 somebody else has the trailer\n");
  close(other);
  expect("get flag\n", "4 ok 9\n");  // who had it keeps it
  close(client);
  client = socket(AF_UNIX, SOCK_STREAM, 0);
  setsockopt(client, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  ASSERT_EQ(connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  expect("get flag\n", "1 ok 9\n");  // and leaves it to the next
  Unload();
  EXPECT_FALSE(std::filesystem::exists(name));
  close(client);
}

TEST_F(LibraryTest, StartsAsTheScenarioOfTheEnvironment) {
  Unload();
  setenv("LORIMET32_SCENARIO", InSource("simulator/scenarios/healthy_2s1m.scenario").c_str(), 1);
  Load();
  ASSERT_EQ(Connect(), 0);
  Call("Trailer_ABS_QOR_ReadStaticData");
  EXPECT_TRUE(Eventually([&] { return record_.nLinkJobDone.Load() == 1; }));
  EXPECT_EQ(record_.bNumModulators.Load(), 1);
}

TEST_F(LibraryTest, SaysWhyAScenarioIsNotValid) {
  std::ofstream(folder_ / "broken") << "axles 3\naxles many\n";
  for (const auto& [file, text] :
       {std::pair("broken", "Scenario: line 2: 'many' is not a valid value"),
        std::pair("absent", "Scenario: the file '")}) {
    Unload();
    setenv("LORIMET32_SCENARIO", (folder_ / file).c_str(), 1);
    Load();
    EXPECT_EQ(Connect(), 200);
    std::string buffer(256, ' ');
    Get<decltype(::GetErrorText)>("GetErrorText")(200, buffer.data(), 256);
    EXPECT_TRUE(buffer.starts_with(text)) << buffer;
  }
}

TEST_F(LibraryTest, KeepsParametersBetweenTwoLivesAndIgnoresADamagedState) {
  const auto flag = [&] {
    std::array<std::uint8_t, 512> buffer = {};
    std::uint8_t count = 0;
    EXPECT_EQ(Get<decltype(::Trailer_OVG_ReadDataByLocId)>("Trailer_OVG_ReadDataByLocId")(
                  0x2A, &count, buffer.data()),
              0);
    return int{buffer[1]};
  };
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(flag(), 2);
  Control("flag 1\n");
  EXPECT_TRUE(Eventually([&] { return flag() == 1; }));
  Unload();  // without a disconnect: the library ends its thread and keeps the state itself
  EXPECT_NE(Contents("deep/state"), "");
  std::filesystem::remove(folder_ / "control");
  Load();
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(flag(), 1);
  Unload();
  std::ofstream(folder_ / "deep" / "state", std::ios::app) << "garbage";
  Load();
  ASSERT_EQ(Connect(), 0);
  EXPECT_EQ(flag(), 2);
}

TEST_F(LibraryTest, ALateAnswerDoesNotHoldUpTheReading) {
  Control("failure answer_late operation=FaultLock value=1.2 times=1\n");
  ASSERT_EQ(Connect(), 0);
  ASSERT_TRUE(StatusComes(0));
  EXPECT_EQ(Call("FaultLock"), 0);
  EXPECT_EQ(NextStatus(0), 0) << "health was posted while the call waited";
}

TEST_F(LibraryTest, APipeThatNobodyReadsOrThatIsFullDoesNoHarm) {
  signal(SIGPIPE, SIG_DFL);
  ASSERT_EQ(Connect(), 0);
  close(pipe_[0]);
  pipe_[0] = -1;
  for (int i = 0; i < 100; ++i) Control("post 5\n");
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "100\n"; }));
  EXPECT_EQ(Call("Disconnect"), 0);

  ASSERT_EQ(pipe(pipe_), 0);
  const std::string block(65536, 'x');
  fcntl(pipe_[1], F_SETFL, O_NONBLOCK);
  while (write(pipe_[1], block.data(), block.size()) > 0) {
  }
  fcntl(pipe_[1], F_SETFL, 0);  // from here a write would block
  ASSERT_EQ(Connect(), 0);
  Control("post 6\n");
  EXPECT_TRUE(Eventually([&] { return Contents("control.done") == "101\n"; }));
  EXPECT_EQ(Call("Disconnect"), 0);
}

TEST_F(LibraryTest, ConnectsAgainAndAgain) {
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(Connect(), 0);
    ASSERT_EQ(Connect(), 130);
    ASSERT_EQ(Call("Disconnect"), 0);
    ASSERT_EQ(Call("Disconnect"), 129);
  }
}

}  // namespace
}  // namespace lorimet::simulator

#endif
