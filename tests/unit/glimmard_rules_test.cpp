// Glimmard: phrase files that come from anywhere, the layout against a plainer one, the rules.
#include <algorithm>
#include <deque>
#include <filesystem>

#include "core/files/files.h"
#include "games/glimmard/phrases.h"
#include "games/glimmard/rules.h"
#include "tests/check.h"

using namespace games::glimmard;

namespace {

/// Draws what is staged, and then at random.
class StagedChance : public core::Chance {
 public:
  std::deque<double> draws;
  double Draw() override {
    if (draws.empty()) return core::Chance::Draw();
    const double draw = draws.front();
    draws.pop_front();
    return draw;
  }
};

std::string FileOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<std::string> Sorted(std::vector<std::string> texts) {
  std::erase(texts, "");
  std::sort(texts.begin(), texts.end());
  return texts;
}

std::vector<std::string> PhrasesIn(const std::string& text) {
  return Sorted(ReadPhrases(text).phrases);
}

/// The layout once more, line by line: nothing if the phrase fails.
std::string PlainLayout(std::string rest) {
  if (rest.empty() || rest.size() > 90) return "";
  const auto blanks = [](std::size_t count) { return std::string(count, ' '); };
  const auto stripped = [](const std::string& line) {
    const auto first = line.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : line.substr(first);
  };
  const auto isBlank = [](const std::string& line, std::size_t n) {
    return n < line.size() && line[n] == ' ';
  };
  std::string done;
  for (std::size_t line = 0; line < 6; ++line) {
    const bool last = rest.size() <= 14;
    rest = stripped(rest);
    if (last) {
      const std::size_t free = 15 - rest.size();
      const std::string above = blanks(line < 2 ? 30 : line < 4 ? 15 : 0);
      return above + done + blanks(free < 15 ? free - free / 2 : 0) + rest;
    }
    if (isBlank(rest, 14) || isBlank(rest, 15)) {
      done += rest.substr(0, 15);
      rest = rest.substr(15);
      continue;
    }
    const auto end = rest.substr(0, 14).rfind(' ');
    if (end == std::string::npos) return "";
    const std::size_t pad = 14 - end;
    done += blanks(pad - pad / 2) + rest.substr(0, end + 1) + blanks(pad / 2);
    rest = rest.substr(end + 1);
  }
  return "";
}

std::string TextOf(const PhraseLayout& layout) {
  std::string text;
  for (char32_t c : layout.fits ? layout.text : U"") text += Utf8Of(c);
  return text;
}

void CheckLayout(const std::string& phrase) {
  CHECK_EQ(TextOf(LayoutPhrase(phrase)), PlainLayout(phrase));
}

Rules RoundWith(const std::string& phrase, std::int16_t guesses = 8) {
  Rules rules;
  rules.StartRound(guesses);
  rules.TakePhrase(LayoutPhrase(phrase));
  rules.LetterValue = 500;
  return rules;
}

}  // namespace

TEST(positions_of_a_file_with_and_without_a_number) {
  const PhraseList numbered =
      ReadPhrases(FileOf({"CURRENT_PHRASE_NUMBER= 2.5 ", "one", "two", "", "three", ""}));
  CHECK((numbered.phrases == std::vector<std::string>{"", "one", "two", "", "three", ""}));
  CHECK_EQ(numbered.count, 5);
  CHECK_EQ(numbered.position, 2);
  const PhraseList plain = ReadPhrases(FileOf({"one", "two"}));
  CHECK((plain.phrases == std::vector<std::string>{"one", "two", ""}));
  CHECK_EQ(plain.count, 2);
  CHECK_EQ(plain.position, -1);
  CHECK_EQ(FormatPhrases(numbered), FileOf({"CURRENT_PHRASE_NUMBER=2", "one", "two", "three", ""}));
}

TEST(files_of_a_careless_hand_keep_all_their_phrases) {
  const std::vector<std::string> all = {"one", "three", "two"};
  const std::string header = "CURRENT_PHRASE_NUMBER";
  for (const std::string text :
       {"one\ntwo\rthree", "\r\none\r\n\r\ntwo\r\nthree\r\n\r\n\r\n", "\xEF\xBB\xBFone\ntwo\nthree",
        "CURRENT_PHRASE_NUMBER=1\r\none\r\ntwo\r\nthree",
        "CURRENT_PHRASE_NUMBER\none\ntwo\nthree\n",
        "CURRENT_PHRASE_NUMBER=99999999999\none\ntwo\nthree\n\n",
        "CURRENT_PHRASE_NUMBER=-3\none\ntwo\nthree\n",
        "\xEF\xBB\xBF"
        "CURRENT_PHRASE_NUMBER=x\none\ntwo\nthree\n"}) {
    PhraseList list = ReadPhrases(text);
    core::Chance chance;
    for (int pass = 0; pass < 5; ++pass) {
      CHECK(Sorted(list.phrases) == all);
      CHECK(PhrasesIn(FormatPhrases(list)) == all);
      CHECK(ShufflePhrases(list, chance));
    }
  }
  for (const std::string& text : {std::string(), header, header + "=4\r\n"}) {
    PhraseList list = ReadPhrases(text);
    core::Chance chance;
    CHECK(!list.loaded && !ShufflePhrases(list, chance));
  }
  const std::string bytes("a\0b\xFF\xC3 \x80", 7);
  CHECK(PhrasesIn(FormatPhrases(ReadPhrases(bytes + "\r\n"))) == std::vector<std::string>{bytes});
}

