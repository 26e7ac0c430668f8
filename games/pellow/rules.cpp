// Pellow's rules: the covers, the match, the pile and the stack, and what a round pays.
#include "games/pellow/rules.h"

#include <algorithm>
#include <iterator>

#include "core/cards/card.h"

namespace games::pellow {
namespace {

/// The two cards that cover each position above the lowest row. The end cards of a row of five
/// have only one neighbour in the next row, and are covered by the end card two rows down as well.
constexpr int Covers[][2] = {{5, 9},   {5, 6},   {6, 7},   {7, 8},   {8, 13},  {9, 10},
                             {10, 11}, {11, 12}, {12, 13}, {14, 18}, {14, 15}, {15, 16},
                             {16, 17}, {17, 22}, {18, 19}, {19, 20}, {20, 21}, {21, 22}};
constexpr int CoveredPositions = std::size(Covers);

constexpr int FirstStackPosition = 24;
constexpr int LastFull = 34;  // StackIndex up to which the stack is thick
constexpr int LastHalf = 41;
constexpr int LastBack = 51;

}  // namespace

Match MatchOf(int rank, int other) {
  if (rank == other) return Match::Pair;
  const auto [low, high] = std::minmax(rank, other);
  const bool neighbours = high == low + 1 || (low == core::ace && high == core::king);
  return neighbours ? Match::Run : Match::None;
}

Next NextAfter(int roundNumber, std::int64_t score, std::int64_t bonusScore) {
  if (roundNumber == 2) return Next::RoundTwo;
  return roundNumber == 3 && score >= bonusScore ? Next::BonusRound : Next::GameOver;
}

void Rules::Deal(const core::Deck& deck) {
  *this = Rules();
  for (int p = 0; p < DeckSize; ++p) FieldCards_.at(p) = deck(p + 1);
  onField_.fill(true);
  UpPile_[1] = deck(UpPosition + 1);
  UpCount_ = 1;
  StackIndex_ = FirstStackPosition;
  StackCount_ = DeckSize - FirstStackPosition;
}

bool Rules::HoldsCard(int position) const {
  if (position == UpPosition) return UpCount_ > 0;
  return position >= 0 && position < FieldSize && onField_.at(position);
}

bool Rules::IsCardExposed(int position) const {
  if (position < 0 || position >= CoveredPositions) return true;
  const auto [first, second] = Covers[position];
  return !HoldsCard(first) && !HoldsCard(second);
}

bool Rules::TopRowCleared() const {
  return std::none_of(onField_.begin(), onField_.begin() + TopRow, [](bool held) { return held; });
}

std::string Rules::StackPicture() const {
  if (StackIndex_ <= LastFull) return "FULL";
  if (StackIndex_ <= LastHalf) return "HALF";
  return StackIndex_ <= LastBack ? "BACK" : "EMPTY";
}

bool Rules::LegalMovesRemain() const {
  std::vector<int> ranks;
  for (int p = 0; p < Positions; ++p) {
    if (!HoldsCard(p) || !IsCardExposed(p)) continue;
    const int rank = core::RankOf(FieldCard(p));
    const auto matches = [rank](int other) { return MatchOf(rank, other) != Match::None; };
    if (std::any_of(ranks.begin(), ranks.end(), matches)) return true;
    ranks.push_back(rank);
  }
  return false;
}

ClickResult Rules::PlayCard_Click(int position) {
  if (position == UpPosition && UpCount_ == 0) return {Click::Refused};
  if (!HoldsCard(position)) return {Click::Nothing};
  if (!IsCardExposed(position)) return {Click::Refused};
  if (IsSelected(position)) {
    ClearSelection();
    return {Click::Deselected};
  }
  const Match match =
      CardSelected_ == 0 ? Match::None : MatchOf(SelectedRank_, core::RankOf(FieldCard(position)));
  if (match != Match::None) return TakeWith(position, match);
  Select(position);
  return {Click::Selected};
}

void Rules::Select(int position) {
  CardSelected_ = 1;
  SelectedCard_ = static_cast<std::int16_t>(position);
  SelectedRank_ = static_cast<std::int16_t>(core::RankOf(FieldCard(position)));
}

void Rules::ClearSelection() {
  CardSelected_ = 0;
  SelectedRank_ = 0;
}

ClickResult Rules::TakeWith(int position, Match match) {
  ++(match == Match::Pair ? PairCount_ : RunCount_);
  ClickResult result{Click::Matched, match};
  for (const int taken : {static_cast<int>(SelectedCard_), position}) {
    if (taken != UpPosition) onField_.at(taken) = false;
  }
  if (SelectedCard_ == UpPosition || position == UpPosition) {
    TakeFromPile();
    result.stackCardTurned = UpCount_ == 0 && MoveCardFromStack();
  }
  ClearSelection();
  result.topRowCleared = TopRowCleared();
  return result;
}

void Rules::TakeFromPile() {
  --UpCount_;
  FieldCards_[UpPosition] = UpCount_ > 0 ? UpPile_.at(UpCount_) : std::string();
}

bool Rules::CardStackPicture_Click() {
  if (StackCount_ == 0) return false;
  FillVacantSpot();
  MoveCardFromStack();
  ClearSelection();
  return true;
}

void Rules::FillVacantSpot() {
  const auto vacant = std::find(onField_.begin(), onField_.end(), false);
  if (vacant == onField_.end() || UpCount_ == 0) return;
  *vacant = true;
  FieldCards_.at(vacant - onField_.begin()) = UpPile_.at(UpCount_);
  --UpCount_;
}

bool Rules::MoveCardFromStack() {
  if (StackCount_ == 0) return false;
  --StackCount_;
  ++UpCount_;
  FieldCards_[UpPosition] = UpPile_.at(UpCount_) = FieldCards_.at(StackIndex_);
  ++StackIndex_;
  return true;
}

std::vector<Award> Rules::Awards(const Scoring& scoring, int secondsLeft, bool FieldCleared) const {
  const std::int64_t cleared = FieldCleared ? 1 : 0;
  std::vector<Award> awards{
      {Award::Kind::Completion, cleared, scoring.CompletionBonus, "Completion Bonus"},
      {Award::Kind::Speed, secondsLeft, 0, "Speed Bonus"},
      {Award::Kind::Pairs, PairCount_, scoring.PairsBonus, "Pairs Bonus"},
      {Award::Kind::Runs, RunCount_, scoring.RunsBonus, "Runs Bonus"},
      {Award::Kind::CardsRemaining, cleared * StackCount_, scoring.RemainingCardBonus,
       "Cards Remaining Bonus"}};
  std::erase_if(awards, [](const Award& award) { return award.count <= 0; });
  return awards;
}

}  // namespace games::pellow
