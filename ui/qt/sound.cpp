// The thread that plays, and what counts as music.
#include "ui/qt/sound.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <fstream>
#include <functional>
#include <mutex>
#include <thread>

#include "ui/qt/mixer.h"

namespace ui::qt {
namespace {

constexpr std::chrono::seconds PatienceAtEnd{2};
constexpr std::size_t MostOrders = 64;  // that wait for a device that hangs

std::uint32_t BigEndian(const std::array<char, 8>& head) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i < 8; ++i) value = value << 8 | static_cast<unsigned char>(head[i]);
  return value;
}

bool IsChunk(const std::array<char, 8>& head, std::string_view name) {
  return std::string_view(head.data(), 4) == name;
}

/// A header chunk and a track after it: what else is wrong with a file is heard, not told.
bool IsMidi(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::array<char, 8> head{};
  if (!file.read(head.data(), 8) || !IsChunk(head, "MThd") || BigEndian(head) < 6) return false;
  file.seekg(BigEndian(head), std::ios::cur);
  while (file.read(head.data(), 8)) {
    if (IsChunk(head, "MTrk")) return true;
    file.seekg(BigEndian(head), std::ios::cur);
  }
  return false;
}

}  // namespace

/// A queue of orders and the thread that carries them out.
class Sound::Player {
 public:
  using Order = std::function<void(Mixer&)>;

  static std::shared_ptr<Player> Start() {
    auto player = std::make_shared<Player>();
    std::thread([player] { player->Work(); }).detach();
    return player;
  }

  void Do(Order order) {
    const std::lock_guard lock(mutex_);
    if (orders_.size() >= MostOrders) orders_.pop_front();
    orders_.push_back(std::move(order));
    changed_.notify_all();
  }

  /// Ends the thread; a device that hangs is not waited for.
  void Stop() {
    std::unique_lock lock(mutex_);
    stopping_ = true;
    changed_.notify_all();
    changed_.wait_for(lock, PatienceAtEnd, [this] { return ended_; });
  }

 private:
  void Work() {
    {
      Mixer mixer;
      while (Order order = Next()) order(mixer);
    }
    const std::lock_guard lock(mutex_);
    ended_ = true;
    changed_.notify_all();
  }

  /// Waits for the next order; none when the player stops.
  Order Next() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return stopping_ || !orders_.empty(); });
    if (stopping_) return {};
    Order order = std::move(orders_.front());
    orders_.pop_front();
    return order;
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Order> orders_;
  bool stopping_ = false;
  bool ended_ = false;
};

Sound::~Sound() {
  if (player_) player_->Stop();
}

Sound::Player& Sound::Ready() {
  if (!player_) player_ = Player::Start();
  return *player_;
}

void Sound::PlayWave(const std::string& path) {
  Ready().Do([path](Mixer& mixer) { mixer.PlayWave(path); });
}

bool Sound::OpenMusic(const std::string& path) {
  CloseMusic();
  if (!IsMidi(path)) return false;
  music_ = path;
  return true;
}

void Sound::PlayMusic() {
  if (!music_.empty()) Ready().Do([path = music_](Mixer& mixer) { mixer.PlayMusic(path); });
}

void Sound::StopMusic() {
  if (player_) player_->Do([](Mixer& mixer) { mixer.StopMusic(); });
}

void Sound::CloseMusic() {
  StopMusic();
  music_.clear();
}

}  // namespace ui::qt
