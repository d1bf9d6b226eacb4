// The reservoir: a compressor that pumps between cut-in and cut-out, and a slow leak.
#pragma once

namespace lorimet::simulator {

class AirSupply {
 public:
  static constexpr double kCutIn = 100;      // psi
  static constexpr double kCutOut = 120;     // psi
  static constexpr double kPumpRate = 2;     // psi a second
  static constexpr double kLeakRate = 0.02;  // psi a second
  static constexpr double kUsePerBrakePsi =
      .03;  // psi of the reservoir for a psi of brake pressure

  double Pressure() const { return pressure_; }
  bool Pumping() const { return pumping_; }
  // Without its compressor the reservoir only leaks.
  void SetCompressor(bool present) { compressor_ = present; }
  void SetPressure(double psi) { pressure_ = psi < 0 ? 0 : psi; }
  // Air that a rise of the brake pressure takes.
  void Draw(double brake_psi) { SetPressure(pressure_ - brake_psi * kUsePerBrakePsi); }

  void Advance(double seconds) {
    if (!compressor_ || pressure_ >= kCutOut) pumping_ = false;
    if (compressor_ && pressure_ < kCutIn) pumping_ = true;
    SetPressure(pressure_ - kLeakRate * seconds);
    if (!pumping_) return;
    pressure_ += kPumpRate * seconds;
    if (pressure_ > kCutOut) pressure_ = kCutOut;
  }

 private:
  double pressure_ = 118;
  bool compressor_ = true;
  bool pumping_ = false;
};

}  // namespace lorimet::simulator
