#pragma once
// All the state of a match, as plain data: what belongs to the main window, and what the whole
// program shares. Every step of the game reads and writes it in place; nothing else is remembered.
#include <filesystem>
#include <string>
#include <vector>

#include "base/array.h"
#include "base/fixed_text.h"
#include "base/integer.h"
#include "table/phases.h"

namespace tasca {

// A place at the table, 1 to 4, in speaking order 1, 2, 3, 4, 1. The human sits at 1, the partner
// opposite at 3, the opponents at 2 and 4.
using Seat = int;
inline constexpr Seat AsientoHumano = 1;

// A team, by its seats' remainder: 1 for seats 1 and 3 (the human's), 0 for seats 2 and 4.
using Pareja = int;
constexpr Pareja ParejaDe(Seat asiento) { return asiento % 2; }
constexpr Pareja ParejaContraria(Seat asiento) { return (asiento + 1) % 2; }

// What a phrase is about, in the order of the character file.
enum class MessageCategory {
  QMus = 1,  // asks for mus
  NMus,      // refuses mus
  TPar,      // has pares
  NPar,      // has none
  TJue,      // has juego
  NJue,      // has none
  Paso,      // passes
  Envi,      // bets two stones
  EnvM,      // bets or raises by an amount
  Orda,      // bets everything
  NQui,      // refuses a bet
  SQui,      // accepts a bet
  Vict,      // wins the match
  Derr,      // loses the match
};

// How much the tables of characters hold. Widths are in characters.
inline constexpr int MaximoPersonajes = 100;
inline constexpr int MaximoHistorias = 50;  // characters whose stories the start-up dialog keeps
inline constexpr int HuecosFrase = 3;       // phrases of one kind
inline constexpr int AnchoNombre = 100;
inline constexpr int AnchoHistoria = 200;
inline constexpr int AnchoFrase = 100;

// A computer character. Record 0 of the table of characters is the human: only its name counts.
struct Personaje {
  FixedText<AnchoNombre> Nombre;
  Integer Ordaguero;  // propensity to the órdago, about 0 to 100
  FixedText<AnchoHistoria> Historia;

  bool operator==(const Personaje&) const = default;
};

inline constexpr int CartasBaraja = 40;

// One of the 40 cards, or the empty card 0 (all three values -1).
struct Card {
  Integer Numero;        // (suit - 1) x 10 + rank
  FixedText<10> Figura;  // shown padded
  FixedText<10> Palo;    // shown padded
  Integer ValorGrande;   // orders grande, pequeña and the sorted hand
  Integer ValorPares;    // what pairs are matched on
  Integer ValorJuego;    // points of juego and punto

  bool operator==(const Card&) const = default;
};

// The settings that the media player keeps between sounds.
struct MediaPlayerSettings {
  Integer Veces = 1;    // how often the next file is played
  Integer Balance = 0;  // -10000 left to 10000 right
  Integer Volumen = 0;  // hundredths of a decibel, 0 the loudest

  bool operator==(const MediaPlayerSettings&) const = default;
};

// No number goes into a phrase.
inline constexpr int SinCantidad = -2;

// Something said at the table.
struct Dicho {
  Integer Asiento = AsientoHumano;  // who said it
  MessageCategory Categoria = MessageCategory::Paso;
  Integer Cantidad = SinCantidad;  // stones of a bet
  std::u16string Frase;            // as the transcript shows it, without the speaker

  bool operator==(const Dicho&) const = default;
};

// What the records of bets hold besides stones.
inline constexpr int EnviteOrdago = -1;    // SeguirLance and Apuesta: an órdago, made or accepted
inline constexpr int ApuestaPagada = -2;   // Apuesta: refused and paid, or never to be bet
inline constexpr int SinDeclaracion = -2;  // Declaracion: no pareja takes the lance by itself

// The main window's half: built anew with the window.
struct Form1State {
  // Cards.
  Array<Card, 0, 40> Cartas;
  Array<Integer, 1, 40> Baraja;             // card numbers; thrown cards are piled from position 1
  Integer CartaSiguiente;                   // position of the next card to deal, 1..40
  Integer DescarteSiguiente;                // next free position of the pile of discards
  Array<Array<Integer, 1, 4>, 1, 4> Manos;  // card numbers by seat and slot, the highest in slot 1

