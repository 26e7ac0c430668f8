// Fandrel's settings file and its scoring dialog.
#include "core/scoring/scoring_dialog.h"
#include "games/fandrel/window.h"

namespace games::fandrel {
namespace {

using core::Above;
using core::Below;

}  // namespace

void frmFandrel::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  values_ = Values{};
}

std::vector<core::SettingsKey> frmFandrel::Settings() {
  return {SoundsKey(),
          MusicKey(),
          DeckKey(),
          core::Number("[Bonus Score]", values_.BonusScore),
          core::Number("[Fandrel CompleteBonus]", values_.DeckCompleteBonus),
          TimeBonusKey("[Time Bonus]"),
          CountDownKey("[Count Down]"),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TimeKey()};
}

std::vector<core::ScoringValue> frmFandrel::ScoringValues() const {
  return {{shared.TimeLimit, StandardTimeLimit},
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {values_.DeckCompleteBonus, StandardDeckCompleteBonus},
          {values_.BonusScore, StandardBonusScore}};
}

void frmFandrel::ShowScoringDialog() {
  core::NumberField deckBonus = core::Field(
      "txtFandrelCompleteBonus", "Deck completion Bonus:", values_.DeckCompleteBonus,
      {Below(0, "Sorry, the minimum bonus for completing the deck must be 0 or greater.").KeepOld(),
       Above(2000000,
             "Sorry, the maximum time bonus for completing the deck must not exceed 2,000,000.")
           .KeepOld()},
      StandardDeckCompleteBonus);
  deckBonus.passed = [this](core::ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountScore");
  };

  core::ScoringTable table;
  table.window = "frmFandrelCustom";
  table.frame = "frmCustomScoring";
  table.items = {
      core::Field("txtBonus", "Score required for Bonus Round:", values_.BonusScore,
                  {Below(0, "Sorry, a minimum score of 0 is required for the bonus round score."),
                   Above(100000000,
                         "Sorry, the maximum value for achieving a bonus round is 100,000,000.")},
                  StandardBonusScore),
      core::Field(
          "txtTimeBonus", "Time Bonus (points per second):", shared.TimeBonusPerSecond,
          {Below(1, "Sorry, the maximum time bonus value must be greater than 0.").KeepOld(),
           Above(10000, "Sorry, the maximum time bonus value must not exceed 10,000.").KeepOld()},
          StandardTimeBonus),
      deckBonus,
      core::CheckField{"chkCountScore", "Count down &when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to be "
                      "marked with an * indicating custom scoring was in use."}};
  table.afterTests = [this](core::ScoringDialog&) {
    CheckForCustom();
    ShowGoal(values_.BonusScore, " for bonus round.  ");
  };
  table.defaults = [this](core::ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); };
  core::ScoringDialog dialog(suite, table);
  suite.ShowModal(dialog);
}

}  // namespace games::fandrel
