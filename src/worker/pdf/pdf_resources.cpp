#include "worker/pdf/pdf_resources.h"

#include <QByteArrayView>
#include <QRegularExpression>

#include <algorithm>
#include <set>

#include "protocol/limits.h"
#include "protocol/worker_protocol.h"
#include "worker/pdf/pdf_colour_operators.h"

namespace norvex::engine {
namespace {

QString nameOf(QPDFObjectHandle name) {
  return name.isName() ? QString::fromStdString(name.getName()).mid(1) : QString();
}

/// Families of the 14 fonts and the names that go for them.
bool isStandard(const QString& name) {
  static const QRegularExpression families(
      QStringLiteral("^(Helvetica|Times|Times-Roman|Courier|Symbol|ZapfDingbats|Arial|ArialMT|TimesNewRoman|"
                     "TimesNewRomanPS|TimesNewRomanPSMT|CourierNew|CourierNewPS|CourierNewPSMT)"
                     "([,-](Bold|Italic|Oblique|BoldItalic|BoldOblique|Roman)(MT)?)?$"));
  return families.match(name).hasMatch();
}

bool isEmbedded(QPDFObjectHandle font) {
  if (font.getKey("/Subtype").isNameAndEquals("/Type3")) return true;
  if (QPDFObjectHandle parts = font.getKey("/DescendantFonts"); parts.isArray() && parts.getArrayNItems() > 0)
    font = parts.getArrayItem(0);
  QPDFObjectHandle descriptor =
      font.isDictionary() ? font.getKey("/FontDescriptor") : QPDFObjectHandle::newNull();
  return descriptor.isDictionary() && (descriptor.hasKey("/FontFile") || descriptor.hasKey("/FontFile2") ||
                                       descriptor.hasKey("/FontFile3"));
}

/// One page's walk. Every object is looked at once, however often it is used.
class Walk {
 public:
  explicit Walk(bool readsContents) : readsContents_(readsContents) {}

  PdfResources found;
  QStringList missingFonts;

  void takeContents(QPDFObjectHandle contents);
  void takeResources(QPDFObjectHandle resources, int depth);

 private:
  [[nodiscard]] bool isNew(QPDFObjectHandle object);
  static void add(QStringList& names, const QString& name);
  void takeFont(QPDFObjectHandle font, int depth);
  void takeXObject(QPDFObjectHandle object, int depth);
  void takePattern(QPDFObjectHandle pattern, int depth);
  void takeColorSpace(QPDFObjectHandle space, int depth);
  void takeGraphicsState(QPDFObjectHandle state, int depth);
  template <typename Take>
  static void forEach(QPDFObjectHandle dictionary, Take&& take);

