#include "metadata/eps_header.h"

#include <initializer_list>

#include "base/metadata_log.h"
#include "metadata/dos_eps_header.h"
#include "metadata/dsc_comments.h"
#include "metadata/epsi_preview.h"
#include "metadata/text_encoding.h"

namespace norvex {
namespace {

/// How the source begins.
struct Start {
  qsizetype offset = 0;
  qint64 encodingNumber = encoding::Utf8;
};

Start startOf(QByteArrayView source) {
  if (source.startsWith("\xFE\xFF") || source.startsWith("\xFF\xFE")) return {2, encoding::Utf16};
  if (!source.startsWith("\xEF\xBB\xBF")) return {};
  qCInfo(metadataLog, "complete UTF-8");
  return {3, encoding::Utf8};
}

/// The text as bytes with the encoding that they are in. With `decoded` unset the bytes are no text in it.
struct FoundText {
  QByteArrayView bytes;
  qint64 encodingNumber = 0;
  bool decoded = false;
};

/// The first encoding that decodes the bytes; the last of them when none does.
FoundText firstDecoding(QByteArrayView bytes, std::initializer_list<qint64> candidates) {
  FoundText found{bytes, 0, false};
  for (const qint64 number : candidates) {
    found.encodingNumber = number;
    found.decoded = isDecodable(bytes, number);
    if (found.decoded) break;
  }
  return found;
}

FoundText binaryText(QByteArrayView source, const DosEpsHeader& header, const Start& start) {
  return firstDecoding(postScriptSection(source, header, start.offset),
                       {start.encodingNumber, encoding::ShiftJis, encoding::EucJp, encoding::NonLossyAscii});
}

// Tries EUC-JP before Shift JIS, unlike binaryText().
FoundText plainText(QByteArrayView source, const Start& start) {
  return firstDecoding(
      source.sliced(start.offset),
      {start.encodingNumber, encoding::EucJp, encoding::ShiftJis, encoding::NonLossyAscii, encoding::Ascii});
}

qint64 declaredEncoding(const DscComments& comments, qint64 current) {
  if (!comments.contains(DscKeyword::DeclaredEncoding)) return current;
  const QString token = comments.value(DscKeyword::DeclaredEncoding);
  if (token.contains(QLatin1String("UTF8"))) return encoding::Utf8;
  if (token.contains(QLatin1String("UTF16"))) return encoding::Utf16;
  return current;
}

void insertPreview(HeaderDictionary& dictionary, const NSBitmapImageRep& preview) {
  dictionary.insert(header::Preview, QVariant::fromValue(preview));
}

void insertInterchangePreview(HeaderDictionary& dictionary, QByteArrayView behindKeyword) {
  if (const auto preview = epsiPreview(behindKeyword)) insertPreview(dictionary, *preview);
}

void insertTiffPreview(HeaderDictionary& dictionary, QByteArrayView tiff, const TiffDecoder& decodeTiff) {
  if (!decodeTiff) return;
  const auto preview = tiff.isEmpty() ? std::nullopt : decodeTiff(tiff.toByteArray());
  if (preview)
    insertPreview(dictionary, *preview);
  else
    qCInfo(metadataLog, "EPS preview image is nil in Corvane");
}

void insertEncoding(HeaderDictionary& dictionary, qint64 number) {
  dictionary.insert(header::Encoding, encodingName(number));
  dictionary.insert(header::EncodingNumber, number);
}

void insertComments(HeaderDictionary& dictionary, const DscComments& comments) {
  dictionary.insert(header::Title, comments.value(DscKeyword::Title));
  dictionary.insert(header::Creator, comments.value(DscKeyword::Creator));
  dictionary.insert(header::CreationDate, comments.value(DscKeyword::CreationDate));
  dictionary.insert(header::For, comments.value(DscKeyword::For));
  dictionary.insert(header::Copyright, comments.value(DscKeyword::Copyright));
  dictionary.insert(header::Description, comments.value(DscKeyword::Routing));
}

void insertNoText(HeaderDictionary& dictionary, qint64 number) {
  insertEncoding(dictionary, number);
  qCInfo(metadataLog, "Corvane can't get EPSHeader because string encoding is bad.");
}

/// A preview is digits in comment lines, which every encoding of a program leaves readable.
void insertNoText(HeaderDictionary& dictionary, qint64 number, QByteArrayView source) {
  insertNoText(dictionary, number);
  const QByteArrayView keyword("%%BeginPreview:");
  if (const qsizetype at = source.indexOf(keyword); at >= 0)
    insertInterchangePreview(dictionary, source.sliced(at + keyword.size()));
}

void readPlain(HeaderDictionary& dictionary, QByteArrayView source, const Start& start) {
  const FoundText text = plainText(source, start);
  if (!text.decoded) return insertNoText(dictionary, text.encodingNumber, source);
  std::optional<DscComments> comments(std::in_place, text.bytes, text.encodingNumber);
  const qint64 declared = declaredEncoding(*comments, text.encodingNumber);
  if (declared != text.encodingNumber) {
    // The whole source again, its byte-order mark included.
    if (!isDecodable(source, declared)) return insertNoText(dictionary, declared, source);
    comments.emplace(source, declared);
  }
  insertEncoding(dictionary, declared);
  insertComments(dictionary, *comments);
  if (comments->contains(DscKeyword::BeginPreview))
    insertInterchangePreview(dictionary, comments->textBehind(DscKeyword::BeginPreview));
}

void readBinary(HeaderDictionary& dictionary, QByteArrayView source, const DosEpsHeader& header,
                const Start& start, const TiffDecoder& decodeTiff) {
  insertTiffPreview(dictionary, tiffSection(source, header, start.offset), decodeTiff);
  const FoundText text = binaryText(source, header, start);
  if (!text.decoded) return insertNoText(dictionary, text.encodingNumber);
  insertEncoding(dictionary, text.encodingNumber);
  insertComments(dictionary, DscComments(text.bytes, text.encodingNumber));
}

}  // namespace

HeaderDictionary epsHeader(const QByteArray& source, const TiffDecoder& decodeTiff) {
  HeaderDictionary dictionary;
  if (source.isEmpty()) return dictionary;
  const Start start = startOf(source);
  if (const auto header = dosEpsHeader(source, start.offset))
    readBinary(dictionary, source, *header, start, decodeTiff);
  else
    readPlain(dictionary, source, start);
  return dictionary;
}

std::optional<HeaderDictionary> epsHeaderReadAs(const QString& encodingName, const QByteArray& source,
                                                const HeaderDictionary& found) {
  const auto text = decodeNamedText(postScriptOf(source), encodingName.toLatin1().constData());
  if (!text) return std::nullopt;
  const QByteArray utf8 = text->toUtf8();
  HeaderDictionary dictionary = found;
  dictionary.insert(header::Encoding, encodingName);
  insertComments(dictionary, DscComments(utf8, encoding::Utf8));
  return dictionary;
}

}  // namespace norvex
