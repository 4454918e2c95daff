// The sum of a run, from its state.
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include <optional>

#include "cli/archive/state/database.h"

namespace norvex {

struct StateSummary {
  struct Failure {
    QString sentence;
    qint64 count = 0;
    QByteArray example;  ///< path of a file
  };
  qint64 done = 0, failed = 0, setAside = 0, begun = 0;
  std::optional<qint64> started;   ///< seconds since 1970, of the last run, or the first of those merged
  std::optional<qint64> rest;      ///< files of these runs that have no outcome; nothing: it is not known
  std::optional<qint64> finished;  ///< seconds since 1970, of the last outcome
  double filesASecond = 0;         ///< since then; 0: not known
  double seconds = 0;              ///< of work on all files together
  qint64 memoryKiB = 0;            ///< the most that a picture took; 0: not known
  QList<Failure> failures;         ///< the commonest first, ten at most
};

/// Reads all entries. Fails for a state that is damaged.
[[nodiscard]] Result<StateSummary> summaryOf(Database& state);

/// Lines to read.
[[nodiscard]] QString summaryText(const StateSummary& summary);
/// The same names as in the structure; what is not known is left out.
[[nodiscard]] QJsonObject summaryObject(const StateSummary& summary);

}  // namespace norvex
