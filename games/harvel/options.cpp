// Harvel's settings file, what counts as default scoring, and the scoring dialog as a table.
#include <algorithm>

#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

using core::Above;
using core::Below;
using core::ScoringDialog;

constexpr std::int32_t LongestWait = 60000;  // milliseconds
constexpr int MillisecondsPerSecond = 1000;

/// The speeds of the 21 Counter, as the dialog offers them.
struct Speed {
  std::int16_t milliseconds;
  const char* option;
  const char* caption;
};
constexpr Speed Speeds[] = {{90, "optDefault", "&Normal"},
                            {180, "optSlow", "&Slow"},
                            {360, "optSlowest", "&Any slower and it would be going backwards"}};
const Values Standard;

std::vector<core::FieldTest> Within(std::int64_t highest, const std::string& below,
                                    const std::string& above) {
  return {Below(0, "Sorry, " + below), Above(highest, "Sorry, " + above)};
}

std::vector<core::FieldTest> BonusWithin(std::int64_t highest, const std::string& bonus) {
  return Within(highest, "a minimum of 0 is required for the " + bonus + ".",
                "the maximum value for the " + bonus + " is " + core::Digits(highest) + ".");
}

/// A field that Default rewrites without touching what is in memory.
core::NumberField OnlyShown(core::NumberField field) {
  field.defaultStores = false;
  return field;
}

}  // namespace

// --- the settings file --------------------------------------------------------------------------

void frmHarvel::SetDefaults() {
  values_ = Values{};
  shared.TimeLimit = StandardTimeLimit;
  shared.WaitPeriod = StandardWaitPeriod;
  shared.CardsToPass = shared.PassesLeft = StandardCardsToPass;
  shared.DeckStyle = 3;
  shared.DeckIndex = 0;
  SetTimerSpeed(values_.TimerSpeed);
}

std::vector<core::SettingsKey> frmHarvel::Settings() {
  return {SoundsKey(),
          TimerSpeedKey(),
          MusicKey(),
          DeckKey(4),
          core::Number("[Cards To Pass]", shared.CardsToPass),
          core::Number("[TwentyOne Bonus Value]", values_.TwentyOneBonusValue),
          core::Number("[Cards Used Bonus Value]", values_.CardsUsedBonusValue),
          core::Number("[5 Cards Bonus Value]", values_.FiveCardsBonusValue),
          core::Number("[Deck Completion Bonus]", values_.DeckCompletionBonus),
          WaitPeriodKey(),
          core::Number("[Bonus Round Score]", values_.BonusRoundScore),
          CountDownKey("[Count Down Score]"),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TimeLimitKey()};
}

core::SettingsKey frmHarvel::WaitPeriodKey() {
  core::SettingsKey key = core::Number("[Wait Period]", shared.WaitPeriod);
  key.read = [this](const std::string& value) {
    shared.WaitPeriod =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(core::WholeIn(value), 0, LongestWait));
  };
  return key;
}

/// A limit that no entry offers holds all the same, and no entry is marked.
core::SettingsKey frmHarvel::TimeLimitKey() {
  core::SettingsKey key = TimeKey();
  key.key = "[Time Limit]";
  key.read = [this, choose = key.read](const std::string& value) {
    shared.TimeLimit = core::ClampTo<std::int16_t>(core::WholeIn(value));
    SetTimeLimitMark();
    choose(value);
  };
  return key;
}

core::SettingsKey frmHarvel::TimerSpeedKey() {
  core::SettingsKey key = core::Number("[Timer Speed]", values_.TimerSpeed);
  key.read = [this](const std::string& value) {
    for (const Speed& speed : Speeds) {
      if (value == core::Digits(speed.milliseconds)) return SetTimerSpeed(speed.milliseconds);
    }
    suite.Tell(ui::Sign::Plain,
               "Someone has been monkeying around with the INI file...tsk tsk! Timer speed is set "
               "to default!");
    SetTimerSpeed(Standard.TimerSpeed);
  };
  return key;
}

void frmHarvel::SetTimerSpeed(std::int16_t milliseconds) {
  values_.TimerSpeed = milliseconds;
  Timer3.Interval = milliseconds;
}

