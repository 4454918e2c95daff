// Words for people, as sentences.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>

#include "base/localized_string.h"

namespace norvex {

/// "the file does not exist" → "The file does not exist." Empty for nothing but blanks. A sentence that ends
/// with a full stop of its language keeps it.
inline QString asSentence(const QString& text) {
  QString sentence = text.trimmed();
  if (sentence.isEmpty()) return sentence;
  sentence[0] = sentence.at(0).toUpper();
  return sentence.endsWith(u'.') || sentence.endsWith(u'\u3002') ? sentence : sentence + u'.';
}

/// The name of the string table of sentences that come in English from where no language is known: the
/// picture process, the print room, the rules of the check.
inline constexpr char sentenceTable[] = "Sentences";

/// What stands in `text` at the places of `pattern` (%1 to %9); empty texts where the pattern has no such
/// place, nothing at all where `text` is no such sentence. No place is empty.
inline std::optional<QStringList> argumentsIn(QStringView text, QStringView pattern) {
  QStringList arguments;
  qsizetype at = 0, literal = 0;  // in the text, in the pattern
  int open = 0;                   // the place that begins at `at`
  for (qsizetype i = 0; i <= pattern.size(); ++i) {
    const bool isEnd = i == pattern.size();
    const int place = i + 1 < pattern.size() && pattern[i] == u'%' ? pattern[i + 1].digitValue() : -1;
    if (!isEnd && place < 1) continue;
    const QStringView words = pattern.sliced(literal, i - literal);
    qsizetype found = open ? text.indexOf(words, std::min(at + 1, text.size())) : at;
    if (open && isEnd) found = std::max(at + 1, text.size() - words.size());
    if (found < at + (open ? 1 : 0) || found > text.size()) return std::nullopt;
    if (!text.sliced(found).startsWith(words)) return std::nullopt;
    while (arguments.size() < open) arguments << QString();
    if (open) arguments[open - 1] = text.sliced(at, found - at).toString();
    at = found + words.size();
    open = place;
    literal = i + 2;
  }
  return at == text.size() ? std::optional(arguments) : std::nullopt;
}

/// The other way round; what an argument holds is no place.
inline QString filledIn(QStringView pattern, const QStringList& arguments) {
  QString text;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const int place = i + 1 < pattern.size() && pattern[i] == u'%' ? pattern[i + 1].digitValue() : -1;
    text += place < 1 ? QString(pattern[i]) : arguments.value(place - 1);
    if (place >= 1) ++i;
  }
  return text;
}

/// What a sentence is called in a table, with its places.
using SentenceKeys = std::span<const char* const>;

/// A word of ours or a sentence within another one, which has a full stop of its own; anything else as it
/// stands.
inline QString translatedArgument(const QString& english, SentenceKeys keys) {
  const auto is = [&](const char* key) { return english == QString::fromUtf8(key); };
  if (std::none_of(keys.begin(), keys.end(), is)) return english;
  QString text = localizedString(english.toUtf8().constData(), sentenceTable);
  if (text.endsWith(u'.') || text.endsWith(u'\u3002')) text.chop(1);
  return text;
}

/// `english` in the user's language when it is one of `keys` with something at their places, otherwise as it
/// stands; where several fit, the one that says most itself. What stands at a place is translated when it is
/// one of the keys, but never in one of `naming`: there stand names that a document gives.
inline QString translatedSentence(const QString& english, SentenceKeys keys, SentenceKeys naming = {}) {
  const char* fitting = nullptr;
  QStringList arguments;
  for (const char* key : keys) {
    const std::optional<QStringList> found = argumentsIn(english, QString::fromUtf8(key));
    if (!found || (fitting && found->join(QString()).size() >= arguments.join(QString()).size())) continue;
    fitting = key;
    arguments = *found;
  }
  if (!fitting) return english;
  const auto names = [&](const char* key) { return std::strcmp(key, fitting) == 0; };
  if (std::none_of(naming.begin(), naming.end(), names))
    for (QString& argument : arguments) argument = translatedArgument(argument, keys);
  return filledIn(localizedString(fitting, sentenceTable), arguments);
}

}  // namespace norvex
