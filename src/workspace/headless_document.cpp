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
  DocumentStyling styling = styleDocument(doc, table_);
  styles_.assign(std::move(styling.styles));
  strikeouts_ = std::move(styling.strikeouts);
  text_.assign(doc.text);
  startsValid_ = false;
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
  text_.assign(std::move(bytes));
  startsValid_ = false;
  styles_.assign({});
  strikeouts_.clear();
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
  textChanged(selStart_, selLength_, text);
  text_.replace(start, length, text);
  if (!styles_.empty()) {
    // New text takes the style of the character before it, as typing does.
    const char style = start > 0 ? styles_[start - 1] : '\0';
    styles_.replace(start, length, std::string(text.size(), style));
    std::erase_if(strikeouts_, [&](const TextRange& r) { return r.end > start; });
  }
  setSelection(selStart_, static_cast<long>(text.size()));
}

std::string HeadlessDocument::textRange(long start, long length) const {
  const long size = textLength();
  start = std::clamp(start, 0L, size);
  length = std::clamp(length, 0L, size - start);
  return text_.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length));
}

// Lines end in CR LF, a lone CR or a lone LF, as the text control counts them.
const std::vector<long>& HeadlessDocument::lineStarts() const {
  if (startsValid_) {
    for (std::size_t i = static_cast<std::size_t>(shiftFrom_) + 1; shift_ != 0 && i < starts_.size(); ++i) starts_[i] += shift_;
    shift_ = 0;
    return starts_;
  }
  starts_.assign(1, 0);
  for (std::size_t i = 0; i < text_.size(); ++i) {
    if (text_[i] == '\r' && i + 1 < text_.size() && text_[i + 1] == '\n') ++i;
    if (text_[i] == '\r' || text_[i] == '\n') starts_.push_back(static_cast<long>(i + 1));
  }
  startsValid_ = true;
  shift_ = 0;
  return starts_;
}

// Called before `removed` characters at `at` are replaced by `inserted`.
void HeadlessDocument::textChanged(long at, long removed, std::string_view inserted) {
  if (!startsValid_) return;
  const std::string gone = text_.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(removed));
  const auto breaks = [](std::string_view s) { return s.find_first_of("\r\n") != std::string_view::npos; };
  // An edit between a CR and an LF joins them into one break when it leaves nothing there, and
  // parts them when it inserts text; either way the line count changes. Every other edit that
  // neither adds nor removes a break keeps the lines, only moving the starts after it.
  const auto charAt = [&](long i) { return i >= 0 && i < textLength() ? text_[static_cast<std::size_t>(i)] : '\0'; };
  if (breaks(gone) || breaks(inserted) || (charAt(at - 1) == '\r' && charAt(at + removed) == '\n')) {
    startsValid_ = false;
    return;
  }
  const long line = lineFromChar(at);
  const long delta = static_cast<long>(inserted.size()) - removed;
  if (shift_ != 0 && line != shiftFrom_) {
    // Settle the pending shift up to the new edit's line; later lines carry both shifts.
    const long from = std::min(line, shiftFrom_), to = std::max(line, shiftFrom_);
    if (line > shiftFrom_) {
      for (long i = from + 1; i <= to; ++i) starts_[static_cast<std::size_t>(i)] += shift_;
    } else {
      for (long i = from + 1; i <= to; ++i) starts_[static_cast<std::size_t>(i)] -= shift_;
    }
  }
  shiftFrom_ = line;
  shift_ += delta;
}

long HeadlessDocument::startAt(long line) const {
  const long base = starts_[static_cast<std::size_t>(line)];
  return line > shiftFrom_ ? base + shift_ : base;
}

long HeadlessDocument::lineCount() const {
  if (!startsValid_) lineStarts();
  return static_cast<long>(starts_.size());
}

long HeadlessDocument::lineFromChar(long position) const {
  if (!startsValid_) lineStarts();
  position = std::max(position, 0L);
  long lo = 0, hi = static_cast<long>(starts_.size());  // the answer is the last start <= position
  while (hi - lo > 1) {
    const long mid = (lo + hi) / 2;
    if (startAt(mid) <= position) lo = mid;
    else hi = mid;
  }
  return lo;
}

long HeadlessDocument::lineIndex(long line) const {
  if (!startsValid_) lineStarts();
  if (line < 0 || line >= static_cast<long>(starts_.size())) return -1;
  return startAt(line);
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
      const std::string text = text_.str();
      const std::string styles = styles_.str();
      const StyledTextView view{text, styles, &strikeouts_, indentTwips_};
      writeRtfFile(path, view, table_);
    } else {
      writeFileAtomically(path, text_.str());
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
    writeFileAtomically(path, text_.str());
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace lathwick
