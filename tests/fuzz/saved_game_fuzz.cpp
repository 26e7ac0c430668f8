// Any bytes as a saved game: whole or not, never more cards than a deck has.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "games/quindle/rules.h"
#include "games/quindle/saved_game.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace games::quindle;
  const auto game =
      ParseSavedGame(std::string_view(reinterpret_cast<const char*>(data), size), SavedGame{});
  if (!game) return 0;
  for (const RoundDeck& deck : game->decks) {
    if (deck.size() > 64) __builtin_trap();
  }
  SavedGameMessage(*game);
  if (!game->whole) return 0;
  core::Deck deck;
  deck.Assign(game->decks[0]);
  Rules rules;
  rules.CardGoal = game->CardGoal;
  rules.Deal(deck);
  for (int slot = 0; slot < FieldSlots; ++slot) rules.ChooseField(slot);
  while (rules.DrawCard().drawn) rules.CheckTotal();
  return 0;
}
