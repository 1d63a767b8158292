#pragma once
// Plays the input of a trace through the binding of the page, and writes what it tells as a trace
// does.
#include <filesystem>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "ui/trace/events.h"
#include "ui/web/tasca.h"

namespace tasca::test {

class TracePlayer {
 public:
  explicit TracePlayer(std::filesystem::path folder);

  // After every view the page is closed, and another one goes on with what was kept.
  void CloseAfterEveryView() { cierra_ = true; }

  // Plays the lines of a trace to their end. Returns the events, a line each. The state before the
  // end "players" and that end are missing: the start-up dialog is open again.
  std::string Play(const std::string& in);
  // How often a page was closed, and how often with an open question.
  int Closed() const { return cerradas_; }
  int ClosedWithQuestion() const { return conPregunta_; }

 private:
  using Json = nlohmann::json;

  void Start(const Json& start);
  void Take(const Json& line);
  std::string Answer(const Json& line);
  // Looks at a view and shuts its message boxes.
  void Look(const std::string& vista);
  // Writes the events of a view.
  void LookOnce(const std::string& vista);
  void WriteCalls(const Json& vista);
  void WriteQuestion(const Json& vista);
  void WriteEnd(const Json& vista);
  void CloseAndGoOn();

  std::filesystem::path folder_;
  std::unique_ptr<Tasca> juego_;
  Json vista_;
  TimeOfDay hora_;
  std::ostringstream out_;
  Events events_{out_};
  bool cierra_ = false;
  int cerradas_ = 0;
  int conPregunta_ = 0;
};

}  // namespace tasca::test
