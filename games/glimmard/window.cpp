// Glimmard's window: its menu, its board, and what it shows.
#include "games/glimmard/window.h"

#include <algorithm>

#include "core/text/number.h"

namespace games::glimmard {
namespace {

constexpr int CellWidth = 32;
constexpr int CellHeight = 27;
constexpr int CellGap = 2;
constexpr int FrameMargin = 10;
constexpr int CaptionHeight = 20;
constexpr int PhraseWidth = LineCells * CellWidth + 2 * FrameMargin;
constexpr int PhraseHeight = BoardCells / LineCells * CellHeight + CaptionHeight + 6;
constexpr int GuessSide = 40;
constexpr int GuessStep = 43;
constexpr int GuessWidth = MostGuesses * GuessStep + 2 * FrameMargin;
constexpr int GuessHeight = GuessSide + CaptionHeight + 4;
constexpr int KeysInARow = LetterCount / 2;
constexpr int KeyStep = 38;
constexpr int RowStep = 31;
constexpr int BoardHeight = 403;  // at the smallest size

struct TopicCommand {
  const char* name;
  const char* caption;
};
/// By the topic's number.
constexpr TopicCommand TopicCommands[] = {
    {"mnuRandom", "&Random"},         {"mnuMovies", "TV / &Movies"},
    {"mnuPeople", "&People / Names"}, {"mnuPhrases", "F&amous Phrases"},
    {"mnuSports", "&Sports"},         {"mnuMisc", "Mis&cellaneous"},
    {"mnuMusicTopic", "M&usic"},      {"mnuPlaces", "P&laces"}};
static_assert(std::size(TopicCommands) == TopicCount + 1);

core::Vocabulary Words() {
  core::Vocabulary words;
  words.window = "frmPhrase";
  words.settingsFile = "Glimmard.Ini";
  words.exitTip = "Exits the game";
  words.endGameTip = "Ends the current game";
  words.smallestSize = {9570, 7200};
  words.maximizedWidth = "9570";
  words.timeEntries = {{30, "&30 seconds"},  {45, "&45 seconds (default)"}, {60, "&60 seconds"},
                       {75, "&75 seconds"},  {90, "&90 seconds"},           {105, "&105 seconds"},
                       {120, "1&20 seconds"}};
  words.fixedInGame = {"mnuTopic"};
  return words;
}

}  // namespace

frmPhrase::frmPhrase(core::Suite& suite, const core::GameEntry& entry)
    : GameWindow(suite, entry, Words()), phrases_(suite.KeptBy<PhraseFiles>(entry)) {
  using core::Command;
  BuildMenu({
      {"mnuGame",
       "&Game",
       Command::Other,
       {},
       {{"mnuPlay", "&Play", Command::Play},
        {"mnuPause", "Pau&se", Command::Pause},
        {"mnuSolve", "Solve &It", Command::TakeScore, [this] { cmdSolve_Click(); }},
        {"mnuExit", "E&xit", Command::Exit}}},
      {"mnuOptions",
       "&Options",
       Command::Other,
       {},
       {{"mnuView", "&View High Scores...", Command::ViewHighScores},
        {"mnuClear", "&Clear High Scores...", Command::ClearHighScores},
        {"mnuMusic", "Play &Music (plays during game)", Command::Music},
        {"mnuMIDI", "S&elect Music File...", Command::MusicFile},
        {"mnuSounds", "&Play Sounds", Command::Sounds},
        {"mnuCustom", "&User Options...", Command::Custom},
        {"mnuTime", "&Time Limit", Command::Time, {}, TimeRows()},
        {"mnuTopic", "T&opic Selection", Command::Other, {}, TopicRows()}}},
      core::HelpMenu(),
  });
  LetterTile.PutInto(fmPhrase);
  lblLetter.PutInto(fmPhrase);
  lblLetter.ForEach([](int, ui::Label& label) { label.FontSize = 12; });
  Guess.PutInto(frmGuess);
  cmdLetter.ForEach(
      [](int i, ui::Button& button) { button.Text = std::string(1, static_cast<char>('A' + i)); });
  txtLetterValue.ReadOnly = true;
  lblScoring.Visible = false;
  lblScoring.FontSize = 18;
  lblScoring.Bold = true;
  Message.OnChange = [this] { lblMessage_Change(); };
  EnableSolve(false);
  ShowControls(false, true);
  lblHighScore.Visible = true;
}

std::vector<core::MenuRow> frmPhrase::TopicRows() {
  std::vector<core::MenuRow> rows;
  for (std::int16_t topic = RandomTopic; topic <= TopicCount; ++topic) {
    rows.push_back({TopicCommands[topic].name, TopicCommands[topic].caption, core::Command::Other,
                    [this, topic] { ChooseTopic(topic); }});
  }
  return rows;
}

void frmPhrase::ChooseTopic(std::int16_t topic) {
  PhraseTopic = topic;
  ShowTopicMark();
  ShowTableTop();
}

void frmPhrase::ShowTopicMark() {
  for (std::int16_t topic = RandomTopic; topic <= TopicCount; ++topic) {
    Menus.Named(TopicCommands[topic].name)->Checked = topic == PhraseTopic;
  }
}

// --- places -------------------------------------------------------------------------------------

void frmPhrase::PlaceBoard(ui::Size inner) {
  const int middle = inner.w / 2 - 46;  // of what the column of buttons leaves
  const int left = middle - PhraseWidth / 2;
  const int spare = std::max(0, inner.h - BoardHeight);
  fmPhrase.Place = {left, 2 + spare / 4, PhraseWidth, PhraseHeight};
  lblLetter.ForEach([&](int n, ui::Label& label) {
    const ui::Rect cell{FrameMargin + n % LineCells * CellWidth,
                        CaptionHeight + n / LineCells * CellHeight, CellWidth - CellGap,
                        CellHeight - CellGap};
    LetterTile(n).Place = cell;
    core::CenterIn(label, {cell.x + 2, cell.y + 2, cell.w - 4, cell.h - 4});
  });
  const int guesses = fmPhrase.Place().Bottom() + 4 + spare / 4;
  frmGuess.Place = {left, guesses, GuessWidth, GuessHeight};
  Guess.ForEach([](int i, ui::Picture& picture) {
    picture.Place = {FrameMargin + i * GuessStep, CaptionHeight, GuessSide, GuessSide};
  });
  const int right = left + GuessWidth + 6;
  core::CenterIn(lblLetterValue, {right, guesses + 8, left + PhraseWidth - right, 20});
  txtLetterValue.Place = {right + 14, guesses + 32, left + PhraseWidth - right - 28, 24};
  const int keys = inner.h - 124 - spare / 4;
  ProgressBar1.Place = {left, keys - 20, PhraseWidth, 14};
  cmdLetter.ForEach([&](int i, ui::Button& button) {
    button.Place = {middle - KeysInARow * KeyStep / 2 + i % KeysInARow * KeyStep,
                    keys + i / KeysInARow * RowStep, KeyStep - 2, RowStep - 1};
  });
  DummyCommand.Place = {-20, -20, 10, 10};
  Score.SetPlace({left, keys + 70, 116, 44});
  lblHighScore.Place = {left + 132, keys + 82, 260, 20};
  lblHighScore.Alignment = ui::Align::Left;
  Clock.SetPlace({inner.w - 92, inner.h - 240});
  Round.SetPlace({inner.w - 92, inner.h - 124, 84, 44});
  core::CenterIn(lblScoring, {left, fmPhrase.Place().CenterY() + 20, PhraseWidth, 40});
  lblMessage_Change();
}

/// The big message stands in the place of the phrase, but for what is said while the phrase is
/// there: that stands in the place of the guesses.
void frmPhrase::lblMessage_Change() {
  const bool besidePhrase = Message.Text().starts_with("Select ");
  const ui::Rect phrase = fmPhrase.Place();
  const int y = besidePhrase ? frmGuess.Place().y + 10 : phrase.CenterY() - 40;
  core::CenterIn(Message, {phrase.x, y, phrase.w, 40});
}

// --- what is shown ------------------------------------------------------------------------------

void frmPhrase::ShowControls(bool visible, bool score) {
  ShowControls(visible, score, visible, false);
}

void frmPhrase::ShowControls(bool visible, bool score, bool info, bool keep) {
  ShowTimerGroup(visible);
  Round.Show(visible);
  ProgressBar1.Visible = visible;
  cmdLetter.Show(visible);
  fmPhrase.Visible = visible;
  Score.Show(score);
  lblLetterValue.Visible = info;
  txtLetterValue.Visible = info;
  lblHighScore.Visible = info;
  frmGuess.Visible = info;
  if (!keep) EnableLetters(visible);
}

void frmPhrase::ShowCell(int cell) {
  const char32_t face = rules_.Face(cell);
  ui::Label& label = lblLetter(cell);
  label.Text = face ? Utf8Of(face) : "";
  label.TextColor = ui::Blue;
  label.Bold = false;
  label.Visible = rules_.IsShown(cell);
  LetterTile(cell).ShapeLook = ui::Shape::Look::Sunken;
  LetterTile(cell).LineColor = ui::Blue;
  LetterTile(cell).Visible = rules_.IsShown(cell);
}

/// A solved phrase stands on raised plates, so that more than its colour tells it from a lost one.
void frmPhrase::MarkSolved() {
  for (int n = 0; n < static_cast<int>(rules_.CurrentPhrase().size()); ++n) {
    lblLetter(n).TextColor = ui::Green;
    lblLetter(n).Bold = true;
    LetterTile(n).ShapeLook = ui::Shape::Look::Board;
    LetterTile(n).LineColor = ui::Green;
  }
}

void frmPhrase::ShowGuess(int index, const char* key) {
  static constexpr const char* faulty[] = {"UNHAPPY", "UNHAPPY2"};
  const bool lost = std::string(key) == faulty[0];
  Guess(index).ShowArtwork(lost ? faulty[faultyPicture_] : key, key);
}

void frmPhrase::ShowGuesses() {
  Guess.ForEach([this](int i, ui::Picture& picture) {
    picture.Visible = i <= rules_.GuessesLeft;
    if (picture.Visible()) ShowGuess(i, "HAPPY");
  });
}

void frmPhrase::EnableLetter(int index, bool enabled) {
  cmdLetter(index).Enabled = enabled;
  cmdLetter(index).Pointer = enabled ? "POINTER" : "";
}

void frmPhrase::EnableLetters(bool enabled) {
  for (int i = 0; i < LetterCount; ++i) EnableLetter(i, enabled);
}

void frmPhrase::EnableVowels(bool enabled) {
  for (int vowel : Vowels) EnableLetter(vowel, enabled);
}

void frmPhrase::EnableSolve(bool enabled) {
  cmdSolve.Enabled = enabled;
  Menus.Enable(enabled, {core::Command::TakeScore});
}

// --- pausing ------------------------------------------------------------------------------------

/// Solve It closes Pause, but the letter timer goes on; a message about the files holds all up.
bool frmPhrase::InRound() const {
  const bool solving = shared.GameActive && rules_.SolveMode && !shared.ScoringBusy;
  return (solving || GameWindow::InRound()) && !drawingPhrase_;
}

/// Solve It has stopped the round clock for good.
std::vector<ui::Timer*> frmPhrase::GameTimers() {
  if (rules_.SolveMode && shared.RoundNumber < BonusRound) return {&Timer5};
  return {&Timer1, &Timer5};
}

void frmPhrase::PauseBoard() {
  ShowControls(false, true, false, true);
}

void frmPhrase::ResumeBoard() {
  const bool bonus = shared.RoundNumber >= BonusRound;
  EnableSolve(!bonus);
  ShowControls(true, true, true, true);
  if (!rules_.LetterHit && !bonus) EnableVowels(false);
}

}  // namespace games::glimmard
