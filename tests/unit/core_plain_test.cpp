// Tests of the core's text, cards, score tables and settings files.
#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>
#include <map>
#include <set>

#include "core/cards/card.h"
#include "core/cards/card_images.h"
#include "core/cards/deck.h"
#include "core/scores/score_table.h"
#include "core/settings/settings_file.h"
#include "core/text/items.h"
#include "core/text/moment.h"
#include "core/text/number.h"
#include "core/text/text.h"
#include "tests/check.h"
#include "tests/unit/staged_chance.h"

using namespace core;

namespace {

using Texts = std::vector<std::string>;

Texts ItemsOf(const std::string& text) {
  ItemReader reader(text);
  Texts items;
  while (!reader.AtEnd()) items.push_back(*reader.Next());
  CHECK(!reader.Next());
  return items;
}

std::string Repeated(const std::string& part, std::size_t times) {
  std::string text;
  for (std::size_t i = 0; i < times; ++i) text += part;
  return text;
}

const double nearlyOne = std::nextafter(1.0, 0.0);

}  // namespace

TEST(NumbersAreReadUpToTheFirstForeignCharacter) {
  const std::map<std::string, double> cases = {
      {"", 0},     {"abc", 0},  {" \t12D", 12},    {"1D5", 1},   {"1e5", 1},
      {"-7x", -7}, {"+3", 3},   {"+-3", 0},        {"- 3", 0},   {".5", 0.5},
      {"5.", 5},   {".", 0},    {"-.25.5", -0.25}, {"1,000", 1}, {"inf", 0},
      {"nan", 0},  {"0x10", 0}, {"12 34", 12},     {"\x80 5", 0}};
  for (const auto& [text, value] : cases) CHECK_EQ(NumberIn(text), value);
  CHECK_EQ(NumberIn("-" + Repeated("9", 1000000)), std::numeric_limits<double>::lowest());
  CHECK_EQ(NumberIn("0." + Repeated("0", 1000000) + "1"), 0.0);
  CHECK_EQ(WholeIn(Repeated("9", 40)), INT64_MAX);
  CHECK_EQ(WholeIn("-" + Repeated("9", 40)), INT64_MIN);
}

TEST(NumbersAreShownInTheirMasks) {
  CHECK(RoundToEven(1.5) == 2 && RoundToEven(-2.5) == -2 && RoundToEven(NAN) == 0);
  CHECK_EQ(RoundToEven(HUGE_VAL), INT64_MAX);
  const std::map<std::int64_t, std::string> masks = {
      {999, "999"}, {-1000, "-1,000"}, {INT64_MIN, "-9,223,372,036,854,775,808"}};
  for (const auto& [value, text] : masks) CHECK_EQ(Masked(value), text);
  const std::vector<std::pair<float, std::string>> percents = {
      {0.0f, "."},     {0.5f, ".5"},       {0.05f, ".05"},    {0.004f, "."},
      {12.0f, "12."},  {33.333f, "33.33"}, {99.996f, "100."}, {3.125f, "3.13"},
      {10.1f, "10.1"}, {-0.5f, "-.5"},     {NAN, "."}};
  for (const auto& [value, text] : percents) CHECK_EQ(Percent(value), text);
}