TEST(a_shuffle_swaps_every_position_with_any_but_the_first) {
  PhraseList list = ReadPhrases(FileOf({"a", "b", "c"}));
  StagedChance chance;
  chance.draws = {0.99, 0, 0.5, 0.4};  // positions 3, 1, 2, 2
  CHECK(ShufflePhrases(list, chance));
  CHECK((list.phrases == std::vector<std::string>{"", "b", "a", "c"}));
}

TEST(the_place_is_kept_over_sessions_and_kills) {
  namespace fs = std::filesystem;
  const std::string home = (fs::temp_directory_path() / "glimmard-test/").string();
  fs::remove_all(home);
  fs::create_directories(home);
  std::vector<std::string> lines;
  for (int i = 0; i < 30; ++i) lines.push_back("phrase " + std::to_string(i));
  core::WriteWhole(home + "GMP.Dat", FileOf(lines));
  core::Chance chance;
  std::vector<std::string> seen;
  for (int session = 0; session < 8; ++session) {
    PhraseFiles files;
    int drawn = 0;
    for (int tries = 0; drawn < 4 && tries < 100; ++tries) {
      const DrawnPhrase next = files.GetPhrase(3, home, chance);
      CHECK(next.trouble == Trouble::None);
      if (next.phrase.empty()) continue;
      // The one shown last comes up once more, as the list moves up by one on being read again.
      if (seen.empty() || seen.back() != next.phrase) seen.push_back(next.phrase);
      ++drawn;
    }
    // A kill at any step of the writing leaves the old file or the new one, whole.
    struct Killed {};
    core::writeStepForTests = [session](int step) {
      if (session % 3 == 1 && step == session / 3) throw Killed{};
    };
    try {
      CHECK(files.WritePhraseFiles(home).empty());
    } catch (const Killed&) {
    }
    core::writeStepForTests = {};
    CHECK(PhrasesIn(*core::ReadWhole(home + "GMP.Dat")) == Sorted(lines));
    if (session == 0) CHECK(core::ReadWhole(home + "GMP.Dat")->starts_with("CURRENT_PHRASE_NUM"));
  }
  // Without the three kills, sessions one to eight would have gone through 4 + 7 * 3 phrases.
  std::vector<std::string> different = Sorted(seen);
  different.erase(std::unique(different.begin(), different.end()), different.end());
  CHECK(different.size() >= 12);

  PhraseFiles files;
  const DrawnPhrase missing = files.GetPhrase(7, home, chance);
  CHECK(missing.trouble == Trouble::Missing && LayoutPhrase(missing.phrase).fits);
  CHECK_EQ(*core::ReadWhole(home + "GMPL.Dat"), MissingFilePhrase + "\r\n");
  const int topic = files.GetPhrase(RandomTopic, home, chance).topic;
  CHECK(topic >= 1 && topic <= TopicCount);
  fs::remove_all(home);
}

