// Kestrane's settings file, its scoring dialog, and what counts as default scoring.
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
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {values_ == Standard, true}};
}

// --- the dialog ---------------------------------------------------------------------------------

void frmKestrane::ShowScoringDialog() {
  core::ScoringDialog dialog(
      suite, {.window = "frmKestraneCustom",
              .frame = "frmScoringOptions",
              .items = DialogItems(),
              .replacesBeforeMessage = true,
              .defaults = [this](core::ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); }});
  suite.ShowModal(dialog);
}

std::vector<core::DialogItem> frmKestrane::DialogItems() {
  const auto amount = [this](const char* name, const char* label, std::int32_t Values::*value,
                             std::int32_t most, const std::string& what) {
    return core::Field(
        name, label, values_.*value,
        {Below(0, "Sorry, the minimum value for " + what + " is 0."),
         Above(most, "Sorry, the maximum value for " + what + " is " + core::Digits(most))},
        Standard.*value);
  };
  auto deck = amount("txtDeckValue", "Deck Completion Bonus:", &Values::DeckCompletion, 100000,
                     "completing the Deck");
  deck.tests[0].message = "Sorry, the minimum value for for completing the Deck is 0.";
  return {amount("txtTripValue", "Three of a kind bonus:", &Values::TripsScore, 20000, "a Triple"),
          amount("txtRunValue", "Run Bonus:", &Values::RunsScore, 20000, "a Run"),
          deck,
          amount("txtFlushValue", "Flush Bonus:", &Values::FlushScore, 20000, "the Flush Bonus"),
          amount("txtBonusRound", "Score Required for Bonus Round:", &Values::BonusScore, 1000000,
                 "obtaining the Bonus Round"),
          PenaltyField(),
          TimeBonusField(),
          core::CheckField{"chkCountDown", "&Count Down when taking score",
                           [this] { return shared.CountDownScoring; }},
          core::NoteField{"lblInfo",
                          "Note: Changing any of the Scoring Options will cause your high scores "
                          "to be marked with an * indicating custom scoring was in use."}};
}

/// The penalty is shown as a negative number and kept as a positive one.
core::NumberField frmKestrane::PenaltyField() {
  auto field =
      core::Field("txtPenaltyValue", "Penalty for left-over cards:", values_.LeftOverCards,
                  {Below(-20000, "Sorry, the minimum penalty for left over cards is -20000"),
                   Above(0, "Sorry, the maximum penalty for left over cards is 0.")},
                  -Standard.LeftOverCards, -1);
  field.show = [this] { return "-" + core::Digits(values_.LeftOverCards); };
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
