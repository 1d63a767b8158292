// The character editor's window.
#include "ui/qt/dialog1_form.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "base/keys.h"
#include "characters/bring.h"
#include "characters/character_file.h"
#include "ui/qt/accessible.h"
#include "ui/qt/keys.h"
#include "ui/qt/qt_text.h"

namespace tasca {
namespace {

// A list without a current entry until the user selects one. QListWidget makes the first entry
// current when it gets the focus.
class SelectionList : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void focusInEvent(QFocusEvent* suceso) override {
    QListWidget::focusInEvent(suceso);
    if (selectedItems().isEmpty()) selectionModel()->clearCurrentIndex();
  }
  // Without a current entry QListWidget goes to the first one for every key; End goes to the last.
  QModelIndex moveCursor(CursorAction accion, Qt::KeyboardModifiers con) override {
    const bool alFinal = accion == MoveEnd && !currentIndex().isValid();
    return alFinal ? model()->index(count() - 1, 0) : QListWidget::moveCursor(accion, con);
  }
};

template <class T>
T* Named(T* control, const QString& nombre) {
  control->setObjectName(nombre);
  return control;
}

QListWidget* NewList(QWidget* padre, const char* nombre) {
  auto* const lista = Named(new SelectionList{padre}, QString::fromLatin1(nombre));
  lista->setUniformItemSizes(true);
  return lista;
}

template <std::size_t N>
std::array<QPushButton*, N> NewButtons(QWidget* padre, const QString& nombre,
                                       const std::array<const char16_t*, N>& rotulos) {
  std::array<QPushButton*, N> botones{};
  for (std::size_t i = 0; i < N; ++i) {
    botones.at(i) = Named(new QPushButton{QString::fromUtf16(rotulos.at(i)), padre},
                          nombre + QString::number(i));
    botones.at(i)->setAutoDefault(true);  // Enter presses it when it has the focus.
  }
  return botones;
}

// A label whose access key moves the focus to `control`. It is also the control's accessible name.
QLabel* NewLabel(QWidget* control, const char* nombre, const char16_t* rotulo) {
  control->setAccessibleName(QString::fromUtf16(rotulo).remove(QChar{u'&'}));
  auto* const etiqueta = Named(new QLabel{QString::fromUtf16(rotulo), control->parentWidget()},
                               QString::fromLatin1(nombre));
  etiqueta->setBuddy(control);
  return etiqueta;
}

// Screen readers announce an empty phrase as "(vacío)".
void ShowEntry(QListWidgetItem& entrada, const QString& texto) {
  if (entrada.text() != texto) entrada.setText(texto);
  const bool vacia = texto.trimmed().isEmpty();
  entrada.setData(Qt::AccessibleTextRole, vacia ? QStringLiteral("(vacío)") : QString{});
}

void ShowSelection(QListWidget* control, const ListBox& lista) {
  const QSignalBlocker silencio{control};
  control->setCurrentRow(lista.ListIndex);
}

void ShowList(QListWidget* control, const ListBox& lista) {
  const QSignalBlocker silencio{control};
  for (int i = 0; i < static_cast<int>(lista.List.size()); ++i) {
    const QString texto = ToDisplay(lista.List.at(static_cast<std::size_t>(i)));
    if (i == control->count()) control->addItem(texto);
    ShowEntry(*control->item(i), texto);
  }
  while (control->count() > static_cast<int>(lista.List.size())) {
    delete control->takeItem(control->count() - 1);
  }
  ShowSelection(control, lista);
  control->horizontalScrollBar()->setValue(0);
}

}  // namespace

