// Glimmard's rules in words for players, with the values in force.
#include <algorithm>

#include "core/text/number.h"
#include "games/glimmard/window.h"

namespace games::glimmard {

using core::Digits;
using core::Masked;

core::RulesText frmPhrase::Rules() const {
  const int guesses = std::clamp<int>(values_.GuessCount, 1, MostGuesses);
  core::RulesText text;
  text.object = core::ObjectOfGame(
      shared.GameTitle, "There are two rounds", shared.TimeLimit,
      "If you solve both phrases and have made " + Masked(values_.BonusScore) +
          " points or more by then, you are invited to a third one, the Bonus Round.");
  text.points = {
      "A phrase stands hidden on the board, a cell for each of its letters. Choose letters by "
      "clicking on them or by typing them. Every place where your letter stands is uncovered and "
      "pays the amount that is shown as the worth of the next letter. That amount changes at "
      "random after every letter, and short phrases pay more for a letter than long ones. Digits "
      "and punctuation marks stand open from the start.",
      "The vowels A, E, I, O, U and Y are closed at first. They open as soon as you have found "
      "your first letter.",
      "You have " + Digits(guesses) + (guesses == 1 ? " guess" : " guesses") +
          " in a round. A letter that is not in the phrase costs one of them. So does the letter "
          "timer, the bar over the alphabet, whenever it fills up before you have chosen: it gives "
          "you about nine seconds for each letter. When your last guess is gone, or the round's "
          "time has run out, the phrase is shown to you and the round is over; the points for your "
          "letters stay yours.",
      "When you know the phrase, choose 'Solve It!'. The round clock stops, all vowels open, and "
      "every letter pays the same amount from then on. But the first wrong letter ends the round, "
      "and so does the letter timer.",
      "Solving the phrase pays " + Masked(values_.CompletionBonus) +
          " points, each guess that you have left " + Masked(values_.GuessBonus) +
          " points, and each second left on the clock " + Masked(shared.TimeBonusPerSecond) +
          " points.",
      "The Bonus Round begins with six picks: five consonants and one vowel, in any order. The "
      "clock stands still meanwhile, but all six have to be made within one run of the letter "
      "timer. Then they are played one after the other, a wrong one costing a guess. After that "
      "the clock runs, all letters pay the same amount, and one wrong letter, or a pause of a full "
      "run of the letter timer, ends the game.",
  };
  text.strategy = {
      "Open the vowels with a consonant that is in nearly every phrase: T, N, S and R are good "
      "ones to begin with.",
      "Look at the worth of the next letter before you choose. Spend a letter that stands in many "
      "places when the amount is high, and a rare one when it is low.",
      "Short words give a phrase away. A single letter is nearly always an A or an I, and three "
      "letters that begin many a phrase are THE.",
      "'Solve It!' pays best with much time on the clock. Be sure of every single letter first, "
      "and think of letters that you have tried already: they are closed.",
      "The topic tells you what to look for. Choose one under Topic Selection, or leave it to "
      "chance.",
  };
  return text;
}

}  // namespace games::glimmard
