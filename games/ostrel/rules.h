// The rules of Ostrel: three towers of cards, and runs up and down on one up card.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/cards/deck.h"
#include "games/ostrel/settings.h"

namespace games::ostrel {

inline constexpr int FieldSize = 28;     ///< positions 0 to 27: the cards that can be played
inline constexpr int CoveredCards = 18;  ///< positions 0 to 17 are covered at the deal
inline constexpr int Towers = 3;         ///< their peaks are the positions 0 to 2

/// What a click on a field card gave. A click that is no move gives nothing.
struct CardPlayed {
  bool legal = false;
  std::int16_t points = 0;       ///< what the card has earned
  int tower = 0;                 ///< the tower that it completed, 1 to 3; 0 for none
  std::vector<int> turned = {};  ///< positions of the cards that it turned face up
  bool lastTower = false;        ///< all towers are complete: the round is over
};

/// What follows when a round has been paid.
enum class AfterRound { RoundTwo, BonusRound, GameOver };

/// State and moves of a game. Operations may come in any order; a position outside of the field is
/// one without a card. Before the first deal there are no cards at all.
class Rules {
 public:
  /// The values are the caller's and may change between two moves.
  explicit Rules(const Scoring& scoring) : scoring_(scoring) {}

  void NewGame();
  /// Lays out a shuffled deck; run, card value and the mark of a new record start anew.
  void Deal(const core::Deck& deck);

  /// Whether a click on this card is a move; if so, its rank becomes the rank to follow.
  bool CheckForLegalMove(int position);
  /// Plays a field card onto the up card.
  CardPlayed PlayCard(int position);
  /// Turns the next card of the stack and ends the run. False if the stack is empty.
  bool DrawCard();

  /// The rank alone: a neighbour of the up card in the circle from Ace to King.
  bool IsNextInRun(int position) const;
  bool Holds(int position) const;       ///< a card of the field still lies there
  bool FaceUp(int position) const;      ///< it does, and no card covers it
  bool Exposed(int position) const;     ///< no card covers this position
  bool TowerComplete(int tower) const;  ///< 1 to 3: its peak has been played

  const std::string& CardAt(int position) const;  ///< its key; empty where no card is
  const std::string& UpCard() const { return upCard_; }
  /// Picture key of the stack, which shows how much is left of it.
  std::string_view StackPicture() const;

  // --- the end of a round ---------------------------------------------------------------------

  void EndRun() { currentRun_ = 0; }
  int TakeTowers();       ///< the towers to be paid, which are then counted no more
  bool TakeNewHighRun();  ///< whether a record is to be paid, which then is none any more
  /// `roundNumber` is the round's that would come next; a score of BonusScore earns the bonus
  /// round.
  AfterRound Following(int roundNumber, std::int32_t score) const;

  // --- the counters ---------------------------------------------------------------------------

  std::int16_t StackIndex() const { return stackIndex_; }
  std::int16_t UpRank() const { return upRank_; }
  std::int16_t CurrentRun() const { return currentRun_; }
  std::int16_t CardValue() const { return cardValue_; }
  std::int16_t CardsLeft() const { return cardsLeft_; }
  std::int32_t TowersDone() const { return towersDone_; }
  bool NewHighRun() const { return newHighRun_; }
  std::int32_t NextCardValue() const;  ///< points for the next card of this run

  std::int16_t HighRun = 0;  ///< the record, kept between games

 private:
  static constexpr int stackFirst = FieldSize;
  static constexpr int openingCard = 51;  // the round's first up card, and the stack's last card
  static constexpr int positions = 53;    // the last is never filled

  void SetRun(int run);
  std::vector<int> UncoveredBy(int position) const;

  const Scoring& scoring_;
  std::array<std::string, positions> fieldCards_;
  std::string upCard_;
  std::int16_t stackIndex_ = stackFirst;
  std::int16_t upRank_ = 0;
  std::int16_t currentRun_ = 0;
  std::int16_t cardValue_ = 0;
  std::int16_t cardsLeft_ = 0;
  std::int32_t towersDone_ = 0;
  bool newHighRun_ = false;
};

}  // namespace games::ostrel
