// Fandrel's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/fandrel/window.h"

namespace games::fandrel {

using core::Digits;
using core::Masked;

core::RulesText frmFandrel::Rules() const {
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are two rounds", shared.TimeLimit,
      "If you have made " + Masked(values_.BonusScore) +
          " points or more after round two, you are invited to a third one, the Bonus Round.");
  text.points = {
      "Five cards lie on the lower spots, and three upper spots are empty. Click on a lower card, "
      "then on an upper spot: the card may go there if the spot is empty, or if it matches the "
      "card on it in suit or in rank. The lower spot is filled again from the deck.",
      "Eights are wild: an eight goes anywhere, and anything goes on an eight.",
      "Each move pays the value of the upper spot times the Move Timer. The spots begin at " +
          Digits(SpotStep(1)) + ", " + Digits(SpotStep(2)) + " and " + Digits(SpotStep(3)) +
          " points.",
      "Matching the rank, or moving an eight, raises the spot's value by as much as it began with, "
      "before the move is paid and for the rest of the round.",
      "The Move Timer starts anew after each move and falls quickly to " +
          Digits(ProgressBar1.Min) + ". A card that doesn't fit costs nothing but time.",
      "Using up the deck and all the lower cards pays " + Masked(values_.DeckCompleteBonus) +
          " points.",
      "Each second left at the end of a round pays " + Masked(shared.TimeBonusPerSecond) +
          " points. Round two pays it only to those who reach the Bonus Round. A round is over "
          "when no card fits any more, when all cards are used, or when the time is up.",
  };
  text.strategy = {
      "The first spot is worth more than the two others together. Raise it early: every later "
      "move there is paid at the higher value.",
      "Keep an eight for the moment when nothing else fits, or spend it at once on the first spot "
      "while the Move Timer is high.",
      "Look one card ahead: the suit that lies on most of your lower cards should lie above.",
      "A quick move on a cheap spot is often worth more than a slow one on a dear spot.",
  };
  return text;
}

}  // namespace games::fandrel
