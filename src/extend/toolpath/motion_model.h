#pragma once
// The motion model: reads a part program line by line and hands on the moves it commands, each
// with its source line, and a warning for each line it cannot follow whole. It keeps only the
// modal state of the machine, so it streams: memory does not grow with the program.
//
// Understood: G0 G1 G2 G3 (arcs by I J K or by R, negative R the long way, full circles, helical
// arcs), G17 G18 G19, G20 G21, G90 G91, G90.1 G91.1, G80 with the drilling cycles G81 G82 G83 G73
// (R plane, G98 G99 return, Q pecks, L repeats, incremental too), F, T with M6, G4. Harmless words
// (N, O, S, D, H, G40, G43, G49, G54-G59, G61, G64, G94, M codes other than M97 M98 M99) pass
// silently; anything else gives "unsupported WORD" and the drawing goes on with what is known.
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

#include "extend/toolpath/block_reader.h"
#include "extend/toolpath/move.h"

namespace lathwick::toolpath {

struct ModelOptions {
  ReaderOptions reader;                     // comments and block skip as the scheme has them
  Units initialUnits = Units::Millimetre;   // before the program says G20 or G21
};

class MotionModel {
 public:
  using MoveSink = std::function<void(const Move&)>;
  using WarningSink = std::function<void(const Warning&)>;

  MotionModel(ModelOptions options, MoveSink onMove, WarningSink onWarning = {});
  ~MotionModel();
  MotionModel(const MotionModel&) = delete;
  MotionModel& operator=(const MotionModel&) = delete;

  // The next program line (without its line end); lines are numbered from 1.
  void readLine(std::string_view line);
  // Bytes of the program in pieces of any size, then finish() once at the end.
  void feed(std::string_view bytes);
  void finish();

  std::uint32_t linesRead() const;
  Point position() const;
  Units units() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace lathwick::toolpath
