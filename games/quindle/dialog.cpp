// Quindle's scoring dialog as a table, and what its OK and Default do besides.
#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/quindle/window.h"

namespace games::quindle {
namespace {

using core::ScoringDialog;

constexpr std::int64_t Lowest = 1;
constexpr std::int64_t Highest = 5000000;

constexpr const char* SetLabels[] = {
    "Score awarded for ten combination:",      "Score awarded for eleven combination:",
    "Score awarded for twelve combination:",   "Score awarded for thirteen combination:",
    "Score awarded for fourteen combination:", "Score awarded for fifteen combination:"};

std::string SetLabel(std::int16_t goal) {
  if (goal < SmallestGoal || goal > LargestGoal) {
    return "Score awarded for each eleven combination:";
  }
  return SetLabels[goal - SmallestGoal];
}

std::vector<core::FieldTest> WithinRange(const std::string& what) {
  return {core::Outside(Lowest, Highest,
                        "Sorry, the score " + what + " must fall between 1 and 5,000,000.")};
}

void EnableCardBonus(ScoringDialog& dialog) {
  const bool enhanced = dialog.Checked("chkScoring");
  dialog.Enable("lblCardBonus", enhanced);
  dialog.Enable("txtCardBonus", enhanced);
}

void chkScoring_Click(ScoringDialog& dialog) {
  EnableCardBonus(dialog);
  dialog.SetText(
      "txtElevensBonus",
      core::Digits(dialog.Checked("chkScoring") ? StandardElevensBonusES : StandardElevensBonus));
}

template <class T>
core::NumberField Named(const std::string& name, const std::string& labelName,
                        const std::string& label, T& value, const std::string& what,
                        std::int64_t standard) {
  core::NumberField field = core::Field(name, label, value, WithinRange(what), standard);
  field.labelName = labelName;
  return field;
}

}  // namespace

void frmQuindle::ShowScoringDialog() {
  ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmQuindle::ScoringTableOfDialog() {
  core::NumberField sets =
      Named("txtElevensBonus", "lblElevenBonus", SetLabel(rules_.CardGoal), ElevensBonusInForce(),
            "awarded for each eleven combination",
            rules_.EnhancedScoring ? StandardElevensBonusES : StandardElevensBonus);
  sets.store = [this](double number) {
    ElevensBonusInForce() = core::ClampTo<std::int32_t>(core::RoundToEven(number));
  };

  core::ScoringTable table;
  table.window = "frmQuindleCustomScoring";
  table.frame = "frmScoringOptions";
  table.refusal = core::Refusal::RefusingAll;
  table.items = {
      Named("txtBonus", "lblBouns", "Score required for Bonus Round:", values_.BonusRoundScore,
            "required for a Bonus Round", StandardBonusRoundScore),
      Named("txtCompletion", "Label1",
            "Score awarded for upper completion:", values_.CompletionBonus,
            "awarded for completing the upper playing area", StandardCompletionBonus),
      sets,
      Named("txtTimeBonus", "Label2",
            "Score awarded for Time Bonus (per second):", shared.TimeBonusPerSecond,
            "awarded for each second remaining in the game after selecting 'Take Score'",
            StandardTimeBonus),
      Named("txtCardBonus", "lblCardBonus",
            "Score for each remaining deck card upon upper completion:", values_.CardBonus,
            "awarded for each remaining card in the deck after completing the upper playing area",
            StandardCardBonus),
      core::CheckField{"chkScoring",
                       "Enable V 7.0 enhanced scoring. For more information about this feature "
                       "select the Rules command from under the Help menu.",
                       [this] { return rules_.EnhancedScoring; }, true, chkScoring_Click},
      core::NoteField{"lblCustom",
                      "Note: Any high score attained using customized scoring will be denoted by "
                      "an asterisk in the High Score table. When reporting high scores for the "
                      "website, be sure to indicate if V 7.0 Enahanced Scoring was used."}};
  table.opened = EnableCardBonus;
  table.beforeStoring = [this](ScoringDialog& d) {
    rules_.EnhancedScoring = shared.EnhancedScoring = d.Checked("chkScoring");
  };
  table.allValid = [this](ScoringDialog&) { ApplyScoring(); };
  table.defaults = [this](ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); };
  return table;
}

std::int32_t& frmQuindle::ElevensBonusInForce() {
  return rules_.EnhancedScoring ? values_.ElevensBonusES : values_.ElevensBonus;
}

void frmQuindle::ApplyScoring() {
  SetCardValues(rules_.EnhancedScoring);
  Caption = shared.GameTitle + (rules_.EnhancedScoring ? " - Enhanced Scoring" : "");
  ShowGoal(values_.BonusRoundScore, " for Bonus Round!   ");
  // Unlike the test that a time limit brings about, this one leaves the time limit out.
  auto values = ScoringValues();
  values.erase(values.begin());
  TestForCustom(values);
  CreateTableIfMissing();
  ShowTableTop();
}

}  // namespace games::quindle
