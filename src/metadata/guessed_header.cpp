#include "metadata/guessed_header.h"

#include <algorithm>

#include "metadata/dos_eps_header.h"
#include "metadata/dsc_comments.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

HeaderDictionary valuesOf(const DscComments& comments) {
  HeaderDictionary values;
  const auto take = [&](const QString& key, DscKeyword keyword) {
    if (const QString value = comments.value(keyword); !value.isEmpty()) values.insert(key, value);
  };
  take(header::Title, DscKeyword::Title);
  take(header::Creator, DscKeyword::Creator);
  take(header::CreationDate, DscKeyword::CreationDate);
  take(header::For, DscKeyword::For);
  take(header::Copyright, DscKeyword::Copyright);
  take(header::Description, DscKeyword::Routing);
  return values;
}

bool holdsUpperControls(const QVariant& value) {
  const QString text = value.toString();
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= u'\u0080' && c <= u'\u009F'; });
}

}  // namespace

std::optional<GuessedHeader> guessedHeader(const QByteArray& source, const HeaderDictionary& header) {
  if (source.isEmpty() || header.contains(header::Title)) return std::nullopt;
  const QByteArray latin1 = QString::fromLatin1(postScriptOf(source)).toUtf8();
  GuessedHeader guess{QStringLiteral("iso-8859-1"), valuesOf(DscComments(latin1, encoding::Utf8))};
  if (guess.values.isEmpty()) return std::nullopt;
  if (std::none_of(guess.values.cbegin(), guess.values.cend(), holdsUpperControls)) return guess;
  guess.encodingName = QStringLiteral("macintosh");
  for (QVariant& value : guess.values)
    value = decodeNamedText(value.toString().toLatin1(), "macintosh").value_or(value.toString());
  return guess;
}

}  // namespace norvex
