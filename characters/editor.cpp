// The events of the character editor's form.
#include "characters/editor.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/errors.h"
#include "base/keys.h"
#include "base/replace_file.h"
#include "base/text.h"
#include "characters/character_file.h"

namespace tasca {
namespace {

constexpr std::u16string_view Nul{u"\0", 1};  // a phrase that was never set consists of NULs

// The selected character, kind of phrase or slot, from 1; 0 without a selection.
int Elegido(const ListBox& lista) { return lista.ListIndex + 1; }

void Elegir(ListBox& lista, int posicion) {
  if (posicion < 0 || posicion >= std::ssize(lista.List)) ThrowIndexOutOfRange();
  lista.ListIndex = posicion;
}

std::u16string& Entrada(ListBox& lista) {
  return lista.List.at(static_cast<std::size_t>(lista.ListIndex));
}

void Vaciar(ListBox& lista) { lista = {}; }

// Kept: selecting a character lists its phrases with their padding, selecting a kind of phrase
// without it.
enum class Forma { ConRelleno, SinRelleno };

void ListarFrases(Dialog1& d, const Table& t, int personaje, int categoria, Forma forma) {
  Vaciar(d.List3);
  for (int hueco = 1; hueco <= HuecosFrase; ++hueco) {
    const FixedText<AnchoFrase>& frase = t.Mensajes[personaje][categoria][hueco];
    d.List3.List.emplace_back(forma == Forma::ConRelleno ? frase.Full() : frase.Trimmed());
  }
}

std::u16string EntradaDe(int numero, const Personaje& personaje) {
  return Join(numero, u". ", personaje.Nombre.Trimmed());
}

// The character in the three text boxes. Throws RunTimeError if the Ordaguero does not fit an
// Integer.
Personaje Escrito(const Dialog1& d) {
  Personaje escrito;
  escrito.Nombre = Trim(d.Text1);
  escrito.Ordaguero = ValorOrdaguero(d.Text2);
  escrito.Historia = Trim(d.Text3);
  return escrito;
}

// Stores the text boxes in `personaje`. If the file cannot hold the Ordaguero, shows a message box,
// changes nothing and returns false.
bool GuardarTextos(Dialog1& d, Personaje& personaje, EditorPort& port) {
  const Personaje escrito = Escrito(d);
  if (!SeLeeComoSeEscribe(escrito.Ordaguero)) {
    port.MsgBox(
        Join(u"El archivo solo puede guardar un valor de ordaguero de 0 a 999, y usted ha "
             u"escrito ",
             escrito.Ordaguero, u". Cámbielo y pruebe otra vez."));
    return false;
  }
  personaje = escrito;
  d.Text2 = ToText(personaje.Ordaguero);
  return true;
}

// Removes NULs: a text box shows a field that was never filled as an empty text.
std::u16string SinNulos(std::u16string_view texto) { return ReplaceAll(texto, Nul, u""); }

bool TextosCambiados(const Dialog1& d, const Table& t) {
  if (d.Mostrado == 0) return false;
  const Personaje& mostrado = t.Personajes[d.Mostrado];
  const Personaje escrito = Escrito(d);
  return SinNulos(escrito.Nombre.Trimmed()) != SinNulos(mostrado.Nombre.Trimmed()) ||
         escrito.Ordaguero != mostrado.Ordaguero ||
         SinNulos(escrito.Historia.Trimmed()) != SinNulos(mostrado.Historia.Trimmed());
}

// Asks whether to store changed text boxes. False if they should be stored but cannot be.
bool ConservarTextos(Dialog1& d, Table& t, EditorPort& port) {
  if (!TextosCambiados(d, t)) return true;
  Personaje& mostrado = t.Personajes[d.Mostrado];
  const std::u16string nombre = SinNulos(mostrado.Nombre.Trimmed());
  const bool aplicar = port.OkCancelBox(
      Join(u"Los datos de ", nombre.empty() ? u"este jugador" : nombre,
           u" han cambiado. ¿Aplicarlos? Si pulsa Cancelar, se pierde lo escrito."),
      u"Cambiar de jugador");
  return !aplicar || GuardarTextos(d, mostrado, port);
}

void PonerTextos(Dialog1& d, const Personaje& personaje) {
  d.Text1 = personaje.Nombre.Trimmed();
  d.Text2 = ToText(personaje.Ordaguero);
  d.Text3 = personaje.Historia.Trimmed();
}

// Kept: the new character gets the phrases that its record still holds.
void NuevoJugador(Dialog1& d, Table& t, EditorPort& port) {
  Personaje& personaje = t.Personajes[d.NumPersonajes + 1];
  if (!GuardarTextos(d, personaje, port)) return;
  d.NumPersonajes = d.NumPersonajes + 1;
  d.Mostrado = d.NumPersonajes;
  d.List1.List.push_back(EntradaDe(d.NumPersonajes, personaje));
}

// Kept: the entry of List1 keeps its old text.
void ReleerJugador(Dialog1& d, Table& t, EditorPort& port) {
  if (Elegido(d.List1) == 0) return port.Beep();
  if (GuardarTextos(d, t.Personajes[Elegido(d.List1)], port)) d.Mostrado = Elegido(d.List1);
}

void ElegirPersonaje(Dialog1& d, const Table& t, int posicion) {
  Elegir(d.List1, posicion);
  MostrarPersonaje(d, t, Elegido(d.List1));
}

// Moves the characters after `eliminado` one record down. The last record is left without phrases,
// unless it is `eliminado` itself.
void CorrerPersonajes(Table& t, int eliminado, int cuantos) {
  for (int k = eliminado; k < cuantos; ++k) {
    t.Personajes[k] = t.Personajes[k + 1];
    for (int categoria = 1; categoria <= std::ssize(EtiquetasJugada); ++categoria) {
      for (int hueco = 1; hueco <= HuecosFrase; ++hueco) {
        FixedText<AnchoFrase>& siguiente = t.Mensajes[k + 1][categoria][hueco];
        t.Mensajes[k][categoria][hueco] = siguiente;
        siguiente = u"";
      }
    }
  }
}

// Kept: the remaining entries of List1 keep their old numbers until the file is loaded again.
void EliminarJugador(Dialog1& d, Table& t, EditorPort& port) {
  if (Elegido(d.List1) == 0) return port.Beep();
  if (!port.OkCancelBox(Join(u"Confirme que desea eliminar el jugador ", Entrada(d.List1)),
                        u"Eliminar jugador")) {
    return;
  }
  CorrerPersonajes(t, Elegido(d.List1), d.NumPersonajes);
  d.List1.List.erase(d.List1.List.begin() + d.List1.ListIndex);
  d.List1.ListIndex = -1;
  d.NumPersonajes = d.NumPersonajes - 1;
  d.Text1.clear();
  d.Text2.clear();
  d.Text3.clear();
  d.Mostrado = 0;
  if (d.List1.List.empty()) return Vaciar(d.List3);
  ElegirPersonaje(d, t, 0);
}

// Kept: a cancelled input box returns "", so cancelling clears the phrase.
void ModificarMensaje(Dialog1& d, Table& t, EditorPort& port) {
  FixedText<AnchoFrase>& frase = t.Mensajes[Elegido(d.List1)][Elegido(d.List2)][Elegido(d.List3)];
  const std::u16string titulo = Join(u"Mensaje ", Trim(Entrada(d.List2)));
  const std::u16string anterior = ReplaceAll(frase.Trimmed(), Nul, u"");
  frase = port.InputBox(u"Nuevo mensaje: ", titulo, anterior);
  Entrada(d.List3) = frase.Trimmed();
  frase = std::u16string{frase.Trimmed()};
}

void EliminarMensaje(Dialog1& d, Table& t, EditorPort& port) {
  const bool hayMensaje = Elegido(d.List1) > 0 && Elegido(d.List2) > 0 && Elegido(d.List3) > 0;
  if (!hayMensaje) return port.Beep();
  Entrada(d.List3).clear();
  t.Mensajes[Elegido(d.List1)][Elegido(d.List2)][Elegido(d.List3)] = u"";
}

}  // namespace

std::u16string_view ReparoAlTexto(std::u16string_view texto, int largo, int maximo) {
  for (const char16_t letra : texto) {
    if (letra == u'\n' || letra == u'\r') return u"Un texto no puede tener más de una línea.";
    if (letra == u'>') return u"El signo > no puede guardarse: separa las partes del archivo.";
    if (IsControl(letra)) return u"Un texto no lleva tabuladores ni caracteres de control.";
    if (!InCodePage(letra)) return u"El archivo no tiene sitio para ese carácter.";
  }
  return largo > maximo ? u"El texto no puede ser más largo." : u"";
}

void Form_Load(Dialog1& d) {
  for (const std::u16string_view etiqueta : EtiquetasJugada) d.List2.List.emplace_back(etiqueta);
  d.NumPersonajes = 0;
}

void List1_Click(Dialog1& d, Table& t, EditorPort& port, int posicion) {
  if (ConservarTextos(d, t, port)) ElegirPersonaje(d, t, posicion);
}

void List2_Click(Dialog1& d, const Table& t, int posicion) {
  Elegir(d.List2, posicion);
  if (Elegido(d.List1) == 0) return;
  ListarFrases(d, t, Elegido(d.List1), Elegido(d.List2), Forma::SinRelleno);
}

void List3_Click(Dialog1& d, int posicion) { Elegir(d.List3, posicion); }

// Kept: selects the second of the three phrases.
void MostrarPersonaje(Dialog1& d, const Table& t, int personaje) {
  d.Mostrado = personaje;
  PonerTextos(d, t.Personajes[personaje]);
  Elegir(d.List2, 0);
  ListarFrases(d, t, personaje, Elegido(d.List2), Forma::ConRelleno);
  Elegir(d.List3, 1);
}

void Command1_Click(Dialog1& d, Table& t, EditorPort& port, int indice) {
  if (indice == 0) NuevoJugador(d, t, port);
  if (indice == 1) EliminarJugador(d, t, port);
  if (indice == 2) ReleerJugador(d, t, port);
}

void Command2_Click(Dialog1& d, Table& t, EditorPort& port, int indice) {
  if (indice == 0) ModificarMensaje(d, t, port);
  if (indice == 1) EliminarMensaje(d, t, port);
}

void List3_KeyDown(Dialog1& d, Table& t, EditorPort& port, int KeyCode) {
  if (KeyCode == TeclaEnter || KeyCode == TeclaF2) ModificarMensaje(d, t, port);
}

void Command3_Click(Dialog1& d, Table& t, EditorPort& port, int indice) {
  if (indice == 0) GuardarPersonajes(d, t, port);
  if (indice == 1) CargarPersonajes(d, t, port);
}

void GuardarPersonajes(Dialog1& d, const Table& t, EditorPort& port) {
  try {
    EscribirPersonajes(t, d.NumPersonajes);
  } catch (const WriteError& error) {
    return port.MsgBox(
        Join(error.Sentence(), u" Los cambios siguen aquí: puede intentarlo otra vez."));
  }
  d.Guardado = TextoPersonajes(t, d.NumPersonajes);
  d.Cargado = true;
  port.MsgBox(Join(u"Se han guardado datos de ", d.NumPersonajes, u" jugadores"));
}

// Kept: the names are appended to those that List1 already has.
void CargarPersonajes(Dialog1& d, Table& t, EditorPort& port) {
  d.NumPersonajes = LeerPersonajesSinMayusculas(t);
  d.Guardado = TextoPersonajes(t, d.NumPersonajes);
  d.Cargado = true;
  d.List1.ListIndex = -1;
  for (int i = 1; i <= d.NumPersonajes; ++i) d.List1.List.push_back(EntradaDe(i, t.Personajes[i]));
  if (d.NumPersonajes >= 1) MostrarPersonaje(d, t, 1);
  port.MsgBox(Join(u"se han cargado ", d.NumPersonajes, u" jugadores"));
}

void CambiarPersonajes(Dialog1& d, const Table& t, int numPersonajes,
                       const std::function<void()>& cambio) {
  const bool escritos = TextosCambiados(d, t);
  cambio();
  for (int n = std::max<int>(d.NumPersonajes, 0) + 1; n <= numPersonajes; ++n) {
    d.List1.List.push_back(EntradaDe(n, t.Personajes[n]));
  }
  d.NumPersonajes = numPersonajes;
  if (d.Mostrado > 0 && !escritos) PonerTextos(d, t.Personajes[d.Mostrado]);
  const int conFrases = Elegido(d.List1) > 0 ? Elegido(d.List1) : d.Mostrado;
  if (conFrases == 0 || Elegido(d.List2) == 0) return;
  const int elegida = d.List3.ListIndex;
  ListarFrases(d, t, conFrases, Elegido(d.List2), Forma::SinRelleno);
  d.List3.ListIndex = elegida;
}

bool HayCambios(const Dialog1& d, const Table& t) {
  return TextosCambiados(d, t) || TextoPersonajes(t, d.NumPersonajes) != d.Guardado;
}

}  // namespace tasca
