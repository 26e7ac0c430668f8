// Quindle's rules in words for players, with the values in force.
#include "core/text/number.h"
#include "games/quindle/window.h"

namespace games::quindle {
namespace {

using core::Digits;
using core::Masked;

std::string Introduction(const std::string& title, bool enhanced) {
  const std::string state = enhanced
                                ? "'V 7.0 Enhanced Scoring' is currently enabled. Consequently the "
                                  "following rules describe game play with the Enhanced Scoring "
                                  "option turned on. "
                                : "'V 7.0 Enhanced Scoring' is currently disabled. Consequently "
                                  "the following rules describe game play with the Enhanced "
                                  "Scoring option turned off.";
  return "This version of " + title +
         " introduces a new twist on the way in which scoring is accomplished." +
         core::ParagraphEnd + state;
}

std::string RowPoints(bool enhanced) {
  const int top = SlotPoints(0, enhanced);
  const int bottom = SlotPoints(FieldSlots - 1, enhanced);
  return "Every card of the field pays for the row it lay in: " + Digits(top) +
         " points for the single card at the top, 100 points less for each row below it, down to " +
         Digits(bottom) + " points at the bottom. Rest the pointer on a card to see its points.";
}

}  // namespace

core::RulesText frmQuindle::Rules() const {
  const bool enhanced = rules_.EnhancedScoring;
  const std::string goal = Digits(rules_.CardGoal);
  const std::string takeScore = "'Take Score'";
  core::RulesText text;
  text.introduction = Introduction(shared.GameTitle, enhanced);
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are two rounds", shared.TimeLimit,
      "If you have made " + Masked(values_.BonusRoundScore) +
          " points or more after round two, you are invited to a third one, the Bonus Round.");
  text.pointsHeading =
      enhanced ? "V 7.0 Enhanced Scoring - Rule Details:" : "Standard Scoring - Rule Details:";
  text.points = {
      "Twenty-two cards lie in six overlapping rows. Click on exposed cards, and on the face up "
      "card beside the draw pile, until they total exactly " +
          goal +
          ". An Ace counts 1, a Jack 11, a Queen 12, a King 13, and every other card its number. "
          "The cards of a finished set leave the table at once.",
      RowPoints(enhanced),
      enhanced
          ? "The face up card beside the pile pays as much as the highest row that still "
            "holds a card."
          : "The face up card beside the pile pays " + Digits(StandardUpCardPoints) + " points.",
      "At the end of the round every set pays " +
          Masked(enhanced ? values_.ElevensBonusES : values_.ElevensBonus) + " points more.",
      "Clearing the whole field pays " + Masked(values_.CompletionBonus) + " points" +
          (enhanced ? ", and " + Masked(values_.CardBonus) +
                          " points for each card that is still in the draw pile."
                    : "."),
      "Each second left on the clock when you choose " + takeScore + " pays " +
          Masked(shared.TimeBonusPerSecond) + " points.",
      "A click on the draw pile turns a new card. The face up card then goes back to the first "
      "empty place of the field, which costs " +
          (enhanced ? std::string("as many points as that place is worth.")
                    : Digits(StandardDrawCost) + " points."),
  };
  text.strategy = {
      enhanced ? "The clock of a round stands still until you make the first set, so look the "
                 "field over before you begin."
               : "The clock starts with the deal: find the first set quickly.",
      "Open the long columns first. A card that keeps two others covered is worth more than the "
      "points that stand on it.",
      "Don't draw while there is a gap near the top that you have just opened: the card that goes "
      "back covers your work again.",
      "When you see no set that opens something new, and the clock is still generous, " +
          takeScore + " may pay more than another draw.",
  };
  return text;
}

}  // namespace games::quindle
