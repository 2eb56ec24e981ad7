#include "direct/chunks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace calvex::test {
namespace {

TEST(Chunks, EveryPointIsWorkedOnOnce) {
  for (const std::size_t n : {0U, 1U, 6U, 7U, 8U, 1000U, 1001U}) {
    for (const unsigned threads : {0U, 1U, 2U, 5U, 64U}) {
      std::vector<int> touched(n);
      EXPECT_TRUE(forEachChunk(n, {.threads = threads, .chunk = 7}, [&](const Chunk& chunk) {
        for (std::size_t i = chunk.begin; i < chunk.end; ++i) ++touched[i];
      }));
      EXPECT_EQ(touched, std::vector<int>(n, 1)) << threads;
    }
  }
}

TEST(Chunks, AreTheSameForAnyNumberOfThreads) {
  const auto bordersWith = [](unsigned threads) {
    std::vector<std::size_t> ends(25);
    forEachChunk(99, {.threads = threads, .chunk = 4},
                 [&](const Chunk& chunk) { ends[chunk.begin / 4] = chunk.end; });
    return ends;
  };
  EXPECT_EQ(bordersWith(1), bordersWith(2));
  EXPECT_EQ(bordersWith(1), bordersWith(9));
  EXPECT_EQ(bordersWith(1).front(), 4U);
  EXPECT_EQ(bordersWith(1).back(), 99U);
}

TEST(Chunks, AWorkerIsOneThreadAtATime) {
  const ChunkedLoop loop{.threads = 3, .chunk = 1};
  ASSERT_EQ(loop.workers(300), 3U);
  std::vector<std::set<std::thread::id>> threadsOf(3);
  forEachChunk(300, loop, [&](const Chunk& chunk) {
    threadsOf.at(chunk.worker).insert(std::this_thread::get_id());
  });
  std::set<std::thread::id> all;
  for (const auto& threads : threadsOf) {
    EXPECT_LE(threads.size(), 1U);
    for (const std::thread::id id : threads) EXPECT_TRUE(all.insert(id).second);
  }
}

TEST(Chunks, ThereAreNoMoreWorkersThanChunks) {
  EXPECT_EQ((ChunkedLoop{.threads = 8, .chunk = 10}.workers(0)), 1U);
  EXPECT_EQ((ChunkedLoop{.threads = 8, .chunk = 10}.workers(20)), 2U);
  EXPECT_EQ((ChunkedLoop{.threads = 8, .chunk = 10}.workers(21)), 3U);
  EXPECT_EQ((ChunkedLoop{.threads = 8, .chunk = 10}.workers(1000)), 8U);
  EXPECT_EQ((ChunkedLoop{.threads = 8, .chunk = 0}.workers(4)), 4U);  // read as 1
  EXPECT_GE((ChunkedLoop{.threads = 0, .chunk = 1}.workers(1000)), 1U);
}

TEST(Chunks, OneChunkRunsOnTheCallersThread) {
  std::thread::id id;
  forEachChunk(10, {.threads = 4, .chunk = 10},
               [&](const Chunk&) { id = std::this_thread::get_id(); });
  EXPECT_EQ(id, std::this_thread::get_id());
}

TEST(Chunks, TheExceptionIsThatOfTheFirstChunkThatFails) {
  for (const unsigned threads : {1U, 2U, 8U}) {
    for (int again = 0; again < 20; ++again) {
      std::string text;
      try {
        forEachChunk(1000, {.threads = threads, .chunk = 10}, [](const Chunk& chunk) {
          if (chunk.begin >= 300) throw std::runtime_error(std::to_string(chunk.begin));
        });
      } catch (const std::runtime_error& failure) {
        text = failure.what();
      }
      EXPECT_EQ(text, "300") << threads;
    }
  }
}

TEST(Chunks, AnExceptionEndsTheLoop) {
  std::atomic<int> chunks = 0;
  EXPECT_THROW(forEachChunk(100000, {.threads = 2, .chunk = 1},
                            [&](const Chunk&) {
                              ++chunks;
                              throw std::runtime_error("no");
                            }),
               std::runtime_error);
  EXPECT_LE(chunks, 2);
}

TEST(Chunks, AStopIsObeyedBetweenChunks) {
  for (const unsigned threads : {1U, 2U}) {
    std::stop_source source;
    std::atomic<std::size_t> begun = 0;
    const ChunkedLoop loop{.threads = threads, .chunk = 1, .stop = source.get_token()};
    EXPECT_FALSE(forEachChunk(100000, loop, [&](const Chunk&) {
      const std::size_t number = ++begun;
      if (number == 50) source.request_stop();
      while (number > 50 && !source.stop_requested()) std::this_thread::yield();
    }));
    EXPECT_GE(begun, 50U);
    EXPECT_LT(begun, 50U + threads);
  }
}

TEST(Chunks, AStopAfterTheLastChunkComesTooLate) {
  std::stop_source source;
  EXPECT_TRUE(forEachChunk(3, {.threads = 1, .chunk = 1, .stop = source.get_token()},
                           [&](const Chunk& chunk) {
                             if (chunk.end == 3) source.request_stop();
                           }));
}

TEST(Chunks, ProgressGrowsToTheEnd) {
  for (const unsigned threads : {1U, 4U}) {
    std::vector<std::size_t> steps;
    forEachChunk(95,
                 {.threads = threads,
                  .chunk = 10,
                  .progress = [&](std::size_t done) { steps.push_back(done); }},
                 [](const Chunk&) {});
    ASSERT_EQ(steps.size(), 10U);
    EXPECT_TRUE(std::ranges::is_sorted(steps, std::less_equal<>()));
    EXPECT_EQ(steps.back(), 95U);
  }
}

TEST(Chunks, ProgressMayEndTheLoop) {
  EXPECT_THROW(forEachChunk(100,
                            {.threads = 2,
                             .chunk = 1,
                             .progress = [](std::size_t) { throw std::runtime_error("enough"); }},
                            [](const Chunk&) {}),
               std::runtime_error);
}

}  // namespace
}  // namespace calvex::test
