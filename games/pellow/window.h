// The window of Pellow.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/background.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/pellow/rules.h"
#include "games/pellow/settings.h"

namespace games::pellow {

class frmPellow : public core::GameWindow {
 public:
  frmPellow(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override { CloseRound(false); }
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
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void Loaded() override;
  void HideAtExpiry() override;
  void PauseBoard() override {
    HideAtExpiry();
    ShowCardCounters(false);
  }
  void ResumeBoard() override {
    ShowCards(true);
    ShowCardCounters(true);
  }

  // Playing a game.
  void StartGame();
  void GiveUp();
  void InitRound();
  void Deal();

  // The moves.
  void PlayCard_Click(int position);
  void CardStackPicture_Click();
  void EndIfStuck();

  // The end of a round.
  void CloseRound(bool FieldCleared);
  void ShutTable();
  void Pay(const Award& award);
  void GoOnAfterRound();
  void PrepareFor(const std::string& title, const std::string& wave = "");
  void GameOver();

  // What the board shows.
  void ShowBoard();
  void ShowStack();
  void ShowValues();
  void ShowCardCounters(bool visible);
  void PlaceCounters(int middle, int top);

  // The pointer over the cards.
  void PlayCard_MouseMove(int position);
  void ClearMouseIcon();

  // Options.
  core::ScoringTable ScoringTableOfDialog();

  pellow::Rules rules_;
  Scoring scoring_;

  ui::Picture imgBackGround{this, "imgBackGround"};
  core::Background background_{suite, imgBackGround.Image};
  ui::Array<ui::Picture> PlayCard{this,
                                  "PlayCard",
                                  0,
                                  Positions - 1,
                                  &frmPellow::PlayCard_Click,
                                  &frmPellow::PlayCard_MouseMove};
  ui::Array<ui::Shape> FieldSelectionRectangle{this, "FieldSelectionRectangle", 0, Positions - 1};
  ui::Picture CardStackPicture{this, "CardStackPicture", &frmPellow::CardStackPicture_Click};
  ui::Label lblCardCount{this, "lblCardCount", "Cards remaining:"};
  ui::Label lblCards{this, "lblCards"};
  core::CounterBox Round{this, "Round", "lblRound", "Round:", "lblCurrentRound"};
  core::CounterBox Pairs{this, "Pair", "lblPairs", "", "lblScorePairs"};
  core::CounterBox Runs{this, "Run", "lblRuns", "", "lblScoreRuns"};
  ui::Label lblScoring{this, "lblScoring"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "End current round and take score",
                          &frmPellow::cmdTakeScore_Click};
  core::BonusCounter bonuses_{*this, suite, Clock, {Message, lblScoring, Score.Number}};
};

}  // namespace games::pellow
