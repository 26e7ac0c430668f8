// The window of Vermoy.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/vermoy/rules.h"
#include "games/vermoy/settings.h"

namespace games::vermoy {

class frmVermoy : public core::GameWindow {
 public:
  frmVermoy(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override { NextRound(); }
  void ShowCards(bool visible) override;
  void ShowControls(bool counters, bool clock) override;
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void ShowScoringDialog() override;
  void PlaceBoard(ui::Size inner) override;

 private:
  // Where it differs from the frame.
  bool StopsWhenMinimized() const override { return false; }
  void PauseBoard() override;
  void ResumeBoard() override;
  void ShowSecondsLeft() override { lblTimeBonus.Text = core::Digits(shared.SecondsLeft()); }
  void WarnOfTime() override {}
  void TimeIsUp() override;
  void DeckChosen() override { ShowStack(); }
  /// A game given up is no matter for the next window's score.
  void Closing() override { shared.SkipHighScoreUpdate = false; }

  // Playing a game.
  void StartGame();
  void AskToEndGame();
  void StartRound();
  void Reset(bool endOfGame);

  // The moves.
  void PlayCards_Click(int cell);
  void CardStackPicture_Click() { Wave("Chord.wav"); }
  void ShowDrawn(Drawn drawn);

  // The end of a round.
  void NextRound();
  void PayRound();
  void AnnounceRound();
  void EndGame();

  // What the board shows.
  void ShowCell(int cell);
  void ShowStack() { CardStackPicture.Show(rules_.StackPicture()); }
  void ShowHands();
  void ShowOverWrites();
  void ShowPointers();
  void ShowBigMessage(bool visible) { Message.Visible = ScoringLabelOutline.Visible = visible; }
  void ShowBonusGoal() { ShowGoal(values_.BonusScore, " for bonus round.  "); }
  void PlaceGrid(ui::Point at, int rowStep);
  void PlaceLeftColumn(ui::Point at, int height);
  core::ScoringTable ScoringTableOfDialog();

  Values values_;
  vermoy::Rules rules_{values_};

  ui::Array<ui::Picture> PlayCards{this, "PlayCards", 0, Cells - 1, &frmVermoy::PlayCards_Click};
  ui::Array<ui::Label> lblRow{this, "lblRow", 1, Side};
  ui::Array<ui::Label> lblCol{this, "lblCol", 1, Side};
  ui::Picture HoleCard{this, "HoleCard"};
  ui::Picture CardStackPicture{this, "CardStackPicture", &frmVermoy::CardStackPicture_Click};
  core::SunkenFrame RoundFrame{this, "Round"};
  ui::Label lblRound{this, "lblRound"};
  ui::Label lblCards{this, "lblCards"};
  ui::Label lblOverWrites{this, "lblOverWrites"};
  ui::Label lblPointsEarned{this, "lblPointsEarned"};
  ui::Label lblTimeBonus{this, "lblTimeBonus"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};
  ui::Label lblMessage{this, "lblMessage", "Round Points X Seconds Remaining"};
  ui::Label lblScoring{this, "lblScoring"};
  core::BonusCounter Bonuses;
};

}  // namespace games::vermoy
