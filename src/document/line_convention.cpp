#include "document/line_convention.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <optional>
#include <type_traits>

#include "platform/atomic_file.h"
#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

namespace {
constexpr std::size_t kBlock = 1 << 16;

// Calls `piece` with each block of the file until it returns false.
template <typename Piece>
void readBlocks(const std::string& path, Piece piece) {
  std::FILE* f = std::fopen(nativePath(path).c_str(), "rb");
  if (!f) throw makeError(err::kFileNotFound);
  std::array<char, kBlock> buf;
  std::size_t n;
  bool more = true;
  while (more && (n = std::fread(buf.data(), 1, buf.size(), f)) > 0) {
    if constexpr (std::is_void_v<decltype(piece(std::string_view()))>) {
      piece(std::string_view(buf.data(), n));
    } else {
      more = piece(std::string_view(buf.data(), n));
    }
  }
  const bool failed = std::ferror(f) != 0;
  std::fclose(f);
  if (failed) throw makeError(err::kPathFileAccessError);
}

// Scans for CR and LF; a file with a CR is never Linux text, so the scan ends at the first one.
struct BreakScan {
  bool anyLf = false;
  bool anyCr = false;
  void add(std::string_view bytes) {
    if (anyCr) return;
    anyCr = bytes.find('\r') != std::string_view::npos;
    if (!anyLf) anyLf = bytes.find('\n') != std::string_view::npos;
  }
  LineEnds ends() const { return anyLf && !anyCr ? LineEnds::Lf : LineEnds::CrLf; }
};
}  // namespace

LineEnds lineEndsOf(std::string_view bytes) {
  BreakScan scan;
  scan.add(bytes);
  return scan.ends();
}

LineEnds lineEndsOfFile(const std::string& path) {
  BreakScan scan;
  readBlocks(path, [&scan](std::string_view block) {
    scan.add(block);
    return !scan.anyCr;  // a CR settles it
  });
  return scan.ends();
}

std::string linuxToCrLf(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 16);
  for (const char c : bytes) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

std::string withLineEnds(std::string_view crLfText, LineEnds ends) {
  if (ends == LineEnds::CrLf) return std::string(crLfText);
  std::string out;
  out.reserve(crLfText.size());
  for (std::size_t i = 0; i < crLfText.size(); ++i) {
    if (crLfText[i] == '\r' && i + 1 < crLfText.size() && crLfText[i + 1] == '\n') continue;
    out += crLfText[i];
  }
  return out;
}

std::optional<LineEnds> writeTwinUnlessCr(const std::string& from, const std::string& to) {
  // The file is taken for Linux text (and its twin written) until a CR turns up. A CR LF program
  // shows its first CR in the first block, so either way the file is read about once. The twin
  // is begun only then, so a CR LF program never touches `to` here.
  std::optional<AtomicFileWriter> out;
  BreakScan scan;
  readBlocks(from, [&](std::string_view block) {
    scan.add(block);
    if (scan.anyCr) return false;
    if (!out) out.emplace(to, Durability::Scratch);
    out->write(linuxToCrLf(block));
    return true;
  });
  if (scan.anyCr) return std::nullopt;
  if (!out) out.emplace(to, Durability::Scratch);  // an empty file
  out->commit();
  return scan.ends();  // text without LF is its own twin, and counts as CR LF
}

LineEnds copyAsCrLfTwin(const std::string& from, const std::string& to) {
  if (const auto ends = writeTwinUnlessCr(from, to)) return *ends;
  if (!copyFile(from, to, Durability::Scratch)) throw makeError(err::kPathFileAccessError);
  return LineEnds::CrLf;
}

void rewriteWithLineEnds(const std::string& path, LineEnds ends) {
  if (ends == LineEnds::CrLf) return;
  AtomicFileWriter out(path);
  bool pendingCr = false;  // a CR at the end of one block may pair with an LF opening the next
  readBlocks(path, [&out, &pendingCr](std::string_view block) {
    std::string text = pendingCr ? "\r" + std::string(block) : std::string(block);
    pendingCr = !text.empty() && text.back() == '\r';
    if (pendingCr) text.pop_back();
    out.write(withLineEnds(text, LineEnds::Lf));
  });
  if (pendingCr) out.write("\r");
  out.commit();
}

}  // namespace lathwick
