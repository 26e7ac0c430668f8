// Ostrel's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/ostrel/window.h"

namespace games::ostrel {

core::RulesText frmOstrel::Rules() const {
  using core::Masked;
  const std::string takeScore = "'Take Score'";
  const std::string card = Masked(scoring_.CardBonus);
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are two rounds", shared.TimeLimit,
      "If you have made " + Masked(scoring_.BonusScore) +
          " points or more after round two, you are invited to a third one, the Bonus Round.");
  text.points = {
      "Twenty-eight cards lie in three towers that overlap at the bottom. Only cards that are face "
      "up can be played: at first those are the ten of the bottom row. A card turns over as soon "
      "as both cards that cover it are gone.",
      "Click on a face up card that is one rank above or one rank below the up card beside the "
      "stack, and it becomes the new up card. Suits don't matter, you may change direction as "
      "often "
      "as you like, and the Ace stands next to both the Two and the King: 5-6-5-4 is a run, and so "
      "is Queen-King-Ace-2. Cards of the same rank don't follow each other. The pointer turns into "
      "a hand over a card that fits.",
      "The first card of a run pays " + card + " points, and each further card pays " + card +
          " points more than the one before: " + Masked(scoring_.CardBonus) + ", " +
          Masked(2 * scoring_.CardBonus) + ", " + Masked(3 * scoring_.CardBonus) +
          " and so on. The window shows what the next card is worth.",
      "A click on the stack turns a new up card and ends the run: the next card is worth " + card +
          " points again. It costs nothing else. There are 24 cards to turn, and the last of them "
          "is the card that opened the round. A click on a card that doesn't fit costs nothing, "
          "and the run goes on.",
      "A tower is complete when its top card has been played, whatever is left of it below. Each "
      "tower pays " +
          Masked(scoring_.TowerBonus) +
          " points at the end of the round. With the third tower the round ends by itself.",
      "If you have completed at least one tower, each second left on the clock pays " +
          Masked(shared.TimeBonusPerSecond) + " points. Without a tower there is no time bonus.",
      "If you have beaten the highest run in this round, each card of the new record pays " +
          Masked(scoring_.HighRunBonus) +
          " points. The record is kept from game to game; you can clear it with 'Clear High Run' "
          "in the Options menu.",
      "A round ends when you choose " + takeScore +
          ", when the time is up, or with the third tower. A run doesn't carry over into the next "
          "round, but your score does.",
  };
  text.strategy = {
      "Before you begin a run, look for the way on: a card that can be followed in both directions "
      "is worth more than one that leads into a corner.",
      "Long runs pay far better than short ones: ten cards in one run earn more than five times as "
      "much as ten cards played one by one. Don't turn the stack while any card still fits.",
      "Prefer cards that turn others over. A run can only grow on cards that you can see.",
      "A tower needs only its top card, and nine cards lead up to it: work on one tower at a time, "
      "and let the clock decide whether there is time for the next.",
      "The game doesn't tell you when nothing fits any more. When the stack is used up and no card "
      "can be played, choose " +
          takeScore + " at once: the seconds are worth points if you have a tower.",
  };
  return text;
}

}  // namespace games::ostrel
