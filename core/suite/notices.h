// The two notices about scoring that is, or is no longer, customized.
#pragma once

#include <string>

#include "core/suite/suite.h"

namespace core {

void ShowCustomScoringNotice(Suite& suite, const std::string& title);
void ShowDefaultScoringNotice(Suite& suite, const std::string& title);

}  // namespace core
