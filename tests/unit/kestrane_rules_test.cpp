// Tests of the rules of Kestrane: runs in every order of laying, selecting, and a whole deck.
#include <algorithm>
#include <set>

#include "core/cards/card.h"
#include "games/kestrane/rules.h"
#include "tests/check.h"

using namespace games::kestrane;

namespace {

using Keys = std::vector<std::string>;

// A round whose cards are played in the order in which they are given.
struct Round {
  explicit Round(Keys inOrder) {
    if (inOrder.size() >= 3) std::swap(inOrder[0], inOrder[2]);
    inOrder.resize(52, "9C");
    deck.Assign(std::move(inOrder));
    rules.Deal();
  }
  Answer Up() { return rules.Click({Area::UpCards, Front}); }
  Answer Column(int slot) { return rules.Click({Area::Field, slot}); }
  Answer Store(int spot) { return rules.Click({Area::Storage, spot}); }
  Made Lay(int column) {
    CHECK(Up() == Answer::Select);
    CHECK(Column(column) == Answer::Move);
    return rules.CheckColumn(column % Columns);
  }
  std::string Field(int slot) const { return core::Trimmed(rules.KeyAt({Area::Field, slot})); }
  std::string Stored(int spot) const { return core::Trimmed(rules.KeyAt({Area::Storage, spot})); }
  Keys UpCards() const {
    return {rules.KeyAt({Area::UpCards, 0}), rules.KeyAt({Area::UpCards, 1}),
            rules.KeyAt({Area::UpCards, 2})};
  }

  core::Deck deck;
  Rules rules{deck};
};

}  // namespace

TEST(ColumnsClearForTripsAndRunsInTheOrderInWhichTheCardsLie) {
  const std::vector<int> circle = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 1};
  std::set<std::vector<int>> runs;
  for (std::size_t i = 0; i + 3 <= circle.size(); ++i) {
    runs.insert({circle[i], circle[i + 1], circle[i + 2]});
    runs.insert({circle[i + 2], circle[i + 1], circle[i]});
  }
  for (int code = 0; code < 13 * 13 * 13 * 4; ++code) {
    const std::vector<int> ranks = {1 + code / 4 % 13, 1 + code / 52 % 13, 1 + code / 676};
    const std::string suits = std::vector<std::string>{"SSS", "HHD", "CDD", "HCH"}[code % 4u];
    Keys keys;
    for (std::size_t i = 0; i < 3; ++i) keys.push_back(core::KeyFromNumber(ranks[i], suits[i]));
    Round round(keys);
    const int column = code % 4;
    CHECK(round.Lay(column) == Made::Nothing && round.Lay(column) == Made::Nothing);
    const bool trip = ranks[0] == ranks[1] && ranks[1] == ranks[2];
    const bool run = runs.contains(ranks);
    const Made expected = trip   ? Made::Trip
                          : !run ? Made::Nothing
                                 : (suits == "SSS" ? Made::Flush : Made::Run);
    CHECK(round.Lay(column) == expected);
    CHECK(round.rules.TripCount == trip && round.rules.RunCount == run);
    for (int slot = column; slot < Slots; slot += Columns) {
      CHECK_EQ(round.Field(slot).empty(), expected != Made::Nothing);
    }
  }
}

TEST(AClickSelectsMovesCancelsOrIsRefused) {
  Round round({"5S", "7H", "6D", "1C", "2C", "3C", "4C"});
  CHECK_EQ(round.UpCards(), (Keys{"6D", "7H", "5S"}));
  CHECK(round.rules.Click({Area::UpCards, 1}) == Answer::Refused);
  CHECK(round.Column(2) == Answer::Refused && round.Store(0) == Answer::Refused);

  // The up card: selected, cancelled, moved to a column that fills from the top.
  CHECK(round.Up() == Answer::Select);
  CHECK(round.rules.Click({Area::UpCards, 0}) == Answer::Refused && round.rules.CardSelected());
  CHECK(round.Up() == Answer::Cancel && !round.rules.CardSelected());
  for (int slot : {9, 1, 5}) CHECK(round.Lay(slot) == Made::Nothing);
  CHECK(round.Field(1) == "5S" && round.Field(5) == "7H" && round.Field(9) == "6D");

  // 5-7-6 stays; only its top card can be taken, wherever the column is hit.
  CHECK(round.Up() == Answer::Select);
  CHECK(round.Column(5) == Answer::Refused && round.rules.CardSelected());
  CHECK(round.Up() == Answer::Cancel && round.Column(1) == Answer::Select);
  CHECK(round.rules.SelectedIndex == 9 && round.Column(5) == Answer::Cancel);
  CHECK(round.Column(5) == Answer::Select && round.Store(1) == Answer::Move);
  CHECK(round.Stored(1) == "6D" && round.Field(9).empty());

  // Storage: shuffled, refused to another card, and back to the field, where it makes a run.
  CHECK(round.Store(1) == Answer::Select && round.Store(2) == Answer::Move);
  CHECK(round.Stored(1).empty() && round.Stored(2) == "6D");
  CHECK(round.Up() == Answer::Select && round.Store(2) == Answer::Refused);
  CHECK(round.Store(0) == Answer::Move && round.rules.DeckIndex == 7);
  CHECK(round.Column(1) == Answer::Select && round.Store(1) == Answer::Move);
  CHECK(round.Store(2) == Answer::Select && round.Column(1) == Answer::Move);
  CHECK(round.Store(1) == Answer::Select && round.Column(9) == Answer::Move);
  CHECK(round.rules.CheckColumn(1) == Made::Run);
}

