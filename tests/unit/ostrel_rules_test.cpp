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

// Fives and sixes: neighbouring positions follow each other, and the stack helps with the rest.
core::Deck FivesAndSixes() {
  return DeckOf({5, 6}, {5, 6}, 6);
}

// Plays a card of that deck, after as many draws as it takes.
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
  rules.Deal(FivesAndSixes());
  for (int p = -1; p <= 52; ++p) CHECK_EQ(rules.FaceUp(p), p >= 18 && p < FieldSize);
  CHECK(!rules.PlayCard(17).legal);

  // A card turns over with the last of its two covers; one click can turn over two.
  const auto up = [&] {
    std::vector<int> positions;
    for (int p = 0; p < 18; ++p) {
      if (rules.FaceUp(p)) positions.push_back(p);
    }
    return positions;
  };
  using Positions = std::vector<int>;
  Force(rules, 18);
  Force(rules, 20);
  CHECK(up().empty());
  Force(rules, 19);
  CHECK(up() == Positions({9, 10}));
  for (int p : {9, 10}) Force(rules, p);
  CHECK(up() == Positions({3}));
  for (int p = 27; p > 20; --p) Force(rules, p);
  CHECK(up() == Positions({3, 11, 12, 13, 14, 15, 16, 17}));
  for (int p : {11, 12, 13, 14, 15, 16, 17, 4, 5, 7}) Force(rules, p);
  CHECK(up() == Positions({3, 6, 8}));
  for (int p : {3, 6}) CHECK(!Force(rules, p).peak);

  // A tower is complete with its peak, whatever is left below.
  CHECK(Force(rules, 0).peak);
  CHECK(rules.TowerComplete(1) && !rules.TowerComplete(2));
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
  int points = 0;
  for (int p = 18; p <= 25; ++p) {
    CHECK_EQ(rules.NextCardValue(), 100 * (p - 17));
    points += rules.PlayCard(p).points;
    CHECK_EQ(rules.UpRank, run[static_cast<std::size_t>(p - 18)]);
  }
  CHECK_EQ(points, 100 * 36);
  CHECK(!rules.CheckForLegalMove(27));  // equal ranks
  CHECK(!rules.CheckForLegalMove(26));  // two away
  CHECK_EQ(rules.CurrentRun, 8);        // a refused card leaves the run alone

  CHECK(rules.DrawCard());
  CHECK_EQ(rules.PlayCard(26).points, 100);

  // A value from a damaged file stays within its width.
  scoring.CardBonus = 32767;
  rules.Deal(FivesAndSixes());
  for (int p : {18, 19}) CHECK_EQ(rules.PlayCard(p).points, 32767);
}

TEST(OstrelStackOffersTheOpeningCardLastAndCardsGoOnAfterIt) {
  const Scoring scoring;
  Rules rules(scoring);
  std::vector<int> stack;
  for (int i = 0; i < 23; ++i) stack.push_back(i % 13 + 1);
  rules.Deal(DeckOf(std::vector<int>(FieldSize, 5), stack, 6));
  CHECK_EQ(rules.CardsLeft, 24);
  std::string looks;
  for (int i = 0; i < 24; ++i) {
    CHECK(rules.DrawCard());
    CHECK_EQ(rules.UpRank, i < 23 ? stack[static_cast<std::size_t>(i)] : 6);
    CHECK_EQ(rules.CardsLeft, 23 - i);
    looks += rules.StackPicture()[0];
  }
  CHECK_EQ(looks, std::string(6, 'F') + std::string(7, 'H') + std::string(10, 'B') + "E");
  CHECK_EQ(rules.PlayCard(18).points, 100);
  CHECK(!rules.DrawCard());
  CHECK(rules.CardsLeft == 0 && rules.UpRank == 5);
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
  CHECK_EQ(rules.CardValue, 200);
  CHECK(!rules.NewHighRun);
  rules.HighRun = -7;  // from a damaged file: no card played is no record
  rules.Deal(deck);
  CHECK(!rules.NewHighRun);
  CHECK_EQ(rules.HighRun, 0);
}

TEST(OstrelBonusRoundIsEarnedWithTheVeryScore) {
  const Scoring scoring;
  const Rules rules(scoring);
  CHECK(rules.Following(2, 0) == AfterRound::RoundTwo);
  CHECK(rules.Following(3, 39999) == AfterRound::GameOver);
  CHECK(rules.Following(3, 40000) == AfterRound::BonusRound);
  CHECK(rules.Following(4, 999999) == AfterRound::GameOver);
}
