#include "progress.h"

#include <fmt/format.h>

#include <ostream>

namespace calvex::cli {

namespace {

constexpr int barWidth = 40;

}  // namespace

Progress::Progress(std::ostream& err, std::int64_t total, bool shown, Clock now)
    : err_(err), total_(total), shown_(shown), now_(std::move(now)) {
  next_ = now_() + std::chrono::seconds(1);
}

Progress::~Progress() {
  if (drawn_) err_ << '\r' << std::string(barWidth + 7, ' ') << '\r' << std::flush;
}

void Progress::at(std::int64_t done) {
  if (!shown_ || total_ <= 0) return;
  const auto now = now_();
  if (now < next_) return;
  next_ = now + std::chrono::milliseconds(200);
  const auto filled = static_cast<int>(barWidth * done / total_);
  err_ << fmt::format("\r[{:#>{}}{:{}}] {:3}%", "", filled, "", barWidth - filled,
                      100 * done / total_)
       << std::flush;
  drawn_ = true;
}

}  // namespace calvex::cli
