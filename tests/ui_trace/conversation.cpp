// Connects the player and the trace by two stream buffers.
#include "tests/ui_trace/conversation.h"

#include <istream>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string_view>
#include <utility>

#include "ui/trace/session.h"

namespace tasca::test {
namespace {

using nlohmann::ordered_json;

// An output stream that parses the game's lines.
class Listener : public std::streambuf {
 public:
  TraceEvents Take() { return std::exchange(events_, {}); }
  const std::string& All() const { return all_; }

 protected:
  int_type overflow(int_type letter) override {
    if (traits_type::eq_int_type(letter, traits_type::eof())) return 0;
    const char last = traits_type::to_char_type(letter);
    Hear({&last, 1});
    return letter;
  }

  std::streamsize xsputn(const char* text, std::streamsize size) override {
    Hear({text, static_cast<std::size_t>(size)});
    return size;
  }

 private:
  // A line may be written in several pieces, but no piece continues after a line's end.
  void Hear(std::string_view piece) {
    all_ += piece;
    if (!piece.ends_with('\n')) return;
    events_.push_back(
        ordered_json::parse(all_.begin() + static_cast<std::ptrdiff_t>(start_), all_.end()));
    start_ = all_.size();
  }

  std::string all_;
  std::size_t start_ = 0;
  TraceEvents events_;
};

// An input stream that asks the player for each line when it is read.
class Speaker : public std::streambuf {
 public:
  Speaker(const Player& player, Listener& listener) : player_{player}, listener_{listener} {}

  const std::string& All() const { return all_; }

 protected:
  int_type underflow() override {
    std::optional<std::string> line = player_(listener_.Take());
    if (!line) return traits_type::eof();
    line_ = std::move(*line) + "\n";
    all_ += line_;
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

 private:
  const Player& player_;
  Listener& listener_;
  std::string line_;
  std::string all_;
};

}  // namespace

Conversation Converse(const std::filesystem::path& folder, const Player& player) {
  Listener listener;
  Speaker speaker{player, listener};
  std::istream in{&speaker};
  std::ostream out{&listener};
  std::ostringstream err;
  Conversation conversation;
  conversation.Status = RunTrace(folder, in, out, err);
  conversation.In = speaker.All();
  conversation.Out = listener.All();
  conversation.Err = err.str();
  conversation.Rest = listener.Take();
  return conversation;
}

}  // namespace tasca::test
