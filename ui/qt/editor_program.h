#pragma once
// The character editor's program: opens its window, shows its boxes and ends it.
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "characters/editor.h"
#include "table/table.h"
#include "ui/game_folder.h"
#include "ui/qt/dialog1_form.h"
#include "ui/qt/manual.h"
#include "ui/qt/session_end.h"

namespace tasca {

// The editor's port with Qt boxes.
class QtEditorPort : public EditorPort {
 public:
  // Sets the parent of the boxes; required before the first one. Every box first calls its
  // ShowState.
  void SetWindow(Dialog1Form* ventana) { ventana_ = ventana; }

  void MsgBox(std::u16string_view texto) override;
  bool OkCancelBox(std::u16string_view texto, std::u16string_view titulo) override;
  std::u16string InputBox(std::u16string_view texto, std::u16string_view titulo,
                          std::u16string_view porDefecto) override;
  std::optional<bool> YesNoCancelBox(std::u16string_view texto,
                                     std::u16string_view titulo) override;
  std::filesystem::path FileBox(std::u16string_view titulo) override;
  std::vector<int> ChoiceBox(const std::vector<Candidato>& candidatos,
                             const std::vector<int>& elegidos) override;
  void Beep() override;

 private:
  Dialog1Form* ventana_ = nullptr;
};

// What the editor edits and tells at its start.
struct EditorStart {
  std::filesystem::path File = {};  // name of a character file that is loaded at once; "" for none
  std::u16string NotSaved = {};     // why nothing may be written to the folder; "" if it may
  std::vector<std::filesystem::path> News = {};  // new files that lie beside the user's own
};

// The folder in which the editor works, and how it starts there.
struct EditorPlace {
  std::filesystem::path Folder;
  EditorStart Start;
};

// For a character file, which is loaded at once.
EditorPlace PlaceOfFile(const std::filesystem::path& archivo);
// For the game's characters. Takes the new files that lie beside the user's own.
EditorPlace PlaceOfGame(const GameFolder& carpeta);

class EditorProgram {
 public:
  // `carpeta` is the folder of the character file.
  explicit EditorProgram(std::filesystem::path carpeta, EditorStart comienzo = {});

  // Opens the window. Must be called from the event loop. Closing the window ends the loop with the
  // exit status.
  void Open();
  // The end of the desktop session asks about unsaved changes, as closing the window does, and then
  // ends the program with status 0.
  SessionEnd AtSessionEnd();

 private:
  void Begin();
  // Runs `suceso`. If it throws, shows the error and ends the program.
  void Run(const std::function<void()>& suceso);
  // Ends the program, after asking if there are unsaved changes. Texts that have been typed but not
  // stored in a character are dropped without asking.
  void Close();
  bool HasUnsaved();
  // Asks whether to leave without saving.
  bool MayLoseChanges();
  // Ends the event loop. Later calls have no effect.
  void Exit(int estado);

  Table t_;
  EditorStart comienzo_;
  QtEditorPort port_;
  std::unique_ptr<Dialog1Form> ventana_;
  bool terminando_ = false;
  Manual manual_{[] { return Asunto::Editor; }};
};

}  // namespace tasca
