// Playing Quindle: starting and ending a game, dealing a round, and the three moves.
#include "core/text/number.h"
#include "games/quindle/window.h"

namespace games::quindle {

void frmQuindle::Play() {
  PlayOrEnd("You have a game in progress, are you sure you want to quit now?");
}

void frmQuindle::PlayMenu_Click() {
  if (shared.ScoringBusy) return;
  const bool idle = cmdPlay.Text == "&Play";
  if (!idle && !GameInProgress) {
    ShowMessage("Select your options and play again!", ui::Red);
    Wait(2000);
    HideMessage();
  }
  PlayOrEnd("You have a game in progress, are you sure you want to restart now?");
}

void frmQuindle::PlayOrEnd(const std::string& question) {
  ShowTitle(false);
  Menus.Named("mnuSave")->Enabled = false;
  if (cmdPlay.Text == "&Play") {
    ShowCaptionOfPlay(true);
    StartGame();
    StartMusic();
    return;
  }
  cmdPlay.Tip = "Starts a new game";
  bool ended = false;
  if (GameInProgress) {
    cmdPause_Click();
    ended = Ask(question);
    if (ended) GameInProgress = false;
    cmdPause_Click();
  }
  if (!ended) return;
  ShowCaptionOfPlay(false);
  EndGame();
}

void frmQuindle::StartGame() {
  const std::int32_t lastScore = shared.CurrentScore;
  BeginGame();
  shared.LastScore = lastScore;
  if (!MakeFirstDeck() || !Deal(true)) {
    suite.platform.MessageBox(ui::Sign::Critical, ui::Buttons::OkCancel, shared.GameTitle,
                              "Unknown Error! Unable to play " + shared.GameTitle);
    GameInProgress = false;
    Unload();
    throw ui::WindowGone{};
  }
  GameInProgress = true;
  shared.GameActive = true;
  SetReplayCaption(false);
  ShowRunningCommands();
  ShowControls(true, false);
  ShowScoreGroup(true);
}

bool frmQuindle::MakeFirstDeck() {
  if (ReplayGame) {
    suite.deck.Assign(RoundDeck_[0]);
    return true;
  }
  if (!rules_.CreateQuindleDeck(suite.deck)) {
    suite.TellPlainly("Unable to create the deck.");
    return false;
  }
  if (!suite.ShuffleDeck()) return false;
  for (RoundDeck& deck : RoundDeck_) {
    deck.assign(static_cast<std::size_t>(suite.deck.UpperBound()), "");
  }
  return true;
}

bool frmQuindle::Deal(bool newGame) {
  rules_.Deal(suite.deck);
  shared.ElapsedSeconds = 0;
  shared.TimerFaceTick = 0;
  if (newGame) QuindleRound = 1;
  RoundDeck_[static_cast<std::size_t>(QuindleRound - 1)] = suite.deck.Keys();
  HideSelection();
  for (int slot = 0; slot < FieldSlots; ++slot) ShowFieldCard(slot);
  ShowUpCard();
  PlayCardPicture.Show("FULL");
  lblCardCount.Text = "Cards: " + core::Digits(rules_.StockSize());
  SetCardValues(rules_.EnhancedScoring);
  ShowLowerCards(true);
  ShowTotalGroup(true);
  WriteCounters();
  Round.Number.Text = core::Digits(QuindleRound);
  StartRoundClock();
  ShowGoal(values_.BonusRoundScore, " for Bonus Round!   ");
  StatusBar1(2).Text = "Click on exposed cards to total " + core::Digits(rules_.CardGoal) + "!   ";
  return true;
}

/// In enhanced scoring the clock waits for the first set of the round.
void frmQuindle::StartRoundClock() {
  Clock.InitTimerFace();
  Clock.WriteTime();
  Timer1.Enabled = false;
  Timer1.Enabled = !rules_.EnhancedScoring && !StandsStill();
}

void frmQuindle::ChooseRoundDeck(int round) {
  const RoundDeck& stored = RoundDeck_[static_cast<std::size_t>(round - 1)];
  if (ReplayGame && !stored.empty() && !stored.front().empty()) {
    suite.deck.Assign(stored);
  } else {
    suite.ShuffleDeck();
  }
}

void frmQuindle::StartRound(int round) {
  ServeAndDrop();
  QuindleRound = static_cast<std::int16_t>(round);
  ChooseRoundDeck(round);
  Deal(false);
  HideMessage();
  EnableCommands(true);
  ShowControls(true, false);
}

void frmQuindle::EndGame() {
  GameInProgress = false;
  shared.GameActive = false;
  ReplayGame = false;
  ShowCards(false);
  ShowControls(false, false);
  lblHighScore.Visible = false;
  Timer1.Enabled = false;
  Timer2.Enabled = false;
  shared.ElapsedSeconds = 0;
  Clock.lblTime.Text = "Time:";
  Clock.Surface.Clear();
  rules_.DropSelection();
  shared.LastScore = shared.CurrentScore;
  shared.CurrentScore = 0;
  QuindleRound = 1;
  rules_.ElevensCount = 0;
  WriteCounters();
  Round.Number.Text = "1";
  ShowIdleCommands();
  SetReplayCaption(true);
  ShowTitle(true);
  StopMusic();
}

void frmQuindle::SetReplayCaption(bool replay) {
  cmdTakeScore.Text = replay ? "&Replay" : "&Take Score";
  cmdTakeScore.Tip = replay ? "Replays the last game" : "End current round and take score";
  Menus.SetText(core::Command::TakeScore, cmdTakeScore.Text);
  cmdTakeScore.Enabled = true;
  Menus.Enable(true, {core::Command::TakeScore});
}

// --- the moves ----------------------------------------------------------------------------------

bool frmQuindle::BoardIsShut() {
  return Message.Text == "Game Paused" || Message.Text == "Game Over";
}

void frmQuindle::FieldCardPicture_Click(int i) {
  if (shared.ScoringBusy) return;
  if (BoardIsShut()) {
    Wave("Chord.wav");
    return;
  }
  ShowChoice(rules_.ChooseField(i), FieldSelectionRectangle(i));
}

void frmQuindle::UpCardPicture_Click() {
  if (shared.ScoringBusy) return;
  if (BoardIsShut()) {
    Wave("Chord.wav");
    return;
  }
  ShowChoice(rules_.ChooseUpCard(), UpCardSelectionRectangle);
}

void frmQuindle::ShowChoice(Choice choice, ui::Shape& mark) {
  switch (choice) {
    case Choice::Refused:
      Wave("Chord.wav");
      break;
    case Choice::Selected:
      mark.Visible = true;
      WriteCounters();
      Wave("Markq.wav");
      CheckTotal();
      break;
    case Choice::Deselected:
      mark.Visible = false;
      WriteCounters();
      Wave("Tick.wav");
      break;
  }
}

void frmQuindle::CheckTotal() {
  const SetMade set = rules_.CheckTotal();
  if (set.made) {
    TakeSetOff(set);
    if (rules_.CheckForCompletion()) {
      TakeScoreOrReplay();
    } else if (set.upCardUsed && UpCardPicture.Key() == "EMPTY") {
      DrawCard(false);
    }
  }
  ShowUpCardWorth();
}

void frmQuindle::TakeSetOff(const SetMade& set) {
  Wave("TwentyOne.wav");
  if (rules_.EnhancedScoring) Timer1.Enabled = true;
  shared.AddToScore(set.upCardPoints);
  if (set.upCardUsed) ShowUpCard();
  for (int slot : set.slots) {
    shared.AddToScore(SlotPoints(slot, rules_.EnhancedScoring));
    FieldCardPicture(slot).Visible = false;
  }
  HideSelection();
  WriteCounters();
}

void frmQuindle::PlayCardPicture_Click() {
  if (!shared.ScoringBusy) DrawCard(true);
}

void frmQuindle::DrawCard(bool withSound) {
  const Draw draw = BoardIsShut() ? Draw{} : rules_.DrawCard();
  if (withSound) Wave(draw.drawn ? "Markq.wav" : "Chord.wav");
  if (!draw.drawn) return;
  if (draw.filledSlot >= 0) {
    ShowFieldCard(draw.filledSlot);
    shared.AddToScore(-draw.cost);
    ShowUpCardWorth();
  }
  ShowUpCard();
  HideSelection();
  WriteCounters();
  lblCardCount.Text = "Cards: " + core::Digits(rules_.StockTop + 1);
  RefreshPlayCard();
}

}  // namespace games::quindle
