// Quindle's rules: the decks of the goals, exposure, totals, sets in both modes, draws, saved
// games.
#include <algorithm>
#include <map>
#include <set>

#include "core/cards/card.h"
#include "games/quindle/rules.h"
#include "games/quindle/saved_game.h"
#include "tests/check.h"

using namespace games::quindle;

namespace {

/// A deck whose first cards are given; the rest are twos.
core::Deck DeckOf(std::vector<std::string> keys, std::size_t size = 52) {
  keys.resize(size, "2C");
  core::Deck deck;
  deck.Assign(std::move(keys));
  return deck;
}

Rules Dealt(std::vector<std::string> keys, bool enhanced, std::int16_t goal = 11) {
  Rules rules;
  rules.CardGoal = goal;
  rules.EnhancedScoring = enhanced;
  rules.Deal(DeckOf(std::move(keys)));
  return rules;
}

/// Takes slots off one after the other as sets of one card each: every card is as high as the goal.
void ClearSlots(Rules& rules, std::initializer_list<int> slots) {
  for (int slot : slots) {
    CHECK(rules.ChooseField(slot) == Choice::Selected);
    CHECK(rules.CheckTotal().made);
  }
}

}  // namespace

TEST(the_deck_of_each_goal) {
  const std::map<int, int> sizes = {{10, 52}, {11, 52}, {12, 56}, {13, 60}, {14, 64}, {15, 64}};
  for (const auto& [goal, size] : sizes) {
    Rules rules;
    rules.CardGoal = static_cast<std::int16_t>(goal);
    core::Deck deck;
    CHECK(rules.CreateQuindleDeck(deck));
    CHECK_EQ(deck.UpperBound(), size);
    std::map<int, int> ranks;
    for (const std::string& key : deck.Keys()) ++ranks[core::RankOf(key)];
    CHECK_EQ(ranks[1], 16);
    for (int rank = 2; rank <= 10; ++rank) CHECK_EQ(ranks[rank], 4);
    CHECK_EQ(ranks[11] + ranks[12] + ranks[13], size - 52);
    CHECK_EQ(deck(5) + deck(17), "1H 2S");
    rules.Deal(deck);
    CHECK_EQ(rules.StockSize(), size - 22);
    CHECK_EQ(rules.StockTop, size - 23);
  }
}

TEST(exposure_follows_the_covers) {
  std::vector<std::string> keys(22, "10S");
  Rules rules = Dealt(keys, true, 10);
  std::set<int> exposed;
  for (int slot = 0; slot < FieldSlots; ++slot) {
    if (rules.CheckLegalFieldCardMove(slot)) exposed.insert(slot);
  }
  CHECK((exposed == std::set<int>{7, 20, 21}));
  CHECK(rules.ChooseField(3) == Choice::Refused);
  // Column by column up to the top: each slot is refused until the last of its covers has gone.
  ClearSlots(rules, {20, 16, 17, 12});
  CHECK(rules.ChooseField(3) == Choice::Refused);
  ClearSlots(rules, {7, 3, 21, 18, 13});
  CHECK(rules.ChooseField(0) == Choice::Refused);
  ClearSlots(rules, {4, 0});
  ClearSlots(rules, {19, 14, 15, 8, 9, 2, 10, 11, 5, 6});
  CHECK(!rules.CheckForCompletion());
  ClearSlots(rules, {1});
  CHECK(rules.CheckForCompletion());
  CHECK_EQ(rules.ElevensCount, 22);
  CHECK_EQ(rules.UpCardWorth(), 0);
}

TEST(totals_reach_the_goal_and_never_pass_it) {
  std::vector<std::string> keys(22, "9S");
  keys[7] = " 5H";
  keys[20] = "6D";
  keys[21] = "1C";
  keys.push_back("10H");
  for (bool enhanced : {false, true}) {
    Rules rules = Dealt(keys, enhanced);
    CHECK(rules.ChooseUpCard() == Choice::Selected);
    CHECK(rules.ChooseField(20) == Choice::Refused);
    CHECK_EQ(rules.CardTotal, 10);
    CHECK(!rules.CheckTotal().made);
    CHECK(rules.ChooseUpCard() == Choice::Deselected);
    CHECK(rules.ChooseField(7) == Choice::Selected);
    CHECK(rules.ChooseField(20) == Choice::Selected);
    SetMade set = rules.CheckTotal();
    CHECK(set.made && !set.upCardUsed);
    CHECK((set.slots == std::vector<int>{7, 20}));
    // The up card is worth the row of the first slot that still holds a card: the top.
    rules.ChooseUpCard();
    rules.ChooseField(21);
    set = rules.CheckTotal();
    CHECK(set.made && set.upCardUsed);
    CHECK_EQ(set.upCardPoints, enhanced ? 600 : 100);
    CHECK_EQ(rules.UpCount, 0);
    CHECK_EQ(rules.ElevensCount, 2);
    CHECK(rules.ChooseUpCard() == Choice::Refused);
  }
  CHECK_EQ(SlotPoints(0, false), 700);
  CHECK_EQ(SlotPoints(4, true), 500);
  CHECK_EQ(SlotPoints(19, false), 300);
}

TEST(draws_pay_the_field_and_end_on_the_first_up_card) {
  std::vector<std::string> keys(22, "10S");
  keys.push_back("3D");
  for (bool enhanced : {false, true}) {
    Rules rules = Dealt(keys, enhanced, 10);
    // With a full field the new card is laid on the pile, and nothing is paid.
    Draw draw = rules.DrawCard();
    CHECK(draw.drawn && draw.filledSlot == -1 && draw.cost == 0);
    CHECK_EQ(rules.UpCount, 2);
    ClearSlots(rules, {7, 20});
    rules.ChooseUpCard();
    draw = rules.DrawCard();
    CHECK_EQ(draw.filledSlot, 7);
    CHECK_EQ(draw.cost, enhanced ? 400 : 100);
    CHECK_EQ(rules.CardTotal, 0);
    CHECK_EQ(rules.FieldCard(7), "2C");
    CHECK_EQ(rules.UpCount, 2);
    int draws = 2;
    while (rules.DrawCard().drawn) ++draws;
    CHECK_EQ(draws, 30);
    CHECK_EQ(rules.UpCard(), "3D");
    CHECK_EQ(rules.StockTop, -1);
  }
}

TEST(saved_games_come_back_whole_or_not_at_all) {
  SavedGame game{.CardGoal = 12,
                 .timeLimit = "90",
                 .score = "160001",
                 .custom = true,
                 .userName = "Ann*",
                 .decks = {},
                 .whole = true};
  game.decks[0].assign(56, " 5S");
  game.decks[1].assign(56, "12D");
  game.decks[2].assign(56, "");
  const std::string text = FormatSavedGame(game);
  CHECK(text.find("[Round 3 Deck]") == std::string::npos);
  const auto read = ParseSavedGame(text, SavedGame{});
  CHECK(read && read->whole && read->custom);
  CHECK_EQ(FormatSavedGame(*read), text);
  CHECK(!ParseSavedGame("[Time Limit]\r\n90\r\n", SavedGame{}));
  for (std::size_t length = 14; length + 2 < text.size(); length += 7) {
    const auto cut = ParseSavedGame(text.substr(0, length), SavedGame{});
    if (length < text.find("[Round 2 Deck]")) CHECK(cut && !cut->whole);
  }
}
