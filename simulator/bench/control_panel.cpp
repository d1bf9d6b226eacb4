#include "simulator/bench/control_panel.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

namespace lorimet::bench {
namespace {

constexpr double kPumpStroke = 5;    // psi
constexpr double kMostSupply = 120;  // psi that pumping reaches
constexpr int kFullPedal = 120;      // psi
constexpr int kTestPedal = 90;       // psi that the redundancy test is content with
constexpr int kHandSpeed = 7;        // mph
constexpr int kMostLever = 30;       // degrees
constexpr int kHorizontal = 1310;    // counts of the height sensor
constexpr double kCountsPerDegree = 11.5;
constexpr int kBesideWords = 6;  // pixels, for words that are bold while they hold
constexpr int kMoving = 500;     // ms in which a slider that was moved is left alone

std::string Number(double value) { return QString::number(value, 'f', 1).toStdString(); }

void SetChecked(QCheckBox* box, bool checked) {
  const QSignalBlocker quiet(box);
  box->setChecked(checked);
}

}  // namespace

ControlPanel::ControlPanel(Texts& texts, std::vector<Ready> trailers, Command do_command,
                           QWidget* parent)
    : QWidget(parent), texts_(texts), trailers_(std::move(trailers)), do_(std::move(do_command)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  MakeAir();
  MakeWheels();
  MakeTrailer();
  MakeSwitches();
  MakeTroubles();
  column->addStretch();
}

// --- The parts -----------------------------------------------------------------------------------

QGridLayout* ControlPanel::Group(const char* title) {
  auto* box = new QGroupBox(this);
  auto* grid = new QGridLayout(box);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  grid->setContentsMargins(8, 6, 8, 8);
  grid->setColumnStretch(1, 1);
  texts_.Bind([this, box, title] { box->setTitle(texts_.Translate(title)); });
  layout()->addWidget(box);
  return grid;
}

QLabel* ControlPanel::Caption(const char* key, QWidget* buddy) {
  auto* label = new QLabel(this);
  label->setBuddy(buddy);
  texts_.Bind([this, label, key] { label->setText(texts_.Translate(key)); });
  return label;
}

QPushButton* ControlPanel::Button(const char* name, const char* key, std::function<void()> act) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, std::move(act));
  texts_.Bind([this, button, key] {
    button->setText(texts_.Translate(key));
    // The style's least width is made for dialogs; a button's own words are the least here.
    const int words = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    button->setStyleSheet(QStringLiteral("min-width: %1px;").arg(words + kBesideWords));
  });
  return button;
}

QCheckBox* ControlPanel::Switch(const char* name, const char* key, const char* on,
                                const char* off) {
  auto* box = new QCheckBox(this);
  box->setObjectName(QLatin1String(name));
  connect(box, &QCheckBox::clicked, this,
          [this, on, off](bool checked) { do_(checked ? on : off); });
  texts_.Bind([this, box, key] { box->setText(texts_.Translate(key)); });
  return box;
}

QComboBox* ControlPanel::Choice(const char* name, const char* key, const std::vector<Ready>* rows) {
  auto* box = new QComboBox(this);
  box->setObjectName(QLatin1String(name));
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(6);
  for (const Ready& row : *rows)
    box->addItem(QString(), QVariant(QString::fromStdString(row.command)));
  texts_.Bind([this, box, key, rows] {
    box->setAccessibleName(texts_.Translate(key));
    for (std::size_t i = 0; i < rows->size(); ++i) {
      const int index = static_cast<int>(i);
      box->setItemText(index, texts_.Translate((*rows)[i].label));
      box->setItemData(index, QString::fromStdString((*rows)[i].command), Qt::ToolTipRole);
    }
    box->view()->setMinimumWidth(box->view()->sizeHintForColumn(0) +
                                 box->view()->verticalScrollBar()->sizeHint().width());
  });
  return box;
}

