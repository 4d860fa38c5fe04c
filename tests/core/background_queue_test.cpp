// The worker that writes recovery copies: jobs in order, a newer job for the same thing replacing
// one not yet started, failures reported, nothing dropped at the end.
#include <gtest/gtest.h>

#include <future>
#include <mutex>
#include <stdexcept>
#include <vector>

#include "platform/background_queue.h"

using lathwick::BackgroundQueue;

namespace {
struct Log {
  std::mutex mutex;
  std::vector<std::string> entries;
  void add(std::string s) {
    std::lock_guard lock(mutex);
    entries.push_back(std::move(s));
  }
};
}  // namespace

TEST(BackgroundQueue, RunsInOrderAndKeepsOnlyTheLatestWaitingJobPerKey) {
  Log log;
  std::promise<void> release;
  std::shared_future<void> gate = release.get_future().share();
  BackgroundQueue queue;
  queue.post(0, [gate, &log] {
    gate.wait();  // holds the worker so the next jobs wait
    log.add("first");
  });
  queue.post(1, [&log] { log.add("doc1 v1"); });
  queue.post(2, [&log] { log.add("doc2"); });
  queue.post(1, [&log] { log.add("doc1 v2"); });  // replaces v1, keeping its place
  EXPECT_GE(queue.pending(), 3u);
  release.set_value();
  queue.flush();
  EXPECT_EQ(queue.pending(), 0u);
  EXPECT_EQ(log.entries, (std::vector<std::string>{"first", "doc1 v2", "doc2"}));
}

TEST(BackgroundQueue, ReportsAFailureAndGoesOn) {
  Log failures, done;
  BackgroundQueue queue([&failures](const std::string& message) { failures.add(message); });
  queue.post(1, [] { throw std::runtime_error("Disk full"); });
  queue.post(2, [&done] { done.add("next"); });
  queue.flush();
  EXPECT_EQ(failures.entries, std::vector<std::string>{"Disk full"});
  EXPECT_EQ(done.entries, std::vector<std::string>{"next"});
}

TEST(BackgroundQueue, FinishesEveryQueuedJobBeforeItGoes) {
  Log log;
  {
    std::promise<void> release;
    std::shared_future<void> gate = release.get_future().share();
    BackgroundQueue queue;
    queue.post(0, [gate] { gate.wait(); });
    for (int i = 1; i <= 5; ++i) queue.post(i, [&log, i] { log.add(std::to_string(i)); });
    release.set_value();
  }
  EXPECT_EQ(log.entries.size(), 5u);
}
