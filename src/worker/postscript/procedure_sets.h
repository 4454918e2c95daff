// Illustrator's files of versions 3 to 8 may name the procedure sets that they are written in and leave it to
// whoever prints them to have these. Ours stand in for them: src/resources/illustrator.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QStringList>

namespace norvex::engine {

/// The procedure sets that `program` calls or includes, each once, when those that draw are among them and
/// none of these is in the program itself; otherwise nothing: a program that brings its own is its own.
[[nodiscard]] QList<QByteArray> missingProcedureSets(QByteArrayView program);

/// PostScript that runs before `program` and defines what missingProcedureSets() finds, or nothing. Artwork
/// whose prolog is empty and that names no set gets the operators too.
[[nodiscard]] QByteArray procedureSetsFor(QByteArrayView program);

/// What the interpreter told on standard error that was left out of the picture, one sentence each.
[[nodiscard]] QStringList leftOut(const QByteArray& messages);

}  // namespace norvex::engine
