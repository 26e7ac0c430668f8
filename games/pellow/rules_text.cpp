// Pellow's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/pellow/window.h"

namespace games::pellow {

core::RulesText frmPellow::Rules() const {
  using core::Masked;
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are two rounds", shared.TimeLimit,
      "If your score is " + Masked(scoring_.BonusScore) +
          " points or more after round two, you play a third one, the Bonus Round.");
  text.points = {
      "Twenty-three cards lie face up in five overlapping rows. Below them lie the stack, face "
      "down, and beside it the up card. Click on an exposed card, one on which no other card lies, "
      "and then on another one that goes with it: both leave the table. The up card is always "
      "exposed and goes with every other. A second click on a selected card lets it go again.",
      "Two cards of the same rank are a pair. Every pair pays " + Masked(scoring_.PairsBonus) +
          " points at the end of the round.",
      "Two cards of neighbouring ranks are a run: a Five goes with a Four or a Six. King and Ace "
      "are neighbours as well. The suits don't matter. Every run pays " +
          Masked(scoring_.RunsBonus) + " points at the end of the round.",
      "A click on the stack turns the next card. If there is a gap in the field, the old up card "
      "first goes into the highest one, the leftmost of its row, and may cover others there. "
      "Without a gap it stays below the new up card, and comes back when that one is taken. When "
      "the last up card is taken, the next card of the stack is turned by itself.",
      "The round is over at once when all five cards of the top row are gone. That pays " +
          Masked(scoring_.CompletionBonus) + " points, and " + Masked(scoring_.RemainingCardBonus) +
          " points for each card that is still in the stack.",
      "Each second left on the clock pays " + Masked(shared.TimeBonusPerSecond) +
          " points, whether the top row is gone, you have chosen 'Take Score', or no pair and no "
          "run is left when the stack is empty.",
  };
  text.strategy = {
      "A pair is worth far more than a run, so look for the second card of a rank before you give "
      "the first one away in a run.",
      "When you take the last up card, the next card of the stack comes up and fills no gap. That "
      "is the cheapest way to a new card.",
      "Work from the outer columns inwards: the corners of the top row lie under two rows.",
      "A click on the stack fills the gap that was hardest to make. Before you turn a card, look "
      "once more at all that lies open.",
      "Once a pair or two of the top row is all that is missing, hurry: seconds, completion and "
      "the rest of the stack are all paid together. If you are stuck early, 'Take Score' saves "
      "your seconds.",
  };
  return text;
}

}  // namespace games::pellow
