#pragma once
// The character editor as a program: its window, its boxes, and the end of both.
#include <filesystem>
#include <memory>

#include "characters/editor.h"
#include "table/table.h"
#include "ui/qt/dialog1_form.h"
#include "ui/qt/session_end.h"

namespace tasca {

// The windows' answer to what the editor asks.
class QtEditorPort : public EditorPort {
 public:
  // The window that the boxes belong to from now on; it shows its state before each of them.
  void SetWindow(Dialog1Form* ventana) { ventana_ = ventana; }

  void MsgBox(std::u16string_view texto) override;
  bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) override;
  std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                          std::u16string_view porDefecto) override;
  void Beep() override;

 private:
  Dialog1Form* ventana_ = nullptr;
};

class EditorProgram {
 public:
  // `carpeta` is where the character file lies.
  explicit EditorProgram(std::filesystem::path carpeta);

  // Opens the window. Wants to be called from the event loop, which ends with the exit status when
  // the window is closed.
  void Open();
  // The session's end asks about unsaved changes, as closing the window does; when it comes, the
  // program ends at once, with status 0.
  SessionEnd AtSessionEnd();

 private:
  void Run(const std::function<void()>& suceso);
  // The window is to be closed: what is not on the disk yet is not thrown away without asking. What
  // was only typed into the text boxes, and not made a character's, is.
  void Close();
  bool HasUnsaved();
  // Asks whether to leave without saving.
  bool MayLoseChanges();
  void Exit(int estado);

  Table t_;
  QtEditorPort port_;
  std::unique_ptr<Dialog1Form> ventana_;
  bool terminando_ = false;
};

}  // namespace tasca
