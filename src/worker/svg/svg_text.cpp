#include "worker/svg/svg_text.h"

#include <QStringConverter>

#include <libxml/encoding.h>
#include <libxml/tree.h>
#include <libxml/xmlIO.h>

#include <memory>
#include <optional>
#include <utility>

#include "metadata/header_dictionary.h"

namespace norvex::engine {
namespace {

/// Bytes in which a declaration is looked for.
constexpr qsizetype kLongestDeclaration = 1024;

/// The place of the encoding's name in the XML declaration, without the quotes; size 0: there is none.
std::pair<qsizetype, qsizetype> encodingPlace(const QByteArray& text) {
  if (!text.startsWith("<?xml") || text.size() < 6 || !QByteArray(" \t\r\n").contains(text[5])) return {0, 0};
  const qsizetype end = text.left(kLongestDeclaration).indexOf("?>");
  const qsizetype key = text.left(end).indexOf("encoding");
  if (end < 0 || key < 0) return {0, 0};
  qsizetype at = key + 8;
  while (at < end && QByteArray(" \t\r\n=").contains(text[at])) ++at;
  if (at >= end || (text[at] != '"' && text[at] != '\'')) return {0, 0};
  const qsizetype close = text.left(end).indexOf(text[at], at + 1);
  return close < 0 ? std::pair<qsizetype, qsizetype>{0, 0} : std::pair{at + 1, close - at - 1};
}

QByteArray declaredEncoding(const QByteArray& text) {
  const auto [start, length] = encodingPlace(text);
  return text.mid(start, length);
}

struct Family {
  std::optional<QStringConverter::Encoding> wide;  ///< UTF-16 or UTF-32
  int markBytes = 0;
};

/// The family of encodings, told by the first bytes before the declaration can be read.
Family familyOf(const QByteArray& bytes) {
  if (bytes.startsWith(QByteArray("\xff\xfe\0\0", 4))) return {QStringConverter::Utf32LE, 4};
  if (bytes.startsWith(QByteArray("\0\0\xfe\xff", 4))) return {QStringConverter::Utf32BE, 4};
  if (bytes.startsWith("\xff\xfe")) return {QStringConverter::Utf16LE, 2};
  if (bytes.startsWith("\xfe\xff")) return {QStringConverter::Utf16BE, 2};
  if (bytes.startsWith("\xef\xbb\xbf")) return {std::nullopt, 3};
  if (bytes.startsWith(QByteArray("<\0\0\0", 4))) return {QStringConverter::Utf32LE, 0};
  if (bytes.startsWith(QByteArray("\0\0\0<", 4))) return {QStringConverter::Utf32BE, 0};
  if (bytes.startsWith(QByteArray("<\0", 2))) return {QStringConverter::Utf16LE, 0};
  if (bytes.startsWith(QByteArray("\0<", 2))) return {QStringConverter::Utf16BE, 0};
  return {};
}

Error notText(const QByteArray& encoding) {
  return {ErrorKind::NotParsable,
          QStringLiteral("the bytes are not text in the encoding %1").arg(QString::fromLatin1(encoding))};
}

// NUL is no character of XML, and the parser takes it for the end: what stands behind it is no part of the
// document.
QByteArray untilNul(QByteArray text) {
  const qsizetype nul = text.indexOf('\0');
  if (nul >= 0) text.truncate(nul);
  return text;
}

Result<SvgText> decodeWide(const QByteArray& bytes, const Family& family) {
  SvgText text;
  const bool sixteen = *family.wide == QStringConverter::Utf16LE || *family.wide == QStringConverter::Utf16BE;
  text.declaredName = sixteen ? "UTF-16" : "UTF-32";
  QStringDecoder decoder(*family.wide, QStringConverter::Flag::ConvertInitialBom);
  QString wide = decoder.decode(bytes.mid(family.markBytes));
  if (decoder.hasError() || bytes.size() % (sixteen ? 2 : 4) != 0) return notText(text.declaredName);
  while (wide.startsWith(QChar::ByteOrderMark)) wide.remove(0, 1);  // a converter's left-over
  text.utf8 = untilNul(wide.toUtf8());
  text.handedOnAsUtf8 = !sixteen;
  text.encodingName = sixteen ? QStringLiteral("utf-16") : QStringLiteral("utf-8");
  text.encodingNumber = int(sixteen ? encoding::Utf16 : encoding::Utf8);
  text.littleEndian = *family.wide == QStringConverter::Utf16LE;
  return text;
}

struct CloseHandler {
  void operator()(xmlCharEncodingHandler* handler) const { xmlCharEncCloseFunc(handler); }
};
using Handler = std::unique_ptr<xmlCharEncodingHandler, CloseHandler>;

struct FreeBuffer {
  void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
};
using Buffer = std::unique_ptr<xmlBuffer, FreeBuffer>;

std::optional<QByteArray> toUtf8(const QByteArray& bytes, xmlCharEncodingHandler* handler) {
  const Buffer input(xmlBufferCreateSize(size_t(bytes.size()) + 1));
  const Buffer output(xmlBufferCreate());
  if (xmlBufferAdd(input.get(), reinterpret_cast<const xmlChar*>(bytes.constData()), int(bytes.size())) != 0)
    return std::nullopt;
  for (int left = xmlBufferLength(input.get()); left > 0;) {
    if (xmlCharEncInFunc(handler, output.get(), input.get()) < 0) return std::nullopt;
    const int now = xmlBufferLength(input.get());
    if (now == left) return std::nullopt;  // an incomplete character at the end
    left = now;
  }
  return QByteArray(reinterpret_cast<const char*>(xmlBufferContent(output.get())),
                    xmlBufferLength(output.get()));
}

// True if the escapes of non-lossy ASCII could mistake a part of the text for one of theirs.
bool isPlainAscii(const QByteArray& text) {
  return !text.contains('\\');
}

void nameEncoding(SvgText& text) {
  const QByteArray name = text.declaredName.toLower();
  const auto is = [&](const char* encodingName, qint64 number) {
    text.encodingName = QString::fromLatin1(encodingName);
    text.encodingNumber = int(number);
  };
  if (name == "euc-jp") return is("euc-jp", encoding::EucJp);
  if (name == "shift_jis" || name == "sjis" || name == "x-sjis") return is("shift_jis", encoding::ShiftJis);
  if ((name == "us-ascii" || name == "ascii") && isPlainAscii(text.utf8))
    return is("us-ascii", encoding::NonLossyAscii);
  is("utf-8", encoding::Utf8);
  text.handedOnAsUtf8 = name != "utf-8" && name != "utf8" && name != "us-ascii" && name != "ascii";
}

}  // namespace

Result<SvgText> decodeSvgText(const QByteArray& bytes) {
  const Family family = familyOf(bytes);
  if (family.wide) return decodeWide(bytes, family);
  SvgText text;
  text.byteOrderMark = family.markBytes > 0;
  const QByteArray body = bytes.mid(family.markBytes);
  text.declaredName = declaredEncoding(untilNul(body.left(kLongestDeclaration)));
  // A mark is stronger than the declaration; and 8-bit text that claims to be UTF-16 is a converter's
  // left-over.
  const QByteArray upper = text.declaredName.toUpper();
  if (text.byteOrderMark || upper.isEmpty() || upper == "UTF8" || upper.startsWith("UTF-16") ||
      upper.startsWith("UCS-"))
    text.declaredName = "UTF-8";
  if (text.declaredName.toUpper() == "UTF-8") {
    text.utf8 = untilNul(body);  // the XML parser refuses what is not UTF-8
  } else {
    Handler handler(xmlFindCharEncodingHandler(text.declaredName.constData()));
    if (!handler)
      return Error{
          ErrorKind::NotParsable,
          QStringLiteral("the encoding %1 is not known").arg(QString::fromUtf8(text.declaredName.left(40)))};
    const std::optional<QByteArray> decoded = toUtf8(body, handler.get());
    if (!decoded) return notText(text.declaredName);
    text.utf8 = untilNul(*decoded);
  }
  nameEncoding(text);
  return text;
}

QByteArray encodeSvgText(const QByteArray& utf8, const SvgText& like) {
  if (like.encodingNumber == int(encoding::Utf16)) {
    QStringEncoder encoder(like.littleEndian ? QStringConverter::Utf16LE : QStringConverter::Utf16BE,
                           QStringConverter::Flag::WriteBom);
    return encoder.encode(QString::fromUtf8(utf8));
  }
  if (like.handedOnAsUtf8) return withDeclaredEncoding(utf8, "UTF-8");
  if (like.encodingNumber == int(encoding::Utf8)) return like.byteOrderMark ? "\xef\xbb\xbf" + utf8 : utf8;
  const Buffer target(xmlBufferCreate());
  xmlOutputBufferPtr output =
      xmlOutputBufferCreateBuffer(target.get(), xmlFindCharEncodingHandler(like.declaredName.constData()));
  xmlOutputBufferWrite(output, int(utf8.size()), utf8.constData());
  xmlOutputBufferClose(output);
  return QByteArray(reinterpret_cast<const char*>(xmlBufferContent(target.get())),
                    xmlBufferLength(target.get()));
}

QByteArray withDeclaredEncoding(const QByteArray& utf8, const QByteArray& encoding) {
  const auto [start, length] = encodingPlace(utf8);
  if (length == 0) return utf8;
  QByteArray result = utf8;
  return result.replace(start, length, encoding);
}

}  // namespace norvex::engine
