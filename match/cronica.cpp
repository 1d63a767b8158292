// Notes the table's texts and joins them.
#include "match/cronica.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "lances/lance.h"
#include "match/added_text.h"
#include "score/scoreboard.h"

namespace tasca {
namespace {

constexpr char16_t NuevaMano = u'\f';

bool EsAviso(std::u16string_view linea) {
  constexpr std::array<std::u16string_view, 4> Avisos{AvisoContinuar, AvisoContar,
                                                      u"Pulse enter para empezar",
                                                      u"Pulse enter para empezar una nueva mano"};
  return std::any_of(Avisos.begin(), Avisos.end(), [linea](std::u16string_view aviso) {
    return EqualIgnoringCase(Trim(linea), aviso);
  });
}

// Removes the first line from `resto` and returns it without its line end: CR LF, CR or LF.
std::u16string_view TomarLinea(std::u16string_view& resto) {
  const std::size_t fin = std::min(resto.find_first_of(CrLf), resto.size());
  const std::u16string_view linea = resto.substr(0, fin);
  resto.remove_prefix(fin);
  resto.remove_prefix(std::min<std::size_t>(resto.starts_with(CrLf) ? 2 : 1, resto.size()));
  return linea;
}

// Appends the lines without prompts. Of several blank lines one is left.
void AnadirSinAvisos(std::u16string& texto, std::u16string_view lineas) {
  bool enBlanco = true;
  while (!lineas.empty()) {
    const std::u16string_view linea = TomarLinea(lineas);
    if (EsAviso(linea) || (linea.empty() && enBlanco)) continue;
    enBlanco = linea.empty();
    texto += linea;
    texto += CrLf;
  }
  if (!enBlanco) texto += CrLf;
}

// The hands are laid open because they are counted. The player can also lay them open before.
bool SeCuenta(const Table& t) {
  if (t.CartasVistas != t.Manos) return false;
  if (t.Fase == Fase::Cuenta || t.Fase == Fase::EmpezarMano) return true;
  const NumeroLance ultimo = t.SeJuegaPunto ? NumeroLance::Punto : NumeroLance::Juego;
  const std::array lances{NumeroLance::Grande, NumeroLance::Pequena, NumeroLance::Pares, ultimo};
  return std::any_of(lances.begin(), lances.end(),
                     [&t](NumeroLance lance) { return t.Apuesta[lance] == EnviteOrdago; });
}

}  // namespace

void Cronica::Empezar(std::u16string_view comienzo) {
  *this = {};
  apunte_.Nuevo = true;
  abierta_ = true;
  if (!comienzo.empty()) EscribirLineas(comienzo);
}

void Cronica::EmpezarMano() {
  if (!abierta_) return;
  if (enMano_) EscribirLineas(u"La mano se abandona sin contarla.");
  AbrirMano();
  const int numero = olvidadas_ + static_cast<int>(manos_.size());
  Escribir(Join(u"— Mano ", numero, u" —", CrLf, CrLf));
  enMano_ = true;
  conCartas_ = false;
}

void Cronica::Anotar(const Table& t) {
  if (!abierta_) return;
  const NewText nuevo = AddedText(visto_, t.Text2);
  if (nuevo.Replaces) {
    AnotarCartas(t);
    EscribirLineas({});
    Escribir(CrLf);
  }
  Escribir(nuevo.Texto);
  AnotarCartas(t);
  visto_ = t.Text2;
}

void Cronica::AnotarAviso(const Table& t, std::u16string_view texto) {
  if (!abierta_) return;
  Anotar(t);
  EscribirLineas(Join(u"[", texto, u"]"));
}

void Cronica::TerminarMano(const Table& t) {
  if (!abierta_ || !enMano_) return;
  Anotar(t);
  EscribirLineas(Join(CrLf, u"Tanteo: ", TextoTanteo(t)));
  enMano_ = false;
}

void Cronica::Cerrar() { abierta_ = false; }

std::u16string Cronica::Escrito() const {
  std::u16string escrito = comienzo_;
  for (const std::u16string& mano : manos_) escrito += NuevaMano + mano;
  return escrito;
}

// What happens to be written and seen in the step follows from its table.
void Cronica::Reanudar(std::u16string_view escrito, const Table& t) {
  Empezar();
  std::size_t fin = escrito.find(NuevaMano);
  Escribir(escrito.substr(0, fin));
  while (fin != std::u16string_view::npos) {
    escrito.remove_prefix(fin + 1);
    fin = escrito.find(NuevaMano);
    AbrirMano();
    Escribir(escrito.substr(0, fin));
  }
  visto_ = t.Text2;
  enMano_ = t.Fase != Fase::EmpezarMano;
  conCartas_ = SeCuenta(t);
}

std::u16string Cronica::Texto() const {
  std::u16string texto;
  texto.reserve(comienzo_.size() + letras_);
  AnadirSinAvisos(texto, comienzo_);
  if (olvidadas_ == 1) AnadirSinAvisos(texto, u"Falta la primera mano.");
  if (olvidadas_ > 1) AnadirSinAvisos(texto, Join(u"Faltan las ", olvidadas_, u" primeras manos."));
  for (const std::u16string& mano : manos_) AnadirSinAvisos(texto, mano);
  return texto;
}

std::size_t Cronica::Bytes() const {
  std::size_t letras = comienzo_.capacity() + visto_.capacity();
  for (const std::u16string& mano : manos_) letras += mano.capacity();
  return letras * sizeof(char16_t) + manos_.size() * sizeof(std::u16string);
}

void Cronica::AbrirMano() {
  Pagina().shrink_to_fit();
  manos_.emplace_back();
  apunte_.Texto += NuevaMano;
}

void Cronica::Escribir(std::u16string_view texto) {
  Pagina() += texto;
  apunte_.Texto += texto;
  if (!manos_.empty()) letras_ += texto.size();
  while (letras_ > LetrasMaximas && manos_.size() > 1) {
    letras_ -= manos_.front().size();
    manos_.pop_front();
    ++olvidadas_;
  }
}

void Cronica::EscribirLineas(std::u16string_view texto) {
  const std::u16string& pagina = Pagina();
  if (!pagina.empty() && !Contains(CrLf, std::u16string_view{pagina}.substr(pagina.size() - 1))) {
    Escribir(CrLf);
  }
  if (!texto.empty()) Escribir(Join(texto, CrLf));
}

void Cronica::AnotarCartas(const Table& t) {
  if (conCartas_ || !SeCuenta(t)) return;
  EscribirLineas(Join(CrLf, t.Text1));
  conCartas_ = true;
}

}  // namespace tasca
