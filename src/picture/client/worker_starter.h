// WorkerStarter: owns the warm picture program and has it fork one process after the other.
#pragma once

#include <QDeadlineTimer>
#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>

#include "picture/client/spawned_worker.h"
#include "protocol/message_channel.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// A process that was forked for us. It is not our child: the warm program waits for its end.
struct StartedProcess {
  qint64 pid = 0;
  FileDescriptor
      pidfd;  ///< readable once the process has ended; signals sent through it hit no other process
};

/// Thread-safe. Needs no application object, so that it can run as the first thing in main().
class WorkerStarter {
 public:
  /// A promise of a process. Starting it costs no waiting; take() waits.
  struct Ticket {
    quint64 run = 0;  ///< which start of the warm program it belongs to
    quint32 number = 0;
  };

  /// `program` is the path of norvex-worker. It is an argument, and no environment variable can change it:
  /// whoever controls the environment of a program that opens untrusted files would otherwise choose what
  /// confines them.
  /// `running`: the program when it was started already; it is then owned.
  explicit WorkerStarter(QString program, SpawnedWorker running = {});
  /// Ends the program and with it every process that it forked, and removes what they left.
  ~WorkerStarter();
  WorkerStarter(const WorkerStarter&) = delete;
  WorkerStarter& operator=(const WorkerStarter&) = delete;

  /// Starts the program unless it runs; does not wait until it is ready. Fails with Died.
  Result<void> start();
  /// Asks for a process that serves `socket`, which is sent away. Starts the program (again) when it does not
  /// run.
  Result<Ticket> request(const ForkRequest& request, const FileDescriptor& socket);
  /// The process of a ticket, once for each ticket. Fails with TimedOut (the ticket stays good) or Died.
  Result<StartedProcess> take(const Ticket& ticket, QDeadlineTimer deadline);
  /// Why a process that was taken has ended: the limit that it had reached, or Died. Nothing: it lives, or is
  /// not told by the deadline.
  [[nodiscard]] std::optional<Error> endOf(const Ticket& ticket, QDeadlineTimer deadline);
  /// Nobody will ask for the end of this process.
  void forget(const Ticket& ticket);
  /// Instead of take(): the process shall be killed as soon as it is known.
  void abandon(const Ticket& ticket);

  /// How much nicer than us its processes are once their first picture is there or `beginning` has gone by: 0
  /// to 19, as setpriority(2) has it. Those who are connected with them see to it.
  void setNice(int nice, std::chrono::milliseconds beginning) {
    beginning_ = beginning;
    nice_ = nice;
  }
  [[nodiscard]] int nice() const { return nice_; }
  [[nodiscard]] std::chrono::milliseconds beginning() const { return beginning_; }

  /// Process number of the warm program, 0 when it does not run. For tests and for --sandbox-status.
  [[nodiscard]] qint64 pid() const;
  /// norvex-worker where partOfProgram() finds it.
  [[nodiscard]] static QString defaultProgram();

 private:
  Result<void> startLocked();
  void adopt(SpawnedWorker worker);
  void stopLocked();
  [[nodiscard]] bool runs() const;
  /// Takes a message that is there; false: there is none, or the program has ended and with it this run.
  bool hearNow();
  /// Lets go of the lock until there may be something to hear, or the deadline has come.
  void listen(std::unique_lock<std::mutex>& lock, QDeadlineTimer deadline);
  void keep(const WorkerReply& reply, FileDescriptor descriptor);

  const QString program_;
  std::atomic<int> nice_ = 0;
  std::atomic<std::chrono::milliseconds> beginning_ = std::chrono::milliseconds(0);
  mutable std::mutex mutex_;
  // Guarded by the mutex.
  std::shared_ptr<MessageChannel> control_ = std::make_shared<MessageChannel>();  ///< never null
  qint64 pid_ = 0;
  FileDescriptor pidfd_;
  std::string scratchRoot_;
  quint64 run_ = 0;
  quint32 requested_ = 0;
  std::map<quint32, Result<StartedProcess>> answered_;
  std::set<quint32> abandoned_;
  quint32 heard_ = 0;              ///< number of the last request that was answered
  std::set<quint32> living_;       ///< processes that somebody may ask for the end of
  std::map<quint32, Error> ends_;  ///< of these
  bool isListening_ = false;       ///< one thread waits for the program, and the others for what it hears
  std::condition_variable heardSome_;
};

}  // namespace norvex
