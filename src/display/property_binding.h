// PropertyBinding: a link to one property of an object, followed in both directions.
#pragma once

#include <QByteArray>
#include <QMetaProperty>
#include <QObject>
#include <QPointer>
#include <QVariant>

namespace norvex {

/// The object is not owned; when it goes, reading gives an invalid value and writing does nothing.
class PropertyBinding final : public QObject {
  Q_OBJECT
 public:
  /// `keyPath` names a Q_PROPERTY of `object`; changes are followed when it has a NOTIFY signal.
  PropertyBinding(QObject* object, const QByteArray& keyPath, QObject* parent = nullptr);

  [[nodiscard]] bool isValid() const { return object_ && property_.isValid(); }
  [[nodiscard]] QVariant value() const { return isValid() ? property_.read(object_) : QVariant(); }
  /// False when there is no such property, or it refuses.
  bool setValue(const QVariant& value) { return isValid() && property_.write(object_, value); }

 signals:
  void valueDidChange(const QVariant& value);

 private slots:
  void observe() { emit valueDidChange(value()); }

 private:
  QPointer<QObject> object_;
  QMetaProperty property_;
};

}  // namespace norvex