QSlider* ControlPanel::Slider(const char* name, const char* key, int low, int high) {
  auto* slider = new QSlider(Qt::Horizontal, this);
  slider->setObjectName(QLatin1String(name));
  slider->setRange(low, high);
  slider->setPageStep(10);
  slider->setMinimumWidth(80);
  connect(slider, &QSlider::valueChanged, this, [this] { moved_.start(); });
  texts_.Bind([this, slider, key] { slider->setAccessibleName(texts_.Translate(key)); });
  return slider;
}

// --- The groups ----------------------------------------------------------------------------------

void ControlPanel::MakeTrailer() {
  QGridLayout* grid = Group("Trailer");
  trailer_ = Choice("cmbTrailer", "Choose a trailer", &trailers_);
  trailer_->setPlaceholderText(QStringLiteral("-"));
  trailer_->setCurrentIndex(-1);
  connect(trailer_, &QComboBox::activated, this,
          [this](int index) { do_(trailer_->itemData(index).toString().toStdString()); });
  grid->addWidget(Caption("&Trailer:", trailer_), 0, 0);
  grid->addWidget(trailer_, 0, 1, 1, 2);
  unladen_ = Button("cmdUnladen", "&Unladen", [this] { do_("load unladen"); });
  laden_ = Button("cmdLaden", "&Laden", [this] { do_("load laden"); });
  for (QPushButton* button : {unladen_, laden_}) button->setCheckable(true);
  places_[Deed::kUnload] = unladen_;
  grid->setColumnStretch(2, 1);
  grid->addWidget(Caption("Load:", unladen_), 1, 0);
  grid->addWidget(unladen_, 1, 1);
  grid->addWidget(laden_, 1, 2);
}

void ControlPanel::MakeAir() {
  QGridLayout* grid = Group("Air and pedal");
  auto* pump = Button("cmdPump", "&Pump", [this] { Pump(kPumpStroke); });
  auto* bleed = Button("cmdBleed", "&Bleed", [this] { Pump(-kPumpStroke); });
  for (QPushButton* button : {pump, bleed}) button->setAutoRepeat(true);
  places_[Deed::kFill] = pump;
  grid->setColumnStretch(2, 1);
  grid->addWidget(Caption("Reservoir:", pump), 0, 0);
  grid->addWidget(pump, 0, 1);
  grid->addWidget(bleed, 0, 2);
  pedal_ = Slider("sldPedal", "Pedal, psi", 0, kFullPedal);
  connect(pedal_, &QSlider::valueChanged, this,
          [this](int psi) { do_("press demand " + std::to_string(psi)); });
  pedal_value_ = new QLabel(this);
  auto* press = Button("cmdPress", "Press &90",
                       [this] { do_("press demand " + std::to_string(kTestPedal)); });
  auto* release = Button("cmdRelease", "&Release", [this] { do_("press demand 0"); });
  places_[Deed::kPressPedal] = press;
  places_[Deed::kReleasePedal] = release;
  grid->addWidget(Caption("P&edal:", pedal_), 1, 0);
  grid->addWidget(pedal_, 1, 1, 1, 2);
  grid->addWidget(pedal_value_, 1, 3);
  grid->addWidget(press, 2, 1);
  grid->addWidget(release, 2, 2);
}

void ControlPanel::MakeWheels() {
  QGridLayout* grid = Group("Wheels and lever");
  hand_speed_ = new QSpinBox(this);
  hand_speed_->setObjectName(QStringLiteral("spnHand"));
  hand_speed_->setRange(1, 40);
  hand_speed_->setValue(kHandSpeed);
  hand_speed_->setSuffix(QStringLiteral(" mph"));
  auto* hint = Caption("Click a wheel, or press 1 to 6.", nullptr);
  grid->addWidget(Caption("&Hand:", hand_speed_), 0, 0);
  grid->addWidget(hand_speed_, 0, 1);
  parking_brake_ =
      Switch("chkParkingBrake", "Par&king brake", "parking_brake on", "parking_brake off");
  places_[Deed::kReleaseParkingBrake] = parking_brake_;
  grid->addWidget(parking_brake_, 0, 2, 1, 2);
  grid->addWidget(hint, 1, 0, 1, 4);
  lever_ = Slider("sldLever", "Height lever, degrees", -kMostLever, kMostLever);
  connect(lever_, &QSlider::valueChanged, this,
          [this](int degrees) { do_("lever " + std::to_string(degrees)); });
  lever_value_ = new QLabel(this);
  level_ = Button("cmdLevel", "Level", [this] { do_("lever 0"); });
  places_[Deed::kLevel] = level_;
  grid->addWidget(Caption("Le&ver:", lever_), 2, 0);
  grid->addWidget(lever_, 2, 1);
  grid->addWidget(lever_value_, 2, 2);
  grid->addWidget(level_, 2, 3);
}

