// An archive with a state; for the tests of states and reports.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include "cli/archive/archive_files.h"

namespace norvex::testdata {

/// Files that hold "no picture" are none.
class Kept : public Archive {
 public:
  Kept() {
    service.setPrepare([](MemoryPictureProcess& process) {
      if (process.bytes() == "no picture")
        process.fail(PictureCall::Facts, {ErrorKind::NotParsable, "it is no picture"});
    });
  }
  int run(const QStringList& more = {}) {
    return convertTree(QStringList{"--state", path("state"), "--json-lines"} + more);
  }
  /// Outcomes by file name.
  QString outcomeOf(const QString& name) const {
    for (const QJsonObject& line : lines())
      if (line.value("file").toString().endsWith('/' + name)) return line.value("outcome").toString();
    return {};
  }
};

}  // namespace norvex::testdata
