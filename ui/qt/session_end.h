#pragma once
// The end of the desktop's session, as the programs are told of it.
#include <functional>

namespace tasca {

struct SessionEnd {
  // The session is about to end; false keeps it going. The player may be asked only after
  // `dejanPreguntar` has said so.
  std::function<bool(const std::function<bool()>& dejanPreguntar)> MayCome;
  // The session ends: the program has to end too, also while a box is open.
  std::function<void()> Comes;
};

// Answers a session manager, such as QSessionManager, that announces the end of its session.
template <class Manager>
void AnswerSessionManager(Manager& gestor, const SessionEnd& fin) {
  const bool sigue = !fin.MayCome([&gestor] { return gestor.allowsInteraction(); });
  return sigue ? gestor.cancel() : gestor.release();
}

}  // namespace tasca
