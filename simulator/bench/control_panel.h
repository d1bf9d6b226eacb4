// What a person does to the trailer, at first sight: air, pedal, load, wheels, switches, and what
// goes wrong.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <map>
#include <vector>

#include "simulator/bench/model/advice.h"
#include "simulator/bench/model/ready.h"
#include "simulator/bench/texts.h"

namespace lorimet::bench {

class ControlPanel : public QWidget {
 public:
  using Command = std::function<void(const std::string&)>;

  // do_command: carries out a line of the command language.
  ControlPanel(Texts& texts, std::vector<Ready> trailers, Command do_command,
               QWidget* parent = nullptr);

  void Show(const Sight& sight, const Advice& advice, bool there);
  // The place of what the person is to do has changed.
  std::function<void(QWidget* place)> on_advised;
  // The speed that a hand gives a wheel, mph.
  int HandSpeed() const { return hand_speed_->value(); }

 private:
  QGridLayout* Group(const char* title);
  QLabel* Caption(const char* key, QWidget* buddy);
  QPushButton* Button(const char* name, const char* key, std::function<void()> act);
  QCheckBox* Switch(const char* name, const char* key, const char* on, const char* off);
  QComboBox* Choice(const char* name, const char* key, const std::vector<Ready>* rows);
  QSlider* Slider(const char* name, const char* key, int low, int high);

  QLabel* Standing(const char* name);

  void MakeTrailer();
  void MakeAir();
  void MakeWheels();
  void MakeSwitches();
  void MakeTroubles();
  void Pump(double psi);
  void ShowTrailer();
  void ShowTroubles();
  QString DefectsInWords() const;
  void Mark(Deed deed);
  void Follow(QSlider* slider, int value) const;

  Texts& texts_;
  std::vector<Ready> trailers_;
  Command do_;
  Sight sight_;
  QElapsedTimer moved_;  // since a slider was
  Deed marked_ = Deed::kNothing;
  std::map<Deed, QWidget*> places_;  // where each deed is done
  QComboBox* trailer_ = nullptr;
  QCheckBox* compressor_ = nullptr;
  QCheckBox* parking_brake_ = nullptr;
  QCheckBox* power_ = nullptr;
  QCheckBox* cable_ = nullptr;
  QCheckBox* adapter_ = nullptr;
  QSlider* pedal_ = nullptr;
  QLabel* pedal_value_ = nullptr;
  QSlider* lever_ = nullptr;
  QLabel* lever_value_ = nullptr;
  QPushButton* level_ = nullptr;
  QPushButton* unladen_ = nullptr;
  QPushButton* laden_ = nullptr;
  QSpinBox* hand_speed_ = nullptr;
  QComboBox* defect_ = nullptr;
  QComboBox* failure_ = nullptr;
  QSpinBox* sid_ = nullptr;
  QSpinBox* fmi_ = nullptr;
  QLabel* defects_ = nullptr;
  QLabel* failures_ = nullptr;
  QLabel* faults_ = nullptr;
};

}  // namespace lorimet::bench
