// The table of the shared values that scripts can read by name.
#include <algorithm>
#include <variant>

#include "apps/pastimo-script/program_subject.h"
#include "core/text/number.h"
#include "core/text/text.h"
#include "ui/script/words.h"

namespace app {
namespace {

using core::Shared;
using Member = std::variant<std::string Shared::*, std::int16_t Shared::*, std::int32_t Shared::*,
                            bool Shared::*>;

struct NamedValue {
  const char* name;
  Member member;
};

#define VALUE(name)      \
  NamedValue {           \
#name, &Shared::name \
  }
const NamedValue Values[] = {
    VALUE(GameTitle),       VALUE(AppPath),          VALUE(MidiFile),
    VALUE(PlayerName),      VALUE(PlayerNameBare),   VALUE(PlayerHometown),
    VALUE(PlayerState),     VALUE(PlayerCountry),    VALUE(TimeLimit),
    VALUE(ElapsedSeconds),  VALUE(TimerFaceTick),    VALUE(RoundNumber),
    VALUE(CurrentScore),    VALUE(LastScore),        VALUE(TimeBonusPerSecond),
    VALUE(PlaySounds),      VALUE(PlayMusic),        VALUE(DeckStyle),
    VALUE(CustomScoring),   VALUE(CountDownScoring), VALUE(ScoringBusy),
    VALUE(GameActive),      VALUE(NewHighScoreRank), VALUE(SkipHighScoreUpdate),
    VALUE(EnhancedScoring), VALUE(DeckIndex),        VALUE(WaitPeriod),
    VALUE(PassesLeft),      VALUE(CardsToPass),
};
#undef VALUE

struct AsText {
  const Shared& shared;
  std::string operator()(std::string Shared::*member) const {
    return ui::script::Quote(shared.*member);
  }
  std::string operator()(bool Shared::*member) const {
    return ui::script::FlagText(shared.*member);
  }
  template <class T>
  std::string operator()(T Shared::*member) const {
    return core::Digits(shared.*member);
  }
};

std::string SoftAces(const Shared& shared) {
  std::string text;
  for (std::int16_t count : shared.SoftAces)
    text += (text.empty() ? "" : " ") + core::Digits(count);
  return text;
}

/// SessionStart in the form in which scripts set the clock.
std::string SessionStart(const Shared& shared) {
  const core::Moment m = core::MomentAt(shared.SessionStart / 1000);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", m.year, m.month, m.day, m.hour,
                m.minute, m.second);
  return ui::script::Quote(text);
}

}  // namespace

std::optional<std::string> SharedValue(const Shared& shared, const std::string& name) {
  if (name == "SoftAces") return SoftAces(shared);
  if (name == "SessionStart") return SessionStart(shared);
  const auto found = std::find_if(std::begin(Values), std::end(Values),
                                  [&](const NamedValue& value) { return value.name == name; });
  if (found == std::end(Values)) return std::nullopt;
  return std::visit(AsText{shared}, found->member);
}

}  // namespace app
