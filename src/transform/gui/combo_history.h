#pragma once
// The most-recently-used histories of the dialogs' combo boxes, kept in the settings store in a
// section named after the box (its object name).
#include <string>

#include "platform/settings_store.h"

class QComboBox;

namespace lathwick::gui {

// Fills the box from its history, newest first, and selects the first entry; when the box's text
// is then empty it gets `defaultText`.
void loadComboHistory(QComboBox& box, const SettingsStore& store, const std::string& defaultText = {});

// Moves the box's current text to the top of its history of `length` entries.
void updateComboHistory(QComboBox& box, SettingsStore& store, int length);

}  // namespace lathwick::gui
