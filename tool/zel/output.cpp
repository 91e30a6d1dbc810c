#include "output.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace tool {

namespace {

Written failure() {
  if (errno == EPIPE)
    return Written::closed;
  std::fprintf(stderr, "zel: writing failed: %s\n", std::strerror(errno));
  return Written::failed;
}

// Nothing is shown of input that is done sooner.
constexpr double barAfter = 1.0;
constexpr double barEvery = 0.1;

std::string timeLeft(double seconds) {
  std::array<char, 48> text{};
  const auto whole = static_cast<unsigned long>(std::lround(seconds));
  if (whole >= 3600)
    std::snprintf(text.data(), text.size(), "%lu:%02lu:%02lu", whole / 3600, whole / 60 % 60, whole % 60);
  else
    std::snprintf(text.data(), text.size(), "%lu:%02lu", whole / 60, whole % 60);
  return text.data();
}

} // namespace

Written writeAll(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(count));
    } else if (errno == EAGAIN) {
      pollfd wait = {STDOUT_FILENO, POLLOUT, 0};
      ::poll(&wait, 1, -1);
    } else if (errno != EINTR) {
      return failure();
    }
  }
  return Written::all;
}

Written closeOutput() {
  if (std::fflush(stdout) != 0 || ::close(STDOUT_FILENO) != 0)
    return failure();
  return Written::all;
}

Progress::Progress(bool isQuietOption, bool showsRefusals, char lineEnd)
    : isQuiet(isQuietOption), showsLines(showsRefusals), end_(lineEnd),
      hasBar(!isQuiet && ::isatty(STDERR_FILENO) != 0 && ::isatty(STDOUT_FILENO) == 0),
      hasColour(takesColour(STDERR_FILENO)) {}

double Progress::seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void Progress::clearBar() {
  if (isBarShown)
    std::fputs("\r\x1b[K", stderr);
  isBarShown = false;
}

void Progress::showBar(const LineReader &reader) {
  const double now = seconds();
  if (!hasBar || now < barAfter || now - lastBar < barEvery)
    return;
  if (total == 0)
    total = reader.bytesInAll();
  lastBar = now;
  std::array<char, 128> text{};
  const auto done = static_cast<double>(reader.bytesRead());
  const double rate = static_cast<double>(names) / now / 1e6;
  if (total > 0 && done > 0) {
    constexpr int width = 24;
    const double share = std::min(1.0, done / static_cast<double>(total));
    const std::string bar(static_cast<std::size_t>(share * width), '#');
    std::snprintf(text.data(), text.size(), "\r[%-24s] %3.0f %%  %.2f million names a second, %s left\x1b[K",
                  bar.c_str(), share * 100, rate, timeLeft(now / share - now).c_str());
  } else {
    std::snprintf(text.data(), text.size(), "\r%.1f million names, %.2f million a second\x1b[K",
                  static_cast<double>(names) / 1e6, rate);
  }
  std::fputs(text.data(), stderr);
  isBarShown = true;
}

bool Progress::finish(const LineReader &reader, const Block &block) {
  names += block.names;
  refused += block.refusals.count;
  if (block.hasFailed) {
    clearBar();
    std::fputs("zel: no memory\n", stderr);
    failed = true;
    return false;
  }
  const std::string_view output = block.output.text();
  if (!output.empty()) {
    // Of the last line of the last file the end may be missing, of no other.
    if ((isEndOpen && writeAll({&end_, 1}) != Written::all) || writeAll(output) != Written::all) {
      failed = true;
      return false;
    }
    isEndOpen = output.back() != end_;
  }
  if (!isQuiet && showsLines && !block.refusals.first.empty() && reported < Refusals::shown) {
    clearBar();
    for (const Refusal &refusal : block.refusals.first)
      if (reported++ < Refusals::shown)
        std::fputs(shownRefusal(block.file, refusal, hasColour).c_str(), stderr);
  }
  if (!block.isStopped)
    showBar(reader);
  return !block.isStopped;
}

void Progress::end(bool hasStats, std::uint64_t bytes) {
  clearBar();
  if (!failed && !isQuiet && showsLines && refused > Refusals::shown)
    std::fprintf(stderr, "zel: %llu lines are refused, %llu more than shown\n",
                 static_cast<unsigned long long>(refused), static_cast<unsigned long long>(refused - Refusals::shown));
  if (!hasStats)
    return;
  const double time = seconds();
  std::fprintf(stderr, "%llu names, %llu refused, %llu bytes in %.3f s: %.2f million names a second\n",
               static_cast<unsigned long long>(names), static_cast<unsigned long long>(refused),
               static_cast<unsigned long long>(bytes), time, static_cast<double>(names) / std::max(time, 1e-9) / 1e6);
}

} // namespace tool
