// Ostrel's deal, its legal moves, its runs and towers, and what follows a round.
#include "games/ostrel/rules.h"

#include <algorithm>
#include <cstdlib>

#include "core/cards/card.h"
#include "core/text/number.h"

namespace games::ostrel {
namespace {

constexpr int OpeningCard = 51;  // position of the round's first up card; the last one to be drawn
constexpr int CardsToDraw = 24;

/// The two cards that lie on each card of the upper rows.
struct Covers {
  int left;
  int right;
};
// clang-format off
constexpr std::array<Covers, CoveredCards> CoversOf = {{
    {3, 4}, {5, 6}, {7, 8},                                         // peaks
    {9, 10}, {10, 11},   {12, 13}, {13, 14},   {15, 16}, {16, 17},  // second row
    {18, 19}, {19, 20}, {20, 21}, {21, 22}, {22, 23}, {23, 24}, {24, 25}, {25, 26}, {26, 27},
}};
// clang-format on

/// What the stack looks like until its index reaches a limit.
struct StackLook {
  int below;
  std::string_view picture;
};
constexpr std::array<StackLook, 3> StackLooks = {{{35, "FULL"}, {42, "HALF"}, {52, "BACK"}}};

std::int16_t Rank(const std::string& key) {
  return core::ClampTo<std::int16_t>(core::RankOf(key));
}

bool AreNeighbours(int a, int b) {
  if (std::abs(a - b) == 1) return true;
  return std::min(a, b) == core::ace && std::max(a, b) == core::king;
}

}  // namespace

void Rules::NewGame() {
  CurrentRun = 0;
  TowersDone = 0;
}

void Rules::Deal(const core::Deck& deck) {
  for (int p = 0; p <= OpeningCard; ++p) FieldCards[static_cast<std::size_t>(p)] = deck(p + 1);
  SetUpCard(FieldCards[OpeningCard]);
  StackIndex = FieldSize;
  CardsLeft = CardsToDraw;
  CardValue = 0;
  SetRun(0);
  NewHighRun = false;
}

const std::string& Rules::CardAt(int position) const {
  static const std::string none;
  if (position < 0 || position >= FieldSize) return none;
  return FieldCards[static_cast<std::size_t>(position)];
}

bool Rules::Exposed(int position) const {
  if (position < 0 || position >= CoveredCards) return true;
  const Covers& covers = CoversOf[static_cast<std::size_t>(position)];
  return !Holds(covers.left) && !Holds(covers.right);
}

bool Rules::IsNextInRun(int position) const {
  return Holds(position) && AreNeighbours(Rank(CardAt(position)), UpRank);
}

bool Rules::CheckForLegalMove(int position) {
  if (!FaceUp(position) || !IsNextInRun(position)) return false;
  UpRank = Rank(CardAt(position));
  return true;
}

CardPlayed Rules::PlayCard(int position) {
  if (!CheckForLegalMove(position)) return {};
  SetUpCard(std::exchange(FieldCards[static_cast<std::size_t>(position)], {}));
  CardValue = core::ClampTo<std::int16_t>(CardValue + scoring_.CardBonus);
  SetRun(CurrentRun + 1);
  const bool peak = position < Towers;
  if (peak) ++TowersDone;
  return {true, CardValue, peak, peak && TowersDone == Towers};
}

bool Rules::DrawCard() {
  CardValue = 0;
  SetRun(0);
  if (CardsLeft > 0) --CardsLeft;
  if (StackIndex > OpeningCard) return false;
  SetUpCard(FieldCards[static_cast<std::size_t>(StackIndex++)]);
  return true;
}

void Rules::SetUpCard(const std::string& card) {
  upCard_ = card;
  UpRank = Rank(card);
}

void Rules::SetRun(int run) {
  CurrentRun = core::ClampTo<std::int16_t>(run);
  if (CurrentRun <= HighRun) return;
  HighRun = CurrentRun;
  NewHighRun = true;
}

std::string_view Rules::StackPicture() const {
  for (const StackLook& look : StackLooks) {
    if (StackIndex < look.below) return look.picture;
  }
  return "EMPTY";
}

AfterRound Rules::Following(int roundNumber, std::int32_t score) const {
  if (roundNumber <= 2) return AfterRound::RoundTwo;
  if (roundNumber == 3 && score >= scoring_.BonusScore) return AfterRound::BonusRound;
  return AfterRound::GameOver;
}

}  // namespace games::ostrel
