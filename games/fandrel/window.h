// The window of Fandrel.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/fandrel/rules.h"
#include "games/fandrel/settings.h"

namespace games::fandrel {

class frmFandrel : public core::GameWindow {
 public:
  frmFandrel(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override { EndRound(Board::NoMove); }
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
  std::vector<ui::Timer*> GameTimers() override { return {&Timer1, &Timer6}; }
  bool InRound() const override { return playing_ && GameWindow::InRound(); }
  void PauseBoard() override;
  void ResumeBoard() override;
  void HideAtExpiry() override;

  // Playing a game.
  void StartGame();
  void AskToEndGame();
  void StartRound();
  void Deal();

  // The moves.
  void imgPlayCard_Click(int i);
  void imgUpperCard_Click(int j);
  void Refuse(int upper);
  void Pay(int upper, Match match);
  void ShowMoved(int lower, int upper);
  bool RoundIsOver(Board board);
  int SelectedSpot() const;

  // The end of a round and of a game.
  void EndRound(Board board);
  void PayBonuses(Board board);
  void Announce(const std::string& title, const std::string& wave);
  void EndGame();

  // What the board shows.
  void ShowLowerSpot(int i);
  void ShowSpotValues();
  void ShowMoveTimer(bool visible);
  void ShowDeck();
  void CenterMessage();
  void RaiseMessage(int top);

  // The pointer over the cards.
  void imgPlayCard_MouseMove(int i);
  void imgUpperCard_MouseMove(int j);
  void ClearPointers();

  void Timer5_Timer();
  void Timer6_Timer();
  void Timer7_Timer();

  fandrel::Rules rules_;
  Values values_;
  bool playing_ = false;  ///< from the deal to the end of the round
  int moveTimer_;         ///< the number on show, which multiplies a move's points

  ui::Timer Timer5{this, "Timer5", 250, ui::Timer::At::Off, &frmFandrel::Timer5_Timer};
  ui::Timer Timer6{this, "Timer6", 270, ui::Timer::At::Off, &frmFandrel::Timer6_Timer};
  ui::Timer Timer7{this, "Timer7", 250, ui::Timer::At::Off, &frmFandrel::Timer7_Timer};
  ui::Array<ui::Picture> imgUpperCard{this,
                                      "imgUpperCard",
                                      1,
                                      UpperSpots,
                                      &frmFandrel::imgUpperCard_Click,
                                      &frmFandrel::imgUpperCard_MouseMove};
  ui::Array<ui::Picture> imgPlayCard{this,
                                     "imgPlayCard",
                                     1,
                                     LowerSpots,
                                     &frmFandrel::imgPlayCard_Click,
                                     &frmFandrel::imgPlayCard_MouseMove};
  ui::Array<ui::Shape> FieldSelectionRectangle{this, "FieldSelectionRectangle", 1, LowerSpots};
  ui::Array<ui::Label> lbl100{this, "lbl100", 1, UpperSpots};
  ui::Picture DeckCards{this, "DeckCards"};
  ui::Label lblCardCount{this, "lblCardCount"};
  ui::Bar ProgressBar1{this, "ProgressBar1", 5, 40};
  ui::Label lblCurrentGameTime{this, "lblCurrentGameTime"};
  ui::Line X1{this, "X1"};
  ui::Line X2{this, "X2"};
  ui::Label lblWild{this, "lblWild", "Wild!"};
  core::CounterBox Round{this,     "Round",           "lblRound",
                         "Round:", "lblCurrentRound", "Displays the Current Round Number"};
  ui::Label lblScoring{this, "lblScoring"};
  core::BonusCounter Bonuses;
};

}  // namespace games::fandrel
