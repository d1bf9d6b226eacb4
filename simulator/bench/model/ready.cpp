#include "simulator/bench/model/ready.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "simulator/trailer/defects.h"
#include "simulator/trailer/failure_modes.h"
#include "simulator/trailer/scenario.h"

namespace lorimet::bench {
namespace {

namespace fs = std::filesystem;

struct KnownTrailer {
  std::string_view file;
  const char* label;
};

// In the order in which they are offered.
constexpr KnownTrailer kTrailers[] = {
    {"healthy_4s2m", "Semi-trailer, 4S/2M"},
    {"healthy_2s2m", "Two axles, 2S/2M"},
    {"healthy_2s1m", "One axle, 2S/1M"},
    {"healthy_4s3m", "Three modulators, 4S/3M"},
    {"healthy_2m1m", "Draw-bar trailer, 2M+1M"},
    {"mechanical_4s2m", "Mechanical suspension, rear mounting"},
    {"weak_modulator", "Weak modulator"},
    {"leaking_supply", "Leaking reservoir"},
    {"crossed_redundancy", "Redundancy path blocked"},
    {"crossed_brake_lines", "Crossed brake lines"},
    {"swapped_sensors", "Exchanged sensor cables"},
    {"dead_lamp", "Dead warning lamp"},
    {"height_out_of_range", "Height sensor out of range"},
    {"calibration_refused", "Calibration refused"},
    {"flag_refused", "End-of-line flag refused"},
    {"faulty_4s2m", "Neglected, with faults"},
    {"bad_parameters", "Wrong parameters"},
    {"unhealthy_4s2m", "Link and ECU answer badly"},
    {"nobody_home", "The ECU tells nothing"},
    {"no_adapter", "No adapter"},
};

struct DefectWords {
  std::string_view name;
  const char* words;
};

constexpr DefectWords kDefectWords[] = {
    {"supply_leak", "Reservoir leaks"},
    {"lines_swapped", "Supply and control hoses exchanged"},
    {"control_residual", "Residual control pressure"},
    {"control_leak", "Control line leaks"},
    {"control_sensor", "Control pressure sensor"},
    {"supply_sensor", "Supply pressure sensor"},
    {"bellows_sensor", "Bellows pressure sensor"},
    {"bellows", "Bellows burst"},
    {"modulator", "Modulator"},
    {"pressure_sensor", "Brake pressure sensor"},
    {"redundancy", "Redundancy path"},
    {"brake_lines", "Brake lines crossed"},
    {"wire", "Sensor cables exchanged"},
    {"sensor", "Wheel sensor"},
    {"wheel", "Wheel without brake"},
    {"mode_ignored", "Brake mode ignored"},
    {"load_ignored", "Load ignored"},
    {"lamp", "Warning lamp dead"},
    {"height_sensor", "Height sensor unplugged"},
    {"stop_lights", "Stop lights dead"},
};

std::vector<fs::path> ScenarioFiles(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
    if (at->path().extension() == ".scenario") files.push_back(at->path());
  std::ranges::sort(files);
  return files;
}

Ready TrailerOf(const std::string& label, const fs::path& file) {
  return {label, "scenario \"" + file.string() + "\""};
}

template <typename Facts>
std::vector<std::string_view> Names(const Facts& table) {
  std::vector<std::string_view> names;
  names.reserve(std::size(table));
  for (const auto& facts : table) names.push_back(facts.name);
  return names;
}

}  // namespace

std::vector<Ready> ReadyTrailers(const std::vector<fs::path>& folders) {
  for (const fs::path& folder : folders) {
    std::vector<fs::path> files = ScenarioFiles(folder);
    if (files.empty()) continue;
    std::vector<Ready> trailers;
    for (const KnownTrailer& known : kTrailers) {
      const auto file = std::ranges::find(
          files, known.file, [](const fs::path& path) { return path.stem().string(); });
      if (file == files.end()) continue;
      trailers.push_back(TrailerOf(known.label, *file));
      files.erase(file);
    }
    for (const fs::path& file : files) trailers.push_back(TrailerOf(file.stem().string(), file));
    return trailers;
  }
  return {};
}

const std::vector<Ready>& ReadyDefects() {
  static const std::vector<Ready> defects = {
      {"Modulator H1 dead", "defect modulator H1 dead"},
      {"Modulator H2 weak", "defect modulator H2 weak=0.8"},
      {"Reservoir leaks", "defect supply_leak 2.5"},
      {"Control line leaks", "defect control_leak 2.5"},
      {"Residual control pressure", "defect control_residual 4"},
      {"Supply and control hoses exchanged", "defect lines_swapped"},
      {"Bellows burst", "defect bellows burst"},
      {"Redundancy path of H2 blocked", "defect redundancy H2 blocked"},
      {"Brake lines crossed", "defect brake_lines crossed"},
      {"Sensor cables c and d exchanged", "defect wire c d"},
      {"Sensor c without signal", "defect sensor c open"},
      {"Sensor d with too wide a gap", "defect sensor d gap=0.4"},
      {"Pressure sensor H1 reads too high", "defect pressure_sensor H1 offset=4"},
      {"Warning lamp dead", "defect lamp dead"},
      {"Height sensor unplugged", "defect height_sensor open"},
      {"Stop lights dead", "defect stop_lights dead"},
  };
  return defects;
}

std::string WordsOfDefect(std::string_view name) {
  const auto* row = std::ranges::find(kDefectWords, name, &DefectWords::name);
  return row == std::end(kDefectWords) ? std::string(name) : row->words;
}

const std::vector<Ready>& ReadyFailures() {
  static const std::vector<Ready> failures = [] {
    std::vector<Ready> rows = {
        {"ECU refuses the session", "failure refuse operation=Trailer_ABS_KWP_StartSession"},
        {"ECU refuses the brake modes", "failure refuse routine=0x37"},
        {"ECU refuses the lamp test", "failure refuse routine=0x07"},
        {"End-of-line flag cannot be written", "failure write_refused block=0x2A"},
        {"Faults cannot be cleared", "failure clear_refused"},
        {"ECU does not restart", "failure reset_refused"},
        {"Messages are lost", "failure lost_message"},
        {"Identity is never read", "failure static_read_never_ends"},
    };
    for (const simulator::FailureFacts& facts : simulator::FailureTable())
      rows.push_back({std::string(facts.name), "failure " + std::string(facts.name)});
    return rows;
  }();
  return failures;
}

std::vector<std::string> Completions() {
  std::vector<std::string> lines;
  for (const simulator::CommandFacts& facts : simulator::Commands())
    if (!facts.builds) lines.emplace_back(facts.word);
  const auto add = [&lines](const std::string& word, const auto& names) {
    for (const std::string_view name : names) lines.push_back(word + " " + std::string(name));
  };
  add("get", Names(simulator::SeenTable()));
  for (const char* word : {"defect", "repair"}) add(word, Names(simulator::DefectTable()));
  for (const char* word : {"failure", "heal"}) add(word, Names(simulator::FailureTable()));
  std::ranges::sort(lines);
  return lines;
}

std::string UsageOf(std::string_view line) {
  const std::string_view word = line.substr(0, line.find(' '));
  const std::string_view rest = line.substr(std::min(line.size(), word.size() + 1));
  const std::string_view name = rest.substr(0, rest.find(' '));
  const auto told = [](const std::string& text, std::string_view usage) {
    return usage.empty() ? text : text + " " + std::string(usage);
  };
  if (word == "defect")
    for (const simulator::DefectFacts& facts : simulator::DefectTable())
      if (facts.name == name) return told("defect " + std::string(name), facts.usage);
  if (word == "get")
    for (const simulator::SeenFacts& facts : simulator::SeenTable())
      if (facts.name == name) return told("get " + std::string(name), facts.usage);
  for (const simulator::CommandFacts& facts : simulator::Commands())
    if (facts.word == word && !facts.builds) return told(std::string(word), facts.usage);
  return {};
}

}  // namespace lorimet::bench
