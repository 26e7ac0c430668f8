// The operations and the text of the mail that carries a listing.
#include "publication/submission_mail.h"

#include "core/suite/deployment.h"
#include "core/text/text.h"

namespace publication {
namespace {

constexpr const char* EmptyLine = "\r\n\r\n";

/// Only one session is open at a time, so that any fixed number names it.
constexpr const char* SessionId = "1";

}  // namespace

// The line on the scoring mode stands in the mail of every game: the list's keeper reads them all
// in one form.
std::string NoteText(const std::string& listing, bool enhancedScoring,
                     const std::string& comments) {
  return listing + EmptyLine + "Quindle Enhanced Scoring is " + core::FlagWord(enhancedScoring) +
         EmptyLine + comments;
}

std::vector<MailOperation> SubmissionMail(const std::string& gameTitle, const std::string& note) {
  return {{"SignOn", std::nullopt},
          {"SessionID", SessionId},
          {"Compose", std::nullopt},
          {"RecipDisplayName", core::deployment::SubmissionRecipient},
          {"RecipAddress", core::deployment::SubmissionAddress},
          {"AddressResolveUI", core::FlagWord(true)},
          {"ResolveName", std::nullopt},
          {"MsgSubject", "Pastimo High Score Listing for " + gameTitle},
          {"MsgNoteText", note},
          {"Send", std::nullopt},
          {"SignOff", std::nullopt}};
}

}  // namespace publication
