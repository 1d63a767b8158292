#pragma once
// Runs a modal box that ignores keys typed before it is ready.
#include <QDialog>
#include <functional>
#include <utility>

namespace tasca {

// A box that passes its result on and stays.
class HidesLate {
 public:
  HidesLate() = default;
  HidesLate(const HidesLate&) = delete;
  HidesLate& operator=(const HidesLate&) = delete;
  virtual ~HidesLate() = default;

  // Calls `alContestar` with every result. Without it the box hides with the result.
  void Stay(std::function<void(int)> alContestar) { alContestar_ = std::move(alContestar); }

 protected:
  // True if the result has been passed on.
  bool PassOn(int resultado) const {
    if (alContestar_) alContestar_(resultado);
    return alContestar_ != nullptr;
  }

 private:
  std::function<void(int)> alContestar_;
};

// A box that RunBox hides after its event loop. If it hid in the loop, the loop could still handle
// the activation of the main window, which screen readers would say before the lines that follow
// from the answer.
template <class Caja>
class LateHiding : public Caja, public HidesLate {
 public:
  using Caja::Caja;

  void done(int resultado) override {
    if (!PassOn(resultado)) Caja::done(resultado);
  }
};

// Shows `caja` with the focus on `inicial`, blocks until it is answered and returns its result.
// Keys are ignored until `inicial` has the focus in the active window, because another control
// would handle them, and after the answer, because they would answer twice. An early key requests
// the focus for `inicial`. The auto-repeat of a held key never answers.
int RunBox(QDialog& caja, QWidget* inicial);

}  // namespace tasca
