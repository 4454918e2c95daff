#include "document/unimplemented_method.h"

namespace norvex {

UnimplementedMethod::UnimplementedMethod(const QString& operation, const QString& suggestion)
    : operation_(operation), suggestion_(suggestion), what_(reason().toStdString()) {}

QString UnimplementedMethod::reason() const {
  return QStringLiteral("%@ is unimplemented").replace(QStringLiteral("%@"), operation_);
}

}  // namespace norvex
