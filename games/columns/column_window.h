// What the windows of the games of columns have alike, beside what the frame gives all games.
#pragma once

#include <string>

#include "core/scoring/scoring_table.h"
#include "core/session/game_window.h"
#include "games/columns/column_board.h"
#include "games/columns/columns.h"

namespace games::columns {

class ColumnWindow : public core::GameWindow {
 public:
  void Play() override;
  void ShowControls(bool visible, bool keep) override;
  void ShowScoringDialog() override;

 protected:
  ColumnWindow(core::Suite& suite, const core::GameEntry& entry, core::Vocabulary words,
               BoardShape shape);

  virtual void StartGame() = 0;
  virtual void AskToEndGame() = 0;
  /// The two buttons, in a round that is neither paused nor being scored.
  virtual void Hit(int column) = 0;
  virtual void Pass() = 0;
  virtual core::ScoringTable ScoringTableOfDialog() = 0;
  /// Shows or hides what stands on the board beside the cards.
  virtual void ShowGraphics(bool visible) = 0;

  /// The entries of the card backs, in this order, with the numbers of the games of columns.
  static std::vector<core::DeckEntry> Decks(std::initializer_list<core::Design> order);
  static core::MenuRow FileMenu();
  static core::MenuRow OptionsMenu(core::MenuRow clear, const std::string& musicCaption,
                                   const std::string& customName);
  static void Paint(ui::Color color, std::initializer_list<ui::Label*> labels);
  /// Blue and bold, as a counter at rest.
  static void StyleCounters(std::initializer_list<ui::Label*> labels);

  SharedValues ValuesOfColumns();
  void ShowRound(bool visible);
  void WriteRound();
  void EnablePause(bool enabled);
  /// No second is gone, and the clock is empty.
  void ResetClock();
  /// Commands, clock and title panel of a window in which no game runs.
  void GoIdle();
  void ShowCurrentCard(const std::string& card);
  /// Shows `text` as the big message in its outline.
  void Announce(const std::string& text, ui::Color color);
  void HideAnnouncement();
  /// The same for WaitPeriod, then it goes; in an idle window it goes at once.
  void AnnounceForWaitPeriod(const std::string& text, ui::Color color);
  void CenterMessage();
  void BringMessageToFront();
  void Pay(std::int64_t points);
  /// Enters the score into its table, and shows "Game Over" for a while.
  void EnterScore();

  core::SettingsKey WaitPeriodKey(const std::string& key, std::int32_t longest);
  /// A dialog's table with what both have; `standardLimit` is what Default chooses.
  core::ScoringTable EmptyTable(const std::string& window, int standardLimit);
  core::NumberField BonusScoreField(std::int32_t& score, std::int32_t standard);
  core::NumberField PassesField(std::int16_t standard);
  /// Both in milliseconds; the field has seconds. Default rewrites it, not what is in memory.
  core::NumberField WaitField(std::int32_t longest, std::int32_t standard);
  core::CheckField CountField();
  /// What follows when the last field of the dialog is right.
  void ApplyScoring(const core::ScoringDialog& dialog, std::int32_t bonusScore);

  ColumnBoard Board;
  core::SunkenFrame RoundFrame{this, "Round"};
  ui::Label lblRound{this, "lblRound", "Round: 1"};
  ui::Shape ScoringLabelOutline{this, "ScoringLabelOutline", ui::Shape::Look::Board};

 private:
  void cmdHit_Click(int column);
  void cmdPass_Click();
  bool RoundIsOpen() const;
};

}  // namespace games::columns
