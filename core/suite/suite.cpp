// Messages, the deck, sounds and music, as all windows use them.
#include "core/suite/suite.h"

#include "core/text/number.h"

namespace core {

Suite::Suite(ui::Desk& platform, Chance& chance, Catalogue catalogue)
    : platform(platform), chance(chance), catalogue(catalogue) {}

Moment Suite::Now() const {
  const std::int64_t now = platform.Now();
  return MomentAt(now >= 0 ? now / 1000 : -((999 - now) / 1000));
}

void Suite::Tell(ui::Sign sign, const std::string& text) {
  platform.MessageBox(sign, ui::Buttons::Ok, shared.GameTitle, text);
}

void Suite::TellPlainly(const std::string& text) {
  platform.MessageBox(ui::Sign::Plain, ui::Buttons::Ok, "", text);
}

bool Suite::Ask(const std::string& question, ui::Sign sign) {
  return platform.MessageBox(sign, ui::Buttons::YesNo, shared.GameTitle, question) ==
         ui::Answer::Yes;
}

void Suite::ShowModal(ui::Window& window) {
  window.Load();
  platform.ShowModal(window);
}

bool Suite::CreateDeck() {
  if (deck.CreateDeck()) return true;
  TellPlainly("Unable to create the deck.");
  return false;
}

bool Suite::ShuffleDeck() {
  if (deck.ShuffleDeck(chance)) return true;
  Tell(ui::Sign::Critical, "Unable to shuffle the deck.");
  return false;
}

void Suite::PlayWave(const std::string& file) {
  if (shared.PlaySounds) platform.PlayWave(PathOf(file));
}

void Suite::OpenMidi() {
  if (platform.OpenMusic(shared.MidiFile)) return;
  Tell(ui::Sign::Critical, "Unable to open music file '" + shared.MidiFile + "'.");
}

void Suite::SelectMusicFile(ui::Window& window) {
  const auto chosen = platform.AskFile({.purpose = ui::FileDialog::Purpose::Open,
                                        .title = "Select Music File",
                                        .filter = "Music File (*.mid)|*.mid",
                                        .defaultExtension = "*.MID",
                                        .fileName = ""});
  if (!chosen || chosen->empty() || *chosen == shared.MidiFile) return;
  window.Hourglass = true;
  CloseMidi();
  shared.MidiFile = *chosen;
  OpenMidi();
  window.Hourglass = false;
}

void Suite::OpenWebPage(const std::string& url) {
  switch (platform.OpenPage(url)) {
    case ui::PageResult::Opened:
      break;
    case ui::PageResult::NoBrowser:
      Tell(ui::Sign::Exclamation, "Unable to find default web Browser");
      break;
    case ui::PageResult::NotOpened:
      Tell(ui::Sign::Exclamation, "Unable to open web page '" + url + "'.");
      break;
  }
}

}  // namespace core
