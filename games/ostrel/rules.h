// The rules of Ostrel: three towers of cards, and runs up and down on one up card.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "core/cards/deck.h"
#include "games/ostrel/settings.h"

namespace games::ostrel {

inline constexpr int FieldSize = 28;     ///< positions 0 to 27: the cards that can be played
inline constexpr int CoveredCards = 18;  ///< positions 0 to 17 are covered at the deal
inline constexpr int Towers = 3;         ///< their peaks are the positions 0 to 2

/// What a click on a field card gave. A click that is no move gives nothing.
struct CardPlayed {
  bool legal = false;
  std::int16_t points = 0;  ///< what the card has earned
  bool peak = false;        ///< it has completed a tower
  bool lastPeak = false;    ///< all towers are complete: the round is over
};

/// What follows when a round has been paid.
enum class AfterRound { RoundTwo, BonusRound, GameOver };

/// State and moves of a game; the score itself is the owner's. Operations may come in any order; a
/// position outside of the field is one without a card.
class Rules {
 public:
  /// The values are the caller's and may change between two moves.
  explicit Rules(const Scoring& scoring) : scoring_(scoring) {}

  std::int16_t StackIndex = FieldSize;  ///< position of the card that the next draw turns
  std::int16_t UpRank = 0;              ///< rank of the up card
  std::int16_t CurrentRun = 0;          ///< field cards played since the last draw
  std::int16_t HighRun = 0;             ///< the longest run of all games
  std::int16_t CardValue = 0;           ///< points of the card last played in this run
  std::int16_t CardsLeft = 0;           ///< the count shown beside the stack
  std::int32_t TowersDone = 0;          ///< towers completed in this round and not yet paid
  bool NewHighRun = false;              ///< the record was beaten in this round

  void NewGame();
  /// Lays out a shuffled deck; run, card value and the mark of a new record start anew.
  void Deal(const core::Deck& deck);

  /// Whether a click on this card is a move; if so, its rank becomes the rank to follow.
  bool CheckForLegalMove(int position);
  /// Plays a field card onto the up card.
  CardPlayed PlayCard(int position);
  /// Turns the next card of the stack and ends the run. False if the stack is empty.
  bool DrawCard();

  /// By rank alone: a neighbour of the up card in the circle from Ace to King.
  bool IsNextInRun(int position) const;
  bool Holds(int position) const { return !CardAt(position).empty(); }
  bool Exposed(int position) const;  ///< no card covers this position
  bool FaceUp(int position) const { return Holds(position) && Exposed(position); }
  bool TowerComplete(int tower) const { return !Holds(tower - 1); }  ///< 1 to 3: its peak is gone

  const std::string& CardAt(int position) const;  ///< its key; empty where no card is
  const std::string& UpCard() const { return upCard_; }
  /// Picture key of the stack, which shows how much is left of it.
  std::string_view StackPicture() const;
  std::int32_t NextCardValue() const { return (CurrentRun + 1) * scoring_.CardBonus; }

  /// The towers to be paid, which are then counted no more.
  int TakeTowers() { return std::exchange(TowersDone, 0); }
  /// Whether a record is to be paid, which then is none any more.
  bool TakeNewHighRun() { return std::exchange(NewHighRun, false); }
  /// `roundNumber` is that of the round that would come next.
  AfterRound Following(int roundNumber, std::int32_t score) const;

 private:
  void SetRun(int run);
  void SetUpCard(const std::string& card);

  const Scoring& scoring_;
  std::array<std::string, 53> FieldCards;  ///< field, stack, the opening card; the last is unused
  std::string upCard_;
};

}  // namespace games::ostrel
