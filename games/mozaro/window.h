// The window of Mozaro.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/game_window.h"
#include "games/mozaro/board.h"
#include "games/mozaro/rounds.h"
#include "games/mozaro/settings.h"

namespace games::mozaro {

inline constexpr int Spacing = 2;  ///< pixels between two boxes
inline constexpr std::int16_t StandardTimeLimit = 60;
inline constexpr std::int32_t StandardTimeBonus = 100;

class frmMozaro : public core::GameWindow, public BoardOwner {
 public:
  frmMozaro(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override;
  void ShowCards(bool visible) override { PlayingSurface.Visible = visible; }
  void ShowControls(bool visible, bool) override { ShowGameControls(visible); }
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void ShowScoringDialog() override;
  void PlaceBoard(ui::Size inner) override;

  // What the board asks of its owner.
  void ClearSurface() override { PlayingSurface.Clear(); }
  void DrawBox(int x, int y, int size, const BoxColor* fill, bool highlighted) override;
  bool DropBoxes() const override { return options_.DropBoxes; }
  void ClearedAColumn() override { AddToScore(options_.ClearAColumn); }
  void ShowPointer(bool overGroup) override { PlayingSurface.Pointer = overGroup ? "POINTER" : ""; }
  void ShowGridSize(const std::string& text) override { lblGridSize.Text = text; }
  bool PlaySounds() const override { return shared.PlaySounds; }
  void PlayWave(const std::string& file) override { Wave(file); }
  void Wait(int milliseconds) override { GameWindow::Wait(milliseconds); }
  void RepaintWindow() override { suite.platform.Repaint(*this); }

  void EndGame();
  void ShowGameControls(bool visible);

 private:
  // Where it differs from the frame.
  bool GameRunning() const override { return GameInProgress; }
  bool StopsWhenMinimized() const override { return false; }
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void Loaded() override { rounds_.TakeInitialSizes(); }
  void PauseBoard() override;
  void ResumeBoard() override;
  void TimeIsUp() override;
  void MouseMove() override;  // the frame's name for Form_MouseMove

  // Rounds.
  void AskToEnd();
  void InitRound();
  void AnnounceRound();
  void InitBoard();
  void AddToScore(std::int32_t points);
  void ShowPointsNeeded();
  void BeginPoints();

  // The end of a round.
  void BoardCompletionBonus();
  void CountTimeBonus();
  void CountSeconds(std::int64_t bonus);
  void ShowBonus(const std::string& title, std::int64_t amount);
  void HideBonus();
  void GameOver();

  // The moves.
  Board::Cell CellAt(int x, int y) const;
  void PlayingSurface_MouseDown(int x, int y);
  void PlayingSurface_MouseMove(int x, int y);
  void LookForMoves();
  void cmdJumble_Click();
  void JumbleBoard();
  void EnableJumble(bool enabled);
  void ShowGroupValue(std::int32_t value);
  void Timer4_Timer();

  // The look.
  void ResizePlaySurface(int spacing);
  int BoxEdge() const;
  void PlaceMessage();
  void PlaceTexts(ui::Size inner, ui::Rect beside);
  void LoadBackground();
  void mnuBackGround_Click();
  void mnuClearBackground_Click();

  // The dialog.
  core::ScoringTable ScoringTableOfDialog();
  void TakeChoices(const core::ScoringDialog& dialog);

  Options options_;
  Rounds rounds_{options_};
  Board board_{*this, suite.chance};
  bool GameInProgress = false;
  std::int16_t LastColumn = -1;
  std::int16_t LastRow = -1;
  std::string image_;          // path of the background picture
  std::string imageInDialog_;  // the file name that the file dialog holds

  ui::Surface PlayingSurface{this, "PlayingSurface"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};
  ui::Label lblTimeScore{this, "lblTimeScore"};
  ui::Label lblScoreForNextRound{this, "lblScoreForNextRound"};
  ui::Label lblGridSize{this, "lblGridSize"};
  ui::Label lblGroupValue{this, "lblGroupValue", "Group Value: 0"};
  ui::Label lblInfo{this, "lblInfo"};
  core::CounterBox Round{this, "Round", "lblRound", "Round:", "lblCurrentRound"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "End current round and take score",
                          &frmMozaro::cmdTakeScore_Click};
  ui::Button cmdJumble{this, "cmdJumble", "&Jumble",
                       "Randomly reassigns colors to the active boxes",
                       &frmMozaro::cmdJumble_Click};
  ui::Timer Timer4{this, "Timer4", 1000, ui::Timer::At::Off, &frmMozaro::Timer4_Timer};
};

}  // namespace games::mozaro
