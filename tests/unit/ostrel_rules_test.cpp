// Tests of Ostrel's rules: covers and legal moves, runs and records, the stack, rounds.
#include "games/ostrel/rules.h"
#include "tests/check.h"

using namespace games::ostrel;

namespace {

// A deck by ranks: those of the field, then the stack, then the card that opens the round.
core::Deck DeckOf(const std::vector<int>& field, const std::vector<int>& stack, int opening) {
  std::vector<std::string> keys;
  for (int p = 0; p < 52; ++p) {
    const auto at = static_cast<std::size_t>(p < FieldSize ? p : p - FieldSize);
    const auto& ranks = p < FieldSize ? field : stack;
    const int rank = p == 51 ? opening : ranks[at % ranks.size()];
    keys.push_back((p % 2 ? " " : "") + std::to_string(rank) + "SHCD"[p % 4]);
  }
  core::Deck deck;
  deck.Assign(keys);
  return deck;
}

// Plays a card of a deck of fives and sixes, after as many draws as it takes.
CardPlayed Force(Rules& rules, int position) {
  while (!rules.IsNextInRun(position) && rules.DrawCard()) {
  }
  return rules.PlayCard(position);
}

}  // namespace

TEST(OstrelCardsComeFreeExactlyWhenBothTheirCoversAreGone) {
  const Scoring scoring;
  Rules rules(scoring);
  CHECK(!rules.PlayCard(20).legal);  // before any deal
  rules.Deal(DeckOf({5, 6}, {5, 6}, 6));
  for (int p = -1; p <= 52; ++p) CHECK_EQ(rules.FaceUp(p), p >= 18 && p < FieldSize);

  // A card turns over with the last of its two covers; one click can turn over two.
  const auto upAfter = [&](std::initializer_list<int> played) {
    for (int p : played) Force(rules, p);
    std::string up;
    for (int p = 0; p < 18; ++p) up += rules.FaceUp(p) ? std::to_string(p) + " " : "";
    return up;
  };
  CHECK_EQ(upAfter({18, 20}), "");
  CHECK_EQ(upAfter({19}), "9 10 ");
  CHECK_EQ(upAfter({9, 10}), "3 ");
  CHECK_EQ(upAfter({27, 26, 25, 24, 23, 22, 21}), "3 11 12 13 14 15 16 17 ");
  CHECK_EQ(upAfter({11, 12, 13, 14, 15, 16, 17, 4, 5, 7}), "3 6 8 ");
  for (int p : {3, 6}) CHECK(!Force(rules, p).peak);

  // A tower is complete with its peak, whatever is left below.
  CHECK(Force(rules, 0).peak && rules.TowerComplete(1) && !rules.TowerComplete(2));
  Force(rules, 8);
  CHECK(!Force(rules, 1).lastPeak && Force(rules, 2).lastPeak);
  CHECK(rules.TakeTowers() == 3 && rules.TakeTowers() == 0);
}

TEST(OstrelRunsGoRoundAceAndKingInBothDirections) {
  Scoring scoring;
  Rules rules(scoring);
  // Positions 18 to 27 hold a run with two turns and two ways round; then cards that don't fit.
  std::vector<int> field(FieldSize, 7);
  const std::vector<int> run = {12, 13, 1, 2, 1, 13, 12, 11, 9, 11};
  std::copy(run.begin(), run.end(), field.begin() + 18);
  rules.Deal(DeckOf(field, {8}, 11));
  for (int p = 18; p <= 25; ++p) {
    CHECK_EQ(rules.NextCardValue(), 100 * (p - 17));
    CHECK_EQ(rules.PlayCard(p).points, 100 * (p - 17));
  }
  // Equal ranks, and two away: a refused card leaves the run alone.
  CHECK(!rules.CheckForLegalMove(27) && !rules.PlayCard(26).legal && rules.CurrentRun == 8);
  CHECK(rules.DrawCard());
  CHECK_EQ(rules.PlayCard(26).points, 100);

  // A value from a damaged file stays within its width.
  scoring.CardBonus = 32767;
  rules.Deal(DeckOf({5, 6}, {5, 6}, 6));
  for (int p : {18, 19}) CHECK_EQ(rules.PlayCard(p).points, 32767);
}

TEST(OstrelStackOffersTheOpeningCardLastAndCardsGoOnAfterIt) {
  const Scoring scoring;
  Rules rules(scoring);
  rules.Deal(DeckOf({5}, {1, 2, 3, 4, 7, 8, 9, 10, 11, 12, 13}, 6));
  std::string looks;
  for (int left = 23; left >= 0; --left) {
    CHECK(rules.DrawCard() && rules.CardsLeft == left);
    CHECK_EQ(rules.UpRank == 6, left == 0);
    looks += rules.StackPicture()[0];
  }
  CHECK_EQ(looks, std::string(6, 'F') + std::string(7, 'H') + std::string(10, 'B') + "E");
  CHECK_EQ(rules.PlayCard(18).points, 100);
  CHECK(!rules.DrawCard() && rules.CardsLeft == 0 && rules.UpRank == 5);
  CHECK_EQ(rules.CurrentRun, 0);  // also an empty stack ends the run
}

TEST(OstrelRecordsCountOnceARoundAndRunsEndWithTheRound) {
  const Scoring scoring;
  Rules rules(scoring);
  std::vector<int> field(FieldSize, 5);
  for (int p = 18; p < FieldSize; ++p) field[static_cast<std::size_t>(p)] = p % 2 ? 4 : 5;
  const core::Deck deck = DeckOf(field, {6}, 4);
  const auto playRun = [&](int cards) {
    rules.Deal(deck);
    for (int p = 18; p < 18 + cards; ++p) CHECK(rules.PlayCard(p).legal);
  };
  rules.HighRun = 3;
  playRun(3);
  CHECK(!rules.NewHighRun);  // an equal run is no record
  playRun(5);
  CHECK(rules.TakeNewHighRun() && !rules.TakeNewHighRun());
  rules.PlayCard(23);
  CHECK(rules.TakeNewHighRun());  // beaten again, paid again
  playRun(2);
  CHECK(rules.CardValue == 200 && !rules.NewHighRun);
  rules.HighRun = -7;  // from a damaged file: no card played is no record
  rules.Deal(deck);
  CHECK(!rules.NewHighRun && rules.HighRun == 0);
}

TEST(OstrelBonusRoundIsEarnedWithTheVeryScore) {
  const Scoring scoring;
  const Rules rules(scoring);
  CHECK(rules.Following(3, 39999) == AfterRound::GameOver);
  CHECK(rules.Following(3, 40000) == AfterRound::BonusRound);
}
