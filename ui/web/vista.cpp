// The fields of a view.
#include "ui/web/vista.h"

#include <array>

#include "ui/loudspeaker/gains.h"
#include "ui/manual/asunto.h"

namespace tasca {
namespace {

void EscribirSuceso(Json& json, const Suceso& suceso) {
  json.Object([&] {
    json.Field("suceso", suceso.Calla ? "calla" : "sonido");
    if (!suceso.Calla) json.Field("archivo", suceso.Archivo);
    json.Field("veces", int{suceso.Ajustes.Veces});
    json.Field("balance", int{suceso.Ajustes.Balance});
    json.Field("volumen", int{suceso.Ajustes.Volumen});
    if (suceso.Calla) return;
    const Gains factores = GainsFor(suceso.Ajustes.Balance, suceso.Ajustes.Volumen);
    json.Field("izquierda", factores.Izquierda);
    json.Field("derecha", factores.Derecha);
  });
}

struct Rotulado {
  std::u16string_view Rotulo;
  int Elegido = 0;
};

void EscribirListas(Json& json, const DlgInicio& d) {
  json.ListField("lista", d.Combo1.List, [&](const ComboBox::Entrada& entrada) {
    const bool tieneHistoria = entrada.Personaje > 0 && entrada.Personaje <= MaximoHistorias;
    json.Object([&] {
      json.Field("texto", entrada.Texto);
      json.Field("historia", tieneHistoria ? d.HistoriaInicio[entrada.Personaje].Trimmed() : u"");
    });
  });
  const std::array<Rotulado, 3> combos{{{u"Compañero:", d.Combo1.ListIndex},
                                        {u"Contrario 1:", d.Combo2.ListIndex},
                                        {u"Contrario 2:", d.Combo3.ListIndex}}};
  json.ListField("combos", combos, [&](const Rotulado& combo) {
    json.Object([&] {
      json.Field("rotulo", combo.Rotulo);
      json.Field("elegido", combo.Elegido);
    });
  });
}

void EscribirNarracion(Json& json, const DlgInicio& d) {
  const std::array<Rotulado, 2> casillas{
      {{u"Usar los nombres de los jugadores", d.Check1[0] ? 1 : 0},
       {u"Usar las expresiones de los jugadores", d.Check1[1] ? 1 : 0}}};
  json.ListField("casillas", casillas, [&](const Rotulado& casilla) {
    json.Object([&] {
      json.Field("rotulo", casilla.Rotulo);
      json.Field("marcada", casilla.Elegido == 1);
    });
  });
  json.ObjectField("estilo", [&] {
    constexpr std::array<std::u16string_view, 2> Estilos{u"Estilo directo", u"Estilo indirecto"};
    json.Field("rotulo", u"Narración");
    json.ListField("opciones", Estilos);
    json.Field("elegido", d.Option1);
  });
}

void EscribirInicio(Json& json, const DlgInicio& d) {
  json.Object([&] {
    json.Field("bienvenida", d.Text1);
    json.ObjectField("nombre", [&] {
      json.Field("rotulo", u"Su nombre:");
      json.Field("valor", d.Text2);
      json.Field("maximo", AnchoNombre);
    });
    EscribirListas(json, d);
    EscribirNarracion(json, d);
    json.Field("ejemplo", d.Text3);
    json.Field("historia", d.Text4);
    json.ObjectField("botones", [&] {
      json.ObjectField("aceptar", [&] {
        json.Field("rotulo", u"Aceptar");
        json.Field("activo", d.CbOKEnabled);
      });
      json.ObjectField("salir", [&] { json.Field("rotulo", u"Salir del juego"); });
    });
  });
}

void EscribirFinal(Json& json, const Desenlace& final) {
  json.Object([&] {
    json.Field("estado", final.Estado);
    json.Field("mensaje", final.YaMostrado ? u"" : final.Mensaje);
  });
}

bool EstaEnInicio(Situacion situacion) {
  return situacion == Situacion::EnInicio || situacion == Situacion::OtrosJugadores;
}

std::string_view NombreDe(Situacion situacion) {
  if (situacion == Situacion::Fin) return "fin";
  return EstaEnInicio(situacion) ? "inicio" : "mesa";
}

std::string_view AnclaDe(const Session& sesion, const PreguntaAbierta* pregunta) {
  if (EstaEnInicio(sesion.Ahora())) return AnchorOf(Asunto::Inicio);
  if (pregunta != nullptr && pregunta->Sobre) return AnchorOf(AsuntoDe(*pregunta->Sobre));
  return AnchorOf(AsuntoDe(sesion.Mesa().Fase));
}

}  // namespace

std::string JsonDeVista(const Session& sesion, const PreguntaAbierta* pregunta,
                        const Novedades& novedades) {
  const Table& t = sesion.Mesa();
  const Situacion situacion = sesion.Ahora();
  Json json;
  json.Object([&] {
    json.Field("situacion", NombreDe(situacion));
    json.ListField("textos", std::array<std::u16string_view, 3>{t.Text1, t.Text2, t.Text3});
    json.Key("pregunta");
    pregunta != nullptr ? EscribirPregunta(json, *pregunta) : json.Null();
    json.ListField("sucesos", novedades.Sucesos,
                   [&](const Suceso& suceso) { EscribirSuceso(json, suceso); });
    json.ListField("dichos", novedades.Dichos);
    json.Field("asunto", AnclaDe(sesion, pregunta));
    json.Field("aviso", novedades.Aviso);
    json.Key("inicio");
    EstaEnInicio(situacion) ? EscribirInicio(json, sesion.Inicio()) : json.Null();
    json.ListField("archivos", novedades.Archivos);
    json.Key("final");
    situacion == Situacion::Fin ? EscribirFinal(json, sesion.Final()) : json.Null();
  });
  return json.Text();
}

}  // namespace tasca
