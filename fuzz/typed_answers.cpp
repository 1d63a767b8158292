// Fuzzes typed answers: numbers, cards to discard, amounts to bet. The first byte selects the mano
// and the button pressed in every dialog, the second the encoding of the rest.
#include <algorithm>
#include <cmath>
#include <optional>

#include "base/numbers.h"
#include "base/text.h"
#include "characters/character_file.h"
#include "fuzz/support/answers.h"
#include "fuzz/support/bytes.h"
#include "fuzz/support/require.h"
#include "fuzz/support/target.h"
#include "lances/grande.h"
#include "lances/punto.h"
#include "match/start.h"
#include "mus/mus.h"
#include "ui/utf8.h"

namespace tasca::fuzz {
namespace {

// Nothing if the number overflows.
std::optional<int> Rounded(double number) {
  try {
    return CInt(number);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

void CheckNumber(const std::u16string& text) {
  constexpr std::size_t Digits = 9;
  const double number = LeadingNumber(text);
  Require(std::isfinite(number), "a number is finite");
  Require(LeadingNumber(u"  " + text) == number, "blanks before a number are skipped");
  Require(LeadingNumber(text + u"x1") == number, "what follows a number is ignored");
  const std::u16string_view whole =
      std::u16string_view{text}.substr(0, std::min(text.find_first_of(u".eE"), Digits));
  Require(LeadingWhole(whole) == LeadingNumber(whole), "both read the same whole number");
  const std::optional<int> rounded = Rounded(number);
  Require(rounded.has_value() == (std::nearbyint(std::clamp(number, -4e4, 4e4)) >= INT16_MIN &&
                                  std::nearbyint(std::clamp(number, -4e4, 4e4)) <= INT16_MAX),
          "16 bits and no more");
  if (rounded) Require(LeadingNumber(ToText(*rounded)) == *rounded, "a number comes back");
}

void CheckPropensity(const std::u16string& text) {
  try {
    ValorOrdaguero(text);
  } catch (const RunTimeError&) {
    Require(!Rounded(LeadingNumber(text)), "only what overflows is refused");
  }
}

// The first hand of a match.
Table FirstHand() {
  Table t;
  t.Carpeta = TASCA_SOURCE_DIR "/tests/traces/folder";
  t.PersonajeAsiento = {0, 3, 4, 5};
  Rnd rnd;
  FixedAnswers port;
  Game g{t, rnd, port};
  Form_Load(g);
  return t;
}

void RequireWholeHands(const Table& t) {
  for (const auto& hand : t.Manos) {
    for (const Integer card : hand) Require(card >= 1 && card <= 40, "a hand is four cards");
  }
}

void Discard(Game& g, std::u16string_view text) {
  g.t.Text2.clear();
  Descartar(g);
  RequireWholeHands(g.t);
  int thrown = 0;
  for (const char16_t card : {u'1', u'2', u'3', u'4'}) thrown += Contains(text, {&card, 1}) ? 1 : 0;
  Require(Contains(g.t.Text2, Join(u"El jugador 1 cambia ", thrown, u" cartas.")),
          "the player changes the cards that have been named");
}

// Eight discards, one for each line of the text: enough to exhaust the deck.
void DiscardRepeatedly(Game& g, FixedAnswers& port, const std::u16string& text) {
  constexpr int Passes = 8;
  std::u16string_view rest = text;
  for (int pass = 0; pass < Passes; ++pass) {
    const std::u16string_view line = Before(rest, u'\n');
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    port.Text = line;
    Discard(g, line);
  }
  port.Text = text;
}

void Bet(Game& g, void (*open)(Game&), void (*answer)(Game&)) {
  try {
    open(g);
    Require(g.t.SeguirLance >= EnviteOrdago, "a bet is stones or an órdago");
    if (g.t.SeguirLance != 0) answer(g);
    Require(g.t.SeguirLance == 0, "an answer settles the bet");
  } catch (const RunTimeError&) {
    // The amount overflows, alone or added to the bet before it.
    g.t.SeguirLance = 0;
  }
}

std::u16string TextOf(Bytes& bytes) {
  return bytes.Below(4) == 0 ? AnyText(bytes.Rest()) : FromUtf8(bytes.Rest());
}

}  // namespace

void Run(std::string_view input) {
  static const Table hand = FirstHand();
  static Table t = hand;
  static_cast<Form1State&>(t) = static_cast<const Form1State&>(hand);
  Bytes bytes{input};
  FixedAnswers port;
  port.Button = bytes.Below(4);
  OrdenarDesde(t, port.Button + 1);
  const std::u16string text = TextOf(bytes);
  CheckNumber(text);
  CheckPropensity(text);
  Rnd rnd;
  Game g{t, rnd, port};
  DiscardRepeatedly(g, port, text);
  Bet(g, LanceGrande, EnviteGrande);
  Bet(g, LancePunto, EnvitePunto);
}

}  // namespace tasca::fuzz
