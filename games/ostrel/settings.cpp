// Ostrel's settings file, the record among it, and what counts as default scoring.
#include "core/text/number.h"
#include "games/ostrel/window.h"

namespace games::ostrel {

void frmOstrel::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  scoring_ = Scoring{};
  rules_.HighRun = 0;
  ShowHighRun();
}

std::vector<core::SettingsKey> frmOstrel::Settings() {
  return {MusicKey(),
          SoundsKey(),
          HighRunKey(),
          core::Number("[Card Bonus]", scoring_.CardBonus),
          core::Number("[Bonus Score]", scoring_.BonusScore),
          core::Number("[Tower Bonus]", scoring_.TowerBonus),
          core::Number("[High Run Bonus]", scoring_.HighRunBonus),
          CountDownKey("[Count Down Score]"),
          TimeBonusKey("[Time Bonus]"),
          StateKey(),
          WidthKey(),
          HeightKey(),
          DeckKey(),
          TimeKey()};
}

core::SettingsKey frmOstrel::HighRunKey() {
  core::SettingsKey key = core::Number("[Hi Run]", rules_.HighRun);
  key.read = [this, read = key.read](const std::string& value) {
    read(value);
    ShowHighRun();
  };
  return key;
}

std::vector<core::ScoringValue> frmOstrel::ScoringValues() const {
  return {
      {shared.TimeLimit, StandardTimeLimit},      {scoring_.CardBonus, Standard.CardBonus},
      {scoring_.BonusScore, Standard.BonusScore}, {scoring_.HighRunBonus, Standard.HighRunBonus},
      {scoring_.TowerBonus, Standard.TowerBonus}, {shared.TimeBonusPerSecond, StandardTimeBonus}};
}

void frmOstrel::mnuClearHighRun_Click() {
  const bool paused = PauseForDialog();
  if (Ask("This will clear the current high run value. Are you sure?")) {
    rules_.HighRun = 0;
    ShowHighRun();
  }
  ResumeAfterDialog(paused);
}

}  // namespace games::ostrel
