// The window of Kestrane.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/kestrane/rules.h"
#include "games/kestrane/settings.h"

namespace games::kestrane {

class frmKestrane : public core::GameWindow {
 public:
  frmKestrane(core::Suite& suite, const core::GameEntry& entry);

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
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void Loaded() override { lblHighScore.Visible = true; }
  void PauseBoard() override;
  void ResumeBoard() override;
  void HideAtExpiry() override;

  // A game and its rounds.
  void StartGame();
  void GiveUp();
  void InitRound();
  void Deal();

  // The moves.
  void UpCard_Click(int i) { ClickOn({Area::UpCards, i}); }
  void TempCard_Click(int i) { ClickOn({Area::Storage, i}); }
  void PlayCard_Click(int i) { ClickOn({Area::Field, i}); }
  void CardStackPicture_Click() { Wave("Chord.wav"); }
  void ClickOn(Spot spot);
  void CheckColumn(int column);
  void NoMovesLeft();

  // The end of a round.
  void EndRound();
  void PayDeckCompletion();
  void RemoveLeftOvers();
  void PaySeconds();
  void NextRound();
  void GameOver();

  // What the board shows.
  void PlaceCards(int middle, int storageTop, int fieldTop, int deckTop);
  ui::Picture& PictureOf(Spot spot);
  ui::Shape& MarkOf(Spot spot);
  void ShowField();
  void UpDateDeck();
  void ShowDeck(bool visible);
  void ShowSelection(bool visible);
  void WriteCounts();
  void CenterScoringLabel() { ScoringLabelOutline.Visible = !Message.Text().empty(); }
  void ShowFlushMessage(Spot spot);
  void PointAt(Spot spot);
  void ClearPointers(bool frontToo);

  // The scoring dialog.
  std::vector<core::DialogItem> DialogItems();
  core::NumberField PenaltyField();
  core::NumberField TimeBonusField();

  kestrane::Rules rules_{suite.deck};
  Values values_;
  int deals_ = 0;  ///< tells one round from the next

  ui::Shape FieldRect{this, "FieldRect"};
  ui::Array<ui::Picture> PlayCard{this, "PlayCard", 0, Slots - 1, &frmKestrane::PlayCard_Click};
  ui::Array<ui::Shape> PlayCardSelection{this, "PlayCardSelection", 0, Slots - 1};
  ui::Array<ui::Picture> TempCard{this, "TempCard", 0, 2, &frmKestrane::TempCard_Click};
  ui::Array<ui::Shape> TempCardSelection{this, "TempCardSelection", 0, 2};
  ui::Array<ui::Picture> UpCard{this, "UpCard", 0, Front, &frmKestrane::UpCard_Click};
  ui::Shape UpCardSelection{this, "UpCardSelection"};
  ui::Picture CardStackPicture{this, "CardStackPicture", &frmKestrane::CardStackPicture_Click};
  ui::Label lblFieldCards{this, "lblFieldCards", "   Playing Field   "};
  ui::Label lblTemp{this, "lblTemp", "Temporary Storage"};
  ui::Label lblCardCount{this, "lblCardCount"};
  ui::Label lblRound{this, "lblRound"};
  ui::Label lblTimeBonus{this, "lblTimeBonus"};
  core::CounterBox Trips{this, "Trips", "lblTrips", "", "lblScoreTrips"};
  core::CounterBox Runs{this, "Run", "lblRuns", "", "lblScoreRuns"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};
  ui::Label lblMessage{this, "lblMessage"};
  ui::Label lblFlush{this, "lblFlush", "Flush!"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "Ends the round and awards points",
                          &frmKestrane::cmdTakeScore_Click};
  core::BonusCounter bonuses_{*this, suite, Clock, {lblMessage, Message, Score.Number}};
};

}  // namespace games::kestrane
