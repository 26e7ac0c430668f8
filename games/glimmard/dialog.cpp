// Glimmard's scoring dialog as a table, and what its OK and Default do besides.
#include "core/scoring/scoring_dialog.h"
#include "games/glimmard/window.h"

namespace games::glimmard {
namespace {

using core::ScoringDialog;

constexpr int MillisecondsPerSecond = 1000;

std::vector<core::FieldTest> Within(std::int64_t highest, const std::string& what) {
  return {core::Outside(
      1, highest,
      "Sorry, the " + what + " must fall between 1 and " + core::Masked(highest) + ".")};
}

}  // namespace

void frmPhrase::ShowScoringDialog() {
  ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmPhrase::ScoringTableOfDialog() {
  core::NumberField view =
      core::Field("txtShowPhrase", "Show completed phrase for", values_.ShowPhraseTime,
                  Within(30, "number of seconds to display the phrase"),
                  StandardShowPhraseTime / MillisecondsPerSecond, MillisecondsPerSecond);
  view.suffix = "seconds";

  core::ScoringTable table;
  table.window = "frmPhraseCustomScoring";
  table.frame = "frmScoringOptions";
  table.refusal = core::Refusal::RefusingFirst;
  table.items = {
      core::Field("txtGuessValue", "Bonus awarded for each remaining guess:", values_.GuessBonus,
                  Within(50000, "Bonus Value for remaining guesses"), StandardGuessBonus),
      core::Field(
          "txtCompletionBonus", "Bonus awarded for completing phrase: ", values_.CompletionBonus,
          Within(100000, "score awarded for completing the phrase"), StandardCompletionBonus),
      core::Field("txtTimeBonus", "Time Bonus (each remaining second)", shared.TimeBonusPerSecond,
                  Within(5000,
                         "score awarded for each second remaining in the game after selecting "
                         "'Take Score'"),
                  StandardTimeBonus),
      core::Field("txtGuessCount", "Number of guesses per round:", values_.GuessCount,
                  Within(MostGuesses, "number of guesses allowed"), StandardGuessCount),
      core::Field("txtBonusRoundScore", "Score required for Bonus Round:", values_.BonusScore,
                  Within(1000000, "score required for the Bonus Round"), StandardBonusScore),
      view,
      core::CheckField{"chkCountDown", "&Count Down when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::PictureButtons{"cmdBadGuess",
                           "Image for faulty letter guess:",
                           {"UNHAPPY", "UNHAPPY2"},
                           [this](int index) { faultyPicture_ = index; }}};
  table.allValid = [this](ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountDown");
    CheckForCustom();
  };
  table.defaults = [this](ScoringDialog&) {
    shared.CountDownScoring = true;
    ChooseTimeLimit(StandardTimeLimit);
  };
  return table;
}

}  // namespace games::glimmard
