// The window of Glimmard.
#pragma once

#include "core/scoring/scoring_table.h"
#include "core/session/bonus_counter.h"
#include "core/session/game_window.h"
#include "games/glimmard/phrases.h"
#include "games/glimmard/rules.h"
#include "games/glimmard/settings.h"

namespace games::glimmard {

class frmPhrase : public core::GameWindow {
 public:
  frmPhrase(core::Suite& suite, const core::GameEntry& entry);

  // What the frame asks of a game.
  void Play() override;
  void TakeScore() override;
  void ShowCards(bool) override {}
  void ShowControls(bool visible, bool score) override;
  std::vector<core::SettingsKey> Settings() override;
  void SetDefaults() override;
  std::vector<core::ScoringValue> ScoringValues() const override;
  core::RulesText Rules() const override;
  void ShowScoringDialog() override;
  void PlaceBoard(ui::Size inner) override;

 private:
  // Where it differs from the frame. Solve It stands where other games have Take Score.
  std::vector<ui::Timer*> GameTimers() override;
  bool InRound() const override;
  ui::Button* TakeScoreButton() override { return &cmdSolve; }
  void PauseBoard() override;
  void ResumeBoard() override;
  void TimeIsUp() override;
  void Closing() override;
  void KeyTyped(char32_t letter) override;

  // Playing a game.
  void StartGame();
  void AskToEndGame();
  void InitRound();
  void SetUpRound();
  void OpenRound();
  void OpenBonusPicks();
  PhraseLayout DrawPhrase();
  void Tell(const DrawnPhrase& drawn);
  void DrawLetterValue();

  // The moves.
  void cmdLetter_Click(int index);
  bool PickLetter(int index);
  void PickForBonus(int index);
  void PlayBonusPicks();
  void cmdSolve_Click();
  void Timer5_Timer();

  // The end of a round.
  void ShowEndOfRound(RoundEnd end);
  void LoseRound();
  void Reveal();
  void EndRoundNow();
  void PayBonuses();
  void PayGuesses();
  void PrepareFor(const std::string& message);
  void StartRoundTwo();
  void StartBonusRound();
  void GameOver();

  // What the board shows.
  void ShowControls(bool visible, bool score, bool info, bool keep);
  void ShowCell(int cell);
  void MarkSolved();
  void ShowGuess(int index, const char* key);
  void ShowGuesses();
  void EnableLetter(int index, bool enabled);
  void EnableLetters(bool enabled);
  void EnableVowels(bool enabled);
  void EnableSolve(bool enabled);
  void lblMessage_Change();

  // Options.
  std::vector<core::MenuRow> TopicRows();
  void ChooseTopic(std::int16_t topic);
  void ShowTopicMark();
  core::SettingsKey TopicKey();
  core::ScoringTable ScoringTableOfDialog();

  glimmard::Rules rules_;
  Values values_;
  std::int16_t PhraseTopic = RandomTopic;
  PhraseFiles& phrases_;
  bool drawingPhrase_ = false;  ///< a message about the phrase files may stand
  int faultyPicture_ = 0;       ///< which of the two pictures a lost guess shows

  ui::Timer Timer5{this, "Timer5", 90, ui::Timer::At::Off, &frmPhrase::Timer5_Timer};
  ui::Frame fmPhrase{this, "fmPhrase", "Current Phrase"};
  ui::Array<ui::Shape> LetterTile{this, "LetterTile", 0, BoardCells - 1};
  ui::Array<ui::Label> lblLetter{this, "lblLetter", 0, BoardCells - 1};
  ui::Frame frmGuess{this, "frmGuess", "Guesses Remaining"};
  ui::Array<ui::Picture> Guess{this, "Guess", 0, MostGuesses - 1};
  ui::Label lblLetterValue{this, "lblLetterValue", "Next Letter is worth:"};
  ui::Field txtLetterValue{this, "txtLetterValue"};
  ui::Bar ProgressBar1{this, "ProgressBar1", 0, 100};
  ui::Array<ui::Button> cmdLetter{this, "cmdLetter", 0, LetterCount - 1,
                                  &frmPhrase::cmdLetter_Click};
  ui::Button DummyCommand{this, "DummyCommand"};
  core::CounterBox Round{this, "Round", "lblRound", "Round:", "lblCurrentRound"};
  ui::Label lblScoring{this, "lblScoring"};
  ui::Button cmdSolve{this, "cmdSolve", "Solve &It!", "Solve  the current puzzle",
                      &frmPhrase::cmdSolve_Click};
  core::BonusCounter Bonus{*this, suite, Clock, {Message, lblScoring, Score.Number}};
};

}  // namespace games::glimmard