TEST(AWholeDeckIsPlayedIntoTripsAndRuns) {
  Keys keys;
  for (int rank = 1; rank <= 13; ++rank) {
    for (const char suit : std::string("SHC")) keys.push_back(core::KeyFromNumber(rank, suit));
  }
  for (int rank = 13; rank >= 1; --rank) keys.push_back(core::KeyFromNumber(rank, 'D'));
  Round round(keys);
  std::string looks;
  for (int played = 0; played < 52; ++played) {
    CHECK_EQ(round.rules.CardsRemaining(), 52 - played);
    looks += round.rules.StackPicture()[0];
    const auto next = keys.begin() + played;
    Keys up(next, std::min(next + 3, keys.end()));
    up.resize(3);
    CHECK_EQ(round.UpCards(), (Keys{up[2], up[1], up[0]}));
    CHECK(!round.rules.DeckUsedUp());
    const bool third = played % 3 == 2;
    CHECK(round.Lay(2) == (!third ? Made::Nothing : played < 39 ? Made::Trip : Made::Flush));
  }
  CHECK_EQ(looks, std::string(17, 'F') + std::string(16, 'H') + std::string(16, 'B') + "EEE");
  CHECK(round.rules.DeckUsedUp() && round.Up() == Answer::Refused);
  CHECK(round.rules.TripCount == 13 && round.rules.RunCount == 4);
}

TEST(NoMoveIsLeftWhenStorageAndColumnsAreFullAndWhatIsLeftGoesFromTheEnd) {
  Keys keys;
  for (int i = 0; i < 15; ++i) keys.push_back(core::KeyFromNumber(1 + i * 2 % 13, 'S'));
  Round round(keys);
  for (int card = 0; card < Slots; ++card) CHECK(round.Lay(card / 3) == Made::Nothing);
  for (int spot : {2, 0, 1}) {
    CHECK(!round.rules.NoMoveLeft());
    CHECK(round.Up() == Answer::Select && round.Store(spot) == Answer::Move);
  }
  CHECK(round.rules.NoMoveLeft());
  CHECK(round.Store(1) == Answer::Select);  // a selected card is taken off like any other
  for (int i = Slots + StorageSpots; i > 0; --i) {
    const Spot expected =
        i > StorageSpots ? Spot{Area::Field, i - StorageSpots - 1} : Spot{Area::Storage, i - 1};
    CHECK(round.rules.NextLeftOver() == expected);
    round.rules.TakeOff(expected);
  }
  CHECK(round.rules.NextLeftOver() == Spot{} && !round.rules.CardSelected());
}

TEST(TheThirdRoundHasToBeEarned) {
  Round round({});
  Rules& rules = round.rules;
  CHECK(rules.EarnsNextRound(-5000, 100000));
  ++rules.RoundNumber;
  CHECK(!rules.EarnsNextRound(99999, 100000) && rules.EarnsNextRound(100000, 100000));
  ++rules.RoundNumber;
  CHECK(!rules.EarnsNextRound(999999, 100000));
}

TEST(AnyOrderOfClicksKeepsTheCards) {
  unsigned seed = 1;
  const auto below = [&seed](std::size_t n) {
    seed = seed * 1664525u + 1013904223u;
    return (seed >> 16) % n;
  };
  core::Chance chance;
  for (int game = 0; game < 300; ++game) {
    Round round({});
    CHECK(round.deck.CreateDeck() && round.deck.ShuffleDeck(chance));
    round.rules.Deal();
    int cleared = 0;
    for (int step = 0; step < 400; ++step) {
      round.rules.Click(AllSpots[below(AllSpots.size())]);
      for (int column = 0; column < Columns; ++column) {
        if (round.rules.CheckColumn(column) != Made::Nothing) cleared += 3;
      }
      std::multiset<std::string> lying;
      for (Spot place : AllSpots) {
        if (round.rules.HasCard(place)) lying.insert(round.rules.KeyAt(place));
      }
      CHECK_EQ(std::set<std::string>(lying.begin(), lying.end()).size(), lying.size());
      const int hidden = std::max(0, 52 - round.rules.DeckIndex);
      CHECK_EQ(static_cast<int>(lying.size()) + hidden + cleared, 52);
      for (int slot = 0; slot + Columns < Slots; ++slot) {
        CHECK(!round.Field(slot).empty() || round.Field(slot + Columns).empty());
      }
    }
  }
}
