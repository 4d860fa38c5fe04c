// The programs the benchmarks run on, generated rather than shipped: a million lines as a CAM
// post would write them, in one of a few styles, so every benchmark of a file pass, a load or a
// view reads the same kind of input from one place. Also the scratch folder the files live in
// and the peak-memory figures the benchmarks report.
#pragma once

#include <sys/resource.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/atomic_file.h"

namespace lathwick::bench {

inline constexpr long kMillionLines = 1000000;

// The styles differ on purpose: each benchmark keeps the mix of blocks it has always measured.
enum class ProgramStyle {
  // Pocketing passes: linear moves with arcs at the corners (I J and R), cutter compensation, a
  // comment and a tool or depth change now and then, rapid moves between passes, the odd
  // block-skip line with M00. Blocks numbered N10, N20...
  Pocket,
  // Milling: numbered blocks of linear moves with X Y Z on every line, a G01 with a feed every
  // tenth line, a comment every 50 lines. Blocks numbered N10, N20...
  Milling,
  // A CAM post's roughing: tool changes with comments, rapid moves, long runs of linear and
  // circular cuts with modal codes left out, feeds, the odd block delete, M30 at the end.
  CamPost,
  // No % or O line: short numbered blocks G00 to G03 with a tool comment every tenth line.
  ToolComments,
};

namespace detail {

template <class... Args>
std::string format(const char* pattern, Args... args) {
  char buf[128];
  const int n = std::snprintf(buf, sizeof buf, pattern, args...);
  return std::string(buf, static_cast<size_t>(n));
}

inline std::string pocketBlock(long i) {
  const long k = i % 40;
  const std::string n = "N" + std::to_string((i - 1) * 10) + " ";
  const double x = (i % 997) * 0.125, y = (i % 613) * 0.25;
  if (k == 0) return n + "(PASS " + std::to_string(i / 40) + " DEPTH -1.5 STEP 0.25)";
  if (k == 1) return n + "G00" + format(" X%.3f Y%.3f", x, y) + " Z5.";
  if (k == 2) return n + "G01 Z-1.5 F120.";
  if (k == 3) return n + "G41 D1" + format(" X%.3f Y%.3f", x, y) + " F450.";
  if (k % 9 == 4) return n + "G02" + format(" X%.3f Y%.3f", x, y) + format(" I%.3f J%.3f", 2.5, -1.25);
  if (k % 9 == 5) return n + "G03" + format(" X%.3f Y%.3f", x, y) + " R2.5";
  if (k == 38) return n + "G40 G00 Z5. M9";
  if (k == 39 && i % 400 == 39) return "/" + n + "M00 (CHECK)";
  if (k == 39) return n + "T" + std::to_string(i % 12 + 1) + " M06 S" + std::to_string(1200 + i % 4000) + " M03";
  return n + format("X%.4f Y%.4f", x, y) + (k % 2 == 0 ? " F450." : " Z-1.5");
}

// i counts the blocks from 1 (the file's second line after the O line).
inline std::string millingBlock(long i) {
  if (i % 50 == 0) return format("N%ld (PASS %ld DEPTH %.2f)", i * 10, i / 50, -0.25 * (i % 7));
  if (i % 10 == 1)
    return format("N%ld G01 X%.3f Y%.3f Z%.2f F%d", i * 10, (i % 2000) * 0.125, -((i * 7) % 1500) * 0.0625,
                  -0.25 * (i % 7), 100 + static_cast<int>(i % 9) * 50);
  return format("N%ld X%.3f Y%.3f Z%.2f", i * 10, (i % 2000) * 0.125, -((i * 7) % 1500) * 0.0625, -0.25 * (i % 7));
}

inline std::string camPostBlock(long i) {
  const long n = (i - 1) * 10, k = i % 400, tool = i / 400 % 20 + 1;
  if (k == 0) return format("N%ld T%02ld M06 (TOOL %ld D12.0 FLAT END MILL)", n, tool, tool);
  if (k == 1) return format("N%ld G90 G54 G00 X%ld.%03ld Y-%ld.%03ld S2400 M03", n, i % 250, i % 997, i % 180, i % 991);
  if (k == 2) return format("N%ld G43 H%02ld Z25.0 M08", n, tool);
  if (k % 50 == 3) return format("/N%ld G00 Z5.0", n);
  if (k % 7 == 0)
    return format("N%ld G0%ld X%ld.%03ld Y%ld.%03ld I%ld.%03ld J-%ld.%03ld", n, 2 + k % 2, i % 250, i % 997, i % 180,
                  i % 991, k % 9, k % 500, k % 7, k % 300);
  if (k % 13 == 0) return format("N%ld G01 Z-%ld.%02ld F150.", n, k % 5, k % 100);
  return format("N%ld X%ld.%03ld Y%ld.%03ld F%ld.", n, i % 250, i % 997, i % 180, i % 991, 600 + k % 5 * 100);
}

inline std::string toolCommentBlock(long i) {
  if (i % 10 == 9) return format("(TOOL %ld DIA 12.5)", i % 40);
  return format("N%ld G0%ld X%ld.%03ld Y-%ld.%03ld F300", i * 10, i % 4, i % 500, i % 997, i % 300, i % 991);
}

}  // namespace detail

// Line `index` (from 0) of a program of `lines` lines in the given style, without line end.
inline std::string programLine(ProgramStyle style, long index, long lines) {
  const bool last = index == lines - 1;
  switch (style) {
    case ProgramStyle::Pocket:
      if (index == 0 || last) return "%";
      if (index == 1) return "O2001 (GENERATED POCKET PROGRAM)";
      return detail::pocketBlock(index);
    case ProgramStyle::Milling:
      if (index == 0) return "%";
      if (index == 1) return "O1000 (GENERATED)";
      return detail::millingBlock(index - 1);
    case ProgramStyle::CamPost:
      if (index == 0 || last) return "%";
      if (index == 1) return "O1000 (POCKET ROUGHING)";
      if (index == lines - 2) return "N" + std::to_string((index - 1) * 10) + " M30";
      return detail::camPostBlock(index);
    case ProgramStyle::ToolComments:
      return detail::toolCommentBlock(index);
  }
  return {};
}

// Hands each line of the program to onLine(index, line), in order.
template <class OnLine>
void generateProgram(ProgramStyle style, long lines, OnLine&& onLine) {
  for (long i = 0; i < lines; ++i) onLine(i, programLine(style, i, lines));
}

enum class LastLineEnd { CrLf, None };

// Writes the program to `path`, every line ended by CR LF (the last one too unless told not).
// Returns the size in bytes.
inline std::uintmax_t writeProgram(const std::string& path, ProgramStyle style, long lines = kMillionLines,
                                   LastLineEnd lastEnd = LastLineEnd::CrLf) {
  AtomicFileWriter out(path, Durability::Scratch);
  generateProgram(style, lines, [&](long i, const std::string& line) {
    if (i + 1 < lines || lastEnd == LastLineEnd::CrLf)
      out.writeLine(line);
    else
      out.write(line);
  });
  out.commit();
  return std::filesystem::file_size(path);
}

// A folder of the system's temporary folder, made empty for the run and removed after it.
class ScratchFolder {
 public:
  explicit ScratchFolder(const std::string& name) : path_(std::filesystem::temp_directory_path() / name) {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// The peak resident memory of the process since it started or since the last
// resetPeakResident(), in megabytes (VmHWM; getrusage's figure where /proc does not give it).
inline double peakResidentMegabytes() {
  if (std::FILE* status = std::fopen("/proc/self/status", "r")) {
    char line[256];
    long kilobytes = -1;
    while (std::fgets(line, sizeof line, status))
      if (std::sscanf(line, "VmHWM: %ld kB", &kilobytes) == 1) break;
    std::fclose(status);
    if (kilobytes >= 0) return static_cast<double>(kilobytes) / 1024.0;
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

// Starts a new peak at the memory resident now, so that the next peakResidentMegabytes() is the
// peak of one step. False where the system cannot (the peak then covers the whole run).
inline bool resetPeakResident() {
  std::FILE* refs = std::fopen("/proc/self/clear_refs", "w");
  if (!refs) return false;
  const bool done = std::fputs("5", refs) >= 0;
  return std::fclose(refs) == 0 && done;
}

}  // namespace lathwick::bench
