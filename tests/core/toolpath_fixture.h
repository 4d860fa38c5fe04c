#pragma once
// Runs the motion model over a program given as text and keeps what it hands on.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "extend/toolpath/model_program.h"
#include "extend/toolpath/motion_model.h"

namespace lathwick::toolpath::test {

struct Modelled {
  std::vector<Move> moves;
  std::vector<Warning> warnings;
};

inline Modelled model(const std::string& program, ModelOptions options = {}) {
  Modelled out;
  MotionModel m(
      options, [&](const Move& mv) { out.moves.push_back(mv); }, [&](const Warning& w) { out.warnings.push_back(w); });
  m.feed(program);
  m.finish();
  return out;
}

inline void expectPoint(const Point& p, double x, double y, double z, double tolerance = 1e-6) {
  EXPECT_NEAR(p.x, x, tolerance);
  EXPECT_NEAR(p.y, y, tolerance);
  EXPECT_NEAR(p.z, z, tolerance);
}

}  // namespace lathwick::toolpath::test
