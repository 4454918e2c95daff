#include "worker/eps_output/harmless_fonts.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "worker/eps_output/cff_index.h"
#include "worker/eps_output/inner_glyphs.h"
#include "worker/eps_output/postscript_tokens.h"
#include "worker/eps_output/type1_font.h"
#include "worker/pdf/pdf_dictionaries.h"

namespace norvex::engine {
namespace {

QByteArray bytesOf(QPDFObjectHandle stream) {
  try {
    const std::shared_ptr<Buffer> data = stream.getStreamData(qpdf_dl_generalized);
    return QByteArray(reinterpret_cast<const char*>(data->getBuffer()), qsizetype(data->getSize()));
  } catch (const std::exception&) {
    return {};
  }
}

QPDFObjectHandle plain(QPDFObjectHandle name) {
  const std::string& before = name.getName();
  const QByteArray after = plainName(QByteArray::fromStdString(before.substr(1)));
  return after.toStdString() == before.substr(1) ? name
                                                 : QPDFObjectHandle::newName('/' + after.toStdString());
}

void makeNamesPlain(QPDFObjectHandle dictionary) {
  for (const char* key : {"/FontName", "/BaseFont"})
    if (QPDFObjectHandle name = dictionary.getKey(key); name.isName())
      dictionary.replaceKey(key, plain(name));
  if (QPDFObjectHandle glyphs = dictionary.getKey("/Differences"); glyphs.isArray())
    for (int i = 0; i < glyphs.getArrayNItems(); ++i)
      if (QPDFObjectHandle glyph = glyphs.getArrayItem(i); glyph.isName())
        glyphs.setArrayItem(i, plain(glyph));
  if (QPDFObjectHandle drawings = dictionary.getKey("/CharProcs"); drawings.isDictionary())
    for (const std::string& key : drawings.getKeys()) {
      const std::string after = plain(QPDFObjectHandle::newName(key)).getName();
      if (after == key) continue;
      drawings.replaceKey(after, drawings.getKey(key));
      drawings.removeKey(key);
    }
}

bool isCff(const QByteArray& file) {
  return file.startsWith(QByteArrayView("\x01\x00", 2));
}

// The font file `file`, OpenType, with plain texts in the CFF font that it may hold.
std::optional<QByteArray> plainOpenType(const QByteArray& file) {
  ByteReader read(file);
  QByteArray result = file;
  const auto tables = int(read.number(4, 2));
  for (int i = 0; i < tables && read.valid(); ++i) {
    const qsizetype entry = 12 + 16 * i;
    if (file.mid(entry, 4) != "CFF ") continue;
    const auto at = qsizetype(read.number(entry + 8, 4));
    const auto length = qsizetype(read.number(entry + 12, 4));
    const auto cff = withPlainTexts(file.mid(at, length));
    if (!cff || !read.valid() || at + length > file.size()) return {};
    result.replace(at, length, *cff);
  }
  return result;
}

// `name` perhaps with the tag of a subset.
QString leftOutSentence(const QString& name) {
  const QString font = name.mid(name.indexOf(u'+') == 6 ? 7 : 0);
  return font.isEmpty()
             ? QStringLiteral("a font cannot be taken over; another stands in for it")
             : QStringLiteral("the font %1 cannot be taken over; another stands in for it").arg(font);
}

class Cleaner {
 public:
  explicit Cleaner(QPDF& qpdf) : qpdf_(qpdf) {}

  QStringList run() {
    visitDictionaries(qpdf_, makeNamesPlain);
    warnings_ = boundInnerGlyphs(qpdf_);
    visitDictionaries(qpdf_, [this](QPDFObjectHandle dictionary) {
      for (const char* key : {"/FontFile", "/FontFile2", "/FontFile3"})
        if (QPDFObjectHandle file = dictionary.getKey(key); file.isStream()) clean(dictionary, key, file);
    });
    return warnings_;
  }

 private:
  void tell(const QString& sentence) {
    if (!warnings_.contains(sentence)) warnings_ << sentence;
  }

  void clean(QPDFObjectHandle descriptor, const char* key, QPDFObjectHandle file) {
    QPDFObjectHandle name = descriptor.getKey("/FontName");
    const std::pair<QPDFObjGen, std::string> place(file.getObjGen(), name.isName() ? name.getName() : "");
    auto known = made_.find(place);
    if (known == made_.end()) known = made_.emplace(place, cleaned(file, place.second)).first;
    if (known->second.isStream()) {
      descriptor.replaceKey(key, known->second);
    } else {
      descriptor.removeKey(key);
      tell(leftOutSentence(QString::fromStdString(place.second).mid(1)));
    }
  }

  // A stream in the place of `file`, or null. What kind of font it is its bytes tell: the generator goes by
  // them as well.
  QPDFObjectHandle cleaned(QPDFObjectHandle file, const std::string& name) {
    QByteArray bytes = bytesOf(file);
    if (bytes.startsWith("OTTO") || bytes.startsWith("true") ||
        bytes.startsWith(QByteArrayView("\x00\x01\x00\x00", 4)))
      return replaced(file, bytes, plainOpenType(bytes));
    if (!isCff(bytes) && isCff(bytes.mid(1))) bytes.remove(0, 1);  // some put a blank before it
    if (isCff(bytes)) return replaced(file, bytes, withPlainTexts(bytes));
    auto font = readType1Font(bytes);
    if (!font) return QPDFObjectHandle::newNull();
    if (font->name.isEmpty()) font->name = QByteArray::fromStdString(name).mid(1);
    font->name = unusedName(font->name);
    return type1Stream(writeType1Font(*font));
  }

  static QPDFObjectHandle replaced(QPDFObjectHandle file, const QByteArray& before,
                                   const std::optional<QByteArray>& after) {
    if (!after) return QPDFObjectHandle::newNull();
    if (*after != before)
      file.replaceStreamData(after->toStdString(), QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
    return file;
  }

  // Of fonts with the same name the generator writes the first one alone.
  QByteArray unusedName(const QByteArray& name) {
    QByteArray unused = name;
    for (int i = 2; !names_.insert(unused).second; ++i) unused = name + '-' + QByteArray::number(i);
    return unused;
  }

  QPDFObjectHandle type1Stream(const Type1Program& program) {
    QPDFObjectHandle stream =
        QPDFObjectHandle::newStream(&qpdf_, (program.clearText + program.encrypted).toStdString());
    QPDFObjectHandle entries = stream.getDict();
    entries.replaceKey("/Length1", QPDFObjectHandle::newInteger(program.clearText.size()));
    entries.replaceKey("/Length2", QPDFObjectHandle::newInteger(program.encrypted.size()));
    entries.replaceKey("/Length3", QPDFObjectHandle::newInteger(0));
    return stream;
  }

  QPDF& qpdf_;
  std::map<std::pair<QPDFObjGen, std::string>, QPDFObjectHandle> made_;
  std::set<QByteArray> names_;  ///< of Type 1 fonts
  QStringList warnings_;
};

}  // namespace

QStringList makeFontsHarmless(QPDF& qpdf) {
  return Cleaner(qpdf).run();
}

}  // namespace norvex::engine
