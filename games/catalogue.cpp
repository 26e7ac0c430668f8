// The catalogue of games: the one place that names them.
#include "games/catalogue.h"

#include "games/pellow/window.h"
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
    {"Pellow!",
     "cmdPellow",
     "&Pellow",
     "Pellow Hi Score Table ",
     {30000, 50000, 50000},
     140000,
     45,
     Make<pellow::frmPellow>},
};

}  // namespace

core::Catalogue AllGames() {
  return Entries;
}

}  // namespace games
