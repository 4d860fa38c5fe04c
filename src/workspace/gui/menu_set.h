#pragma once
// One window's menus, built from a menu table. Every action carries its menu name (and index)
// and runs through the command dispatcher; an entry whose command is not registered is there but
// disabled, with a tooltip saying it is not yet available.
#include <QList>
#include <QString>
#include <functional>
#include <map>
#include <span>
#include <string>

#include "workspace/command_dispatch.h"
#include "workspace/menu_tables.h"

class QAction;
class QMenu;
class QWidget;

namespace lathwick::gui {

inline constexpr const char* kNotYetAvailable = "Not yet available in this version.";

class MenuSet {
 public:
  // `loaded`: show the display-only key texts a document window adds when it loads.
  MenuSet(std::span<const MenuEntry> table, QWidget* owner, const CommandDispatcher& commands, bool loaded);

  const QList<QMenu*>& topMenus() const { return topMenus_; }
  QMenu* menu(const std::string& name) const;                       // a top-level menu or submenu
  QAction* action(const std::string& name, int index = -1) const;   // nullptr when unknown
  const std::vector<QAction*>& allActions() const { return all_; }

  // Enables an entry as far as its command exists: a missing command keeps it disabled.
  void setEnabled(const std::string& name, bool enabled, int index = -1);
  // Replaces the numbered entries `name` of menu `menuName` by one entry per caption, numbered
  // from `first` (the scheme menu, filled from the scheme list). Returns the new actions.
  std::vector<QAction*> setNumberedEntries(const std::string& menuName, const std::string& name, int first,
                                           const std::vector<std::string>& captions);
  // Re-reads which commands exist (after a later part registers its commands).
  void refreshAvailability();

 private:
  struct Key {
    std::string name;
    int index;
    auto operator<=>(const Key&) const = default;
  };
  const CommandDispatcher& commands_;
  QList<QMenu*> topMenus_;
  std::map<Key, QAction*> actions_;
  std::map<std::string, QMenu*> menus_;
  std::vector<QAction*> all_;
  std::map<QAction*, bool> wanted_;  // the state asked for, before availability
};

// "mnuModal(1)" style object names, so tests and scripts find one numbered entry.
QString actionObjectName(const std::string& name, int index);

}  // namespace lathwick::gui
