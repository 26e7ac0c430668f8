// Brenlock's settings file, what counts as default scoring, and the scoring dialog as a table.
#include <limits>

#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/brenlock/window.h"

namespace games::brenlock {
namespace {

using core::Above;
using core::Below;
using core::FieldTest;
using core::ScoringDialog;

// Milliseconds.
constexpr std::int32_t LongestWait = std::numeric_limits<std::int16_t>::max();
constexpr std::int32_t LongestWaitOfDialog = 30000;
constexpr int HighestTimeBonus = 10000;
const Values Standard;

/// The tests that both Time Bonus fields have: a refusal corrects the field, not what is in memory.
std::vector<FieldTest> TimeBonusTests(FieldTest againstTheOther, const std::string& which) {
  const std::string start = "Sorry, the " + which + " time bonus value must ";
  FieldTest none = Below(1, start + "be greater than 0.");
  none.refuses = [](double value, const ScoringDialog&) { return value <= 0; };
  none.shows = [](const ScoringDialog&) { return "0"; };
  FieldTest tooHigh = Above(HighestTimeBonus, start + "not exceed 10000.");
  againstTheOther.message = start + againstTheOther.message;
  return {againstTheOther, none.KeepOld(), tooHigh.KeepOld()};
}

}  // namespace

void frmBrenlock::SetDefaults() {
  values_ = Values{};
  shared.TimeLimit = StandardTimeLimit;
  shared.WaitPeriod = StandardWaitPeriod;
  shared.CardsToPass = shared.PassesLeft = StandardCardsToPass;
  shared.RoundNumber = 0;
  shared.DeckIndex = 0;
}

std::vector<core::SettingsKey> frmBrenlock::Settings() {
  return {SoundsKey(),
          MusicKey(),
          DeckKey(4),
          core::Number("[TimeBonusMax]", values_.TimeBonusMax),
          core::Number("[TimeBonusMin]", values_.TimeBonusMin),
          core::Number("[BonusScore]", values_.BonusScore),
          WaitPeriodKey("[WaitPeriod]", LongestWait),
          CountDownKey("[CountDownScore]"),
          CardsToPassKey(),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TimeKey()};
}

core::SettingsKey frmBrenlock::CardsToPassKey() {
  core::SettingsKey key = core::Number("[Cards To Pass]", shared.CardsToPass);
  key.read = [this](const std::string& value) { SetCardsToPass(core::NumberIn(value)); };
  return key;
}

/// While no game runs, the passes left are those of a round.
void frmBrenlock::SetCardsToPass(double number) {
  shared.CardsToPass = core::ClampTo<std::int16_t>(core::RoundToEven(number));
  shared.PassesLeft = shared.CardsToPass;
}

std::vector<core::ScoringValue> frmBrenlock::ScoringValues() const {
  return {{shared.TimeLimit, StandardTimeLimit},
          {values_.TimeBonusMin, Standard.TimeBonusMin},
          {values_.TimeBonusMax, Standard.TimeBonusMax},
          {values_.BonusScore, Standard.BonusScore},
          {shared.PassesLeft, StandardCardsToPass}};
}

core::NumberField frmBrenlock::TimeBonusMaxField() {
  FieldTest test{[](double value, const ScoringDialog& dialog) {
                   return value <= dialog.NumberOf("txtTimeBonusMin");
                 },
                 "be greater than the minimum time bonus value.",
                 [](const ScoringDialog& dialog) {
                   return core::NumberText(dialog.NumberOf("txtTimeBonusMin") + 1);
                 }};
  return core::Field("txtTimeBonusMax", "Maximum Time Bonus value:", values_.TimeBonusMax,
                     TimeBonusTests(test, "maximum"), Standard.TimeBonusMax);
}

core::NumberField frmBrenlock::TimeBonusMinField() {
  FieldTest test{[](double value, const ScoringDialog& dialog) {
                   return value >= dialog.NumberOf("txtTimeBonusMax");
                 },
                 "be less than the maximum time bonus value.",
                 [](const ScoringDialog& dialog) {
                   return core::NumberText(dialog.NumberOf("txtTimeBonusMax") - 1);
                 }};
  core::NumberField field =
      core::Field("txtTimeBonusMin", "Minimum Time Bonus value:", values_.TimeBonusMin,
                  TimeBonusTests(test, "minimum"), Standard.TimeBonusMin);
  field.passed = [this](ScoringDialog& dialog) {
    rules_.SetTimeBonusDecay(shared.TimeLimit);
    ApplyScoring(dialog, values_.BonusScore);
  };
  return field;
}

core::ScoringTable frmBrenlock::ScoringTableOfDialog() {
  core::NumberField passes = PassesField(StandardCardsToPass);
  passes.store = [this](double number) { SetCardsToPass(number); };
  core::ScoringTable table = EmptyTable("frmBrenlockCustomScoring", StandardTimeLimit);
  table.items = {
      BonusScoreField(values_.BonusScore, Standard.BonusScore),
      TimeBonusMaxField(),
      TimeBonusMinField(),
      passes,
      WaitField(LongestWaitOfDialog, StandardWaitPeriod),
      CountField(),
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options or the number of cards a user may "
                      "pass will cause your high scores to be marked with an * indicating custom "
                      "scoring was in use."}};
  table.testOrder = {"txtNumberOfCardsToPass", "txtWaitPeriod", "txtBonus", "txtTimeBonusMax",
                     "txtTimeBonusMin"};
  return table;
}

}  // namespace games::brenlock
