// The clipboard after the program's end: on an X server what was copied lives in the program that copied it,
// so another process has to own it from then on.
#pragma once

#include <QByteArray>

#include <memory>
#include <string>

class QMimeData;

namespace norvex {

/// The most that is kept, in bytes; the largest formats are left out first.
inline constexpr qsizetype maximumKeptBytes = 256 * 1024 * 1024;

/// All formats of `data` as one piece, each different content once; empty without any.
[[nodiscard]] QByteArray packedMimeData(const QMimeData& data, qsizetype most = maximumKeptBytes);
/// Null for anything that packedMimeData() did not make.
[[nodiscard]] std::unique_ptr<QMimeData> unpackedMimeData(const QByteArray& packed);

/// Where this program owns the clipboard of an X server: starts `program`, hands everything over, and returns
/// when that owns the clipboard. False: there is nothing to hand over, or nobody took it. Main thread, while
/// there is a QGuiApplication.
bool leaveClipboardTo(const std::string& program);

/// The other side, with a QGuiApplication of its own: takes what comes through descriptor `from`, owns the
/// clipboard, says so by closing descriptor `told` after one byte, and returns the exit code once another
/// program has taken the clipboard. It ends with the display, too.
int keepClipboard(int from, int told);

}  // namespace norvex
