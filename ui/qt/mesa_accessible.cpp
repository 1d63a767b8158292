// The accessible tree of the drawn table, built from the scene on every query.
#include "ui/qt/mesa_accessible.h"

#include <QAccessibleWidget>
#include <utility>
#include <vector>

#include "ui/mesa/palabras.h"
#include "ui/mesa/spoken.h"
#include "ui/qt/mesa_letters.h"
#include "ui/qt/mesa_painter.h"
#include "ui/qt/mesa_view.h"

namespace tasca {
namespace {

bool IsAbout(const Pieza& pieza, const Frase& frase) {
  if (const auto* const placa = std::get_if<Placa>(&pieza)) {
    return frase.De == Parte::Asiento && placa->De == frase.Indice;
  }
  if (const auto* const carta = std::get_if<CartaPuesta>(&pieza)) {
    return frase.De == Parte::Carta && carta->De == AsientoHumano && carta->Hueco == frase.Indice;
  }
  const auto* const celda = std::get_if<CeldaPuesta>(&pieza);
  return celda != nullptr && frase.De == Parte::Lance &&
         static_cast<int>(celda->Lance) == frase.Indice;
}

// One sentence of the table.
class Sentence : public QAccessibleInterface {
 public:
  Sentence(MesaView& vista, int indice) : vista_{vista}, indice_{indice} {}

  bool isValid() const override { return Said().has_value(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&vista_);
  }
  QAccessibleInterface* child(int /*indice*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*hijo*/) const override { return -1; }
  QString text(QAccessible::Text clase) const override {
    const std::optional<Frase> frase = Said();
    return clase == QAccessible::Name && frase ? OneLine(frase->Texto) : QString{};
  }
  void setText(QAccessible::Text /*clase*/, const QString& /*texto*/) override {}
  QAccessible::Role role() const override { return QAccessible::StaticText; }

  // The rectangle of the sentence's piece, or of the whole picture if it has none.
  QRect rect() const override {
    const std::optional<Frase> frase = Said();
    Rect donde = vista_.Sheet().Suelo;
    for (const Pieza& pieza : vista_.Sheet().Piezas) {
      if (frase && IsAbout(pieza, *frase)) donde = Lugar(pieza);
    }
    return ToQt(donde).toAlignedRect().translated(vista_.mapToGlobal(QPoint{}));
  }

  QAccessible::State state() const override {
    QAccessible::State estado;
    estado.readOnly = true;
    estado.invisible = !vista_.isVisible();
    return estado;
  }

 private:
  std::optional<Frase> Said() const {
    std::vector<Frase> frases = LaMesaHablada(vista_.Scene());
    if (indice_ >= static_cast<int>(frases.size())) return std::nullopt;
    return std::move(frases.at(static_cast<std::size_t>(indice_)));
  }

  MesaView& vista_;
  int indice_;
};

// The group. Its sentences live as long as it does, however many of them are in use.
class Description : public QAccessibleWidget {
 public:
  explicit Description(MesaView& vista)
      : QAccessibleWidget{&vista, QAccessible::Grouping, OneLine(PalabraLaMesa)}, vista_{vista} {}
  Description(const Description&) = delete;
  Description& operator=(const Description&) = delete;
  ~Description() override {
    for (const QAccessible::Id frase : frases_) QAccessible::deleteAccessibleInterface(frase);
  }

  int childCount() const override { return static_cast<int>(LaMesaHablada(vista_.Scene()).size()); }

  QAccessibleInterface* child(int indice) const override {
    if (indice < 0 || indice >= childCount()) return nullptr;
    while (static_cast<int>(frases_.size()) <= indice) {
      // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): QAccessible owns it from now on.
      frases_.push_back(QAccessible::registerAccessibleInterface(
          new Sentence{vista_, static_cast<int>(frases_.size())}));
    }
    return QAccessible::accessibleInterface(frases_.at(static_cast<std::size_t>(indice)));
  }

  int indexOfChild(const QAccessibleInterface* hijo) const override {
    for (int indice = 0; indice < childCount(); ++indice) {
      if (child(indice) == hijo) return indice;
    }
    return -1;
  }

  // The sentence about what lies there; the last one that covers it.
  QAccessibleInterface* childAt(int x, int y) const override {
    QAccessibleInterface* hallada = nullptr;
    const QRect toda = rect();
    for (int indice = 0; indice < childCount(); ++indice) {
      const QRect suya = child(indice)->rect();
      if (suya != toda && suya.contains(x, y)) hallada = child(indice);
    }
    return hallada;
  }

 private:
  MesaView& vista_;
  mutable std::vector<QAccessible::Id> frases_;
};

QAccessibleInterface* Describe(const QString& /*clase*/, QObject* objeto) {
  auto* const vista = dynamic_cast<MesaView*>(objeto);
  return vista == nullptr ? nullptr : new Description{*vista};
}

}  // namespace

void DescribeMesaViews() { QAccessible::installFactory(Describe); }

}  // namespace tasca
