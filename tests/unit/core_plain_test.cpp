// Tests of the core's text, cards, score tables and settings files.
#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "core/cards/card.h"
#include "core/cards/card_images.h"
#include "core/cards/chance.h"
#include "core/cards/deck.h"
#include "core/scores/score_table.h"
#include "core/settings/settings_file.h"
#include "core/text/items.h"
#include "core/text/moment.h"
#include "core/text/number.h"
#include "core/text/text.h"
#include "tests/check.h"

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

// Hands in its draws in turn, then the last one for ever.
class StagedChance : public Chance {
 public:
  explicit StagedChance(std::vector<double> draws, Texts order = {})
      : draws_(std::move(draws)), order_(std::move(order)) {}
  double Draw() override { return draws_[std::min(next_++, draws_.size() - 1)]; }
  std::optional<Texts> StagedOrder(std::size_t) override {
    return order_.empty() ? std::nullopt : std::optional(order_);
  }

 private:
  std::vector<double> draws_;
  Texts order_;
  std::size_t next_ = 0;
};

const double nearlyOne = std::nextafter(1.0, 0.0);

}  // namespace

TEST(NumbersAreReadUpToTheFirstForeignCharacter) {
  const struct {
    const char* text;
    double value;
  } cases[] = {{"", 0},     {"abc", 0},  {" \t12D", 12},    {"1D5", 1},   {"1e5", 1},
               {"-7x", -7}, {"+3", 3},   {"+-3", 0},        {"- 3", 0},   {".5", 0.5},
               {"5.", 5},   {".", 0},    {"-.25.5", -0.25}, {"1,000", 1}, {"inf", 0},
               {"nan", 0},  {"0x10", 0}, {"12 34", 12},     {"\x80 5", 0}};
  for (const auto& [text, value] : cases) CHECK_EQ(NumberIn(text), value);
  CHECK_EQ(NumberIn("1234567890123456789012345678901234567890"),
           1234567890123456789012345678901234567890.0);
  CHECK_EQ(NumberIn("-" + Repeated("9", 1000000)), std::numeric_limits<double>::lowest());
  CHECK_EQ(NumberIn("0." + Repeated("0", 1000000) + "1"), 0.0);
  CHECK_EQ(WholeIn(Repeated("9", 40)), std::numeric_limits<std::int64_t>::max());
  CHECK_EQ(WholeIn("-" + Repeated("9", 40)), std::numeric_limits<std::int64_t>::min());
  CHECK_EQ(ClampTo<std::int32_t>(WholeIn(Repeated("9", 40))), 2147483647);
}

TEST(NumbersAreShownInTheirMasks) {
  CHECK_EQ(RoundToEven(1.5), 2);
  CHECK_EQ(RoundToEven(-2.5), -2);
  CHECK_EQ(RoundToEven(std::nan("")), 0);
  CHECK_EQ(RoundToEven(HUGE_VAL), std::numeric_limits<std::int64_t>::max());
  const struct {
    std::int64_t value;
    const char* text;
  } masks[] = {{0, "0"},
               {999, "999"},
               {1000, "1,000"},
               {-999, "-999"},
               {1234567, "1,234,567"},
               {-123456, "-123,456"},
               {2147483647, "2,147,483,647"},
               {std::numeric_limits<std::int64_t>::min(), "-9,223,372,036,854,775,808"}};
  for (const auto& [value, text] : masks) CHECK_EQ(Masked(value), text);
  const struct {
    float value;
    const char* text;
  } percents[] = {{0.0f, "."},     {0.5f, ".5"},       {0.05f, ".05"},    {0.004f, "."},
                  {12.0f, "12."},  {33.333f, "33.33"}, {99.996f, "100."}, {3.125f, "3.13"},
                  {10.1f, "10.1"}, {-0.5f, "-.5"},     {NAN, "."}};
  for (const auto& [value, text] : percents) CHECK_EQ(Percent(value), text);
}

