// Loading and saving the rich text control. A file goes into the control as it is read: each
// piece of text the reader hands over is appended and styled at once, so neither the file nor a
// parsed copy of the document is held beside the control's own. The styles of the load are kept
// as runs, and saving writes the document from them (and from the control, for edited stretches).
#include <algorithm>
#include <cstring>
#include <optional>

#include "document/gui/rich_text_box.h"
#include "document/rtf_read_ahead.h"
#include "document/rtf_reader.h"
#include "document/rtf_writer.h"
#include "document/source_file.h"

namespace lathwick {

namespace {
constexpr std::size_t kPlainPiece = 1 << 20;  // plain text is read a megabyte at a time
constexpr long kReadBackChunk = 1 << 20;      // edited styles are read back a megabyte at a time
constexpr std::size_t kTypingRoom = 1 << 16;  // room for typing beyond a loaded text (and 1/32 of it)
}  // namespace

// Puts a document into the control as it arrives. Nothing is touched before the first piece
// (or the end) arrives, so a file that cannot be opened leaves the control as it was. Undo
// collection is off while the text goes in, and the load is not an edit.
class RichTextLoader : public RtfTextSink {
 public:
  // `sizeHint`: about how long the text will be (room is made for it at once).
  RichTextLoader(RichTextBox& box, std::size_t sizeHint, int indentTwips)
      : box_(box), sizeHint_(sizeHint), indent_(indentTwips) {}
  ~RichTextLoader() override {
    if (!started_ || finished_) return;
    // A failed read: what came so far stays, as text the control can edit and undo normally.
    box_.SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    box_.SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 1L);
    box_.loadedKnown_ = false;
    box_.loadedRuns_.clear();
    box_.loading_ = false;
  }
  RichTextLoader(const RichTextLoader&) = delete;
  RichTextLoader& operator=(const RichTextLoader&) = delete;

  void indent(int twips) override { indent_ = twips; }

