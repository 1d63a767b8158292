#pragma once
// The chronicle: all that was said and counted in a match, hand by hand. Every step erases what the
// transcript said before; the chronicle keeps it, so that the player can read the match again.
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <utility>

#include "keep/archivo_cronica.h"
#include "table/table.h"

namespace tasca {

class Cronica {
 public:
  // The most characters that are remembered. Beyond them the oldest hands are forgotten.
  static constexpr std::size_t LetrasMaximas = 4'500'000;

  // A new match: forgets the one before. `comienzo` is the first line, or "" for none.
  void Empezar(std::u16string_view comienzo = {});
  // A new hand: gives it a heading. If the hand before has not been counted, says so.
  void EmpezarMano();
  // Notes what the table says that it did not say the last time: the transcript, and at the count
  // the cards of all seats.
  void Anotar(const Table& t);
  // Notes a message box, and before it the table.
  void AnotarAviso(const Table& t, std::u16string_view texto);
  // The hand has been counted or its juego was won by an órdago: notes the score, once.
  void TerminarMano(const Table& t);
  // The match is over. Nothing more is noted until the next Empezar; the text stays.
  void Cerrar();

  // What has been written since the last call, for a file. Each hand begins with a form feed.
  Apunte TomarApunte() { return std::exchange(apunte_, {}); }
  // All that is remembered, as those texts are.
  std::u16string Escrito() const;
  // Goes on with the chronicle of a match: `escrito` are the texts of TomarApunte since it began,
  // or Escrito, up to the step after which the table is t.
  void Reanudar(std::u16string_view escrito, const Table& t);

  // The whole chronicle, without the prompts, in lines that end in CR LF. "" if nothing has been
  // noted yet.
  std::u16string Texto() const;
  // How many hands have been forgotten.
  int Olvidadas() const { return olvidadas_; }
  // The memory of the texts in bytes.
  std::size_t Bytes() const;

 private:
  // Where the match is being noted.
  std::u16string& Pagina() { return manos_.empty() ? comienzo_ : manos_.back(); }
  void AbrirMano();
  void Escribir(std::u16string_view texto);
  // Notes complete lines, beginning with a new one.
  void EscribirLineas(std::u16string_view texto);
  void AnotarCartas(const Table& t);

  std::u16string comienzo_;  // what stands before the first hand
  std::deque<std::u16string> manos_;
  std::size_t letras_ = 0;  // in manos_
  int olvidadas_ = 0;
  Apunte apunte_;
  std::u16string visto_;    // Text2 as last noted
  bool abierta_ = false;    // a match is being noted
  bool enMano_ = false;     // a hand is being noted
  bool conCartas_ = false;  // the cards of this hand have been noted
};

}  // namespace tasca
