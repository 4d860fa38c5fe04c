// The one document of the headless workspace: its text and character styles in memory, its
// line model, and its runs and passes through the work files.
#include <algorithm>

#include "document/document_table.h"
#include "document/line_ending_checks.h"
#include "document/rtf_reader.h"
#include "document/rtf_writer.h"
#include "format/colorizer.h"
#include "format/scheme_data_file.h"
#include "platform/app_names.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/pass_monitor.h"
#include "transform/junk_filter.h"
#include "transform/spaces.h"
#include "workspace/headless_workspace.h"

namespace lathwick {

HeadlessDocument::HeadlessDocument(HeadlessWorkspace& workspace, const std::string& path) : workspace_(workspace) {
  load(path);
  fileName_ = path;
}

void HeadlessDocument::loadRich(const std::string& path) {
  const RtfDocument doc = readRtfFile(path);
  table_ = StyleTable{};
  styling_ = styleDocument(doc, table_);
  text_ = doc.text;
  indentTwips_ = doc.indentTwips;
}

void HeadlessDocument::load(const std::string& path) {
  if (isRichTextName(path)) {
    loadRich(path);
  } else {
    std::optional<std::string> bytes = readWholeFile(path);
    if (!bytes) throw AppError(err::kFileNotFound, "File not found");
    loadPlain(std::move(*bytes));
  }
  selStart_ = selLength_ = 0;
}

void HeadlessDocument::loadPlain(std::string bytes) {
  text_ = std::move(bytes);
  styling_ = DocumentStyling{};
  table_ = StyleTable{};
  indentTwips_ = 0;
}

std::string HeadlessDocument::selectedText() const {
  return text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
}

void HeadlessDocument::setSelection(long start, long length) {
  const long size = textLength();
  selStart_ = std::clamp(start, 0L, size);
  selLength_ = std::clamp(length, 0L, size - selStart_);
}

void HeadlessDocument::replaceSelection(std::string_view text) {
  const auto start = static_cast<std::size_t>(selStart_);
  const auto length = static_cast<std::size_t>(selLength_);
  text_.replace(start, length, text);
  if (!styling_.styles.empty()) {
    // New text takes the style of the character before it, as typing does.
    const char style = start > 0 ? styling_.styles[start - 1] : '\0';
    styling_.styles.replace(start, length, std::string(text.size(), style));
    std::erase_if(styling_.strikeouts, [&](const TextRange& r) { return r.end > start; });
  }
  setSelection(selStart_, static_cast<long>(text.size()));
}

// Lines end in CR LF, a lone CR or a lone LF, as the text control counts them.
std::vector<long> HeadlessDocument::lineStarts() const {
  std::vector<long> starts{0};
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_[i] == '\r' && i + 1 < text_.size() && text_[i + 1] == '\n') ++i;
    if (text_[i] == '\r' || text_[i] == '\n') starts.push_back(static_cast<long>(i + 1));
  }
  return starts;
}

long HeadlessDocument::lineCount() const { return static_cast<long>(lineStarts().size()); }

long HeadlessDocument::lineFromChar(long position) const {
  const std::vector<long> starts = lineStarts();
  const auto after = std::upper_bound(starts.begin(), starts.end(), std::max(position, 0L));
  return static_cast<long>(after - starts.begin()) - 1;
}

long HeadlessDocument::lineIndex(long line) const {
  const std::vector<long> starts = lineStarts();
  if (line < 0 || line >= static_cast<long>(starts.size())) return -1;
  return starts[static_cast<std::size_t>(line)];
}

long HeadlessDocument::lineLength(long line) const {
  const long start = lineIndex(line);
  if (start < 0) return 0;
  long end = start;
  while (end < textLength() && text_[static_cast<std::size_t>(end)] != '\r' &&
         text_[static_cast<std::size_t>(end)] != '\n')
    ++end;
  return end - start;
}

bool HeadlessDocument::save() {
  if (saveNeedsName(fileName_)) {
    FileRequest request{true, kPlainTitle, kPlainFilter, "", ""};
    const std::optional<std::string> chosen = workspace_.chooseFile(request);
    return chosen && saveAs(*chosen);
  }
  return saveAs(fileName_);
}

bool HeadlessDocument::saveAs(const std::string& path) {
  try {
    if (isRichTextName(path)) {
      const StyledTextView view{text_, styling_.styles, &styling_.strikeouts, indentTwips_};
      writeRtfFile(path, view, table_);
    } else {
      writeFileAtomically(path, text_);
    }
  } catch (const std::exception& e) {
    workspace_.messageBox(std::string(e.what()) + "\r\n" + kFileNotSaved, kAppTitle, Buttons::Ok, Icon::Information);
    return false;
  }
  fileName_ = path;
  return true;
}

std::string HeadlessDocument::scheme() const {
  try {
    for (const SchemeListEntry& entry : loadSchemeList(workspace_.dataFile(), workspace_.currentScheme()).entries)
      if (entry.record == workspace_.currentScheme()) return entry.name;
  } catch (const AppError&) {
  }
  return {};
}

void HeadlessDocument::setScheme(const std::string& name) {
  for (const SchemeListEntry& entry : loadSchemeList(workspace_.dataFile(), workspace_.currentScheme()).entries) {
    if (entry.name != name) continue;
    workspace_.setCurrentScheme(static_cast<int>(entry.record));
    colorize(ColorizeRun::Modes);
    return;
  }
}

bool HeadlessDocument::writeInput(const std::string& path) {
  try {
    writeFileAtomically(path, text_);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace lathwick
