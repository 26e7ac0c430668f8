// The catalogue of games: the one place that names them.
#pragma once

#include "core/suite/game_entry.h"

namespace games {

/// One row a game, in the order of the launcher's buttons. Lives as long as the program.
core::Catalogue AllGames();

}  // namespace games
