// The end of a Kestrane round: its bonuses, the cards left over, and what comes next.
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

constexpr int DeckPause = 2000;
constexpr int LeftOversPause = 1000;
constexpr int LeftOverPause = 500;
constexpr int NextRoundPause = 2000;
constexpr int GameOverPause = 1000;
constexpr int BonusRound = 3;
constexpr int SpeedTitleOffset = 7;  // 100 twips

}  // namespace

void frmKestrane::TakeScore() {
  const int round = deals_;
  ServePending();
  // What was just served may have closed this round, or given up the game.
  if (round != deals_ || !shared.GameActive) return;
  if (Paused()) PauseGame();
  shared.ScoringBusy = true;
  EndRound();
  ServePending();
  shared.ScoringBusy = false;
}

/// What the player did while a round was being scored has no effect.
void frmKestrane::ServePending() {
  shared.ScoringBusy ? ServeAndDrop() : ServeEvents();
}

void frmKestrane::EndRound() {
  Hourglass = true;
  ClearPointers();
  UpCard(Rules::Front).Pointer = "";
  StopClock();
  StopMusic();
  ShowControls(false, true);
  if (rules_.DeckUsedUp()) {
    PayDeckCompletion();
    RemoveLeftOvers();
  }
  ShowCards(false);
  PaySeconds();
  rules_.EarnsNextRound(shared.CurrentScore, values_.BonusScore) ? NextRound() : GameOver();
}

void frmKestrane::PayDeckCompletion() {
  ShowDeck(false);
  ShowBigMessage("Deck Completion Bonus!", ui::Blue);
  lblMessage.Text = core::Masked(values_.DeckCompletion) + "!";
  lblMessage.Visible = true;
  AddPoints(values_.DeckCompletion);
  Wave("Applause.wav");
  Wait(DeckPause);
  lblMessage.Visible = false;
  HideBigMessage();
}

void frmKestrane::RemoveLeftOvers() {
  if (rules_.NextLeftOver() == Spot{}) return;
  ShowBigMessage("Removing left over cards", ui::Blue);
  lblMessage.Text = lblFlush.Text = "-" + core::Digits(values_.LeftOverCards);
  lblMessage.Visible = true;
  Wait(LeftOversPause);
  for (Spot spot = rules_.NextLeftOver(); spot != Spot{}; spot = rules_.NextLeftOver()) {
    RemoveLeftOver(spot);
  }
  lblFlush.Text = "Flush!";
  lblFlush.Visible = false;
  lblMessage.Visible = false;
}

void frmKestrane::RemoveLeftOver(Spot spot) {
  MarkOf(spot).Visible = true;
  AddPoints(-std::int64_t{values_.LeftOverCards});
  ShowFlushOver(PictureOf(spot));
  Wave("Click.wav");
  suite.platform.Repaint(*this);
  Wait(LeftOverPause);
  MarkOf(spot).Visible = false;
  rules_.TakeOff(spot);
  ShowCard(spot);
}

void frmKestrane::PaySeconds() {
  lblMessage.Text = "Speed Bonus!";
  if (shared.SecondsLeft() > 0) {
    core::BonusStyle style;
    style.placeSpeedBonus = [this] {
      CenterScoringLabel();
      lblMessage.MoveTo(Message.Place().x - SpeedTitleOffset, lblMessage.Place().y);
    };
    core::BonusCounter counter(*this, suite, Clock, {lblMessage, Message, Score.Number}, style);
    counter.AwardSpeedBonus(shared.TimeBonusPerSecond);
  }
  lblMessage.Visible = false;
  ScoringLabelOutline.Visible = false;
}

void frmKestrane::NextRound() {
  rules_.NextRound();
  const int round = shared.RoundNumber = rules_.RoundNumber();
  ShowBigMessage(
      round == BonusRound ? "Prepare For Bonus Round" : "Prepare For Round " + core::Digits(round),
      ui::Red);
  Wait(NextRoundPause);
  InitRound();
  HideBigMessage();
  Hourglass = false;
  MakeDeck() ? StartRound() : GameOver();
}

void frmKestrane::GameOver() {
  Hourglass = false;
  FinishGame();
  ShowTableTop();
  ShowBigMessage("Game Over", ui::Blue);
  Wait(GameOverPause);
  ShowTitle(true);
  Message.Visible = false;
  ScoringLabelOutline.Visible = false;
}

}  // namespace games::kestrane
