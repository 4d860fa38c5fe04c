// The main of a benchmark of the editor's controls: the editor's memory settings, the
// application object (on the offscreen platform unless another one is asked for), the
// benchmarks, then whatever must be gone before the application object is.
#pragma once

#include <benchmark/benchmark.h>

#include <QApplication>

#include "platform/memory_reuse.h"

namespace lathwick::bench {

inline int runWithApplication(int argc, char** argv, void (*beforeQuit)() = nullptr) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  keepLargeBuffersForReuse();  // as the editor does
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  if (beforeQuit) beforeQuit();
  return 0;
}

}  // namespace lathwick::bench
