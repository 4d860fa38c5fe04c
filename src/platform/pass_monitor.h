#pragma once
// How a long pass over a document talks to whoever runs it. The editor shows a progress bar,
// lets pending window events run and sets the cancel flag from Esc or a Cancel button; the
// batch tool ignores progress and never cancels. Passes hold a reference and never own it.

namespace lathwick {

class PassMonitor {
 public:
  virtual ~PassMonitor() = default;
  // Progress is shown for `total` lines (called only when the pass decides to show it).
  virtual void progressStart(long total) { (void)total; }
  virtual void progressValue(long value) { (void)value; }
  virtual void progressEnd() {}
  // Lets pending window events (key presses, button clicks, repaints) run.
  virtual void pumpEvents() {}
  // The process-wide cancel flag: cleared when a pass starts, read after each line.
  virtual bool cancelRequested() const { return false; }
  virtual void clearCancel() {}
  // The first status-bar panel's text while a pass runs ("Processing... [Esc] to cancel").
  virtual void statusText(const char* text) { (void)text; }
};

// A monitor that shows nothing and never cancels (the batch tool, tests).
inline PassMonitor& silentMonitor() {
  static PassMonitor monitor;
  return monitor;
}

}  // namespace lathwick
