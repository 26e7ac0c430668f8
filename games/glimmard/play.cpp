// Playing Glimmard: starting and ending a game, setting up a round, and drawing its phrase.
#include <exception>

#include "core/text/number.h"
#include "games/glimmard/window.h"

namespace games::glimmard {
namespace {

/// So many failures to get a phrase are told; then one is played that needs no file.
constexpr int MostTroubles = 3;
/// How often phrases that don't fit are passed over: a few times through all the lists.
constexpr std::size_t LeastTries = 100;
constexpr std::size_t TriesForEach = 3;

}  // namespace

void frmPhrase::Play() {
  if (shared.GameActive) {
    AskToEndGame();
    return;
  }
  try {
    StartGame();
  } catch (const std::exception& error) {
    suite.Tell(ui::Sign::Critical, error.what());
    suite.platform.Quit();
  }
}

void frmPhrase::StartGame() {
  BeginGame();
  rules_.RoundsSolved = 0;
  shared.GameActive = true;
  InitRound();
}

/// The game goes on behind the question, and may be over when it is answered.
void frmPhrase::AskToEndGame() {
  const bool yes = Ask("You have a game in progress, are you sure you want to quit?");
  if (!yes || !shared.GameActive) return;
  StatusBar1(1).Text = "Welcome to " + shared.GameTitle;
  shared.GameActive = false;
  rules_.BonusPicking = rules_.SolveMode = false;
  ShowIdleCommands();
  Message.Visible = false;
  ShowControls(false, true);
  Timer1.Enabled = Timer5.Enabled = false;
  ShowTitle(true);
  StopMusic();
}

// --- a round ------------------------------------------------------------------------------------

void frmPhrase::InitRound() {
  try {
    SetUpRound();
    rules_.TakePhrase(DrawPhrase());
    DrawLetterValue();
    OpenRound();
  } catch (const std::exception& error) {
    drawingPhrase_ = false;
    suite.TellPlainly(error.what());
  }
  shared.ScoringBusy = false;
}

void frmPhrase::SetUpRound() {
  rules_.StartRound(values_.GuessCount);
  lblLetterValue.Text = "Next Letter is worth:";
  Clock.InitTimerFace();
  lblLetter.ForEach([this](int n, ui::Label& label) {
    label.Text = "";
    label.TextColor = ui::Blue;
    label.Visible = LetterTile(n).Visible = false;
  });
  shared.ElapsedSeconds = 0;
  shared.TimerFaceTick = 0;
  if (rules_.BonusPicking) {
    Message.Text = "Select 5 consonants and 1 vowel";
    Message.Visible = true;
    cmdSolve.Enabled = false;
    StatusBar1(1).Text = "Bonus Round!   ";
  } else {
    ShowGuesses();
    ShowGoal(values_.BonusScore, " for Bonus Round!   ");
  }
  StatusBar1(2).Text = "Discover the phrase by selecting available letters  ";
}

void frmPhrase::OpenRound() {
  for (int cell = 0; cell < BoardCells; ++cell) ShowCell(cell);
  ShowRunningCommands();
  EnableRoundCommands(true);
  Clock.WriteTime();
  Round.Number.Text = core::Digits(shared.RoundNumber);
  if (rules_.BonusPicking) {
    OpenBonusPicks();
    return;
  }
  Message.Visible = false;
  ShowControls(true, true);
  EnableVowels(false);
  ProgressBar1.Value = 0;
  Timer1.Enabled = Timer5.Enabled = !StandsStill();
  StartMusic();
}

/// The round clock stands still until the picks are made.
void frmPhrase::OpenBonusPicks() {
  EnableSolve(false);
  ShowControls(true, true, false, false);
}

void frmPhrase::DrawLetterValue() {
  rules_.DrawLetterValue(suite.chance);
  txtLetterValue.Text = core::Digits(rules_.LetterValue);
}

// --- its phrase ---------------------------------------------------------------------------------

PhraseLayout frmPhrase::DrawPhrase() {
  drawingPhrase_ = true;
  PhraseLayout layout;
  int troubles = 0;
  for (std::size_t tries = 0; !layout.fits && troubles < MostTroubles; ++tries) {
    if (tries > LeastTries + TriesForEach * phrases_.Positions()) break;
    const DrawnPhrase drawn = phrases_.GetPhrase(PhraseTopic, shared.AppPath, suite.chance);
    fmPhrase.Text = TopicOf(drawn.topic).caption;
    if (drawn.trouble != Trouble::None) ++troubles;
    Tell(drawn);
    layout = LayoutPhrase(drawn.phrase);
  }
  drawingPhrase_ = false;
  return layout.fits ? layout : LayoutPhrase(MissingFilePhrase);
}

void frmPhrase::Tell(const DrawnPhrase& drawn) {
  switch (drawn.trouble) {
    case Trouble::None:
      break;
    case Trouble::Missing:
      suite.Tell(ui::Sign::Critical,
                 "The file containing the phrases used by the game was not found.\r\n"
                 "A temporary file with a single phrase hase been created. Please reinstall the "
                 "Pastimo to recover from this error.");
      break;
    case Trouble::NotShuffled:
      suite.Tell(ui::Sign::Critical, "Unable to shuffle the array.");
      break;
    case Trouble::Other:
      suite.TellPlainly(drawn.error);
      break;
  }
}

void frmPhrase::Closing() {
  for (const std::string& error : phrases_.WritePhraseFiles(shared.AppPath)) {
    suite.TellPlainly(error);
  }
}

}  // namespace games::glimmard
