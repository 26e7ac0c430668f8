// Harvel's settings file, what counts as default scoring, and the scoring dialog as a table.
#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/harvel/window.h"

namespace games::harvel {
namespace {

using core::ScoringDialog;

constexpr std::int32_t LongestWait = 60000;  // milliseconds

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

/// A bonus from 0 up, which the messages call `what`.
core::NumberField BonusField(const std::string& name, const std::string& label, std::int32_t& value,
                             std::int32_t highest, const std::string& what, std::int32_t standard) {
  return core::Field(name, label, value,
                     {core::Below(0, "Sorry, a minimum of 0 is required for the " + what + "."),
                      core::Above(highest, "Sorry, the maximum value for the " + what + " is " +
                                               core::Digits(highest) + ".")},
                     standard);
}

}  // namespace

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
          WaitPeriodKey("[Wait Period]", LongestWait),
          core::Number("[Bonus Round Score]", values_.BonusRoundScore),
          CountDownKey("[Count Down Score]"),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TimeLimitKey()};
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

core::OptionField frmHarvel::SpeedOptions() {
  core::OptionField field{"lblSpeed", "21 Counter Speed:", {}, {}, 0};
  for (const Speed& speed : Speeds) field.choices.push_back({speed.option, speed.caption});
  field.showIndex = [this] {
    int index = 0;
    while (index < 2 && Speeds[index].milliseconds != Timer3.Interval()) ++index;
    return index;
  };
  return field;
}

core::ScoringTable frmHarvel::ScoringTableOfDialog() {
  core::NumberField goal = BonusScoreField(values_.BonusRoundScore, Standard.BonusRoundScore);
  goal.passed = [this](ScoringDialog& d) { ApplyScoring(d, values_.BonusRoundScore); };
  core::NumberField passes = PassesField(StandardCardsToPass);
  passes.defaultStores = false;
  core::ScoringTable table = EmptyTable("frmHarvelCustomScoring", StandardTimeLimit);
  table.items = {
      goal,
      BonusField("txt21BonusValue", "Twenty One Bonus Value:", values_.TwentyOneBonusValue, 5000,
                 "Twenty One bonus score", Standard.TwentyOneBonusValue),
      BonusField("txtCardsUsedBonus", "Cards Used Bonus Value:", values_.CardsUsedBonusValue, 5000,
                 "Cards Used bonus score", Standard.CardsUsedBonusValue),
      BonusField("txtDeckCompletionBonus", "Deck Completion Bonus:", values_.DeckCompletionBonus,
                 1000000, "Deck Completion Bonus", Standard.DeckCompletionBonus),
      BonusField("txtFiveCardGimmeBonus", "Five Card Gimme Bonus:", values_.FiveCardsBonusValue,
                 50000, "Five Cards Gimme Bonus", Standard.FiveCardsBonusValue),
      passes,
      WaitField(LongestWait, StandardWaitPeriod),
      SpeedOptions(),
      CountField(),
      core::NoteField{"lblInfo",
                      "Note: Changing any of the Scoring Options will cause your high scores to be "
                      "marked with an * indicating custom scoring was in use."}};
  table.storesBeforeMessage = true;
  table.testOrder = {
      "txtNumberOfCardsToPass", "txtWaitPeriod",         "txtCardsUsedBonus", "txt21BonusValue",
      "txtDeckCompletionBonus", "txtFiveCardGimmeBonus", "txtBonus"};
  table.beforeTests = [this](ScoringDialog& dialog) {
    for (const Speed& speed : Speeds) {
      if (dialog.OptionSet(speed.option)) SetTimerSpeed(speed.milliseconds);
    }
  };
  return table;
}

}  // namespace games::harvel