  void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable& table) override {
    if (text.empty()) return;
    appendText(text);
    styles_.resize(text.size());
    // The runs start at 0; text before a first run would go on in the style before it.
    if (runs.empty() || runs.front().start > 0) fill(0, runs.empty() ? text.size() : runs.front().start, lastStyle_, lastStrike_);
    for (std::size_t k = 0; k < runs.size(); ++k) {
      const std::size_t end = k + 1 < runs.size() ? runs[k + 1].start : text.size();
      const RtfRun& run = runs[k];
      if (run.start < end) fill(run.start, end, styleOf(run.format, table), table.formats[run.format].strike);
    }
    style(text.size());
  }

  // Text in the default style (style 0), as a plain file loads.
  void plainText(std::string_view text) {
    if (text.empty()) return;
    appendText(text);
    box_.loadedRuns_.append(text.size(), 0);
    lastStyle_ = 0;
    position_ += static_cast<long>(text.size());
  }

  // The end of the document: `finalBreak` is added when rich text does not end in a break.
  void finish(std::string_view finalBreak) {
    start();
    if (!finalBreak.empty() && styled_ && lastChar_ != '\n' && lastChar_ != '\r') {
      appendText(finalBreak);
      styles_.assign(finalBreak.size(), static_cast<char>(lastStyle_));
      box_.loadedRuns_.append(finalBreak.size(), static_cast<unsigned char>(lastStyle_));
      style(finalBreak.size());
    }
    box_.paintStrikeouts(0, strikes_);
    box_.indentTwips_ = indent_;
    box_.applyIndent();
    box_.SendScintilla(QsciScintillaBase::SCI_EMPTYUNDOBUFFER);
    box_.SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 1L);
    box_.SendScintilla(QsciScintillaBase::SCI_SETSAVEPOINT);
    box_.loadedStrikeouts_ = std::move(strikes_);
    box_.loadedKnown_ = true;
    box_.pieces_.reset(static_cast<std::size_t>(position_));
    box_.loading_ = false;
    finished_ = true;
    emit box_.textModified();
  }

 private:
  void start() {
    if (started_) return;
    started_ = true;
    box_.loading_ = true;
    box_.pending_.clear();
    box_.deleted_.clear();
    box_.loadedKnown_ = false;
    box_.loadedRuns_.clear();
    box_.loadedStrikeouts_.clear();
    box_.SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 0L);
    box_.SendScintilla(QsciScintillaBase::SCI_CLEARALL);
    box_.resetStyles();
    // Room for the text and for typing after it: were the buffers exactly full, the first keys
    // typed would make the control copy the whole document into larger ones.
    box_.SendScintilla(QsciScintillaBase::SCI_ALLOCATE, static_cast<long>(sizeHint_ + sizeHint_ / 32 + kTypingRoom));
  }

  void appendText(std::string_view text) {
    start();
    box_.SendScintilla(QsciScintillaBase::SCI_APPENDTEXT, static_cast<uintptr_t>(text.size()), text.data());
    lastChar_ = text.back();
  }

  // Styles the last `count` characters appended from styles_, and moves on past them.
  void style(std::size_t count) {
    styled_ = true;
    box_.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, position_, 0L);
    box_.SendScintilla(QsciScintillaBase::SCI_SETSTYLINGEX, static_cast<uintptr_t>(count), styles_.data());
    position_ += static_cast<long>(count);
  }

  // Characters [from, to) of the piece in `style`, struck out or not.
  void fill(std::size_t from, std::size_t to, int style, bool strike) {
    std::memset(styles_.data() + from, style, to - from);
    box_.loadedRuns_.append(to - from, static_cast<unsigned char>(style));
    if (strike) {
      const std::size_t start = static_cast<std::size_t>(position_) + from, end = static_cast<std::size_t>(position_) + to;
      if (!strikes_.empty() && strikes_.back().end == start) {
        strikes_.back().end = end;
      } else {
        strikes_.push_back({start, end});
      }
    }
    lastStyle_ = style;
    lastStrike_ = strike;
  }

  // The control's style for a format of the document: the same format always gets the same one.
  int styleOf(std::uint32_t format, const RtfFormatTable& table) {
    if (format >= styleOfFormat_.size()) styleOfFormat_.resize(format + 1, -1);
    int& style = styleOfFormat_[format];
    if (style < 0) {
      style = box_.table_.styleFor(styleFormatOf(table, table.formats[format], box_.table_));
      if (!box_.styleApplied_[static_cast<std::size_t>(style)]) box_.defineStyle(style);
    }
    return style;
  }

  RichTextBox& box_;
  std::size_t sizeHint_;
  int indent_;
  bool started_ = false;
  bool finished_ = false;
  bool styled_ = false;  // rich text came (a plain load keeps its end as it is)
  long position_ = 0;  // where the next piece goes
  char lastChar_ = 0;
  int lastStyle_ = 0;
  bool lastStrike_ = false;
  std::string styles_;  // of the piece being styled
  std::vector<int> styleOfFormat_;
  std::vector<TextRange> strikes_;
};

void RichTextBox::setTextBytes(std::string_view text) {
  RichTextLoader loader(*this, text.size(), defaultIndentTwips_);
  loader.plainText(text);
  loader.finish({});
}

void RichTextBox::loadRtf(std::string_view rtf, std::string_view finalBreak) {
  RichTextLoader loader(*this, static_cast<std::size_t>(textLength()), 0);
  readRtf(rtf, loader);
  loader.finish(finalBreak);
}

void RichTextBox::loadFile(const std::string& path, FileKind kind, std::string_view finalBreak) {
  if (kind == FileKind::RichText) {
    // A reload brings back about as much text as the document has: room for that is made at
    // once, rather than the control growing its buffers (and copying them) as the text comes.
    RichTextLoader loader(*this, static_cast<std::size_t>(textLength()) + finalBreak.size(), 0);
    readRtfFileAhead(path, loader);  // the next piece is read while this one goes in
    loader.finish(finalBreak);
    return;
  }
  SourceFile file(path);
  RichTextLoader loader(*this, static_cast<std::size_t>(file.size()), defaultIndentTwips_);
  std::string piece(kPlainPiece, '\0');
  while (const std::size_t got = file.read(piece.data(), piece.size())) loader.plainText(std::string_view(piece.data(), got));
  loader.finish({});
}

