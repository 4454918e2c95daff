// Who of many threads may work: so many at a time, within so much memory.
#pragma once

#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>

namespace norvex {

/// A file's work takes a place and reserves memory. One that takes long gives its place up, so that others
/// are not held up, and keeps its memory. Whoever waits is served in the order of coming: nothing that needs
/// much waits for ever. Thread-safe.
class WorkPlaces {
 public:
  using Clock = std::chrono::steady_clock;
  struct Room {
    int places = 1;
    int memoryMiB = 0;                          ///< 0: not bounded
    std::chrono::milliseconds slowAfter{2000};  ///< from then on work counts as taking long
  };

  explicit WorkPlaces(const Room& room) : room_(room) {}

  /// Held while a file is worked on. Must not outlive the places.
  class Turn {
   public:
    Turn(Turn&& other) noexcept;
    Turn& operator=(Turn&&) = delete;
    ~Turn();

   private:
    friend class WorkPlaces;
    struct Work {
      Clock::time_point begun;
      int memoryMiB;
      bool alone;
    };
    Turn(WorkPlaces* places, std::list<Work>::iterator work) : places_(places), work_(work) {}
    WorkPlaces* places_;
    std::list<Work>::iterator work_;
  };

  /// Waits for a place and memory; more than there is at all counts as all of it. Cancelling does not wake
  /// it: whoever has a place is cancelled as well.
  [[nodiscard]] Turn take(int memoryMiB);
  /// Waits until nobody works, and keeps everybody waiting.
  [[nodiscard]] Turn takeAlone();

 private:
  Turn wait(int memoryMiB, bool alone);
  [[nodiscard]] bool fits(int memoryMiB, bool alone, Clock::time_point now) const;
  [[nodiscard]] Clock::time_point nextSlow(Clock::time_point now) const;
  void leave(std::list<Turn::Work>::iterator work);

  const Room room_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::list<Turn::Work> running_;
  unsigned long nextTicket_ = 0, served_ = 0;
};

}  // namespace norvex
