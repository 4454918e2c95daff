// A program that was stopped and goes on (Ctrl-Z and fg, SIGSTOP and SIGCONT): its clocks have not stood
// still.
#pragma once

namespace norvex {

/// While an object lives, it is counted how often the program goes on. Main thread, one at a time.
class Standstill {
 public:
  Standstill();
  ~Standstill();
  Standstill(const Standstill&) = delete;
  Standstill& operator=(const Standstill&) = delete;
};

/// How often it has gone on; where the number changes during a piece of work, its time says nothing. Any
/// thread.
[[nodiscard]] int timesStoodStill();

}  // namespace norvex
