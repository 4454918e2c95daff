#include "document/unimplemented_method.h"

namespace norvex {

UnimplementedMethod::UnimplementedMethod(const QString& operation)
    : operation_(operation), what_(reason().toStdString()) {}

QString UnimplementedMethod::reason() const {
  return QStringLiteral("%@ is unimplemented").replace(QStringLiteral("%@"), operation_);
}

}  // namespace norvex
