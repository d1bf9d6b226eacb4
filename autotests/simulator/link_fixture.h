// A link over a simulated trailer in virtual time, connected to a record of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "session/ecu_data.h"
#include "simulator/library/error_texts.h"
#include "simulator/library/link.h"

namespace lorimet::simulator {

class LinkFixture : public testing::Test {
 protected:
  // Takes another trailer; the connection of the one before is gone.
  void Start(std::string_view scenario) {
    link_ = std::make_unique<Link>(scenario, [this](std::int32_t s) { statuses_.push_back(s); });
    statuses_.clear();
  }

  std::int32_t Connect() {
    return link_->Connect(protocol_.data(), 7, vendor_.data(), -1, 3, nullptr, nullptr,
                          &link_status_, &record_, nullptr, nullptr, nullptr, nullptr);
  }

  // Connects, lets the static read end and the lamp check pass.
  void ConnectAndRead(std::string_view scenario = {}) {
    Start(scenario);
    ASSERT_EQ(Connect(), 0);
    ASSERT_EQ(link_->Trailer_ABS_QOR_ReadStaticData(), 0);
    link_->Advance(2.5);
    ASSERT_EQ(record_.nLinkJobDone.Load(), 1);
    statuses_.clear();
  }

  std::int32_t Access(std::uint8_t flag) {
    std::array<std::uint8_t, 4> data = {0, 0, flag, 0};
    return link_->Trailer_ABS_KWP_StartRoutineByLocId(0x42, 4, data.data());
  }
  void OpenParameters() {
    ASSERT_EQ(link_->Trailer_ABS_KWP_StartSession(0x83), 0);
    ASSERT_EQ(link_->Trailer_ABS_KWP_Password(), 0);
    ASSERT_EQ(Access(1), 0);
  }
  std::int32_t Routine(std::uint8_t id, std::vector<std::uint8_t> data) {
    return link_->Trailer_ABS_KWP_StartRoutineByLocId(id, static_cast<std::uint8_t>(data.size()),
                                                      data.data());
  }
  std::int32_t Write(std::uint8_t id, std::vector<std::uint8_t> data) {
    return link_->Trailer_ABS_KWP_WriteMemoryByLocId(id, static_cast<std::uint8_t>(data.size()),
                                                     data.data());
  }
  // Reads into buffer_ and count_.
  std::int32_t Read(std::uint8_t id) {
    buffer_.fill(0xA5);
    count_ = 0;
    return link_->Trailer_OVG_ReadDataByLocId(id, &count_, buffer_.data());
  }

  std::unique_ptr<Link> link_ = std::make_unique<Link>();
  ECUData record_ = {};
  LinkStatus link_status_ = {};
  std::vector<std::int32_t> statuses_;
  std::array<char, 1024> protocol_ = {'-', '1'};
  std::array<char, 1024> vendor_ = {};
  std::array<std::uint8_t, 512> buffer_ = {};
  std::uint8_t count_ = 0;
};

}  // namespace lorimet::simulator
