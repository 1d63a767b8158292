#pragma once
// Says each line of the transcript once, as it is written.
#include <string>
#include <string_view>
#include <vector>

namespace tasca {

class Recital {
 public:
  // The lines that `text2` has more than at the last call. After the transcript was replaced all
  // its lines are new.
  std::vector<std::u16string> Nuevos(std::u16string_view text2);

  // A step begins: its lines will take the place of those to be repeated.
  void EmpiezaPaso() { empiezaPaso_ = true; }
  // The lines of the last step that wrote any.
  const std::vector<std::u16string>& Ultimos() const { return ultimos_; }

 private:
  std::u16string text2_;  // at the last call
  std::vector<std::u16string> ultimos_;
  bool empiezaPaso_ = false;
};

}  // namespace tasca
