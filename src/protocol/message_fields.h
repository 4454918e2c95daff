// How the messages of worker_protocol.h are read and written by one list of fields each:
//
//   template <typename V>
//   void fields(V& v, Of<V, PdfRequest>& pdf) {
//     v.integer(Key("page"), pdf.page, 0, limits::maximumPageNumber);
//   }
//
// V is CborReader, which fills the message in, or CborWriter, which is given a constant one.
#pragma once

#include <QByteArray>
#include <QCborValue>
#include <QLatin1String>
#include <QString>

#include <type_traits>
#include <variant>

#include "base/result.h"
#include "protocol/cbor_reader.h"
#include "protocol/cbor_writer.h"
#include "protocol/limits.h"
#include "protocol/worker_protocol.h"

namespace norvex {

template <typename V, typename Message>
using Of = std::conditional_t<V::writes, const Message, Message>;

/// Another version of the protocol is refused.
template <typename V>
void version(V& v) {
  Of<V, int> same = workerProtocolVersion;
  v.integer(QLatin1String("v"), same, workerProtocolVersion, workerProtocolVersion);
}

template <typename V>
void fields(V& v, Of<V, PictureLayer>& layer) {
  v.text(QLatin1String("name"), layer.name, limits::maximumNameLength);
  v.boolean(QLatin1String("shown"), layer.shown);
}

/// The word that tells what a message is; specialised for each.
template <typename Message>
inline constexpr const char* typeOf = nullptr;

/// True if `type` is the word of one of the messages that `message` may be. That is then read into it.
template <typename... Messages>
bool readOneOf(CborReader& reader, const QString& type, std::variant<Messages...>& message) {
  const auto isThis = [&](auto read) {
    if (type != QLatin1String(typeOf<decltype(read)>)) return false;
    fields(reader, read);
    message = std::move(read);
    return true;
  };
  return (isThis(Messages()) || ...);
}

/// The bytes of an answer that travels by itself.
template <typename Answer>
QByteArray encoded(const Answer& answer) {
  CborWriter writer;
  fields(writer, answer);
  return QCborValue(writer.map()).toCbor();
}

/// The other way. Fails with `lie` where that cannot be true; more than `most` bytes are not read.
template <typename Answer>
Result<Answer> decoded(const QByteArray& cbor, qint64 most, const Error& lie) {
  CborReader reader = CborReader::parse(cbor.size() > most ? QByteArray() : cbor);
  Answer answer;
  fields(reader, answer);
  if (reader.complete()) return answer;
  return lie;
}

}  // namespace norvex
