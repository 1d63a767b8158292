#pragma once
// Says each line of the transcript once, as it is written, and who has won a juego or a vaca.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/scene.h"

namespace tasca {

class Recital {
 public:
  // The lines that `text2` has more than at the last call. After the transcript was replaced all
  // its lines are new.
  std::vector<std::u16string> Nuevos(std::u16string_view text2);
  // The same after the news of the score: "Juego para su pareja. Juegos: 1 a 0." once the boxes
  // have been closed and one more juego or vaca is shown than before. The transcript does not tell
  // it. The first scene brings no news.
  std::vector<std::u16string> Nuevos(std::u16string_view text2, const Escena& escena);

  // A step begins: its lines will take the place of those to be repeated.
  void EmpiezaPaso() { empiezaPaso_ = true; }
  // The lines of the last step that wrote any.
  const std::vector<std::u16string>& Ultimos() const { return ultimos_; }

 private:
  std::vector<std::u16string> Recuerda(std::vector<std::u16string> nuevos);
  std::u16string Ganado(const Escena& escena);

  std::optional<Array<TanteoVisto, 0, 1>> tanteo_;  // as told
  std::u16string text2_;                            // at the last call
  std::vector<std::u16string> ultimos_;
  bool empiezaPaso_ = false;
};

}  // namespace tasca
