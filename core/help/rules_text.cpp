// The order of the rules' parts, and the sentences that all games share.
#include "core/help/rules_text.h"

#include "core/text/number.h"

namespace core {
namespace {

constexpr int TitleIndent = 30;

std::string TitleLine(const std::string& gameTitle) {
  return std::string(TitleIndent, ' ') + gameTitle + " Rules, Notes and Strategy\r\n\r\n\r\n";
}

std::string Requirements(const std::string& gameTitle) {
  return "Requirements: To run " + gameTitle + " you need Windows 95 or above " + "and a mouse. " +
         "Recommended: Soundcard.";
}

std::vector<std::string> Numbered(const std::vector<std::string>& points) {
  std::vector<std::string> list;
  for (const std::string& point : points) {
    list.push_back(Digits(static_cast<std::int64_t>(list.size()) + 1) + ". " + point);
  }
  return list;
}

void AddParagraph(std::string& text, const std::string& paragraph) {
  if (!paragraph.empty()) text += paragraph + ParagraphEnd;
}

void AddParagraphs(std::string& text, const std::vector<std::string>& paragraphs) {
  for (const std::string& paragraph : paragraphs) AddParagraph(text, paragraph);
}

}  // namespace

std::string ComposeRules(const std::string& gameTitle, const RulesText& parts) {
  std::string text = TitleLine(gameTitle);
  AddParagraph(text, Requirements(gameTitle));
  AddParagraph(text, parts.introduction);
  AddParagraph(text, parts.object);
  if (!parts.points.empty()) AddParagraph(text, parts.pointsHeading);
  AddParagraphs(text, Numbered(parts.points));
  AddParagraphs(text, parts.strategy);
  return text + "Good luck and have fun!";
}

std::string ObjectOfGame(const std::string& gameTitle, const std::string& rounds, int timeLimit,
                         const std::string& bonusCondition) {
  std::string text = "As with most games, the object of " + gameTitle +
                     " is to attain the highest number of points possible. " + rounds +
                     ", each lasting " + Digits(timeLimit) + " seconds.";
  if (!bonusCondition.empty()) text += " " + bonusCondition;
  return text;
}

}  // namespace core
