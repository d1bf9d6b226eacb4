#include "monitor/frmBusMonitor.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "monitor/bus_monitor.h"
#include "support/dictionary.h"
#include "support/text.h"

namespace lorimet {
namespace {

constexpr int kInterval = 500;       // ms
constexpr int kMostPasses = 101;     // messages that one tick takes
constexpr double kTwipsAPoint = 24;  // of a line, for each point of the font

// One message is one line, whatever the library puts into it.
std::string OneLine(std::string_view text) {
  std::string line(text.substr(0, text.find_last_not_of(' ') + 1));
  std::ranges::replace_if(
      line, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
  return line;
}

bool HasPlace(const Control& control) {
  return control.Kind() != ControlKind::kTimer && control.Kind() != ControlKind::kMenuItem;
}

}  // namespace

frmBusMonitor::frmBusMonitor(Desktop& desktop, Dictionary& dictionary, BusMonitor& monitor,
                             Form& options)
    : Form(desktop, "frmBusMonitor"), dictionary_(dictionary), monitor_(monitor) {
  help_page = "bus_monitor.html";
  tmrUpdateMonitor.on_tick = [this] { Tick(); };
  cmdDatalog.on_click = [this] { bRecording_ == 0 ? StartRecord() : StopRecord(); };
  cmdOptions.on_click = [this, &options] { options.Show(Modality::kModal, this); };
  cmdExit.on_click = [this] { Unload(); };
}

void frmBusMonitor::OnLoad() {
  dictionary_.TranslateForm(*this);
  LayOut();
  nCurrentLine_ = 0;
  bRecording_ = 0;
  ticking_ = false;
  strLines_.assign(static_cast<std::size_t>(UpperIndex()) + 1, "");
  BuildControlTable();
  CenterOnScreen();
  cmdPause.SetEnabled(false);
  monitor_.MonitorOpen();
  tmrUpdateMonitor.SetInterval(kInterval);
  tmrUpdateMonitor.SetEnabled(true);
}

// As many lines as the box can show.
int frmBusMonitor::UpperIndex() const {
  const Placement& place = txtMonitor.Place();
  const auto line = static_cast<int>(std::nearbyint(kTwipsAPoint * place.font_size));
  return std::clamp(place.height / std::max(line, 1), 0, int{INT16_MAX} - 1);
}

void frmBusMonitor::BuildControlTable() {
  control_table_.clear();
  const auto width = static_cast<float>(Width());
  const auto height = static_cast<float>(Height());
  for (Control* control : Controls()) {
    if (!HasPlace(*control)) continue;
    const Placement& place = control->Place();
    control_table_.push_back(
        {control, static_cast<float>(place.left) / width, static_cast<float>(place.top) / height,
         static_cast<float>(place.width) / width, static_cast<float>(place.height) / height,
         static_cast<float>(place.font_size) / height});
  }
}

void frmBusMonitor::PlaceControls() {
  const auto width = static_cast<float>(Width());
  const auto height = static_cast<float>(Height());
  const auto whole = [](float twips) { return static_cast<int>(std::nearbyint(twips)); };
  for (const ControlShare& share : control_table_)
    share.control->SetPlace({whole(share.left * width), whole(share.top * height),
                             whole(share.width * width), whole(share.height * height),
                             static_cast<double>(share.font_size * height)});
}

void frmBusMonitor::OnResize() {
  tmrUpdateMonitor.SetEnabled(false);
  if (Minimized()) return;
  PlaceControls();
  strLines_.resize(static_cast<std::size_t>(UpperIndex()) + 1);
  nCurrentLine_ = std::min(nCurrentLine_, static_cast<std::int16_t>(UpperIndex()));
  tmrUpdateMonitor.SetEnabled(true);
}

void frmBusMonitor::Tick() {
  // The report of a run-time error stands while the timer goes on.
  if (ticking_) return;
  ticking_ = true;
  for (int pass = 0; pass < kMostPasses && TakeMessage(); ++pass) ShowLines();
  ticking_ = false;
}

bool frmBusMonitor::TakeMessage() {
  std::string text;
  std::string timing;
  monitor_.MonitorGetData(text, timing);
  if (!Loaded() || text == std::string(BusMonitor::kText, ' ')) return false;
  const auto current = static_cast<std::size_t>(nCurrentLine_);
  strLines_[current] = OneLine(text);
  // What comes with a message is the gap that ended with it.
  if (current != 0) strLines_[current - 1] += OneLine(timing);
  // The last element keeps its value, so a full box ends with the newest line twice.
  if (current + 1 == strLines_.size())
    std::copy(strLines_.begin() + 1, strLines_.end(), strLines_.begin());
  return true;
}

void frmBusMonitor::ShowLines() {
  const auto shown = static_cast<std::size_t>(nCurrentLine_) + 1;
  std::string all;
  for (std::size_t i = 0; i < shown; ++i) all += "  " + strLines_[i] + kCrLf;
  txtMonitor.SetText(all);
  if (shown != strLines_.size()) ++nCurrentLine_;
}

void frmBusMonitor::StartRecord() {
  if (monitor_.MonitorStartRecord()) return;
  bRecording_ = 1;
  cmdDatalog.SetCaption(dictionary_.Translate("St&op Record"));
  SetCaption(dictionary_.Translate("Bus Monitor:") + " " + monitor_.GetDatalogInfo().file);
  cmdOptions.SetEnabled(false);
}

void frmBusMonitor::StopRecord() {
  if (monitor_.MonitorStopRecord()) return;
  bRecording_ = 0;
  cmdDatalog.SetCaption(dictionary_.Translate("St&art Record"));
  SetCaption(dictionary_.Translate("Bus Monitor"));
  cmdOptions.SetEnabled(true);
}

void frmBusMonitor::OnUnload() {
  // The close-down has stopped the recording and ended the link, and with it the monitor.
  const bool has_link = GetDesktop().life.Open();
  if (bRecording_ == 1 && has_link) monitor_.MonitorStopRecord();
  tmrUpdateMonitor.SetInterval(0);
  tmrUpdateMonitor.SetEnabled(false);
  if (has_link) monitor_.MonitorClose();
}

}  // namespace lorimet
