#include "picture/told_error.h"

#include <QLatin1String>

#include <array>

#include "protocol/program_stop.h"

namespace norvex {
namespace {

/// How the picture process quotes a library, and what is said instead.
struct Quotation {
  QLatin1String before, behind;
  QLatin1String sentence;
};

constexpr std::array kQuotations{
    Quotation{kProgramStopped, QLatin1String(""),
              QLatin1String("the PostScript program stops with an error")},
    Quotation{QLatin1String("the document is not a readable PDF ("), QLatin1String(")"),
              QLatin1String("the document is damaged and cannot be read as PDF")},
    Quotation{QLatin1String("the document is not well-formed XML ("), QLatin1String(")"),
              QLatin1String("the document is not well-formed XML")},
    Quotation{QLatin1String("the picture cannot be read: "), QLatin1String(""),
              QLatin1String("the picture cannot be read")},
    Quotation{QLatin1String("the picture cannot be drawn: "), QLatin1String(""),
              QLatin1String("the picture holds something that cannot be drawn")},
    Quotation{QLatin1String("the picture process ended without an answer ("), QLatin1String(")"),
              QLatin1String("the picture process ended without an answer")},
    Quotation{QLatin1String("no process for the picture could be started ("), QLatin1String(")"),
              QLatin1String("no process for the picture could be started")},
};

/// How an interpreter calls it that a program wants to read, write or start something.
constexpr QLatin1String kForbiddenFile("invalidfileaccess");

}  // namespace

ToldError toldError(const Error& error) {
  const QString& message = error.message;
  for (const Quotation& quotation : kQuotations) {
    if (!message.startsWith(quotation.before) || !message.endsWith(quotation.behind)) continue;
    const qsizetype length = message.size() - quotation.before.size() - quotation.behind.size();
    if (length <= 0) continue;
    const QString details = message.mid(quotation.before.size(), length);
    if (details.startsWith(kForbiddenFile))
      return {QStringLiteral("the PostScript program tries to use a file, which no picture may"), details};
    return {quotation.sentence, details};
  }
  return {message, {}};
}

}  // namespace norvex
