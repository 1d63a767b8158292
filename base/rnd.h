#pragma once
// The one random generator of the program: the 32-bit Mersenne Twister, drawn as a single-precision
// number. The same seed always gives the same game.
#include <cstdint>
#include <random>

namespace tasca {

class Rnd {
 public:
  Rnd() = default;
  // Goes on from the state of `motor`.
  explicit Rnd(const std::mt19937& motor) : motor_{motor} {}

  // Fixes the whole state and sets the count of draws to 0.
  void Seed(std::uint32_t semilla) {
    motor_.seed(semilla);
    sacados_ = 0;
  }

  // The next draw, in [0, 1): a whole multiple of 2^-24.
  float operator()() {
    ++sacados_;
    return static_cast<float>(motor_() >> 8U) * 0x1p-24F;
  }

  // Draws made since the generator was last seeded.
  std::uint64_t Draws() const { return sacados_; }

 private:
  std::mt19937 motor_;
  std::uint64_t sacados_ = 0;
};

}  // namespace tasca
