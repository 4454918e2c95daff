#include "application/application_events.h"

#include <new>

#include "base/localized_string.h"
#include "document/unimplemented_method.h"

namespace norvex {

ApplicationEvents::ApplicationEvents(QObject* parent) : QObject(parent) {
  handOver_.setSingleShot(true);
  handOver_.setInterval(handOverMilliseconds);
  connect(&handOver_, &QTimer::timeout, this, [this] {
    wasActive_ = false;
    emit didResignActive();
  });
}

bool ApplicationEvents::guard(const std::function<bool()>& deliver) {
  QString reason;
  try {
    return deliver();
  } catch (const UnimplementedMethod& exception) {
    // The remedy says more than the refusal.
    reason = exception.suggestion().isEmpty() ? exception.reason() : exception.suggestion();
    if (reason.endsWith(u'.')) reason.chop(1);
  } catch (const std::bad_alloc&) {
    reason = localizedString("There is not enough memory for this");
  }
  QMetaObject::invokeMethod(
      this, [this, reason] { emit operationFailed(reason); }, Qt::QueuedConnection);
  return true;
}

void ApplicationEvents::setState(Qt::ApplicationState state) {
  if (state == Qt::ApplicationActive) {
    wasActive_ = true;
    handOver_.stop();
  } else if (wasActive_) {
    handOver_.start();
  }
}

}  // namespace norvex
