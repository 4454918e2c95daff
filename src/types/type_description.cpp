#include "types/type_description.h"

#include "base/latin1_text.h"
#include "base/localized_string.h"
#include "types/picture_format.h"

namespace norvex {

QString localizedDescription(const UTType& type) {
  for (const FormatRow& row : formatTable)
    if (*row.title && type.identifier() == latin1(row.type)) return localizedString(row.title);
  return type.identifier();
}

}  // namespace norvex
