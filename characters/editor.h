#pragma once
// The editor of the character file: its form's controls, and what each of their events does to the
// tables Personajes and Mensajes. Nothing reaches the disk before "Guardar en disco".
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "table/table.h"

namespace tasca {

// The kinds of phrase as the editor lists them, by MessageCategory - 1.
inline constexpr std::array<std::u16string_view, CategoriasMensaje> EtiquetasJugada{
    u"Quiero mus",     u"No quiero mus", u"Tengo pares", u"No tengo pares", u"tengo juego",
    u"No tengo juego", u"Paso",          u"Envido",      u"envido & más",   u"Órdago",
    u"No quiero",      u"quiero",        u"Victoria",    u"Derrota"};

// What the editor asks of the outside world. A question blocks until it is answered.
class EditorPort {
 public:
  EditorPort() = default;
  EditorPort(const EditorPort&) = delete;
  EditorPort& operator=(const EditorPort&) = delete;
  virtual ~EditorPort() = default;

  // A box with OK, under the application's title.
  virtual void MsgBox(std::u16string_view texto) = 0;
  // A box with OK and Cancel; true when OK is pressed.
  virtual bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) = 0;
  // The text typed; "" when cancelled.
  virtual std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                                  std::u16string_view porDefecto) = 0;
  virtual void Beep() = 0;
};

// Why `texto` cannot be typed or pasted into a box that would then hold `largo` of at most `maximo`
// characters, as a sentence for the player; "" when it can. What the file could not hold is
// refused, and so is every control character: most of them cannot be seen.
std::u16string_view ReparoAlTexto(std::u16string_view texto, int largo, int maximo);

struct ListBox {
  std::vector<std::u16string> List;
  int ListIndex = -1;  // -1 while nothing is selected
};

// The form's controls. A form shows them and passes events on; it decides nothing.
struct Dialog1 {
  ListBox List1;              // the characters: position 0 is character 1
  ListBox List2;              // the kinds of phrase: position 0 is MessageCategory 1
  ListBox List3;              // the three phrases of that character and kind
  std::u16string Text1;       // name
  std::u16string Text2;       // Ordaguero
  std::u16string Text3;       // story
  int Mostrado = 0;           // the character that the three texts are of; 0 while List1 is empty
  Integer NumPersonajes = 0;  // characters in memory
  std::string Guardado;       // what the disk holds of them: the file as last loaded or saved
};

void Form_Load(Dialog1& d);

// A list position (0..) has been selected: a character, whose data are shown; a kind of phrase; a
// phrase. Throws RunTimeError for a position that is not there, and for a 101st character.
//
// Texts that are no longer those of the character shown, be they its new data or those of a new
// character not added yet, are asked about before they are replaced: OK stores them into the
// character shown, Cancel drops them. When storing refuses them the selection and the texts stay.
void List1_Click(Dialog1& d, Table& t, EditorPort& port, int posicion);
void List2_Click(Dialog1& d, const Table& t, int posicion);
void List3_Click(Dialog1& d, int posicion);

// Shows character `personaje` (1..100): its data, and its phrases of the first kind.
void MostrarPersonaje(Dialog1& d, const Table& t, int personaje);

// Button 0 adds a character with the data of the three text boxes, 1 deletes the selected one once
// that is confirmed, 2 stores the text boxes into the selected one. An Ordaguero that the file
// could not hold is refused with a message: nothing changes, the text boxes stay. Throws
// RunTimeError for a 101st character, and for an Ordaguero outside 16 bits.
void Command1_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Button 0 asks for the selected phrase's new text, 1 clears the phrase. Asking throws RunTimeError
// when no phrase, kind or character is selected.
void Command2_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Enter and F2 on a phrase ask for its new text.
void List3_KeyDown(Dialog1& d, Table& t, EditorPort& port, int KeyCode);

// Button 0 saves the characters, 1 loads them.
void Command3_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Writes the file and tells how many characters it holds, or why it could not be written: then the
// characters in memory are still changes to be saved.
void GuardarPersonajes(Dialog1& d, const Table& t, EditorPort& port);
// Reads the file, adds its characters to List1, shows character 1 and tells how many there are.
// Throws RunTimeError.
void CargarPersonajes(Dialog1& d, Table& t, EditorPort& port);

// True while the characters in memory are not what the disk holds.
bool HayCambios(const Dialog1& d, const Table& t);

}  // namespace tasca
