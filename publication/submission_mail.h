// The mail that carries a listing to the keeper of the public list, as operations on a mail
// service.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace publication {

/// One operation on the mail interface, and what it is given, if anything.
struct MailOperation {
  std::string name;
  std::optional<std::string> value;
};

/// The message's text: the listing, the scoring mode, and what the player adds.
std::string NoteText(const std::string& listing, bool enhancedScoring, const std::string& comments);

/// The operations that send one message, in the order in which a mail service needs them.
std::vector<MailOperation> SubmissionMail(const std::string& gameTitle, const std::string& note);

}  // namespace publication