  // Order and phase.
  Array<Integer, 1, 4> OrdenAsiento;  // seats in speaking order; the first is the mano
  bool ManoPorDecidir = false;        // the first seat to refuse mus becomes mano (first hand only)
  tasca::Fase Fase = tasca::Fase::Mus;  // the step that the next Enter runs
  Integer SeguirLance;                  // the bet nobody has answered: 0 none, stones, -1 órdago
  Integer RondasMus;                    // discard passes of this hand
  Integer ParejaCortaMus;               // pareja of the seat that refused mus
  Array<Integer, 1, 4> OrdagueroAsiento;

  // Lances, by NumeroLance.
  // Kept: the punto's element of both records is never reset between hands, so a punto en paso is
  // counted from the last punto that was bet.
  Array<Integer, 1, 5> Apuesta;  // 0 none, stones accepted, -1 órdago accepted, -2 refused, paid
  Array<Integer, 3, 5> Declaracion;  // pareja that takes the lance without comparing hands, -2 none
  Integer ParejaEnvite;              // pareja that made the last bet of the lance in play
  bool SeJuegaPunto = false;         // nobody has juego: the punto takes its place
  Array<Integer, 1, 4> OrdenPares;  // by seat: 1, 2, ... in the order of declaring pares, 0 without
  Array<Integer, 1, 4> TurnoJuego;  // by seat with juego: 1 + rivals with juego that spoke before

  // Scores, by pareja.
  Array<Integer, 0, 1> Piedras;  // stones of the juego in play
  Array<Integer, 0, 1> Juegos;   // juegos of the vaca in play
  Array<Integer, 0, 1> Vacas;    // vacas of the match
  Integer PiedrasJuego;
  Integer JuegosVaca;
  Integer VacasPartida;

  // Sound.
  Integer SonidoActual;                  // -1 shuffling, -2 dealing, 0 single cards
  Array<Integer, 1, 4> CartasCambiadas;  // by seat, in the last discard pass
  Integer PosicionSonido;                // the seat whose cards sound
  Integer SonidosDados;                  // seats that have had their turn
  MediaPlayerSettings Mp1;

  // What the player sees, with CR LF line breaks.
  std::u16string Text1;  // input line: the hand, or all four
  std::u16string Text2;  // the transcript
  std::u16string Text3;  // the scoreboard

  // The same as values, so that nobody has to read the texts back.
  std::vector<Dicho> Dichos;  // what has been said since the transcript was last begun
  // The card that Text1 lays open, by seat and slot; 0 for none. A hand that has changed since then
  // holds other cards, and those are not open.
  Array<Array<Integer, 1, 4>, 1, 4> CartasVistas;

  bool operator==(const Form1State&) const = default;
};

// The program-wide half: filled by the start-up dialog and the character file.
struct Module1State {
  Array<Personaje, 0, MaximoPersonajes> Personajes;
  // Phrases by character, MessageCategory and slot. A slot never filled holds NULs.
  Array<Array<Array<FixedText<AnchoFrase>, 1, HuecosFrase>, 1, 14>, 1, MaximoPersonajes> Mensajes;
  Array<Integer, 0, 3> PersonajeAsiento;  // character by seat - 1
  std::u16string NombreJugador;
  bool EstiloDirecto = false;
  bool UsarNombres = false;
  bool UsarExpresiones = false;
  bool AvisadoSinNombre = false;  // the player knows that the name cannot be saved
  std::filesystem::path Carpeta;  // the program's own folder, where its files lie

  bool operator==(const Module1State&) const = default;
};

struct Table : Form1State, Module1State {
  bool operator==(const Table&) const = default;
};

// The record of the character that sits at a seat; the human's is record 0.
const Personaje& PersonajeDe(const Table& t, Seat asiento);

// Phrase `hueco` (1..3) of a character (1..100); all 100 characters of it.
const FixedText<AnchoFrase>& Mensaje(const Table& t, int personaje, MessageCategory categoria,
                                     int hueco);

}  // namespace tasca
