#pragma once
// The only random generator of the program: the 32-bit Mersenne Twister (mt19937), whose draws are
// single-precision numbers. The same seed and the same answers always give the same game.
#include <cstdint>
#include <random>

namespace tasca {

class Rnd {
 public:
  Rnd() = default;
  // Continues from the state of `motor`, which has given `sacados` draws.
  explicit Rnd(const std::mt19937& motor, std::uint64_t sacados = 0)
      : motor_{motor}, sacados_{sacados} {}

  // Initializes the whole state from `semilla` and sets the count of draws to 0.
  void Seed(std::uint32_t semilla) {
    motor_.seed(semilla);
    sacados_ = 0;
  }

  // The next draw, in [0, 1): a multiple of 2^-24.
  float operator()() {
    ++sacados_;
    return static_cast<float>(motor_() >> 8U) * 0x1p-24F;
  }

  // The number of draws since the last seeding.
  std::uint64_t Draws() const { return sacados_; }
  // The whole state except the count of draws.
  const std::mt19937& Engine() const { return motor_; }

 private:
  std::mt19937 motor_;
  std::uint64_t sacados_ = 0;
};

}  // namespace tasca
