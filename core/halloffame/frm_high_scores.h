// The high score window: the ten rows of a table, the new one among them blinking.
#pragma once

#include <memory>
#include <vector>

#include "core/halloffame/table_owner.h"
#include "core/suite/suite.h"
#include "ui/window.h"

namespace core {

class frmHighScores : public ui::Window {
 public:
  frmHighScores(Suite& suite, TableOwner& owner);

 private:
  void Load() override;
  void Unloading() override;
  void ReadHighScoreTable();
  void PlaceControls();
  void StartBlinking();
  void StopBlinking();
  void ColorRow(int row, bool isNew);
  void ShowRow(int row, bool visible);
  ui::Label& DateOf(int row) { return *DateList[static_cast<std::size_t>(row)]; }

  void cmdDone_Click();
  void cmdClear_Click();
  void cmdHighScores_Click();
  void cmdSendScore_Click();
  void Timer1_Timer();

  Suite& suite_;
  TableOwner& owner_;
  int blinkingRow_ = -1;

  ui::Label lblHiScoreInfo{this, "lblHiScoreInfo"};
  ui::Array<ui::Label> ScoreList{this, "ScoreList", 0, 19};  ///< name, score, name, score ...
  std::vector<std::unique_ptr<ui::Label>> DateList;  ///< by row; named DateList(1), (3) ... (19)
  ui::Button cmdDone{this, "cmdDone", "&Done, let's go play some more!", "",
                     &frmHighScores::cmdDone_Click};
  ui::Button cmdClear{this, "cmdClear", "&Clear Current High Scores",
                      "Clears all high scores for the current game",
                      &frmHighScores::cmdClear_Click};
  ui::Button cmdHighScores{this, "cmdHighScores", "&Visit the High Score Website", "",
                           &frmHighScores::cmdHighScores_Click};
  ui::Button cmdSendScore{this, "cmdSendScore", "&Submit a High Score to the Website", "",
                          &frmHighScores::cmdSendScore_Click};
  ui::Timer Timer1{this, "Timer1", 500, ui::Timer::At::Off, &frmHighScores::Timer1_Timer};
};

}  // namespace core
