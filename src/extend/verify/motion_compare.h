#pragma once
// Whether two programs command the same motion: both are read side by side through the motion
// model, move by move, so memory does not grow with the programs. N numbers, spaces and
// comments make no move and so never count; a move differs when its kind, plane (arcs), units,
// tool, end point, arc centre or feed differs by more than the tolerance, in the units of the
// move.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "extend/toolpath/motion_model.h"

namespace lathwick::verify {

inline constexpr double kMotionTolerance = 0.0001;

// Where two programs part. A line of 0 means that program had no move left (it ended first).
struct MotionComparison {
  bool same = true;
  std::uint32_t lineA = 0, lineB = 0;  // the first differing moves' program lines
  std::uint64_t moveNumber = 0;        // 1-based number of the first differing move
  std::uint64_t movesA = 0, movesB = 0;
  std::uint64_t changedMoves = 0;      // with countAll: moves that differ, extra moves included
};

// Hands on the bytes of a program in pieces; an empty piece ends it.
using ProgramSource = std::function<std::string_view()>;

struct CompareOptions {
  toolpath::ModelOptions model;
  double tolerance = kMotionTolerance;
  bool countAll = false;  // go on after the first difference and count every changed move
};

MotionComparison compareMotion(const ProgramSource& a, const ProgramSource& b, const CompareOptions& options);

// Two files (throws AppError when one cannot be read) or two texts in memory.
MotionComparison compareProgramFiles(const std::string& pathA, const std::string& pathB,
                                     const CompareOptions& options);
MotionComparison compareProgramTexts(std::string_view textA, std::string_view textB, const CompareOptions& options);

// A source that reads a file in large pieces; throws AppError (53) when it cannot be opened.
ProgramSource fileSource(const std::string& path);
// A source over bytes held by the caller.
ProgramSource textSource(std::string_view text);

// The text of the 1-based `line` of a program as the motion model numbers its lines (CR LF, a
// lone CR and a lone LF each end one); empty when there is no such line.
std::string programLine(std::string_view text, std::uint32_t line);
std::string programFileLine(const std::string& path, std::uint32_t line);

}  // namespace lathwick::verify
