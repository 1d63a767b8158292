// Builds the spoken lines.
#include "characters/speech.h"

#include "base/text.h"

namespace tasca {
namespace {

// The characters whose phrases in slot 1 are the default phrases, by style.
constexpr int PersonajeIndirecto = 1;
constexpr int PersonajeDirecto = 2;

std::u16string_view FrasePorDefecto(const Table& t, MessageCategory categoria) {
  const int personaje = t.EstiloDirecto ? PersonajeDirecto : PersonajeIndirecto;
  return Mensaje(t, personaje, categoria, 1).Trimmed();
}

// One spoken line: the label of the speaker ("Ana dice: ") and the words.
struct Linea {
  std::u16string Etiqueta;
  std::u16string Frase;
};

// Kept: the amount replaces every "&", also in the human's name.
Linea LineaHumano(const Table& t, MessageCategory categoria, int cantidad) {
  Linea linea{Join(t.NombreJugador, t.EstiloDirecto ? u": " : u" dice "),
              std::u16string{FrasePorDefecto(t, categoria)}};
  if (cantidad == SinCantidad) return linea;
  return {ReplaceAll(linea.Etiqueta, u"&", ToText(cantidad)),
          ReplaceAll(linea.Frase, u"&", ToText(cantidad))};
}

std::u16string Etiqueta(const Table& t, Seat asiento) {
  std::u16string nombre = Join(t.EstiloDirecto ? u"Jugador " : u"El jugador ", asiento);
  if (t.UsarNombres) nombre = PersonajeDe(t, asiento).Nombre.Trimmed();
  return nombre + (t.EstiloDirecto ? u":" : u" dice:");
}

// A random phrase of the character's own three.
// Kept: the phrase is copied to a second random slot, so a character repeats itself more and more.
std::u16string SacarExpresion(Table& t, Rnd& rnd, int personaje, MessageCategory categoria) {
  const float r1 = rnd();
  const float r2 = rnd();
  const auto hueco = [](float r) { return static_cast<int>(3.0F * r) + 1; };
  auto& frases = t.Mensajes[personaje][categoria];
  const FixedText<AnchoFrase> elegida = frases[hueco(r1)];
  frases[hueco(r2)] = elegida;
  return std::u16string{elegida.Trimmed()};
}

// The words of a computer seat. A phrase that was never filled is replaced by the default phrase.
// Kept: an empty phrase ends the program. It is empty if it is blank, or without UsarExpresiones.
std::u16string Frase(Table& t, Rnd& rnd, int personaje, MessageCategory categoria) {
  std::u16string frase;
  if (t.UsarExpresiones) frase = SacarExpresion(t, rnd, personaje, categoria);
  if (frase.empty()) {
    ThrowInvalidCall(
        u"Un personaje no tiene nada que decir: marque la casilla \"Usar las expresiones de los "
        u"jugadores\" al empezar y compruebe que no haya frases en blanco en \"Jugadores.dat\".");
  }
  return frase.front() == u'\0' ? std::u16string{FrasePorDefecto(t, categoria)} : frase;
}

std::u16string ConCantidad(std::u16string frase, MessageCategory categoria, int cantidad) {
  if (cantidad == SinCantidad) return frase;
  if (Contains(frase, u"&")) return ReplaceAll(frase, u"&", ToText(cantidad));
  if (categoria == MessageCategory::EnvM) return Join(TrimRight(frase), u" ", cantidad);
  return frase;
}

Linea LineaComputador(Table& t, Rnd& rnd, Seat asiento, MessageCategory categoria, int cantidad) {
  const int personaje = t.PersonajeAsiento[asiento - 1];
  std::u16string etiqueta = Etiqueta(t, asiento);
  const std::u16string frase = Frase(t, rnd, personaje, categoria);
  // "La boticaria dice: que ..." loses all colons, also those of the name.
  if (!t.EstiloDirecto && frase.starts_with(u"que")) etiqueta = ReplaceAll(etiqueta, u":", u"");
  return {etiqueta + u" ", ConCantidad(frase, categoria, cantidad)};
}

}  // namespace

void DiceJugador(Table& t, Rnd& rnd, Seat asiento, MessageCategory categoria, Integer cantidad) {
  const Linea linea = asiento < 2 ? LineaHumano(t, categoria, cantidad)
                                  : LineaComputador(t, rnd, asiento, categoria, cantidad);
  t.Text2 += Join(linea.Etiqueta, linea.Frase, CrLf);
  t.Dichos.push_back(
      {.Asiento = asiento, .Categoria = categoria, .Cantidad = cantidad, .Frase = linea.Frase});
}

void EmpezarRelato(Table& t, std::u16string_view texto) {
  t.Text2 = texto;
  t.Dichos.clear();
}

}  // namespace tasca
