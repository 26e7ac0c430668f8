// The window of Quindle.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/game_window.h"
#include "games/quindle/rules.h"
#include "games/quindle/saved_game.h"
#include "games/quindle/settings.h"

namespace games::quindle {

inline constexpr int SelectionColors = 6;

class frmQuindle : public core::GameWindow {
 public:
  frmQuindle(core::Suite& suite, const core::GameEntry& entry);

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
  std::string TableName() const override;
  std::string TableInfo() const override;

 private:
  // Where it differs from the frame.
  bool GameRunning() const override { return GameInProgress; }
  ui::Button* TakeScoreButton() override { return &cmdTakeScore; }
  void Loaded() override;
  void Activate() override;
  void PauseBoard() override;
  void ResumeBoard() override;
  void HideAtExpiry() override;
  void TimeIsUp() override;
  void PlayMenu_Click() override;
  void DeckChosen() override { RefreshPlayCard(); }
  void RedrawPausedCards() override { TurnFieldCards(false); }
  void AtDefaultScoring() override {}

  // Playing a game.
  void PlayOrEnd(const std::string& question);
  void StartGame();
  bool MakeFirstDeck();
  bool Deal(bool newGame);
  void StartRoundClock();
  void ChooseRoundDeck(int round);
  void StartRound(int round);
  void EndGame();
  void FinishTheGame();

  // The moves.
  void FieldCardPicture_Click(int i);
  void UpCardPicture_Click();
  void PlayCardPicture_Click();
  void CheckTotal();
  void TakeSetOff(const SetMade& set);
  void DrawCard(bool withSound);
  bool BoardIsShut();
  void ShowChoice(Choice choice, ui::Shape& mark);

  // The end of a round.
  void TakeScoreOrReplay();
  void TakeScoreFromMenu();
  void PayCompletion();
  void PayElevens();
  void PayCards();
  void PaySeconds();
  void CountStep(std::int64_t points, const std::string& message);
  void EndCount();
  void PayAtOnce(std::int64_t points);
  void GoOnAfterRound();

  // What the board shows.
  void ShowFieldCard(int slot);
  void ShowUpCard();
  void ShowLowerCards(bool visible);
  void ShowTotalGroup(bool visible);
  void HideSelection();
  void TurnFieldCards(bool faceUp);
  void RefreshPlayCard();
  void WriteCounters();
  void SetCardValues(bool enhanced);
  void ShowUpCardWorth();
  void ShowModeInCaption();
  void SetReplayCaption(bool replay);
  std::string SetsName() const;  ///< the caption of lblElevens without its colon

  // Options.
  void ChooseGoal(std::int16_t goal);
  void ShowGoalMark();
  void SelectionColor(int index);
  void mnuDrawTimer_Click();
  std::vector<core::MenuRow> GoalRows();
  std::vector<core::MenuRow> ColorRows();
  core::SettingsKey ColorKey();
  core::SettingsKey GoalKey();
  core::ScoringTable ScoringTableOfDialog();
  std::int32_t& ElevensBonusInForce();
  void ApplyScoring();

  // Saved games.
  SavedGame GameToSave() const;
  void mnuSave_Click();
  void mnuOpen_Click();
  bool OpenSavedGame(const std::string& path);
  void TakeTimeLimitOf(const SavedGame& game);

  // The pointer over the cards.
  void FieldCardPicture_MouseMove(int i);
  void UpCardPicture_MouseMove() { PointAt(UpCardPicture); }
  void PlayCardPicture_MouseMove() { PointAt(PlayCardPicture); }
  void PointAt(ui::Picture& place);

  // Texts that place themselves.
  void lblCurrentScore_Change();
  void lblMessage_Change();

  quindle::Rules rules_;
  Values values_;
  std::array<RoundDeck, RoundDecks> RoundDeck_;
  std::int16_t QuindleRound = 1;
  bool GameInProgress = false;
  bool ReplayGame = false;
  bool activated_ = false;
  int SelectionColorIndex = 1;

  ui::Array<ui::Picture> FieldCardPicture{this,
                                          "FieldCardPicture",
                                          0,
                                          FieldSlots - 1,
                                          &frmQuindle::FieldCardPicture_Click,
                                          &frmQuindle::FieldCardPicture_MouseMove};
  ui::Array<ui::Shape> FieldSelectionRectangle{this, "FieldSelectionRectangle", 0, FieldSlots - 1};
  ui::Picture PlayCardPicture{this, "PlayCardPicture", &frmQuindle::PlayCardPicture_Click};
  ui::Picture UpCardPicture{this, "UpCardPicture", &frmQuindle::UpCardPicture_Click};
  ui::Shape UpCardSelectionRectangle{this, "UpCardSelectionRectangle"};
  ui::Label lblCardCount{this, "lblCardCount"};
  core::CounterBox Total{this,         "CardTotal",       "lblTotal",
                         "Card Total", "lblCurrentTotal", "Total of currently selected cards"};
  core::CounterBox Elevens{this, "Elevens", "lblElevens", "Elevens:", "lblCurrentElevens"};
  core::CounterBox Round{this, "Round", "lblRound", "Round:", "lblCurrentRound"};
  ui::Button cmdTakeScore{this, "cmdTakeScore", "&Take Score", "End current round and take score",
                          &frmQuindle::TakeScoreOrReplay};
};

}  // namespace games::quindle
