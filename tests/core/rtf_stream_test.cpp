// The rich-text reader streamed: a file read a piece at a time, through a small buffer or on a
// helper thread, gives the text, runs, formats and indent that reading it whole gives, whichever
// bytes meet the buffer's end; the text reaches the sink in pieces whose runs start at the piece.
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "document/rtf_read_ahead.h"
#include "document/rtf_reader.h"
#include "platform/errors.h"
#include "support/cli_runner.h"
#include "support/temp_dir.h"

namespace {

using namespace lathwick;

// Gathers the pieces, checking what every piece promises.
class Gather : public RtfTextSink {
 public:
  void indent(int twips) override {
    EXPECT_TRUE(doc.text.empty()) << "the indent comes before the text";
    doc.indentTwips = twips;
    ++indents;
  }
  void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable& table) override {
    EXPECT_FALSE(text.empty());
    EXPECT_FALSE(runs.empty());
    if (!runs.empty()) {
      EXPECT_EQ(runs.front().start, 0u);
    }
    for (const RtfRun& r : runs) {
      EXPECT_LT(r.start, text.size());
      EXPECT_LT(r.format, table.formats.size());
      if (!doc.runs.empty() && doc.runs.back().format == r.format) continue;  // goes on
      doc.runs.push_back({doc.text.size() + r.start, r.format});
    }
    doc.text.append(text);
    ++pieces;
  }
  RtfDocument doc;
  int pieces = 0;
  int indents = 0;
};

// The same document, format by format (the format numbers may differ, the formats may not).
void expectSameDocument(const RtfDocument& want, const RtfDocument& got, const std::string& what) {
  ASSERT_EQ(got.text, want.text) << what;
  EXPECT_EQ(got.indentTwips, want.indentTwips) << what;
  ASSERT_EQ(got.runs.size(), want.runs.size()) << what;
  for (std::size_t i = 0; i < want.runs.size(); ++i) {
    EXPECT_EQ(got.runs[i].start, want.runs[i].start) << what << " run " << i;
    EXPECT_EQ(got.formats.at(got.runs[i].format), want.formats.at(want.runs[i].format)) << what << " run " << i;
  }
  EXPECT_EQ(got.fonts.size(), want.fonts.size()) << what;
  for (const auto& [number, font] : want.fonts) EXPECT_EQ(got.fontName(number), font.name) << what;
}

RtfDocument streamed(const std::string& path, std::size_t buffer) {
  Gather gather;
  static_cast<RtfFormatTable&>(gather.doc) = readRtfFile(path, gather, buffer);
  return gather.doc;
}

// Buffer sizes that put the buffer's end inside control words, escapes and remembered runs.
constexpr std::size_t kBuffers[] = {512, 513, 777, 1031, 4096};

// A colorized program long enough to be handed over in several pieces: lines in two formats,
// struck out now and then, escapes, a table row, and a final paragraph mark.
std::string longColorizedRtf() {
  std::string rtf =
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fnil Arial;}}\r\n"
      "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\r\n\\pard\\li400 ";
  for (int i = 0; i < 12000; ++i) {
    rtf += i ? "\\par\\li400 " : "\\li400 ";
    rtf += "\\plain\\f0\\fs20\\cf1\\b\\i0\\strike0\\ul0 N" + std::to_string(i * 10) + " G01 ";
    rtf += (i % 7 == 0) ? "\\strike " : "";
    rtf += "\\plain\\f1\\fs24\\cf2\\b0\\i\\strike0\\ul0 X" + std::to_string(i) + ".5 \\{A\\} \\'e9";
    if (i % 1000 == 500) rtf += "\\cell\\row";
  }
  return rtf + "\\par}\r\n";
}

}  // namespace

TEST(RtfStream, ALongDocumentReadThroughSmallBuffersIsTheDocumentReadWhole) {
  test::TempDir dir;
  const std::string rtf = longColorizedRtf();
  const std::string path = dir.write("long.rtf", rtf);
  const RtfDocument whole = readRtf(rtf);
  ASSERT_GT(whole.text.size(), 300000u);
  for (std::size_t buffer : kBuffers) expectSameDocument(whole, streamed(path, buffer), "buffer " + std::to_string(buffer));

  Gather gather;
  readRtfFile(path, gather);
  EXPECT_GT(gather.pieces, 1) << "a long text comes in pieces";
  EXPECT_EQ(gather.indents, 1);
  const std::string end = "X11999.5 {A} \xe9";  // and no empty line after it
  EXPECT_EQ(gather.doc.text.substr(gather.doc.text.size() - end.size()), end);
}

