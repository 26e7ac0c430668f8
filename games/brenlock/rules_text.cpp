// Brenlock's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/brenlock/window.h"

namespace games::brenlock {
namespace {

using core::Digits;
using core::Masked;

std::string Passes(int count) {
  if (count <= 0) return "In the options now in force no card may be passed.";
  return "'Pass' puts the current card away and brings up the next one. You may do so " +
         (count == 1 ? std::string("once") : Digits(count) + " times") + " in each round.";
}

std::string Worth() {
  std::string text = "Below " + Digits(LowestScoring) + " the five totals are worth nothing";
  for (int total = LowestScoring; total <= HighestScoring; ++total) {
    text += ", " + Digits(total) + " is worth " + Masked(Rules::ValueOf(total));
  }
  return text + ". This is the Card Total Value.";
}

}  // namespace

core::RulesText frmBrenlock::Rules() const {
  core::RulesText text;
  text.object = core::ObjectOfGame(shared.GameTitle, "There are three rounds", shared.TimeLimit,
                                   "With a score of " + Masked(values_.BonusScore) +
                                       " or more after round three you play a fourth one, the "
                                       "Bonus Round.");
  text.points = {
      "Cards come off the deck one at a time. Add each of them to one of the five columns with the "
      "'Hit' button below it. Kings, Queens and Jacks count 10, other cards their number. An Ace "
      "counts 11 if that does not "
      "take its column over 21, and the column then reads 'Soft'; otherwise it counts 1. A card "
      "that would take a soft column over 21 makes the Ace count 1 instead.",
      "A column holds five cards. With the fifth its button reads 'Closed'. A column of 21 is not "
      "closed, and one card more will bust it, unless it is soft.",
      "A card that takes a column over 21 ends the round at once, and the round scores nothing. "
      "What you have scored before is safe.",
      Worth(),
      "As soon as the five totals add up to " + Digits(LowestScoring) +
          " or more, 'Give Up' becomes 'Take score'. It pays the Card Total Value, multiplied by "
          "the Time Bonus. Five columns of 21 are taken without a click.",
      "The Time Bonus starts at " + Masked(values_.TimeBonusMax) +
          " and falls with every second, "
          "to " +
          Masked(values_.TimeBonusMin) +
          " when the time is up. If the totals are good for "
          "a score at that moment it is still paid; otherwise the round is lost.",
      Passes(shared.CardsToPass)};
  text.strategy = {
      "Strategy: a sum of 100 made quickly can beat a 103 made late, but the last steps of the "
      "table are the steepest: 105 is worth twice as much as 104.",
      "Spread the tens over the columns first, and keep the small cards for filling up. A soft "
      "column takes any card without harm, so leave it for the card that fits nowhere else.",
      "Five small cards can close a column far below 21. Watch how many places are left before you "
      "put a two on a column of three cards."};
  return text;
}

}  // namespace games::brenlock
