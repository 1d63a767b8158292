#pragma once
// The window of the chronicle: all that was said in the match, to be read, searched, copied and
// saved as a text file.
#include <QPlainTextEdit>
#include <functional>
#include <string>

#include "ui/qt/beside_window.h"

namespace tasca {

class ChronicleWindow : public BesideWindow {
 public:
  // The text of the chronicle.
  using Source = std::function<std::u16string()>;
  // Asks for the file to be saved. Returns "" if the player cancels.
  using FileQuestion = std::function<QString(QWidget* padre)>;

  // Asks for the file with the file dialog of the desktop.
  explicit ChronicleWindow(Source texto) : ChronicleWindow{std::move(texto), AskFile} {}
  ChronicleWindow(Source texto, FileQuestion archivo);

  // Shows what has been added. A reader at the end stays there, any other one where he is.
  void Refresh();

 protected:
  // Refreshes the text when the window is activated and when a box is opened.
  bool event(QEvent* suceso) override;

 private:
  static QString AskFile(QWidget* padre);
  void BuildLayout();
  bool Find(const QString& buscado, bool haciaAtras);
  // Copies the selection, or all of the text.
  void Copy();
  // Saves what is shown. If that fails, a message box tells why.
  void Save();

  Source origen_;
  FileQuestion archivo_;
  QPlainTextEdit* texto_;
};

}  // namespace tasca