TEST(the_layout_of_chosen_phrases) {
  CHECK_EQ(TextOf(LayoutPhrase("Chess")), std::string(35, ' ') + "Chess");
  const std::string three = "abcdefgh ijklmnop qrstuvwxy";
  CHECK_EQ(TextOf(LayoutPhrase(three)), std::string(15, ' ') +
                                            "   abcdefgh       ijklmnop       "
                                            "qrstuvwxy");
  const std::string full = "fourteen chars fourteen chars fourteen chars fourteen chars ";
  for (const std::string& phrase : std::vector<std::string>{
           std::string(14, 'a'), std::string(15, 'a'), std::string(16, 'a'),
           "a " + std::string(14, 'b'), "a " + std::string(15, 'b'), std::string(14, 'a') + " b",
           std::string(13, 'a') + " bc", std::string(15, 'a') + " b",
           "it's 4 o'clock, said he (twice)", "a  b", "one two  three   four", full,
           full + "fourteen chars fourteen chars", full + "fourteen chars fourteen charsx",
           full + "fourteen chars fifteen charact", full + "ab cd ef gh ij kl mn op qr st u",
           std::string("hello          world and more"),
           std::string("ab            cdefghijklmnopq")}) {
    CheckLayout(phrase);
  }
  CHECK(!LayoutPhrase("").fits && !LayoutPhrase("   ").fits);
  CHECK(!LayoutPhrase(std::string(1000000, 'a')).fits);
  // Characters, not bytes, stand in cells; a byte that is no UTF-8 is one of Latin-1.
  CHECK_EQ(TextOf(LayoutPhrase("Caf\xE9")), TextOf(LayoutPhrase("Caf\xC3\xA9")));
  CHECK_EQ(LayoutPhrase("\xE2\x82\xAC\xF0\x9F\x98\x80").text.size(), 39u);
  CHECK_EQ(LayoutPhrase("ten-letter").LetterValueLimit, 80);
  CHECK_EQ(LayoutPhrase("ab cdefgh ijklm nopqr stuvw xyzab cdefg hijkl mn").LetterValueLimit, 20);
}

TEST(the_layout_of_random_phrases) {
  core::Chance chance;
  int fits = 0;
  for (int i = 0; i < 200000; ++i) {
    std::string phrase;
    const int length = core::RandomBetween(chance, 1, 92);
    const int blanks = core::RandomBetween(chance, 2, 12);
    while (static_cast<int>(phrase.size()) < length) {
      phrase += core::RandomBelow(chance, blanks) == 0 ? ' ' : 'a';
    }
    phrase.front() = phrase.back() = 'x';
    CheckLayout(phrase);
    fits += LayoutPhrase(phrase).fits;
  }
  CHECK(fits > 10000 && fits < 190000);
}

TEST(a_round_of_letters) {
  Rules rules = RoundWith("It's 9 to 5", 2);
  CHECK(!rules.PhraseComplete());
  LetterPick pick = rules.PickLetter(25);
  CHECK(pick.cells.empty() && pick.lostGuess == 1 && pick.end == RoundEnd::None);
  CHECK(!rules.VowelsOpen && !rules.LetterHit);
  pick = rules.PickLetter(19);
  CHECK((pick.cells == std::vector<int>{33, 39}));
  CHECK(pick.opensVowels && rules.VowelsOpen && pick.value == 500);
  CHECK(!rules.PickLetter(18).opensVowels);
  CHECK(rules.Face(32) == 0 && rules.IsShown(32) && !rules.IsShown(36) && !rules.IsShown(89));
  CHECK(rules.PickLetter(8).end == RoundEnd::None);
  CHECK(rules.PickLetter(14).end == RoundEnd::Solved);
  CHECK(rules.PhraseSolved && rules.RoundsSolved == 1 && rules.GuessesLeft == 0);

  rules = RoundWith("abc", 8);
  CHECK(rules.Solve() && !rules.Solve());
  CHECK(!rules.PickLetter(1).opensVowels);
  for (std::int16_t guesses : {-5, 0, 1, 8, 9, 32767}) {
    CHECK_EQ(RoundWith("abc", guesses).GuessesLeft, guesses < 2 ? 0 : 7);
  }
}

TEST(the_bonus_picks) {
  Rules rules = RoundWith("abc");
  rules.BonusPicking = true;
  BonusPick pick = rules.PickForBonus(24);
  CHECK(pick.taken && pick.vowel && pick.lastOfItsKind && pick.consonantsToGo == 5 &&
        !pick.vowelToGo);
  CHECK(!rules.PickForBonus(0).taken && !rules.PickForBonus(24).taken);
  for (int letter : {1, 2, 3, 5}) CHECK(!rules.PickForBonus(letter).lastOfItsKind);
  CHECK(!rules.PickForBonus(5).taken);
  pick = rules.PickForBonus(6);
  CHECK(pick.complete && pick.lastOfItsKind && pick.consonantsToGo == 0 && !rules.BonusPicking);
  CHECK(!rules.PickForBonus(7).taken && !rules.PickForBonus(-1).taken);
  CHECK_EQ(rules.Picks[5], 6);
  rules.EndBonusPicks();
  CHECK(rules.SolveMode && rules.GuessesLeft == 0);
}

TEST(what_follows_a_round) {
  CHECK(NextAfter(2, 0, 1, 0) == Next::RoundTwo);
  CHECK(NextAfter(3, 250000, 250000, 2) == Next::BonusRound);
  CHECK(NextAfter(3, 249999, 250000, 2) == Next::GameOver);
  CHECK(NextAfter(3, 999999, 250000, 1) == Next::GameOver);
  CHECK(NextAfter(4, 999999, 250000, 3) == Next::GameOver);
}
