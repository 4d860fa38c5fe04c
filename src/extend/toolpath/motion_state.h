#pragma once
// The motion model's state, shared by the files that make it up (words, moves, drilling cycles).
// Internal: users include motion_model.h.
#include <array>
#include <string>
#include <vector>

#include "extend/toolpath/block_reader.h"
#include "extend/toolpath/motion_model.h"
#include "extend/toolpath/program_lines.h"

namespace lathwick::toolpath {

enum class Motion : std::uint8_t { Rapid, Feed, ArcCw, ArcCcw };
enum class Cycle : std::uint8_t { None, Drill, DrillDwell, Peck, ChipBreak };  // G80 G81 G82 G83 G73

// What one line says: the last value of each letter the moves read.
struct LineWords {
  std::array<bool, 26> has{};
  std::array<double, 26> value{};
  bool says(char letter) const { return has[static_cast<std::size_t>(letter - 'A')]; }
  double operator[](char letter) const { return value[static_cast<std::size_t>(letter - 'A')]; }
  bool anyAxis() const { return says('X') || says('Y') || says('Z'); }
};

struct CycleLevels {
  double r = 0, z = 0, q = 0;  // as programmed (incremental or absolute), in the units in force
  bool haveR = false, haveZ = false;
  double initialLevel = 0;     // height along the drilling axis when the cycle began
};

struct MotionModel::State {
  State(ModelOptions opts, MoveSink moves, WarningSink warnings);

  ModelOptions options;
  MoveSink onMove;
  WarningSink onWarning;
  BlockReader reader;
  ProgramLines lines;
  std::vector<Word> words;
  std::vector<std::string> problems;

  std::uint32_t line = 0;
  Point pos;
  Units units;
  Plane plane = Plane::XY;
  bool incremental = false;
  bool centreAbsolute = false;  // G90.1: I J K are absolute
  Motion motion = Motion::Rapid;
  Cycle cycle = Cycle::None;
  bool returnToR = false;       // G99; G98 returns to the initial level
  CycleLevels levels;
  double feed = 0;
  std::uint16_t tool = 0;
  std::uint16_t calledTool = 0;
  bool warnedNoFeed = false;

  // This line.
  LineWords lw;
  bool axesHeld = false;      // a word on the line uses the axis words for something else
  bool motionWord = false;    // G0 G1 G2 G3 on the line
  bool cycleWord = false;     // G81 G82 G83 G73 on the line

  void readLine(std::string_view text);
  void warn(std::string text);
  // words.cpp
  void gather();
  void applyG(int code, const Word& word);  // code in tenths: G1 is 10, G90.1 is 901
  void applyM(const Word& word);
  void setUnits(Units to);
  // moves.cpp
  void emit(MoveKind kind, const Point& end, const Point& centre = {});
  Point target() const;
  void moveLine();
  void moveArc(const Point& end);
  // canned_cycles.cpp
  void runCycle();
  void drillHole(int axis, double rLevel, double bottom, double returnLevel);
};

}  // namespace lathwick::toolpath
