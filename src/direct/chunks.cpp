#include "direct/chunks.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace calvex {

namespace {

class Loop {
 public:
  Loop(std::size_t n, const ChunkedLoop& how, const std::function<void(const Chunk&)>& work)
      : n_(n), chunk_(std::max<std::size_t>(how.chunk, 1)), how_(how), work_(work) {}

  // Takes one chunk after the other. They are taken in order, so that whatever chunk fails, all
  // before it have been taken and will end: the first failure is the same for any number of
  // threads.
  void run(unsigned worker) noexcept {
    while (!failed_ && !how_.stop.stop_requested()) {
      const std::size_t begin = next_.fetch_add(1) * chunk_;
      if (begin >= n_) return;
      const std::size_t end = begin + std::min(chunk_, n_ - begin);
      try {
        work_({begin, end, worker});
        finish(end - begin);
      } catch (...) {
        keep(begin, std::current_exception());
      }
    }
  }

  [[nodiscard]] bool outcome() const {
    if (failure_) std::rethrow_exception(failure_);
    return done_ == n_;
  }

 private:
  void finish(std::size_t points) {
    const std::scoped_lock lock(mutex_);
    done_ += points;
    if (how_.progress) how_.progress(done_);
  }

  void keep(std::size_t begin, std::exception_ptr failure) {
    const std::scoped_lock lock(mutex_);
    if (!failure_ || begin < failedAt_) {
      failure_ = std::move(failure);
      failedAt_ = begin;
    }
    failed_ = true;
  }

  const std::size_t n_;
  const std::size_t chunk_;
  const ChunkedLoop& how_;
  const std::function<void(const Chunk&)>& work_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<bool> failed_ = false;
  std::mutex mutex_;  // of what follows
  std::size_t done_ = 0;
  std::exception_ptr failure_;
  std::size_t failedAt_ = 0;
};

}  // namespace

unsigned ChunkedLoop::workers(std::size_t n) const noexcept {
  const std::size_t size = std::max<std::size_t>(chunk, 1);
  const std::size_t chunks = n / size + (n % size != 0 ? 1 : 0);
  const std::size_t wanted = threads != 0 ? threads : std::thread::hardware_concurrency();
  return static_cast<unsigned>(std::max<std::size_t>(std::min(wanted, chunks), 1));
}

bool forEachChunk(std::size_t n, const ChunkedLoop& loop,
                  const std::function<void(const Chunk&)>& work) {
  Loop state(n, loop, work);
  {
    std::vector<std::jthread> others;
    try {
      for (unsigned worker = 1; worker < loop.workers(n); ++worker) {
        others.emplace_back([&state, worker] { state.run(worker); });
      }
    } catch (const std::system_error&) {
      // No more threads: those that there are take all chunks.
    }
    state.run(0);
  }
  return state.outcome();
}

}  // namespace calvex
