/// \file
/// A loop over many points on all cores. Its unit is the chunk: what a chunk is does not depend on
/// how many threads there are, so neither does anything that is computed from it.
#pragma once

#include <cstddef>
#include <functional>
#include <stop_token>

namespace calvex {

/// The points [begin, end), and which of the workers has them: a place for what a thread needs of
/// its own, such as an engine.
struct Chunk {
  std::size_t begin;
  std::size_t end;
  unsigned worker;
};

/// How a loop runs.
struct ChunkedLoop {
  unsigned threads = 0;      ///< the caller's included; 0: one for each core
  std::size_t chunk = 1024;  ///< points in a chunk (the last one has fewer), at least 1
  std::stop_token stop{};    ///< asked before each chunk
  /// Called after each chunk with the number of points done so far: by one thread at a time, each
  /// time with a greater number.
  std::function<void(std::size_t done)> progress{};

  /// The workers of a loop over n points, at least 1: one for each thread, but no more than chunks.
  [[nodiscard]] unsigned workers(std::size_t n) const noexcept;
};

/// Calls `work` for every chunk of [0, n), several at a time, each once. The calling thread is one
/// of the workers; where the system gives no more threads those that there are do the work.
///
/// Answers true when every chunk is done, false when it was stopped before. An exception of `work`
/// or of `progress` ends the loop, chunks that run are waited for, and the exception is the
/// caller's; of several that of the first chunk, the same whatever the number of threads.
bool forEachChunk(std::size_t n, const ChunkedLoop& loop,
                  const std::function<void(const Chunk&)>& work);

}  // namespace calvex