TEST(TextIsMadeFitForShowing) {
  CHECK_EQ(Trim(" \t a b \t"), "a b");
  CHECK(FlagIn(FlagWord(true)) && !FlagIn("true") && !FlagIn("True ") && !FlagIn("1"));
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"plain", "plain"},
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
      {"a\r\n", {"a"}},
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
  const auto at = [](int hour, int minute) { return Moment{2000, 1, 1, hour, minute, 0}; };
  CHECK_EQ(ClockText(at(0, 5)), "12:05 AM");
  CHECK_EQ(ClockText(at(12, 5)), "12:05 PM");
  CHECK_EQ(TableDate(at(0, 0)), fillerDate);
  CHECK_EQ(TableDate(at(12, 0)), "Jan 01 2000 12:00 pm");
  CHECK_EQ(TableDate({2026, 12, 9, 13, 7, 8}), "Dec 09 2026 01:07 pm");

  CHECK_EQ(SecondsSince1970({1970, 1, 1, 0, 0, 0}), 0);
  CHECK_EQ(SecondsSince1970({2026, 1, 1, 12, 0, 0}), 1767268800);
  for (std::int64_t second = -62135596800; second < 253402300800; second += 86400 * 97 + 4321) {
    CHECK_EQ(SecondsSince1970(MomentAt(second)), second);
  }
  TableDate({std::numeric_limits<int>::min(), 99, std::numeric_limits<int>::min(), 1, 1, 1});
  CHECK_EQ(MomentAt(std::numeric_limits<std::int64_t>::max()).year, 9999);
  CHECK_EQ(MomentAt(std::numeric_limits<std::int64_t>::min()).year, 1);
}

TEST(BothSpellingsOfACardAreTheSameCard) {
  const CardImages images;
  std::set<std::string> names;
  Deck deck;
  CHECK(deck.CreateDeck());
  CHECK_EQ(deck.UpperBound(), 52);
  CHECK_EQ(deck(1), " 1S");
  CHECK_EQ(deck(14), " 1H");
  CHECK_EQ(deck(52), " 13D");
  CHECK(deck(0).empty() && deck(53).empty());
  for (int i = 1; i <= 52; ++i) {
    const std::string bare = Trimmed(deck(i));
    CHECK_EQ(RankOf(bare), RankOf(deck(i)));
    CHECK_EQ(SuitOf(bare), SuitOf(deck(i)));
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

  StagedChance staged({0.5}, {"1S", "1S", "x", ""});
  CHECK(deck.ShuffleDeck(staged));
  CHECK_EQ(deck.Keys(), (Texts{"1S", "1S", "x", ""}));

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
  StagedChance ends({0, nearlyOne});
  CHECK_EQ(RandomBetween(ends, 14, 65), 14);
  CHECK_EQ(RandomBetween(ends, 14, 65), 65);
  CHECK_EQ(RandomBetween(ends, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()),
           std::numeric_limits<int>::max());
  CHECK_EQ(RandomBelow(ends, 1), 0);
  CHECK_EQ(RandomBelow(ends, 0), 0);

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
    const int first = 3 * number - 2;
    CHECK_EQ(images.Find("FULL"), first);
    CHECK_EQ(images.Find("BACK"), first + 1);
    CHECK_EQ(images.Find(" HALF "), first + 2);
    int keyed = 0;
    for (int position = 1; position <= 12; ++position) keyed += !images.KeyAt(position).empty();
    CHECK_EQ(keyed, 3);
  }
  CHECK_EQ(images.Find("EMPTY"), 13);
  CHECK_EQ(images.Find("Empty"), 67);
  CHECK_EQ(images.Find("QDLE"), 68);
  CHECK(!images.Find("") && !images.Find("full") && !images.Find("14S"));

  std::set<std::string> artwork;
  for (int position = 1; position <= CardImages::count; ++position) {
    std::string name = CardImages::ArtworkAt(position);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
    artwork.insert(name);
  }
  CHECK_EQ(artwork.size(), 68u);  // also where the case of a file's name makes no difference
  CHECK(CardImages::ArtworkAt(69).empty() && images.KeyAt(-1).empty() && images.KeyAt(0).empty());
}

