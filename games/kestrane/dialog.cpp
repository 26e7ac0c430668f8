// Kestrane's settings file, its scoring dialog, and what counts as default scoring.
#include <cstdlib>

#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {

using core::Above;
using core::Below;

void frmKestrane::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  values_ = Standard;
}

std::vector<core::SettingsKey> frmKestrane::Settings() {
  return {SoundsKey(),
          MusicKey(),
          CountDownKey("[Count Down Score]"),
          DeckKey(),
          TimeBonusKey("[Time Bonus]"),
          core::Number("[Bonus Score]", values_.BonusScore),
          core::Number("[Trips Score]", values_.TripsScore),
          core::Number("[Runs Score]", values_.RunsScore),
          core::Number("[Flush Score]", values_.FlushScore),
          core::Number("[Deck Completion]", values_.DeckCompletion),
          core::Number("[LeftOverCards]", values_.LeftOverCards),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TimeKey()};
}

std::vector<core::ScoringValue> frmKestrane::ScoringValues() const {
  return {{shared.TimeLimit, StandardTimeLimit},
          {values_.RunsScore, Standard.RunsScore},
          {values_.FlushScore, Standard.FlushScore},
          {values_.BonusScore, Standard.BonusScore},
          {values_.TripsScore, Standard.TripsScore},
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {values_.DeckCompletion, Standard.DeckCompletion},
          {values_.LeftOverCards, Standard.LeftOverCards}};
}

// --- the dialog ---------------------------------------------------------------------------------

void frmKestrane::ShowScoringDialog() {
  core::ScoringTable table;
  table.window = "frmKestraneCustom";
  table.frame = "frmScoringOptions";
  table.items = DialogItems();
  table.defaults = [this](core::ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); };
  core::ScoringDialog dialog(suite, table);
  suite.ShowModal(dialog);
}

std::vector<core::DialogItem> frmKestrane::DialogItems() {
  return {
      core::Field("txtTripValue", "Three of a kind bonus:", values_.TripsScore,
                  {Below(0, "Sorry, the minimum value for a Triple is 0."),
                   Above(20000, "Sorry, the maximum value for a Triple is 20000")},
                  Standard.TripsScore),
      core::Field("txtRunValue", "Run Bonus:", values_.RunsScore,
                  {Below(0, "Sorry, the minimum value for a Run is 0."),
                   Above(20000, "Sorry, the maximum value for a Run is 20000")},
                  Standard.RunsScore),
      core::Field("txtDeckValue", "Deck Completion Bonus:", values_.DeckCompletion,
                  {Below(0, "Sorry, the minimum value for for completing the Deck is 0."),
                   Above(100000, "Sorry, the maximum value for completing the Deck is 100000")},
                  Standard.DeckCompletion),
      core::Field("txtFlushValue", "Flush Bonus:", values_.FlushScore,
                  {Below(0, "Sorry, the minimum value for the Flush Bonus is 0."),
                   Above(20000, "Sorry, the maximum value for the Flush Bonus is 20000")},
                  Standard.FlushScore),
      core::Field(
          "txtBonusRound", "Score Required for Bonus Round:", values_.BonusScore,
          {Below(0, "Sorry, the minimum value for obtaining the Bonus Round is 0."),
           Above(1000000, "Sorry, the maximum value for obtaining the Bonus Round is 1000000")},
          Standard.BonusScore),
      PenaltyField(),
      TimeBonusField(),
      core::CheckField{"chkCountDown", "&Count Down when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to be "
                      "marked with an * indicating custom scoring was in use."}};
}

/// The penalty is shown as a negative number and kept as a positive one.
core::NumberField frmKestrane::PenaltyField() {
  auto field =
      core::Field("txtPenaltyValue", "Penalty for left-over cards:", values_.LeftOverCards,
                  {Below(-20000, "Sorry, the minimum penalty for left over cards is -20000"),
                   Above(0, "Sorry, the maximum penalty for left over cards is 0.")},
                  -Standard.LeftOverCards);
  field.show = [this] { return "-" + core::Digits(values_.LeftOverCards); };
  field.store = [this](double number) {
    values_.LeftOverCards = core::ClampTo<std::int32_t>(std::abs(core::RoundToEven(number)));
  };
  return field;
}

core::NumberField frmKestrane::TimeBonusField() {
  auto field = core::Field(
      "txtTimeBonus", "Time Bonus (points per second)", shared.TimeBonusPerSecond,
      {Below(0, "Sorry, you cannot set the Time Bonus value to less than 0 points."),
       Above(5000, "Sorry, you cannot set the Time Bonus value to greater than 5000 points")},
      StandardTimeBonus);
  field.passed = [this](core::ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountDown");
    CheckForCustom();
    ShowGoal(values_.BonusScore, " for bonus round.  ");
  };
  return field;
}

}  // namespace games::kestrane
