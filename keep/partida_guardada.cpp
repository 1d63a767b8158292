// The list of the kept fields, the header and the checks.
#include "keep/partida_guardada.h"

#include <bitset>
#include <memory>
#include <type_traits>

#include "cards/deck.h"
#include "keep/flujos.h"
#include "keep/sello.h"

namespace tasca {
namespace {

// Every change of the fields below needs a new number: an older match cannot be continued.
constexpr std::string_view Cabecera = "tasca-partida 1\n";
constexpr Intervalo Cualquiera{};
constexpr Intervalo Natural{0, INT16_MAX};
constexpr Intervalo Parametro{1, 999};  // as in "mus.ini"
constexpr Intervalo UnaCarta{1, CartasBaraja};
constexpr Intervalo CartaONinguna{0, CartasBaraja};
constexpr Intervalo UnAsiento{1, 4};
constexpr Intervalo AsientoONinguno{0, 4};
constexpr Intervalo UnaPareja{0, 1};
constexpr Intervalo SiONo{0, 1};

// A number or an array of numbers.
template <class Flujo, class T>
void Numeros(Flujo& f, T& numeros, Intervalo posibles) {
  if constexpr (requires { numeros.begin(); }) {
    for (auto& numero : numeros) Numeros(f, numero, posibles);
  } else {
    f.Numero(numeros, posibles);
  }
}

// Each structured binding below names all fields of its struct: a new field does not compile until
// it is kept here, or listed as one that is not.

template <class Flujo, class Ajustes>
void PasarSonido(Flujo& f, Ajustes& ajustes) {
  constexpr int Extremo = 10'000;
  auto& [veces, balance, volumen] = ajustes;
  Numeros(f, veces, AsientoONinguno);
  Numeros(f, balance, {-Extremo, Extremo});
  Numeros(f, volumen, {-Extremo, 0});
}

template <class Flujo, class UnDicho>
void PasarDicho(Flujo& f, UnDicho& dicho) {
  auto& [asiento, categoria, cantidad, frase] = dicho;
  Numeros(f, asiento, UnAsiento);
  Numeros(f, categoria, {1, CategoriasMensaje});
  Numeros(f, cantidad, {SinCantidad, INT16_MAX});
  f.Texto(frase);
}

// Cartas is the same in every match and is built again.
template <class Flujo, class Estado>
void PasarMesa(Flujo& f, Estado& mesa) {
  auto& [cartas, baraja, cartaSiguiente, descarteSiguiente, manos, ordenAsiento, manoPorDecidir,
         fase, seguirLance, rondasMus, parejaCortaMus, ordagueroAsiento, apuesta, declaracion,
         parejaEnvite, seJuegaPunto, ordenPares, turnoJuego, piedras, juegos, vacas, piedrasJuego,
         juegosVaca, vacasPartida, sonidoActual, cartasCambiadas, posicionSonido, sonidosDados, mp1,
         text1, text2, text3, dichos, cartasVistas] = mesa;
  Numeros(f, baraja, UnaCarta);
  Numeros(f, cartaSiguiente, UnaCarta);
  Numeros(f, descarteSiguiente, UnaCarta);
  Numeros(f, manos, UnaCarta);
  Numeros(f, ordenAsiento, UnAsiento);
  Numeros(f, manoPorDecidir, SiONo);
  Numeros(f, fase, {static_cast<int>(Fase::EmpezarMano), static_cast<int>(Fase::Cuenta)});
  Numeros(f, seguirLance, {EnviteOrdago, INT16_MAX});
  Numeros(f, rondasMus, Natural);
  Numeros(f, parejaCortaMus, UnaPareja);
  Numeros(f, ordagueroAsiento, Cualquiera);
  Numeros(f, apuesta, {ApuestaPagada, INT16_MAX});
  Numeros(f, declaracion, {SinDeclaracion, 1});
  Numeros(f, parejaEnvite, UnaPareja);
  Numeros(f, seJuegaPunto, SiONo);
  Numeros(f, ordenPares, AsientoONinguno);
  Numeros(f, turnoJuego, AsientoONinguno);
  Numeros(f, piedras, Cualquiera);
  Numeros(f, juegos, Natural);
  Numeros(f, vacas, Natural);
  Numeros(f, piedrasJuego, Parametro);
  Numeros(f, juegosVaca, Parametro);
  Numeros(f, vacasPartida, Parametro);
  Numeros(f, sonidoActual, {-2, 0});
  Numeros(f, cartasCambiadas, AsientoONinguno);
  Numeros(f, posicionSonido, AsientoONinguno);
  Numeros(f, sonidosDados, Natural);
  PasarSonido(f, mp1);
  f.Texto(text1);
  f.Texto(text2);
  f.Texto(text3);
  f.Lista(dichos);
  for (auto& dicho : dichos) PasarDicho(f, dicho);
  Numeros(f, cartasVistas, CartaONinguna);
}

template <class Flujo, class UnPersonaje, class Frases>
void PasarPersonaje(Flujo& f, UnPersonaje& personaje, Frases& categorias) {
  auto& [nombre, ordaguero, historia] = personaje;
  f.Texto(nombre);
  Numeros(f, ordaguero, Cualquiera);
  f.Texto(historia);
  for (auto& huecos : categorias) {
    for (auto& frase : huecos) f.Texto(frase);
  }
}

// Record 0 has the name of the human, which NombreJugador holds too.
template <class Flujo, class Estado>
void PasarPrograma(Flujo& f, Estado& programa) {
  auto& [personajes, mensajes, personajeAsiento, nombreJugador, estiloDirecto, usarNombres,
         usarExpresiones, avisadoSinNombre, carpeta, archivoDePersonajes, sinGuardar] = programa;
  for (Seat asiento = 2; asiento <= 4; ++asiento) {
    Numeros(f, personajeAsiento[asiento - 1], {1, MaximoPersonajes});
  }
  constexpr int IndirectoPorDefecto = 1;
  constexpr int DirectoPorDefecto = 2;
  for (const int numero : {IndirectoPorDefecto, DirectoPorDefecto, int{personajeAsiento[1]},
                           int{personajeAsiento[2]}, int{personajeAsiento[3]}}) {
    if (numero > 0) PasarPersonaje(f, personajes[numero], mensajes[numero]);
  }
  f.Texto(nombreJugador);
  Numeros(f, estiloDirecto, SiONo);
  Numeros(f, usarNombres, SiONo);
  Numeros(f, usarExpresiones, SiONo);
}

// A half of the table, constant if the table is.
template <class Tabla, class Mitad>
using ComoEn = std::conditional_t<std::is_const_v<Tabla>, const Mitad, Mitad>;

template <class Flujo, class Tabla, class Generador>
void PasarPartida(Flujo& f, Tabla& t, Generador& rnd) {
  PasarPrograma<Flujo, ComoEn<Tabla, Module1State>>(f, t);
  f.Generador(rnd);
  PasarMesa<Flujo, ComoEn<Tabla, Form1State>>(f, t);
}

// A set of card numbers.
using Cartas = std::bitset<CartasBaraja + 1>;

bool DanLaVuelta(const Array<Integer, 1, 4>& orden) {
  for (int i = 1; i < 4; ++i) {
    if (orden[i + 1] != orden[i] % 4 + 1) return false;
  }
  return true;
}

bool EstanOrdenadas(const Table& t) {
  for (Seat asiento = 1; asiento <= 4; ++asiento) {
    for (int hueco = 1; hueco < 4; ++hueco) {
      const int valor = CartaDe(t, asiento, hueco).ValorGrande;
      if (valor < CartaDe(t, asiento, hueco + 1).ValorGrande) return false;
    }
  }
  return true;
}

// Before the first discards the deck is whole and the hands are its first 16 cards. Later the
// discards lie in the deck, and a card that was dealt may still stand there.
bool SonDeUnaBaraja(const Table& t) {
  if (t.Fase != Fase::Mus || t.RondasMus != 0) return true;
  Cartas enLaBaraja;
  Cartas repartidas;
  Cartas enLasManos;
  for (int i = 1; i <= CartasBaraja; ++i) {
    const auto carta = static_cast<std::size_t>(t.Baraja[i]);
    enLaBaraja.set(carta);
    if (i < t.CartaSiguiente) repartidas.set(carta);
  }
  for (const auto& mano : t.Manos) {
    for (const int carta : mano) enLasManos.set(static_cast<std::size_t>(carta));
  }
  return enLaBaraja.count() == CartasBaraja && enLasManos == repartidas;
}

}  // namespace

std::string EscribirPartida(const Table& t, const Rnd& rnd) {
  EscritorPartida escritor;
  PasarPartida(escritor, t, rnd);
  return ConCabecera(escritor.Bytes());
}

std::string ConCabecera(std::string_view valores) { return Sellar(Cabecera, valores); }

std::string_view SumaDePartida(std::string_view bytes) { return SumaSellada(Cabecera, bytes); }

bool LeerPartida(std::string_view bytes, Table& t, Rnd& rnd) {
  const std::optional<std::string_view> valores = Abrir(Cabecera, bytes);
  if (!valores) return false;
  const auto leida = std::make_unique<Table>();
  Rnd generador;
  LectorPartida lector{*valores};
  PasarPartida(lector, *leida, generador);
  if (!lector.BienLeido()) return false;
  CrearCartas(*leida);
  if (!DanLaVuelta(leida->OrdenAsiento) || !EstanOrdenadas(*leida) || !SonDeUnaBaraja(*leida)) {
    return false;
  }
  leida->Personajes[0].Nombre = leida->NombreJugador;
  leida->Carpeta = t.Carpeta;
  leida->ArchivoDePersonajes = t.ArchivoDePersonajes;
  leida->SinGuardar = t.SinGuardar;
  leida->AvisadoSinNombre = t.AvisadoSinNombre;
  t = *leida;
  rnd = generador;
  return true;
}

}  // namespace tasca
