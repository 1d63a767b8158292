// Runs the three readers over a character file and notes the faults of each line.
#include "characters/check.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "base/code_page.h"
#include "base/line_file.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/utf8_check.h"
#include "characters/character_file.h"
#include "characters/check_notes.h"

namespace tasca {
namespace {

constexpr int JuegosDeFrases = 2;  // characters 1 and 2 hold the default phrases
constexpr int MinimoOfrecidos = 3;
constexpr std::u16string_view SeDetiene = u", y aquí se detiene el programa";

// The progress of the game or the editor as a reader.
struct Revisor {
  Lectores Quien;
  LineasPersonajes Lineas;
  int LineaPersonaje = 0;
  bool TieneMarca = false;  // the current record has had a known marker
  Array<Array<bool, 1, HuecosFrase>, 1, static_cast<int>(EtiquetasMensaje.size())> Llenos{};
};

void ExaminarAncho(CuadernoFaltas& c, Lectores quien, std::u16string_view queEs, std::size_t ancho,
                   std::u16string_view texto) {
  const std::size_t largo = Trim(texto).size();
  if (largo <= ancho) return;
  c.Anotar(quien, Join(queEs, u" tiene ", static_cast<int>(largo),
                       u" caracteres y solo se leen los ", static_cast<int>(ancho), u" primeros"));
}

void ExaminarNombre(CuadernoFaltas& c, const Revisor& l, std::u16string_view linea) {
  if (Trim(linea).empty()) c.Anotar(l.Quien, u"el nombre está vacío");
  const int personaje = l.Lineas.Personaje();
  if (personaje <= JuegosDeFrases && !Contains(linea, u"Default")) {
    c.Anotar(l.Quien, Join(u"el nombre del personaje ", personaje,
                           u", el de las frases de quien no tiene otras, no lleva \"Default\": se "
                           u"ofrece como jugador"));
  }
}

bool EsEnteroCorto(std::u16string_view texto, std::size_t cifras) {
  if (texto.size() > cifras) return false;
  if (texto.starts_with(u'-') || texto.starts_with(u'+')) texto.remove_prefix(1);
  return !texto.empty() && texto.find_first_not_of(u"0123456789") == std::u16string_view::npos;
}

void ExaminarOrdaguero(CuadernoFaltas& c, const Revisor& l, std::u16string_view linea) {
  const int leido = LeadingWhole(linea.substr(0, CifrasOrdaguero));
  const std::u16string_view escrito = Trim(linea);
  if (EsEnteroCorto(escrito, CifrasOrdaguero) && LeadingWhole(escrito) == leido) return;
  c.Anotar(l.Quien, Join(u"el valor de ordaguero ", Cita(linea),
                         u" no es un número entero de tres caracteres como mucho: se lee ", leido));
}

void ExaminarTextoDeCabecera(CuadernoFaltas& c, const Revisor& l, ClaseLinea clase,
                             std::u16string_view linea) {
  const std::u16string_view queEs = NombreDe(clase);
  ExaminarAncho(c, l.Quien, queEs, clase == ClaseLinea::Nombre ? AnchoNombre : AnchoHistoria,
                linea);
  if (Contains(linea, u">")) {
    c.Anotar(l.Quien, Join(queEs, u" lleva el signo \">\", que es solo de las marcas"));
  }
}

// Notes that a phrase overwrites an earlier one of the same record, kind and slot.
void OcuparHueco(CuadernoFaltas& c, Revisor& l, std::u16string_view etiqueta) {
  bool& lleno = l.Llenos[l.Lineas.Categoria()][l.Lineas.Hueco()];
  if (lleno) {
    c.Anotar(l.Quien, Join(u"ya hay una frase ", l.Lineas.Hueco(), u" de ", Cita(etiqueta),
                           u": esta toma su sitio y aquella se pierde"));
  }
  lleno = true;
}

void ExaminarFrase(CuadernoFaltas& c, Revisor& l, std::u16string_view linea) {
  if (l.Lineas.Personaje() == 0) {
    return c.Anotar(l.Quien, Join(u"hay una frase antes del primer personaje", SeDetiene));
  }
  const std::u16string_view etiqueta =
      EtiquetasMensaje.at(static_cast<std::size_t>(l.Lineas.Categoria() - 1));
  if (!l.TieneMarca) {
    c.Anotar(l.Quien, Join(u"la frase va antes de la primera marca del personaje: se lee como de ",
                           Cita(etiqueta)));
  }
  OcuparHueco(c, l, etiqueta);
  ExaminarAncho(c, l.Quien, u"la frase", AnchoFrase, linea);
  if (Trim(linea).empty()) {
    c.Anotar(l.Quien,
             u"la frase está vacía: el programa se detiene cuando un jugador va a decirla");
  }
  if (Contains(linea, u"&") && l.Lineas.Categoria() != static_cast<int>(MessageCategory::EnvM)) {
    c.Anotar(l.Quien,
             u"el signo \"&\" se ve tal cual: solo en las frases de \"EnvM\" es la cantidad");
  }
}

// Notes the missing default phrases: slot 1 of characters 1 and 2, spoken by the human and by
// computer players without their own phrase.
void TerminarPersonaje(CuadernoFaltas& c, const Revisor& l, int personaje) {
  if (personaje == 0 || personaje > JuegosDeFrases) return;
  int categoria = 0;
  for (const std::u16string_view etiqueta : EtiquetasMensaje) {
    if (l.Llenos[++categoria][1]) continue;
    c.Anotar(l.Quien, l.LineaPersonaje,
             Join(u"al personaje ", personaje, u" le falta la frase 1 de ", Cita(etiqueta),
                  u", la de quien no tiene otra"));
  }
}

void EmpezarPersonaje(CuadernoFaltas& c, Revisor& l) {
  const int personaje = l.Lineas.Personaje();
  TerminarPersonaje(c, l, personaje - 1);
  l.LineaPersonaje = c.Linea;
  l.TieneMarca = false;
  l.Llenos = {};
  if (personaje == MaximoPersonajes + 1) {
    c.Anotar(l.Quien, Join(u"hay más de ", MaximoPersonajes, u" personajes", SeDetiene));
  }
}

void AnotarDesconocida(CuadernoFaltas& c, Lectores quien, std::u16string_view etiqueta) {
  std::u16string texto = Join(u"la marca ", Cita(etiqueta), u" es desconocida");
  const int categoria = CategoriaDe(etiqueta, EqualIgnoringCase);
  if (categoria > 0) {
    texto +=
        Join(u": se escribe ", Cita(EtiquetasMensaje.at(static_cast<std::size_t>(categoria - 1))));
  } else if (EqualIgnoringCase(etiqueta, EtiquetaDatos)) {
    texto += Join(u": se escribe ", Cita(EtiquetaDatos));
  }
  c.Anotar(quien, texto);
}

void ExaminarResto(CuadernoFaltas& c, const Revisor& l, std::u16string_view linea) {
  if (Trim(linea.substr(linea.find(u'>') + 1)).empty()) return;
  c.Anotar(l.Quien, u"lo que sigue a la marca en su línea se pierde");
}

// Examines one line for the game or the editor. True if it starts a record.
bool Revisar(CuadernoFaltas& c, Revisor& l, std::u16string_view linea) {
  const ClaseLinea clase = l.Lineas.Leer(linea);
  switch (clase) {
    case ClaseLinea::Personaje:
      EmpezarPersonaje(c, l);
      ExaminarResto(c, l, linea);
      break;
    case ClaseLinea::Nombre:
      ExaminarNombre(c, l, linea);
      ExaminarTextoDeCabecera(c, l, clase, linea);
      break;
    case ClaseLinea::Ordaguero:
      ExaminarOrdaguero(c, l, linea);
      break;
    case ClaseLinea::Historia:
      ExaminarTextoDeCabecera(c, l, clase, linea);
      break;
    case ClaseLinea::Categoria:
      l.TieneMarca = true;
      ExaminarResto(c, l, linea);
      break;
    case ClaseLinea::Desconocida:
      AnotarDesconocida(c, l.Quien, Before(linea, u'>'));
      break;
    case ClaseLinea::Frase:
      ExaminarFrase(c, l, linea);
      break;
    case ClaseLinea::Ajena:
      break;
  }
  return clase == ClaseLinea::Personaje;
}

// The progress of the start-up dialog as a reader.
struct Oferta {
  LineasPersonajes Lineas{LectorPersonajes::Inicio};
  int Ofrecidos = 0;
};

// Examines one line for the start-up dialog. True if it starts a record.
bool Revisar(CuadernoFaltas& c, Oferta& l, std::u16string_view linea) {
  const ClaseLinea clase = l.Lineas.Leer(linea);
  if (clase == ClaseLinea::Nombre) ++l.Ofrecidos;
  if (clase == ClaseLinea::Historia && l.Lineas.Personaje() > MaximoHistorias) {
    c.Anotar(LectorInicio,
             Join(u"el personaje ", l.Lineas.Personaje(), u" se ofrece, y solo los ",
                  MaximoHistorias, u" primeros pueden sentarse a la mesa", SeDetiene));
  }
  return clase == ClaseLinea::Personaje;
}

// The hexadecimal codes of the distinct characters for which `es` is true: "00, 1B".
std::u16string Codigos(std::u16string_view linea, bool (*es)(char16_t letra)) {
  constexpr std::u16string_view Cifras = u"0123456789ABCDEF";
  std::u16string vistos;
  std::u16string lista;
  for (const char16_t letra : linea) {
    if (!es(letra) || Contains(vistos, {&letra, 1})) continue;
    vistos += letra;
    if (!lista.empty()) lista += u", ";
    lista += Cifras[letra >> 4U];
    lista += Cifras[letra & 0xFU];
  }
  return lista;
}

void ExaminarLetras(CuadernoFaltas& c, std::u16string_view linea) {
  const std::u16string controles =
      Codigos(linea, [](char16_t letra) { return letra < u' ' || letra == u'\u007F'; });
  if (!controles.empty()) {
    c.Anotar(TodosLosLectores, Join(u"hay caracteres de control (", controles, u")"));
  }
  const std::u16string sinLetra =
      Codigos(linea, [](char16_t letra) { return letra >= u'\u0080' && letra <= u'\u009F'; });
  if (!sinLetra.empty()) {
    c.Anotar(TodosLosLectores, Join(u"hay bytes fuera de la página de códigos (", sinLetra, u")"));
  }
}

// The progress of all readers and the notes.
struct Examen {
  CuadernoFaltas Apuntes;
  std::array<Revisor, 2> Completos{
      {{.Quien = LectorJuego, .Lineas = LineasPersonajes{LectorPersonajes::Juego}},
       {.Quien = LectorEditor, .Lineas = LineasPersonajes{LectorPersonajes::Editor}}}};
  Oferta Ofrece;
  Utf8Detector Bytes;
};

void ExaminarLinea(Examen& e, std::u16string_view linea) {
  ExaminarLetras(e.Apuntes, linea);
  Lectores empieza = Revisar(e.Apuntes, e.Ofrece, linea) ? LectorInicio : 0;
  for (Revisor& lector : e.Completos) {
    if (Revisar(e.Apuntes, lector, linea)) empieza |= lector.Quien;
  }
  if (empieza == 0 || empieza == TodosLosLectores) return;
  e.Apuntes.Anotar(TodosLosLectores,
                   Join(u"esta línea empieza un personaje solo para ", NombreLectores(empieza)));
}

void AnotarCorte(CuadernoFaltas& c, Lectores quien, const LineasPersonajes& lineas) {
  const std::optional<ClaseLinea> falta = lineas.CabeceraPendiente();
  if (!falta) return;
  c.Anotar(quien,
           Join(u"el archivo se acaba y falta ", NombreDe(*falta), u" del personaje", SeDetiene));
}

void ExaminarFinal(Examen& e) {
  CuadernoFaltas& c = e.Apuntes;
  AnotarCorte(c, LectorInicio, e.Ofrece.Lineas);
  for (const Revisor& lector : e.Completos) {
    AnotarCorte(c, lector.Quien, lector.Lineas);
    TerminarPersonaje(c, lector, lector.Lineas.Personaje());
  }
  c.Linea = 0;
  for (const Revisor& lector : e.Completos) {
    for (int falta = lector.Lineas.Personaje() + 1; falta <= JuegosDeFrases; ++falta) {
      c.Anotar(lector.Quien,
               Join(u"falta el personaje ", falta, u", el de las frases de quien no tiene otras"));
    }
  }
  if (e.Ofrece.Ofrecidos < MinimoOfrecidos) {
    c.Anotar(TodosLosLectores, Join(u"los jugadores que se ofrecen son ", e.Ofrece.Ofrecidos,
                                    u", y hacen falta ", MinimoOfrecidos));
  }
}

void AnotarCodificacion(CuadernoFaltas& c, const Utf8Detector& bytes) {
  if (bytes.FirstLine() > 0) {
    c.Anotar(TodosLosLectores, bytes.FirstLine(), std::u16string{PareceUtf8});
  }
}

// Reads the next line. False at the end of the file, and for a line that is too long: then it is
// noted and `interrumpido` becomes true.
bool SiguienteLinea(LineReader& archivo, std::string& bytes, CuadernoFaltas& c,
                    bool& interrumpido) {
  ++c.Linea;
  try {
    return archivo.NextBytes(bytes);
  } catch (const RunTimeError&) {
    if (bytes.size() < LineReader::LargoMaximo) throw;
    c.Anotar(TodosLosLectores, Join(u"la línea es demasiado larga", SeDetiene));
    interrumpido = true;
    return false;
  }
}

void ExaminarArchivo(Examen& e, LineReader& archivo) {
  constexpr std::size_t MaximoNotas = 200'000;
  bool interrumpido = false;
  std::string bytes;
  while (SiguienteLinea(archivo, bytes, e.Apuntes, interrumpido)) {
    e.Bytes.AddLine(e.Apuntes.Linea, bytes);
    ExaminarLinea(e, Decode(WithoutLineEnd(bytes)));
    if (e.Apuntes.Cuantas() < MaximoNotas) continue;
    e.Apuntes.Anotar(TodosLosLectores, u"hay demasiadas faltas: no se mira más allá");
    return;
  }
  if (!interrumpido) ExaminarFinal(e);
}

}  // namespace

Revision RevisarPersonajes(const std::filesystem::path& archivo) {
  LineReader lineas{archivo};
  Examen examen;
  ExaminarArchivo(examen, lineas);
  AnotarCodificacion(examen.Apuntes, examen.Bytes);
  return {.Faltas = examen.Apuntes.Faltas(),
          .Personajes = examen.Completos.front().Lineas.Personaje(),
          .Ofrecidos = examen.Ofrece.Ofrecidos};
}

}  // namespace tasca
