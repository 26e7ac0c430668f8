// The end of a Quindle round: its bonuses, counted one after the other, and what comes next.
#include "core/text/number.h"
#include "games/quindle/window.h"

namespace games::quindle {
namespace {

constexpr int TitlePause = 1000;
constexpr int StepPause = 75;
constexpr int EmptiedPause = 500;
constexpr int CompletionSteps = 10;
constexpr int RoundFlashes = 10;

}  // namespace

void frmQuindle::TakeScoreOrReplay() {
  if (cmdTakeScore.Text == "&Replay") {
    ReplayGame = true;
    cmdPlay_Click();
  } else if (!shared.ScoringBusy) {
    TakeScore();
    if (GameInProgress) StartMusic();
  }
}

void frmQuindle::TakeScoreFromMenu() {
  if (cmdTakeScore.Text == "&Replay") {
    TakeScoreOrReplay();
  } else if (!shared.ScoringBusy) {
    TakeScore();
  }
}

void frmQuindle::TakeScore() {
  if (shared.ScoringBusy) return;
  shared.ScoringBusy = true;
  Timer1.Enabled = false;
  Hourglass = true;
  StopMusic();
  EnableCommands(false);
  HideSelection();
  const bool cleared = rules_.CheckForCompletion();
  FieldCardPicture.Show(false);
  ShowTotalGroup(false);
  ShowLowerCards(false);
  if (cleared) PayCompletion();
  PayElevens();
  if (cleared && rules_.EnhancedScoring) PayCards();
  PaySeconds();
  ServeAndDrop();
  shared.ScoringBusy = false;
  GoOnAfterRound();
  Hourglass = false;
}

void frmQuindle::PayCompletion() {
  Wave("Wingame.wav");
  std::int64_t rest = values_.CompletionBonus;
  if (rest == 0) return;
  const std::string title = "Completion Bonus! ";
  ShowMessage(title + core::Masked(rest), ui::Red);
  Score.Number.TextColor = ui::Aqua;
  Wait(TitlePause);
  if (shared.CountDownScoring) {
    const std::int64_t tenth = rest / CompletionSteps;
    for (int step = 1; step <= CompletionSteps; ++step) {
      const std::int64_t points = step < CompletionSteps ? tenth : rest;
      rest -= points;
      CountStep(points, title + core::Masked(rest));
    }
    EndCount();
  } else {
    PayAtOnce(rest);
  }
  Wait(TitlePause);
}

void frmQuindle::PayElevens() {
  if (rules_.ElevensCount == 0) return;
  const std::int64_t bonus = rules_.EnhancedScoring ? values_.ElevensBonusES : values_.ElevensBonus;
  const auto title = [&] {
    return core::Digits(rules_.ElevensCount) + " " + SetsName() +
           "! Bonus = " + core::Masked(core::Product(rules_.ElevensCount, bonus));
  };
  ShowMessage(title(), ui::Red);
  Score.Number.TextColor = ui::Aqua;
  Elevens.Number.TextColor = ui::Aqua;
  Wait(TitlePause);
  if (shared.CountDownScoring) {
    while (rules_.ElevensCount > 0) {
      --rules_.ElevensCount;
      Elevens.Number.Text = core::Digits(rules_.ElevensCount);
      CountStep(bonus, title());
    }
    EndCount();
  } else {
    PayAtOnce(core::Product(rules_.ElevensCount, bonus));
    rules_.ElevensCount = 0;
  }
  Wait(TitlePause);
  Elevens.Number.TextColor = ui::Blue;
}

void frmQuindle::PayCards() {
  if (rules_.StockTop < 0) return;
  const std::int64_t bonus = values_.CardBonus;
  const auto title = [&] { return "Card Bonus! " + core::Masked((rules_.StockTop + 1) * bonus); };
  ShowMessage(title(), ui::Red);
  Wait(TitlePause);
  if (shared.CountDownScoring) {
    while (rules_.StockTop >= 0) {
      --rules_.StockTop;
      CountStep(bonus, title());
    }
    EndCount();
  } else {
    PayAtOnce((rules_.StockTop + 1) * bonus);
  }
  Wait(TitlePause);
}

void frmQuindle::PaySeconds() {
  if (shared.SecondsLeft() < 1) return;
  const std::int64_t bonus = shared.TimeBonusPerSecond;
  const auto title = [&] { return "Speed Bonus! " + core::Masked(shared.SecondsLeft() * bonus); };
  ShowMessage(title(), ui::Red);
  Score.Number.TextColor = ui::Aqua;
  Wait(TitlePause);
  if (shared.CountDownScoring) {
    while (shared.SecondsLeft() > 0) {
      Clock.MoveTo(shared.ElapsedSeconds + 1);
      CountStep(bonus, title());
    }
    EndCount();
  } else {
    PayAtOnce(shared.SecondsLeft() * bonus);
    Clock.MoveTo(shared.TimeLimit);
  }
  Wait(TitlePause);
}

void frmQuindle::CountStep(std::int64_t points, const std::string& message) {
  PayAtOnce(points);
  Message.Text = message;
  Wave("Snap.wav");
  Wait(StepPause);
}

void frmQuindle::EndCount() {
  Message.Text = "";
  Wait(EmptiedPause);
}

void frmQuindle::PayAtOnce(std::int64_t points) {
  shared.AddToScore(points);
  WriteScore();
}

void frmQuindle::GoOnAfterRound() {
  if (QuindleRound == 1) {
    ShowMessage("Prepare for Round Two!", Message.TextColor());
    Flash(Message, RoundFlashes);
    StartRound(2);
  } else if (QuindleRound == 2 && shared.CurrentScore >= values_.BonusRoundScore) {
    Wave("HighScore.wav");
    ShowMessage("Bonus Round!", Message.TextColor());
    Flash(Message, RoundFlashes);
    StartRound(3);
    Round.Number.Text = "Bonus";
    ReplayGame = false;
    StartMusic();
  } else {
    FinishTheGame();
  }
}

void frmQuindle::FinishTheGame() {
  ShowCards(false);
  QuindleRound = 1;
  GameInProgress = false;
  shared.GameActive = false;
  shared.LastScore = shared.CurrentScore;
  ShowLowerCards(false);
  StatusBar1(2).Text = "Game Over";
  Total.Number.Text = "0";
  CreateTableIfMissing();
  UpdateTable();
  ShowIdleCommands();
  SetReplayCaption(true);
  Clock.MoveTo(shared.TimeLimit);
  Hourglass = true;
  ReplayGame = false;
  ShowGameOver(2000);
}

}  // namespace games::quindle
