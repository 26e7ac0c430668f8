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
  std::vector<int> sorted;
  for (const std::string& key : line) {
    sorted.push_back(std::stoi(key));
    if (key == "0") continue;
    ++suits[key.back()];
    ++ranks[sorted.back()];
  }
  std::sort(sorted.begin(), sorted.end());
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

Keys AllKeys() {
  core::Deck deck;
  deck.CreateDeck();
  return deck.Keys();
}

core::Deck DeckOf(Keys first) {
  for (const std::string& key : AllKeys()) {
    if (first.size() < FullDeck) first.push_back(key);
  }
  core::Deck deck;
  deck.Assign(std::move(first));
  return deck;
}

}  // namespace

TEST(HandsAgreeWithASecondEvaluator) {
  Keys cards;
  for (const std::string& key : AllKeys()) cards.push_back(core::Trimmed(key));
  std::mt19937 random(20240917);
  std::map<std::string, int> seen;
  for (int i = 0; i < 150000; ++i) {
    // Few ranks or one suit in turn, so that the rare hands come up often.
    Keys pool = cards;
    std::shuffle(pool.begin(), pool.end(), random);
    if (i % 3 == 1) std::erase_if(pool, [](const auto& key) { return key.back() != 'H'; });
    if (i % 3 == 2) std::erase_if(pool, [&](const auto& key) { return std::stoi(key) % 4 != 1; });
    Keys line(pool.begin(), pool.begin() + 5);
    // A third of the lines are unfinished.
    if (i >= 100000) {
      for (std::string& key : line) {
        if (random() % 3 == 0) key = "0";
      }
    }
    const std::string expected = HandByTheBook(line);
    ++seen[expected];
    const std::string actual = HandOf(line);
    if (actual == expected) continue;
    CHECK_EQ(line, Keys{});
    CHECK_EQ(actual, expected);
  }
  CHECK_EQ(seen.size(), HandCount);
}

TEST(HandsAtTheirLimits) {
  const std::vector<std::pair<Keys, std::string>> cases = {
      {{"2S", "2H", "0", "0", "0"}, "1 Pair"},
      {{" 13S", "", "13H", " 13C", "0"}, "3 of a kind"},
      {{"4S", "4H", "9C", "9D", "9S"}, "Full House"},
      {{"4S", "4H", "9C", "9D", "2S"}, "2 Pair"},
      {{"5S", "3H", "1C", "4D", "2S"}, "Straight"},
      {{"5D", "3D", "1D", "4D", "2D"}, "St. Flush"},
      {{"13D", "10D", "1D", "11D", "12D"}, "Royal Flush"},
      {{"13D", "10D", "1D", "11D", "12S"}, "Straight"},
      {{"9D", "10D", "13D", "11D", "12D"}, "St. Flush"},
      {{"11D", "12D", "13D", "1D", "2S"}, "Nothing"},
      {{"2H", "4H", "6H", "8H", "13H"}, "Flush"},
      {{"2H", "4H", "6H", "8H", "0"}, "Nothing"},
      {{"2H", "3H", "4H", "5H", "0"}, "Nothing"},
      // A staged deck can hold anything.
      {{"9H", "9H", "9H", "9H", "9H"}, "Flush"},
      {{"9H", "9H", "9H", "2H", "2H"}, "Full House"},
      {{"14S", "-1S", "99999999999S", "xS", "S"}, "Flush"},
      {{"1", "2", "3", "4", "5"}, "Straight"},
      {{"10H ", "11H", " 12H ", "13H", "1H"}, "Royal Flush"}};
  for (const auto& [line, hand] : cases) CHECK_EQ(HandOf(line), hand);
}

TEST(AGridPaysWhatStands) {
  Values values;
  Rules rules(values);
  CHECK(!rules.Place(0).legal);  // before the first deal
  CHECK(rules.Deal(DeckOf({"13S", "13H", "13C", "2S", "2H", "5D"})) == Drawn::Sounding);
  CHECK_EQ(rules.CardsRemaining(), 51);
  CHECK_EQ(rules.HoleCard(), "13S");
  CHECK(!rules.IsLegal(-1) && !rules.IsLegal(Cells) && rules.IsLegal(24));

  // A pair in a row of two, three of a kind with a blank; a made hand takes the card's sound.
  CHECK(rules.Place(0).drawn == Drawn::Sounding);
  Placed placed = rules.Place(1);
  CHECK_EQ(placed.handsMade, 1);
  CHECK(placed.drawn == Drawn::Silent);
  CHECK_EQ(TextOf(rules.RowHand(1)), "1 Pair");
  CHECK_EQ(rules.RoundPoints(), 50);
  CHECK_EQ(rules.Place(3).handsMade, 1);
  CHECK_EQ(TextOf(rules.RowHand(1)), "3 of a kind");
  CHECK_EQ(rules.RoundPoints(), 80);

  // The same hand again is no news; the card on the corner counts in its row and its column.
  placed = rules.Place(10);
  CHECK(placed.handsMade == 0 && placed.drawn == Drawn::Sounding);
  CHECK_EQ(rules.Place(0).handsMade, 2);  // the row falls to a pair, the column rises to one
  CHECK_EQ(rules.OverWritesLeft(), 2);
  CHECK_EQ(TextOf(rules.RowHand(1)), "1 Pair");
  CHECK_EQ(TextOf(rules.ColumnHand(1)), "1 Pair");
  CHECK_EQ(rules.RoundPoints(), 100);
  CHECK_EQ(rules.Place(0).handsMade, 0);
  CHECK_EQ(rules.RoundPoints(), 50);  // an overwrite took the column's hand away

  rules.Reset();
  CHECK(!rules.Place(0).legal);
}

TEST(OverwritesAtTheirLimitsAndBeyond) {
  Values values;
  values.OverWrites = 26;
  Rules rules(values);
  rules.Deal(DeckOf({}));
  std::map<int, std::string> stacks;
  for (int i = 0; i < 27; ++i) {
    CHECK(rules.Place(0).legal);
    stacks[rules.CardsRemaining()] = rules.StackPicture();
  }
  CHECK(!rules.Place(0).legal);
  for (int i = 1; i < Cells; ++i) CHECK(rules.Place(i).drawn != Drawn::Nothing);
  CHECK(rules.GridIsFull());
  CHECK_EQ(rules.CardsRemaining(), 0);
  CHECK_EQ(rules.StackPicture(), "EMPTY");
  CHECK(stacks[26] == "FULL" && stacks[25] == "HALF");

  // A settings file can allow more than the deck can feed: then a cell is covered with nothing.
  values.OverWrites = 1000;
  rules.Reset();
  rules.Deal(DeckOf({}));
  for (int i = 0; i < 51; ++i) CHECK(rules.Place(0).drawn != Drawn::Nothing);
  CHECK(rules.Place(0).drawn == Drawn::Nothing);
  CHECK(rules.HoleCard().empty() && !rules.IsLegal(1));
  CHECK(rules.Place(0).legal);
  CHECK(rules.GridCard(0).empty() && !rules.IsLegal(0));

  // Values from a file may be anything, the worth of a grid stays within its width.
  values.Pair = 2147483647;
  rules.Reset();
  rules.Deal(DeckOf({"1S", "1H", "1C"}));
  for (int cell : {0, 1, 5}) rules.Place(cell);
  CHECK_EQ(rules.RoundPoints(), 2147483647);
}
