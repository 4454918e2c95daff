// A Windows metafile taken apart into its records.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QRect>

#include <algorithm>

#include "base/result.h"

namespace norvex::engine {

/// The words behind a record's function, read in order. Behind the end everything is 0 and isShort() true.
class MetafileWords {
 public:
  explicit MetafileWords(QByteArrayView bytes) : bytes_(bytes) {}
  int signedWord() { return qint16(unsignedWord()); }
  quint16 unsignedWord();
  quint32 doubleWord();
  /// At most so many bytes, without what pads them to a word. Borrowed.
  QByteArrayView text(int bytes);
  /// All that is left. Borrowed.
  [[nodiscard]] QByteArrayView rest() const { return bytes_.sliced(std::min(at_, bytes_.size())); }
  [[nodiscard]] bool isShort() const { return isShort_; }

 private:
  QByteArrayView bytes_;
  qsizetype at_ = 0;
  bool isShort_ = false;
};

struct MetafileRecord {
  quint16 function = 0;
  QByteArrayView parameters;
};

/// Borrows from the bytes that it was read from.
struct Metafile {
  QRect frame;                    ///< of a placeable one, in its units; empty without
  int unitsPerInch = 0;           ///< of that frame
  QList<MetafileRecord> records;  ///< without the one that ends the file
};

[[nodiscard]] bool isMetafile(QByteArrayView bytes);

/// Fails with NotParsable where there is no header or a record is cut off before one that draws.
[[nodiscard]] Result<Metafile> readMetafile(QByteArrayView bytes);

}  // namespace norvex::engine
