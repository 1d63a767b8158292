// Following the three readers through a character file, line by line.
#include "characters/check.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/code_page.h"
#include "base/line_file.h"
#include "base/numbers.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "characters/check_notes.h"
#include "startup/dlg_inicio.h"

namespace tasca {
namespace {

constexpr int JuegosDeFrases = 2;  // characters 1 and 2 hold the default phrases
constexpr int MinimoOfrecidos = 3;
constexpr std::u16string_view SeDetiene = u", y aquí se detiene el programa";

// Where the game or the editor stands.
struct Lector {
  Lectores Quien;
  std::size_t Campo;  // the line of the record's head that comes next; past them all outside it
  int Personaje = 0;
  int LineaPersonaje = 0;
  int Categoria = 1;
  int Hueco = 0;
  bool TieneMarca = false;  // the record has had a marker that is known
  Array<Array<bool, 1, HuecosFrase>, 1, static_cast<int>(EtiquetasMensaje.size())> Llenos{};
};

// Where the start-up dialog stands.
struct Dialogo {
  std::size_t Campo;
  int Personaje = 0;
  int Ofrecidos = 0;
};

void ExaminarAncho(CuadernoFaltas& c, Lectores quien, std::u16string_view queEs, std::size_t ancho,
                   std::u16string_view texto) {
  const std::size_t largo = Trim(texto).size();
  if (largo <= ancho) return;
  c.Anotar(quien, Join(queEs, u" tiene ", static_cast<int>(largo),
                       u" caracteres y solo se leen los ", static_cast<int>(ancho), u" primeros"));
}

void ExaminarNombre(CuadernoFaltas& c, const Lector& l, std::u16string_view linea) {
  if (Trim(linea).empty()) c.Anotar(l.Quien, u"el nombre está vacío");
  if (l.Personaje <= JuegosDeFrases && !Contains(linea, u"Default")) {
    c.Anotar(l.Quien, Join(u"el nombre del personaje ", l.Personaje,
                           u", el de las frases de quien no tiene otras, no lleva \"Default\": se "
                           u"ofrece como jugador"));
  }
}

bool EsEnteroCorto(std::u16string_view texto, std::size_t cifras) {
  if (texto.size() > cifras) return false;
  if (texto.starts_with(u'-') || texto.starts_with(u'+')) texto.remove_prefix(1);
  return !texto.empty() && texto.find_first_not_of(u"0123456789") == std::u16string_view::npos;
}

void ExaminarOrdaguero(CuadernoFaltas& c, const Lector& l, std::u16string_view linea) {
  const int leido = LeadingWhole(linea.substr(0, CifrasOrdaguero));
  const std::u16string_view escrito = Trim(linea);
  if (EsEnteroCorto(escrito, CifrasOrdaguero) && LeadingWhole(escrito) == leido) return;
  c.Anotar(l.Quien, Join(u"el valor de ordaguero ", Cita(linea),
                         u" no es un número entero de tres caracteres como mucho: se lee ", leido));
}

// The lines of a record's head.
struct CampoCabecera {
  std::u16string_view QueEs;
  std::size_t Ancho;  // 0: it is no text
  // What is peculiar to it; nullptr: nothing.
  void (*Examinar)(CuadernoFaltas& c, const Lector& l, std::u16string_view linea);
};
constexpr std::array<CampoCabecera, 3> Cabecera{
    {{.QueEs = u"el nombre", .Ancho = AnchoNombre, .Examinar = ExaminarNombre},
     {.QueEs = u"el valor de ordaguero", .Ancho = 0, .Examinar = ExaminarOrdaguero},
     {.QueEs = u"la historia", .Ancho = AnchoHistoria, .Examinar = nullptr}}};
constexpr std::size_t FueraDeCabecera = Cabecera.size();

void ExaminarCampo(CuadernoFaltas& c, Lector& l, std::u16string_view linea) {
  const CampoCabecera& campo = Cabecera.at(l.Campo++);
  if (campo.Examinar != nullptr) campo.Examinar(c, l, linea);
  if (campo.Ancho == 0) return;
  ExaminarAncho(c, l.Quien, campo.QueEs, campo.Ancho, linea);
  if (Contains(linea, u">")) {
    c.Anotar(l.Quien, Join(campo.QueEs, u" lleva el signo \">\", que es solo de las marcas"));
  }
}

// The phrase goes to its slot; what the slot held is lost.
void OcuparHueco(CuadernoFaltas& c, Lector& l, std::u16string_view etiqueta) {
  bool& lleno = l.Llenos[l.Categoria][l.Hueco];
  if (lleno) {
    c.Anotar(l.Quien, Join(u"ya hay una frase ", l.Hueco, u" de ", Cita(etiqueta),
                           u": esta toma su sitio y aquella se pierde"));
  }
  lleno = true;
  l.Hueco = std::min(l.Hueco + 1, HuecosFrase);
}

void ExaminarFrase(CuadernoFaltas& c, Lector& l, std::u16string_view linea) {
  if (l.Personaje == 0) {
    return c.Anotar(l.Quien, Join(u"hay una frase antes del primer personaje", SeDetiene));
  }
  const std::u16string_view etiqueta =
      EtiquetasMensaje.at(static_cast<std::size_t>(l.Categoria - 1));
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
  if (Contains(linea, u"&") && l.Categoria != static_cast<int>(MessageCategory::EnvM)) {
    c.Anotar(l.Quien,
             u"el signo \"&\" se ve tal cual: solo en las frases de \"EnvM\" es la cantidad");
  }
}

ComparacionEtiquetas ComparacionDe(Lectores quien) {
  return quien == LectorEditor ? EqualIgnoringCase : EqualExactly;
}

// Every computer player without a phrase of its own says slot 1 of these two, and so does the
// human.
void TerminarPersonaje(CuadernoFaltas& c, const Lector& l) {
  if (l.Personaje == 0 || l.Personaje > JuegosDeFrases) return;
  int categoria = 0;
  for (const std::u16string_view etiqueta : EtiquetasMensaje) {
    if (l.Llenos[++categoria][1]) continue;
    c.Anotar(l.Quien, l.LineaPersonaje,
             Join(u"al personaje ", l.Personaje, u" le falta la frase 1 de ", Cita(etiqueta),
                  u", la de quien no tiene otra"));
  }
}

void EmpezarPersonaje(CuadernoFaltas& c, Lector& l) {
  TerminarPersonaje(c, l);
  l.LineaPersonaje = c.Linea;
  l.Campo = 0;
  l.TieneMarca = false;
  l.Llenos = {};
  if (++l.Personaje == MaximoPersonajes + 1) {
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

// True when the line starts a character.
bool ExaminarMarca(CuadernoFaltas& c, Lector& l, std::u16string_view linea) {
  const std::u16string_view etiqueta = Before(linea, u'>');
  const ComparacionEtiquetas coinciden = ComparacionDe(l.Quien);
  const bool esDatos = coinciden(etiqueta, EtiquetaDatos);
  const int categoria = CategoriaDe(etiqueta, coinciden);
  l.Hueco = 1;
  if (esDatos) EmpezarPersonaje(c, l);
  if (categoria > 0) {
    l.Categoria = categoria;
    l.TieneMarca = true;
  }
  if (!esDatos && categoria == 0) {
    AnotarDesconocida(c, l.Quien, etiqueta);
  } else if (!Trim(linea.substr(etiqueta.size() + 1)).empty()) {
    c.Anotar(l.Quien, u"lo que sigue a la marca en su línea se pierde");
  }
  return esDatos;
}

// One line for the game or the editor; true when it starts a character.
bool Leer(CuadernoFaltas& c, Lector& l, std::u16string_view linea) {
  if (l.Campo < FueraDeCabecera) {
    ExaminarCampo(c, l, linea);
    return false;
  }
  if (Contains(linea, u">")) return ExaminarMarca(c, l, linea);
  ExaminarFrase(c, l, linea);
  return false;
}

// The same for the start-up dialog, which leaves a record when its name is of no player.
bool Leer(CuadernoFaltas& c, Dialogo& l, std::u16string_view linea) {
  if (l.Campo == FueraDeCabecera) {
    if (!Contains(linea, Join(EtiquetaDatos, u">"))) return false;
    ++l.Personaje;
    l.Campo = 0;
    return true;
  }
  if (l.Campo == 0 && Contains(linea, u"Default")) {
    l.Campo = FueraDeCabecera;
    return false;
  }
  if (l.Campo == 0) ++l.Ofrecidos;
  if (++l.Campo == FueraDeCabecera && l.Personaje > MaximoHistorias) {
    c.Anotar(LectorInicio,
             Join(u"el personaje ", l.Personaje, u" se ofrece, y solo los ", MaximoHistorias,
                  u" primeros pueden sentarse a la mesa", SeDetiene));
  }
  return false;
}

// The codes of the characters that `es` picks out, each once: "00, 1B".
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

// The three readers at work.
struct Examen {
  CuadernoFaltas Apuntes;
  std::array<Lector, 2> Completos{{{.Quien = LectorJuego, .Campo = FueraDeCabecera},
                                   {.Quien = LectorEditor, .Campo = FueraDeCabecera}}};
  Dialogo Ofrece{.Campo = FueraDeCabecera};
};

void ExaminarLinea(Examen& e, std::u16string_view linea) {
  ExaminarLetras(e.Apuntes, linea);
  Lectores empieza = Leer(e.Apuntes, e.Ofrece, linea) ? LectorInicio : 0;
  for (Lector& lector : e.Completos) {
    if (Leer(e.Apuntes, lector, linea)) empieza |= lector.Quien;
  }
  if (empieza == 0 || empieza == TodosLosLectores) return;
  e.Apuntes.Anotar(TodosLosLectores,
                   Join(u"esta línea empieza un personaje solo para ", NombreLectores(empieza)));
}

void AnotarCorte(CuadernoFaltas& c, Lectores quien, std::size_t campo) {
  if (campo == FueraDeCabecera) return;
  c.Anotar(quien, Join(u"el archivo se acaba y falta ", Cabecera.at(campo).QueEs, u" del personaje",
                       SeDetiene));
}

void ExaminarFinal(Examen& e) {
  CuadernoFaltas& c = e.Apuntes;
  AnotarCorte(c, LectorInicio, e.Ofrece.Campo);
  for (const Lector& lector : e.Completos) {
    AnotarCorte(c, lector.Quien, lector.Campo);
    TerminarPersonaje(c, lector);
  }
  c.Linea = 0;
  for (const Lector& lector : e.Completos) {
    for (int falta = lector.Personaje + 1; falta <= JuegosDeFrases; ++falta) {
      c.Anotar(lector.Quien,
               Join(u"falta el personaje ", falta, u", el de las frases de quien no tiene otras"));
    }
  }
  if (e.Ofrece.Ofrecidos < MinimoOfrecidos) {
    c.Anotar(TodosLosLectores, Join(u"los jugadores que se ofrecen son ", e.Ofrece.Ofrecidos,
                                    u", y hacen falta ", MinimoOfrecidos));
  }
}

// The next line; false at the end. A line that is too long ends the reading for everyone.
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
  return {.Faltas = examen.Apuntes.Faltas(),
          .Personajes = examen.Completos.front().Personaje,
          .Ofrecidos = examen.Ofrece.Ofrecidos};
}

}  // namespace tasca
