// The scripted player without a screen.
#include "apps/pastimo-script/play.h"
#include "ui/headless/platform.h"

int main(int count, char** words) {
  const auto options = app::OptionsOf(count, words);
  ui::HeadlessPlatform platform;
  return app::Play(options, platform, platform.Stage());
}
