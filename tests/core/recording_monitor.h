#pragma once
// A pass monitor that records what a pass reports and cancels on cue.
#include <string>
#include <vector>

#include "platform/pass_monitor.h"

namespace lathwick::test {

class RecordingMonitor : public PassMonitor {
 public:
  void progressStart(long total) override { starts.push_back(total); }
  void progressValue(long v) override { values.push_back(v); }
  void progressEnd() override { ++ends; }
  void pumpEvents() override { ++pumps; }
  bool cancelRequested() const override {
    return (cancelAfterPumps > 0 && pumps >= cancelAfterPumps) ||
           (cancelAfterReports > 0 && static_cast<long>(values.size()) >= cancelAfterReports);
  }
  void clearCancel() override { ++clears; }
  void statusText(const char* t) override { statuses.emplace_back(t); }

  std::vector<long> starts, values;
  std::vector<std::string> statuses;
  long pumps = 0;
  int ends = 0, clears = 0;
  long cancelAfterPumps = 0, cancelAfterReports = 0;  // 0: never cancel
};

}  // namespace lathwick::test
