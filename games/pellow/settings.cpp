// Pellow's settings file, and what counts as default scoring.
#include "games/pellow/window.h"

namespace games::pellow {

void frmPellow::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  scoring_ = Scoring{};
  background_.SetDefault();
}

std::vector<core::SettingsKey> frmPellow::Settings() {
  return {background_.Key("[Image]"),
          MusicKey(),
          SoundsKey(),
          MusicKey(),
          CountDownKey("[Count Down Score]"),
          core::Number("[Pairs Bonus]", scoring_.PairsBonus),
          core::Number("[Runs Bonus]", scoring_.RunsBonus),
          TimeBonusKey("[Time Bonus]"),
          core::Number("[Card Remaining Bonus]", scoring_.RemainingCardBonus),
          core::Number("[Bonus Score]", scoring_.BonusScore),
          core::Number("[Completion Bonus]", scoring_.CompletionBonus),
          StateKey(),
          WidthKey(),
          HeightKey(),
          DeckKey(),
          TimeKey()};
}

std::vector<core::ScoringValue> frmPellow::ScoringValues() const {
  return {{scoring_.RemainingCardBonus, Standard.RemainingCardBonus},
          {shared.TimeLimit, StandardTimeLimit},
          {scoring_.PairsBonus, Standard.PairsBonus},
          {scoring_.RunsBonus, Standard.RunsBonus},
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {scoring_.BonusScore, Standard.BonusScore},
          {scoring_.CompletionBonus, Standard.CompletionBonus}};
}

}  // namespace games::pellow