void ControlPanel::MakeSwitches() {
  QGridLayout* grid = Group("Switches and plugs");
  power_ = Switch("chkPower", "P&ower", "power on", "power off");
  cable_ = Switch("chkCable", "C&able", "cable in", "cable out");
  adapter_ = Switch("chkAdapter", "A&dapter", "adapter on", "adapter off");
  places_[Deed::kSwitchPower] = power_;
  places_[Deed::kPlugCable] = cable_;
  places_[Deed::kSwitchAdapter] = adapter_;
  compressor_ = Switch("chkCompressor", "&Compressor", "compressor on", "compressor off");
  grid->addWidget(power_, 0, 0, Qt::AlignLeft);
  grid->addWidget(compressor_, 0, 1, Qt::AlignLeft);
  grid->addWidget(cable_, 1, 0, Qt::AlignLeft);
  grid->addWidget(adapter_, 1, 1, Qt::AlignLeft);
  grid->setColumnStretch(0, 1);
}

void ControlPanel::MakeTroubles() {
  QGridLayout* grid = Group("What goes wrong");
  const auto chosen = [](const QComboBox* box) {
    return box->currentData().toString().toStdString();
  };
  defect_ = Choice("cmbDefect", "Defect of the trailer", &ReadyDefects());
  grid->addWidget(Caption("De&fect:", defect_), 0, 0);
  grid->addWidget(defect_, 0, 1);
  grid->addWidget(Button("cmdBreak", "Break", [this, chosen] { do_(chosen(defect_)); }), 0, 2);
  defects_ = Standing("lblDefects");
  grid->addWidget(defects_, 1, 0, 1, 2);
  grid->addWidget(Button("cmdMend", "Mend all", [this] { do_("repair all"); }), 1, 2);
  failure_ = Choice("cmbFailure", "Failure of the link", &ReadyFailures());
  grid->addWidget(Caption("L&ink:", failure_), 2, 0);
  grid->addWidget(failure_, 2, 1);
  grid->addWidget(Button("cmdFail", "Fail", [this, chosen] { do_(chosen(failure_)); }), 2, 2);
  failures_ = Standing("lblFailures");
  grid->addWidget(failures_, 3, 0, 1, 2);
  grid->addWidget(Button("cmdHeal", "Heal all", [this] { do_("heal all"); }), 3, 2);
  const auto number = [this](const char* name, const char* key, int high, int value) {
    auto* box = new QSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setRange(0, high);
    box->setValue(value);
    box->setPrefix(QLatin1String(key) + QLatin1Char(' '));
    box->setAccessibleName(QLatin1String(key));
    return box;
  };
  sid_ = number("spnSid", "SID", 255, 3);
  fmi_ = number("spnFmi", "FMI", 31, 5);
  auto* numbers = new QHBoxLayout;
  numbers->addWidget(sid_);
  numbers->addWidget(fmi_);
  const auto fault = [this](const char* state) {
    do_("fault " + std::to_string(sid_->value()) + " " + std::to_string(fmi_->value()) + state);
  };
  grid->addLayout(numbers, 4, 0, 1, 2);
  grid->addWidget(Button("cmdFault", "Raise", [fault] { fault(" active"); }), 4, 2);
  faults_ = Standing("lblFaults");
  grid->addWidget(faults_, 5, 0, 1, 2);
  grid->addWidget(Button("cmdFaultGone", "Cause gone", [fault] { fault(" gone"); }), 5, 2);
  texts_.Bind([this] { ShowTroubles(); });
}

