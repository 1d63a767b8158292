// Playing an example.
#include "tests/manual/played.h"

#include <gtest/gtest.h>

#include <regex>

#include "cards/deck.h"
#include "count/count.h"
#include "lances/bidding.h"
#include "lances/grande.h"
#include "lances/juego.h"
#include "lances/pares.h"
#include "lances/pequena.h"
#include "lances/punto.h"
#include "mus/mus.h"
#include "tests/support/tables.h"
#include "ui/manual/pieces.h"

namespace tasca::test {
namespace {

// What is still to be said. The functions of a lance are plain functions, so that it cannot be kept
// in an object.
struct Script {
  const std::vector<Habla>* Hablas = nullptr;
  std::size_t Next = 0;

  const Habla& Take(Seat asiento) {
    static const Habla pasa;
    if (Hablas->empty()) return pasa;
    EXPECT_LT(Next, Hablas->size()) << "seat " << asiento << " is asked and nothing is left";
    if (Next >= Hablas->size()) return pasa;
    EXPECT_EQ(Hablas->at(Next).Asiento, asiento) << Hablas->at(Next).Palabras;
    return Hablas->at(Next++);
  }
};

Script& TheScript() {
  static Script guion;
  return guion;
}

Decision SaysAsTold(const Table& /*t*/, Rnd& /*rnd*/, Seat asiento) {
  const Habla& habla = TheScript().Take(asiento);
  EXPECT_EQ(habla.Piedras, 0) << "only seat 1 may name an amount";
  return habla.Decide;
}

const Lance& DatosDe(NumeroLance lance) {
  switch (lance) {
    case NumeroLance::Grande:
      return DatosGrande();
    case NumeroLance::Pequena:
      return DatosPequena();
    case NumeroLance::Pares:
      return DatosPares();
    case NumeroLance::Juego:
      return DatosJuego();
    default:
      return DatosPunto();
  }
}

// The stones that a line of the count tells: "las 4 envidadas a pares y una del par de ...".
int StonesToldIn(const std::string& linea) {
  static const std::regex tantas{"las (-?\\d+) envidadas|\\b(una|dos|tres) de"};
  int piedras = 0;
  for (std::sregex_iterator i{linea.begin(), linea.end(), tantas}; i != std::sregex_iterator{};
       ++i) {
    const std::string palabra = (*i)[2];
    if (palabra.empty()) {
      piedras += std::stoi((*i)[1]);
    } else {
      piedras += palabra == "una" ? 1 : palabra == "dos" ? 2 : 3;
    }
  }
  return piedras;
}

// Adds the stones of one line of the count to the pareja that the line names, if it names one.
void AddTold(Taken& cobrado, NumeroLance lance, const std::string& linea) {
  static const std::regex quien{"^La pareja ([01]) se saca"};
  std::smatch partes;
  if (!std::regex_search(linea, partes, quien)) return;
  cobrado[lance][std::stoi(partes[1])] += StonesToldIn(linea);
}

// Kept: the line of the pares does not name the pareja after a refused bet: what is left of the
// score belongs to them.
void AddUnnamed(PlayedExample& jugado, const TanteoEjemplo& antes) {
  for (const Pareja pareja : {0, 1}) {
    int falta = jugado.Piedras[pareja] - (pareja == 1 ? antes.Nuestras : antes.Suyas);
    for (const auto& [lance, piedras] : jugado.Cobrado) falta -= piedras[pareja];
    jugado.Cobrado[NumeroLance::Pares][pareja] += falta;
  }
}

void PlayLance(ToldHand& mesa, const LanceEjemplo& lance) {
  bool seEnvida = true;
  if (lance.Numero == NumeroLance::Pares) seEnvida = mesa.DeclarePares();
  if (lance.Numero == NumeroLance::Juego) seEnvida = mesa.DeclareJuego();
  EXPECT_EQ(seEnvida, lance.Modo != ModoEjemplo::SinEnvite) << lance.Porque;
  if (seEnvida) mesa.Bet(lance.Numero, lance.Hablas);
}

std::vector<std::string> CountedLines(const Table& t) {
  std::string texto = Utf8(t.Text2);
  std::erase(texto, '\r');
  const std::vector<std::string_view> lineas = LinesOf(texto);
  return {lineas.begin(), lineas.end()};
}

}  // namespace

void ToldHand::Bet(NumeroLance lance, const std::vector<Habla>& hablas) {
  TheScript() = {.Hablas = &hablas};
  Lance contado = DatosDe(lance);
  contado.Decide = SaysAsTold;
  contado.Responde = SaysAsTold;
  AbrirLance(g_, contado);
  if (t_.SeguirLance != 0) ResponderLance(g_, contado);
  EXPECT_EQ(TheScript().Next, hablas.size()) << "something is left to be said";
}

bool ToldHand::DeclarePares() {
  DeclaraPares(g_);
  return t_.Fase == Fase::Pares;
}

bool ToldHand::DeclareJuego() {
  DeclaraJuego(g_);
  return t_.Fase == Fase::Juego;
}

Pareja ToldHand::Winner(NumeroLance lance) { return DatosDe(lance).Gana(g_); }

void ToldHand::Count() { ContarMano(g_); }

void ToldHand::MsgBox(const Table& /*t*/, std::u16string_view texto) { aviso_ = Utf8(texto); }

// The default answer to a declaration is the truth.
bool ToldHand::YesNoBox(const Table& /*t*/, Pregunta /*sobre*/, const YesNoQuestion& pregunta) {
  return pregunta.PorDefecto;
}

std::u16string ToldHand::InputBox(const Table& /*t*/, Pregunta /*sobre*/,
                                  const InputQuestion& /*pregunta*/) {
  const std::string cifras = std::to_string(TheScript().Hablas->at(TheScript().Next - 1).Piedras);
  return {cifras.begin(), cifras.end()};
}

void ToldHand::ShowDialog(const Table& /*t*/, Dialog& dialogo) {
  Command1_Click(dialogo, static_cast<int>(TheScript().Take(AsientoHumano).Decide));
}

Table TableOf(const Ejemplo& ejemplo) {
  Table t = MesaDePrueba();
  OrdenarDesde(t, ejemplo.Mano);
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    EXPECT_EQ(ejemplo.Manos[asiento].size(), 4U) << "seat " << asiento;
    int hueco = 0;
    for (const int carta : ejemplo.Manos[asiento]) t.Manos[asiento][++hueco] = carta;
  }
  if (ejemplo.Antes) t.Piedras = {ejemplo.Antes->Suyas, ejemplo.Antes->Nuestras};
  t.Fase = Fase::Grande;
  return t;
}

PlayedExample Play(const Ejemplo& ejemplo) {
  Table t = TableOf(ejemplo);
  ToldHand mesa{t};
  PlayedExample jugado;
  for (const LanceEjemplo& lance : ejemplo.Lances) {
    const Array<Integer, 0, 1> antes = t.Piedras;
    PlayLance(mesa, lance);
    for (const Pareja p : {0, 1}) jugado.Cobrado[lance.Numero][p] = t.Piedras[p] - antes[p];
  }
  EXPECT_EQ(t.Fase, Fase::Cuenta) << "a whole hand is told";
  mesa.Count();
  const std::vector<std::string> lineas = CountedLines(t);
  for (std::size_t i = 0; i < std::min(lineas.size(), ejemplo.Lances.size()); ++i) {
    AddTold(jugado.Cobrado, ejemplo.Lances[i].Numero, lineas[i]);
  }
  for (const Pareja p : {0, 1}) jugado.Piedras[p] = t.Piedras[p];
  jugado.Fin = mesa.LastBox();
  if (jugado.Fin.empty()) AddUnnamed(jugado, ejemplo.Antes.value_or(TanteoEjemplo{}));
  return jugado;
}

}  // namespace tasca::test
