// The mixer library, loaded when the first sound is played.
#pragma once

#include <SDL.h>
#include <SDL_mixer.h>

#include <chrono>
#include <string>

namespace ui::qt {

/// One wave at a time and one piece of music. Used by one thread only. Everything is silent where
/// the library or the device is missing.
class Mixer {
 public:
  Mixer();
  ~Mixer();
  Mixer(const Mixer&) = delete;

  void PlayWave(const std::string& path);
  void PlayMusic(const std::string& path);
  void StopMusic();

 private:
  struct Library;
  bool Open();
  void ForgetMusic();

  Library* library_;
  bool open_ = false;
  std::chrono::steady_clock::time_point nextTry_{};
  Mix_Chunk* wave_ = nullptr;
  Mix_Music* music_ = nullptr;
  std::string musicPath_;
};

}  // namespace ui::qt
