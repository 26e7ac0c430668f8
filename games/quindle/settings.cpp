// Quindle's settings file, its tables of scores, and what counts as default scoring.
#include "core/text/number.h"
#include "core/text/text.h"
#include "games/quindle/window.h"

namespace games::quindle {

void frmQuindle::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  values_ = Values{};
  rules_.CardGoal = 11;
  rules_.EnhancedScoring = shared.EnhancedScoring = true;
  ReplayGame = false;
  SelectionColorIndex = 1;
  ShowGoalMark();
}

std::vector<core::SettingsKey> frmQuindle::Settings() {
  core::SettingsKey mode = core::Flag("[New Score Mode]", rules_.EnhancedScoring);
  mode.read = [this](const std::string& value) {
    rules_.EnhancedScoring = shared.EnhancedScoring = core::FlagIn(value);
  };
  return {ColorKey(),
          MusicKey(),
          CountDownKey("[DrawTimer]"),
          SoundsKey(),
          GoalKey(),
          core::Number("[Bonus Round Score]", values_.BonusRoundScore),
          core::Number("[Completion Bonus]", values_.CompletionBonus),
          core::Number("[Elevens Bonus]", values_.ElevensBonus),
          core::Number("[Elevens Bonus ES]", values_.ElevensBonusES),
          TimeBonusKey("[Time Bonus]"),
          StateKey(),
          mode,
          WidthKey(),
          HeightKey(),
          DeckKey(),
          TimeKey()};
}

core::SettingsKey frmQuindle::ColorKey() {
  return {"[Color]", [this] { return core::Digits(SelectionColorIndex); },
          [this](const std::string& value) {
            const std::int64_t index = core::WholeIn(value);
            if (index >= 0 && index < SelectionColors) SelectionColor(static_cast<int>(index));
          }};
}

core::SettingsKey frmQuindle::GoalKey() {
  core::SettingsKey key = core::Number("[CardGoal]", rules_.CardGoal);
  key.read = [this, read = key.read](const std::string& value) {
    read(value);
    ShowGoalMark();
  };
  return key;
}

std::vector<core::ScoringValue> frmQuindle::ScoringValues() const {
  const bool enhanced = rules_.EnhancedScoring;
  return {{shared.TimeLimit, StandardTimeLimit},
          {values_.BonusRoundScore, StandardBonusRoundScore},
          {values_.CompletionBonus, StandardCompletionBonus},
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {enhanced ? values_.ElevensBonusES : values_.ElevensBonus,
           enhanced ? StandardElevensBonusES : StandardElevensBonus}};
}

std::string frmQuindle::TableName() const {
  return Entry().tableName + (rules_.EnhancedScoring ? "ES " : "") + core::Digits(rules_.CardGoal) +
         "_";
}

std::string frmQuindle::TableInfo() const {
  return (rules_.EnhancedScoring ? "Enhanced Scoring - " : "") +
         ("High Scores for a card goal of " + core::Digits(rules_.CardGoal));
}

}  // namespace games::quindle
