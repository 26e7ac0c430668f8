// Ostrel's scoring dialog as a table, and what its OK and Default do besides.
#include "core/scoring/scoring_dialog.h"
#include "games/ostrel/window.h"

namespace games::ostrel {
namespace {

std::vector<core::FieldTest> From0To(std::int64_t most, const std::string& below,
                                     const std::string& above) {
  return {core::Below(0, "Sorry, " + below), core::Above(most, "Sorry, " + above)};
}

}  // namespace

void frmOstrel::ShowScoringDialog() {
  core::ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmOstrel::ScoringTableOfDialog() {
  core::NumberField timeBonus =
      core::Field("txtTimeBonus", "Time Bonus (points per second)", shared.TimeBonusPerSecond,
                  From0To(32767, "you cannot set the Time Bonus value to less than 0 points.",
                          "you cannot set the Time Bonus value to greater than 32767 points"),
                  StandardTimeBonus);
  timeBonus.passed = [this](core::ScoringDialog& d) { ApplyScoring(d.Checked("chkCountDown")); };

  core::ScoringTable table;
  table.window = "frmOstrelCustom";
  table.frame = "frmScoringOptions";
  table.replacesBeforeMessage = true;
  table.items = {
      core::Field(
          "txtCardValue",
          "When creating runs, each additional card increments card value by:", scoring_.CardBonus,
          From0To(1000, "you cannot increment the card value by less than 0 points.",
                  "you cannot increment the card value by greater than 1000 points"),
          Standard.CardBonus),
      core::Field("txtBonusScore", "Score required for bonus round:", scoring_.BonusScore,
                  From0To(900000, "a minimum of 0 points is required to make the bonus round.",
                          "a maximum of 900000 points is required to make the bonus round."),
                  Standard.BonusScore),
      core::Field(
          "txtRunBonus", "High Run bonus (per card):", scoring_.HighRunBonus,
          From0To(32767, "a minimum of 0 points is required when achieving the high run bonus.",
                  "a maximum of 32767 points is required when achieving the high run "
                  "bonus."),
          Standard.HighRunBonus),
      core::Field("txtCompletedTower", "Bonus for completing each tower", scoring_.TowerBonus,
                  From0To(32767,
                          "a minimum of 0 points is required when achieving when completing each "
                          "tower.",
                          "a maximum of 32767 points is required when completing each tower."),
                  Standard.TowerBonus),
      timeBonus,
      core::CheckField{"chkCountDown", "&Count Down when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to "
                      "be marked with an * indicating custom scoring was in use."}};
  table.defaults = [this](core::ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); };
  return table;
}

/// Follows as soon as the last field is in range, whether or not another one was refused.
void frmOstrel::ApplyScoring(bool countDown) {
  shared.CountDownScoring = countDown;
  CheckForCustom();
  ShowGoal(scoring_.BonusScore, " for bonus round.  ");
}

}  // namespace games::ostrel
