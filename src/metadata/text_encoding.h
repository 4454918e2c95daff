// The text decoders and encoders that an encoding number selects.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

#include "metadata/header_dictionary.h"

namespace norvex {

/// The text of `bytes` in the encoding of that number (namespace encoding). All or nothing: one byte that the
/// encoding does not know, or a number without a decoder, gives nothing.
/// UTF-16 takes its byte order from a mark, which is not part of the text; without one, from where the zero
/// bytes stand at the text's start, and when they tell nothing it is big-endian. Thread-safe.
[[nodiscard]] std::optional<QString> decodeText(QByteArrayView bytes, qint64 encodingNumber);

/// True when decodeText() would give a text, for less work where the encoding allows it. Thread-safe.
[[nodiscard]] bool isDecodable(QByteArrayView bytes, qint64 encodingNumber);

/// The text of `bytes` in an encoding of ICU's by name ("macintosh"), for readings that no encoding number
/// stands for. All or nothing, as above; nothing for an unknown name. Thread-safe.
[[nodiscard]] std::optional<QString> decodeNamedText(QByteArrayView bytes, const char* name);

/// The names of all encodings that decodeNamedText() knows, in alphabetical order: the one of the internet's
/// registries where an encoding has one, ICU's own otherwise. Thread-safe.
[[nodiscard]] const QStringList& encodingNames();

/// The bytes of `text` in the encoding of that number. All or nothing: a character that the encoding cannot
/// say gives nothing. UTF-16 is written big-endian behind a mark. Thread-safe.
[[nodiscard]] std::optional<QByteArray> encodeText(QStringView text, qint64 encodingNumber);

/// The name that the header dictionary stores beside the number; two of the pairings are unusual on purpose.
/// Empty for a number without a decoder.
[[nodiscard]] QString encodingName(qint64 encodingNumber);

/// The number of one of those names, in any letter case. Nothing for any other name.
[[nodiscard]] std::optional<qint64> encodingNumberOf(QStringView name);

}  // namespace norvex
