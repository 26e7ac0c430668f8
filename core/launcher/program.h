// The program put together: its directory, its data files, its shared state and the launcher.
#pragma once

#include <memory>
#include <string>

#include "core/launcher/frm_select.h"
#include "core/suite/suite.h"

namespace core {

/// The program's directory: `wanted`, else $PASTIMO_HOME, else $XDG_DATA_HOME/pastimo, else
/// ~/.local/share/pastimo; with its closing slash.
std::string HomeDirectory(const std::string& wanted);

/// Where the installed data lies: $PASTIMO_DATA, else beside the installed program, else the folder
/// of the source tree; with its closing slash.
std::string DataDirectory();

class Program {
 public:
  /// Owns none of its arguments. `savedGame` is the text on the command line, empty for none.
  Program(ui::Desk& platform, Chance& chance, Catalogue catalogue, std::string home,
          const std::string& savedGame);

  /// Makes the directory, puts the data files there that are missing, and shows the launcher.
  void Start();

  Suite suite;

 private:
  void InstallData() const;

  std::unique_ptr<frmSelect> launcher_;
};

}  // namespace core
