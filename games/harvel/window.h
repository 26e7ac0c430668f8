// The window of Harvel.
#pragma once

#include "core/text/number.h"
#include "games/columns/column_window.h"
#include "games/harvel/rules.h"

namespace games::harvel {

class frmHarvel : public columns::ColumnWindow {
 public:
  frmHarvel(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void TakeScore() override;
  void ShowCards(bool visible) override;
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void PlaceBoard(ui::Size inner) override;

 private:
  // Where it differs from the frame.
  std::vector<ui::Timer*> GameTimers() override;
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void PauseBoard() override;
  void ResumeBoard() override;
  void HideAtExpiry() override;
  void TimeIsUp() override;
  void DeckChosen() override { ShowDeckPicture(); }

  // Playing a game.
  void StartGame() override;
  void AskToEndGame() override;
  void NextRound();
  void StartRound();
  void ReturnToTitle();
  void StopTimers();

  // The moves.
  void Hit(int column) override;
  void Pass() override;
  void Refuse(int column, std::int32_t points);
  void ShowTwentyOne(int column);
  void AwardFiveCardGimme(int column, std::int32_t points);
  void ShowNextCard();
  void FinishDeck();

  // The 21 Counter.
  void Timer3_Timer();
  void Timer5_Timer();
  void ResetCounter();
  void ShowCounter(bool visible) { Show(visible, {&ProgressBar1, &lblTwentyoneTime}); }

  // The end of a round.
  void PayCardsUsed();
  void PayTwentyOnes();
  void CountUp(int steps, std::int32_t points, ui::Label& count, std::int32_t less);

  // What the board shows.
  void ShowGraphics(bool visible) override;
  void ShowDeckPicture() { Board.PlayCardPicture.Show(rules_.DeckPicture()); }
  void WriteCardsUsed() { CardsUsed.Number.Text = core::Digits(rules_.CardsUsed()); }
  void WriteBonus();
  void EnableControls(bool enabled);

  // Settings and scoring.
  core::SettingsKey TimeLimitKey();
  core::SettingsKey TimerSpeedKey();
  void SetTimerSpeed(std::int16_t milliseconds);
  core::OptionField SpeedOptions();
  core::ScoringTable ScoringTableOfDialog() override;

  Values values_;
  harvel::Rules rules_;
  bool GameAbandoned = false;
  bool counterRuns_ = false;  ///< Timer3 is on, or only held up by a pause

  ui::Timer Timer3{this, "Timer3", 90, ui::Timer::At::Off, &frmHarvel::Timer3_Timer};
  ui::Timer Timer5{this, "Timer5", 250, ui::Timer::At::Off, &frmHarvel::Timer5_Timer};
  ui::Label lblBust{this, "lblBust", "Bust"};
  ui::Label lblFiveCards{this, "lblFiveCards", "Five Card Gimme"};
  ui::Frame frameScoreInfo{this, "frameScoreInfo", "Twenty One Scoring Status"};
  ui::Label lblTwentyoneTime{this, "lblTwentyoneTime", "21 Counter:"};
  ui::Bar ProgressBar1{this, "ProgressBar1", 0, CounterLimit};
  ui::Label lblTwentyOnes{this, "lblTwentyOnes", "21's earned:"};
  ui::Label lbl21s{this, "lbl21s", "0"};
  ui::Label lbl21Bonus{this, "lbl21Bonus", "Bonus:"};
  ui::Label lblBonus{this, "lblBonus", "0"};
  ui::Label lblRoundScore{this, "lblRoundScore"};
  ui::Label lblRoundScoreCount{this, "lblRoundScoreCount"};
  core::CounterBox CardsUsed{this, "CardsUsed", "lblCardsUsed", "Cards used:", "lblCardsUsedCount"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "Totals score for current round",
                          &frmHarvel::cmdTakeScore_Click};
};

}  // namespace games::harvel
