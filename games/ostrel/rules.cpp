// Ostrel's deal, its legal moves, its runs and towers, and what follows a round.
#include "games/ostrel/rules.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "core/cards/card.h"
#include "core/text/number.h"

namespace games::ostrel {
namespace {

constexpr int CardsToDraw = 24;

/// The two cards that lie on each card of the upper rows.
struct Covers {
  int left;
  int right;
};
// clang-format off
constexpr std::array<Covers, CoveredCards> CoversOf = {{
    {3, 4}, {5, 6}, {7, 8},                                        // peaks
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

// --- the deal -----------------------------------------------------------------------------------

void Rules::NewGame() {
  currentRun_ = 0;
  towersDone_ = 0;
}

void Rules::Deal(const core::Deck& deck) {
  for (int p = 0; p <= openingCard; ++p) fieldCards_[static_cast<std::size_t>(p)] = deck(p + 1);
  upCard_ = fieldCards_[openingCard];
  upRank_ = Rank(upCard_);
  stackIndex_ = stackFirst;
  cardsLeft_ = CardsToDraw;
  cardValue_ = 0;
  SetRun(0);
  newHighRun_ = false;
}

// --- the field ----------------------------------------------------------------------------------

const std::string& Rules::CardAt(int position) const {
  static const std::string none;
  if (position < 0 || position >= FieldSize) return none;
  return fieldCards_[static_cast<std::size_t>(position)];
}

bool Rules::Holds(int position) const {
  return !CardAt(position).empty();
}

bool Rules::Exposed(int position) const {
  if (position < 0 || position >= CoveredCards) return true;
  const Covers& covers = CoversOf[static_cast<std::size_t>(position)];
  return !Holds(covers.left) && !Holds(covers.right);
}

bool Rules::FaceUp(int position) const {
  return Holds(position) && Exposed(position);
}

bool Rules::TowerComplete(int tower) const {
  return tower >= 1 && tower <= Towers && !Holds(tower - 1);
}

std::vector<int> Rules::UncoveredBy(int position) const {
  std::vector<int> uncovered;
  for (int p = 0; p < CoveredCards; ++p) {
    const Covers& covers = CoversOf[static_cast<std::size_t>(p)];
    if ((covers.left == position || covers.right == position) && FaceUp(p)) uncovered.push_back(p);
  }
  return uncovered;
}

// --- moves --------------------------------------------------------------------------------------

bool Rules::IsNextInRun(int position) const {
  return Holds(position) && AreNeighbours(Rank(CardAt(position)), upRank_);
}

bool Rules::CheckForLegalMove(int position) {
  if (!FaceUp(position) || !IsNextInRun(position)) return false;
  upRank_ = Rank(CardAt(position));
  return true;
}

CardPlayed Rules::PlayCard(int position) {
  CardPlayed played;
  if (!CheckForLegalMove(position)) return played;
  played.legal = true;
  upCard_ = std::exchange(fieldCards_[static_cast<std::size_t>(position)], {});
  cardValue_ = core::ClampTo<std::int16_t>(cardValue_ + scoring_.CardBonus);
  played.points = cardValue_;
  SetRun(currentRun_ + 1);
  if (position < Towers) {
    played.tower = position + 1;
    played.lastTower = ++towersDone_ == Towers;
  } else {
    played.turned = UncoveredBy(position);
  }
  return played;
}

bool Rules::DrawCard() {
  cardValue_ = 0;
  SetRun(0);
  if (cardsLeft_ > 0) --cardsLeft_;
  if (stackIndex_ > openingCard) return false;
  upCard_ = fieldCards_[static_cast<std::size_t>(stackIndex_)];
  upRank_ = Rank(upCard_);
  ++stackIndex_;
  return true;
}

std::string_view Rules::StackPicture() const {
  for (const StackLook& look : StackLooks) {
    if (stackIndex_ < look.below) return look.picture;
  }
  return "EMPTY";
}

// --- runs and rounds ----------------------------------------------------------------------------

void Rules::SetRun(int run) {
  currentRun_ = core::ClampTo<std::int16_t>(run);
  if (currentRun_ <= HighRun) return;
  HighRun = currentRun_;
  newHighRun_ = true;
}

std::int32_t Rules::NextCardValue() const {
  return (currentRun_ + 1) * scoring_.CardBonus;
}

int Rules::TakeTowers() {
  return std::exchange(towersDone_, 0);
}

bool Rules::TakeNewHighRun() {
  return std::exchange(newHighRun_, false);
}

AfterRound Rules::Following(int roundNumber, std::int32_t score) const {
  if (roundNumber <= 2) return AfterRound::RoundTwo;
  if (roundNumber == 3 && score >= scoring_.BonusScore) return AfterRound::BonusRound;
  return AfterRound::GameOver;
}

}  // namespace games::ostrel
