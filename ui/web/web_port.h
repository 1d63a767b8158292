#pragma once
// The port of a game in a page. A question cannot wait there: without a recorded answer it stays
// open and the step is abandoned. The step is run again with one more answer.
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ui/web/pregunta.h"

namespace tasca {

// Thrown by a question that has no answer yet.
struct SinRespuesta {};

// A sound that was opened, or stopped, with the settings of the media player.
struct Suceso {
  bool Calla = false;
  std::u16string Archivo{};
  MediaPlayerSettings Ajustes{};
};

class WebPort : public Port {
 public:
  // Receives the play state at the end of a sound that comes while a question is open. May throw
  // LeaveProgram.
  using SoundEnd = std::function<void(Integer estado)>;
  explicit WebPort(SoundEnd alAcabarSonido) : alAcabarSonido_{std::move(alAcabarSonido)} {}

  // A step begins at this time.
  void Begin(TimeOfDay hora);
  // The step begins once more, with this record. The record must outlive the step.
  void Run(const std::vector<Entrada>& guion);

  // The question that has ended the step; nothing if it has run to its end.
  const std::optional<PreguntaAbierta>& Open() const { return abierta_; }
  // The calls outwards since the last time, in order.
  std::vector<Suceso> TakeCalls();

  void MsgBox(const Table& t, std::u16string_view texto) override;
  bool YesNoBox(const Table& t, Pregunta sobre, const YesNoQuestion& pregunta) override;
  std::u16string InputBox(const Table& t, Pregunta sobre, const InputQuestion& pregunta) override;
  void ShowDialog(const Table& t, Dialog& dialogo) override;
  void OpenSound(const Table& t, std::u16string_view archivo) override;
  void StopSound(const Table& t) override;
  // The time at which the step began, or its last answer came.
  TimeOfDay Now() override { return hora_; }

 private:
  // The recorded answer. Runs the ends of sounds that were recorded before it.
  const Entrada& Answer(const PreguntaAbierta& pregunta);

  SoundEnd alAcabarSonido_;
  TimeOfDay comienzo_;
  TimeOfDay hora_;
  const std::vector<Entrada>* guion_ = nullptr;
  std::size_t leidas_ = 0;  // of the record
  std::optional<PreguntaAbierta> abierta_;
  std::vector<Suceso> sucesos_;  // of this run
  std::size_t contados_ = 0;     // of them, also in the runs before
};

}  // namespace tasca