Dialog1Form::Dialog1Form(Table& t, EditorPort& port, Events sucesos)
    : t_{t},
      port_{port},
      sucesos_{std::move(sucesos)},
      estadoTexto_{new StatusLine{this}},
      list1_{NewList(this, "List1")},
      list2_{NewList(this, "List2")},
      list3_{NewList(this, "List3")},
      text1_{NewText("Text1", AnchoNombre, 1)},
      text2_{NewText("Text2", CifrasOrdaguero, 1)},
      text3_{NewText("Text3", AnchoHistoria, 4)},
      command1_{
          NewButtons<3>(this, QStringLiteral("Command1_"),
                        {u"N&uevo jugador", u"&Eliminar jugador", u"Re&leer  datos jugador"})},
      command2_{NewButtons<2>(this, QStringLiteral("Command2_"),
                              {u"M&odificar mensaje(f2)", u"E&liminar mensaje"})},
      command3_{NewButtons<2>(this, QStringLiteral("Command3_"),
                              {u"&Guardar en disco", u"&Cargar de disco"})},
      traer_{Named(new QPushButton{QStringLiteral("&Traer personajes de un archivo..."), this},
                   QStringLiteral("Traer"))},
      cbOK_{Named(new QPushButton{QStringLiteral("Aceptar"), this}, QStringLiteral("CbOK"))} {
  DescribeTexts();
  setObjectName(QStringLiteral("Dialog1"));
  setWindowTitle(QStringLiteral("Dialog Caption"));
  BuildLayout();
  SetTabs();
  Connect();
  Form_Load(estado_);
  ShowState();
  list1_->setFocus();
}

GuardedText* Dialog1Form::NewText(const char* nombre, int maximo, int filas) {
  const auto alRechazar = [this](std::u16string_view reparo) {
    estadoTexto_->ShowText(reparo);
    if (!reparo.empty()) port_.Beep();
  };
  return Named(new GuardedText{this, maximo, filas, alRechazar}, QString::fromLatin1(nombre));
}

void Dialog1Form::Do(const std::function<void()>& suceso) {
  estado_.Text1 = text1_->Text();
  estado_.Text2 = text2_->Text();
  estado_.Text3 = text3_->Text();
  estadoTexto_->ShowText({});
  sucesos_.Run(suceso);
  ShowState();
}

void Dialog1Form::Connect() {
  ConnectLists();
  ConnectButtons();
  list3_->installEventFilter(this);
}

// A click in the empty part of a list clears its selection; the timer restores it from the state.
void Dialog1Form::ConnectLists() {
  devolucion_.setSingleShot(true);
  connect(&devolucion_, &QTimer::timeout, this, [this] { RestoreSelections(); });
  const auto alElegir = [this](QListWidget* lista, const ListBox& estado,
                               const std::function<void(int)>& clic) {
    const auto elegida = [this, lista, &estado, clic] {
      if (devolucion_.isActive()) return;
      const bool hay = !lista->selectedItems().isEmpty();
      const int posicion = hay ? lista->row(lista->selectedItems().first()) : estado.ListIndex;
      Do([&] {
        if (hay) clic(posicion);
      });
      if (estado.ListIndex != posicion) devolucion_.start();
    };
    connect(lista, &QListWidget::itemSelectionChanged, this, elegida);
    connect(lista, &QListWidget::itemClicked, this, elegida);
  };
  alElegir(list1_, estado_.List1,
           [this](int posicion) { List1_Click(estado_, t_, port_, posicion); });
  alElegir(list2_, estado_.List2, [this](int posicion) { List2_Click(estado_, t_, posicion); });
  alElegir(list3_, estado_.List3, [this](int posicion) { List3_Click(estado_, posicion); });
}

// Deferred by the timer, because QListWidget sets the selection again after the signal.
void Dialog1Form::RestoreSelections() {
  ShowSelection(list1_, estado_.List1);
  ShowSelection(list2_, estado_.List2);
  ShowSelection(list3_, estado_.List3);
}

void Dialog1Form::ConnectButtons() {
  const auto alPulsar = [this](const auto& botones, const auto& clic) {
    for (std::size_t i = 0; i < botones.size(); ++i) {
      connect(botones.at(i), &QPushButton::clicked, this,
              [this, i, clic] { Do([&] { clic(estado_, t_, port_, static_cast<int>(i)); }); });
    }
  };
  alPulsar(command1_, Command1_Click);
  alPulsar(command2_, Command2_Click);
  alPulsar(command3_, Command3_Click);
  connect(traer_, &QPushButton::clicked, this,
          [this] { Do([&] { TraerPersonajes(estado_, t_, port_); }); });
}

