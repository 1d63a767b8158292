#pragma once
// The state and events of the start-up dialog: the player's name, the companions, and the options
// of the narration.
#include <string>
#include <string_view>
#include <vector>

#include "table/game.h"

namespace tasca {

// A drop-down list of characters.
struct ComboBox {
  struct Entrada {
    std::u16string Texto;
    Integer Personaje;  // record in the character file; 0 for "Aleatorio"
  };
  std::vector<Entrada> List;
  int ListIndex = -1;  // -1 if nothing is selected
};

// The message for a typed name that is longer than AnchoNombre.
static_assert(AnchoNombre == 100);
inline constexpr std::u16string_view NombreDemasiadoLargo =
    u"El nombre puede tener hasta 100 caracteres.";

// The dialog's controls. A face shows them and passes the events on.
struct DlgInicio {
  std::u16string Text1 =
      u"Bienvenido a la tasca\r\ndel tío Zarandel\r\nElija a sus compañeros de mesa \r\n"
      u"y la forma de la partida.\r\nQue pase ustéd un buen rato\r\n";
  std::u16string Text2 = u"Jugador 1";   // the human's name
  std::u16string Text3;                  // the preview of a spoken line
  std::u16string Text4;                  // the story of the character last selected
  ComboBox Combo1;                       // partner, seat 3
  ComboBox Combo2;                       // opponent, seat 2
  ComboBox Combo3;                       // opponent, seat 4
  Array<bool, 0, 1> Check1{true, true};  // 0 use names, 1 use the characters' own phrases
  int Option1 = 0;                       // 0 direct style, 1 indirect style
  bool CbOKEnabled = false;              // "Aceptar" can be pressed
  Array<FixedText<AnchoHistoria>, 1, MaximoHistorias> HistoriaInicio;  // stories by character
};

// Fills the lists from the character file, takes the last player's name from "mus.ini", seeds the
// generator from the clock and selects "Aleatorio" in all lists. Throws RunTimeError if a file
// cannot be used; for a missing character file a message box has been shown already.
void Form_Load(DlgInicio& d, Game& g);

// A list entry was selected by its position (from 0). Shows the character's story, and enables CbOK
// once all three lists have a selection. Throws RunTimeError if the list has no such position.
void Combo1_Click(DlgInicio& d, int posicion);
void Combo2_Click(DlgInicio& d, int posicion);
void Combo3_Click(DlgInicio& d, int posicion);

// A check box (0 or 1) was changed. Rewrites the preview.
void Check1_Click(DlgInicio& d, int indice, bool marcada);
// A style (0 or 1) was selected. Rewrites the preview.
void Option1_Click(DlgInicio& d, int indice);

// "Aceptar" was pressed. Returns false if the button is disabled or, after a message box, if a
// character is selected twice; then nothing changes. Otherwise stores the seats, the name and the
// options in the table and saves the name to "mus.ini". A write error there is shown in a message
// box, only once per run. Draws a character for each "Aleatorio". Throws RunTimeError if there are
// too few characters or "mus.ini" cannot be read.
bool CbOK_Click(DlgInicio& d, Game& g);

// Writes the preview of a spoken line with the current options to Text3.
void MostrarEjemplo(DlgInicio& d);

}  // namespace tasca
