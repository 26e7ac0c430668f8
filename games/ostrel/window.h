// The window of Ostrel.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/ostrel/rules.h"
#include "games/ostrel/settings.h"

namespace games::ostrel {

class frmOstrel : public core::GameWindow {
 public:
  frmOstrel(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override;
  void ShowCards(bool visible) override { ShowCards(visible, true); }
  void ShowControls(bool visible, bool keep) override;
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void ShowScoringDialog() override;
  void PlaceBoard(ui::Size inner) override;

 private:
  // Where it differs from the frame.
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void PauseBoard() override { ShowCards(false, false); }
  void ResumeBoard() override;
  void HideAtExpiry() override { ShowCards(false); }
  void DeckChosen() override;

  // Playing a game.
  void StartGame();
  void EndGame();
  void StartRound();
  bool InitRound();
  void Deal();

  // The moves.
  void UpCardImage_Click(int position);
  void UpCardPicture_Click() { Wave("Chord.wav"); }
  void CardStackPicture_Click();

  // The end of a round.
  void ShutTable();
  void SpeedScore();
  void TowerScore();
  void HighRunScore();
  void GoOnAfterRound();
  void PrepareForRound(const std::string& title);
  void GameOver();

  // What the board shows.
  void ShowCards(bool visible, bool setBorders);
  void ShowField();
  void ShowStack();
  void ShowTowerLabels();
  ui::Label& TowerLabel(int tower) {
    return tower == 1 ? lblTower1 : tower == 2 ? lblTower2 : lblTower3;
  }
  void ShowRun();
  void ShowHighRun();
  void PlaceCounters(ui::Size inner);

  // The pointer over the cards.
  void UpCardImage_MouseMove(int position);
  void ClearPointers();

  // Options.
  void mnuClearHighRun_Click();
  core::SettingsKey HighRunKey();
  core::ScoringTable ScoringTableOfDialog();
  void ApplyScoring(bool countDown);

  Scoring scoring_;
  ostrel::Rules rules_{scoring_};

  ui::Picture imgBackGround{this, "imgBackGround"};
  ui::Array<ui::Picture> UpCardImage{this,
                                     "UpCardImage",
                                     0,
                                     FieldSize - 1,
                                     &frmOstrel::UpCardImage_Click,
                                     &frmOstrel::UpCardImage_MouseMove};
  ui::Picture CardStackPicture{this, "CardStackPicture", &frmOstrel::CardStackPicture_Click};
  ui::Picture UpCardPicture{this, "UpCardPicture", &frmOstrel::UpCardPicture_Click};
  ui::Label lblTower1{this, "lblTower1"};
  ui::Label lblTower2{this, "lblTower2"};
  ui::Label lblTower3{this, "lblTower3"};
  ui::Label lblCardCount{this, "lblCardCount", "Cards remaining:"};
  ui::Label lblCards{this, "lblCards"};
  ui::Label lblCurrentRun{this, "lblCurrentRun"};
  ui::Label lblHighRun{this, "lblHighRun"};
  ui::Label lblNextCard{this, "lblNextCard"};
  core::CounterBox Round{this, "Round", "lblRound", "Round:", "lblCurrentRound"};
  ui::Label lblScoring{this, "lblScoring"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "End current round and take score",
                          &frmOstrel::cmdTakeScore_Click};
  core::BonusCounter bonuses_{*this, suite, Clock, {Message, lblScoring, Score.Number}};
};

}  // namespace games::ostrel
