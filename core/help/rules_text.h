// The rules of a game as a text for players, put together from its parts.
#pragma once

#include <string>
#include <vector>

namespace core {

/// What a game says of itself, with the values in force spliced in. A part can hold paragraphs of
/// its own, divided by ParagraphEnd; an empty part is left out.
struct RulesText {
  std::string introduction;         ///< before the object of the game
  std::string object;               ///< see ObjectOfGame
  std::vector<std::string> points;  ///< how points are earned; numbered from 1
  std::vector<std::string> strategy;
  std::string pointsHeading = "How points are earned:";
};

inline const std::string ParagraphEnd = "\r\n\r\n";

/// The whole text of the rules window, its lines ended by CR LF.
std::string ComposeRules(const std::string& gameTitle, const RulesText& parts);

/// The object of a game. `rounds` says how many there are, without a full stop, as "There are three
/// rounds"; the time limit is in seconds; the condition of the bonus round is a sentence, or empty.
std::string ObjectOfGame(const std::string& gameTitle, const std::string& rounds, int timeLimit,
                         const std::string& bonusCondition);

}  // namespace core
