// The end of a Mozaro round: its bonuses, and then the next round or the end of the game.
#include "core/text/number.h"
#include "games/mozaro/window.h"

namespace games::mozaro {
namespace {

constexpr int BonusPause = 2000;  // milliseconds
constexpr int StepPause = 75;
constexpr int GameOverPause = 3000;

}  // namespace

// ScoringBusy stays set: the launcher's tick clears it when this and the next round's announcement
// are over, and what the player did meanwhile has been served without effect.
void frmMozaro::TakeScore() {
  if (shared.ScoringBusy || !GameInProgress) return;
  shared.ScoringBusy = true;
  Hourglass = true;
  Timer1.Enabled = false;
  StopMusic();
  lblGridSize.Visible = lblGroupValue.Visible = false;
  ShowCards(false);
  ScoringLabelOutline.Visible = true;
  if (board_.PercentComplete == 100.0F) BoardCompletionBonus();
  if (shared.SecondsLeft() > 0) {
    CountTimeBonus();
    Message.Visible = false;
  }
  if (rounds_.Passed()) {
    StartMusic();
    InitRound();
  } else {
    GameOver();
  }
  BeginPoints();
  Hourglass = false;
}

void frmMozaro::ShowBonus(const std::string& title, std::int64_t amount) {
  Message.Text = title;
  Message.Visible = true;
  lblTimeScore.Text = core::Masked(amount);
  lblTimeScore.TextColor = ui::Red;
  lblTimeScore.Visible = true;
  PlaceMessage();
  Wait(BonusPause);
}

void frmMozaro::HideBonus() {
  lblTimeScore.Visible = false;
  PlaceMessage();
  Score.Number.TextColor = ui::Blue;
}

void frmMozaro::BoardCompletionBonus() {
  Wave("Applause.wav");
  ShowBonus("Board Completion Bonus!", options_.ClearBoard);
  AddToScore(options_.ClearBoard);
  HideBonus();
}

void frmMozaro::CountTimeBonus() {
  const std::int64_t bonus = core::Product(shared.SecondsLeft(), shared.TimeBonusPerSecond);
  Score.Number.TextColor = ui::Aqua;
  ShowBonus("Time Bonus:", bonus);
  if (shared.CountDownScoring) {
    CountSeconds(bonus);
  } else {
    Wave("Snap.wav");
    AddToScore(core::ClampTo<std::int32_t>(bonus));
  }
  HideBonus();
}

void frmMozaro::CountSeconds(std::int64_t bonus) {
  while (shared.SecondsLeft() > 0) {
    Clock.MoveTo(shared.ElapsedSeconds + 1);
    AddToScore(shared.TimeBonusPerSecond);
    bonus -= shared.TimeBonusPerSecond;
    lblTimeScore.Text = core::Masked(bonus);
    lblTimeScore.TextColor = ui::Black;
    Wave("Snap.wav");
    Wait(StepPause);
  }
}

void frmMozaro::GameOver() {
  StopMusic();
  Message.Text = "Game Over";
  Message.Visible = true;
  UpdateTable();
  Hourglass = true;
  Wait(GameOverPause);
  lblTimeScore.Visible = Message.Visible = false;
  EndGame();
}

}  // namespace games::mozaro
