#include "print/paper.h"

#include <langinfo.h>
#include <locale.h>

#include <QLocale>

#include <algorithm>
#include <cmath>

#include "print/cups_library.h"

namespace norvex {
namespace {

constexpr double kPointsPerUnit = 72.0 / 2540;  // a unit is a hundredth of a millimetre
constexpr double kSameSize = 1.5;               // points
constexpr int kLetterMillimetres = 279;

/// As the print service calls them; hundredths of a millimetre.
struct CommonPaper {
  const char* name;
  const char* keyword;
  int width, length;
};
constexpr CommonPaper kCommon[] = {
    {"A4", "iso_a4_210x297mm", 21000, 29700},
    {"A3", "iso_a3_297x420mm", 29700, 42000},
    {"A5", "iso_a5_148x210mm", 14800, 21000},
    {"A6", "iso_a6_105x148mm", 10500, 14800},
    {"A2", "iso_a2_420x594mm", 42000, 59400},
    {"A1", "iso_a1_594x841mm", 59400, 84100},
    {"A0", "iso_a0_841x1189mm", 84100, 118900},
    {"Letter", "na_letter_8.5x11in", 21590, 27940},
    {"Legal", "na_legal_8.5x14in", 21590, 35560},
    {"Tabloid", "na_ledger_11x17in", 27940, 43180},
    {"Executive", "na_executive_7.25x10.5in", 18415, 26670},
    {"B4", "jis_b4_257x364mm", 25700, 36400},
    {"B5", "jis_b5_182x257mm", 18200, 25700},
};

QSizeF upright(const QSizeF& size) {
  return size.width() > size.height() ? size.transposed() : size;
}

Paper paperOf(const QString& name, const char* keyword, int width, int length) {
  return {name, QString::fromLatin1(keyword), upright(QSizeF(width, length) * kPointsPerUnit)};
}

bool isSameSize(const QSizeF& a, const QSizeF& b) {
  return std::abs(a.width() - b.width()) <= kSameSize && std::abs(a.height() - b.height()) <= kSameSize;
}

/// Where Letter is the usual paper, as the Unicode Common Locale Data Repository has it.
constexpr QLocale::Territory kLetterTerritories[] = {
    QLocale::UnitedStates, QLocale::Canada,      QLocale::Mexico,     QLocale::Belize,    QLocale::Chile,
    QLocale::Colombia,     QLocale::CostaRica,   QLocale::ElSalvador, QLocale::Guatemala, QLocale::Nicaragua,
    QLocale::Panama,       QLocale::Philippines, QLocale::PuertoRico, QLocale::Venezuela};

/// By the locale's name alone, where the C library does not have that locale.
bool isLetterByName() {
  for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"}) {
    const QString name = qEnvironmentVariable(variable);
    if (name.isEmpty()) continue;
    if (name == QLatin1String("C") || name.startsWith(QLatin1String("C.")) || name == QLatin1String("POSIX"))
      return false;
    return std::find(std::begin(kLetterTerritories), std::end(kLetterTerritories),
                     QLocale(name).territory()) != std::end(kLetterTerritories);
  }
  return false;
}

}  // namespace

const QList<Paper>& commonPapers() {
  static const QList<Paper> papers = [] {
    QList<Paper> made;
    for (const CommonPaper& each : kCommon)
      made << paperOf(QString::fromLatin1(each.name), each.keyword, each.width, each.length);
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
  const CupsLibrary* cups = CupsLibrary::loaded();
  const pwg_media_t* media = cups ? cups->pwgMediaForPWG(wanted.toLower().toLatin1().constData()) : nullptr;
  if (!media || media->width <= 0 || media->length <= 0) return std::nullopt;
  return paperOf(wanted.toLower(), media->pwg, media->width, media->length);
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
  bool letter = false;
  if (locale) {
    // glibc gives these numbers in the place of a pointer.
    letter = reinterpret_cast<qintptr>(::nl_langinfo_l(_NL_PAPER_HEIGHT, locale)) == kLetterMillimetres;
    ::freelocale(locale);
  } else {
    letter = isLetterByName();
  }
  return *paperNamed(letter ? QStringLiteral("Letter") : QStringLiteral("A4"));
}

}  // namespace norvex
