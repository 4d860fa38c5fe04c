// The motion model over any program with any reading options. The first line gives them,
// tab-separated (missing ones read as the defaults):
//   COMMENT-PAIR BLOCK-SKIP UNITS PIECE
// COMMENT-PAIR is two characters ("()", "" for no comments), UNITS "in" or "mm", PIECE the size
// of the pieces the program is fed in (1 to 64). The model must hand on the same moves and
// warnings whatever the pieces, every move must start where the one before it ended (in the
// unit now in force), lines must come in order, coordinates must be numbers, and the whole-
// program model must count what the streaming one saw. The whole-program model starts with a
// block of 65,536 move records, which costs more than all the rest on a small input: it runs
// for one program length in eight (any length the fuzzer wants to reach it by).
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "extend/toolpath/model_program.h"
#include "extend/toolpath/motion_model.h"

namespace lathwick::fuzz {

namespace {
using namespace toolpath;

struct Seen {
  std::vector<Move> moves;
  std::vector<Warning> warnings;
  std::uint32_t lines = 0;
};

ModelOptions optionsFrom(FieldReader& fields) {
  ModelOptions options;
  const std::string pair = fields.next();
  if (pair.empty()) {
    options.reader.comment.active = false;
  } else if (pair.size() >= 2) {
    options.reader.comment.open = pair[0];
    options.reader.comment.close = pair[1];
  }
  options.reader.blockSkip = fields.next();
  options.initialUnits = fields.next() == "in" ? Units::Inch : Units::Millimetre;
  return options;
}

Seen model(const ModelOptions& options, std::string_view program, std::size_t piece) {
  Seen seen;
  MotionModel m(options, [&](const Move& move) { seen.moves.push_back(move); },
                [&](const Warning& w) { seen.warnings.push_back(w); });
  for (std::size_t at = 0; at < program.size(); at += piece) m.feed(program.substr(at, piece));
  m.finish();
  seen.lines = m.linesRead();
  return seen;
}

bool finite(const Point& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

bool near(double a, double b) { return std::fabs(a - b) <= 1e-9 * std::max({1.0, std::fabs(a), std::fabs(b)}); }

void checkChain(const Seen& seen) {
  const Move* before = nullptr;
  for (const Move& move : seen.moves) {
    FUZZ_CHECK(finite(move.start) && finite(move.end) && std::isfinite(move.feed));
    if (move.isArc()) FUZZ_CHECK(finite(move.centre));
    FUZZ_CHECK(move.line >= 1 && move.line <= seen.lines);
    if (before) {
      FUZZ_CHECK(move.line >= before->line);
      const double f = before->units == move.units            ? 1.0
                       : move.units == Units::Millimetre ? kMillimetresPerInch
                                                         : 1 / kMillimetresPerInch;
      for (int axis = 0; axis < 3; ++axis) FUZZ_CHECK(near(move.start[axis], before->end[axis] * f));
    }
    before = &move;
  }
  for (const Warning& w : seen.warnings) FUZZ_CHECK(w.line >= 1 && w.line <= seen.lines && !w.text.empty());
}

bool sameMoves(const Seen& a, const Seen& b) {
  if (a.moves.size() != b.moves.size() || a.warnings.size() != b.warnings.size() || a.lines != b.lines) return false;
  for (std::size_t i = 0; i < a.moves.size(); ++i) {
    const Move &x = a.moves[i], &y = b.moves[i];
    if (x.line != y.line || x.kind != y.kind || !(x.end == y.end) || x.units != y.units) return false;
  }
  for (std::size_t i = 0; i < a.warnings.size(); ++i)
    if (a.warnings[i].line != b.warnings[i].line || a.warnings[i].text != b.warnings[i].text) return false;
  return true;
}
}  // namespace

int motionModel(const std::uint8_t* data, std::size_t size) {
  FieldReader fields(data, size);
  const ModelOptions options = optionsFrom(fields);
  const long piece = std::strtol(fields.next().c_str(), nullptr, 10);
  const std::string_view program = fields.body();

  const Seen whole = model(options, program, program.size() + 1);
  checkChain(whole);
  const Seen pieces = model(options, program, static_cast<std::size_t>(piece < 1 || piece > 64 ? 7 : piece));
  FUZZ_CHECK(sameMoves(whole, pieces));

  if (program.size() % 8 != 0) return 0;
  const ModelledProgram modelled = modelProgramText(program, options);
  FUZZ_CHECK(!modelled.cancelled);
  FUZZ_CHECK(modelled.moves.size() == whole.moves.size());
  FUZZ_CHECK(modelled.summary.moves == whole.moves.size());
  FUZZ_CHECK(modelled.warningCount == whole.warnings.size());
  FUZZ_CHECK(modelled.lines == whole.lines);
  return 0;
}

}  // namespace lathwick::fuzz
