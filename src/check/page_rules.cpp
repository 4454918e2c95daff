#include "check/page_rules.h"

#include <algorithm>
#include <cmath>

namespace norvex {
namespace {

constexpr double kMillimetresPerPoint = 25.4 / 72;
/// Images of so few pixels are colours or fills, not pictures.
constexpr int kPictureSide = 8;
/// Findings of one rule on a page; a page may hold thousands of images.
constexpr int kMostImages = 20;
/// The share of a limit that rounding may take.
constexpr double kSlack = 0.005;

QString number(double value) {
  return QString::number(value, 'f', value < 10 ? 2 : 0);
}

void checkFonts(Findings& findings, const PageContents& page) {
  for (const QString& sentence : page.missingFonts) findings << finding(rule("fonts.missing"), sentence);
  for (const UsedFont& font : page.fonts) {
    if (!font.used) continue;  // resources name fonts that no text is shown in
    const QString name = font.name.isEmpty() ? QStringLiteral("without a name") : font.name;
    const auto tell = [&](const RuleRow& row, const QString& sentence) {
      findings << finding(row, sentence.arg(name), {}, font.name);
    };
    if (font.type == u"Type3")
      tell(rule("fonts.type3"), QStringLiteral("the font %1 is a Type 3 font"));
    else if (!font.embedded)
      tell(rule("fonts.not-embedded"), QStringLiteral("the font %1 is not embedded"));
    else if (!font.subset)
      tell(rule("fonts.not-subset"), QStringLiteral("the font %1 is embedded as a whole"));
  }
}

void checkMeasures(Findings& findings, const PageContents& page, const ProfileLimits& limits) {
  const auto less = [&](const std::optional<Measured>& measured, const std::optional<double>& least) {
    return measured && least && measured->value < *least - kSlack;
  };
  if (less(page.thinnestLine, limits.thinnestLine))
    findings << finding(rule("lines.thin"),
                        QStringLiteral("a line is %1 pt thin, %2 pt are asked for")
                            .arg(number(page.thinnestLine->value), number(*limits.thinnestLine)),
                        {}, {}, page.thinnestLine->rect);
  if (less(page.smallestText, limits.smallestText))
    findings << finding(rule("text.small"),
                        QStringLiteral("a text is %1 pt small, %2 pt are asked for")
                            .arg(number(page.smallestText->value), number(*limits.smallestText)),
                        {}, {}, page.smallestText->rect);
  if (page.mostInk && limits.totalInk && page.mostInk->value > *limits.totalInk + kSlack)
    findings << finding(rule("colour.total-ink"),
                        QStringLiteral("a colour takes %1 % of ink, %2 % are allowed")
                            .arg(number(page.mostInk->value), number(*limits.totalInk)),
                        {}, {}, page.mostInk->rect);
}

std::optional<double> leastDpi(ImageColours colours, const ProfileLimits& limits) {
  switch (colours) {
    case ImageColours::LineArt:
      return limits.lineArtDpi;
    case ImageColours::Grey:
      return limits.greyDpi;
    case ImageColours::Colour:
      break;
  }
  return limits.colourDpi;
}

QString nameOf(ImageColours colours) {
  switch (colours) {
    case ImageColours::LineArt:
      return QStringLiteral("line art");
    case ImageColours::Grey:
      return QStringLiteral("grey");
    case ImageColours::Colour:
      break;
  }
  return QStringLiteral("colour");
}

void checkImages(Findings& findings, const PageContents& page, const ProfileLimits& limits) {
  int told = 0;
  for (const UsedImage& image : page.images) {
    const auto least = leastDpi(image.colours, limits);
    const double dpi = std::min(image.dpiX, image.dpiY);
    if (!least || std::min(image.pixelsWide, image.pixelsHigh) <= kPictureSide || dpi >= *least - 0.5)
      continue;
    if (++told > kMostImages) return;
    findings << finding(rule("image.resolution"),
                        QStringLiteral("the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for")
                            .arg(nameOf(image.colours))
                            .arg(image.pixelsWide)
                            .arg(image.pixelsHigh)
                            .arg(qRound(dpi))
                            .arg(qRound(*least)),
                        {}, image.name, image.rect);
  }
}

/// Named as a whole or by its kind: "ICCBased" stands for all with a profile, "Separation" for all spot inks.
bool isAllowed(const QString& space, const ProfileLimits& limits) {
  return limits.colourSpaces.contains(space) || limits.colourSpaces.contains(space.section(u' ', 0, 0));
}

void checkColours(Findings& findings, const PageContents& page, const ProfileLimits& limits) {
  if (page.rgb && page.cmyk)
    findings << finding(rule("colour.rgb-in-cmyk"), QStringLiteral("RGB colours stand beside CMYK colours"),
                        {}, {}, page.rgb);
  else if (page.rgb && !limits.rgb)
    findings << finding(rule("colour.rgb"), QStringLiteral("there are RGB colours"), {}, {}, page.rgb);
  for (const QString& space : page.colorSpaces)
    if (!limits.colourSpaces.isEmpty() && !isAllowed(space, limits))
      findings << finding(
          rule("colour.space"),
          QStringLiteral("it names the colour space %1, which the profile does not").arg(space), {}, space);
  for (const QString& ink : page.spotInks)
    findings << finding(rule("colour.spot"), QStringLiteral("there is the spot ink %1").arg(ink), {}, ink);
  if (page.whiteOverprint)
    findings << finding(rule("colour.white-overprints"), QStringLiteral("white overprints, and will vanish"),
                        {}, {}, page.whiteOverprint);
  // Where there is no other ink there is nothing to print over.
  if (page.blackKnocksOut && (page.cmyk || !page.spotInks.isEmpty()))
    findings << finding(rule("colour.black-knocks-out"),
                        QStringLiteral("small black text does not overprint"), {}, {}, page.blackKnocksOut);
}

void checkDocument(Findings& findings, const PageContents& page) {
  if (page.encrypted)
    findings << finding(rule("security.encrypted"), QStringLiteral("the document is encrypted"));
  if (!page.forbidden.isEmpty())
    findings << finding(
        rule("security.restricted"),
        QStringLiteral("its permissions forbid %1").arg(page.forbidden.join(QStringLiteral(", "))));
  for (const QString& claim : page.claims)
    findings << finding(rule("claims.standard"), QStringLiteral("it claims to keep %1").arg(claim), {},
                        claim);
  if (!page.claims.isEmpty() && page.outputIntents.isEmpty())
    findings << finding(
        rule("claims.output-intent"),
        QStringLiteral("it claims to keep %1 and has no output intent").arg(page.claims.first()));
}

void checkSvg(Findings& findings, const PageContents& page) {
  if (page.outsideReferences > 0)
    findings << finding(rule("svg.reference.outside"),
                        QStringLiteral("it refers to other files, which are never loaded (references: %1)")
                            .arg(page.outsideReferences));
  if (page.filters > 0)
    findings << finding(
        rule("svg.filter"),
        QStringLiteral("elements drawn through filters become images in print: %1").arg(page.filters));
  if (page.runsSomething)
    findings << finding(rule("svg.script"),
                        QStringLiteral("it has scripts or animations, which are not run"));
  if (page.sizeWithoutUnit)
    findings << finding(rule("svg.size.no-unit"),
                        QStringLiteral("its width or height is absent, or has no unit"));
}

}  // namespace

Findings pageFindings(const PageContents& page, PictureKind kind, const ProfileLimits& limits) {
  Findings findings;
  if (kind == PictureKind::Pdf) {
    checkFonts(findings, page);
  } else {
    PageContents missing;
    missing.missingFonts = page.missingFonts;
    checkFonts(findings, missing);
  }
  checkMeasures(findings, page, limits);
  checkImages(findings, page, limits);
  if (kind != PictureKind::Svg) checkColours(findings, page, limits);
  if (page.transparency)
    findings << finding(rule("transparency.used"), QStringLiteral("there is transparency"), {}, {},
                        page.transparency);
  if (kind != PictureKind::Eps && page.outside)
    findings << finding(
        rule("page.outside"),
        QStringLiteral("something is drawn up to %1 pt outside the page").arg(number(page.outside->value)),
        {}, {}, page.outside->rect);
  if (!page.complete)
    findings << finding(rule("page.unread"), QStringLiteral("a part of the page was not looked at"));
  if (kind == PictureKind::Pdf) checkDocument(findings, page);
  if (kind == PictureKind::Svg) checkSvg(findings, page);
  if (kind == PictureKind::Eps)
    for (const QString& remark : page.remarks) findings << finding(rule("eps.program.remark"), remark);
  findings += widthFindings(page.size.width(), limits);
  return findings;
}

Findings widthFindings(double points, const ProfileLimits& limits) {
  if (limits.columns.isEmpty()) return {};
  const double width = points * kMillimetresPerPoint;
  const bool fits = std::any_of(limits.columns.begin(), limits.columns.end(), [&](double column) {
    return std::abs(width - column) <= limits.columnTolerance;
  });
  if (fits) return {};
  QStringList columns;
  for (const double column : limits.columns) columns << QString::number(column);
  return {finding(rule("page.width"), QStringLiteral("the picture is %1 mm wide, columns are %2 mm")
                                          .arg(width, 0, 'f', 1)
                                          .arg(columns.join(QStringLiteral(", "))))};
}

}  // namespace norvex
