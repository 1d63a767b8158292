#pragma once
// All the state of a match, as plain data: the main window's (Form1State) and the program's
// (Module1State). Every step of the game reads and writes it in place; there is no other state.
#include <filesystem>
#include <string>
#include <vector>

#include "base/array.h"
#include "base/fixed_text.h"
#include "base/integer.h"
#include "table/phases.h"

namespace tasca {

// A seat, 1 to 4, in speaking order 1, 2, 3, 4, 1. The human sits at 1, the partner at 3, the
// opponents at 2 and 4.
using Seat = int;
inline constexpr Seat AsientoHumano = 1;

// A team, the seat number modulo 2: 1 for seats 1 and 3 (the human's), 0 for seats 2 and 4.
using Pareja = int;
// The pareja of a seat, and the pareja that plays against it.
constexpr Pareja ParejaDe(Seat asiento) { return asiento % 2; }
constexpr Pareja ParejaContraria(Seat asiento) { return (asiento + 1) % 2; }

// The kinds of phrase, in the order of the character file.
enum class MessageCategory {
  QMus = 1,  // wants mus
  NMus,      // refuses mus
  TPar,      // has pares
  NPar,      // has no pares
  TJue,      // has juego
  NJue,      // has no juego
  Paso,      // passes
  Envi,      // bets two stones
  EnvM,      // bets or raises by an amount of stones
  Orda,      // bets an órdago: the whole juego
  NQui,      // refuses a bet
  SQui,      // accepts a bet
  Vict,      // wins the match
  Derr,      // loses the match
};
inline constexpr int CategoriasMensaje = 14;

// Sizes of the tables of characters. Widths are in UTF-16 units.
inline constexpr int MaximoPersonajes = 100;
inline constexpr int MaximoHistorias = 50;  // characters whose story the start-up dialog can show
inline constexpr int HuecosFrase = 3;       // phrases of one kind that a character has
inline constexpr int AnchoNombre = 100;
inline constexpr int AnchoHistoria = 200;
inline constexpr int AnchoFrase = 100;

// A computer character. Record 0 of Personajes is the human, of whom only the name is used.
struct Personaje {
  FixedText<AnchoNombre> Nombre;
  Integer Ordaguero;  // propensity to the órdago, about 0 to 100
  FixedText<AnchoHistoria> Historia;

  bool operator==(const Personaje&) const = default;
};

inline constexpr int CartasBaraja = 40;
inline constexpr int AnchoCarta = 10;  // width of the name of a rank or suit

// One of the 40 cards, or the empty card 0, whose three values are -1.
struct Card {
  Integer Numero;                // (suit - 1) x 10 + rank, 1..40
  FixedText<AnchoCarta> Figura;  // rank; shown padded
  FixedText<AnchoCarta> Palo;    // suit; shown padded
  Integer ValorGrande;           // rank order in grande, pequeña and the sorted hand, 1..10
  Integer ValorPares;            // cards of equal value make a pair
  Integer ValorJuego;            // points in juego and punto, 1..10

  bool operator==(const Card&) const = default;
};

// The settings of the media player. They apply to the next sound.
struct MediaPlayerSettings {
  Integer Veces = 1;    // number of times that the file is played
  Integer Balance = 0;  // -10000 (left) to 10000 (right)
  Integer Volumen = 0;  // hundredths of a decibel; 0 is the loudest

  bool operator==(const MediaPlayerSettings&) const = default;
};

// The amount of a phrase that has no amount of stones.
inline constexpr int SinCantidad = -2;

// One spoken line of the transcript.
struct Dicho {
  Integer Asiento = AsientoHumano;  // the speaker
  MessageCategory Categoria = MessageCategory::Paso;
  Integer Cantidad = SinCantidad;  // stones of a bet, or SinCantidad
  std::u16string Frase;            // the words as shown, without the speaker's label

  bool operator==(const Dicho&) const = default;
};

// Special values of the records of bets.
inline constexpr int EnviteOrdago = -1;    // SeguirLance: unanswered órdago; Apuesta: accepted one
inline constexpr int ApuestaPagada = -2;   // Apuesta: bet refused and paid, or nobody has pares
inline constexpr int SinDeclaracion = -2;  // Declaracion: not set, the hands are compared

// The state of the main window. A new match starts from a value-initialized one.
struct Form1State {
  // Cards.
  Array<Card, 0, CartasBaraja> Cartas;      // by card number; 0 is the empty card
  Array<Integer, 1, CartasBaraja> Baraja;   // card numbers; discards are piled from position 1
  Integer CartaSiguiente;                   // position in Baraja of the next card to deal
  Integer DescarteSiguiente;                // next free position in Baraja for a discard
  Array<Array<Integer, 1, 4>, 1, 4> Manos;  // card numbers by seat and slot, the highest in slot 1