std::string_view RichTextBox::characterView() const {
  const long length = textLength();
  const auto* p = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return p ? std::string_view(p, static_cast<std::size_t>(length)) : std::string_view();
}

namespace {

// The styles of a document that has been edited since it was loaded: loaded stretches from the
// load's runs, edited ones read back from the control a chunk at a time.
class EditedStyleRuns : public StyleRunSource {
 public:
  EditedStyleRuns(const StyleRuns* loaded, std::vector<StylePieces::Stretch> stretches,
                  std::function<std::string(long, long)> readBack)
      : loaded_(loaded), stretches_(std::move(stretches)), readBack_(std::move(readBack)) {}

  std::span<const StyleRun> next() override {
    while (true) {
      if (loadedPart_) {
        if (auto runs = loadedPart_->next(); !runs.empty()) return runs;
        loadedPart_.reset();
      }
      if (editedPart_) {
        if (auto runs = editedPart_->next(); !runs.empty()) return runs;
        editedPart_.reset();
      }
      if (!nextPart()) return {};
    }
  }

 private:
  // Starts on the next stretch, or the next chunk of an edited one.
  bool nextPart() {
    if (index_ >= stretches_.size()) return false;
    StylePieces::Stretch& s = stretches_[index_];
    if (s.loaded && loaded_) {
      loadedPart_.emplace(*loaded_, s.loadedStart, s.count);
      ++index_;
      return true;
    }
    const std::size_t count = std::min<std::size_t>(s.count, kReadBackChunk);
    chunk_ = readBack_(static_cast<long>(s.at), static_cast<long>(s.at + count));
    editedPart_.emplace(chunk_);
    s.at += count;
    s.count -= count;
    if (s.count == 0) ++index_;
    return true;
  }

  const StyleRuns* loaded_;
  std::vector<StylePieces::Stretch> stretches_;
  std::function<std::string(long, long)> readBack_;
  std::size_t index_ = 0;
  std::optional<StyleRuns::Reader> loadedPart_;
  std::string chunk_;
  std::optional<CharacterStyleRuns> editedPart_;
};

}  // namespace

// The whole document as rich text. Styles are taken from the load where the text is unedited
// and read back from the control only for the edited stretches.
void RichTextBox::writeWholeRtf(const std::function<void(std::string_view)>& sink) const {
  const auto length = static_cast<std::size_t>(textLength());
  if (loadedKnown_ && pieces_.unchanged(length)) {
    StyleRuns::Reader runs = loadedRuns_.read(0, length);
    writeRtf({characterView(), {}, &loadedStrikeouts_, indentTwips_, &runs}, table_, sink);
    return;
  }
  std::vector<StylePieces::Stretch> stretches =
      loadedKnown_ ? pieces_.stretches(length) : std::vector<StylePieces::Stretch>{{false, 0, 0, length}};
  EditedStyleRuns runs(loadedKnown_ ? &loadedRuns_ : nullptr, std::move(stretches),
                       [this](long from, long to) { return stylesOf(from, to); });
  const std::vector<TextRange> strikes = strikeoutsOf(0, static_cast<long>(length));
  writeRtf({characterView(), {}, &strikes, indentTwips_, &runs}, table_, sink);
}

std::optional<RichTextBox::UnchangedDocument> RichTextBox::unchangedDocument() const {
  const std::string_view text = characterView();
  if (!loadedKnown_ || !pieces_.unchanged(text.size())) return std::nullopt;
  return UnchangedDocument{text, &loadedRuns_, loadedStrikeouts_, table_, indentTwips_};
}

std::string RichTextBox::rtf() const {
  std::string rtf;
  writeWholeRtf([&rtf](std::string_view piece) { rtf += piece; });
  return rtf;
}

void RichTextBox::saveFile(const std::string& path, FileKind kind, Durability durability) const {
  if (kind == FileKind::PlainText) {
    writeFileAtomically(path, characterView(), durability);
    return;
  }
  AtomicFileWriter file(path, durability);
  writeWholeRtf([&file](std::string_view piece) { file.write(piece); });
  file.commit();
}

}  // namespace lathwick
