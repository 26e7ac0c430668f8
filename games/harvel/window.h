// The window of Harvel.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/game_window.h"
#include "games/columns/column_board.h"
#include "games/harvel/rules.h"
#include "games/harvel/settings.h"

namespace games::harvel {

class frmHarvel : public core::GameWindow {
 public:
  frmHarvel(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override;
  void ShowCards(bool visible) override;
  void ShowControls(bool visible, bool keep) override;
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void ShowScoringDialog() override;
  void PlaceBoard(ui::Size inner) override;

 private:
  // Where it differs from the frame.
  std::vector<ui::Timer*> GameTimers() override;
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void Loaded() override;
  void PauseBoard() override;
  void ResumeBoard() override;
  void HideAtExpiry() override;
  void TimeIsUp() override;
  void DeckChosen() override { ShowDeckPicture(); }

  // Playing a game.
  void StartGame();
  void AskToEndGame();
  void NextRound();
  void StartRound();
  void GameOver();
  void EnterScore();
  void ReturnToTitle();
  void StopRound();

  // The moves.
  void cmdHit_Click(int column);
  void cmdPass_Click();
  void Refuse(int column, std::int32_t points);
  void ShowTwentyOne(int column);
  void AwardFiveCardGimme(int column, std::int32_t points);
  void ShowNextCard();
  void FinishDeck();

  // The 21 Counter.
  void Timer3_Timer();
  void Timer5_Timer();
  void ResetCounter();
  void StopCounter();
  void ShowCounter(bool visible);

  // The end of a round.
  void PayCardsUsed();
  void PayTwentyOnes();
  void ShowBonusSum();
  void Pay(std::int64_t points);

  // What the board shows.
  void ShowGraphics(bool visible);
  void ShowDeckPicture() { Board.PlayCardPicture.Show(rules_.DeckPicture()); }
  void WriteCardsUsed();
  void WriteBonus();
  void WriteRound();
  void EnableControls(bool enabled);
  void EnablePause(bool enabled);
  void ShowOverBoard(const std::string& text);
  void HideBoardMessage();
  /// Shows a message for WaitPeriod.
  void Announce(const std::string& text);

  // Settings and scoring.
  core::SettingsKey WaitPeriodKey();
  core::SettingsKey TimeLimitKey();
  core::SettingsKey TimerSpeedKey();
  void SetTimerSpeed(std::int16_t milliseconds);
  core::ScoringTable ScoringTableOfDialog();

  Values values_;
  harvel::Rules rules_;
  bool GameAbandoned = false;
  bool counterRuns_ = false;  ///< Timer3 is on, or only held up by a pause

  ui::Timer Timer3{this, "Timer3", 90, ui::Timer::At::Off, &frmHarvel::Timer3_Timer};
  ui::Timer Timer5{this, "Timer5", 250, ui::Timer::At::Off, &frmHarvel::Timer5_Timer};

  columns::ColumnBoard Board{this,
                             {ColumnCount, ColumnCount - 1, 84, false},
                             &frmHarvel::cmdHit_Click,
                             &frmHarvel::cmdPass_Click};
  ui::Label lblBust{this, "lblBust", "Bust"};
  ui::Label lblFiveCards{this, "lblFiveCards", "Five Card Gimme"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};

  ui::Frame frameScoreInfo{this, "frameScoreInfo", "Twenty One Scoring Status"};
  ui::Label lblTwentyoneTime{this, "lblTwentyoneTime", "21 Counter:"};
  ui::Bar ProgressBar1{this, "ProgressBar1", 0, harvel::Rules::CounterLimit};
  ui::Label lblTwentyOnes{this, "lblTwentyOnes", "21's earned:"};
  ui::Label lbl21s{this, "lbl21s", "0"};
  ui::Label lbl21Bonus{this, "lbl21Bonus", "Bonus:"};
  ui::Label lblBonus{this, "lblBonus", "0"};
  ui::Label lblRoundScore{this, "lblRoundScore"};
  ui::Label lblRoundScoreCount{this, "lblRoundScoreCount"};

  core::CounterBox CardsUsed{this, "CardsUsed", "lblCardsUsed", "Cards used:", "lblCardsUsedCount"};
  core::SunkenFrame RoundFrame{this, "Round"};
  ui::Label lblRound{this, "lblRound"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "Totals score for current round",
                          &frmHarvel::cmdTakeScore_Click};
};

}  // namespace games::harvel
