// The chronicle's window.
#include "ui/qt/chronicle_window.h"

#include <QClipboard>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <filesystem>
#include <string_view>
#include <utility>

#include "base/descriptor.h"
#include "base/replace_file.h"
#include "ui/plain_text.h"
#include "ui/qt/boxes.h"
#include "ui/qt/search_bar.h"
#include "ui/qt/text_search.h"
#include "ui/qt/transcript.h"

namespace tasca {
namespace {

// A device must not be replaced by a file: it is written to. Throws WriteError.
void WriteText(const std::filesystem::path& archivo, std::string_view contenido) {
  const std::optional<FileStatus> anterior = StatusOf(archivo);
  if (!anterior || anterior->IsRegular) return ReplaceFile(archivo, contenido);
  const Descriptor abierto{archivo, OpenMode::ReadWrite};
  CheckWritten(abierto.IsOpen() && abierto.Write(contenido), archivo);
}

QPushButton* NewButton(QWidget* padre, const char* nombre, const QString& texto) {
  auto* const boton = new QPushButton{texto, padre};
  boton->setObjectName(QString::fromLatin1(nombre));
  boton->setAutoDefault(false);
  return boton;
}

}  // namespace

ChronicleWindow::ChronicleWindow(Source texto, FileQuestion archivo)
    : origen_{std::move(texto)}, archivo_{std::move(archivo)}, texto_{new QPlainTextEdit{this}} {
  setObjectName(QStringLiteral("Cronica"));
  setWindowTitle(QStringLiteral("Crónica de la partida"));
  texto_->setObjectName(QStringLiteral("TextoCronica"));
  texto_->setAccessibleName(QStringLiteral("Crónica"));
  texto_->setReadOnly(true);
  texto_->setUndoRedoEnabled(false);
  texto_->setTabChangesFocus(true);
  texto_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const QSize sitio = QGuiApplication::primaryScreen()->availableSize();
  resize((QSize{45, 40} * fontMetrics().height()).boundedTo(sitio * 0.9));
  BuildLayout();
  texto_->setFocus();
}

void ChronicleWindow::BuildLayout() {
  auto* const copiar = NewButton(this, "Copiar", QStringLiteral("&Copiar"));
  auto* const guardar = NewButton(this, "Guardar", QStringLiteral("&Guardar como..."));
  connect(copiar, &QPushButton::clicked, this, [this] { Copy(); });
  connect(guardar, &QPushButton::clicked, this, [this] { Save(); });
  auto* const barra = new QHBoxLayout;
  barra->addWidget(copiar);
  barra->addWidget(guardar);
  barra->addStretch();
  barra->addWidget(
      new SearchBar{this, QStringLiteral("Buscar en la crónica"),
                    [this](const QString& que, bool haciaAtras) { return Find(que, haciaAtras); }});
  auto* const filas = new QVBoxLayout{this};
  filas->addLayout(barra);
  filas->addWidget(texto_, 1);
}

void ChronicleWindow::Refresh() {
  const QScrollBar* const barra = texto_->verticalScrollBar();
  const bool alFinal = barra->value() == barra->maximum();
  const std::u16string texto = origen_();
  ReplaceDifference(*texto_->document(),
                    texto.empty() ? QStringLiteral("Todavía no se ha dicho nada en la mesa.")
                                  : QString::fromStdString(PlainText(texto)));
  if (alFinal) texto_->verticalScrollBar()->setValue(barra->maximum());
}

bool ChronicleWindow::event(QEvent* suceso) {
  const bool cambia =
      suceso->type() == QEvent::WindowActivate || suceso->type() == QEvent::WindowBlocked;
  if (cambia && isVisible()) Refresh();
  return BesideWindow::event(suceso);
}

bool ChronicleWindow::Find(const QString& buscado, bool haciaAtras) {
  const auto hallado = FindText(texto_->textCursor(), buscado, haciaAtras);
  if (!hallado) return false;
  texto_->setTextCursor(*hallado);
  texto_->ensureCursorVisible();
  return true;
}

void ChronicleWindow::Copy() {
  if (texto_->textCursor().hasSelection()) return texto_->copy();
  QGuiApplication::clipboard()->setText(texto_->toPlainText());
}

QString ChronicleWindow::AskFile(QWidget* padre) {
  const QString carpeta = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileDialog::getSaveFileName(padre, QStringLiteral("Guardar la crónica"),
                                      carpeta + QStringLiteral("/cronica.txt"),
                                      QStringLiteral("Texto (*.txt)"));
}

void ChronicleWindow::Save() {
  const QString archivo = archivo_(this);
  if (archivo.isEmpty()) return;
  try {
    WriteText(QFile::encodeName(archivo).toStdString(), texto_->toPlainText().toStdString());
  } catch (const WriteError& error) {
    ShowError(this, error.Sentence());
  }
}

}  // namespace tasca
