#pragma once
// The list of every text that the game can write (every_text.txt), and the texts of the sources.
#include <filesystem>
#include <map>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace tasca::test {

// One line of the list: a text with placeholders for what changes.
class TextPattern {
 public:
  // Throws std::invalid_argument for a placeholder that is none.
  explicit TextPattern(std::string_view line);

  const std::string& Line() const { return linea_; }
  // What stands between the placeholders, line breaks and all.
  const std::vector<std::string>& Pieces() const { return trozos_; }
  // True when the text holds the pattern.
  bool IsIn(const std::string& text) const;

 private:
  std::string linea_;
  std::vector<std::string> trozos_;
  std::regex expresion_;
};

struct TextList {
  // By where the player sees them: "transcript", "boxes", ...
  std::map<std::string, std::vector<TextPattern>> Patterns;
  // Texts of the sources that no recorded game can hold, and whole sources: with the reason.
  std::map<std::string, std::string> NotInAGame;
  std::map<std::string, std::string> OtherSources;
};

TextList ReadTextList(const std::filesystem::path& file);

// The u"..." literals of a C++ source, without those in comments; each piece of a joined one by
// itself.
std::vector<std::string> LiteralsOf(const std::string& source);

}  // namespace tasca::test
