#include "encoders/comment_value.h"

#include <QStringView>

namespace norvex {
namespace {

bool becomesBlank(QChar c) {
  return QStringView(u"\n\r\v\f\t\u0085\u2028\u2029").contains(c);
}

}  // namespace

QString commentValue(const QString& text) {
  QString value;
  value.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text.at(i);
    if (c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n') ++i;
    if (becomesBlank(c))
      value += u' ';
    else if (c.category() != QChar::Other_Control)
      value += c;
  }
  return value;
}

}  // namespace norvex
