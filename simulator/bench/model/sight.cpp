#include "simulator/bench/model/sight.h"

#include <charconv>
#include <cmath>
#include <functional>
#include <utility>

namespace lorimet::bench {
namespace {

using Taker = std::function<void(Sight&, bool, const std::string&)>;

// 0 for what is no number.
double Number(const std::string& text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && std::isfinite(number) ? number : 0;
}

int Whole(const std::string& text) { return static_cast<int>(std::lround(Number(text))); }

Taker Into(double Sight::*field) {
  return [field](Sight& sight, bool, const std::string& value) { sight.*field = Number(value); };
}
Taker Into(int Sight::*field) {
  return [field](Sight& sight, bool, const std::string& value) { sight.*field = Whole(value); };
}
Taker Into(std::string Sight::*field) {
  return [field](Sight& sight, bool, const std::string& value) { sight.*field = value; };
}
Taker Into(bool Sight::*field, std::string yes) {
  return [field, yes = std::move(yes)](Sight& sight, bool, const std::string& value) {
    sight.*field = value == yes;
  };
}

struct Row {
  std::string name;
  Taker take;
};

void AddWheel(std::vector<Row>& rows, std::size_t i) {
  const std::string wheel = "wheel " + std::to_string(i + 1) + " ";
  rows.push_back({wheel + "speed", [i](Sight& sight, bool ok, const std::string& value) {
                    sight.wheels[i].present = ok;
                    sight.wheels[i].speed = ok ? Number(value) : 0;
                  }});
  rows.push_back({wheel + "brake", [i](Sight& sight, bool ok, const std::string& value) {
                    sight.wheels[i].brake = ok ? Number(value) : 0;
                  }});
  rows.push_back({wheel + "turnable", [i](Sight& sight, bool ok, const std::string& value) {
                    sight.wheels[i].turnable = ok && value == "yes";
                  }});
  rows.push_back({wheel + "sensor", [i](Sight& sight, bool ok, const std::string& value) {
                    sight.wheels[i].sensor = ok && value.size() == 1 ? value.front() : char{0};
                  }});
}

std::vector<Row> MakeRows() {
  std::vector<Row> rows = {
      {"time", Into(&Sight::time)},
      {"scenario", Into(&Sight::scenario)},
      {"configuration", Into(&Sight::configuration)},
      {"suspension", Into(&Sight::air, "air")},
      {"mounting", Into(&Sight::rear_mounted, "rear")},
      {"connection", Into(&Sight::connection, "on")},
      {"adapter", Into(&Sight::adapter, "on")},
      {"cable", Into(&Sight::cable, "in")},
      {"power", Into(&Sight::power, "on")},
      {"compressor", Into(&Sight::compressor, "on")},
      {"parking_brake", Into(&Sight::parking_brake, "on")},
      {"ecu", Into(&Sight::ecu)},
      {"volts", Into(&Sight::volts)},
      {"supply", Into(&Sight::supply)},
      {"pedal", Into(&Sight::pedal)},
      {"control_line", Into(&Sight::control_line)},
      {"bellows", Into(&Sight::bellows)},
      {"load", Into(&Sight::load)},
      {"speed", Into(&Sight::speed)},
      {"mode", Into(&Sight::mode)},
      {"lamp lit", Into(&Sight::lamp, "on")},
      {"stop_lights", Into(&Sight::stop_lights, "on")},
      {"calibrated", Into(&Sight::calibrated, "yes")},
      {"flag", Into(&Sight::flag)},
      {"faults", Into(&Sight::faults)},
      {"defects", Into(&Sight::defects)},
      {"failures", Into(&Sight::failures)},
      {"told", Into(&Sight::told)},
      {"height",
       [](Sight& sight, bool ok, const std::string& value) {
         sight.height.reset();
         if (ok && value != "none") sight.height = Whole(value);
       }},
  };
  for (std::size_t i = 0; i < 3; ++i)
    rows.push_back({"h" + std::to_string(i + 1), [i](Sight& sight, bool, const std::string& value) {
                      sight.modulators[i] = Number(value);
                    }});
  for (std::size_t i = 0; i < kWheels; ++i) AddWheel(rows, i);
  return rows;
}

const std::vector<Row>& Rows() {
  static const std::vector<Row> rows = MakeRows();
  return rows;
}

}  // namespace

int Sight::Modulators() const {
  if (configuration.ends_with("1M") && !configuration.starts_with("2M")) return 1;
  return configuration.ends_with("/2M") ? 2 : 3;
}

const std::vector<std::string>& SightNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> result;
    for (const Row& row : Rows()) result.push_back(row.name);
    return result;
  }();
  return names;
}

void TakeSight(Sight& sight, std::size_t index, bool ok, const std::string& value) {
  Rows()[index].take(sight, ok, value);
}

}  // namespace lorimet::bench
