#pragma once
// Hears what the windows say to screen readers.
#include <QObject>
#include <string>
#include <vector>

namespace tasca::test {

class Ear : public QObject {
 public:
  Ear();

  // The texts so far, in order.
  const std::vector<std::string>& Heard() const { return oido_; }
  // The texts since the last call.
  std::vector<std::string> TakeHeard();

  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  std::vector<std::string> oido_;
};

}  // namespace tasca::test