TEST(RtfStream, CorpusAndTestFilesReadTheSameThroughAnyBuffer) {
  std::vector<std::string> files;
  for (const char* sub : {"rtf", "format"}) {
    const std::filesystem::path data = std::filesystem::path(LATHWICK_TEST_DATA_DIR) / sub;
    for (const auto& e : std::filesystem::directory_iterator(data))
      if (e.path().extension() == ".rtf") files.push_back(e.path().string());
  }
  if (const std::string corpus = test::corpusDir("rtf"); !corpus.empty())
    for (const auto& e : std::filesystem::directory_iterator(corpus)) files.push_back(e.path().string());
  ASSERT_FALSE(files.empty());
  for (const std::string& file : files) {
    const RtfDocument whole = readRtf(test::readBytes(file));
    for (std::size_t buffer : kBuffers) expectSameDocument(whole, streamed(file, buffer), file + " buffer " + std::to_string(buffer));
  }
}

TEST(RtfStream, TablesTruncationsAndBinaryDataAcrossTheBufferEnd) {
  test::TempDir dir;
  // Each piece of trouble sits at many offsets from the buffer's end.
  const std::string trouble[] = {
      "{\\fonttbl{\\f0\\fswiss Arial;}{\\f1 Sym",  // a font table cut short
      "{\\colortbl;\\red10\\green20\\blue30;N10",  // a colour table cut short
      "\\bin12 {}\\\\}{\\par\\{!x",                // binary bytes that look like RTF
      "\\u8364?\\uc2\\u8212ab\\'e9\\'",           // Unicode and its fallbacks, a broken escape
      "\\trowd A\\cell B\\cell\\row\\nestrow",    // table rows
  };
  for (const std::string& t : trouble) {
    for (std::size_t pad = 480; pad < 530; ++pad) {
      const std::string rtf = "{\\rtf1 " + std::string(pad, 'x') + t + " tail\\par}";
      const std::string path = dir.write("t.rtf", rtf);
      expectSameDocument(readRtf(rtf), streamed(path, 512), t + " at " + std::to_string(pad));
    }
  }
}

TEST(RtfStream, PlainTextUnderARichTextNameStreamsAsItIs) {
  test::TempDir dir;
  std::string text = "  \r\n\tN10 G01 X1 {not rtf}\r\n";
  for (int i = 0; i < 40000; ++i) text += "N" + std::to_string(i) + " X1\r\n";
  const RtfDocument doc = streamed(dir.write("plain.rtf", text), 4096);
  EXPECT_EQ(doc.text, text);
  ASSERT_EQ(doc.runs.size(), 1u);
  EXPECT_EQ(doc.formats.at(doc.runs[0].format), RtfCharFormat{});
  EXPECT_EQ(doc.indentTwips, 0);

  const RtfDocument blanks = streamed(dir.write("blanks.rtf", std::string(9000, ' ') + "{\\rtf1 text}"), 512);
  EXPECT_EQ(blanks.text, "text");  // however many blanks before it, it is rich text
  EXPECT_TRUE(streamed(dir.write("empty.rtf", ""), 512).text.empty());
}

TEST(RtfStream, AFileThatCannotBeOpenedIsAnErrorBeforeAnyText) {
  Gather gather;
  try {
    readRtfFile("/nonexistent/folder/x.rtf", gather);
    FAIL() << "no error";
  } catch (const AppError& e) {
    EXPECT_EQ(e.number(), err::kFileNotFound);
  }
  EXPECT_EQ(gather.pieces, 0);
  EXPECT_EQ(gather.indents, 0);
}

TEST(RtfStream, ReadAheadOnAHelperThreadGivesTheSamePiecesAndStopsWhenTheSinkFails) {
  test::TempDir dir;
  const std::string rtf = longColorizedRtf();
  const std::string path = dir.write("long.rtf", rtf);
  Gather direct;
  static_cast<RtfFormatTable&>(direct.doc) = readRtfFile(path, direct);
  Gather ahead;
  static_cast<RtfFormatTable&>(ahead.doc) = readRtfFileAhead(path, ahead);
  expectSameDocument(direct.doc, ahead.doc, "read ahead");
  EXPECT_EQ(ahead.pieces, direct.pieces);

  // A sink that fails part-way: the failure reaches the caller, and the reading stops.
  struct Failing : Gather {
    void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable& table) override {
      if (pieces == 1) throw std::runtime_error("full");
      Gather::styledText(text, runs, table);
    }
  } failing;
  EXPECT_THROW(readRtfFileAhead(path, failing), std::runtime_error);
  EXPECT_EQ(failing.pieces, 1);
  EXPECT_THROW(readRtfFileAhead(dir.file("missing.rtf"), failing), AppError);
}
