#include "print/paper.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <langinfo.h>
#include <locale.h>

#include <algorithm>
#include <cmath>

namespace norvex {
namespace {

constexpr double kPointsPerUnit = 72.0 / 2540;  // a unit is a hundredth of a millimetre
constexpr double kSameSize = 1.5;               // points
constexpr int kLetterMillimetres = 279;

QSizeF upright(const QSizeF& size) {
  return size.width() > size.height() ? size.transposed() : size;
}

Paper paperOf(const pwg_media_t& media, const QString& name) {
  const QSizeF size(media.width * kPointsPerUnit, media.length * kPointsPerUnit);
  return {name, QString::fromLatin1(media.pwg), upright(size)};
}

bool isSameSize(const QSizeF& a, const QSizeF& b) {
  return std::abs(a.width() - b.width()) <= kSameSize && std::abs(a.height() - b.height()) <= kSameSize;
}

}  // namespace

const QList<Paper>& commonPapers() {
  static const QList<Paper> papers = [] {
    QList<Paper> made;
    for (const char* name :
         {"A4", "A3", "A5", "A6", "A2", "A1", "A0", "Letter", "Legal", "Tabloid", "Executive", "B4", "B5"})
      if (const pwg_media_t* media = pwgMediaForPPD(name)) made << paperOf(*media, QString::fromLatin1(name));
    return made;
  }();
  return papers;
}

std::optional<Paper> paperNamed(const QString& name) {
  const QString wanted = name.trimmed();
  for (const Paper& paper : commonPapers())
    if (!paper.name.compare(wanted, Qt::CaseInsensitive) ||
        !paper.keyword.compare(wanted, Qt::CaseInsensitive))
      return paper;
  if (!wanted.contains(u'_') || wanted.size() > 100) return std::nullopt;
  const pwg_media_t* media = pwgMediaForPWG(wanted.toLower().toLatin1().constData());
  if (!media || media->width <= 0 || media->length <= 0) return std::nullopt;
  return paperOf(*media, wanted.toLower());
}

Paper paperOfSize(const QSizeF& points) {
  const QSizeF size = upright(points);
  for (const Paper& paper : commonPapers())
    if (isSameSize(paper.size, size)) return paper;
  const auto millimetres = [](double value) { return qRound(value / kPointsPerUnit / 100); };
  const QString measures =
      QStringLiteral("%1x%2mm").arg(millimetres(size.width())).arg(millimetres(size.height()));
  return {measures, QStringLiteral("custom_norvex_") + measures, size};
}

Paper localePaper() {
  locale_t locale = ::newlocale(LC_PAPER_MASK, "", nullptr);
  int height = 0;
  if (locale) {
    // glibc gives these numbers in the place of a pointer.
    height = int(reinterpret_cast<qintptr>(::nl_langinfo_l(_NL_PAPER_HEIGHT, locale)));
    ::freelocale(locale);
  }
  return *paperNamed(height == kLetterMillimetres ? QStringLiteral("Letter") : QStringLiteral("A4"));
}

}  // namespace norvex
