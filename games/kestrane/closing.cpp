// The end of a Kestrane round: its bonuses, the cards left over, and what comes next.
#include "core/session/bonus_counter.h"
#include "core/text/number.h"
#include "games/kestrane/window.h"

namespace games::kestrane {
namespace {

constexpr int BonusRound = 3;
constexpr int SpeedTitleOffset = 7;  // 100 twips

}  // namespace

void frmKestrane::TakeScore() {
  const int round = deals_;
  ServeEvents();
  // What was just served may have closed this round, or given up the game.
  if (round != deals_ || !shared.GameActive) return;
  if (Paused()) PauseGame();
  shared.ScoringBusy = true;
  EndRound();
  ServeAndDrop();
  shared.ScoringBusy = false;
}

void frmKestrane::EndRound() {
  Hourglass = true;
  ClearPointers(true);
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
  ShowMessage("Deck Completion Bonus!", ui::Blue);
  lblMessage.Text = core::Masked(values_.DeckCompletion) + "!";
  lblMessage.Visible = true;
  AddPoints(values_.DeckCompletion);
  Wave("Applause.wav");
  Wait(2000);
  lblMessage.Visible = false;
  HideMessage();
}

void frmKestrane::RemoveLeftOvers() {
  if (rules_.NextLeftOver() == Spot{}) return;
  ShowMessage("Removing left over cards", ui::Blue);
  lblMessage.Text = lblFlush.Text = "-" + core::Digits(values_.LeftOverCards);
  lblMessage.Visible = true;
  Wait(1000);
  for (Spot spot = rules_.NextLeftOver(); spot != Spot{}; spot = rules_.NextLeftOver()) {
    MarkOf(spot).Visible = true;
    AddPoints(-std::int64_t{values_.LeftOverCards});
    Wave("Click.wav");
    ShowFlushMessage(spot);
    Wait(500);
    MarkOf(spot).Visible = false;
    rules_.TakeOff(spot);
    ShowCard(spot);
  }
  lblFlush.Text = "Flush!";
  lblFlush.Visible = lblMessage.Visible = false;
}

void frmKestrane::PaySeconds() {
  lblMessage.Text = "Speed Bonus!";
  if (shared.SecondsLeft() > 0) {
    core::BonusStyle style;
    style.placeSpeedBonus = [this] {
      lblMessage.MoveTo(Message.Place().x - SpeedTitleOffset, lblMessage.Place().y);
    };
    core::BonusCounter counter(*this, suite, Clock, {lblMessage, Message, Score.Number}, style);
    counter.AwardSpeedBonus(shared.TimeBonusPerSecond);
    lblMessage.Visible = ScoringLabelOutline.Visible = false;
  }
}

void frmKestrane::NextRound() {
  shared.RoundNumber = ++rules_.RoundNumber;
  const bool bonus = rules_.RoundNumber == BonusRound;
  ShowMessage(
      bonus ? "Prepare For Bonus Round" : "Prepare For Round " + core::Digits(rules_.RoundNumber),
      ui::Red);
  Wait(2000);
  InitRound();
  HideMessage();
  Hourglass = false;
  if (!Deal()) GameOver();
}

void frmKestrane::GameOver() {
  Hourglass = false;
  FinishGame();
  ShowTableTop();
  ShowGameOver(1000, ui::Blue);
  ScoringLabelOutline.Visible = false;
}

}  // namespace games::kestrane
