// The high score window: the ten rows of a table, the new one among them blinking.
#include "core/halloffame/frm_high_scores.h"

#include "core/files/files.h"
#include "core/halloffame/high_scores.h"
#include "core/scores/score_table.h"
#include "core/suite/deployment.h"
#include "core/text/number.h"
#include "publication/frm_compose_high_score.h"

namespace core {
namespace {

constexpr int Rows = 10;
constexpr int RowHeight = 26;
constexpr ui::Size Inner{560, 440};

}  // namespace

frmHighScores::frmHighScores(Suite& suite, TableOwner& owner)
    : ui::Window(suite.platform, "frmHighScores"), suite_(suite), owner_(owner) {
  for (int row = 0; row < Rows; ++row) {
    DateList.push_back(std::make_unique<ui::Label>(this, "DateList", 2 * row + 1));
  }
  Resizable = false;
  NormalSize = OuterFor(Inner);
  PlaceControls();
}

void frmHighScores::PlaceControls() {
  lblHiScoreInfo.Place = {20, 10, Inner.w - 40, 44};
  lblHiScoreInfo.Alignment = ui::Align::Center;
  lblHiScoreInfo.Bold = true;
  lblHiScoreInfo.Wrap = true;
  for (int row = 0; row < Rows; ++row) {
    const int y = 64 + row * RowHeight;
    ScoreList(2 * row).Place = {24, y, 220, RowHeight - 4};
    ScoreList(2 * row + 1).Place = {248, y, 110, RowHeight - 4};
    ScoreList(2 * row + 1).Alignment = ui::Align::Right;
    DateOf(row).Place = {380, y, 164, RowHeight - 4};
    for (ui::Label* label : {&ScoreList(2 * row), &ScoreList(2 * row + 1), &DateOf(row)}) {
      label->FontSize = 10;
    }
    ColorRow(row, false);
  }
  ui::Button* buttons[] = {&cmdDone, &cmdClear, &cmdHighScores, &cmdSendScore};
  for (int i = 0; i < 4; ++i) {
    buttons[i]->Place = {20 + (i % 2) * 264, Inner.h - 88 + (i / 2) * 40, 256, 32};
  }
  cmdDone.DialogRole = ui::Button::Role::Default;
}

void frmHighScores::Load() {
  const Shared& shared = suite_.shared;
  if (shared.CustomScoring) {
    cmdSendScore.Enabled = false;
    suite_.Tell(ui::Sign::Information,
                "The 'Submit a High Score to the Website' command button will be disabled because "
                "the scoring routines have been modified.");
  }
  Caption = shared.GameTitle + " Hall of Fame (" + Digits(shared.TimeLimit) + " secs)";
  ReadHighScoreTable();
  lblHiScoreInfo.Text = owner_.TableInfo() + "\r\n* denotes customized scoring was used";
  if (shared.NewHighScoreRank >= 0 && shared.NewHighScoreRank < Rows) StartBlinking();
}

void frmHighScores::ReadHighScoreTable() {
  std::string error;
  const auto text = ReadWhole(HighScorePath(suite_, owner_), &error);
  if (!text) {
    suite_.TellPlainly(error);
    return;
  }
  const auto rows = ParseTable(*text);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int row = static_cast<int>(i);
    ScoreList(2 * row).Text = rows[i].name;
    ScoreList(2 * row + 1).Text = Masked(rows[i].score);
    DateOf(row).Text = rows[i].date;
    DateOf(row).Visible = rows[i].date != fillerDate;
  }
}

void frmHighScores::StartBlinking() {
  blinkingRow_ = suite_.shared.NewHighScoreRank;
  Timer1.Enabled = true;
  suite_.PlayWave("Applause.wav");
  ColorRow(blinkingRow_, true);
}

void frmHighScores::StopBlinking() {
  Timer1.Enabled = false;
  if (blinkingRow_ < 0) return;
  ShowRow(blinkingRow_, true);
  ColorRow(blinkingRow_, false);
  blinkingRow_ = -1;
}

void frmHighScores::ColorRow(int row, bool isNew) {
  ScoreList(2 * row).TextColor = isNew ? ui::White : ui::Blue;
  ScoreList(2 * row + 1).TextColor = isNew ? ui::White : ui::Red;
  DateOf(row).TextColor = isNew ? ui::White : ui::Black;
}

void frmHighScores::ShowRow(int row, bool visible) {
  ScoreList(2 * row).Visible = visible;
  ScoreList(2 * row + 1).Visible = visible;
  DateOf(row).Visible = visible;
}

void frmHighScores::Timer1_Timer() {
  if (blinkingRow_ >= 0) ShowRow(blinkingRow_, !ScoreList(2 * blinkingRow_).Visible());
}

void frmHighScores::cmdDone_Click() {
  suite_.shared.NewHighScoreRank = -1;
  Unload();
}

void frmHighScores::Unloading() {
  Timer1.Enabled = false;
}

void frmHighScores::cmdClear_Click() {
  if (!suite_.Ask("This will clear all High Scores. Are You Sure?")) return;
  StopBlinking();
  suite_.shared.NewHighScoreRank = -1;
  const std::int32_t startScore = owner_.Entry().startScores.inHighScores;
  CreateHighScoreFile(suite_, owner_, startScore);
  ReadHighScoreTable();
  ShowHighScore(suite_, owner_, startScore);
}

void frmHighScores::cmdHighScores_Click() {
  suite_.OpenWebPage(deployment::HighScorePage);
}

void frmHighScores::cmdSendScore_Click() {
  std::vector<publication::ListedRow> rows;
  for (int row = 0; row < Rows; ++row) {
    rows.push_back({ScoreList(2 * row).Text(), ScoreList(2 * row + 1).Text()});
  }
  publication::frmComposeHighScore window(suite_, owner_.Entry(), std::move(rows));
  suite_.ShowModal(window);
}

}  // namespace core
