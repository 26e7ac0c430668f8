// Reading the font configuration early.
#include "ui/qt/warm_up.h"

#include <dlfcn.h>

#include <clocale>

namespace ui::qt {
namespace {

/// Qt's display plug-in uses this library; where it is missing, there is nothing to read early.
void ReadFontConfiguration() {
  void* library = dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_LOCAL);
  if (!library) return;
  using Initialize = int (*)();
  if (auto initialize = reinterpret_cast<Initialize>(dlsym(library, "FcInit"))) initialize();
}

}  // namespace

WarmUp::WarmUp() {
  // The application sets the locale too; it must not do so for the first time beside the reader.
  std::setlocale(LC_ALL, "");
  reader_ = std::thread(ReadFontConfiguration);
}

WarmUp::~WarmUp() {
  reader_.join();
}

}  // namespace ui::qt
