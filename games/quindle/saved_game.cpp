// The file of a saved game: the decks of a finished game, and how its player fared.
#include "games/quindle/saved_game.h"

#include <algorithm>

#include "core/cards/card.h"
#include "core/text/items.h"
#include "core/text/number.h"
#include "core/text/text.h"
#include "games/quindle/rules.h"

namespace games::quindle {
namespace {

const std::string LineEnd = "\r\n";

struct Praise {
  std::int64_t upTo;
  const char* words;
};
constexpr Praise Praises[] = {
    {20000, "amassed a pitiful"},     {40000, "accumulated a sorry"},
    {60000, "earned a pretty weak"},  {80000, "earned a mediocre"},
    {100000, "earned a respectable"}, {120000, "earned a decent"},
    {140000, "earned a darned good"}, {160000, "earned an incredible"},
};
constexpr const char* HighestPraise = "earned an unbelievable";

std::string DeckTitle(int round) {
  return "[Round " + std::to_string(round + 1) + " Deck]";
}

bool Dealt(const RoundDeck& deck) {
  return !deck.empty() && !deck.front().empty();
}

/// Reads one value at a time, and remembers if one was missing.
class Reader {
 public:
  Reader(std::string_view text, SavedGame& game) : items_(std::string(text)), game_(game) {}

  bool Read() {
    if (items_.Next().value_or("") != "[Card Goal]") return false;
    ReadGoal();
    while (!items_.AtEnd()) ReadKey(items_.Next().value_or(""));
    game_.whole = whole_ && Dealt(game_.decks[0]);
    return true;
  }

 private:
  void ReadKey(const std::string& key) {
    if (key == "[Card Goal]") ReadGoal();
    if (key == "[Time Limit]") game_.timeLimit = Value();
    if (key == "[UserName]") game_.userName = Value();
    if (key == "[Score]") game_.score = Value();
    if (key == "[Custom]") game_.custom = Value() != "False";
    for (int round = 0; round < RoundDecks; ++round) {
      if (key == DeckTitle(round)) ReadDeck(game_.decks[static_cast<std::size_t>(round)]);
    }
  }

  void ReadGoal() {
    const std::int64_t goal = core::WholeIn(Value());
    if (goal < SmallestGoal || goal > LargestGoal) return;
    game_.CardGoal = static_cast<std::int16_t>(goal);
    game_.goalChosen = true;
    const auto size = static_cast<std::size_t>(DeckSize(game_.CardGoal));
    for (RoundDeck& deck : game_.decks) deck.assign(size, "");
  }

  void ReadDeck(RoundDeck& deck) {
    for (std::string& card : deck) {
      if (items_.AtEnd()) break;
      card = items_.Next().value_or("");
    }
    if (!Dealt(deck) || deck.back().empty()) whole_ = false;
  }

  std::string Value() {
    const auto value = items_.Next();
    if (!value) whole_ = false;
    return value.value_or("");
  }

  core::ItemReader items_;
  SavedGame& game_;
  bool whole_ = true;
};

}  // namespace

std::string FormatSavedGame(const SavedGame& game) {
  std::string text;
  const auto line = [&text](const std::string& words) { text += words + LineEnd; };
  line("[Card Goal]");
  line(core::Digits(game.CardGoal));
  line("[Time Limit]");
  line(game.timeLimit);
  line("[Score]");
  line(game.score);
  line("[Custom]");
  line(core::FlagWord(game.custom));
  line("[UserName]");
  line(game.userName);
  for (int round = 0; round < RoundDecks; ++round) {
    const RoundDeck& deck = game.decks[static_cast<std::size_t>(round)];
    if (round > 0 && !Dealt(deck)) continue;
    line(DeckTitle(round));
    for (const std::string& card : deck) line(core::Trimmed(card));
  }
  return text + LineEnd;
}

std::optional<SavedGame> ParseSavedGame(std::string_view text, const SavedGame& current) {
  SavedGame game = current;
  game.score = game.userName = "";
  game.custom = false;
  Reader reader(text, game);
  if (!reader.Read()) return std::nullopt;
  return game;
}

std::string SavedGameMessage(const SavedGame& game) {
  const std::int64_t score = core::WholeIn(game.score);
  const auto praise = std::find_if(std::begin(Praises), std::end(Praises),
                                   [score](const Praise& p) { return score <= p.upTo; });
  const std::string words = praise == std::end(Praises) ? HighestPraise : praise->words;
  return "This game was saved by " + game.userName + ". He or she " + words + " score of " +
         core::Masked(score) + " in this game. " + LineEnd +
         (game.custom ? "Customized scoring was in effect when this game was played. "
                      : "Customized scoring was not in effect when this game was played. ");
}

}  // namespace games::quindle
