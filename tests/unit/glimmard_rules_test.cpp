// Glimmard: phrase files that come from anywhere, the layout against a plainer one, the rules.
#include <algorithm>
#include <filesystem>
#include <set>

#include "core/files/files.h"
#include "games/glimmard/phrases.h"
#include "games/glimmard/rules.h"
#include "tests/check.h"
#include "tests/unit/staged_chance.h"

using namespace games::glimmard;

namespace {

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
  const auto isBlank = [](const std::string& line, std::size_t n) {
    return n < line.size() && line[n] == ' ';
  };
  std::string done;
  for (std::size_t line = 0; line < 6; ++line) {
    const bool last = rest.size() <= 14;
    rest.erase(0, rest.find_first_not_of(' '));
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
  CHECK(numbered.count == 5 && numbered.position == 2);
  const PhraseList plain = ReadPhrases(FileOf({"one", "two"}));
  CHECK((plain.phrases == std::vector<std::string>{"one", "two", ""}));
  CHECK(plain.count == 2 && plain.position == -1);
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
  StagedChance chance({0.99, 0, 0.5, 0.4});  // positions 3, 1, 2, 2
  CHECK(ShufflePhrases(list, chance));
  CHECK((list.phrases == std::vector<std::string>{"", "b", "a", "c"}));
}

TEST(the_place_is_kept_over_sessions) {
  namespace fs = std::filesystem;
  const std::string home = (fs::temp_directory_path() / "glimmard-test/").string();
  fs::remove_all(home);
  fs::create_directories(home);
  std::vector<std::string> lines;
  for (int i = 0; i < 30; ++i) lines.push_back("phrase " + std::to_string(i));
  core::WriteWhole(home + "GMP.Dat", FileOf(lines));
  core::Chance chance;
  std::vector<std::string> seen;
  for (int session = 0; session < 6; ++session) {
    PhraseFiles files;
    for (int drawn = 0, tries = 0; drawn < 4 && tries < 100; ++tries) {
      const DrawnPhrase next = files.GetPhrase(3, home, chance);
      CHECK(next.trouble == Trouble::None);
      if (next.phrase.empty()) continue;
      // The one shown last comes up once more, as the list moves up by one on being read again.
      if (seen.empty() || seen.back() != next.phrase) seen.push_back(next.phrase);
      ++drawn;
    }
    CHECK(files.WritePhraseFiles(home).empty());
    CHECK_EQ(PhrasesIn(*core::ReadWhole(home + "GMP.Dat")), Sorted(lines));
  }
  // Nothing else comes a second time before all have come.
  CHECK(seen.size() >= 4 + 5 * 3);
  CHECK_EQ(std::set<std::string>(seen.begin(), seen.end()).size(), seen.size());
  const int topic = PhraseFiles().GetPhrase(RandomTopic, home, chance).topic;
  CHECK(topic >= 1 && topic <= TopicCount);
  fs::remove_all(home);
}

TEST(the_layout_of_chosen_phrases) {
  CHECK_EQ(TextOf(LayoutPhrase("Chess")), std::string(35, ' ') + "Chess");
  CHECK_EQ(TextOf(LayoutPhrase("abcdefgh ijklmnop qrstuvwxy")),
           std::string(15, ' ') + "   abcdefgh       ijklmnop       qrstuvwxy");
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
    CHECK_EQ(TextOf(LayoutPhrase(phrase)), PlainLayout(phrase));
    fits += LayoutPhrase(phrase).fits;
  }
  CHECK(fits > 10000 && fits < 190000);
}

TEST(a_round_of_letters) {
  Rules rules = RoundWith("It's 9 to 5", 2);
  LetterPick pick = rules.PickLetter(25);
  CHECK(pick.cells.empty() && pick.lostGuess == 1 && !rules.VowelsOpen);
  pick = rules.PickLetter(19);
  CHECK_EQ(pick.cells, (std::vector<int>{33, 39}));
  CHECK(pick.opensVowels && pick.value == 500 && !rules.PickLetter(18).opensVowels);
  CHECK(rules.Face(32) == 0 && rules.IsShown(32) && !rules.IsShown(36) && !rules.IsShown(89));
  CHECK(rules.PickLetter(8).end == RoundEnd::None);
  CHECK(rules.PickLetter(14).end == RoundEnd::Solved);
  for (std::int16_t guesses : {-5, 0, 1, 8, 9, 32767}) {
    CHECK_EQ(RoundWith("abc", guesses).GuessesLeft, guesses < 2 ? 0 : 7);
  }
}

TEST(the_bonus_picks) {
  Rules rules = RoundWith("abc");
  rules.BonusPicking = true;
  BonusPick pick = rules.PickForBonus(24);
  CHECK(pick.vowel && pick.lastOfItsKind && pick.consonantsToGo == 5 && !pick.vowelToGo);
  for (int letter : {1, 2, 3, 5}) CHECK(!rules.PickForBonus(letter).lastOfItsKind);
  for (int letter : {0, 24, 5, -1}) CHECK(!rules.PickForBonus(letter).taken);
  pick = rules.PickForBonus(6);
  CHECK(pick.complete && pick.lastOfItsKind && pick.consonantsToGo == 0 && !rules.BonusPicking);
  CHECK(!rules.PickForBonus(7).taken);
}

TEST(the_bonus_round_is_earned_with_the_very_score) {
  CHECK(NextAfter(3, 250000, 250000, 2) == Next::BonusRound);
  CHECK(NextAfter(3, 249999, 250000, 2) == Next::GameOver);
  CHECK(NextAfter(3, 999999, 250000, 1) == Next::GameOver);
  CHECK(NextAfter(4, 999999, 250000, 3) == Next::GameOver);
}
