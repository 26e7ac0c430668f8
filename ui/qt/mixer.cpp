// Loading the mixer library and playing with it. Linked in the usual way it would bring forty
// libraries into the start of a program that may never make a sound.
#include "ui/qt/mixer.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>

namespace ui::qt {
namespace {

constexpr std::chrono::seconds Respite{30};  // after a device could not be opened
constexpr int Rate = 44100;
constexpr int Channels = 2;
constexpr int BufferFrames = 1024;
constexpr int MusicVolume = MIX_MAX_VOLUME * 6 / 10;  // the effects stand out

constexpr const char* SoundFonts[] = {
    "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2", "/usr/share/soundfonts/default.sf2",
    "/usr/share/soundfonts/FluidR3_GM.sf2"};

const char* InstalledSoundFont() {
  std::error_code ignored;
  for (const char* path : SoundFonts) {
    if (std::filesystem::exists(path, ignored)) return path;
  }
  return nullptr;
}

}  // namespace

struct Mixer::Library {
  void* handle = dlopen("libSDL2_mixer-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
  bool complete = handle != nullptr;

  template <class F>
  F* Find(F*, const char* name) {
    void* found = handle ? dlsym(handle, name) : nullptr;
    if (!found) complete = false;
    return reinterpret_cast<F*>(found);
  }

#define PASTIMO_MIXER_CALL(name) decltype(&::name) name = Find(decltype(&::name){}, #name)
  PASTIMO_MIXER_CALL(SDL_SetHint);
  PASTIMO_MIXER_CALL(SDL_InitSubSystem);
  PASTIMO_MIXER_CALL(SDL_QuitSubSystem);
  PASTIMO_MIXER_CALL(SDL_RWFromFile);
  PASTIMO_MIXER_CALL(Mix_OpenAudio);
  PASTIMO_MIXER_CALL(Mix_CloseAudio);
  PASTIMO_MIXER_CALL(Mix_AllocateChannels);
  PASTIMO_MIXER_CALL(Mix_LoadWAV_RW);
  PASTIMO_MIXER_CALL(Mix_FreeChunk);
  PASTIMO_MIXER_CALL(Mix_PlayChannelTimed);
  PASTIMO_MIXER_CALL(Mix_HaltChannel);
  PASTIMO_MIXER_CALL(Mix_SetSoundFonts);
  PASTIMO_MIXER_CALL(Mix_LoadMUS);
  PASTIMO_MIXER_CALL(Mix_FreeMusic);
  PASTIMO_MIXER_CALL(Mix_PlayMusic);
  PASTIMO_MIXER_CALL(Mix_HaltMusic);
  PASTIMO_MIXER_CALL(Mix_VolumeMusic);
#undef PASTIMO_MIXER_CALL
};

Mixer::Mixer() : library_(new Library) {}

Mixer::~Mixer() {
  if (open_) {
    ForgetMusic();
    library_->Mix_HaltChannel(-1);
    if (wave_) library_->Mix_FreeChunk(wave_);
    library_->Mix_CloseAudio();
    library_->SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }
  delete library_;  // the library itself stays: its threads may still run their last lines
}

bool Mixer::Open() {
  const auto now = std::chrono::steady_clock::now();
  if (open_ || !library_->complete || now < nextTry_) return open_;
  nextTry_ = now + Respite;
  library_->SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  library_->SDL_SetHint(SDL_HINT_APP_NAME, "Pastimo");
  if (library_->SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  if (library_->Mix_OpenAudio(Rate, AUDIO_S16SYS, Channels, BufferFrames) != 0) {
    library_->SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  library_->Mix_AllocateChannels(1);
  const char* font = InstalledSoundFont();
  if (!std::getenv("SDL_SOUNDFONTS") && font) library_->Mix_SetSoundFonts(font);
  library_->Mix_VolumeMusic(MusicVolume);
  open_ = true;
  return true;
}

void Mixer::PlayWave(const std::string& path) {
  if (!Open()) return;
  library_->Mix_HaltChannel(0);
  if (wave_) library_->Mix_FreeChunk(wave_);
  wave_ = library_->Mix_LoadWAV_RW(library_->SDL_RWFromFile(path.c_str(), "rb"), 1);
  if (wave_) library_->Mix_PlayChannelTimed(0, wave_, 0, -1);
}

void Mixer::ForgetMusic() {
  if (!music_) return;
  library_->Mix_HaltMusic();
  library_->Mix_FreeMusic(music_);
  music_ = nullptr;
}

void Mixer::PlayMusic(const std::string& path) {
  if (!Open()) return;
  if (!music_ || musicPath_ != path) {
    ForgetMusic();
    music_ = library_->Mix_LoadMUS(path.c_str());
    musicPath_ = path;
  }
  if (music_) library_->Mix_PlayMusic(music_, 1);
}

void Mixer::StopMusic() {
  if (music_) library_->Mix_HaltMusic();
}

}  // namespace ui::qt
