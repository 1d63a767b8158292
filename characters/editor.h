#pragma once
// The editor of the character file: the state of its form, and the events of its controls, which
// change Personajes and Mensajes in memory. Only "Guardar en disco" writes the file.
#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "table/table.h"

namespace tasca {

// The names of the kinds of phrase in List2, by MessageCategory - 1.
inline constexpr std::array<std::u16string_view, CategoriasMensaje> EtiquetasJugada{
    u"Quiero mus",     u"No quiero mus", u"Tengo pares", u"No tengo pares", u"tengo juego",
    u"No tengo juego", u"Paso",          u"Envido",      u"envido & más",   u"Órdago",
    u"No quiero",      u"quiero",        u"Victoria",    u"Derrota"};

// A character of another file that may be brought into the edited ones.
struct Candidato {
  std::u16string Nombre;
  std::u16string Historia;
  bool YaEsta = false;  // one of the edited characters has that name

  bool operator==(const Candidato&) const = default;
};

// The interface through which the editor asks the user. A question blocks until it is answered.
class EditorPort {
 public:
  EditorPort() = default;
  EditorPort(const EditorPort&) = delete;
  EditorPort& operator=(const EditorPort&) = delete;
  virtual ~EditorPort() = default;

  // Shows a message box with OK under the application's title.
  virtual void MsgBox(std::u16string_view texto) = 0;
  // Shows a box with OK and Cancel. True if OK is pressed.
  virtual bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) = 0;
  // Asks for a text. Returns the text typed; "" if cancelled.
  virtual std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                                  std::u16string_view porDefecto) = 0;
  // Shows a box with Yes, No and Cancel. Nothing if cancelled.
  virtual std::optional<bool> YesNoCancelBox(std::u16string_view texto,
                                             std::u16string_view titulo) = 0;
  // Asks for an existing file. Returns its path; "" if cancelled.
  virtual std::filesystem::path FileBox(std::u16string_view titulo) = 0;
  // Lets the user choose several characters, by their positions; at first `elegidos` are chosen.
  // Returns the chosen positions in ascending order; none if cancelled.
  virtual std::vector<int> ChoiceBox(const std::vector<Candidato>& candidatos,
                                     const std::vector<int>& elegidos) = 0;
  // Signals an event that cannot be carried out.
  virtual void Beep() = 0;
};

// The objection to typing or pasting `texto` into a text box, as a sentence for the player; "" if
// it is allowed. `largo` is the length of the box's text after that, `maximo` its limit. Rejects
// what the file cannot hold, and all control characters, since most are invisible.
std::u16string_view ReparoAlTexto(std::u16string_view texto, int largo, int maximo);

// A list with a single selection.
struct ListBox {
  std::vector<std::u16string> List;
  int ListIndex = -1;  // -1 if nothing is selected
};

// The form's controls. The form shows them and passes the events on.
struct Dialog1 {
  ListBox List1;              // the characters: position 0 is character 1
  ListBox List2;              // the kinds of phrase: position 0 is MessageCategory 1
  ListBox List3;              // the three phrases of the selected character and kind
  std::u16string Text1;       // name
  std::u16string Text2;       // Ordaguero
  std::u16string Text3;       // story
  int Mostrado = 0;           // the character whose data the text boxes were filled with; 0 if none
  Integer NumPersonajes = 0;  // number of characters in memory
  std::string Guardado;       // the content of the file as last loaded or saved
  bool Cargado = false;       // the file has been loaded or saved
};

// Fills List2. No characters are loaded.
void Form_Load(Dialog1& d);

// A character was selected by its list position (from 0): shows it. If the text boxes differ from
// the character shown before, first asks whether to store them in it: OK stores, Cancel discards
// them. If they cannot be stored, the selection and the texts stay. Throws RunTimeError if the list
// has no such position, for a 101st character, and if the Ordaguero does not fit an Integer.
void List1_Click(Dialog1& d, Table& t, EditorPort& port, int posicion);
// A kind of phrase was selected by its list position: lists the phrases of the selected character.
// Throws RunTimeError if the list has no such position.
void List2_Click(Dialog1& d, const Table& t, int posicion);
// A phrase was selected by its list position. Throws RunTimeError if the list has no such position.
void List3_Click(Dialog1& d, int posicion);

// Shows the data of character `personaje` (1..100) and its phrases of the first kind. Does not ask
// about changed text boxes.
void MostrarPersonaje(Dialog1& d, const Table& t, int personaje);

// Button 0 adds a character with the data of the text boxes. Button 1 deletes the selected
// character after a confirmation. Button 2 stores the text boxes in the selected character. Buttons
// 1 and 2 beep without a selection. An Ordaguero that the file cannot hold is rejected with a
// message box and nothing changes. Throws RunTimeError for a 101st character, and if the Ordaguero
// does not fit an Integer.
void Command1_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Button 0 asks for a new text of the selected phrase; throws RunTimeError if no character, kind or
// phrase is selected. Button 1 clears the selected phrase; beeps without a selection.
void Command2_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Enter or F2 on a phrase: the same as button 0 of Command2_Click.
void List3_KeyDown(Dialog1& d, Table& t, EditorPort& port, int KeyCode);

// Button 0 calls GuardarPersonajes, button 1 CargarPersonajes.
void Command3_Click(Dialog1& d, Table& t, EditorPort& port, int indice);

// Writes the file. A message box reports the number of characters, or the write error; after an
// error the changes still count as unsaved.
void GuardarPersonajes(Dialog1& d, const Table& t, EditorPort& port);
// Reads the file, appends its characters to List1, shows character 1 and reports their number in a
// message box. Throws RunTimeError if the file cannot be used.
void CargarPersonajes(Dialog1& d, Table& t, EditorPort& port);

// Runs `cambio`, which replaces characters or adds some after the last one, so that there are
// `numPersonajes`. Lists the new ones and shows the changed data. Texts that have been typed and
// not stored stay.
void CambiarPersonajes(Dialog1& d, const Table& t, int numPersonajes,
                       const std::function<void()>& cambio);

// True if the characters in memory differ from the file as last loaded or saved, or if texts have
// been typed and not applied.
bool HayCambios(const Dialog1& d, const Table& t);

}  // namespace tasca
