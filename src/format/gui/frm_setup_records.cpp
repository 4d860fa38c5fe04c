// The scheme editor's work on records: reading the list, editing a style, and writing, adding,
// copying and removing records of the data file. Every problem with the data file shows its
// one message and changes nothing on disk.
#include <QApplication>
#include <QComboBox>

#include "format/bundled_schemes.h"
#include "format/gui/frm_setup.h"
#include "format/gui/style_dialogs.h"
#include "format/rich_text_builder.h"
#include "format/scheme_data_file.h"
#include "format/scheme_edits.h"
#include "platform/bytes.h"
#include "platform/gui/dialogs.h"

namespace lathwick::gui {

namespace {

void reportDataFileProblem() {
  dialogs().message(kDataFileProblemMessage, kDataFileProblemTitle, Buttons::Ok, Icon::Information);
}

// The hourglass while records are read or written.
struct WaitCursor {
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

}  // namespace

void frmSetup::loadList(long select) {
  SchemeList list;
  {
    WaitCursor wait;
    list = loadSchemeList(host_.dataFilePath(), select);
  }
  filling_ = true;
  cboScheme_->clear();
  for (const SchemeListEntry& entry : list.entries)
    cboScheme_->addItem(QString::fromLatin1(entry.name.c_str()), QVariant::fromValue<qlonglong>(entry.record));
  filling_ = false;
  if (list.dataFileProblem) reportDataFileProblem();
  if (list.selected < 0) {
    record_ = bundledSchemes().front();  // nothing to show from the file: New starts from this
    recordNumber_ = 0;
    showRecord();
    return;
  }
  cboScheme_->setCurrentIndex(list.selected);
  readRecord(list.entries[static_cast<std::size_t>(list.selected)].record);
}

void frmSetup::readRecord(long number) {
  try {
    record_ = loadScheme(host_.dataFilePath(), number);
    recordNumber_ = number;
  } catch (const DataFileProblem&) {
    reportDataFileProblem();
  }
  changed_ = false;
  showRecord();
}

void frmSetup::chooseScheme(int listIndex) {
  if (listIndex < 0 || listIndex >= cboScheme_->count()) return;
  const long number = cboScheme_->itemData(listIndex).toLongLong();
  if (number == recordNumber_ && !changed_) return;
  ChangedMsg();  // the edits of the scheme left behind are not lost without asking
  cboScheme_->setCurrentIndex(cboScheme_->findData(QVariant::fromValue<qlonglong>(number)));
  readRecord(number);
}

void frmSetup::editStyle() {
  if (set_ == 0 && style_ == kBackgroundStyle)
    editBackground();
  else
    editFont();
}

void frmSetup::editFont() {
  const SchemeStyle& s = record_.style(set_, style_);
  const FontChoice initial{trimBlanks(s.fontName), s.size, s.colour, s.bold, s.italic, s.underline, s.strikeout};
  const std::optional<FontChoice> chosen = styleDialogs().chooseFont(initial);
  if (!chosen) return;
  markChanged();
  StyleChange change;
  change.colour = chosen->colour;
  change.fontName = chosen->name;
  change.size = chosen->size;
  change.bold = chosen->bold;
  change.italic = chosen->italic;
  change.underline = chosen->underline;
  change.strikeout = chosen->strikeout;
  if (set_ == 0 && (style_ == kCommentStyle || style_ == kBlockSkipStyle)) {
    const char* question = style_ == kCommentStyle ? kCommentQuestion : kBlockSkipQuestion;
    if (const auto answer = styleDialogs().query(question, trimBlanks(s.marker))) change.marker = *answer;
  }
  changeStyle(record_, set_, style_, change);
  changeIndent(record_, cboIndent_->currentIndex());
  showStyles();
  showSample();
  CheckForHidden();
}

void frmSetup::editBackground() {
  const std::optional<std::int32_t> chosen = styleDialogs().chooseColour(record_.backColour);
  if (!chosen) return;
  markChanged();
  changeBackground(record_, *chosen);
  showStyles();
  showSample();
  CheckForHidden();
}

void frmSetup::CheckForHidden() {
  for (std::size_t i = 0; i < invisibleStyles(record_).size(); ++i)
    dialogs().message(kCautionMessage, kCautionTitle, Buttons::Ok, Icon::None);
}

void frmSetup::ChangedMsg() {
  if (!changed_) return;
  changed_ = false;
  if (dialogs().message(kSettingsChangedMessage, "", Buttons::YesNo, Icon::Information) == Answer::Yes) saveRecord();
}

bool frmSetup::saveRecord() {
  const long number = recordNumber_ > 0 ? recordNumber_ : 1;
  try {
    WaitCursor wait;
    writeSchemeRecord(host_.dataFilePath(), number, record_);
  } catch (const DataFileProblem&) {
    reportDataFileProblem();
    changed_ = true;  // still not saved: closing asks again
    return false;
  }
  changed_ = false;
  loadList(number);
  host_.schemesChanged();
  return true;
}

void frmSetup::NewRecord() {
  ChangedMsg();
  try {
    const long number = schemeRecordCount(host_.dataFilePath()) + 1;
    loadList(appendScheme(host_.dataFilePath(), newSchemeFrom(record_, number)));
  } catch (const DataFileProblem&) {
    reportDataFileProblem();
    return;
  }
  host_.schemesChanged();
}

void frmSetup::copyRecord() {
  ChangedMsg();
  try {
    loadList(appendScheme(host_.dataFilePath(), copiedScheme(record_, "Copy of " + trimBlanks(record_.name))));
  } catch (const DataFileProblem&) {
    reportDataFileProblem();
    return;
  }
  host_.schemesChanged();
}

void frmSetup::RemoveRecord() {
  if (recordNumber_ < 1) return;
  const std::string question = "Delete the scheme \"" + trimBlanks(record_.name) + "\"?";
  if (dialogs().message(question, "Delete Scheme", Buttons::YesNo, Icon::Question) != Answer::Yes) return;
  try {
    removeSchemeRecord(host_.dataFilePath(), removalWorkFile(host_.dataFilePath()), recordNumber_);
  } catch (const DataFileProblem&) {
    reportDataFileProblem();
    return;
  }
  changed_ = false;
  loadList(std::max(1L, recordNumber_ - 1));
  host_.schemesChanged();
}

}  // namespace lathwick::gui
