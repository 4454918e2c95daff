#include "types/uniform_type.h"

#include <QHash>
#include <QReadWriteLock>
#include <QSet>

#include <vector>

namespace norvex {
namespace {

/// What is known about a declared type. The first extension and the first MIME type are the preferred ones.
struct Declaration {
  QString identifier;
  QStringList parents;
  QStringList extensions;
  QStringList mimeTypes;
};

const char kData[] = "public.data";
const char kImage[] = "public.image";

std::vector<Declaration> builtInTypes() {
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
      {NorvexEPSType,
       {PostScriptType, kImage},
       {"eps", "epsf"},
       {"image/x-eps", "image/x-e-postscript", "application/eps", "application/x-eps", "image/eps"}},
      // Not a kind of EPS: saving as EPSI and saving as EPS are two things, and the type chooses between
      // them.
      {NorvexEPSIType, {PostScriptType, kImage}, {"epsi", "epi"}, {}},
      {NorvexIllustratorType,
       {kImage},
       {"ai"},
       {"application/illustrator", "application/vnd.adobe.illustrator", "image/x-adobe-illustrator"}},
      {"com.adobe.pdf",
       {kData, "public.composite-content"},
       {"pdf"},
       {"application/pdf", "application/x-pdf", "image/pdf", "application/acrobat", "application/nappdf"}},
      {"public.svg-image", {kImage, "public.xml"}, {"svg"}, {"image/svg+xml", "image/svg"}},
      {NorvexSVGZType, {"public.svg-image"}, {"svgz"}, {"image/svg+xml-compressed"}},
      {"public.tiff", {kImage}, {"tiff", "tif"}, {"image/tiff"}},
      {"public.png", {kImage}, {"png"}, {"image/png"}},
      {"public.jpeg", {kImage}, {"jpeg", "jpg", "jpe"}, {"image/jpeg", "image/jpg"}},
      {"com.compuserve.gif", {kImage}, {"gif"}, {"image/gif"}},
  };
}

class TypeRegistry {
 public:
  TypeRegistry() {
    for (Declaration& type : builtInTypes()) insert(std::move(type));
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

UTType UTTypePDF() {
  return *UTType::typeWithIdentifier(QStringLiteral("com.adobe.pdf"));
}
UTType UTTypeSVG() {
  return *UTType::typeWithIdentifier(QStringLiteral("public.svg-image"));
}
UTType UTTypeTIFF() {
  return *UTType::typeWithIdentifier(QStringLiteral("public.tiff"));
}
UTType UTTypePNG() {
  return *UTType::typeWithIdentifier(QStringLiteral("public.png"));
}
UTType UTTypeJPEG() {
  return *UTType::typeWithIdentifier(QStringLiteral("public.jpeg"));
}
UTType UTTypeGIF() {
  return *UTType::typeWithIdentifier(QStringLiteral("com.compuserve.gif"));
}
UTType UTTypeData() {
  return *UTType::typeWithIdentifier(QLatin1String(kData));
}

}  // namespace norvex
