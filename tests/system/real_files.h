// Real files by many producers: the folders of the corpus, one for each kind, and the folders `found` and
// `edge` with files of every kind, in it or beside it.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QString>
#include <QStringList>

#include "kit/program.h"

namespace norvex::real {

/// The folders of real files, by name; files in `hostile` were made to be refused.
inline QMap<QString, QString> folders() {
  QMap<QString, QString> found;
  const QDir corpus(kit::corpusFolder());
  if (kit::corpusFolder().isEmpty()) return found;
  for (const QString& name : {QStringLiteral("edge"), QStringLiteral("found")})
    if (const QFileInfo beside(corpus.filePath("../" + name)); beside.isDir())
      found.insert(name, beside.canonicalFilePath());
  for (const QString& name : corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
    found.insert(name, corpus.filePath(name));
  return found;
}

/// All pictures of one of these folders, by name, without the lists that tell where they are from.
inline QStringList files(const QString& folder) {
  QStringList found;
  const QDir all(folders().value(folder));
  for (const QString& name : all.entryList(QDir::Files, QDir::Name))
    if (!name.endsWith(".tsv")) found << all.filePath(name);
  return found;
}

/// How other programs have to read a file, by its folder where that holds one kind: pdf, svg, svgz or eps.
inline QString formatOf(const QString& file) {
  const QFileInfo info(file);
  const QString folder = QFileInfo(info.path()).fileName();
  if (folder == "ai_pdf") return QStringLiteral("pdf");
  static const QStringList others{"pdf", "svg", "svgz"};
  if (others.contains(folder)) return folder;
  const QString extension = info.suffix().toLower();
  return others.contains(extension) ? extension : QStringLiteral("eps");
}

/// All pictures of these formats (as formatOf() names them), those among the files of every kind last.
inline QStringList filesOf(const QStringList& formats) {
  QStringList found, mixed;
  for (const QString& folder : folders().keys())
    for (const QString& file : files(folder))
      if (folder != "hostile" && formats.contains(formatOf(file)))
        (folder == "edge" || folder == "found" ? mixed : found) << file;
  return found + mixed;
}

}  // namespace norvex::real
