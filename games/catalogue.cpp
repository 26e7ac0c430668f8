// The catalogue of games: the one place that names them.
#include "games/catalogue.h"

#include "games/brenlock/window.h"
#include "games/fandrel/window.h"
#include "games/glimmard/window.h"
#include "games/harvel/window.h"
#include "games/kestrane/window.h"
#include "games/mozaro/window.h"
#include "games/ostrel/window.h"
#include "games/pellow/window.h"
#include "games/quindle/window.h"
#include "games/vermoy/window.h"

namespace games {
namespace {

template <class W>
std::unique_ptr<ui::Window> Make(core::Suite& suite, const core::GameEntry& entry) {
  return std::make_unique<W>(suite, entry);
}

// Title, launcher button and its caption, table name, start scores (window, end of a game, high
// score window), smallest score and time limit of a public listing, window.
// clang-format off
const core::GameEntry Entries[] = {
    {"Quindle!",  "cmdQuindle",  "&Quindle",  "Quindle Hi Score Table ",  {50000, 50000, 50000},
     175000, 90, Make<quindle::frmQuindle>},
    {"Mozaro!",   "cmdMozaro",   "&Mozaro",   "Mozaro Hi Score Table ",   {50000, 50000, 50000},
     500000, 60, Make<mozaro::frmMozaro>},
    {"Brenlock!", "cmdBrenlock", "&Brenlock", "Brenlock Hi Score Table ", {50000, 50000, 50000},
     600000, 60, Make<brenlock::frmBrenlock>},
    {"Harvel!",   "cmdHarvel",   "&Harvel",   "Harvel Hi Score Table ",   {50000, 50000, 50000},
     700000, 90, Make<harvel::frmHarvel>},
    {"Ostrel!",   "cmdOstrel",   "&Ostrel",   "Ostrel Hi Score Table ",   {30000, 30000, 30000},
     90000, 45, Make<ostrel::frmOstrel>},
    {"Pellow!",   "cmdPellow",   "&Pellow",   "Pellow Hi Score Table ",   {30000, 50000, 50000},
     140000, 45, Make<pellow::frmPellow>},
    {"Vermoy!",   "cmdVermoy",   "&Vermoy",   "Vermoy Hi Score Table ",   {30000, 30000, 30000},
     130000, 75, Make<vermoy::frmVermoy>},
    {"Kestrane!", "cmdKestrane", "&Kestrane", "Kestrane Hi Score Table ", {50000, 30000, 50000},
     225000, 120, Make<kestrane::frmKestrane>},
    {"Glimmard!", "cmdPhrase",   "&Glimmard", "Glimmard Hi Score Table ", {30000, 30000, 30000},
     430000, 45, Make<glimmard::frmPhrase>},
    {"Fandrel!",  "cmdFandrel",  "&Fandrel",  "Fandrel Hi Score Table ",  {50000, 50000, 50000},
     13000000, 90, Make<fandrel::frmFandrel>},
};
// clang-format on

}  // namespace

core::Catalogue AllGames() {
  return Entries;
}

}  // namespace games