  const bool readsContents_;
  std::set<QPDFObjGen> seen_;
  qint64 scanned_ = 0;
  int objects_ = 0;
};

bool Walk::isNew(QPDFObjectHandle object) {
  if (++objects_ > limits::maximumResources) return false;
  return !object.isIndirect() || seen_.insert(object.getObjGen()).second;
}

void Walk::add(QStringList& names, const QString& name) {
  if (!name.isEmpty() && names.size() < limits::maximumNames && !names.contains(name)) names << name;
}

template <typename Take>
void Walk::forEach(QPDFObjectHandle dictionary, Take&& take) {
  if (!dictionary.isDictionary()) return;
  for (const std::string& key : dictionary.getKeys()) take(dictionary.getKey(key));
}

void Walk::takeContents(QPDFObjectHandle contents) {
  if (!readsContents_) return;
  if (contents.isArray()) {
    for (int i = 0; i < contents.getArrayNItems(); ++i) takeContents(contents.getArrayItem(i));
    return;
  }
  if (!contents.isStream() || scanned_ >= limits::maximumColourScan) return;
  const std::string bytes = unpacked(contents, limits::maximumColourScan - scanned_);
  scanned_ += qint64(bytes.size());
  for (const QString& space : deviceColoursOf(QByteArrayView(bytes.data(), qsizetype(bytes.size()))))
    add(found.colorSpaces, space);
}

void Walk::takeFont(QPDFObjectHandle font, int depth) {
  if (!font.isDictionary() || !isNew(font)) return;
  static const QRegularExpression tag(QStringLiteral("^[A-Z]{6}\\+"));
  QString name = nameOf(font.getKey("/BaseFont"));
  if (name.isEmpty()) name = nameOf(font.getKey("/Name"));
  add(found.fonts, name.remove(tag));
  if (!isEmbedded(font) && !isStandard(name)) add(missingFonts, name);
  if (!font.getKey("/Subtype").isNameAndEquals("/Type3")) return;
  takeResources(font.getKey("/Resources"), depth + 1);
}

void Walk::takeXObject(QPDFObjectHandle object, int depth) {
  if (!object.isStream() || !isNew(object)) return;
  QPDFObjectHandle dictionary = object.getDict();
  if (dictionary.getKey("/Subtype").isNameAndEquals("/Form")) {
    takeContents(object);
    takeResources(dictionary.getKey("/Resources"), depth + 1);
  } else if (QPDFObjectHandle mask = dictionary.getKey("/ImageMask");
             !(mask.isBool() && mask.getBoolValue())) {
    takeColorSpace(dictionary.getKey("/ColorSpace"), depth);
  }
}

void Walk::takePattern(QPDFObjectHandle pattern, int depth) {
  if (!isNew(pattern)) return;
  if (pattern.isStream()) {
    takeContents(pattern);
    return takeResources(pattern.getDict().getKey("/Resources"), depth + 1);
  }
  if (!pattern.isDictionary()) return;
  QPDFObjectHandle shading = pattern.getKey("/Shading");
  if (shading.isStream()) shading = shading.getDict();
  if (shading.isDictionary()) takeColorSpace(shading.getKey("/ColorSpace"), depth);
}

void Walk::takeGraphicsState(QPDFObjectHandle state, int depth) {
  if (!state.isDictionary() || !isNew(state)) return;
  if (QPDFObjectHandle font = state.getKey("/Font"); font.isArray() && font.getArrayNItems() > 0)
    takeFont(font.getArrayItem(0), depth);
  if (QPDFObjectHandle mask = state.getKey("/SMask"); mask.isDictionary())
    takeXObject(mask.getKey("/G"), depth);
}

void Walk::takeColorSpace(QPDFObjectHandle space, int depth) {
  if (depth > limits::maximumResourceDepth || !isNew(space)) return;
  if (space.isName()) {
    if (!space.isNameAndEquals("/Pattern")) add(found.colorSpaces, nameOf(space));
    return;
  }
  if (!space.isArray() || space.getArrayNItems() < 1) return;
  const QString kind = nameOf(space.getArrayItem(0));
  const auto part = [&](int index) {
    return index < space.getArrayNItems() ? space.getArrayItem(index) : QPDFObjectHandle::newNull();
  };
  if (kind == u"Indexed" || kind == u"I" || kind == u"Pattern") return takeColorSpace(part(1), depth + 1);
  if (kind == u"Separation") {
    if (const QString ink = nameOf(part(1)); ink != u"None") add(found.colorSpaces, kind + u' ' + ink);
  } else if (kind == u"DeviceN") {
    QStringList inks;
    for (int i = 0; part(1).isArray() && i < std::min(part(1).getArrayNItems(), 32); ++i)
      inks << nameOf(part(1).getArrayItem(i));
    add(found.colorSpaces, kind + u' ' + inks.join(QStringLiteral(", ")));
  } else if (kind == u"ICCBased") {
    QPDFObjectHandle count =
        part(1).isStream() ? part(1).getDict().getKey("/N") : QPDFObjectHandle::newNull();
    const int n = count.isInteger() ? int(count.getIntValue()) : 0;
    const char* const model = n == 1 ? " Gray" : n == 3 ? " RGB" : n == 4 ? " CMYK" : "";
    add(found.colorSpaces, kind + QLatin1String(model));
  } else {
    add(found.colorSpaces, kind);
  }
}

void Walk::takeResources(QPDFObjectHandle resources, int depth) {
  if (depth > limits::maximumResourceDepth || !resources.isDictionary() || !isNew(resources)) return;
  forEach(resources.getKey("/Font"), [&](QPDFObjectHandle font) { takeFont(font, depth); });
  forEach(resources.getKey("/ColorSpace"), [&](QPDFObjectHandle space) { takeColorSpace(space, depth); });
  forEach(resources.getKey("/Shading"), [&](QPDFObjectHandle shading) {
    if (shading.isStream()) shading = shading.getDict();
    if (shading.isDictionary()) takeColorSpace(shading.getKey("/ColorSpace"), depth);
  });
  forEach(resources.getKey("/Pattern"), [&](QPDFObjectHandle pattern) { takePattern(pattern, depth); });
  forEach(resources.getKey("/XObject"), [&](QPDFObjectHandle object) { takeXObject(object, depth); });
  forEach(resources.getKey("/ExtGState"), [&](QPDFObjectHandle state) { takeGraphicsState(state, depth); });
}

}  // namespace

PdfResources pdfResources(PdfFile& file, int page) {
  Walk walk(true);
  try {
    walk.takeContents(file.page(page).getKey("/Contents"));
    walk.takeResources(file.page(page).getKey("/Resources"), 0);
  } catch (const std::exception&) {
    // Facts found before the damage are true all the same.
  }
  return walk.found;
}

QStringList missingFonts(PdfFile& file, int page) {
  Walk walk(false);
  try {
    walk.takeResources(file.page(page).getKey("/Resources"), 0);
  } catch (const std::exception&) {
    // As above.
  }
  return walk.missingFonts;
}

}  // namespace norvex::engine
