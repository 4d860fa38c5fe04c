#include "platform/background_queue.h"

#include <exception>

namespace lathwick {

BackgroundQueue::BackgroundQueue(FailureSink onFailure)
    : onFailure_(std::move(onFailure)), worker_([this] { run(); }) {}

BackgroundQueue::~BackgroundQueue() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  worker_.join();
}

void BackgroundQueue::post(int key, Job job) {
  {
    std::lock_guard lock(mutex_);
    bool replaced = false;
    for (auto& queued : jobs_)
      if (queued.first == key) {
        queued.second = std::move(job);
        replaced = true;
        break;
      }
    if (!replaced) jobs_.emplace_back(key, std::move(job));
  }
  wake_.notify_one();
}

void BackgroundQueue::flush() {
  std::unique_lock lock(mutex_);
  idle_.wait(lock, [this] { return jobs_.empty() && !busy_; });
}

std::size_t BackgroundQueue::pending() const {
  std::lock_guard lock(mutex_);
  return jobs_.size() + (busy_ ? 1 : 0);
}

void BackgroundQueue::run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return stopping_ || !jobs_.empty(); });
    if (jobs_.empty()) return;  // stopping, and everything is done
    Job job = std::move(jobs_.front().second);
    jobs_.pop_front();
    busy_ = true;
    lock.unlock();
    std::string failure;
    try {
      job();
    } catch (const std::exception& e) {
      failure = e.what();
    } catch (...) {
      failure = "unknown error";
    }
    job = nullptr;  // what the job held (a whole document's text) goes before the next wait
    if (!failure.empty() && onFailure_) onFailure_(failure);
    lock.lock();
    busy_ = false;
    if (jobs_.empty()) idle_.notify_all();
  }
}

}  // namespace lathwick
