// The menu of a game window as a table, and the commands that every game shares.
#include "core/session/game_menu.h"

#include <algorithm>

namespace core {

MenuRow HelpMenu(const std::string& rulesCaption, const std::string& aboutCaption) {
  return Heading("mnuHelp", "&Help",
                 {{"mnuRules", rulesCaption, Command::Rules},
                  {"mnuReadme", "&View Readme File", Command::Readme},
                  {"mnuAbout", aboutCaption, Command::About}});
}

void GameMenu::Build(const std::vector<MenuRow>& rows) {
  for (const MenuRow& row : rows) Add(row, nullptr);
}

void GameMenu::Add(const MenuRow& row, ui::Menu* parent) {
  menus_.push_back(std::make_unique<ui::Menu>(window_, parent, row.name, row.caption));
  ui::Menu* menu = menus_.back().get();
  menu->OnClick = row.click;
  if (row.command != Command::Other) shared_[static_cast<std::size_t>(row.command)] = menu;
  for (const MenuRow& entry : row.entries) Add(entry, menu);
}

ui::Menu* GameMenu::Named(const std::string& name) const {
  const auto found = std::find_if(menus_.begin(), menus_.end(),
                                  [&](const auto& menu) { return menu->Name() == name; });
  return found == menus_.end() ? nullptr : found->get();
}

void GameMenu::Enable(bool enabled, std::initializer_list<Command> commands) {
  for (Command command : commands) {
    if (ui::Menu* menu = Of(command)) menu->Enabled = enabled;
  }
}

void GameMenu::SetText(Command command, const std::string& text) {
  if (ui::Menu* menu = Of(command)) menu->Text = text;
}

void GameMenu::Check(Command command, bool checked) {
  if (ui::Menu* menu = Of(command)) menu->Checked = checked;
}

}  // namespace core
