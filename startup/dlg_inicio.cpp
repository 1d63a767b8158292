// The events of the start-up dialog.
#include "startup/dlg_inicio.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/errors.h"
#include "base/line_file.h"
#include "base/replace_file.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "startup/seed.h"
#include "startup/settings.h"

namespace tasca {
namespace {

constexpr int Aleatorio = 0;  // list position

void AnadirEntrada(DlgInicio& d, std::u16string_view texto, int personaje) {
  for (ComboBox* const combo : {&d.Combo1, &d.Combo2, &d.Combo3}) {
    combo->List.push_back({std::u16string{texto}, personaje});
  }
}

// Kept: there is room for the stories of the first 50 records only.
void GuardarHistoria(DlgInicio& d, const LineReader& archivo, int personaje,
                     std::u16string_view historia) {
  if (personaje > MaximoHistorias) {
    archivo.Fail(u"solo los 50 primeros personajes pueden sentarse a la mesa.");
  }
  d.HistoriaInicio[personaje] = Trim(historia);
}

void LlenarCombos(DlgInicio& d, Game& g) {
  AnadirEntrada(d, u"Aleatorio", 0);
  if (!FileExists(ArchivoPersonajes(g.t))) {
    const std::u16string_view mensaje =
        u"No se encuentra el archivo con los datos de los personajes. El programa va a terminar su "
        u"ejecución.";
    g.port.MsgBox(g.t, mensaje);
    throw RunTimeError::AlreadyShown(mensaje);
  }
  LineReader archivo{ArchivoPersonajes(g.t)};
  LineasPersonajes lineas{LectorPersonajes::Inicio};
  std::u16string linea;
  while (archivo.Next(linea)) {
    const ClaseLinea clase = lineas.Leer(linea);
    if (clase == ClaseLinea::Nombre) AnadirEntrada(d, Trim(linea), lineas.Personaje());
    if (clase == ClaseLinea::Historia) GuardarHistoria(d, archivo, lineas.Personaje(), linea);
  }
  ExigirCabecera(archivo, lineas);
}

const ComboBox::Entrada& Elegida(const ComboBox& combo) {
  return combo.List.at(static_cast<std::size_t>(combo.ListIndex));
}

void Elegir(DlgInicio& d, ComboBox& combo, int posicion) {
  constexpr int PrimerJugador = 3;  // characters 1 and 2 are the default phrases
  if (posicion < 0 || posicion >= static_cast<int>(combo.List.size())) ThrowIndexOutOfRange();
  combo.ListIndex = posicion;
  const int personaje = Elegida(combo).Personaje;
  if (personaje >= PrimerJugador) d.Text4 = d.HistoriaInicio[personaje].Trimmed();
  d.CbOKEnabled = d.Combo1.ListIndex >= 0 && d.Combo2.ListIndex >= 0 && d.Combo3.ListIndex >= 0;
}

// The objection to the choice of companions; "" if the choice is valid.
std::u16string ReparoALaEleccion(const DlgInicio& d) {
  const auto repetido = [](const ComboBox& uno, const ComboBox& otro) {
    return uno.ListIndex != Aleatorio && uno.ListIndex == otro.ListIndex;
  };
  if (repetido(d.Combo1, d.Combo2) || repetido(d.Combo1, d.Combo3)) {
    return Join(u"Si quiere que ", Elegida(d.Combo1).Texto,
                u" sea su pareja de juego, no puede ser también su oponente. ¿Lógico no?");
  }
  if (repetido(d.Combo2, d.Combo3)) {
    return Join(u"Lo siento, pero ", Elegida(d.Combo2).Texto,
                u" no tiene hermanos gemelos que puedan ser su pareja. Elija otro compañero.");
  }
  return {};
}

// Replaces the choice "Aleatorio" by a random character that the other two combos do not have.
// Throws RunTimeError if there is none.
void ResolverAleatorio(DlgInicio& d, Rnd& rnd, ComboBox& combo) {
  if (combo.ListIndex != Aleatorio) return;
  const auto ocupada = [&d, &combo](int posicion) {
    const std::array<const ComboBox*, 3> combos{&d.Combo1, &d.Combo2, &d.Combo3};
    return std::any_of(combos.begin(), combos.end(), [&combo, posicion](const ComboBox* otro) {
      return otro != &combo && otro->ListIndex == posicion;
    });
  };
  const int ofrecidos = static_cast<int>(combo.List.size()) - 1;
  int libres = 0;
  for (int posicion = 1; posicion <= ofrecidos; ++posicion) libres += ocupada(posicion) ? 0 : 1;
  if (libres == 0) {
    throw RunTimeError{
        u"No hay bastantes personajes en \"Jugadores.dat\" para elegir al azar: hacen falta tres."};
  }
  int posicion = 0;
  do {
    const float r = rnd();
    posicion = static_cast<int>(static_cast<float>(ofrecidos) * r) + 1;
  } while (ocupada(posicion));
  Elegir(d, combo, posicion);
}

void Sentar(DlgInicio& d, Game& g, ComboBox& combo, Seat asiento) {
  ResolverAleatorio(d, g.rnd, combo);
  g.t.PersonajeAsiento[asiento - 1] = Elegida(combo).Personaje;
}

void AnotarNombre(const DlgInicio& d, Table& t) {
  t.NombreJugador = Trim(d.Text2);
  if (t.NombreJugador.empty()) t.NombreJugador = u"Jugador 1";
  t.Personajes[0].Nombre = t.NombreJugador;
}

// The saved name is only the default of the next game, so a write error does not end this one. The
// message is shown once, not at every change of companions.
void RecordarNombre(const DlgInicio& d, Game& g) {
  try {
    GuardarIni(g.t, Trim(d.Text2));
  } catch (const WriteError& error) {
    if (std::exchange(g.t.AvisadoSinNombre, true)) return;
    g.port.MsgBox(g.t, Join(u"No se ha podido guardar su nombre en mus.ini: ", error.Reason(),
                            u" La partida se juega igual."));
  }
}

}  // namespace

void Form_Load(DlgInicio& d, Game& g) {
  LlenarCombos(d, g);
  const std::u16string nombre = LeerIni(g.t);
  if (!nombre.empty()) d.Text2 = nombre;
  SembrarConHora(g);
  Combo1_Click(d, Aleatorio);
  Combo2_Click(d, Aleatorio);
  Combo3_Click(d, Aleatorio);
  MostrarEjemplo(d);
}

void Combo1_Click(DlgInicio& d, int posicion) { Elegir(d, d.Combo1, posicion); }
void Combo2_Click(DlgInicio& d, int posicion) { Elegir(d, d.Combo2, posicion); }
void Combo3_Click(DlgInicio& d, int posicion) { Elegir(d, d.Combo3, posicion); }

void Check1_Click(DlgInicio& d, int indice, bool marcada) {
  d.Check1[indice] = marcada;
  MostrarEjemplo(d);
}

void Option1_Click(DlgInicio& d, int indice) {
  d.Option1 = indice;
  MostrarEjemplo(d);
}

bool CbOK_Click(DlgInicio& d, Game& g) {
  if (!d.CbOKEnabled) return false;
  const std::u16string reparo = ReparoALaEleccion(d);
  if (!reparo.empty()) {
    g.port.MsgBox(g.t, reparo);
    return false;
  }
  Sentar(d, g, d.Combo1, 3);
  Sentar(d, g, d.Combo2, 2);
  Sentar(d, g, d.Combo3, 4);
  AnotarNombre(d, g.t);
  RecordarNombre(d, g);
  g.t.EstiloDirecto = d.Option1 == 0;
  g.t.UsarNombres = d.Check1[0];
  g.t.UsarExpresiones = d.Check1[1];
  return true;
}

void MostrarEjemplo(DlgInicio& d) {
  const bool directo = d.Option1 == 0;
  std::u16string quien = directo ? u"jugador 3" : u"El jugador 3";
  if (d.Check1[0]) quien = u"La boticaria";
  d.Text3 = Join(quien, directo ? u": " : u" dice: ",
                 d.Check1[1] ? u"Sí, como bueyes" : u"Sí tengo pares");
}

}  // namespace tasca
