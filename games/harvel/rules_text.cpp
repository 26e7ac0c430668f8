// Harvel's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

using core::Digits;
using core::Masked;

std::string Times(int count) {
  if (count == 1) return "once";
  return count == 2 ? "twice" : Digits(count) + " times";
}

std::string Passes(int count) {
  if (count <= 0) return "In the options now in force no card may be passed.";
  return "A card that fits nowhere can be passed with 'Pass', " + Times(count) +
         " a round, but never the last card of the deck. A passed card counts as a card used.";
}

std::string CounterSeconds(int milliseconds) {
  return Digits(core::RoundToEven((CounterLimit + 1) * milliseconds / 1000.0));
}

}  // namespace

core::RulesText frmHarvel::Rules() const {
  core::RulesText text;
  const std::string step = Masked(values_.TwentyOneBonusValue);
  text.object =
      core::ObjectOfGame(shared.GameTitle, "There are three rounds", shared.TimeLimit,
                         "If your score is greater than " + Masked(values_.BonusRoundScore) +
                             " after round three, a fourth one is yours, the Bonus Round.");
  text.points = {
      "Cards come off the deck one at a time. Drop each of them onto one of the four columns with "
      "the 'Hit' button below it. Kings, Queens and Jacks count 10. An Ace counts 11 if that does "
      "not take its column over 21, and the column then reads 'Soft'; otherwise it counts 1. A "
      "card that would take a soft column over 21 makes the Ace count 1 instead.",
      "A column of exactly 21 is cleared and is worth " + step +
          " points more than the one before: it adds " + step +
          " to the bonus figure, and at the end of the round the bonus figure is multiplied by the "
          "number of 21's you have made. Three of them without a break make 3 X " +
          Masked(std::int64_t{3} * values_.TwentyOneBonusValue) + ".",
      "Every 21 starts the 21 Counter anew, which takes about " +
          CounterSeconds(values_.TimerSpeed) +
          " seconds to fill. If it is full before the next 21, the bonus figure falls back to " +
          step +
          ". The 21's that you have made stay counted. Halfway through, the words '21 "
          "Counter' begin to flash.",
      "A column that holds five cards without reaching 21 is a Five Card Gimme: it is cleared and "
      "pays " +
          Masked(values_.FiveCardsBonusValue) +
          " points at once. It stops no 21 Counter, but winds it back to its start.",
      "A card that takes a column without a soft Ace over 21 is refused and costs 100 points. You "
      "keep the card, and may try it elsewhere.",
      "At the end of the round each card used pays " + Masked(values_.CardsUsedBonusValue) +
          " points. " + Passes(shared.CardsToPass),
      "Use up the whole deck, and " + Masked(values_.DeckCompletionBonus) +
          " points are yours, as well as the points for all 52 cards.",
      "A round ends when its time is up, when the deck is finished, or when you click on 'Take "
      "Score'. Running out of time costs you nothing."};
  text.strategy = {
      "Strategy: keep one column at 10 or 11, where the many tens and the Aces score, and one low "
      "column for small cards on their way to a gimme. A soft column is a safe place for any card.",
      "The bonus figure is what makes a high score. When the 21 Counter is flashing, finish the "
      "column that is nearest to 21, and leave the others alone.",
      "A bust is cheap beside a lost bonus figure, but it brings nothing either. Passing the card "
      "costs no points."};
  return text;
}

}  // namespace games::harvel
