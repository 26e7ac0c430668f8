// Mozaro's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/mozaro/window.h"

namespace games::mozaro {
namespace {

using core::Digits;
using core::Masked;

std::string Every(int rounds, const std::string& what) {
  if (rounds == 0) return "No " + what + " is ever added.";
  return "One more " + what + " comes every " + (rounds == 1 ? "" : Digits(rounds) + " ") +
         (rounds == 1 ? "round." : "rounds.");
}

std::string Settling(bool drop) {
  return drop ? "Boxes above the gap fall down. When a whole column is empty, the columns to its "
                "left close up towards the right."
              : "Boxes above the gap fall down, and then every row closes its own gaps towards "
                "the right, so that boxes slide out of the columns they stood in.";
}

std::string ColumnPoints(bool drop, const std::string& points) {
  return drop ? "Each empty column that closes up pays " + points +
                    " points. A column with nothing left of it pays nothing, but for the "
                    "leftmost one, which pays once if no column has closed up before."
              : "Each column that becomes empty pays " + points +
                    " points. A column that fills again pays no second time: only the highest "
                    "count of empty columns in the round matters.";
}

std::string Plural(int count, const std::string& one, const std::string& more) {
  return Digits(count) + " " + (count == 1 ? one : more);
}

}  // namespace

core::RulesText frmMozaro::Rules() const {
  const Options options = Playable(options_);
  const std::int64_t group = options.GroupSize;
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are as many rounds as you can earn", shared.TimeLimit,
      "A round is passed when it has earned you " + Masked(options.ScoreForNextRound) +
          " points or more, its bonuses counted in. The first round that falls short of them ends "
          "the game.");
  text.points = {
      "Click on a group of boxes of the same color that touch by their sides, not only by their "
      "corners. A group needs at least " +
          Digits(group) +
          " boxes. It lights up, and its value is shown, while the pointer rests "
          "on it.",
      "A group pays the number of its boxes, times that number again, times 50: " +
          Plural(static_cast<int>(group), "box pays ", "boxes pay ") + Masked(group * group * 50) +
          " points, and " + Digits(2 * group) + " boxes pay " + Masked(4 * group * group * 50) +
          ".",
      Settling(options.DropBoxes),
      ColumnPoints(options.DropBoxes, Masked(options.ClearAColumn)),
      "Clearing the whole board ends the round and pays " + Masked(options.ClearBoard) + " points.",
      "Each second left on the clock when the round ends pays " +
          Masked(shared.TimeBonusPerSecond) +
          " points. 'Take Score' ends the round whenever you "
          "like.",
      "'Jumble' gives all boxes on the board new colors by chance. You have " +
          Plural(options.JumblesAllowed, "jumble", "jumbles") +
          " in a round. When no group is left after a click, one is taken for you, and counts; "
          "with none left the round is over.",
      "The first round has " + Digits(options.Columns) + " columns and " +
          Plural(options.InitialColorCount, "color", "colors") + ". " +
          Every(options.AddAColumn, "column") + " " + Every(options.AddAColor, "color") +
          " There are never more than " + Digits(MostColors) + " colors.",
  };
  text.strategy = {
      "One group of twelve boxes is worth four groups of six. Clear away what keeps boxes of one "
      "color apart, and take the large group when it has come together.",
      "The label of the points you still need turns blue when the round is safe. From then on "
      "every second counts: 'Take Score' may pay more than the groups that are left.",
      "A jumble is worth most on a full board. On an almost empty one it may leave you with "
      "nothing.",
      "The clock stands still while the game is paused, but so does your view of the board.",
  };
  return text;
}

}  // namespace games::mozaro
