#include "cli/archive/work_places.h"

#include <algorithm>
#include <utility>

namespace norvex {

WorkPlaces::Turn::Turn(Turn&& other) noexcept
    : places_(std::exchange(other.places_, nullptr)), work_(other.work_) {}

WorkPlaces::Turn::~Turn() {
  if (places_) places_->leave(work_);
}

WorkPlaces::Turn WorkPlaces::take(int memoryMiB) {
  return wait(room_.memoryMiB > 0 ? std::min(memoryMiB, room_.memoryMiB) : 0, false);
}

WorkPlaces::Turn WorkPlaces::takeAlone() {
  return wait(0, true);
}

bool WorkPlaces::fits(int memoryMiB, bool alone, Clock::time_point now) const {
  if (alone) return running_.empty();
  int quick = 0, memory = memoryMiB;
  for (const Turn::Work& work : running_) {
    if (work.alone) return false;
    if (now - work.begun < room_.slowAfter) ++quick;
    memory += work.memoryMiB;
  }
  return quick < room_.places && (room_.memoryMiB == 0 || memory <= room_.memoryMiB);
}

/// When the next of those that work will have taken long.
WorkPlaces::Clock::time_point WorkPlaces::nextSlow(Clock::time_point now) const {
  Clock::time_point next = now + std::chrono::hours(1);
  for (const Turn::Work& work : running_)
    if (work.begun + room_.slowAfter > now) next = std::min(next, work.begun + room_.slowAfter);
  return next;
}

WorkPlaces::Turn WorkPlaces::wait(int memoryMiB, bool alone) {
  std::unique_lock lock(mutex_);
  const unsigned long ticket = nextTicket_++;
  for (;;) {
    const auto now = Clock::now();
    if (ticket == served_ && fits(memoryMiB, alone, now)) break;
    changed_.wait_until(lock, nextSlow(now));
  }
  ++served_;
  changed_.notify_all();
  return {this, running_.insert(running_.end(), {Clock::now(), memoryMiB, alone})};
}

void WorkPlaces::leave(std::list<Turn::Work>::iterator work) {
  const std::lock_guard lock(mutex_);
  running_.erase(work);
  changed_.notify_all();
}

}  // namespace norvex
