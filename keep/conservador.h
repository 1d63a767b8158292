#pragma once
// Keeps the match in play after every step, and offers the kept one when the program starts. Says
// once if that is not possible: the game goes on all the same.
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "keep/archivo_cronica.h"
#include "keep/archivo_partida.h"
#include "table/game.h"

namespace tasca {

class Conservador {
 public:
  // `carpeta` is the user's folder of states, or empty if there is none.
  explicit Conservador(const std::filesystem::path& carpeta)
      : archivo_{carpeta}, archivoCronica_{carpeta / "cronica"} {}

  // If a match is kept, asks whether to go on with it. Returns true if the player wants to and g is
  // that match; otherwise nothing is kept any more. A file that is no match of this program is
  // renamed, which a message box tells.
  bool Ofrecer(Game& g);

  // The chronicle of the match that Ofrecer has given back; nothing if it is not known.
  std::optional<std::u16string> Cronica() const;

  // Waits until the last step is on the disk.
  void Esperar() { Anotar(archivo_.Esperar()); }
  // Starts to keep the match after a step. `apunte` is what the step has added to its chronicle.
  void Guardar(Game& g, const Apunte& apunte = {});
  // Forgets the match, which is over. Waits until it is no longer on the disk.
  void Olvidar();

 private:
  // Remembers the first reason why the match is not kept.
  void Anotar(const std::u16string& motivo);
  // Asks. Without a valid match, renames the file.
  bool QuiereSeguir(Game& g);
  void Apartar(Game& g);

  ArchivoPartida archivo_;
  ArchivoCronica archivoCronica_;
  std::string ultima_;  // as last kept
  std::u16string motivo_;
  bool avisado_ = false;
};

}  // namespace tasca