  // Order and phase.
  Array<Integer, 1, 4> OrdenAsiento;      // seats in speaking order; the first is the mano
  bool ManoPorDecidir = false;            // first hand: the first seat to refuse mus becomes mano
  tasca::Fase Fase = tasca::Fase::Mus;    // the step that the next Enter runs
  Integer SeguirLance;                    // unanswered bet: 0 none, stones, EnviteOrdago
  Integer RondasMus;                      // number of discard passes in this hand
  Integer ParejaCortaMus;                 // pareja of the seat that refused mus
  Array<Integer, 1, 4> OrdagueroAsiento;  // propensity to the órdago by seat; 0 for the human

  // Lances, indexed by NumeroLance.
  // Kept: the punto's element of both arrays is not reset between hands, so a punto en paso is
  // counted with the values of the last punto that was bet.
  Array<Integer, 1, 5> Apuesta;      // 0 no bet, stones accepted, EnviteOrdago, ApuestaPagada
  Array<Integer, 3, 5> Declaracion;  // pareja paid after a refused bet, SinDeclaracion if none
  Integer ParejaEnvite;              // pareja that made the last bet of the current lance
  bool SeJuegaPunto = false;         // nobody has juego: the punto is played instead
  Array<Integer, 1, 4> OrdenPares;   // by seat: 1, 2, ... in order of declaration; 0 without pares
  Array<Integer, 1, 4> TurnoJuego;   // by seat: 1 + opponents with juego who declared earlier; 0
                                     // without juego

  // Scores, by pareja.
  Array<Integer, 0, 1> Piedras;  // stones in the current juego
  Array<Integer, 0, 1> Juegos;   // juegos won in the current vaca
  Array<Integer, 0, 1> Vacas;    // vacas won in the match
  Integer PiedrasJuego;          // target: more stones than this win the juego
  Integer JuegosVaca;            // a vaca is the best of this number of juegos
  Integer VacasPartida;          // the match is the best of this number of vacas

  // Sound.
  Integer SonidoActual;                  // last sound: -1 shuffle, -2 deal, 0 single cards
  Array<Integer, 1, 4> CartasCambiadas;  // by seat: cards changed in the last discard pass
  Integer PosicionSonido;                // the seat whose cards are being played
  Integer SonidosDados;                  // seats played or skipped in the sequence, 1..5
  MediaPlayerSettings Mp1;

  // The texts that the player sees, with CR LF line breaks.
  std::u16string Text1;  // the input line: the human's hand or all four hands
  std::u16string Text2;  // the transcript
  std::u16string Text3;  // the scoreboard

  // The same as values, so that no code has to parse the texts.
  std::vector<Dicho> Dichos;  // the spoken lines since the transcript was last cleared
  // The cards that Text1 shows, by seat and slot; 0 for none. A card of the seats 2 to 4 is visible
  // if the seat still holds it in that slot.
  Array<Array<Integer, 1, 4>, 1, 4> CartasVistas;

  bool operator==(const Form1State&) const = default;
};

// The state shared by the whole program, set by the start-up dialog and the character file.
struct Module1State {
  Array<Personaje, 0, MaximoPersonajes> Personajes;
  // Phrases by character, MessageCategory and slot. A slot that was never filled holds NULs.
  Array<Array<Array<FixedText<AnchoFrase>, 1, HuecosFrase>, 1, CategoriasMensaje>, 1,
        MaximoPersonajes>
      Mensajes;
  Array<Integer, 0, 3> PersonajeAsiento;  // index into Personajes by seat - 1
  std::u16string NombreJugador;           // the human's name
  bool EstiloDirecto = false;             // "Ana: paso" instead of "Ana dice: paso"
  bool UsarNombres = false;               // shows names instead of "Jugador 2"
  bool UsarExpresiones = false;           // characters speak their own phrases
  bool AvisadoSinNombre = false;          // the player was told that the name cannot be saved
  std::filesystem::path Carpeta;          // holds the game's files
  // The character file's name in it.
  std::filesystem::path ArchivoDePersonajes = "Jugadores.dat";
  // Why no file of Carpeta may be written, as the reason of a WriteError; "" if they may.
  std::u16string SinGuardar;

  bool operator==(const Module1State&) const = default;
};

// The whole state. Copyable and comparable.
struct Table : Form1State, Module1State {
  bool operator==(const Table&) const = default;
};

// The character at a seat; record 0 for the human.
const Personaje& PersonajeDe(const Table& t, Seat asiento);

// The name at a seat: the player's, the character's without its padding, or "Jugador 2" to
// "Jugador 4" if the names are not used.
std::u16string NombreAsiento(const Table& t, Seat asiento);

// Phrase in slot `hueco` (1..3) of character `personaje` (1..100), with its padding.
const FixedText<AnchoFrase>& Mensaje(const Table& t, int personaje, MessageCategory categoria,
                                     int hueco);

// Throws WriteError if the files of Carpeta, such as this one, may not be written.
void ExigirQueSeGuarde(const Table& t, const std::filesystem::path& archivo);

}  // namespace tasca
