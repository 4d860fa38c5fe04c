#include "workspace/gui/menu_set.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace lathwick::gui {

QString actionObjectName(const std::string& name, int index) {
  QString object = QString::fromLatin1(name.c_str());
  if (index >= 0) object += QStringLiteral("(%1)").arg(index);
  return object;
}

MenuSet::MenuSet(std::span<const MenuEntry> table, QWidget* owner, const CommandDispatcher& commands, bool loaded)
    : commands_(commands) {
  QMenu* parents[3] = {nullptr, nullptr, nullptr};
  for (std::size_t i = 0; i < table.size(); ++i) {
    const MenuEntry& e = table[i];
    const QString caption = QString::fromLatin1(loaded ? loadedCaption(e).c_str() : e.caption);
    if (e.level == 0) {
      auto* top = new QMenu(caption, owner);
      top->setObjectName(actionObjectName(e.name, e.index));
      top->setToolTipsVisible(true);
      top->menuAction()->setObjectName(actionObjectName(e.name, e.index));
      top->menuAction()->setVisible(e.visible);
      topMenus_.push_back(top);
      menus_[e.name] = top;
      actions_[Key{e.name, e.index}] = top->menuAction();
      parents[1] = top;
      continue;
    }
    QMenu* parent = parents[e.level];
    if (!parent) continue;
    QAction* action = nullptr;
    if (hasChildren(table, i)) {
      auto* submenu = parent->addMenu(caption);
      submenu->setObjectName(actionObjectName(e.name, e.index));
      submenu->setToolTipsVisible(true);
      menus_[e.name] = submenu;
      parents[e.level + 1] = submenu;
      action = submenu->menuAction();
    } else if (e.isSeparator()) {
      action = parent->addSeparator();
    } else {
      action = parent->addAction(caption);
      if (e.shortcut[0] != '\0') action->setShortcut(QKeySequence(QString::fromLatin1(e.shortcut)));
      const std::string name = e.name;
      const int index = e.index;
      QObject::connect(action, &QAction::triggered, action, [this, name, index] { commands_.run(name, index); });
    }
    action->setObjectName(actionObjectName(e.name, e.index));
    action->setVisible(e.visible);
    actions_[Key{e.name, e.index}] = action;
    all_.push_back(action);
    wanted_[action] = true;
  }
  refreshAvailability();
}

QMenu* MenuSet::menu(const std::string& name) const {
  auto it = menus_.find(name);
  return it == menus_.end() ? nullptr : it->second;
}

QAction* MenuSet::action(const std::string& name, int index) const {
  auto it = actions_.find(Key{name, index});
  return it == actions_.end() ? nullptr : it->second;
}

std::vector<QAction*> MenuSet::setNumberedEntries(const std::string& menuName, const std::string& name, int first,
                                                 const std::vector<std::string>& captions) {
  QMenu* parent = menu(menuName);
  if (!parent) return {};
  for (auto it = actions_.begin(); it != actions_.end();) {
    if (it->first.name != name) {
      ++it;
      continue;
    }
    QAction* old = it->second;
    parent->removeAction(old);
    std::erase(all_, old);
    wanted_.erase(old);
    old->deleteLater();
    it = actions_.erase(it);
  }
  std::vector<QAction*> added;
  int index = first;
  for (const std::string& caption : captions) {
    QAction* action = parent->addAction(QString::fromLatin1(caption.c_str()));
    action->setObjectName(actionObjectName(name, index));
    QObject::connect(action, &QAction::triggered, action, [this, name, index] { commands_.run(name, index); });
    actions_[Key{name, index}] = action;
    all_.push_back(action);
    wanted_[action] = true;
    added.push_back(action);
    ++index;
  }
  refreshAvailability();
  return added;
}

void MenuSet::setEnabled(const std::string& name, bool enabled, int index) {
  QAction* a = action(name, index);
  if (!a) return;
  wanted_[a] = enabled;
  a->setEnabled(enabled && commands_.has(name, index));
}

void MenuSet::refreshAvailability() {
  // Leaves first, then the submenus, which are usable when any entry in them is.
  for (const auto& [key, action] : actions_) {
    if (action->isSeparator() || action->menu()) continue;
    const bool available = commands_.has(key.name, key.index);
    action->setEnabled(available && wanted_[action]);
    // Other tooltips (the full path of a recent file) stay.
    if (!available)
      action->setToolTip(QString::fromLatin1(kNotYetAvailable));
    else if (action->toolTip() == QString::fromLatin1(kNotYetAvailable))
      action->setToolTip(QString());
  }
  for (const auto& [key, action] : actions_) {
    QMenu* submenu = action->menu();
    if (!submenu || topMenus_.contains(submenu)) continue;  // top-level menus always open
    bool any = false;
    for (QAction* child : submenu->actions())
      if (!child->isSeparator() && child->toolTip() != QString::fromLatin1(kNotYetAvailable)) any = true;
    action->setEnabled(any);
    action->setToolTip(any ? QString() : QString::fromLatin1(kNotYetAvailable));
  }
}

}  // namespace lathwick::gui
