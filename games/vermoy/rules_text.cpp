// Vermoy's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/vermoy/window.h"

namespace games::vermoy {
namespace {

using core::Masked;

struct HandGuide {
  Hand hand;
  const char* meaning;
};
constexpr HandGuide Guide[] = {
    {Hand::OnePair, "two cards of one rank"},
    {Hand::TwoPair, "two cards of one rank and two of another"},
    {Hand::ThreeOfAKind, "three cards of one rank"},
    {Hand::Straight, "five ranks in a row, in any order and of any suits"},
    {Hand::Flush, "five cards of one suit"},
    {Hand::FullHouse, "three cards of one rank and two of another"},
    {Hand::FourOfAKind, "four cards of one rank"},
    {Hand::StraightFlush, "five ranks in a row, all of one suit"},
    {Hand::RoyalFlush, "10, Jack, Queen, King and Ace of one suit"}};

std::string HandList(const Values& values) {
  std::string list;
  for (const HandGuide& entry : Guide) {
    list += "\r\n      " + TextOf(entry.hand) + ": " + Masked(values.Of(entry.hand)) +
            " points, for " + entry.meaning;
  }
  return list;
}

std::string Multiplier(std::int32_t timeBonus) {
  if (timeBonus == 1) return "";
  return " and then by " + Masked(timeBonus);
}

std::string OverWriteRule(std::int32_t count) {
  if (count <= 0) return "A card that lies stays where it is: there are no overwrites.";
  const std::string times = count == 1 ? "Once" : Masked(count) + " times";
  return times +
         " in a round you may lay the exposed card on a cell that is taken. The card below it is "
         "out of play, and so is any hand that it made.";
}

}  // namespace

core::RulesText frmVermoy::Rules() const {
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are three rounds", shared.TimeLimit,
      "If you have made " + Masked(values_.BonusScore) +
          " points or more after round three, you are invited to a fourth one, the Bonus Round.");
  text.points = {
      "The cards of a shuffled deck show one by one. A click on a cell of the grid lays the "
      "exposed card there, and the next card shows. No card can be passed.",
      "Each of the five rows and each of the five columns is a poker hand, ten hands in all. What "
      "a row holds stands beside it, what a column holds stands below it. A hand counts as soon as "
      "it stands, so two Queens in a row of two cards are a pair already:" +
          HandList(values_),
      "The Ace is low before a 2 or high after a King, but a straight never runs through it: "
      "Queen, King, Ace, 2, 3 is nothing. A straight or a flush needs all five cards.",
      OverWriteRule(values_.OverWrites),
      "The round ends when all twenty-five cells are filled. The value of the ten hands is then "
      "multiplied by the seconds left on the clock" +
          Multiplier(shared.TimeBonusPerSecond) + ", and the product is yours.",
      "When the time runs out before the grid is full, the round pays nothing, whatever the hands "
      "were worth.",
  };
  text.strategy = {
      "Speed is worth as much as the hands. With thirty seconds left a hand pays three times as "
      "much as with ten.",
      "Collect one rank in each row and one suit in each column, or the other way round: most "
      "cards then have a natural place, and you needn't think about it.",
      "Every card counts in its row and in its column. A card that does nothing for its row can "
      "still make a hand in its column.",
      "Keep the overwrites for the last few cells. One card that turns three of a kind into a full "
      "house can be worth more than the second that it costs.",
      "Don't wait for a royal flush. A row of pairs that is finished early beats it.",
  };
  return text;
}

}  // namespace games::vermoy
