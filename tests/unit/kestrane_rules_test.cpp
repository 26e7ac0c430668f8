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
  // Clicks on up cards (u), the field (f) and storage (s): refused, select, cancel or move.
  std::string Clicks(const std::string& spots) {
    std::string answers;
    for (std::size_t i = 0; i < spots.size(); i += 2) {
      const Area area = spots[i] == 'u'   ? Area::UpCards
                        : spots[i] == 'f' ? Area::Field
                                          : Area::Storage;
      answers += "rscm"[static_cast<int>(rules.Click({area, spots[i + 1] - '0'}))];
    }
    return answers;
  }
  Made Lay(int slot) {
    CHECK_EQ(Clicks("u2f" + std::to_string(slot)), "sm");
    return rules.CheckColumn(slot % Columns);
  }
  std::string Field(int slot) const { return core::Trimmed(rules.KeyAt({Area::Field, slot})); }
  std::string Stored(int spot) const { return core::Trimmed(rules.KeyAt({Area::Storage, spot})); }

  core::Deck deck;
  Rules rules{deck};
};

}  // namespace

TEST(ColumnsClearForTripsAndRunsInTheOrderInWhichTheCardsLie) {
  const auto rises = [](int a, int b, int c) {
    return b == a % 13 + 1 && c == b % 13 + 1 && b != 1;
  };
  for (int code = 0; code < 13 * 13 * 13 * 4; ++code) {
    const std::vector<int> ranks = {1 + code / 4 % 13, 1 + code / 52 % 13, 1 + code / 676};
    const std::string suits = std::vector<std::string>{"SSS", "HHD", "CDD", "HCH"}[code % 4u];
    Keys keys;
    for (std::size_t i = 0; i < 3; ++i) keys.push_back(core::KeyFromNumber(ranks[i], suits[i]));
    Round round(keys);
    const int column = code % 4;
    CHECK(round.Lay(column) == Made::Nothing && round.Lay(column) == Made::Nothing);
    const bool trip = ranks[0] == ranks[1] && ranks[1] == ranks[2];
    const bool run = rises(ranks[0], ranks[1], ranks[2]) || rises(ranks[2], ranks[1], ranks[0]);
    const Made made = run ? (suits == "SSS" ? Made::Flush : Made::Run) : Made::Nothing;
    CHECK(round.Lay(column) == (trip ? Made::Trip : made));
    CHECK(round.rules.TripCount == trip && round.rules.RunCount == run);
    CHECK_EQ(round.Field(column).empty(), trip || run);
  }
}

TEST(AClickSelectsMovesCancelsOrIsRefused) {
  Round round({"5S", "7H", "6D", "1C", "2C", "3C", "4C"});
  // A column fills from the top, wherever it is hit; only the front up card can be taken.
  CHECK_EQ(round.Clicks("u1f2u2f9u2f1u2f5"), "rrsmsmsm");
  CHECK(round.Field(1) == "5S" && round.Field(5) == "7H" && round.Field(9) == "6D");
  CHECK_EQ(round.Clicks("u2u0f5u2"), "srrc");
  CHECK(!round.rules.CardSelected());
  // Only the column's top card can be taken.
  CHECK_EQ(round.Clicks("f1f5f5s1"), "scsm");
  CHECK(round.Stored(1) == "6D" && round.Field(9).empty());
  // Storage: shuffled, refused to another card, and back to the field, where it makes a run.
  CHECK_EQ(round.Clicks("s1s2u2s2s0"), "smsrm");
  CHECK(round.Stored(1).empty() && round.Stored(2) == "6D" && round.rules.DeckIndex == 7);
  CHECK_EQ(round.Clicks("f1s1s2f1s1f9"), "smsmsm");
  CHECK(round.rules.CheckColumn(1) == Made::Run);
}

TEST(TheDeckRunsOutAndTheThirdRoundHasToBeEarned) {
  Round round({});
  Rules& rules = round.rules;
  std::string looks;
  for (int played = 0; played < 52; ++played) {
    CHECK_EQ(rules.CardsRemaining(), 52 - played);
    looks += rules.StackPicture()[0];
    round.Lay(0);
  }
  CHECK_EQ(looks, std::string(17, 'F') + std::string(16, 'H') + std::string(16, 'B') + "EEE");
  CHECK(rules.DeckUsedUp() && round.Clicks("u2") == "r" && rules.TripCount == 17);
  rules.RoundNumber = 2;
  CHECK(!rules.EarnsNextRound(99999, 100000) && rules.EarnsNextRound(100000, 100000));
  rules.RoundNumber = 3;
  CHECK(!rules.EarnsNextRound(999999, 100000));
}

TEST(NoMoveIsLeftWhenStorageAndColumnsAreFullAndWhatIsLeftGoesFromTheEnd) {
  Keys keys;
  for (int i = 0; i < 15; ++i) keys.push_back(core::KeyFromNumber(1 + i * 2 % 13, 'S'));
  Round round(keys);
  for (int card = 0; card < Slots; ++card) CHECK(round.Lay(card / 3) == Made::Nothing);
  for (const char* clicks : {"u2s2", "u2s0", "u2s1"}) {
    CHECK(!round.rules.NoMoveLeft());
    CHECK_EQ(round.Clicks(clicks), "sm");
  }
  CHECK(round.rules.NoMoveLeft());
  CHECK((round.rules.NextLeftOver() == Spot{Area::Field, Slots - 1}));
  CHECK_EQ(round.Clicks("s1"), "s");  // a selected card is taken off like any other
  round.rules.TakeOff({Area::Storage, 1});
  CHECK(!round.rules.CardSelected());
}

TEST(AnyOrderOfClicksKeepsTheCards) {
  core::Chance chance([] { return 7; });
  for (int game = 0; game < 300; ++game) {
    Round round({});
    CHECK(round.deck.CreateDeck() && round.deck.ShuffleDeck(chance));
    round.rules.Deal();
    int cleared = 0;
    for (int step = 0; step < 400; ++step) {
      const int spot = core::RandomBelow(chance, std::size(AllSpots));
      round.rules.Click(AllSpots[spot]);
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