TEST(AScoreEntersItsTableAndComesBackFromItsFile) {
  const std::string filler = "Corvane, 30000, Jan 01 2000 12:00 am\r\n";
  std::vector<ScoreRow> rows = NewTable(30000);
  CHECK_EQ(FormatTable(rows), Repeated(filler, 10) + "\r\n");
  CHECK_EQ(TablePath("/p/", "Harvel Hi Score Table ", 90), "/p/Harvel Hi Score Table 90.Txt");

  CHECK_EQ(RankFor(rows, 30000), -1);
  CHECK_EQ(RankFor(rows, 30001), 0);
  rows = Insert(rows, 0, {"Ann*", 50000, "Feb 03 2026 01:02 pm"});
  rows = Insert(rows, 0, {"J\xE9r\xF4me \"x\xFF", 2147483647, "Feb 03 2026 01:03 pm"});
  CHECK_EQ(RankFor(rows, 50000), 2);
  CHECK(ParseTable(FormatTable(rows)) == rows);
  CHECK_EQ(rows.size(), 10u);
  rows[9].score = 4;
  CHECK_EQ(RankFor(rows, 5), 9);
  CHECK_EQ(RankFor(rows, 4), -1);
}

TEST(DamagedTablesAreReadAsFarAsTheyGo) {
  const auto three = ParseTable("A, 3, x\r\nB, 2, y\nC, 1");
  CHECK_EQ(three.size(), 3u);
  CHECK_EQ(RankFor(three, 1), -1);
  CHECK_EQ(RankFor(three, 2), 2);
  CHECK_EQ(ParseTable("\r\n\nA, 3, x\r\n\r\nB, 2, y\r\n")[1].name, "B");
  CHECK_EQ(ParseTable(FormatTable(NewTable(1)) + FormatTable(NewTable(2))).size(), 10u);
  CHECK_EQ(ParseTable("A, 99999999999, x")[0].score, 2147483647);
  CHECK_EQ(ParseTable("A, rubbish, x")[0].score, 0);
  // A quote in a name may not swallow the rows behind it, a comma or line end not shift them.
  CHECK_EQ(ParseTable("\"A, 3, x\r\nB\", 2, y\r\n")[0].score, 3);
  const auto odd = ParseTable(FormatTable({{"\"a,b\r\nc", 7, "d\n,\""}, {"E", 6, "f"}}));
  CHECK_EQ(odd[0].name, "\"a b  c");
  CHECK_EQ(odd[1].score, 6);
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
  CHECK_EQ(
      text,
      "[State]\r\n0\r\n\r\n[Time]\r\n90\r\n\r\n[Play Sounds]\r\nTrue\r\n\r\n[Deck]\r\n2\r\n\r\n"
      "[User Name]\r\nJ\xE9r\xF4me\r\n\r\n\r\n");
  time = 1, deck = 1, sounds = false, name = "";
  ReadSettings(text, keys);
  CHECK_EQ(FormatSettings(keys), text);

  // Any order, unknown keys, values of no sense, several on a line, a key with no value at the end.
  const auto read = [&keys](const std::string& damaged) { ReadSettings(damaged, keys); };
  read(
      "[Deck], 999999999999999999999, [time], 5\n[Unknown]\r[Pace]\r\n\"a, "
      "b\"\n[Pace]\r\n\r\n[State]\n7\n[Time]");
  CHECK_EQ(deck, 255);
  CHECK_EQ(time, 90);
  CHECK_EQ(clicks, "a, b;;");
  read("[Play Sounds]\r\ntrue\r\n[Time]\r\n-70000.5");
  CHECK(!sounds);
  CHECK_EQ(time, -32768);
  name = "two\r\nlines";
  CHECK_EQ(FormatSettings({Text("[N]", name)}), "[N]\r\ntwo  lines\r\n\r\n\r\n");
  read(std::string(5000000, '[') + std::string(5000000, '\0'));
}