std::vector<core::ScoringValue> frmHarvel::ScoringValues() const {
  return {{shared.TimeLimit, StandardTimeLimit},
          {shared.CardsToPass, StandardCardsToPass},
          {values_.CardsUsedBonusValue, Standard.CardsUsedBonusValue},
          {values_.BonusRoundScore, Standard.BonusRoundScore},
          {values_.DeckCompletionBonus, Standard.DeckCompletionBonus},
          {values_.FiveCardsBonusValue, Standard.FiveCardsBonusValue},
          {values_.TimerSpeed, Standard.TimerSpeed}};
}

// --- the scoring dialog -------------------------------------------------------------------------

void frmHarvel::ShowScoringDialog() {
  ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmHarvel::ScoringTableOfDialog() {
  core::NumberField bonusScore =
      core::Field("txtBonus", "Score required for Bonus:", values_.BonusRoundScore,
                  Within(2147483647, "a minimum of 0 is required for the bonus round score.",
                         "the maximum value for achieving a bonus round is 2147483647."),
                  Standard.BonusRoundScore);
  bonusScore.passed = [this](ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountScore");
    CheckForCustom();
    ShowGoal(values_.BonusRoundScore, " for bonus round.  ");
  };

  core::OptionField speeds{"lblSpeed", "21 Counter Speed:", {}, {}, 0};
  for (const Speed& speed : Speeds) speeds.choices.push_back({speed.option, speed.caption});
  speeds.showIndex = [this] {
    int index = 0;
    while (index < 2 && Speeds[index].milliseconds != Timer3.Interval()) ++index;
    return index;
  };

  core::ScoringTable table;
  table.window = "frmHarvelCustomScoring";
  table.frame = "frmCustomScoring";
  table.items = {
      bonusScore,
      core::Field("txt21BonusValue", "Twenty One Bonus Value:", values_.TwentyOneBonusValue,
                  BonusWithin(5000, "Twenty One bonus score"), Standard.TwentyOneBonusValue),
      core::Field("txtCardsUsedBonus", "Cards Used Bonus Value:", values_.CardsUsedBonusValue,
                  BonusWithin(5000, "Cards Used bonus score"), Standard.CardsUsedBonusValue),
      core::Field("txtDeckCompletionBonus", "Deck Completion Bonus:", values_.DeckCompletionBonus,
                  BonusWithin(1000000, "Deck Completion Bonus"), Standard.DeckCompletionBonus),
      core::Field("txtFiveCardGimmeBonus", "Five Card Gimme Bonus:", values_.FiveCardsBonusValue,
                  BonusWithin(50000, "Five Cards Gimme Bonus"), Standard.FiveCardsBonusValue),
      OnlyShown(core::Field(
          "txtNumberOfCardsToPass", "Number of cards user may pass (0 - 10):", shared.CardsToPass,
          Within(10, "you cannot pass fewer than 0 cards.", "you cannot pass more than 10 cards."),
          StandardCardsToPass)),
      OnlyShown(core::Field(
          "txtWaitPeriod", "Seconds to wait between Rounds (0 - 10):", shared.WaitPeriod,
          Within(LongestWait / MillisecondsPerSecond,
                 "a minimum of 0 seconds is required for the waiting period between rounds.",
                 "a maximum of 60 seconds is allowed for the waiting period between rounds."),
          StandardWaitPeriod / MillisecondsPerSecond, MillisecondsPerSecond)),
      speeds,
      core::CheckField{"chkCountScore", "Count down &when taking score",
                       [this] { return shared.CountDownScoring; }},
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to be "
                      "marked with an * indicating custom scoring was in use."}};
  table.testOrder = {
      "txtNumberOfCardsToPass", "txtWaitPeriod",         "txtCardsUsedBonus", "txt21BonusValue",
      "txtDeckCompletionBonus", "txtFiveCardGimmeBonus", "txtBonus"};
  table.beforeTests = [this](ScoringDialog& dialog) {
    for (const Speed& speed : Speeds) {
      if (dialog.OptionSet(speed.option)) SetTimerSpeed(speed.milliseconds);
    }
  };
  table.defaults = [this](ScoringDialog&) { ChooseTimeLimit(StandardTimeLimit); };
  return table;
}

}  // namespace games::harvel
