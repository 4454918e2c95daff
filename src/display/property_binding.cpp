#include "display/property_binding.h"

#include <QMetaMethod>

namespace norvex {

PropertyBinding::PropertyBinding(QObject* object, const QByteArray& keyPath, QObject* parent)
    : QObject(parent), object_(object) {
  if (!object) return;
  const QMetaObject* type = object->metaObject();
  property_ = type->property(type->indexOfProperty(keyPath.constData()));
  if (property_.hasNotifySignal())
    connect(object, property_.notifySignal(), this,
            metaObject()->method(metaObject()->indexOfSlot("observe()")));
}

}  // namespace norvex
