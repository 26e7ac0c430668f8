// The two notices about scoring that is, or is no longer, customized.
#include "core/suite/notices.h"

namespace core {

void ShowCustomScoringNotice(Suite& suite, const std::string& title) {
  suite.Tell(ui::Sign::Information,
             "The scoring options for " + title +
                 " are not set to their default settings. Any scores attained \r\nwhile the "
                 "scoring options are modified are not eligible for the High Score Website.");
}

void ShowDefaultScoringNotice(Suite& suite, const std::string& title) {
  suite.Tell(ui::Sign::Information,
             "The scoring options for " + title +
                 " are now set to their default settings. Scores attained\r\nwhile using the "
                 "default settings are eligible for the High Score Website.");
}

}  // namespace core
