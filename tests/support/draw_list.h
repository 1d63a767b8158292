#pragma once
// A generator that gives exactly the listed draws.
#include <initializer_list>

#include "base/rnd.h"

namespace tasca::test {

// The greatest draw below `limite` and the smallest draw not below it: both sides of a threshold.
float DrawBelow(float limite);
float DrawFrom(float limite);

// A Rnd whose next draws are the listed ones (each in [0, 1) and a whole multiple of 2^-24, up to
// 624 of them). It fails the test when it dies with another number of draws made.
class DrawList {
 public:
  DrawList(std::initializer_list<float> sacadas);
  DrawList(const DrawList&) = delete;
  DrawList& operator=(const DrawList&) = delete;
  ~DrawList();

  operator Rnd&() { return rnd_; }  // NOLINT(google-explicit-constructor)
  Rnd& Get() { return rnd_; }

 private:
  Rnd rnd_;
  std::uint64_t previstas_;
};

}  // namespace tasca::test
