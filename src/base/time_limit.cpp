#include "base/time_limit.h"

#include <condition_variable>
#include <mutex>

namespace norvex {

TimeLimit::TimeLimit(std::chrono::milliseconds time, const CancelToken& outer)
    : time_(time),
      outer_(outer, [token = token_] { token.cancel(); }),
      clock_([this, time](const std::stop_token& done) {
        std::mutex mutex;
        std::condition_variable_any never;
        std::unique_lock lock(mutex);
        never.wait_for(lock, done, time, [] { return false; });
        if (done.stop_requested()) return;
        over_ = true;
        token_.cancel();
      }) {}

Error TimeLimit::explained(const Error& error) const {
  if (!over_) return error;
  return {ErrorKind::TimedOut, QStringLiteral("the picture was not ready within %1 seconds")
                                   .arg(std::chrono::duration_cast<std::chrono::seconds>(time_).count())};
}

}  // namespace norvex
