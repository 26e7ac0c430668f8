// The passes over the file of a high score table.
#include "core/halloffame/high_scores.h"

#include "core/files/files.h"
#include "core/halloffame/frm_hi_score_name.h"
#include "core/halloffame/frm_high_scores.h"
#include "core/scores/score_table.h"

namespace core {
namespace {

bool WriteTable(Suite& suite, const TableOwner& owner, const std::vector<ScoreRow>& rows) {
  std::string error;
  if (WriteWhole(HighScorePath(suite, owner), FormatTable(rows), &error)) return true;
  suite.TellPlainly(error);
  return false;
}

/// The row of the score at hand; the player is asked for the name.
ScoreRow AskForRow(Suite& suite, std::int32_t score) {
  suite.PlayWave("HighScore.wav");
  frmHiScoreName dialog(suite);
  suite.ShowModal(dialog);
  const std::string mark = suite.shared.CustomScoring ? "*" : "";
  return {suite.shared.PlayerName + mark, score, TableDate(suite.Now())};
}

}  // namespace

std::string HighScorePath(const Suite& suite, const TableOwner& owner) {
  return TablePath(suite.shared.AppPath, owner.TableName(), suite.shared.TimeLimit);
}

bool CreateHighScoreFile(Suite& suite, const TableOwner& owner, std::int32_t startScore) {
  return WriteTable(suite, owner, NewTable(startScore));
}

bool ShowHighScore(Suite& suite, TableOwner& owner, std::int32_t startScore) {
  const std::string path = HighScorePath(suite, owner);
  if (!Exists(path)) CreateHighScoreFile(suite, owner, startScore);
  std::string error;
  const auto text = ReadWhole(path, &error);
  if (!text) {
    suite.TellPlainly(error);
    return false;
  }
  const auto rows = ParseTable(*text);
  owner.ShowTopScore(rows.empty() ? 0 : rows.front().score);
  return true;
}

bool UpdateHighScores(Suite& suite, TableOwner& owner) {
  Shared& shared = suite.shared;
  shared.NewHighScoreRank = -1;
  if (!shared.CustomScoring) shared.StripCustomMark();
  std::string error;
  const auto text = ReadWhole(HighScorePath(suite, owner), &error);
  if (!text) {
    suite.TellPlainly(error);
    return false;
  }
  auto rows = ParseTable(*text);
  const std::int32_t score = shared.CurrentScore;
  const int rank = RankFor(rows, score);
  if (rank >= 0) {
    shared.NewHighScoreRank = static_cast<std::int16_t>(rank);
    rows = Insert(std::move(rows), rank, AskForRow(suite, score));
  }
  if (!WriteTable(suite, owner, rows)) return false;
  if (rank >= 0) {
    frmHighScores window(suite, owner);
    suite.ShowModal(window);
  }
  return true;
}

void ViewHighScores(Suite& suite, TableOwner& owner) {
  if (!Exists(HighScorePath(suite, owner))) {
    CreateHighScoreFile(suite, owner, owner.Entry().startScores.atWindow);
  }
  frmHighScores window(suite, owner);
  suite.ShowModal(window);
}

bool AskToClearHighScores(Suite& suite, TableOwner& owner) {
  if (!suite.Ask("This will clear all High Scores. Are You Sure?")) return false;
  CreateHighScoreFile(suite, owner, owner.Entry().startScores.atWindow);
  return true;
}

}  // namespace core
