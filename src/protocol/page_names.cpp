#include "protocol/page_names.h"

#include "protocol/limits.h"
#include "protocol/message_fields.h"

namespace norvex {

using Key = QLatin1String;

template <typename V>
void fields(V& v, Of<V, PageNames>& names) {
  version(v);
  v.texts(Key("fonts"), names.fonts, limits::maximumNames, limits::maximumNameLength);
  v.texts(Key("colorSpaces"), names.colorSpaces, limits::maximumNames, limits::maximumNameLength);
}

QByteArray encodePageNames(const PageNames& names) {
  CborWriter writer;
  fields(writer, names);
  return QCborValue(writer.map()).toCbor();
}

Result<PageNames> decodePageNames(const QByteArray& cbor) {
  CborReader reader = CborReader::parse(cbor.size() > limits::maximumMessageBytes ? QByteArray() : cbor);
  PageNames names;
  fields(reader, names);
  if (reader.complete()) return names;
  return Error{ErrorKind::Protocol,
               QStringLiteral("the names in the page were told in a way that cannot be true")};
}

}  // namespace norvex
