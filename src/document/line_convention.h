#pragma once
// The line-end convention a program file was written with. A program whose bytes hold LF and no
// CR at all has Linux line ends: each LF ends a line, exactly as CR LF would. Such a program is
// worked on as its CR LF twin (the work files and the passes read CR LF) and written back with
// LF, so a document keeps the convention it came with. Anything else (CR LF, a mixture of CR LF
// and bare LFs, lone CRs, no line break at all) is taken as it is, for the line-ending checks
// and the junk filter to judge.
#include <optional>
#include <string>
#include <string_view>

namespace lathwick {

enum class LineEnds { CrLf, Lf };

// Lf when the bytes hold at least one LF and no CR.
LineEnds lineEndsOf(std::string_view bytes);
// The same for a file, read in blocks. Throws AppError 53 when it cannot be read.
LineEnds lineEndsOfFile(const std::string& path);

// Every LF becomes CR LF (for Linux text, which holds no CR).
std::string linuxToCrLf(std::string_view bytes);
// Every CR LF becomes LF when `ends` is Lf; any other text is returned as it is.
std::string withLineEnds(std::string_view crLfText, LineEnds ends);

// Copies a program file to a work file as its CR LF twin and says which convention it had; a
// file that is not Linux text is copied byte for byte. Throws AppError when either file fails.
LineEnds copyAsCrLfTwin(const std::string& from, const std::string& to);
// The first half of that: the twin of a file that holds no CR is written and its convention
// returned; a file with a CR gives nullopt and `to` is left as it was. Throws as above.
std::optional<LineEnds> writeTwinUnlessCr(const std::string& from, const std::string& to);
// Rewrites a file written with CR LF in the convention `ends` (nothing to do for CrLf), through
// a temporary file. Throws AppError when it fails.
void rewriteWithLineEnds(const std::string& path, LineEnds ends);

}  // namespace lathwick
