#include "fuzz/targets.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace norvex::fuzz {

namespace {

const QByteArray* fed = nullptr;

}  // namespace

bool feed(const Target& target, const QByteArray& bytes) {
  fed = &bytes;
  return target.run(bytes);
}

void require(bool kept, const char* promise) {
  if (kept) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  if (fed) std::fprintf(stderr, "by the bytes: %s\n", fed->left(2000).toHex().constData());
  std::abort();
}

QList<QByteArray> filesOf(const char* folder) {
  QList<QByteArray> files;
  const QDir place(QStringLiteral(NORVEX_SOURCE_DIR "/tests/") + QString::fromLatin1(folder));
  for (const QString& name : place.entryList(QDir::Files, QDir::Name)) {
    QFile file(place.filePath(name));
    if (file.open(QIODevice::ReadOnly)) files << file.readAll();
  }
  return files;
}

}  // namespace norvex::fuzz
