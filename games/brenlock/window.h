// The window of Brenlock.
#pragma once

#include <functional>

#include "core/scoring/scoring_table.h"
#include "core/session/game_window.h"
#include "games/brenlock/rules.h"
#include "games/brenlock/score_table.h"
#include "games/brenlock/settings.h"
#include "games/columns/column_board.h"

namespace games::brenlock {

class frmBrenlock : public core::GameWindow {
 public:
  frmBrenlock(core::Suite& suite, const core::GameEntry& entry);

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
  void Loaded() override;
  void PauseBoard() override;
  void ResumeBoard() override;
  void ShowSecondsLeft() override;
  void WarnOfTime() override {}
  void TimeIsUp() override;
  void TimeLimitChosen() override { rules_.SetTimeBonusDecay(shared.TimeLimit); }
  void DeckChosen() override { Board.PlayCardPicture.Show("FULL"); }

  // Playing a game.
  void StartGame();
  void AskToEndGame();
  void Reset();
  void DealFirstCard();
  void StartRoundClock();
  void EndRound();
  void NewRound();
  void GameOver();
  void EnterScore();

  // The moves.
  void cmdHit_Click(int column);
  void cmdPass_Click();
  void cmdGiveUp_Click();
  void ShowHit(int column, const HitResult& hit, const std::string& card);
  void ShowSum(Outcome outcome);
  void CloseColumn(int column, bool closed = true);
  void CloseCurrentRound() { Board.cmdHit.Enable(false); }
  void lblCurrentTotal_Change();
  void UpdateCardTotalValue();

  // The end of a round.
  void LoseRound();
  void ShowRoundScore();
  void CountRoundScore();

  /// Runs a step; what goes wrong in it stops no other step, and is told by EndOnFault.
  void Step(const std::function<void()>& step);
  void EndOnFault();

  // What the board shows.
  void ShowGraphics(bool visible);
  void ShowHitButtons(bool visible);
  void ShowScoringLabel(bool visible);
  void ShowBoard();
  void EnableControls();
  void EnablePause(bool enabled);
  void WriteTimeBonus();
  void Announce(const std::string& text, ui::Color color);
  void HideAnnouncement();
  void CenterScoringLabel();
  void PlaceRoundTotal();

  // Settings and scoring.
  core::SettingsKey WaitPeriodKey();
  core::SettingsKey CardsToPassKey();
  void SetCardsToPass(double number);
  core::ScoringTable ScoringTableOfDialog();
  core::NumberField TimeBonusMaxField();
  core::NumberField TimeBonusMinField();
  void ApplyScoring(core::ScoringDialog& dialog);

  Values values_;
  brenlock::Rules rules_;
  bool GameAbandoned = false;
  std::string fault_;

  columns::ColumnBoard Board{this,
                             {ColumnCount, ColumnCount, 104, true},
                             &frmBrenlock::cmdHit_Click,
                             &frmBrenlock::cmdPass_Click};
  ui::Button cmdGiveUp{this, "cmdGiveUp", "&Give Up", "", &frmBrenlock::cmdGiveUp_Click};
  ScoreTable Table{this};
  core::CounterBox CardTotal{this, "CardTotal", "lblCurrentRoundScore", "Card Total",
                             "lblCurrentTotal"};
  core::SunkenFrame TimeBonusFrame{this, "TimeBonus"};
  ui::Label lblTimeBonus{this, "lblTimeBonus"};
  core::SunkenFrame RoundFrame{this, "Round"};
  ui::Label lblRound{this, "lblRound", "Round: 1"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};
  ui::Label ScoringLabelRoundTotal{this, "ScoringLabelRoundTotal"};
  ui::Label ScoringLabelInfo{this, "ScoringLabelInfo"};
};

}  // namespace games::brenlock