// What stands wrong now, beside what ends it.
QLabel* ControlPanel::Standing(const char* name) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

void ControlPanel::Pump(double psi) {
  do_("supply " +
      Number(std::clamp(sight_.supply + psi, 0.0, std::max(kMostSupply, sight_.supply))));
}

// A slider that is being moved is ahead of what is seen.
void ControlPanel::Follow(QSlider* slider, int value) const {
  if (slider->isSliderDown() || !moved_.hasExpired(kMoving) || slider->value() == value) return;
  const QSignalBlocker quiet(slider);
  slider->setValue(value);
}

// --- What is seen --------------------------------------------------------------------------------

void ControlPanel::Show(const Sight& sight, const Advice& advice, bool there) {
  const bool other_trailer = sight.scenario != sight_.scenario;
  sight_ = sight;
  setEnabled(there);
  if (other_trailer) ShowTrailer();
  SetChecked(compressor_, sight.compressor);
  SetChecked(parking_brake_, sight.parking_brake);
  SetChecked(power_, sight.power);
  SetChecked(cable_, sight.cable);
  SetChecked(adapter_, sight.adapter);
  unladen_->setChecked(sight.load <= 0);
  laden_->setChecked(sight.load >= 1);
  Follow(pedal_, static_cast<int>(std::lround(sight.pedal)));
  pedal_value_->setText(QStringLiteral("%1 psi").arg(sight.pedal, 0, 'f', 0));
  for (QWidget* of_lever : std::initializer_list<QWidget*>{lever_, lever_value_, level_})
    of_lever->setEnabled(!sight.air);
  const double degrees = sight.height ? (*sight.height - kHorizontal) / kCountsPerDegree : 0;
  Follow(lever_, static_cast<int>(std::lround(degrees)));
  lever_value_->setText(sight.height ? QStringLiteral("%1\u00B0").arg(degrees, 0, 'f', 0)
                                     : QStringLiteral("-"));
  ShowTroubles();
  Mark(there ? advice.deed : Deed::kNothing);
}

void ControlPanel::ShowTrailer() {
  const QString quoted =
      QStringLiteral("scenario \"%1\"").arg(QString::fromStdString(sight_.scenario));
  const QSignalBlocker quiet(trailer_);
  // The library's own trailer is the first one.
  trailer_->setCurrentIndex(sight_.scenario == "none" ? 0 : trailer_->findData(quoted));
}

QString ControlPanel::DefectsInWords() const {
  if (sight_.defects.empty() || sight_.defects == "none") return QStringLiteral("-");
  QStringList words;
  const QString names = QString::fromStdString(sight_.defects);
  for (const QString& name : names.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    words << texts_.Translate(WordsOfDefect(name.toStdString()));
  return words.join(QStringLiteral(", "));
}

void ControlPanel::ShowTroubles() {
  const auto told = [this](const char* key, const std::string& names) {
    return texts_.Translate(key).arg(
        names.empty() || names == "none" ? QStringLiteral("-") : QString::fromStdString(names));
  };
  const auto show = [](QLabel* label, const QString& text) {
    label->setText(text);
    label->setToolTip(text);
  };
  show(defects_, texts_.Translate("Defects: %1").arg(DefectsInWords()));
  show(failures_, told("Link failures: %1", sight_.failures));
  show(faults_, texts_.Translate("Faults in the ECU: %1").arg(sight_.faults));
}

void ControlPanel::Mark(Deed deed) {
  if (deed == marked_) return;
  for (const Deed each : {marked_, deed}) {
    const auto place = places_.find(each);
    if (place == places_.end()) continue;
    place->second->setProperty("advised", each == deed);
    place->second->style()->unpolish(place->second);
    place->second->style()->polish(place->second);
  }
  marked_ = deed;
  if (const auto place = places_.find(deed); place != places_.end() && on_advised)
    on_advised(place->second);
}

}  // namespace lorimet::bench
