// The running program: its shared values, the deck, the picture store and the way to the platform.
#pragma once

#include <any>
#include <map>
#include <optional>
#include <string>

#include "core/cards/card_images.h"
#include "core/cards/chance.h"
#include "core/cards/deck.h"
#include "core/suite/game_entry.h"
#include "core/suite/shared.h"
#include "core/text/moment.h"
#include "ui/desk.h"

namespace core {

/// What every window is given. Lives as long as the program; owns none of what it is made with.
class Suite {
 public:
  Suite(ui::Desk& platform, Chance& chance, Catalogue catalogue);

  ui::Desk& platform;
  Chance& chance;
  const Catalogue catalogue;
  Shared shared;
  Deck deck;
  CardImages images;
  ui::Window* launcher = nullptr;
  std::optional<std::string> commandLine;  ///< a saved game, which a window opens once

  /// What a game keeps from one of its windows to the next; made when it is first asked for, and
  /// gone with the program. A game asks for one type only.
  template <class T>
  T& KeptBy(const GameEntry& entry) {
    std::any& kept = kept_[&entry];
    if (!kept.has_value()) kept.emplace<T>();
    return std::any_cast<T&>(kept);
  }

  Moment Now() const;
  std::string PathOf(const std::string& file) const { return shared.AppPath + file; }

  /// A message with an OK button under the game's title.
  void Tell(ui::Sign sign, const std::string& text);
  /// A message with an OK button and no title.
  void TellPlainly(const std::string& text);
  /// A question with Yes and No under the game's title.
  bool Ask(const std::string& question, ui::Sign sign = ui::Sign::Question);

  /// Loads and shows a window as a modal dialog; returns when it has been closed.
  void ShowModal(ui::Window& window);

  /// The two start a round. On failure they say so, and the result is false.
  bool CreateDeck();
  bool ShuffleDeck();

  /// Plays one of the program's waves if sounds are on.
  void PlayWave(const std::string& file);
  void OpenMidi();  ///< tells the player if the music can't be opened
  void PlayMidi() { platform.PlayMusic(); }
  void PauseMidi() { platform.PauseMusic(); }
  void CloseMidi() { platform.CloseMusic(); }
  void SelectMusicFile(ui::Window& window);

  /// Opens a page of the public site, given its path there; says so if that fails.
  void OpenWebPage(const std::string& url);

 private:
  std::map<const GameEntry*, std::any> kept_;
};

}  // namespace core
