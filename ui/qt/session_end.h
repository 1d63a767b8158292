#pragma once
// How a program reacts to the end of the desktop session.
#include <functional>

namespace tasca {

struct SessionEnd {
  // Called before the session ends. Returning false cancels its end. The player may be asked only
  // if `dejanPreguntar` returns true.
  std::function<bool(const std::function<bool()>& dejanPreguntar)> MayCome;
  // Called when the session ends. Must end the program, even while a box is open.
  std::function<void()> Comes;
};

// Asks `fin` and answers the session manager. Manager is QSessionManager except in tests.
template <class Manager>
void AnswerSessionManager(Manager& gestor, const SessionEnd& fin) {
  const bool sigue = !fin.MayCome([&gestor] { return gestor.allowsInteraction(); });
  return sigue ? gestor.cancel() : gestor.release();
}

}  // namespace tasca
