// The buttons of each kind of question.
#include "ui/web/pregunta.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/text.h"
#include "cards/deck.h"
#include "ui/manual/card_reference.h"
#include "ui/mesa/palabras.h"
#include "ui/spoken/sentences.h"

namespace tasca {
namespace {

struct Boton {
  int Indice = 0;
  std::u16string_view Rotulo;
  std::u16string_view Letra;
};

std::u16string_view LetraDe(std::u16string_view rotulo) {
  constexpr std::array<std::array<std::u16string_view, 2>, 5> Letras{{{u"Paso", u"P"},
                                                                      {u"Envido", u"E"},
                                                                      {u"Envido Más", u"M"},
                                                                      {u"Órdago", u"O"},
                                                                      {u"Quiero", u"Q"}}};
  for (const auto& [boton, letra] : Letras) {
    if (boton == rotulo) return letra;
  }
  return {};
}

std::vector<Boton> BotonesDe(const PreguntaAbierta& pregunta) {
  constexpr std::u16string_view Aceptar = u"Aceptar";
  switch (pregunta.Clase) {
    case ClasePregunta::Aviso:
      return {{0, Aceptar, u""}};
    case ClasePregunta::SiNo:
      return {{0, u"Sí", u"S"}, {1, u"No", u"N"}};
    case ClasePregunta::Texto:
      return {{0, Aceptar, u""}, {1, u"Cancelar", u""}};
    case ClasePregunta::Envite:
      break;
  }
  std::vector<Boton> botones;
  int indice = 0;
  for (const DialogButton& boton : pregunta.Dialogo.Command1) {
    if (boton.Visible && boton.Enabled) {
      botones.push_back({indice, boton.Caption, LetraDe(boton.Caption)});
    }
    ++indice;
  }
  return botones;
}

std::string_view NombreDe(ClasePregunta clase) {
  constexpr std::array<std::string_view, 4> Nombres{"aviso", "siNo", "texto", "envite"};
  return Nombres.at(static_cast<std::size_t>(clase));
}

std::string_view SobreQue(const PreguntaAbierta& pregunta) {
  constexpr std::array<std::string_view, 8> Nombres{
      "Mus",         "Descarte",         "Pares",        "Juego", "Cantidad",
      "OtraPartida", "CambiarJugadores", "SeguirPartida"};
  if (pregunta.Sobre) return Nombres.at(static_cast<std::size_t>(*pregunta.Sobre));
  return pregunta.Clase == ClasePregunta::Envite ? "Envite" : "Aviso";
}

int FocoDe(const PreguntaAbierta& pregunta) {
  if (pregunta.Clase == ClasePregunta::Envite) return pregunta.Dialogo.Foco;
  return pregunta.Clase == ClasePregunta::SiNo && !pregunta.Si ? 1 : 0;
}

// The bidding dialog has no text: its buttons are read out.
std::u16string Hablado(const PreguntaAbierta& pregunta, const std::vector<Boton>& botones) {
  if (pregunta.Clase != ClasePregunta::Envite) return SinRelleno(pregunta.Texto);
  std::u16string rotulos;
  for (const Boton& boton : botones) {
    if (!rotulos.empty()) rotulos += u", ";
    rotulos += boton.Rotulo;
  }
  return rotulos;
}

void EscribirCartas(Json& json, const Array<Integer, 1, 4>& mano) {
  int hueco = 0;
  json.ListField("cartas", mano, [&](int carta) {
    ++hueco;
    if (carta == 0) return;
    json.Object([&] {
      json.Field("hueco", hueco);
      json.Field("carta", carta);
      json.Field("dibujo", std::string_view{NameOfCard(carta)});
      json.Field("nombre", std::u16string_view{NombreDeCarta(carta)});
    });
  });
}

// What only some questions have.
void EscribirAyudas(Json& json, const PreguntaAbierta& pregunta) {
  if (pregunta.Clase == ClasePregunta::SiNo) json.Field("icono", pregunta.ConIcono);
  if (pregunta.Clase == ClasePregunta::Envite) {
    json.Field("modo", static_cast<int>(pregunta.Dialogo.Modo));
  }
  if (pregunta.Clase != ClasePregunta::Texto) return;
  json.Field("porDefecto", pregunta.PorDefecto);
  if (pregunta.Sobre == Pregunta::Descarte) EscribirCartas(json, pregunta.SusCartas);
  if (pregunta.Sobre == Pregunta::Cantidad) {
    json.Field("minimo", 1);
    json.Field("maximo", INT16_MAX);
  }
}

}  // namespace

bool Vale(const PreguntaAbierta& pregunta, const Entrada& respuesta) {
  switch (respuesta.Clase) {
    case ClaseEntrada::Aceptado:
      return pregunta.Clase == ClasePregunta::Aviso;
    case ClaseEntrada::Si:
    case ClaseEntrada::No:
      return pregunta.Clase == ClasePregunta::SiNo;
    case ClaseEntrada::Texto:
    case ClaseEntrada::Cancelado:
      return pregunta.Clase == ClasePregunta::Texto;
    case ClaseEntrada::Boton:
      break;
    case ClaseEntrada::FinDeSonido:
      return false;
  }
  if (pregunta.Clase != ClasePregunta::Envite) return false;
  const std::vector<Boton> botones = BotonesDe(pregunta);
  return std::any_of(botones.begin(), botones.end(),
                     [&respuesta](const Boton& boton) { return boton.Indice == respuesta.Numero; });
}

void EscribirPregunta(Json& json, const PreguntaAbierta& pregunta) {
  const std::vector<Boton> botones = BotonesDe(pregunta);
  json.Object([&] {
    json.Field("clase", NombreDe(pregunta.Clase));
    json.Field("sobre", SobreQue(pregunta));
    json.Field("titulo", pregunta.Titulo.empty() ? TituloAplicacion : pregunta.Titulo);
    json.Field("texto", pregunta.Texto);
    json.Field("hablado", Hablado(pregunta, botones));
    EscribirAyudas(json, pregunta);
    json.ListField("botones", botones, [&](const Boton& boton) {
      json.Object([&] {
        json.Field("indice", boton.Indice);
        json.Field("rotulo", boton.Rotulo);
        json.Field("letra", boton.Letra);
      });
    });
    json.Field("foco", FocoDe(pregunta));
  });
}

}  // namespace tasca
