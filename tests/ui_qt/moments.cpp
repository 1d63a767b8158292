// The tables of the moments.
#include "tests/ui_qt/moments.h"

#include <array>
#include <utility>

#include "cards/hand_text.h"
#include "tests/support/tables.h"

namespace tasca::test {
namespace {

void Decir(Table& t, Seat asiento, MessageCategory categoria, const char16_t* frase) {
  t.Dichos.push_back({.Asiento = asiento, .Categoria = categoria, .Frase = frase});
}

// A hand of the second juego. Seat 4 is mano.
Table Principio() {
  Table t = MesaDePrueba();
  t.UsarNombres = true;
  t.Personajes[3].Nombre = u"Salud la del Quejío";
  t.Manos[1] = {20, 39, 18, 21};  // Rey, Caballo, Sota, As
  t.Manos[2] = {10, 30, 25, 34};  // Rey, Rey, 5, 4
  t.Manos[3] = {8, 7, 37, 22};    // Sota, 7, 7, 2
  t.Manos[4] = {29, 9, 15, 5};    // Caballo, Caballo, 5, 5
  t.OrdenAsiento = {4, 1, 2, 3};
  t.CartaSiguiente = 17;
  t.DescarteSiguiente = 1;
  t.Piedras = {7, 12};
  t.Juegos = {1, 0};
  return t;
}

Table Descartes() {
  Table t = Principio();
  t.Manos[1][3] = 16;  // a 6 for the Sota
  t.RondasMus = 1;
  t.CartasCambiadas = {1, 4, 2, 3};
  t.CartaSiguiente = 27;
  t.DescarteSiguiente = 11;
  Decir(t, 4, MessageCategory::QMus, u"Mus");
  Decir(t, 1, MessageCategory::QMus, u"Mus");
  Decir(t, 2, MessageCategory::QMus, u"Venga ese mus");
  Decir(t, 3, MessageCategory::QMus, u"Por mí, mus");
  return t;
}

// The grande is closed at 2; in the pequeña 5 more are bet over 2.
Table Envite() {
  Table t = Descartes();
  t.Fase = Fase::RespuestaPequena;
  t.Apuesta[NumeroLance::Grande] = 2;
  t.Apuesta[NumeroLance::Pequena] = 2;
  t.SeguirLance = 5;
  t.ParejaEnvite = 0;
  t.Dichos.clear();
  Decir(t, 4, MessageCategory::Paso, u"Paso");
  Decir(t, 1, MessageCategory::Envi, u"Envido");
  Decir(t, 2, MessageCategory::EnvM, u"Esas dos y cinco más, que hoy me sobran chicas");
  return t;
}

Table ParesDeclarados() {
  Table t = Envite();
  t.Fase = Fase::Pares;
  t.SeguirLance = 0;
  t.Apuesta[NumeroLance::Pequena] = ApuestaPagada;
  t.OrdenPares = {0, 2, 3, 1};
  t.Piedras = {9, 12};
  t.Dichos.clear();
  Decir(t, 4, MessageCategory::TPar, u"Pares sí");
  Decir(t, 1, MessageCategory::NPar, u"Pares no");
  Decir(t, 2, MessageCategory::TPar, u"Sí que llevo");
  Decir(t, 3, MessageCategory::TPar, u"Yo también");
  return t;
}

Table Recuento() {
  Table t = ParesDeclarados();
  t.Fase = Fase::EmpezarMano;
  t.Apuesta[NumeroLance::Pares] = 4;
  t.SeJuegaPunto = true;
  t.TurnoJuego = {};
  t.Piedras = {13, 26};
  t.Dichos.clear();
  Decir(t, 3, MessageCategory::SQui, u"Quiero");
  MostrarManos(t, TodosLosAsientos);
  return t;
}

// An órdago to the pares ends the hand: the juego is not played.
Table Final() {
  Table t = Recuento();
  t.SeJuegaPunto = false;
  t.Apuesta[NumeroLance::Grande] = 0;
  t.Apuesta[NumeroLance::Pares] = EnviteOrdago;
  t.Piedras = {33, 0};
  t.Juegos = {1, 2};
  t.Vacas = {1, 2};
  t.Dichos.clear();
  Decir(t, 2, MessageCategory::Derr, u"Otra vez será");
  Decir(t, 4, MessageCategory::Derr, u"Mala suerte, qué le vamos a hacer");
  Decir(t, 3, MessageCategory::Vict, u"¡Somos los mejores!");
  return t;
}

}  // namespace

std::vector<Instante> SeisInstantes() {
  return {{"start", Principio(), Momento::Reposo}, {"discards", Descartes(), Momento::Reposo},
          {"bet", Envite(), Momento::Pregunta},    {"pares", ParesDeclarados(), Momento::Reposo},
          {"count", Recuento(), Momento::Reposo},  {"end", Final(), Momento::Aviso}};
}

}  // namespace tasca::test
