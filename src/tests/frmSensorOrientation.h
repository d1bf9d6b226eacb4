// The sensor test: is each wheel speed sensor wired to its wheel, and does each modulator brake the
// wheels that it should?
//
// The operator spins the wheels by hand, up one side of the trailer and back down the other. All
// wheels but the one to be spun are braked, so only the expected sensor can report a speed.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/forms.h"
#include "tests/test_frame.h"

namespace lorimet {

class frmSensorOrientation : public Form {
 public:
  explicit frmSensorOrientation(const TestParts& parts);

  TextBox txtStatus{*this, "txtStatus"};
  Label lblSupplyPressure{*this, "lblSupplyPressure"};
  TextBox txtSupplyPressure{*this, "txtSupplyPressure"};

  // The trailer plan. Position n is the wheel of axle n on one side, n + 3 the one on the other.
  Frame fraPlan{*this, "fraPlan"};
  Label lblMounting{*this, "lblMounting"};
  TextBox txtMounting{*this, "txtMounting"};
  Picture bmpABS{*this, "bmpABS"};
  Picture bmpFwd{*this, "bmpFwd"};
  Picture bmpRear{*this, "bmpRear"};
  ControlArray<Picture> TirePic{*this, "TirePic", {1, 2, 3, 4, 5, 6}};
  ControlArray<TextBox> TireTxt{*this, "TireTxt", {1, 2, 3, 4, 5, 6}};
  Picture TirePic1{*this, "TirePic1"};
  Picture TirePic2{*this, "TirePic2"};
  Picture TirePic3{*this, "TirePic3"};
  Picture TirePic4{*this, "TirePic4"};

  // One row a spin step.
  Frame fraOrder{*this, "fraOrder"};
  Label lblOrderExpected{*this, "lblOrderExpected"};
  Label lblOrderSeen{*this, "lblOrderSeen"};
  Label lblMaxSpeed{*this, "lblMaxSpeed"};
  ControlArray<Label> lblExpected{*this, "lblExpected", {1, 2, 3, 4}};
  ControlArray<TextBox> textOrder{*this, "textOrder", {1, 2, 3, 4}};
  ControlArray<TextBox> textRPM{*this, "textRPM", {1, 2, 3, 4}};

  Button StartButton{*this, "StartButton"};
  Button StopButton{*this, "StopButton"};
  Button CloseButton{*this, "CloseButton"};
  Timer Timer1{*this, "Timer1"};

  // Takes an axle, 1 to 3, off the plan; the third one with the last two rows of the table.
  void HideAxle(int nAxle);
  // Writes the letters of an axle that carries sensors 1 (c-d) or 2 (e-f), or takes its pictures
  // away with 0.
  void DisplayAxle(int nAxle, int nSensors);
  // Numbers the tires of one or two axles in the order of their spinning.
  void DisplayTires();
  // Works out which tire is spun in which step and which sensor has to answer.
  void DetermineSpinOrder();

 protected:
  void OnLoad() override;

 private:
  static constexpr int kPositions = 6;

  void ShowIntroduction();
  void ShowMounting();
  void ShowAxles();
  void Start();
  void Stop();
  void Close();
  void OnTick();

  void ShowSupply();
  bool KeepSpeeds();
  void TakeBrakes(bool moving);
  void AskForTire();
  void WatchSpin();
  void BrakeAllButOne();
  void OnRightWheel(int step);
  void OnWrongWheel(int step);
  void WaitForRest();
  bool StillMoving();
  void OnAtRest();
  void Pass();

  void FreeWheel(std::uint8_t nChannel);
  void BrakeWheel(std::uint8_t nChannel);
  void StopValveActivation();
  void Release();

  int SpinSteps() const;
  double Speed(int step) const;
  void KeepHighest(int step, double speed);
  bool OneModulator() const;
  void PaintTire(int step, Color color);
  void NoteOrder(int step, Color color);
  void StoreOrder(std::size_t index);
  void SayPlain(const char* text);
  void Say(const char* title, const char* text);
  std::string Translated(const char* text) const;

  TestParts parts_;
  std::uint8_t nStep_ = 1;
  std::uint8_t nTire_ = 1;
  // By the spin step, from 1; 0 where there is none.
  std::array<std::int16_t, kPositions + 1> nSpinOrder_{};
  std::array<std::int16_t, kPositions + 1> nSensorIndex_{};
  std::array<double, kPositions + 1> dLastSpeed_{};
  std::int16_t nModulator_ = 1;
  std::int32_t lDeadline_ = 0;
};

}  // namespace lorimet
