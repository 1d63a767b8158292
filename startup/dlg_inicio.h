#pragma once
// The start-up dialog: the player's name, who sits where, and how the table talks.
#include <string>
#include <string_view>
#include <vector>

#include "table/game.h"

namespace tasca {

// A drop-down list. Every entry stands for a character; "Aleatorio" stands for number 0.
struct ComboBox {
  struct Entrada {
    std::u16string Texto;
    Integer Personaje;
  };
  std::vector<Entrada> List;
  int ListIndex = -1;  // -1 while nothing is chosen
};

// What a player is told who types a name of more than AnchoNombre characters.
static_assert(AnchoNombre == 100);
inline constexpr std::u16string_view NombreDemasiadoLargo =
    u"El nombre puede tener hasta 100 caracteres.";

// The dialog's controls. A form shows them and passes events on; it decides nothing.
struct DlgInicio {
  std::u16string Text1 =
      u"Bienvenido a la tasca\r\ndel tío Zarandel\r\nElija a sus compañeros de mesa \r\n"
      u"y la forma de la partida.\r\nQue pase ustéd un buen rato\r\n";
  std::u16string Text2 = u"Jugador 1";   // the human's name
  std::u16string Text3;                  // the preview of the narration
  std::u16string Text4;                  // the story of the character last chosen
  ComboBox Combo1;                       // partner, seat 3
  ComboBox Combo2;                       // opponent, seat 2
  ComboBox Combo3;                       // opponent, seat 4
  Array<bool, 0, 1> Check1{true, true};  // use names; use the characters' own phrases
  int Option1 = 0;                       // 0 direct style, 1 indirect style
  bool CbOKEnabled = false;
  Array<FixedText<AnchoHistoria>, 1, MaximoHistorias> HistoriaInicio;  // stories by character
};

// Fills the lists from the character file, takes the last player's name from "mus.ini", seeds the
// generator, and starts with "Aleatorio" everywhere. Throws RunTimeError; a missing character file
// has been told in a box by then.
void Form_Load(DlgInicio& d, Game& g);

// A list position (0..) has been chosen: shows the character's story, and enables CbOK once all
// three lists have a choice. Throws RunTimeError for a position that is not there.
void Combo1_Click(DlgInicio& d, int posicion);
void Combo2_Click(DlgInicio& d, int posicion);
void Combo3_Click(DlgInicio& d, int posicion);

// Box 0 or 1 has been set; option 0 or 1 has been chosen. Both rewrite the preview.
void Check1_Click(DlgInicio& d, int indice, bool marcada);
void Option1_Click(DlgInicio& d, int indice);

// "Aceptar": seats the characters, notes the name and the options, saves the name, and tells
// whether the main window is to be shown. False after a message about the choice; everything stays
// as it was. A name that cannot be saved is told in a box, once in the program's life. Draws for
// every "Aleatorio". Throws RunTimeError.
bool CbOK_Click(DlgInicio& d, Game& g);

// The preview of a spoken line under the options chosen.
void MostrarEjemplo(DlgInicio& d);

}  // namespace tasca
