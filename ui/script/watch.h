// Which controls a script watches while the program waits, and what it has been told of them.
#pragma once

#include <string>
#include <vector>

#include "ui/desk.h"

namespace ui::script {

class Watch {
 public:
  /// Replaces the watched controls by those of these names, in this order; throws Refused, and
  /// changes nothing, if one is not there or can never be seen.
  void Set(const Desk& desk, const std::vector<std::string>& names);
  void Clear() { watched_.clear(); }
  /// What looks different from when it was last told, a line each: `NAME "TEXT" COLOUR`.
  std::vector<std::string> Changes(const Desk& desk);

 private:
  struct Watched {
    std::string asked;    ///< the name as the script gave it
    std::string address;  ///< the same behind the name of its window: windows come and go
    std::string told;
  };
  std::vector<Watched> watched_;
};

}  // namespace ui::script
