// The looks of watched controls, told when they have changed.
#include "ui/script/watch.h"

#include "ui/script/names.h"
#include "ui/script/properties.h"
#include "ui/script/words.h"

namespace ui::script {

void Watch::Set(const Desk& desk, const std::vector<std::string>& names) {
  std::vector<Watched> watched;
  for (const std::string& name : names) {
    const Control* control = FindControl(desk, name);
    if (!control) throw Refused{"there is no control " + QuoteShort(name)};
    if (control->GetKind() == Kind::Timer) throw Refused{"a timer is never seen"};
    watched.push_back({name, control->Owner().Name() + "." + control->FullName(), ""});
  }
  watched_ = std::move(watched);
}

std::vector<std::string> Watch::Changes(const Desk& desk) {
  std::vector<std::string> lines;
  for (Watched& watched : watched_) {
    const Control* control = FindControl(desk, watched.address);
    const bool seen = control && control->Shown() && !control->Owner().IsHidden();
    const std::string sight = seen ? SightOf(*control) : "hidden";
    if (sight == watched.told) continue;
    watched.told = sight;
    lines.push_back(watched.asked + " " + sight);
  }
  return lines;
}

}  // namespace ui::script
