// The editor's window and its boxes.
#include "ui/qt/editor_program.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>
#include <system_error>
#include <utility>

#include "base/path_text.h"
#include "base/text.h"
#include "ui/own_files.h"
#include "ui/qt/application.h"
#include "ui/qt/boxes.h"
#include "ui/qt/choice_box.h"
#include "ui/qt/phrase_box.h"
#include "ui/qt/qt_text.h"

namespace tasca {

void QtEditorPort::MsgBox(std::u16string_view texto) {
  ventana_->ShowState();
  ShowMessage(ventana_, texto);
}

bool QtEditorPort::OkCancelBox(std::u16string_view texto, std::u16string_view titulo) {
  ventana_->ShowState();
  return AskOkCancel(ventana_, texto, titulo);
}

std::u16string QtEditorPort::InputBox(std::u16string_view texto, std::u16string_view titulo,
                                      std::u16string_view porDefecto) {
  ventana_->ShowState();
  return AskPhrase(ventana_, texto, titulo, porDefecto, AnchoFrase);
}

std::optional<bool> QtEditorPort::YesNoCancelBox(std::u16string_view texto,
                                                 std::u16string_view titulo) {
  ventana_->ShowState();
  return AskYesNoCancel(ventana_, texto, titulo);
}

// Qt's own file dialog could also delete and rename files.
std::filesystem::path QtEditorPort::FileBox(std::u16string_view titulo) {
  ventana_->ShowState();
  const QString archivo = QFileDialog::getOpenFileName(
      ventana_, ToDisplay(titulo),
      QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
      QStringLiteral("Personajes (*.dat *.bak *.nuevo);;Todos los archivos (*)"), nullptr,
      QFileDialog::ReadOnly);
  return QFile::encodeName(archivo).toStdString();
}

std::vector<int> QtEditorPort::ChoiceBox(const std::vector<Candidato>& candidatos,
                                         const std::vector<int>& elegidos) {
  ventana_->ShowState();
  return ChooseCharacters(ventana_, candidatos, elegidos);
}

void QtEditorPort::Beep() { QApplication::beep(); }

EditorPlace PlaceOfFile(const std::filesystem::path& archivo) {
  std::error_code error;
  const std::filesystem::path completo = std::filesystem::absolute(archivo, error);
  const std::filesystem::path& ruta = error ? archivo : completo;
  return {.Folder = ruta.parent_path(), .Start = {.File = ruta.filename()}};
}

EditorPlace PlaceOfGame(const GameFolder& carpeta) {
  return {.Folder = carpeta.Files,
          .Start = {.NotSaved = carpeta.NotSaved, .News = TakeNewFiles(carpeta.Files)}};
}

EditorProgram::EditorProgram(std::filesystem::path carpeta, EditorStart comienzo)
    : comienzo_{std::move(comienzo)} {
  t_.Carpeta = std::move(carpeta);
  t_.SinGuardar = comienzo_.NotSaved;
  if (!comienzo_.File.empty()) t_.ArchivoDePersonajes = comienzo_.File;
}

void EditorProgram::Open() {
  ventana_ = std::make_unique<Dialog1Form>(
      t_, port_,
      Dialog1Form::Events{.Run = [this](const std::function<void()>& suceso) { Run(suceso); },
                          .Closed = [this] { Close(); }});
  port_.SetWindow(ventana_.get());
  ventana_->show();
  Run([this] { Begin(); });
}

// The boxes copy the state to the window when they open.
void EditorProgram::Begin() {
  for (const std::filesystem::path& nuevo : comienzo_.News) {
    port_.MsgBox(
        Join(u"Esta versión del juego trae un archivo nuevo. Como usted había cambiado el "
             u"suyo, el suyo se queda como está; el nuevo está a su lado: ",
             PathText(nuevo)));
  }
  if (!comienzo_.File.empty()) CargarPersonajes(ventana_->State(), t_, port_);
}

void EditorProgram::Run(const std::function<void()>& suceso) {
  if (terminando_) return;
  const std::optional<Ending> fin = EndingOf(suceso);
  if (!fin) return;
  if (!fin->Mensaje.empty()) ShowError(ventana_.get(), fin->Mensaje);
  Exit(fin->Estado);
}

void EditorProgram::Close() {
  if (HasUnsaved() && !MayLoseChanges()) return;
  Exit(0);
}

SessionEnd EditorProgram::AtSessionEnd() {
  return {.MayCome =
              [this](const std::function<bool()>& dejanPreguntar) {
                return !HasUnsaved() || !dejanPreguntar() || MayLoseChanges();
              },
          .Comes = [this] { Exit(0); }};
}

bool EditorProgram::HasUnsaved() {
  return !terminando_ && ventana_ && HayCambios(ventana_->State(), t_);
}

bool EditorProgram::MayLoseChanges() {
  const YesNoQuestion pregunta{
      .Titulo = {},
      .Texto = u"Hay cambios que no se han guardado en el disco. ¿Salir sin guardarlos?",
      .PorDefecto = false};
  return AskYesNo(ventana_.get(), pregunta).value_or(true);
}

void EditorProgram::Exit(int estado) {
  if (terminando_) return;
  terminando_ = true;
  QCoreApplication::exit(estado);
}

}  // namespace tasca
