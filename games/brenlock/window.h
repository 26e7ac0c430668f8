// The window of Brenlock.
#pragma once

#include <functional>

#include "games/brenlock/rules.h"
#include "games/columns/column_window.h"

namespace games::brenlock {

class frmBrenlock : public columns::ColumnWindow {
 public:
  frmBrenlock(core::Suite& suite, const core::GameEntry& entry);

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
  void Loaded() override { rules_.SetTimeBonusDecay(shared.TimeLimit); }
  void PauseBoard() override;
  void ResumeBoard() override;
  void ShowSecondsLeft() override;
  void WarnOfTime() override {}
  void TimeIsUp() override;
  void TimeLimitChosen() override { rules_.SetTimeBonusDecay(shared.TimeLimit); }
  void DeckChosen() override { Board.PlayCardPicture.Show("FULL"); }

  // Playing a game.
  void StartGame() override;
  void AskToEndGame() override;
  void SetUpRound();
  void Reset();
  void EndRound();
  void NewRound();
  void GameOver();

  // The moves.
  void Hit(int column) override;
  void Pass() override;
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
  void ShowGraphics(bool visible) override;
  void ShowHitButtons(bool visible);
  void ShowScoringLabel(bool visible);
  void ShowBoard(bool visible);
  void EnableControls();
  void PlaceRoundTotal();
  void MakeTable();

  // Settings and scoring.
  core::SettingsKey CardsToPassKey();
  void SetCardsToPass(double number);
  core::ScoringTable ScoringTableOfDialog() override;
  core::NumberField TimeBonusMaxField();
  core::NumberField TimeBonusMinField();

  Values values_;
  brenlock::Rules rules_;
  bool GameAbandoned = false;
  std::string fault_;

  ui::Button cmdGiveUp{this, "cmdGiveUp", "&Give Up", "", &frmBrenlock::cmdGiveUp_Click};
  ui::Frame frmScore{this, "frmScore", "Card Total Value"};
  struct TableRow {
    std::unique_ptr<ui::Label> total;
    std::unique_ptr<ui::Label> value;
  };
  std::vector<TableRow> table_;  ///< first what is worth nothing, then each sum that scores
  core::CounterBox CardTotal{this, "CardTotal", "lblCurrentRoundScore", "Card Total",
                             "lblCurrentTotal"};
  core::SunkenFrame TimeBonusFrame{this, "TimeBonus"};
  ui::Label lblTimeBonus{this, "lblTimeBonus"};
  ui::Label ScoringLabelRoundTotal{this, "ScoringLabelRoundTotal"};
  ui::Label ScoringLabelInfo{this, "ScoringLabelInfo"};
};

}  // namespace games::brenlock
