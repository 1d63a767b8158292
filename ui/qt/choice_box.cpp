// A list in which several characters can be chosen, and its buttons.
#include "ui/qt/choice_box.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "base/text.h"
#include "ui/qt/qt_text.h"
#include "ui/qt/run_box.h"

namespace tasca {
namespace {

// The story is below the name; screen readers get both in one line.
void AddCandidate(QListWidget& lista, const Candidato& candidato) {
  const std::u16string nombre = Join(candidato.Nombre.empty() ? u"(sin nombre)" : candidato.Nombre,
                                     candidato.YaEsta ? u" (ya lo tiene)" : u"");
  auto* const entrada =
      new QListWidgetItem{ToDisplay(Join(nombre, u"\n", candidato.Historia)), &lista};
  entrada->setData(Qt::AccessibleTextRole, ToDisplay(Join(nombre, u". ", candidato.Historia)));
}

QListWidget* NewChoice(QDialog& caja, const std::vector<Candidato>& candidatos,
                       const std::vector<int>& elegidos) {
  auto* const lista = new QListWidget{&caja};
  lista->setObjectName(QStringLiteral("Candidatos"));
  lista->setAccessibleName(QStringLiteral("Personajes del archivo"));
  lista->setSelectionMode(QAbstractItemView::MultiSelection);
  lista->setWordWrap(true);
  lista->setResizeMode(QListView::Adjust);
  lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lista->setAlternatingRowColors(true);
  lista->setSpacing(2);
  for (const Candidato& candidato : candidatos) AddCandidate(*lista, candidato);
  for (const int posicion : elegidos) lista->item(posicion)->setSelected(true);
  lista->setCurrentRow(elegidos.empty() ? 0 : elegidos.front(), QItemSelectionModel::NoUpdate);
  return lista;
}

QDialogButtonBox* NewButtons(QDialog& caja, QListWidget* lista) {
  auto* const botones = new QDialogButtonBox{&caja};
  auto* const todos =
      botones->addButton(QStringLiteral("&Elegir todos"), QDialogButtonBox::ActionRole);
  auto* const traer = botones->addButton(QStringLiteral("&Traer"), QDialogButtonBox::AcceptRole);
  botones->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
  traer->setObjectName(QStringLiteral("Traer"));
  traer->setDefault(true);
  const auto permitir = [lista, traer] { traer->setEnabled(!lista->selectedItems().isEmpty()); };
  permitir();
  QObject::connect(lista, &QListWidget::itemSelectionChanged, traer, permitir);
  QObject::connect(todos, &QPushButton::clicked, lista, &QListWidget::selectAll);
  QObject::connect(botones, &QDialogButtonBox::accepted, &caja, &QDialog::accept);
  QObject::connect(botones, &QDialogButtonBox::rejected, &caja, &QDialog::reject);
  return botones;
}

std::vector<int> Chosen(const QListWidget& lista) {
  std::vector<int> elegidos;
  for (int i = 0; i < lista.count(); ++i) {
    if (lista.item(i)->isSelected()) elegidos.push_back(i);
  }
  return elegidos;
}

}  // namespace

std::vector<int> ChooseCharacters(QWidget* padre, const std::vector<Candidato>& candidatos,
                                  const std::vector<int>& elegidos) {
  QDialog caja{padre};
  caja.setObjectName(QStringLiteral("ChoiceBox"));
  caja.setWindowTitle(QStringLiteral("Traer personajes"));
  auto* const etiqueta = new QLabel{
      QStringLiteral("&Personajes del archivo. Elíjalos con un clic o con la barra espaciadora."),
      &caja};
  etiqueta->setWordWrap(true);
  auto* const lista = NewChoice(caja, candidatos, elegidos);
  etiqueta->setBuddy(lista);
  QVBoxLayout filas{&caja};
  filas.addWidget(etiqueta);
  filas.addWidget(lista, 1);
  filas.addWidget(NewButtons(caja, lista));
  const QSize cabe = caja.screen()->availableSize() * 4 / 5;
  caja.resize((QSize{36, 28} * caja.fontMetrics().height()).boundedTo(cabe));
  return RunBox(caja, lista) == QDialog::Accepted ? Chosen(*lista) : std::vector<int>{};
}

}  // namespace tasca
