// Pellow's scoring dialog as a table, and what its OK and Default do besides.
#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/pellow/window.h"

namespace games::pellow {
namespace {

using core::ScoringDialog;

constexpr std::int64_t Highest = 32767;
constexpr std::int64_t HighestBonusScore = 200000;
constexpr int ChoiceStep = 500;  // of the points for a remaining card
constexpr int LastChoice = 10;

/// `what` cannot be set to less than 0, or to more than a limit; the words for that vary.
std::vector<core::FieldTest> UpTo(std::int64_t highest, const std::string& what,
                                  const std::string& more, const std::string& ending) {
  const std::string sorry = "Sorry, you cannot set the " + what + " to ";
  return {core::Below(0, sorry + "less than 0 points."),
          core::Above(highest, sorry + more + " than " + core::Digits(highest) + ending)};
}

int ChoiceOf(std::int32_t points) {
  return static_cast<int>(core::RoundToEven(points / static_cast<double>(ChoiceStep)));
}

std::vector<std::string> Choices() {
  std::vector<std::string> choices;
  for (int i = 0; i <= LastChoice; ++i) {
    const std::string points = core::Digits(i * ChoiceStep);
    choices.push_back(i == ChoiceOf(Standard.RemainingCardBonus) ? points + " (default)" : points);
  }
  return choices;
}

}  // namespace

void frmPellow::ShowScoringDialog() {
  ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmPellow::ScoringTableOfDialog() {
  using core::Field;
  core::NumberField timeBonus =
      Field("txtTimeBonus", "Time Bonus (points per second)", shared.TimeBonusPerSecond,
            UpTo(Highest, "Time Bonus value", "greater", " points"), StandardTimeBonus);
  timeBonus.passed = [this](ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountDown");
    ShowValues();
    ShowGoal(scoring_.BonusScore, " for bonus round.  ");
  };

  core::ScoringTable table;
  table.window = "frmPellowCustomScoring";
  table.frame = "frmScoringOptions";
  table.replacesBeforeMessage = true;
  table.items = {
      Field("txtPairsBonus", "Pairs Bonus Value:", scoring_.PairsBonus,
            UpTo(Highest, "pairs bonus value", "more", " points"), Standard.PairsBonus),
      Field("txtRunsBonus", "Runs Bonus Value", scoring_.RunsBonus,
            UpTo(Highest, "runs bonus value", "more", " points"), Standard.RunsBonus),
      Field("txtBonusRound", "Score required for Bonus Round:", scoring_.BonusScore,
            UpTo(HighestBonusScore, "value required for a bonus round", "more", " points."),
            Standard.BonusScore),
      Field("txtCompletionBonus", "Bonus for completing upper cards: ", scoring_.CompletionBonus,
            UpTo(Highest, "value of the completion bonus", "more", " points."),
            Standard.CompletionBonus),
      timeBonus,
      core::ListField{"cboRemainingCardBonus", "Points per remaining card:*", Choices(),
                      [this] { return ChoiceOf(scoring_.RemainingCardBonus); },
                      ChoiceOf(Standard.RemainingCardBonus)},
      core::CheckField{"chkCountDown", "&Count Down when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::NoteField{"lblPointsRemainingNote",
                      "*This score is only awarded when you clear all cards in the playing field."},
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to be "
                      "marked with an * indicating custom scoring was in use."}};
  table.afterTests = [this](ScoringDialog& dialog) {
    scoring_.RemainingCardBonus =
        core::ClampTo<std::int32_t>(core::WholeIn(dialog.ChosenText("cboRemainingCardBonus")));
    CheckForCustom();
  };
  table.defaults = [this](ScoringDialog&) {
    scoring_.RemainingCardBonus = Standard.RemainingCardBonus;
    ChooseTimeLimit(StandardTimeLimit);
  };
  return table;
}

}  // namespace games::pellow