TEST(TextIsMadeFitForShowing) {
  CHECK_EQ(Trim(" \t a b \t"), "a b");
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x82\xA1", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x82\xA1"},
      {"caf\xE9!", "caf\xC3\xA9!"},
      {"\xC3", "\xC3\x83"},                                       // cut short
      {"\xC0\x80", "\xC3\x80\xC2\x80"},                           // longer than needed
      {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xC2\x80"},               // half of a pair
      {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xC2\x80\xC2\x80"}};  // beyond the last code point
  for (const auto& [bytes, shown] : cases) CHECK_EQ(Utf8ForShowing(bytes), shown);
}

TEST(ItemsEndAtCommasAndLineEnds) {
  const std::vector<std::pair<std::string, Texts>> cases = {
      {"", {}},
      {"a\r\n\r\nb\nc\rd", {"a", "", "b", "c", "d"}},
      {" Bob , 50000,\tJan 01 2000 12:00 am \r\n", {"Bob", "50000", "Jan 01 2000 12:00 am"}},
      {"\"a, b\",c", {"a, b", "c"}},
      {" \" a \" \r\nb", {" a ", "b"}},
      {"\"open, 5, d\r\nnext, 6, e", {"\"open", "5", "d", "next", "6", "e"}},
      {"\"B\" ob, 5", {"\"B\" ob", "5"}},
      {",,\r\n", {"", "", ""}},
      {std::string("a\0b,\x1A", 5), {std::string("a\0b", 3), "\x1A"}}};
  for (const auto& [text, items] : cases) CHECK_EQ(ItemsOf(text), items);
}

TEST(ItemsOfHugeLinesTakeLinearTime) {
  constexpr std::size_t times = 2500000;
  CHECK_EQ(ItemsOf(Repeated("\"a, ", times)).size(), times + 1);
  CHECK_EQ(ItemsOf(Repeated("\"\" \"", times)).size(), 1u);
  CHECK_EQ(ItemsOf(Repeated("\r\n \"\n", times)).size(), 2 * times);
  CHECK_EQ(ItemsOf('"' + Repeated("    ", times) + 'x').size(), 1u);
}

TEST(MomentsAreShownReadAndCounted) {
  CHECK_EQ(ClockText({2000, 1, 1, 0, 5, 0}), "12:05 AM");
  CHECK_EQ(TableDate({2000, 1, 1, 0, 0, 0}), fillerDate);
  CHECK_EQ(TableDate({2026, 12, 9, 13, 7, 8}), "Dec 09 2026 01:07 pm");

  CHECK_EQ(SecondsSince1970({2026, 1, 1, 12, 0, 0}), 1767268800);
  for (std::int64_t second = -62135596800; second < 253402300800; second += 86400 * 97 + 4321) {
    CHECK_EQ(SecondsSince1970(MomentAt(second)), second);
  }
  TableDate({INT_MIN, 99, INT_MIN, 1, 1, 1});
  for (const auto& [second, year] : {std::pair{INT64_MIN, 1}, {INT64_MAX, 9999}}) {
    CHECK_EQ(MomentAt(second).year, year);
  }
}

TEST(BothSpellingsOfACardAreTheSameCard) {
  const CardImages images;
  std::set<std::string> names;
  Deck deck;
  CHECK(deck.CreateDeck());
  CHECK_EQ(deck(1) + deck(14) + deck(52) + deck(0) + deck(53), " 1S 1H 13D");
  for (int i = 1; i <= 52; ++i) {
    const std::string bare = Trimmed(deck(i));
    CHECK_EQ(CardName(bare), CardName(deck(i)));
    CHECK_EQ(images.Find(deck(i)), 13 + i);
    CHECK_EQ(images.KeyAt(13 + i), bare);
    names.insert(CardName(bare));
  }
  CHECK_EQ(names.size(), 52u);
  CHECK_EQ(CardName(" 12H"), "Queen of Hearts");
  for (const char* noCard : {"", "14S", "0S", "5X", "EMPTY"}) CHECK_EQ(CardName(noCard), "");
}

TEST(ShufflingIsOnePassOfSwapsWithAnySlot) {
  Deck deck;
  deck.Assign({"a", "b", "c", "d"});
  // Slots 1 to 4 swap with 4, 1, 1, 3: only a pass over all slots and the whole row ends so.
  StagedChance swaps({0.75, 0, 0.2, 0.5});
  CHECK(deck.ShuffleDeck(swaps));
  CHECK_EQ(deck.Keys(), (Texts{"c", "d", "a", "b"}));

  // A deck of 64 that holds cards more than once keeps them all, in an order of its own each time.
  deck.Resize(64);
  for (int i = 1; i <= 64; ++i) deck.Assign(i, KeyFromNumber(i <= 16 ? 1 : i % 13 + 1, hearts));
  std::multiset<std::string> before(deck.Keys().begin(), deck.Keys().end());
  Chance frozen([] { return 42; });
  std::set<Texts> orders;
  for (int round = 0; round < 20; ++round) {
    CHECK(deck.ShuffleDeck(frozen));
    CHECK(std::multiset<std::string>(deck.Keys().begin(), deck.Keys().end()) == before);
    orders.insert(deck.Keys());
  }
  CHECK_EQ(orders.size(), 20u);
}

TEST(ChanceStaysInItsRangeAndIsEven) {
  StagedChance ends({0, nearlyOne, nearlyOne, nearlyOne, nearlyOne});
  CHECK_EQ(RandomBetween(ends, 14, 65), 14);
  CHECK_EQ(RandomBetween(ends, 14, 65), 65);
  CHECK_EQ(RandomBetween(ends, INT_MIN, INT_MAX), INT_MAX);
  CHECK(RandomBelow(ends, 1) == 0 && RandomBelow(ends, 0) == 0);

  // Even over its range, and draws that follow one another are not bound together, whether the
  // clock stands or runs.
  std::uint64_t tick = 0;
  for (const bool runs : {false, true}) {
    Chance chance([&tick, runs] { return runs ? ++tick : 7; });
    std::vector<int> pairs(100);
    int last = 0;
    for (int i = 0; i < 100000; ++i) {
      const int now = RandomBelow(chance, 10);
      ++pairs[static_cast<std::size_t>(last * 10 + now)];
      last = now;
    }
    const auto [least, most] = std::ranges::minmax(pairs);
    CHECK(least > 850 && most < 1150);
  }
}

TEST(AChosenDesignCarriesTheThreeKeys) {
  CardImages images;
  for (const int number : {1, 4, 4, 2, 3, 1}) {
    images.ChooseDesign(static_cast<Design>(number));
    for (int i = 0; i < 12; ++i) {
      const char* keys[] = {"FULL", "BACK", "HALF"};
      CHECK_EQ(images.KeyAt(i + 1), i / 3 + 1 == number ? keys[i % 3] : "");
    }
  }
  CHECK(images.Find("EMPTY") == 13 && images.Find("Empty") == 67 && images.Find("QDLE") == 68);
  CHECK(!images.Find("") && !images.Find("full") && !images.Find("14S"));
  CHECK(CardImages::ArtworkAt(69).empty() && images.KeyAt(-1).empty() && images.KeyAt(0).empty());

  std::set<std::string> artwork;  // by names that differ also where case makes no difference
  for (int position = 1; position <= CardImages::count; ++position) {
    std::string name = CardImages::ArtworkAt(position);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
    artwork.insert(name);
  }
  CHECK_EQ(artwork.size(), 68u);
}

TEST(AScoreEntersItsTableAndComesBackFromItsFile) {
  std::vector<ScoreRow> rows = NewTable(30000);
  CHECK_EQ(FormatTable(rows), Repeated("Corvane, 30000, Jan 01 2000 12:00 am\r\n", 10) + "\r\n");
  CHECK(RankFor(rows, 30000) == -1 && RankFor(rows, 30001) == 0);
  rows = Insert(rows, 0, {"Ann*", 50000, "Feb 03 2026 01:02 pm"});
  rows = Insert(rows, 0, {"J\xE9r\xF4me \"x\xFF", 2147483647, "Feb 03 2026 01:03 pm"});
  CHECK(rows.size() == 10 && RankFor(rows, 50000) == 2);
  CHECK(ParseTable(FormatTable(rows)) == rows);
}

TEST(DamagedTablesAreReadAsFarAsTheyGo) {
  const auto three = ParseTable("A, 3, x\r\nB, 2, y\nC, 1");
  CHECK(three.size() == 3 && RankFor(three, 1) == -1 && RankFor(three, 2) == 2);
  CHECK_EQ(ParseTable("\r\n\nA, 3, x\r\n\r\nB, 2, y\r\n")[1].name, "B");
  CHECK_EQ(ParseTable(FormatTable(NewTable(1)) + FormatTable(NewTable(2))).size(), 10u);
  CHECK_EQ(ParseTable("A, 99999999999, x")[0].score, 2147483647);
  // A quote in a name may not swallow the rows behind it, a comma or line end not shift them.
  CHECK_EQ(ParseTable("\"A, 3, x\r\nB\", 2, y\r\n")[0].score, 3);
  const auto odd = ParseTable(FormatTable({{"\"a,b\r\nc", 7, "d\n,\""}, {"E", 6, "f"}}));
  CHECK(odd[0].name == "\"a b  c" && odd[1].score == 6);
  CHECK(RankFor({}, 5) == -1 && Insert({}, 3, {"A", 1, ""}).size() == 1);
  CHECK_EQ(ParseTable(std::string(1000000, '\0')).size(), 0u);
}

TEST(SettingsAreReadAsTheyWereWritten) {
  std::int16_t time = 90;
  std::uint8_t deck = 2;
  bool sounds = true;
  std::string name = "J\xE9r\xF4me";
  std::string clicks;
  const std::vector<SettingsKey> keys = {
      {"[State]", [] { return "0"; }, {}},
      {"[Pace]", {}, [&clicks](const std::string& value) { clicks += value + ";"; }},
      Number("[Time]", time),
      Flag("[Play Sounds]", sounds),
      Number("[Deck]", deck),
      Text("[User Name]", name)};
  const std::string text = FormatSettings(keys);
  time = 1, deck = 1, sounds = false, name = "";
  ReadSettings(text, keys);
  CHECK_EQ(FormatSettings(keys), text);

  // Any order, unknown keys, values of no sense, several on a line, a key with no value at the end.
  ReadSettings(
      "[Deck], 999999999999999999999, [time], 5\n[Unknown]\r[Pace]\r\n\"a, b\"\n"
      "[Pace]\r\n\r\n[State]\n7\n[Time]",
      keys);
  CHECK(deck == 255 && time == 90 && clicks == "a, b;;");
  ReadSettings("[Play Sounds]\r\ntrue\r\n[Time]\r\n-70000.5", keys);
  CHECK(!sounds && time == -32768);
  name = "two\r\nlines";
  CHECK_EQ(FormatSettings({Text("[N]", name)}), "[N]\r\ntwo  lines\r\n\r\n\r\n");
  ReadSettings(std::string(5000000, '[') + std::string(5000000, '\0'), keys);
}
