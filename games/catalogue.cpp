// The catalogue of games: the one place that names them.
#include "games/catalogue.h"

#include "games/glimmard/window.h"
#include "games/quindle/window.h"

namespace games {
namespace {

template <class W>
std::unique_ptr<ui::Window> Make(core::Suite& suite, const core::GameEntry& entry) {
  return std::make_unique<W>(suite, entry);
}

// Title, launcher button and its caption, table name, start scores (window, end of a game, high
// score window), smallest score and time limit of a public listing, window.
const core::GameEntry Entries[] = {
    {"Quindle!",
     "cmdQuindle",
     "&Quindle",
     "Quindle Hi Score Table ",
     {50000, 50000, 50000},
     175000,
     90,
     Make<quindle::frmQuindle>},
    {"Glimmard!",
     "cmdPhrase",
     "&Glimmard",
     "Glimmard Hi Score Table ",
     {30000, 30000, 30000},
     430000,
     45,
     Make<glimmard::frmPhrase>},
};

}  // namespace

core::Catalogue AllGames() {
  return Entries;
}

}  // namespace games
