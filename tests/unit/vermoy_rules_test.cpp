// Tests of Vermoy's hands against a second evaluator, and of its rules by whole rounds.
#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "core/cards/card.h"
#include "core/text/number.h"
#include "games/vermoy/rules.h"
#include "tests/check.h"

using namespace games::vermoy;

namespace {

using Keys = std::vector<std::string>;

// The second evaluator: texts, maps, and the steps as a player would tell them.
std::string HandByTheBook(const Keys& line) {
  static const std::set<std::string> runs = {"12345",     "23456",    "34567",   "45678",
                                             "56789",     "678910",   "7891011", "89101112",
                                             "910111213", "110111213"};
  std::map<char, int> suits;
  std::map<int, int> ranks;
  std::multiset<int> sorted;
  for (const std::string& key : line) {
    sorted.insert(std::stoi(key));
    if (key == "0") continue;
    ++suits[key.back()];
    ++ranks[std::stoi(key)];
  }
  std::string run;
  for (int rank : sorted) run += std::to_string(rank);
  std::multiset<int> groups;
  for (const auto& [rank, count] : ranks) groups.insert(count);

  std::string hand = "Nothing";
  if (groups.count(2) > 0) hand = groups.count(2) == 2 ? "2 Pair" : "1 Pair";
  if (groups.count(3) > 0) hand = "3 of a kind";
  const bool flush = suits.size() == 1 && suits.begin()->second == 5;
  if (flush) hand = "Flush";
  if (runs.count(run) > 0) {
    hand = !flush ? "Straight" : run == "110111213" ? "Royal Flush" : "St. Flush";
  }
  if (groups.count(3) > 0 && groups.count(2) > 0) hand = "Full House";
  if (groups.count(4) > 0) hand = "4 of a kind";
  return hand;
}

std::string HandOf(const Keys& keys) {
  Line line;
  std::transform(keys.begin(), keys.end(), line.begin(), CardOf);
  return TextOf(EvaluateHand(line));
}

core::Deck DeckOf(const Keys& first) {
  core::Deck deck;
  deck.CreateDeck();
  for (std::size_t i = 0; i < first.size(); ++i) deck.Assign(static_cast<int>(i) + 1, first[i]);
  return deck;
}

}  // namespace

TEST(HandsAgreeWithASecondEvaluator) {
  Keys cards = DeckOf({}).Keys();
  for (std::string& key : cards) key = core::Trimmed(key);
  std::mt19937 random(20240917);
  std::set<std::string> seen;
  for (int i = 0; i < 150000; ++i) {
    // Few ranks or one suit in turn, so that the rare hands come up often.
    Keys pool = cards;
    std::shuffle(pool.begin(), pool.end(), random);
    if (i % 3 == 1) std::erase_if(pool, [](const auto& key) { return key.back() != 'H'; });
    if (i % 3 == 2) std::erase_if(pool, [&](const auto& key) { return std::stoi(key) % 4 != 1; });
    Keys line(pool.begin(), pool.begin() + 5);
    // A third of the lines are unfinished.
    for (std::string& key : line) {
      if (i >= 100000 && random() % 3 == 0) key = "0";
    }
    CHECK_EQ(HandOf(line), HandByTheBook(line));
    seen.insert(HandOf(line));
  }
  CHECK_EQ(seen.size(), HandCount);
}

TEST(HandsAtTheirLimits) {
  const std::vector<std::pair<Keys, std::string>> cases = {
      {{" 13S", "", "13H", " 13C", "0"}, "3 of a kind"},
      // A staged deck can hold anything.
      {{"9H", "9H", "9H", "9H", "9H"}, "Flush"},
      {{"9H", "9H", "9H", "2H", "2H"}, "Full House"},
      {{" 14S ", "-1S", "99999999999S", "xS", "S"}, "Flush"},
      {{"1", "2", "3", "4", "5"}, "Straight"}};
  for (const auto& [line, hand] : cases) CHECK_EQ(HandOf(line), hand);
}

TEST(AGridPaysWhatStands) {
  Values values;
  Rules rules(values);
  CHECK(!rules.Place(0).legal);  // before the first deal
  CHECK(rules.Deal(DeckOf({"13S", "13H", "13C", "2S", "2H", "5D"})) == Drawn::Sounding);
  CHECK(!rules.IsLegal(-1) && !rules.IsLegal(Cells) && rules.IsLegal(24));

  // A made hand takes the card's sound. The same hand again is no news; the card on the corner
  // counts in its row and its column; an overwrite can take a hand away.
  std::string told;
  for (const int cell : {0, 1, 3, 10, 0, 0}) {
    const Placed placed = rules.Place(cell);
    told += std::to_string(placed.handsMade) + (placed.drawn == Drawn::Silent ? " silent " : " ");
    told += std::to_string(rules.RoundPoints()) + " " + TextOf(rules.RowHand(1)) + ", " +
            TextOf(rules.ColumnHand(1)) + "; ";
  }
  CHECK_EQ(told,
           "0 0 Nothing, Nothing; 1 silent 50 1 Pair, Nothing; 1 silent 80 3 of a kind, Nothing; "
           "0 80 3 of a kind, Nothing; 2 silent 100 1 Pair, 1 Pair; 0 50 1 Pair, Nothing; ");
}

TEST(OverwritesAtTheirLimitsAndBeyond) {
  Values values;
  values.OverWrites = 26;
  Rules rules(values);
  rules.Deal(DeckOf({}));
  for (int i = 0; i < 27; ++i) CHECK(rules.Place(0).legal);
  CHECK(!rules.Place(0).legal && rules.OverWritesLeft() == 0);
  for (int i = 1; i < Cells; ++i) CHECK(rules.Place(i).drawn != Drawn::Nothing);
  CHECK(rules.GridIsFull() && rules.CardsRemaining() == 0);

  // A settings file can allow more than the deck can feed: then a cell is covered with nothing.
  values.OverWrites = 1000;
  rules.Reset();
  rules.Deal(DeckOf({}));
  std::string looks;
  for (int i = 0; i < 51; ++i) {
    CHECK(rules.Place(0).drawn != Drawn::Nothing);
    looks += rules.StackPicture()[0];
  }
  CHECK_EQ(looks, std::string(25, 'F') + std::string(13, 'H') + std::string(12, 'B') + "E");
  CHECK(rules.Place(0).drawn == Drawn::Nothing && rules.HoleCard().empty() && !rules.IsLegal(1));
  CHECK(rules.Place(0).legal && rules.GridCard(0).empty() && !rules.IsLegal(0));

  // Values from a file may be anything, the worth of a grid stays within its width.
  values.Pair = 2147483647;
  rules.Reset();
  rules.Deal(DeckOf({"1S", "1H", "1C"}));
  for (int cell : {0, 1, 5}) rules.Place(cell);
  CHECK_EQ(rules.RoundPoints(), 2147483647);
}
