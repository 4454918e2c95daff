#include "base/background_work.h"

#include <QCoreApplication>
#include <QEvent>
#include <QRunnable>
#include <QThread>
#include <QThreadPool>

#include <condition_variable>
#include <mutex>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace norvex {
namespace {

// The thread sanitizer does not see the locks of libraries that were not built for it, Qt's among them. What
// these locks put in order is said here, and nowhere else.
#if defined(__SANITIZE_THREAD__)
void handedOver(void* what) {
  __tsan_release(what);
}
void received(void* what) {
  __tsan_acquire(what);
}
#else
void handedOver(void*) {}
void received(void*) {}
#endif

class News final : public QEvent {
 public:
  explicit News(std::function<void()> news) : QEvent(kind()), news_(std::move(news)) {}
  static Type kind() {
    static const int registered = registerEventType();
    return Type(registered);
  }
  void tell() const { news_(); }

 private:
  const std::function<void()> news_;
};

/// Of the main thread: where all news arrives.
class Receiver final : public QObject {
 public:
  bool event(QEvent* event) override {
    received(event);
    if (event->type() != News::kind()) return QObject::event(event);
    static_cast<News*>(event)->tell();
    return true;
  }
};

}  // namespace

// ---- work ---------------------------------------------------------------------------------------------

struct BackgroundWork::End {
  std::mutex mutex;
  std::condition_variable came;
  bool isThere = false;

  void come() {
    const std::lock_guard lock(mutex);
    isThere = true;
    came.notify_all();
  }
};

bool BackgroundWork::isOver() const {
  if (!end_) return true;
  const std::lock_guard lock(end_->mutex);
  return end_->isThere;
}

void BackgroundWork::wait() const {
  if (!end_) return;
  std::unique_lock lock(end_->mutex);
  end_->came.wait(lock, [this] { return end_->isThere; });
}

bool BackgroundWork::waitFor(std::chrono::milliseconds time) const {
  if (!end_) return true;
  std::unique_lock lock(end_->mutex);
  return end_->came.wait_for(lock, time, [this] { return end_->isThere; });
}

namespace {

/// Its end comes with its destruction: a pool may be cleared of it before it ran.
class PooledWork final : public QRunnable {
 public:
  PooledWork(QThreadPool& pool, std::function<void()> work, std::function<void()> end)
      : pool_(pool), work_(std::move(work)), end_(std::move(end)) {}
  ~PooledWork() override { end_(); }

  void run() override {
    received(this);
    try {
      std::exchange(work_, nullptr)();
    } catch (const std::bad_alloc&) {
      qWarning("there was not enough memory for work in the background");
    }
    handedOver(&pool_);
  }

 private:
  QThreadPool& pool_;
  std::function<void()> work_, end_;
};

}  // namespace

BackgroundWork startWork(QThreadPool& pool, std::function<void()> work) {
  BackgroundWork begun;
  begun.end_ = std::make_shared<BackgroundWork::End>();
  auto* const task = new PooledWork(pool, std::move(work), [end = begun.end_] { end->come(); });
  handedOver(task);
  pool.start(task);
  return begun;
}

void waitForWork(QThreadPool& pool) {
  pool.waitForDone();
  received(&pool);
}

Error outOfMemory() {
  return {ErrorKind::Limit, QStringLiteral("there is not enough memory for the picture")};
}

// ---- the way back -------------------------------------------------------------------------------------

/// Takes news from any thread as long as there is an application, whose end it outlives.
class Postbox {
 public:
  /// Null: there is no application. Main thread.
  static std::shared_ptr<Postbox> ofApplication() {
    if (!QCoreApplication::instance()) return nullptr;
    if (!current()) {
      current() = std::make_shared<Postbox>();
      qAddPostRoutine([] { std::exchange(current(), nullptr)->close(); });
    }
    return current();
  }

  void post(std::function<void()> news) {
    auto event = std::make_unique<News>(std::move(news));
    handedOver(event.get());
    const std::lock_guard lock(mutex_);
    if (receiver_) QCoreApplication::postEvent(receiver_.get(), event.release());
  }

  /// Has what came until now told at once. Main thread.
  void empty() { QCoreApplication::sendPostedEvents(receiver_.get(), News::kind()); }

 private:
  static std::shared_ptr<Postbox>& current() {
    static std::shared_ptr<Postbox> box;
    return box;
  }

  // What the news holds is destroyed without the lock: it may have news of its own.
  void close() {
    std::unique_ptr<Receiver> receiver;
    const std::lock_guard lock(mutex_);
    receiver_.swap(receiver);
  }

  std::mutex mutex_;
  std::unique_ptr<Receiver> receiver_ = std::make_unique<Receiver>();
};

WayBack::WayBack(QObject* owner) : owner_(owner), postbox_(Postbox::ofApplication()) {}

void WayBack::tell(std::function<void()> news) const {
  if (!postbox_) return;
  postbox_->post([owner = owner_, news = std::move(news)] {
    if (owner) news();
  });
}

namespace {

/// Takes an object along to the end that it is handed over for: who ends it comes after who let go of it.
class LastCarrier final : public QObject {
 public:
  explicit LastCarrier(QObject* object) : object_(object) { moveToThread(object->thread()); }
  ~LastCarrier() override { delete object_; }
  bool event(QEvent* event) override {
    received(this);
    return QObject::event(event);
  }

 private:
  QObject* const object_;
};

}  // namespace

void deleteInItsThread(QObject* object) {
  if (object->thread() == nullptr || object->thread() == QThread::currentThread()) {
    delete object;
    return;
  }
  auto* const carrier = new LastCarrier(object);
  handedOver(carrier);
  carrier->deleteLater();
}

WaitingThreadsEnd::~WaitingThreadsEnd() {
  waitForWork(waitingThreads());
  // What the work told last is taken now, by nobody: left behind, it would be destroyed with the application.
  if (const auto postbox = Postbox::ofApplication()) postbox->empty();
}

}  // namespace norvex
