#include "types/uniform_type.h"

#include <QHash>
#include <QReadWriteLock>
#include <QSet>

#include <vector>

#include "base/latin1_text.h"

namespace norvex {
namespace {

/// A declared type. The first extension and the first MIME type are the preferred ones.
struct Declaration {
  QString identifier;
  QStringList parents;
  QStringList extensions;
  QStringList mimeTypes;
};

const char kData[] = "public.data";
const char kImage[] = "public.image";

/// The types above those of the formats.
std::vector<Declaration> kindsOfTypes() {
  return {
      {"public.item", {}, {}, {}},
      {kData, {"public.item"}, {}, {"application/octet-stream"}},
      {"public.content", {}, {}, {}},
      {"public.composite-content", {"public.content"}, {}, {}},
      {"public.text", {kData, "public.content"}, {}, {}},
      {"public.plain-text", {"public.text"}, {"txt"}, {"text/plain"}},
      {"public.xml", {"public.text"}, {"xml"}, {"application/xml", "text/xml"}},
      {"public.archive", {kData}, {}, {}},
      {"org.gnu.gnu-zip-archive", {"public.archive"}, {"gz"}, {"application/gzip", "application/x-gzip"}},
      {kImage, {kData, "public.content"}, {}, {}},
      {PostScriptType,
       {kData, "public.composite-content"},
       {"ps"},
       {"application/postscript", "application/x-postscript"}},
  };
}

QStringList listOf(std::string_view words) {
  QStringList list;
  forEachWord(words, [&](std::string_view word) { list << latin1(word); });
  return list;
}

class TypeRegistry {
 public:
  TypeRegistry() {
    for (Declaration& type : kindsOfTypes()) insert(std::move(type));
    for (const FormatRow& row : formatTable)
      insert({latin1(row.type), listOf(row.parents), listOf(row.extensions) + listOf(row.otherExtensions),
              listOf(row.mimeTypes)});
  }

  void declare(Declaration type) {
    const QWriteLocker locker(&lock_);
    insert(std::move(type));
  }

  Declaration find(const QString& identifier) const {
    const QReadLocker locker(&lock_);
    return types_.value(identifier.toLower());
  }

  QString identifierWith(QStringList Declaration::*names, const QString& name) const {
    const QReadLocker locker(&lock_);
    for (const Declaration& type : types_)
      if ((type.*names).contains(name, Qt::CaseInsensitive)) return type.identifier;
    return {};
  }

  /// Walks up the graph; a type that was declared as its own ancestor is visited once.
  bool conforms(const QString& identifier, const QString& ancestor) const {
    const QReadLocker locker(&lock_);
    QStringList open{identifier.toLower()};
    QSet<QString> seen;
    while (!open.isEmpty()) {
      const QString current = open.takeLast();
      if (current.compare(ancestor, Qt::CaseInsensitive) == 0) return true;
      if (seen.contains(current)) continue;
      seen.insert(current);
      for (const QString& parent : types_.value(current).parents) open.append(parent.toLower());
    }
    return false;
  }

 private:
  void insert(Declaration type) {
    const QString key = type.identifier.toLower();
    if (!types_.contains(key)) types_.insert(key, std::move(type));
  }

  mutable QReadWriteLock lock_;
  QHash<QString, Declaration> types_;
};

TypeRegistry& registry() {
  static TypeRegistry types;
  return types;
}

}  // namespace

std::optional<UTType> UTType::typeWithIdentifier(const QString& identifier) {
  if (identifier.isEmpty()) return {};
  const Declaration known = registry().find(identifier);
  return UTType(known.identifier.isEmpty() ? identifier : known.identifier);
}

std::optional<UTType> UTType::typeWithFilenameExtension(const QString& extension) {
  return typeWithIdentifier(registry().identifierWith(&Declaration::extensions, extension));
}

std::optional<UTType> UTType::typeWithMIMEType(const QString& mimeType) {
  return typeWithIdentifier(registry().identifierWith(&Declaration::mimeTypes, mimeType));
}

UTType UTType::exportedTypeWithIdentifier(const QString& identifier, const QStringList& parents) {
  registry().declare({identifier, parents, {}, {}});
  return UTType(identifier);
}

bool UTType::conformsToType(const UTType& other) const {
  return conformsToType(other.identifier_);
}

bool UTType::conformsToType(const QString& identifier) const {
  return registry().conforms(identifier_, identifier);
}

QString UTType::preferredFilenameExtension() const {
  return registry().find(identifier_).extensions.value(0);
}

QString UTType::preferredMIMEType() const {
  return registry().find(identifier_).mimeTypes.value(0);
}

UTType typeOf(PictureFormat format) {
  return *UTType::typeWithIdentifier(latin1(rowOf(format).type));
}

UTType UTTypePDF() {
  return typeOf(PictureFormat::Pdf);
}
UTType UTTypeSVG() {
  return typeOf(PictureFormat::Svg);
}
UTType UTTypeTIFF() {
  return typeOf(PictureFormat::Tiff);
}
UTType UTTypePNG() {
  return typeOf(PictureFormat::Png);
}
UTType UTTypeJPEG() {
  return typeOf(PictureFormat::Jpeg);
}
UTType UTTypeGIF() {
  return typeOf(PictureFormat::Gif);
}
UTType UTTypeData() {
  return *UTType::typeWithIdentifier(QLatin1String(kData));
}

}  // namespace norvex
