#include "transform/gui/combo_history.h"

#include <QComboBox>

#include "workspace/history.h"
#include "transform/gui/text_bytes.h"

namespace lathwick::gui {

void loadComboHistory(QComboBox& box, const SettingsStore& store, const std::string& defaultText) {
  box.clear();
  for (const std::string& entry : HistoryLoad(store, toBytes(box.objectName()))) box.addItem(fromBytes(entry));
  if (box.count() > 0) box.setCurrentIndex(0);
  if (box.currentText().isEmpty()) box.setEditText(fromBytes(defaultText));
}

void updateComboHistory(QComboBox& box, SettingsStore& store, int length) {
  HistoryUpdate(store, toBytes(box.objectName()), toBytes(box.currentText()), length);
}

}  // namespace lathwick::gui
