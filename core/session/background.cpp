// The picture that a player can put behind the board.
#include "core/session/background.h"

namespace core {

void Background::Show() {
  image_ = suite_.platform.CanShowPicture(path_) ? path_ : "";
}

void Background::Choose() {
  const auto path = suite_.platform.AskFile(
      {.purpose = ui::FileDialog::Purpose::Open,
       .title = "Select Background Image",
       .filter = "Pictures (*.bmp;*.gif;*.ico;*.jpg)|*.bmp;*.gif;*.ico;*.jpg",
       .defaultExtension = "",
       .fileName = "*.bmp"});
  if (!path || path->empty()) return;
  path_ = *path;
  Show();
  if (!image_().empty()) return;
  suite_.Tell(ui::Sign::Exclamation, "Unable to show '" + path_ + "' as a picture.");
}

void Background::Clear() {
  path_.clear();
  Show();
}

}  // namespace core
