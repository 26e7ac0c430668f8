// What belongs to the deployment of the program and not to the program: hosts, addresses, names.
#pragma once

#include <string>

namespace core::deployment {

inline const std::string Host = "https://pastimo.example";
inline const std::string SuitePage = Host + "/Pastimo.htm";
inline const std::string HighScorePage = Host + "/High%20Scores.htm";

inline const std::string SubmissionRecipient = "Corvane High Scores";
inline const std::string SubmissionAddress = "scores@pastimo.example";
inline const std::string SupportAddress = "support@pastimo.example";

}  // namespace core::deployment
