// Mozaro's user options as a table, and what its OK and Default do besides.
#include "core/scoring/scoring_dialog.h"
#include "core/text/number.h"
#include "games/mozaro/window.h"

namespace games::mozaro {
namespace {

using core::Masked;
using core::ScoringDialog;

struct Choice {
  const char* name;
  const char* label;
  int first;
  int last;
  std::int16_t Options::*value;
  const char* suffix = "";
  bool neverAtZero = false;
};
constexpr Choice Choices[] = {
    {"cboColumnCount", "Initial column count:*", 14, 25, &Options::Columns},
    {"cboColorCount", "Initial color count:", 2, 10, &Options::InitialColorCount},
    {"cboGroupSize", "Selection group size:", 2, 5, &Options::GroupSize},
    {"cboAddColumn", "Add a column every", 0, 5, &Options::AddAColumn, "rounds.", true},
    {"cboAddColor", "Add a color every", 1, 5, &Options::AddAColor, "rounds."},
    {"cboJumbles", "Jumbles per round:", 1, 3, &Options::JumblesAllowed}};

core::ListField ListOf(const Choice& choice, const Options& options) {
  const int standard = Options{}.*choice.value;
  std::vector<std::string> items;
  for (int i = choice.first; i <= choice.last; ++i) {
    items.push_back(core::Digits(i) + (i == standard                  ? " (Default)"
                                       : i == 0 && choice.neverAtZero ? " (Never)"
                                                                      : ""));
  }
  return {choice.name,
          choice.label,
          items,
          [&choice, &options] { return options.*choice.value - choice.first; },
          standard - choice.first,
          choice.suffix};
}

core::NumberField Points(const std::string& name, const std::string& label, std::int32_t& value,
                         std::int64_t low, std::int64_t high, const std::string& neededFor,
                         const std::string& highestFor, std::int64_t standard) {
  return core::Field(name, label, value,
                     {core::Below(low, "Sorry, a minimum score of " + Masked(low) +
                                           " is required for " + neededFor + "."),
                      core::Above(high, "Sorry, the maximum value for " + highestFor + " is " +
                                            Masked(high) + ".")},
                     standard);
}

}  // namespace

void frmMozaro::ShowScoringDialog() {
  ScoringDialog dialog(suite, ScoringTableOfDialog());
  suite.ShowModal(dialog);
  PlayingSurface.Clear();
  rounds_.TakeInitialSizes();
  InitBoard();
  PlaceBoard(InnerSize());
}

core::ScoringTable frmMozaro::ScoringTableOfDialog() {
  const Options standard;
  core::ScoringTable table;
  table.window = "frmMozaroCustomScoring";
  table.frame = "frmCustomScoring";
  for (const Choice& choice : Choices) table.items.push_back(ListOf(choice, options_));
  table.items.insert(
      table.items.end(),
      {core::CheckField{"chkDropBoxes", "Drop &boxes (only slide rows when column is empty)",
                        [this] { return options_.DropBoxes; }},
       core::CheckField{"chkCountDownScore", "Count down &when taking score",
                        [this] { return shared.CountDownScoring; }},
       Points("txtRoundPoints", "Points required to advance a round:", options_.ScoreForNextRound,
              20000, 100000, "the next round", "achieving the next round score",
              standard.ScoreForNextRound),
       Points("txtTimeBonus", "Time Bonus (points per second):", shared.TimeBonusPerSecond, 0, 1000,
              "the time bonus score", "the time bonus score", StandardTimeBonus),
       Points("txtClearBoard", "Points for clearing the board:", options_.ClearBoard, 0, 100000,
              "clearing the board", "clearing the board", standard.ClearBoard),
       Points("txtColumnBonus", "Points per cleared column:", options_.ClearAColumn, 0, 10000,
              "clearing a column", "clearing a column", standard.ClearAColumn),
       core::NoteField{"lblRowCountData",
                       "*The number of rows will be automatically calculated based on the number "
                       "of columns you pick."}});
  table.beforeTests = [this](ScoringDialog& dialog) { TakeChoices(dialog); };
  table.allValid = [this](ScoringDialog&) {
    CheckForCustom();
    ShowGoal(options_.ScoreForNextRound, " to achieve the next round.  ");
  };
  table.defaults = [this](ScoringDialog& dialog) {
    TakeChoices(dialog);
    ChooseTimeLimit(StandardTimeLimit);
  };
  return table;
}

void frmMozaro::TakeChoices(const ScoringDialog& dialog) {
  for (const Choice& choice : Choices) {
    options_.*choice.value =
        static_cast<std::int16_t>(choice.first + dialog.ChosenIndex(choice.name));
  }
  options_.DropBoxes = dialog.Checked("chkDropBoxes");
  shared.CountDownScoring = dialog.Checked("chkCountDownScore");
}

}  // namespace games::mozaro
