// Vermoy's settings file and its scoring dialog, both by one table of values.
#include "core/scoring/scoring_dialog.h"
#include "games/vermoy/window.h"

namespace games::vermoy {
namespace {

/// A value in the file and in the dialog, where it may go from 0 to `highest`. A refused one
/// becomes one of a set of its own, not the default.
struct Option {
  std::int32_t Values::*value;
  const char* key;
  const char* field;
  const char* label;
  std::int64_t highest;
  std::int64_t afterRefusal;
};
// In the order of the dialog. A deck feeds the grid and 26 overwrites.
constexpr Option Options[] = {
    {&Values::Pair, "[Pair Score]", "txtPairScore", "Pair Score Value:", 50000, 6000},
    {&Values::TwoPair, "[Two Pair Score]", "txt2PairScore", "2 Pair Score Value:", 50000, 7000},
    {&Values::Trips, "[Trips Score]", "txt3ofakindScore", "3 of a Kind Score Value:", 50000, 8000},
    {&Values::Straight, "[Straight Score]", "txtStraightScore", "Straight Score Value:", 50000,
     9000},
    {&Values::Flush, "[Flush Score]", "txtFlushScore", "Flush Score Value:", 50000, 10000},
    {&Values::FullHouse, "[Full House Score]", "txtFullHouseScore",
     "Full House Score Value:", 50000, 20000},
    {&Values::Four, "[Four Score]", "txt4ofakindScore", "4 of a Kind Score Value:", 50000, 30000},
    {&Values::StraightFlush, "[Straight Flush Score]", "txtStFlushScore",
     "Straight Flush Score Value:", 50000, 40000},
    {&Values::RoyalFlush, "[Royal Flush Score]", "txtRoyalFlushScore",
     "Royal Flush Score Value:", 100000, 50000},
    {&Values::BonusScore, "[Bonus Score]", "txtBonusScore",
     "Score required for bonus round:", 1000000, 100000},
    {&Values::OverWrites, "[Over Writes]", "txtOverWrites", "Number of overwrites allowed", 26, 1}};

// Rows of the table in the order of the file, which has the overwrites before all else.
constexpr std::size_t FileOrder[] = {9, 0, 1, 2, 4, 5, 3, 6, 7, 8};
constexpr std::size_t OverWritesRow = 10;

core::FieldTest Within(std::int64_t highest, const std::string& what, std::int64_t afterRefusal) {
  return core::Outside(
      0, highest,
      "Sorry, the " + what + " must be between 0 and " + core::Masked(highest) + " points.",
      afterRefusal);
}

}  // namespace

void frmVermoy::SetDefaults() {
  shared.TimeLimit = StandardTimeLimit;
  shared.TimeBonusPerSecond = StandardTimeBonus;
  values_ = Values{};
}

std::vector<core::SettingsKey> frmVermoy::Settings() {
  const auto key = [this](std::size_t row) {
    return core::Number(Options[row].key, values_.*Options[row].value);
  };
  std::vector<core::SettingsKey> keys = {key(OverWritesRow), SoundsKey(),
                                         MusicKey(),         CountDownKey("[Count Down Score]"),
                                         DeckKey(),          TimeBonusKey("[Time Bonus]")};
  for (std::size_t row : FileOrder) keys.push_back(key(row));
  keys.insert(keys.end(), {StateKey(), WidthKey(), HeightKey(), TimeKey()});
  return keys;
}

std::vector<core::ScoringValue> frmVermoy::ScoringValues() const {
  std::vector<core::ScoringValue> values = {{shared.TimeLimit, StandardTimeLimit},
                                            {shared.TimeBonusPerSecond, StandardTimeBonus}};
  for (const Option& row : Options) values.push_back({values_.*row.value, Values{}.*row.value});
  return values;
}

void frmVermoy::ShowScoringDialog() {
  core::ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
}

core::ScoringTable frmVermoy::ScoringTableOfDialog() {
  core::ScoringTable table;
  table.window = "frmVermoyCustom";
  table.frame = "frmScoringOptions";
  table.replacesBeforeMessage = true;
  for (const Option& row : Options) {
    auto field =
        core::Field(row.field, row.label, values_.*row.value,
                    {Within(row.highest, row.label, row.afterRefusal)}, Values{}.*row.value);
    if (row.value == &Values::BonusScore) {
      field.passed = [this](core::ScoringDialog&) { ShowBonusGoal(); };
    }
    table.items.push_back(field);
  }
  auto timeBonus =
      core::Field("txtTimeBonus", "Time Bonus (per second multipler)", shared.TimeBonusPerSecond,
                  {Within(10, "Time Bonus value", 1)}, StandardTimeBonus);
  timeBonus.passed = [this](core::ScoringDialog& dialog) {
    shared.CountDownScoring = dialog.Checked("chkCountDown");
    CheckForCustom();
  };
  table.items.push_back(timeBonus);
  table.items.push_back(core::CheckField{"chkCountDown", "&Count Down when taking score",
                                         [this] { return shared.CountDownScoring; }});
  table.defaults = [this](core::ScoringDialog&) {
    shared.CountDownScoring = true;
    ChooseTimeLimit(StandardTimeLimit);
  };
  return table;
}

}  // namespace games::vermoy
