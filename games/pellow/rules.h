// Pellow's rules: exposed cards are taken from a field two at a time, as pairs and runs.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/cards/deck.h"
#include "games/pellow/settings.h"

namespace games::pellow {

/// The positions of cards: rows of five and of four in turn, each row lying over the one above it,
/// and below the field the top of the pile of up cards.
///
///     0   1   2   3   4
///       5   6   7   8
///     9  10  11  12  13
///      14  15  16  17
///    18  19  20  21  22        23
inline constexpr int TopRow = 5;  ///< positions 0 to 4 are the top row
inline constexpr int FieldSize = 23;
inline constexpr int UpPosition = 23;
inline constexpr int Positions = 24;

/// What two cards of these ranks make: a pair of equals or a run of neighbours, King and Ace being
/// neighbours as well.
enum class Match { None, Pair, Run };
Match MatchOf(int rank, int other);

/// What a click on a position has given.
enum class Click { Nothing, Refused, Selected, Deselected, Matched };

struct ClickResult {
  Click click = Click::Nothing;
  Match match = Match::None;
  bool stackCardTurned = false;  ///< the pile ran out, and the next stack card came by itself
  bool topRowCleared = false;    ///< the round is over
};

/// One bonus of a round, in the order of paying.
struct Award {
  enum class Kind { Completion, Speed, Pairs, Runs, CardsRemaining };
  Kind kind;
  std::int64_t count;
  std::int64_t value;  ///< of one; that of a second is not known here
  std::string title;
};

enum class Next { RoundTwo, BonusRound, GameOver };
/// What follows when `roundNumber` has been counted up at the end of a round.
Next NextAfter(int roundNumber, std::int64_t score, std::int64_t bonusScore);

/// One round. A game makes one for each of its windows and deals it anew for each round. Before
/// the first deal it holds no card; any order of calls is harmless.
class Rules {
 public:
  /// Lays out a shuffled deck of 52 and forgets the round before.
  void Deal(const core::Deck& deck);

  ClickResult PlayCard_Click(int position);
  /// Turns the next stack card; false if there is none.
  bool CardStackPicture_Click();
  void ClearSelection();

  bool IsCardExposed(int position) const;
  /// A pair or a run lies exposed.
  bool LegalMovesRemain() const;
  bool TopRowCleared() const;
  /// The stack is empty and nothing that is exposed matches.
  bool Stuck() const { return StackCount() == 0 && !LegalMovesRemain(); }

  /// The bonuses of the round as it stands. FieldCleared: it ends because the top row is gone.
  std::vector<Award> Awards(const Scoring& scoring, int secondsLeft, bool FieldCleared) const;

  bool HoldsCard(int position) const;
  /// The key at a position. A field card that has gone leaves its old key behind.
  const std::string& FieldCard(int position) const { return FieldCards_.at(position); }
  bool IsSelected(int position) const { return CardSelected_ == 1 && SelectedCard_ == position; }
  /// The key of the picture that the stack shows.
  std::string StackPicture() const;
  int UpCount() const { return UpCount_; }
  std::int32_t StackCount() const { return StackCount_; }
  std::int32_t PairCount() const { return PairCount_; }
  std::int32_t RunCount() const { return RunCount_; }

 private:
  static constexpr int DeckSize = 52;
  static constexpr int PileSize = 30;

  void Select(int position);
  ClickResult TakeWith(int position, Match match);
  void TakeFromPile();
  void FillVacantSpot();
  bool MoveCardFromStack();

  std::array<std::string, DeckSize + 1> FieldCards_;
  std::array<bool, FieldSize> onField_{};
  std::array<std::string, PileSize + 1> UpPile_;  ///< from index 1, its top at UpCount_
  std::int16_t UpCount_ = 0;
  std::int32_t StackCount_ = 0;
  std::int16_t StackIndex_ = DeckSize;  ///< position of the next stack card
  std::int16_t CardSelected_ = 0;
  std::int16_t SelectedCard_ = 0;
  std::int16_t SelectedRank_ = 0;
  std::int32_t PairCount_ = 0;
  std::int32_t RunCount_ = 0;
};

}  // namespace games::pellow
