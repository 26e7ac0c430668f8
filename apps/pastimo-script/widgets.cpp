// The scripted player on the desktop's real widgets, on a display that nobody sees.
#include "apps/pastimo-script/play.h"
#include "core/launcher/program.h"
#include "ui/qt/script/scripted_desktop.h"

int main(int count, char** words) {
  const auto options = app::OptionsOf(count, words);
  int one = 1;  // the command line is the script's, not the toolkit's
  ui::qt::ScriptedDesktop desktop(one, words, {core::DataDirectory() + "pictures"});
  return app::Play(options, desktop, desktop.Stage());
}
