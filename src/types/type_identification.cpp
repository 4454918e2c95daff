#include "types/type_identification.h"

#include <QFileInfo>

#include <algorithm>

#include "base/blanks.h"
#include "types/gzip_mark.h"
#include "types/xml_root.h"

namespace norvex {
namespace {

UTType typeOf(const QString& identifier) {
  return *UTType::typeWithIdentifier(identifier);
}

/// How the file's name would have it.
std::optional<UTType> typeOfName(const QString& fileName) {
  if (fileName.endsWith(QLatin1String(".svg.gz"), Qt::CaseInsensitive)) return typeOf(NorvexSVGZType);
  return UTType::typeWithFilenameExtension(QFileInfo(fileName).suffix());
}

bool isType(const std::optional<UTType>& type, const QString& identifier) {
  return type && *type == typeOf(identifier);
}

/// PostScript for a printer may come behind a control-D or a change of the printer's language, and tools
/// leave blank lines; UTF-16 is seen through its ASCII half.
QByteArray postScriptStart(QByteArrayView bytes) {
  constexpr qsizetype enough = 64 * 1024;
  if (bytes.startsWith("\xFE\xFF") || bytes.startsWith("\xFF\xFE")) {
    QByteArray narrow;
    for (qsizetype i = bytes.startsWith("\xFE\xFF") ? 3 : 2; i < std::min(bytes.size(), 2 * enough); i += 2)
      narrow.append(bytes[i]);
    return narrow;
  }
  qsizetype from = bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
  if (bytes.startsWith("\x1B%-12345X"))
    from = std::max<qsizetype>(0, bytes.first(std::min(bytes.size(), enough)).indexOf("%!"));
  while (from < bytes.size() && from < 64 && mayPrecedePostScript(bytes[from])) ++from;
  return bytes.sliced(from, std::min(enough, bytes.size() - from)).toByteArray();
}

QByteArray firstLine(const QByteArray& text) {
  const auto end = std::find_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; });
  return text.first(end - text.begin());
}

/// Illustrator's own files say who made them and not that they are EPS.
bool saysIllustrator(const QByteArray& start) {
  const qsizetype at = start.indexOf("%%Creator:");
  return at >= 0 && firstLine(start.sliced(at)).contains("Adobe Illustrator");
}

/// True if one of the comment lines that the file begins with announces an interchange preview. A preview
/// further down belongs to a picture inside the picture.
bool announcesPreview(QByteArrayView text) {
  const qsizetype at = text.indexOf("%%BeginPreview:");
  for (qsizetype i = 0; i < at; ++i) {
    const bool lineStart = i == 0 || text[i - 1] == '\n' || text[i - 1] == '\r';
    if (lineStart && text[i] != '%' && !isWhiteSpace(text[i])) return false;
  }
  return at >= 0;
}

UTType typeOfPostScript(const QByteArray& start, const std::optional<UTType>& byName) {
  if (isType(byName, NorvexIllustratorType)) return *byName;
  const bool eps = firstLine(start).contains("EPSF");
  if (eps && (announcesPreview(start) || isType(byName, NorvexEPSIType))) return typeOf(NorvexEPSIType);
  if (eps) return typeOf(NorvexEPSType);
  if (isType(byName, NorvexEPSType) || isType(byName, NorvexEPSIType)) return *byName;
  return typeOf(saysIllustrator(start) ? NorvexIllustratorType : PostScriptType);
}

bool isPdf(QByteArrayView bytes) {
  const qsizetype at = bytes.first(std::min<qsizetype>(bytes.size(), 1024 + 5)).indexOf("%PDF-");
  return at >= 0;
}

UTType typeOfPdf(QByteArrayView bytes, const std::optional<UTType>& byName) {
  if (isType(byName, NorvexIllustratorType)) return *byName;
  const bool namedPdf = byName && byName->conformsToType(UTTypePDF());
  return !namedPdf && bytes.contains("/AIPrivateData") ? typeOf(NorvexIllustratorType) : UTTypePDF();
}

/// The name that a gzip file keeps of what is inside; empty without one.
QString nameInside(QByteArrayView gzip) {
  constexpr uchar hasExtra = 4;
  constexpr uchar hasName = 8;
  if (gzip.size() < 12 || !(uchar(gzip[3]) & hasName)) return {};
  qsizetype at = 10;
  if (uchar(gzip[3]) & hasExtra) at += 2 + uchar(gzip[10]) + 256 * uchar(gzip[11]);
  if (at >= gzip.size()) return {};
  const qsizetype end = gzip.indexOf('\0', at);
  return end < 0 ? QString() : QString::fromLatin1(gzip.sliced(at, end - at));
}

UTType typeOfGzip(QByteArrayView bytes, const QString& fileName, const std::optional<UTType>& byName) {
  const bool svgByName = byName && byName->conformsToType(UTTypeSVG());
  const auto inside = typeOfName(nameInside(bytes));
  const bool svgInside = inside && inside->conformsToType(UTTypeSVG());
  return typeOf(svgByName || svgInside || fileName.isEmpty() ? NorvexSVGZType
                                                             : QStringLiteral("org.gnu.gnu-zip-archive"));
}

/// `?` stands for any byte.
bool beginsWith(QByteArrayView bytes, std::string_view mark) {
  if (mark.empty() || bytes.size() < qsizetype(mark.size())) return false;
  for (size_t i = 0; i < mark.size(); ++i)
    if (mark[i] != '?' && mark[i] != bytes[qsizetype(i)]) return false;
  return true;
}

std::optional<UTType> typeOfRaster(QByteArrayView bytes) {
  for (const FormatRow& row : formatTable)
    for (const std::string_view mark : row.begins)
      if (beginsWith(bytes, mark)) return typeOf(row.id);
  return {};
}

UTType typeOfBinaryEps(const std::optional<UTType>& byName) {
  return isType(byName, NorvexIllustratorType) ? *byName : typeOf(NorvexEPSType);
}

}  // namespace

UTType identifyType(QByteArrayView bytes, const QString& fileName) {
  const QByteArrayView head = bytes.first(std::min(bytes.size(), identificationBytes));
  const auto byName = typeOfName(fileName);
  if (head.startsWith("\xC5\xD0\xD3\xC6")) return typeOfBinaryEps(byName);
  const QByteArray start = postScriptStart(head);
  if (start.startsWith("%!")) return typeOfPostScript(start, byName);
  if (isGzip(head)) return typeOfGzip(head, fileName, byName);
  if (const auto raster = typeOfRaster(head)) return *raster;
  const QString root = xmlRootName(head);
  if (root == QLatin1String("svg")) return UTTypeSVG();
  if (isPdf(head)) return typeOfPdf(head, byName);
  if (!root.isEmpty()) return byName && !byName->conformsToType(UTTypeSVG()) ? *byName : typeOf("public.xml");
  return byName.value_or(UTTypeData());
}

}  // namespace norvex
