// Mozaro's window: its menu, what stands where, the background picture, its settings file.
#include "games/mozaro/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::mozaro {
namespace {

constexpr ui::Point SurfaceAt{2, 7};  // 25 and 100 twips
constexpr int BesideSurface = 1200 / ui::TwipsPerPixel;
constexpr int SurfaceRim = 5;
constexpr int ButtonStep = 36;
constexpr int CounterWidth = 110;
constexpr ui::Size Outline{380, 100};
constexpr int TextHeight = 22;

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmMozaro";
  words.settingsFile = "Mozaro.Ini";
  words.exit = "cmdQuit";
  words.exitTip = "Closes Mozaro";
  words.endGameTip = "Ends the current game";
  words.message = "lblScoringData";
  words.score = "lblTotalScore";
  words.wallClock = "TimerClock";
  words.titleTimer = "Timer3";
  words.timeEntries = {{15, "&15 Seconds"},           {30, "&30 Seconds"}, {45, "&45 Seconds"},
                       {60, "&60 Seconds (default)"}, {75, "&75 Seconds"}, {90, "&90 Seconds"}};
  words.fixedInGame = {"mnuBackGround", "mnuClearBackground"};
  return words;
}

}  // namespace

frmMozaro::frmMozaro(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()) {
  using core::Command;
  BuildMenu({
      core::Heading("mnuFile", "&Game",
                    {{"mnuPlay", "&Play", Command::Play},
                     {"mnuJumble", "&Jumble", Command::Other, [this] { cmdJumble_Click(); }},
                     {"mnuPause", "Pau&se", Command::Pause},
                     {"mnuTakeScore", "&Take Score", Command::TakeScore},
                     {"mnuExit", "E&xit", Command::Exit}}),
      core::Heading("mnuOptions", "&Options",
                    {{"mnuViewHighScores", "&View High Scores...", Command::ViewHighScores},
                     {"mnuClearHighScores", "&Clear High Scores", Command::ClearHighScores},
                     {"mnuMusic", "Play &Music  (plays during game)", Command::Music},
                     {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
                     {"mnuSounds", "&Play Sounds", Command::Sounds},
                     {"mnuCustom", "&User Options...", Command::Custom},
                     {"mnuBackGround", "Set &BackGround Image...", Command::Other,
                      [this] { mnuBackGround_Click(); }},
                     {"mnuClearBackground", "Clear Back &Ground Image..", Command::Other,
                      [this] { mnuClearBackground_Click(); }},
                     {"mnuTime", "&Time limit", Command::Time, {}, TimeRows()}}),
      core::HelpMenu(),
  });
  PlayingSurface.OnMouseDown = [this](int x, int y) { PlayingSurface_MouseDown(x, y); };
  PlayingSurface.OnMouseMoveAt = [this](int x, int y) { PlayingSurface_MouseMove(x, y); };
  PlayingSurface.OnMouseUp = PlayingSurface.OnMouseMoveAt;
  SendToBack(ScoringLabelOutline);  // behind the message that it frames
  SendToBack(PlayingSurface);
  lblInfo.TextColor = ui::Red;
  lblInfo.Bold = true;
  lblTimeScore.FontSize = 18;
  lblTimeScore.Bold = true;
  cmdTakeScore.Enabled = false;
  EnableJumble(false);
  ShowGameControls(false);
  lblTimeScore.Visible = lblInfo.Visible = ScoringLabelOutline.Visible = false;
}

// --- what stands where --------------------------------------------------------------------------

int frmMozaro::BoxEdge() const {
  const int width = InnerSize().w - cmdPlay.Place().w - BesideSurface;
  const int columns = rounds_.ColumnCount;
  return std::max(1, (width - (Spacing - 1 + columns)) / columns);
}

void frmMozaro::ResizePlaySurface(int spacing) {
  const int edge = BoxEdge();
  const auto extent = [&](int boxes) { return boxes * edge + (boxes - 1) * spacing + SurfaceRim; };
  PlayingSurface.Place = {SurfaceAt.x, SurfaceAt.y, extent(rounds_.ColumnCount),
                          extent(rounds_.RowCount)};
  if (!GameInProgress) return;
  board_.SetBoxSize(static_cast<float>(edge));
  board_.DrawBoard();
}

void frmMozaro::PlaceBoard(ui::Size inner) {
  ResizePlaySurface(Spacing);
  const ui::Rect surface = PlayingSurface.Place();
  const ui::Point button{cmdTakeScore.Place().x, cmdTakeScore.Place().y};
  cmdJumble.Place = cmdTakeScore.Place();
  cmdJumble.MoveTo(button.x, button.y + ButtonStep);
  cmdExit.MoveTo(button.x, button.y + 2 * ButtonStep);

  const int left = std::max(surface.Right() + 4, inner.w - CounterWidth - 4);
  const int width = std::max(core::RoundClock::Extent.w, inner.w - 4 - left);
  Clock.SetPlace({left + (width - core::RoundClock::Extent.w) / 2, inner.h - 206});
  Round.SetPlace({left, inner.h - 98, width, 44});
  Score.SetPlace({left, inner.h - 50, width, 44});

  const ui::Rect outline = {std::max(0, surface.CenterX() - Outline.w / 2),
                            std::max(0, surface.CenterY() - Outline.h / 2), Outline.w, Outline.h};
  ScoringLabelOutline.Place = outline;
  core::CenterIn(lblTimeScore, {outline.x, outline.y + 50, outline.w, 40});
  PlaceMessage();
  PlaceTexts(inner, {left, cmdExit.Place().Bottom() + 8, width, 2 * TextHeight});
}

void frmMozaro::PlaceMessage() {
  const ui::Rect outline = ScoringLabelOutline.Place();
  const int height = lblTimeScore.Visible() ? 40 : outline.h - 20;
  core::CenterIn(Message, {outline.x, outline.y + 10, outline.w, height});
}

// The texts stand below the surface, or beside it where a wide window has no room left below.
void frmMozaro::PlaceTexts(ui::Size inner, ui::Rect beside) {
  ui::Label* const texts[] = {&lblScoreForNextRound, &lblGridSize, &lblGroupValue, &lblInfo,
                              &lblHighScore};
  const ui::Rect surface = PlayingSurface.Place();
  const int top = inner.h - static_cast<int>(std::size(texts)) * TextHeight - 4;
  const bool below = surface.Bottom() <= top;
  ui::Rect place = below ? ui::Rect{8, top, std::max(1, beside.x - 16), TextHeight} : beside;
  for (ui::Label* label : texts) {
    label->Place = place;
    label->Wrap = !below;
    label->Alignment = ui::Align::Left;
    place.y += place.h;
  }
}

void frmMozaro::ShowGameControls(bool visible) {
  ShowCards(visible);
  Show(visible,
       {&lblGridSize, &Score.Number, &lblGroupValue, &lblScoreForNextRound, &Score.Caption});
  Score.Frame.Show(visible);
  Round.Show(visible);
  ShowTimerGroup(visible);
}

void frmMozaro::DrawBox(int x, int y, int size, const BoxColor* fill, bool highlighted) {
  const ui::Color color = fill ? ui::Color{fill->r, fill->g, fill->b} : ui::Color{};
  PlayingSurface.DrawBox(x, y, size, fill ? &color : nullptr, highlighted);
}

// --- the background picture ---------------------------------------------------------------------

void frmMozaro::LoadBackground() {
  PlayingSurface.Image = suite.platform.CanShowPicture(image_) ? image_ : "";
}

// A cancelled dialog counts as a choice of what it held before.
void frmMozaro::mnuBackGround_Click() {
  const std::string pictures = "*.bmp;*.gif;*.ico;*.jpg";
  const auto chosen = suite.platform.AskFile({.purpose = ui::FileDialog::Purpose::Open,
                                              .title = "Select Background Image",
                                              .filter = "Pictures (" + pictures + ")|" + pictures,
                                              .defaultExtension = "*.bmp",
                                              .fileName = imageInDialog_});
  if (chosen) imageInDialog_ = *chosen;
  image_ = imageInDialog_;
  LoadBackground();
}

void frmMozaro::mnuClearBackground_Click() {
  image_.clear();
  LoadBackground();
}

// --- the settings file --------------------------------------------------------------------------

void frmMozaro::SetDefaults() {
  options_ = Options{};
  image_ = suite.PathOf("Pastimo.gif");
  shared.TimeLimit = StandardTimeLimit;
}

std::vector<core::SettingsKey> frmMozaro::Settings() {
  core::SettingsKey state = StateKey();
  state.read = {};
  return {core::Number("[InitialColorCount]", options_.InitialColorCount),
          core::Number("[Columns]", options_.Columns),
          core::Flag("[DropBoxes]", options_.DropBoxes),
          core::Number("[GroupSize]", options_.GroupSize),
          core::Number("[AddAColumn]", options_.AddAColumn),
          core::Number("[AddAColor]", options_.AddAColor),
          core::Number("[ScoreForNextRound]", options_.ScoreForNextRound),
          core::Number("[ClearAColumn]", options_.ClearAColumn),
          TimeBonusKey("[TimeBonus]"),
          core::Number("[JumblesAllowed]", options_.JumblesAllowed),
          CountDownKey("[CountDown]"),
          core::Number("[ClearBoard]", options_.ClearBoard),
          SoundsKey(),
          MusicKey(),
          state,
          core::Text("[Image]", image_),
          TimeKey()};
}

std::vector<core::ScoringValue> frmMozaro::ScoringValues() const {
  const Options standard;
  return {{options_.DropBoxes, standard.DropBoxes},
          {options_.InitialColorCount, standard.InitialColorCount},
          {options_.ClearBoard, standard.ClearBoard},
          {options_.JumblesAllowed, standard.JumblesAllowed},
          {shared.TimeLimit, StandardTimeLimit},
          {options_.Columns, standard.Columns},
          {options_.GroupSize, standard.GroupSize},
          {options_.AddAColor, standard.AddAColor},
          {options_.AddAColumn, standard.AddAColumn},
          {options_.ScoreForNextRound, standard.ScoreForNextRound},
          {options_.ClearAColumn, standard.ClearAColumn},
          {shared.TimeBonusPerSecond, StandardTimeBonus}};
}

}  // namespace games::mozaro
