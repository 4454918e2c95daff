#include "picture/localized_error.h"

#include "base/sentence.h"
#include "picture/told_sentences.h"

namespace norvex {

ToldError localizedError(const Error& error) {
  ToldError told = toldError(error);
  told.sentence = localizedSentence(told.sentence);
  return told;
}

QString localizedSentence(const QString& english) {
  return asSentence(translatedSentence(english, toldSentences, toldNames));
}

}  // namespace norvex
