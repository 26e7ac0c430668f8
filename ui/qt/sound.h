// Waves and music, played beside the program by a thread of their own.
#pragma once

#include <memory>
#include <string>

namespace ui::qt {

/// The sound device is opened with the first sound, and never on the caller's thread: no call waits
/// for it. A machine without sound card, sound font or mixer library is silent.
class Sound {
 public:
  Sound() = default;
  ~Sound();

  /// Cuts the wave before it. A file that is missing or no wave plays nothing.
  void PlayWave(const std::string& path);

  /// Takes a MIDI file as the music; false if it can't be read or is none.
  bool OpenMusic(const std::string& path);
  /// Plays the music from its start, once.
  void PlayMusic();
  void StopMusic();
  void CloseMusic();

 private:
  class Player;
  Player& Ready();

  std::shared_ptr<Player> player_;  // shared with its thread, which may outlive a stuck device
  std::string music_;
};

}  // namespace ui::qt
