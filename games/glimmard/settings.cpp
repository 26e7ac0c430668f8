// Glimmard's settings file, and what counts as default scoring.
#include "core/text/number.h"
#include "games/glimmard/window.h"

namespace games::glimmard {

void frmPhrase::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  values_ = Values{};
  PhraseTopic = RandomTopic;
  ShowTopicMark();
}

std::vector<core::SettingsKey> frmPhrase::Settings() {
  return {MusicKey(),
          SoundsKey(),
          CountDownKey("[Count Down Score]"),
          TopicKey(),
          TimeBonusKey("[Time Bonus]"),
          core::Number("[Bonus Score]", values_.BonusScore),
          core::Number("[Completion Bonus]", values_.CompletionBonus),
          core::Number("[Guess Bonus]", values_.GuessBonus),
          core::Number("[Guess Count]", values_.GuessCount),
          core::Number("[ShowPhrase]", values_.ShowPhraseTime),
          StateKey(),
          WidthKey(),
          HeightKey(),
          TopicKey(),
          TimeKey()};
}

core::SettingsKey frmPhrase::TopicKey() {
  return {"[Topic]", [this] { return core::Digits(PhraseTopic); },
          [this](const std::string& value) {
            const std::int64_t topic = core::WholeIn(value);
            if (topic >= RandomTopic && topic <= TopicCount) {
              ChooseTopic(static_cast<std::int16_t>(topic));
            }
          }};
}

std::vector<core::ScoringValue> frmPhrase::ScoringValues() const {
  return {{shared.TimeLimit, StandardTimeLimit},
          {values_.GuessBonus, StandardGuessBonus},
          {values_.CompletionBonus, StandardCompletionBonus},
          {shared.TimeBonusPerSecond, StandardTimeBonus},
          {values_.GuessCount, StandardGuessCount},
          {values_.BonusScore, StandardBonusScore}};
}

}  // namespace games::glimmard
