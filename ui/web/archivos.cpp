// Reading, writing and trying out.
#include "ui/web/archivos.h"

#include <fstream>
#include <iterator>
#include <memory>

#include "base/path_text.h"
#include "base/replace_file.h"
#include "base/text.h"
#include "characters/check.h"
#include "match/session.h"
#include "ui/plain_text.h"
#include "ui/web/web_port.h"

namespace tasca {
namespace {

constexpr const char* Personajes = "Jugadores.dat";

// True if a match can be started with the files of this folder.
bool SirvePara(const std::filesystem::path& carpeta) {
  WebPort puerto{[](Integer /*estado*/) {}};
  puerto.Run({});
  const auto sesion = std::make_unique<Session>(carpeta, puerto);
  try {
    return sesion->AbrirInicio() == Situacion::EnInicio && sesion->Aceptar() == Situacion::EnLaMesa;
  } catch (const SinRespuesta&) {
    return false;
  }
}

// One line, as tasca-check prints it.
std::string Renglon(int linea, std::u16string_view texto) {
  return PlainLine(Join(PlaceInFile(Personajes, linea), texto));
}

}  // namespace

std::string LeerArchivo(const std::filesystem::path& archivo) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(archivo, error)) return {};
  std::ifstream flujo{archivo, std::ios::binary};
  return {std::istreambuf_iterator<char>{flujo}, {}};
}

void EscribirArchivo(const std::filesystem::path& archivo, std::string_view bytes) {
  ReplaceFile(archivo, bytes);
}

std::string RevisarArchivo(const std::filesystem::path& carpeta, std::string_view bytes) {
  const std::filesystem::path prueba = carpeta / "revision";
  std::filesystem::create_directory(prueba);
  EscribirArchivo(prueba / Personajes, bytes);
  const Revision revision = RevisarPersonajes(prueba / Personajes);
  const bool sirve = SirvePara(prueba);
  std::filesystem::remove_all(prueba);
  Json json;
  json.Object([&] {
    json.ListField("faltas", revision.Faltas, [&](const Falta& falta) {
      json.Value(std::string_view{Renglon(falta.Linea, falta.Texto)});
    });
    json.Field("resumen", revision.Faltas.empty()
                              ? std::string_view{Renglon(
                                    0, Join(u"sin faltas; ", revision.Personajes, u" personajes, ",
                                            revision.Ofrecidos, u" se ofrecen como jugadores."))}
                              : std::string_view{});
    json.Field("personajes", revision.Personajes);
    json.Field("ofrecidos", revision.Ofrecidos);
    json.Field("sirve", sirve);
  });
  return json.Text();
}

}  // namespace tasca
