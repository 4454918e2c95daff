#include "cli/archive/result_line.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/file_name.h"
#include "cli/files/json_output.h"

namespace norvex {
namespace {

constexpr const char* outcomes[] = {"done",      "unchanged",   "failed-before", "failed",
                                    "set-aside", "not-written", "interrupted",   "passed-over"};

}  // namespace

QByteArray resultLine(const FileResult& result) {
  QJsonObject object = QJsonDocument::fromJson(result.text).array().first().toObject();
  insertName(object, QStringLiteral("file"), fileNameText(result.path));
  if (!object.contains(u"error") && !result.sentence.isEmpty()) object.insert(u"error", result.sentence);
  object.insert(u"line", result.number);
  object.insert(u"outcome", QLatin1String(outcomes[size_t(result.verdict)]));
  return jsonLine(object);
}

}  // namespace norvex
