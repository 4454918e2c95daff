#include "base/time_limit.h"

#include <condition_variable>
#include <mutex>

namespace norvex {

TimeLimit::TimeLimit(std::chrono::milliseconds time, const CancelToken& outer)
    : outer_(outer, [token = token_] { token.cancel(); }), clock_([this, time](const std::stop_token& done) {
        std::mutex mutex;
        std::condition_variable_any never;
        std::unique_lock lock(mutex);
        never.wait_for(lock, done, time, [] { return false; });
        if (done.stop_requested()) return;
        over_ = true;
        token_.cancel();
      }) {}

}  // namespace norvex
