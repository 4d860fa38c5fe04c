#pragma once
// One worker thread that runs jobs in the order they were posted, so that slow work (writing a
// large file and flushing it to the disk) never holds up the thread that posts it. Each job has
// a key; posting a job under a key whose earlier job has not started yet replaces that job, so
// only the latest of a run of jobs for one thing is done and no more than one waits per key.
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>

namespace lathwick {

class BackgroundQueue {
 public:
  using Job = std::function<void()>;
  // Called on the worker thread with the message of an exception a job let out.
  using FailureSink = std::function<void(const std::string&)>;

  explicit BackgroundQueue(FailureSink onFailure = {});
  ~BackgroundQueue();  // runs what is still queued, then stops
  BackgroundQueue(const BackgroundQueue&) = delete;
  BackgroundQueue& operator=(const BackgroundQueue&) = delete;

  void post(int key, Job job);
  // Waits until every job posted so far has run.
  void flush();
  // Jobs queued or running.
  std::size_t pending() const;

 private:
  void run();

  mutable std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable idle_;
  std::deque<std::pair<int, Job>> jobs_;
  bool busy_ = false;
  bool stopping_ = false;
  FailureSink onFailure_;
  std::thread worker_;  // last: starts once the rest is ready
};

}  // namespace lathwick
