// Words for people, as sentences.
#pragma once

#include <QLocale>
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

[[nodiscard]] inline QString translatedSentence(const QString& english, SentenceKeys keys,
                                                SentenceKeys naming = {});

inline bool isOneOf(SentenceKeys keys, const QString& english) {
  return std::any_of(keys.begin(), keys.end(),
                     [&](const char* key) { return english == QString::fromUtf8(key); });
}

/// A sentence within another one has no full stop of its own.
inline QString withoutFullStop(const QString& sentence) {
  return sentence.endsWith(u'.') || sentence.endsWith(u'\u3002') ? sentence.chopped(1) : sentence;
}

/// A word of ours, or several with commas between them; anything else as it stands.
inline QString translatedArgument(const QString& english, SentenceKeys keys) {
  const auto translated = [](const QString& key) {
    return withoutFullStop(localizedString(key.toUtf8().constData(), sentenceTable));
  };
  if (isOneOf(keys, english)) return translated(english);
  QStringList words = english.split(QStringLiteral(", "));
  for (QString& word : words) {
    if (!isOneOf(keys, word)) return english;
    word = translated(word);
  }
  return QLocale().createSeparatedList(words);
}

/// The place behind a colon at the end of a key, 0 where it has none: a reason stands there, which is a
/// sentence of its own.
inline int quotingPlace(QStringView key) {
  const bool quotes = key.size() > 4 && key.sliced(key.size() - 4, 3) == u": %";
  return quotes ? std::max(0, key.back().digitValue()) : 0;
}

/// `english` in the user's language when it is one of `keys` with something at their places, otherwise as it
/// stands; where several fit, the one that says most itself. What stands at a place is translated when it is
/// one of the keys, and behind a colon at the end when it is a sentence with places, too; but never in one of
/// `naming`: there stand names that a document gives.
inline QString translatedSentence(const QString& english, SentenceKeys keys, SentenceKeys naming) {
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
  if (std::none_of(naming.begin(), naming.end(), names)) {
    const int quoting = quotingPlace(QString::fromUtf8(fitting));
    for (int i = 0; i < arguments.size(); ++i)
      arguments[i] = i + 1 == quoting ? withoutFullStop(translatedSentence(arguments[i], keys, naming))
                                      : translatedArgument(arguments[i], keys);
  }
  return filledIn(localizedString(fitting, sentenceTable), arguments);
}

}  // namespace norvex
