#include "cli/arguments/page_list.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace norvex {

std::optional<PageList> PageList::read(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^([1-9]\\d{0,6})(?:(-)([1-9]\\d{0,6})?)?$"));
  PageList list;
  if (text == QLatin1String("all")) {
    list.ranges_.append({1, 0});
    return list;
  }
  for (const QString& part : text.split(u',')) {
    const QRegularExpressionMatch match = form.match(part.trimmed());
    if (!match.hasMatch()) return std::nullopt;
    const int first = match.captured(1).toInt();
    const int last = match.capturedLength(2) == 0 ? first : match.captured(3).toInt();
    if (last != 0 && last < first) return std::nullopt;
    list.ranges_.append({first, last});
  }
  return list;
}

Result<QList<int>> PageList::of(int pageCount) const {
  QList<int> pages;
  QSet<int> taken;
  for (const auto& [first, last] : ranges_) {
    const int furthest = std::max(first, last);
    if (furthest > pageCount)
      return Error{ErrorKind::Unsupported, QStringLiteral("there is no page %1, the document has %2")
                                               .arg(first > pageCount ? first : pageCount + 1)
                                               .arg(pageCount)};
    for (int page = first; page <= (last == 0 ? pageCount : last); ++page) {
      if (taken.contains(page)) continue;
      taken.insert(page);
      pages << page;
    }
  }
  return pages;
}

QString outputOfPage(const QString& output, int page) {
  const qsizetype name = output.lastIndexOf(u'/') + 1;
  const qsizetype dot = output.lastIndexOf(u'.');
  const qsizetype at = dot > name ? dot : output.size();  // a name may begin with a dot
  return output.left(at) + QStringLiteral("-%1").arg(page) + output.mid(at);
}

}  // namespace norvex
