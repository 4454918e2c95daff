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
  return encoded(names);
}

Result<PageNames> decodePageNames(const QByteArray& cbor) {
  return decoded<PageNames>(
      cbor, limits::maximumMessageBytes,
      Error{ErrorKind::Protocol,
            QStringLiteral("the names in the page were told in a way that cannot be true")});
}

}  // namespace norvex
