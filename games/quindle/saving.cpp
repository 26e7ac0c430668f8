// Saving the last game, and opening a saved one for a replay.
#include <utility>

#include "core/files/files.h"
#include "core/text/number.h"
#include "games/quindle/window.h"

namespace games::quindle {
namespace {

const std::string Filter = "Quindle Games (*.qdl)|*.qdl";

}  // namespace

void frmQuindle::Activate() {
  if (std::exchange(activated_, true) || !suite.commandLine) return;
  OpenSavedGame(*suite.commandLine);
}

SavedGame frmQuindle::GameToSave() const {
  return {.CardGoal = rules_.CardGoal,
          .timeLimit = core::Digits(shared.TimeLimit),
          .score = core::Digits(shared.LastScore),
          .custom = shared.CustomScoring,
          .userName = shared.PlayerName,
          .decks = RoundDeck_,
          .goalChosen = false,
          .whole = true};
}

void frmQuindle::mnuSave_Click() {
  const auto path = suite.platform.AskFile({.purpose = ui::FileDialog::Purpose::Save,
                                            .title = "Save current " + shared.GameTitle + " Game",
                                            .filter = Filter,
                                            .defaultExtension = "*.qdl",
                                            .fileName = ""});
  if (!path || path->empty()) return;
  if (core::WriteWhole(*path, FormatSavedGame(GameToSave()))) return;
  suite.Tell(ui::Sign::Critical,
             "Unable to save the file. Please verify that you have entered a valid path and file "
             "name.");
}

void frmQuindle::mnuOpen_Click() {
  const auto path = suite.platform.AskFile({.purpose = ui::FileDialog::Purpose::Open,
                                            .title = "Open " + shared.GameTitle + " Game",
                                            .filter = Filter,
                                            .defaultExtension = "*.qdl",
                                            .fileName = ""});
  OpenSavedGame(path.value_or(""));
}

bool frmQuindle::OpenSavedGame(const std::string& path) {
  const auto text = core::ReadWhole(path);
  const auto game = text ? ParseSavedGame(*text, GameToSave()) : std::nullopt;
  if (!game) return false;
  if (game->goalChosen) ChooseGoal(game->CardGoal);
  RoundDeck_ = game->decks;
  if (!game->whole) return false;
  TakeTimeLimitOf(*game);
  ReplayGame = true;
  ShowTitle(false);
  SetReplayCaption(true);
  cmdPlay_Click();
  return true;
}

void frmQuindle::TakeTimeLimitOf(const SavedGame& game) {
  const std::string title = "Saved Game Information";
  std::string message = SavedGameMessage(game);
  const auto saved = core::ClampTo<std::int16_t>(core::WholeIn(game.timeLimit));
  if (saved == shared.TimeLimit) {
    suite.platform.MessageBox(ui::Sign::Information, ui::Buttons::Ok, title, message);
    return;
  }
  message += "This game was saved with the time limit set to " + game.timeLimit +
             ". Your time limit is currently set to " + core::Digits(shared.TimeLimit) +
             ". Do you want to change your time limit to " + game.timeLimit + "?";
  if (suite.platform.MessageBox(ui::Sign::Question, ui::Buttons::YesNo, title, message) !=
      ui::Answer::Yes) {
    return;
  }
  shared.TimeLimit = saved;
  if (Menus.Named("mnu" + core::Digits(saved)) && saved > LargestGoal) ChooseTimeLimit(saved);
}

}  // namespace games::quindle
