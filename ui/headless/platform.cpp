// Windows that nobody paints.
#include "ui/headless/platform.h"

#include <algorithm>
#include <fstream>

namespace ui {

HeadlessPlatform::HeadlessPlatform() {
  director_ = std::make_unique<script::Director>(*this);
}

void HeadlessPlatform::ServeEvents() {
  director_->ServeEvents([this] { TickAllDue(); });
}

Answer HeadlessPlatform::MessageBox(Sign sign, Buttons buttons, const std::string& title,
                                    const std::string& text) {
  return director_->MessageBox(sign, buttons, title, text,
                               [](const auto& converse) { converse(); });
}

std::optional<std::string> HeadlessPlatform::AskFile(const FileDialog& dialog) {
  return director_->AskFile(dialog);
}

void HeadlessPlatform::Open(Window& window, bool modal) {
  Opened(window, modal);
  FocusFirst(window);
}

void HeadlessPlatform::Show(Window& window) {
  director_->TellShow(window);
  Open(window, false);
}

void HeadlessPlatform::ShowModal(Window& window) {
  director_->ShowModal(window, [&](const auto& converse) {
    Run([&] { Open(window, true); });
    converse();
  });
  // It is only hidden, or the program ends behind it: its owner may destroy it from here on.
  if (window.IsOpen()) Closed(window);
}

void HeadlessPlatform::Hide(Window& window) {
  if (!window.IsOpen() || window.IsHidden()) return;
  director_->TellHide(window);
  WasHidden(window);
}

void HeadlessPlatform::Close(Window& window) {
  if (!window.IsOpen()) return;
  director_->TellClose(window);
  Closed(window);
}

bool HeadlessPlatform::CanShowPicture(const std::string& path) const {
  using namespace std::string_literals;
  static const std::string signatures[] = {"BM"s, "GIF87a"s, "GIF89a"s, "\0\0\1\0"s,
                                           "\xFF\xD8\xFF"s};
  char buffer[8] = {};
  std::ifstream file(path, std::ios::binary);
  file.read(buffer, sizeof buffer);
  const std::string begin(buffer, static_cast<std::size_t>(file.gcount()));
  return std::any_of(std::begin(signatures), std::end(signatures),
                     [&](const std::string& signature) { return begin.starts_with(signature); });
}

}  // namespace ui
