#include "document/gui/undo_snapshot.h"

#include "document/rtf_writer.h"

namespace lathwick {
namespace {
struct Stopped {};
}  // namespace

UndoSnapshot::UndoSnapshot(RichTextBox& box, std::string undoFilePath)
    : box_(box), path_(std::move(undoFilePath)), wasReadOnly_(box.isReadOnly()) {
  box_.setReadOnly(true);
  if (auto document = box_.unchangedDocument())
    writer_ = std::thread([this, document = std::move(*document)]() mutable { write(std::move(document)); });
}

UndoSnapshot::~UndoSnapshot() {
  stop_ = true;
  end();
}

void UndoSnapshot::write(RichTextBox::UnchangedDocument document) {
  try {
    auto file = std::make_unique<AtomicFileWriter>(path_, Durability::Scratch);
    StyleRuns::Reader runs = document.runs->read(0, document.text.size());
    const StyledTextView view{document.text, {}, &document.strikeouts, document.indentTwips, &runs};
    writeRtf(view, document.table, [&](std::string_view piece) {
      if (stop_) throw Stopped{};
      file->write(piece);
    });
    written_ = std::move(file);
  } catch (...) {
    // Stopped, or the temporary could not be made or written: commit() then says so.
  }
}

// Waits for the helper and lets the document take edits again.
void UndoSnapshot::end() {
  if (ended_) return;
  ended_ = true;
  if (writer_.joinable()) writer_.join();
  box_.setReadOnly(wasReadOnly_);
}

bool UndoSnapshot::commit() {
  const bool background = writer_.joinable();
  end();
  try {
    if (!background) {
      box_.saveFile(path_, FileKind::RichText, Durability::Scratch);
      return true;
    }
    if (!written_) return false;
    written_->commit();
    written_.reset();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace lathwick
