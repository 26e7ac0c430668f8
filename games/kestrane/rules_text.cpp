// Kestrane's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

using core::Masked;

const std::string Board =
    "The board has three sections. The Temporary Storage at the top has three spots, each for any "
    "one card. The Playing Field in the middle has four columns that fill from the top down, each "
    "with room for three cards. At the bottom lie the deck and its three up cards, of which only "
    "the one in front can be played.";

const std::string Moves =
    "To move a card, click on it and then on the place where it is to go. You can move the front "
    "up card, a stored card, or the last card of a column, to a free spot of the storage or to a "
    "column that still has room; a card never goes back to the up cards. Click on a selected card "
    "again to change your mind.";

}  // namespace

core::RulesText frmKestrane::Rules() const {
  core::RulesText text;
  text.object =
      core::ObjectOfGame(
          shared.GameTitle, "There are two rounds", shared.TimeLimit,
          "If you have made " + Masked(values_.BonusScore) +
              " points or more after round two, you are invited to a third one, the Bonus Round.") +
      core::ParagraphEnd + Board + core::ParagraphEnd + Moves;
  text.points = {
      "Trip: three cards of the same rank in one column pay " + Masked(values_.TripsScore) +
          " points. The column is cleared at once.",
      "Run: three cards in sequence, as they lie in the column from top to bottom, going up or "
      "down, pay " +
          Masked(values_.RunsScore) +
          " points. 3-4-5 and 5-4-3 are runs; 3-5-4 is none. The Ace is low or high, so Ace-2-3 "
          "and Queen-King-Ace are runs, but a run can't go round the corner: King-Ace-2 is none. "
          "The column is cleared at once.",
      "Flush: a run whose three cards are all of one suit pays " + Masked(values_.FlushScore) +
          " points more.",
      "Deck Completion Bonus: if you have played all 52 cards when the round ends, you get " +
          Masked(values_.DeckCompletion) +
          " points. Then the cards still lying in the columns and in the storage are taken off, "
          "and each of them costs " +
          Masked(values_.LeftOverCards) + " points.",
      "Speed Bonus: each second left on the clock when you take the score pays " +
          Masked(shared.TimeBonusPerSecond) + " points."};
  text.strategy = {
      "A round ends when you click on 'Take Score', when the time has run out, or when no move is "
      "left because the storage and all four columns are full. Playing the last card does not end "
      "it: tidy up what is left on the board, and then take the score. If you take the score "
      "before the deck is used up, there is no Deck Completion Bonus, but the cards on the board "
      "cost nothing either.",
      "By the usual values a trip pays far more than a run, so give each rank that you see twice a "
      "column of its own, and use runs to get rid of what is in the way.",
      "A full column that is neither a trip nor a run is not lost: move its last card to the "
      "storage or to another column. But keep a spot of the storage free for that; one free spot "
      "is enough to play on.",
      "Watch the clock in the last third of the deck. When few cards remain, a quick Deck "
      "Completion Bonus with some cards left over is often worth more than one more trip."};
  return text;
}

}  // namespace games::kestrane