bool Dialog1Form::eventFilter(QObject* objeto, QEvent* suceso) {
  if (objeto != list3_ || suceso->type() != QEvent::KeyPress) return false;
  const int tecla = TeclaDe(dynamic_cast<const QKeyEvent&>(*suceso)).KeyCode;
  if (tecla != TeclaEnter && tecla != TeclaF2) return false;
  Do([&] { List3_KeyDown(estado_, t_, port_, tecla); });
  return true;
}

// Enter in a text box of one row does not store the text; the status line says which button does.
void Dialog1Form::keyPressEvent(QKeyEvent* suceso) {
  const bool esEnter = TeclaDe(*suceso).KeyCode == TeclaEnter;
  if (!esEnter || qobject_cast<QPlainTextEdit*>(focusWidget()) == nullptr) {
    return QWidget::keyPressEvent(suceso);
  }
  estadoTexto_->ShowText(
      u"Para guardar los datos, pulse «Nuevo jugador» o «Releer datos jugador».");
}

void Dialog1Form::BuildLayout() {
  auto* const jugadores = new QVBoxLayout;
  jugadores->addWidget(NewLabel(list1_, "Label4", u"&Jugadores"));
  jugadores->addWidget(list1_);
  jugadores->addWidget(traer_);
  auto* const datos = new QVBoxLayout;
  datos->addLayout(BuildData());
  datos->addLayout(BuildPhrases(), 1);
  list1_->setMinimumWidth(30 * fontMetrics().averageCharWidth());
  auto* const mesa = new QHBoxLayout;
  mesa->addLayout(jugadores, 1);
  mesa->addLayout(datos, 3);
  auto* const ventana = new QVBoxLayout{this};
  ventana->addLayout(mesa, 1);
  ventana->addLayout(BuildButtons());
}

QLayout* Dialog1Form::BuildData() {
  auto* const fichas = new QFormLayout;
  fichas->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  fichas->addRow(NewLabel(text1_, "Label1", u"&Nombre"), text1_);
  fichas->addRow(NewLabel(text2_, "Label2", u"&Ordaguero"), text2_);
  fichas->addRow(NewLabel(text3_, "Label3", u"&Historia"), text3_);
  auto* const botones = new QHBoxLayout;
  for (QPushButton* const boton : command1_) botones->addWidget(boton);
  fichas->addRow(botones);
  return fichas;
}

QLayout* Dialog1Form::BuildPhrases() {
  auto* const frases = new QGridLayout;
  frases->addWidget(NewLabel(list2_, "Label5", u"&Jugada"), 0, 0);
  frases->addWidget(NewLabel(list3_, "Label6", u"&Mensaje"), 0, 1);
  frases->addWidget(list2_, 1, 0, 2, 1);
  frases->addWidget(list3_, 1, 1);
  auto* const botones = new QHBoxLayout;
  for (QPushButton* const boton : command2_) botones->addWidget(boton);
  frases->addLayout(botones, 2, 1);
  frases->setColumnStretch(0, 1);
  frases->setColumnStretch(1, 3);
  return frases;
}

QLayout* Dialog1Form::BuildButtons() {
  for (QPushButton* const boton : {traer_, cbOK_}) boton->setAutoDefault(true);
  auto* const botones = new QHBoxLayout;
  botones->addWidget(estadoTexto_, 1);
  for (QPushButton* const boton : command3_) botones->addWidget(boton);
  botones->addWidget(cbOK_);
  return botones;
}

void Dialog1Form::SetTabs() {
  const std::array<QWidget*, 15> orden{list1_,       traer_,       text1_,       text2_,
                                       text3_,       command1_[0], command1_[1], command1_[2],
                                       list2_,       list3_,       command2_[0], command2_[1],
                                       command3_[0], command3_[1], cbOK_};
  for (std::size_t i = 1; i < orden.size(); ++i) setTabOrder(orden.at(i - 1), orden.at(i));
}

void Dialog1Form::ShowState() {
  ShowList(list1_, estado_.List1);
  ShowList(list2_, estado_.List2);
  ShowList(list3_, estado_.List3);
  text1_->ShowText(estado_.Text1);
  text2_->ShowText(estado_.Text2);
  text3_->ShowText(estado_.Text3);
}

void Dialog1Form::closeEvent(QCloseEvent* suceso) {
  suceso->ignore();
  sucesos_.Closed();
}

}  // namespace tasca
