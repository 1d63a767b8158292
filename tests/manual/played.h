#pragma once
// Plays what an example of the manual tells, with the rules of the game.
#include <map>
#include <string>
#include <vector>

#include "base/rnd.h"
#include "lances/lance.h"
#include "table/game.h"
#include "ui/manual/ejemplo.h"

namespace tasca::test {

// The port and the computer seats of a told hand: every seat says what the script has next. Fails
// the test if another seat is asked, or if something is left over.
class ToldHand : public Port {
 public:
  // Plays at `t`, whose hands and speaking order are set.
  explicit ToldHand(Table& t) : t_{t} {}

  // Plays the betting of a lance: every seat says what is told, or passes if nothing is.
  void Bet(NumeroLance lance, const std::vector<Habla>& hablas);
  // The seats declare pares or juego. True if there is betting.
  bool DeclarePares();
  bool DeclareJuego();
  // Which pareja wins the lance by its cards.
  Pareja Winner(NumeroLance lance);
  // Counts the hand.
  void Count();
  // The text of the last message box.
  const std::string& LastBox() const { return aviso_; }

  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& /*t*/, std::u16string_view /*archivo*/) override {}
  void StopSound(const Table& /*t*/) override {}
  TimeOfDay Now() override { return {}; }

 private:
  Table& t_;
  Rnd rnd_;
  Game g_{t_, rnd_, *this};
  std::string aviso_;
};

// The stones that the parejas take by each lance, in the betting and in the count.
using Taken = std::map<NumeroLance, Array<int, 0, 1>>;

// An example played to its end.
struct PlayedExample {
  Taken Cobrado;
  Array<int, 0, 1> Piedras;  // the score after the count
  std::string Fin;           // the message box that ends the juego, or ""
};

// Sets a table with the hands, the order and the score of an example.
Table TableOf(const Ejemplo& ejemplo);

// Plays an example that tells what is said in each lance.
PlayedExample Play(const Ejemplo& ejemplo);

}  // namespace tasca::test
