#include "worker/svg/inspection/svg_inspection.h"

#include <QRegularExpression>
#include <QSet>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg/inspection/svg_attribute_count.h"
#include "worker/svg/inspection/svg_fonts.h"
#include "worker/svg/inspection/svg_nesting.h"
#include "worker/svg/inspection/svg_stretching.h"
#include "worker/svg/inspection/svg_style_facts.h"
#include "worker/svg/inspection/svg_text_sizes.h"

namespace norvex::engine {
namespace {

constexpr char kSvgNamespace[] = "http://www.w3.org/2000/svg";
// Below libxml2's own bounds (10 million bytes, 256 levels), so that a document near them is told as needing
// more.
constexpr qsizetype kOrdinaryText = 9'000'000;
constexpr int kOrdinaryDepth = 240;

QString text(const xmlChar* utf8) {
  return QString::fromUtf8(reinterpret_cast<const char*>(utf8));
}

struct FreeDocument {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
struct FreeContext {
  void operator()(xmlParserCtxt* context) const {
    // Of libxml2's own making, for entities; it is left behind where the text breaks off.
    xmlFreeDoc(context->myDoc);
    xmlFreeParserCtxt(context);
  }
};

/// The parser's events come here.
class Inspector {
 public:
  Inspector();
  Result<SvgInspection> run(const QByteArray& utf8);

 private:
  struct Attribute {
    QString name, prefix, value;
  };

  static Inspector& self(void* user) { return *static_cast<Inspector*>(user); }
  static xmlSAXHandler handler();
  static void startElement(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int,
                           const xmlChar**, int count, int, const xmlChar** attributes);

  void start(const QString& name, const QString& prefix, const QString& uri,
             const QList<Attribute>& attributes);
  void end();
  void characters(const xmlChar* bytes, int length);
  void lookAt(const QString& name, const Attribute& attribute);
  void noteRadius(const QString& value);
  void followUrls(const QString& value);
  void lookAtStyleSheet(const QString& css);
  void checkFontSize(double size);
  [[nodiscard]] static double ownFontSize(const QList<Attribute>& attributes);
  void lookAtReference(const QString& element, const Attribute& attribute);
  void declare(const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
               xmlChar* content);
  xmlEntity* expand(xmlEntity* entity);
  void stop(ErrorKind kind, const QString& message);
  [[nodiscard]] Error parserError() const;

  std::unique_ptr<xmlDoc, FreeDocument> entities_;  // holds the declared entities, nothing else
  std::unique_ptr<xmlParserCtxt, FreeContext> parser_;
  SvgInspection found_;
  SvgNesting nesting_;
  SvgFonts fonts_;
  SvgStretching stretching_;
  SvgTextSizes sizes_;
  QString styleSheet_;
  std::optional<Error> error_;
  QString* collecting_ = nullptr;  // title, description or style sheet
  int collectingDepth_ = 0;
  int depth_ = 0;
  int elements_ = 0;
  qint64 expanded_ = 0;
  int uses_ = 0;
  qsizetype textRun_ = 0;
};

Inspector::Inspector() : entities_(xmlNewDoc(nullptr)) {
  xmlCreateIntSubset(entities_.get(), reinterpret_cast<const xmlChar*>("svg"), nullptr, nullptr);
}

void Inspector::stop(ErrorKind kind, const QString& message) {
  if (!error_) error_ = Error{kind, message};
  xmlStopParser(parser_.get());
}

void Inspector::declare(const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                        xmlChar* content) {
  const bool internal = type == XML_INTERNAL_GENERAL_ENTITY || type == XML_INTERNAL_PARAMETER_ENTITY;
  // An external entity is declared as an empty one: a reference to it is no error, and nothing is loaded.
  xmlChar nothing[] = "";
  const bool parameter = type == XML_INTERNAL_PARAMETER_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY;
  if (!internal) ++found_.outsideReferences;
  xmlAddDocEntity(entities_.get(), name,
                  parameter ? XML_INTERNAL_PARAMETER_ENTITY : XML_INTERNAL_GENERAL_ENTITY,
                  internal ? publicId : nullptr, internal ? systemId : nullptr, internal ? content : nothing);
}

// Every use of an entity, in content, in attribute values and inside other entities, passes here.
xmlEntity* Inspector::expand(xmlEntity* entity) {
  if (error_) return nullptr;
  if (entity == nullptr || entity->etype == XML_INTERNAL_PREDEFINED_ENTITY) return entity;
  if (++uses_ > limits::maximumEntityUses) {
    stop(ErrorKind::Limit,
         QStringLiteral("the document uses entities more than %1 times").arg(limits::maximumEntityUses));
    return nullptr;
  }
  expanded_ += entity->length;
  if (expanded_ <= limits::maximumEntityExpansion) return entity;
  stop(ErrorKind::Limit, QStringLiteral("the entities of the document expand to more than %1 MiB")
                             .arg(limits::maximumEntityExpansion >> 20));
  return nullptr;
}

void Inspector::startElement(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int,
                             const xmlChar**, int count, int, const xmlChar** attributes) {
  QList<Attribute> list;
  list.reserve(count);
  for (int i = 0; i < count; ++i) {
    const xmlChar** a = attributes + 5 * i;  // name, prefix, namespace, start and end of the value
    const qsizetype length = a[4] - a[3];
    if (length > kOrdinaryText) self(user).found_.needsHugeParser = true;
    list.append({text(a[0]), text(a[1]), QString::fromUtf8(reinterpret_cast<const char*>(a[3]), length)});
  }
  self(user).start(text(name), text(prefix), text(uri), list);
}

void Inspector::start(const QString& name, const QString& prefix, const QString& uri,
                      const QList<Attribute>& attributes) {
  if (error_) return;
  textRun_ = 0;
  if (++depth_ > limits::maximumXmlDepth)
    return stop(
        ErrorKind::Limit,
        QStringLiteral("the elements of the document nest more than %1 deep").arg(limits::maximumXmlDepth));
  if (++elements_ > limits::maximumXmlElements)
    return stop(ErrorKind::Limit,
                QStringLiteral("the document has more than %1 elements").arg(limits::maximumXmlElements));
  if (depth_ > kOrdinaryDepth) found_.needsHugeParser = true;
  // Documents from before the namespace was agreed upon have none; librsvg draws them too.
  const bool svg = uri == QLatin1String(kSvgNamespace) || uri.isEmpty();
  if (depth_ == 1) {
    if (!svg || name != QLatin1String("svg"))
      return stop(ErrorKind::NotParsable, QStringLiteral("the document is XML but not SVG"));
    found_.rootName = prefix.isEmpty() ? name : prefix + ':' + name;
    for (const Attribute& attribute : attributes)
      if (attribute.prefix.isEmpty()) found_.rootAttributes.insert(attribute.name, attribute.value);
  }
  if (depth_ == 2 && svg && collecting_ == nullptr) {
    if (name == QLatin1String("title") && found_.title.isNull()) collecting_ = &found_.title;
    if (name == QLatin1String("desc") && found_.description.isNull()) collecting_ = &found_.description;
    if (collecting_ != nullptr) {
      *collecting_ = QLatin1String("");
      collectingDepth_ = depth_;
    }
  }
  if (svg && name == QLatin1String("style")) {
    found_.hasStyleSheet = true;
    if (collecting_ == nullptr) {
      collecting_ = &styleSheet_;
      collectingDepth_ = depth_;
    }
  }
  fonts_.element(svg ? name : QString());
  if (svg && name == QLatin1String("script")) found_.hasScript = true;
  if (svg && (name.startsWith(QLatin1String("animate")) || name == QLatin1String("set")))
    found_.hasAnimation = true;
  QString id, transform, preserveAspectRatio;
  for (const Attribute& attribute : attributes) {
    if (attribute.name == QLatin1String("id")) id = attribute.value;
    if (attribute.name == QLatin1String("transform")) transform = attribute.value;
    if (attribute.name == QLatin1String("preserveAspectRatio")) preserveAspectRatio = attribute.value;
  }
  nesting_.open(id);
  stretching_.open(svg ? name : QString(), transform, preserveAspectRatio);
  sizes_.open(svg ? name : QString(), transform, ownFontSize(attributes));
  for (const Attribute& attribute : attributes) {
    lookAt(name, attribute);
    // Elements of other namespaces load nothing, but for those that put another file in their place.
    if (svg || name == QLatin1String("include")) lookAtReference(name, attribute);
    if (svg && attribute.prefix.isEmpty()) fonts_.attribute(attribute.name, attribute.value);
  }
}

void Inspector::lookAt(const QString& name, const Attribute& attribute) {
  const QString& value = attribute.value;
  const auto isUsed = [&](QLatin1String property) {
    if (attribute.name == property) return value.trimmed() != QLatin1String("none");
    return attribute.name == QLatin1String("style") && value.contains(property + QLatin1String(":")) &&
           !value.contains(property + QLatin1String(":none"));
  };
  if (isUsed(QLatin1String("filter"))) ++found_.filters;
  if (isUsed(QLatin1String("mask"))) ++found_.masks;
  if (name == QLatin1String("feMorphology") && attribute.name == QLatin1String("radius")) noteRadius(value);
  static const QRegularExpression layer(
      "(?:^|[;\\s/])(?:opacity|filter|mask|mix-blend-mode|isolation)\\s*(?::|/\\*)");
  static const QSet<QString> layers{"opacity", "filter", "mask", "mix-blend-mode", "isolation"};
  if (layers.contains(attribute.name) || (attribute.name == QLatin1String("style") && value.contains(layer)))
    found_.hasLayers = true;
  // librsvg clips a layer of its own in units of what is clipped.
  if (attribute.name == QLatin1String("clipPathUnits") && value == QLatin1String("objectBoundingBox"))
    found_.hasLayers = true;
  if (attribute.name == QLatin1String("style") || value.contains(QLatin1String("url("))) {
    const SvgStyleFacts style = svgStyleFacts(value);
    found_.outsideReferences += style.outsideReferences;
    checkFontSize(style.largestFont);
    followUrls(value);
  }
  if (attribute.name == QLatin1String("font-size")) checkFontSize(largestNumber(value));
  if (name == QLatin1String("feConvolveMatrix") && attribute.name == QLatin1String("order") &&
      matrixSize(value) > limits::maximumFilterMatrix)
    stop(ErrorKind::Limit, QStringLiteral("the document has a filter with a matrix of more than %1 numbers")
                               .arg(limits::maximumFilterMatrix));
  if (attribute.name == QLatin1String("href") && value.trimmed().startsWith('#'))
    nesting_.refer(value.trimmed().mid(1));
}

/// One number, or one for each direction.
void Inspector::noteRadius(const QString& value) {
  for (const QString& number : QString(value).replace(',', ' ').simplified().split(' '))
    found_.morphologyRadius = std::max(found_.morphologyRadius, number.toDouble());
}

void Inspector::followUrls(const QString& value) {
  static const QRegularExpression url("url\\(\\s*['\"]?#([^)'\"]*)");
  for (auto match = url.globalMatch(value); match.hasNext();)
    nesting_.refer(match.next().captured(1).trimmed());
}

void Inspector::lookAtStyleSheet(const QString& css) {
  fonts_.styleSheet(css);
  const SvgStyleFacts style = svgStyleFacts(css);
  found_.outsideReferences += style.outsideReferences;
  checkFontSize(style.largestFont);
  sizes_.styleSheet(style.largestFont);
  if (style.namesSize) found_.sizesByStyleSheet = true;
  if (style.deepestBrackets > limits::maximumSelectorDepth)
    stop(ErrorKind::Limit,
         QStringLiteral("the selectors of the document's style sheets nest more than %1 deep")
             .arg(limits::maximumSelectorDepth));
}

void Inspector::checkFontSize(double size) {
  if (size > limits::maximumSvgFont)
    stop(ErrorKind::Limit, QStringLiteral("the document has text of more than %1 units in size")
                               .arg(limits::maximumSvgFont, 0, 'f', 0));
}

double Inspector::ownFontSize(const QList<Attribute>& attributes) {
  double size = 0;
  for (const Attribute& attribute : attributes) {
    if (attribute.name == QLatin1String("font-size")) size = std::max(size, largestNumber(attribute.value));
    if (attribute.name == QLatin1String("style") && attribute.value.contains(QLatin1String("font")))
      size = std::max(size, svgStyleFacts(attribute.value).largestFont);
  }
  return size;
}

void Inspector::lookAtReference(const QString& element, const Attribute& attribute) {
  const QString value = attribute.name == QLatin1String("href") ? attribute.value.trimmed() : QString();
  if (element == QLatin1String("a") || value.isEmpty() || value.startsWith('#')) return;
  if (!value.startsWith(QLatin1String("data:"), Qt::CaseInsensitive)) {
    ++found_.outsideReferences;
  } else if (const QString type = value.left(64).toLower(); element == QLatin1String("include") ||
                                                            type.contains(QLatin1String("svg")) ||
                                                            type.contains(QLatin1String("xml"))) {
    found_.hasNestedDocument = true;
  }
}

void Inspector::end() {
  textRun_ = 0;
  if (collecting_ != nullptr && depth_ == collectingDepth_) {
    if (collecting_ == &styleSheet_) lookAtStyleSheet(std::exchange(styleSheet_, QString()));
    collecting_ = nullptr;
  }
  --depth_;
  nesting_.close();
  stretching_.close();
  sizes_.close();
}

void Inspector::characters(const xmlChar* bytes, int length) {
  if (error_) return;
  textRun_ += length;
  if (textRun_ > kOrdinaryText) found_.needsHugeParser = true;
  if (collecting_ != nullptr)
    collecting_->append(QString::fromUtf8(reinterpret_cast<const char*>(bytes), length));
}

xmlSAXHandler Inspector::handler() {
  xmlSAXHandler sax{};
  sax.initialized = XML_SAX2_MAGIC;
  sax.startElementNs = startElement;
  sax.endElementNs = [](void* user, const xmlChar*, const xmlChar*, const xmlChar*) { self(user).end(); };
  sax.characters = [](void* user, const xmlChar* bytes, int length) { self(user).characters(bytes, length); };
  sax.ignorableWhitespace = sax.characters;
  sax.cdataBlock = sax.characters;
  sax.entityDecl = [](void* user, const xmlChar* name, int type, const xmlChar* publicId,
                      const xmlChar* systemId,
                      xmlChar* content) { self(user).declare(name, type, publicId, systemId, content); };
  sax.getEntity = [](void* user, const xmlChar* name) {
    return self(user).expand(xmlGetDocEntity(self(user).entities_.get(), name));
  };
  sax.getParameterEntity = [](void* user, const xmlChar* name) {
    return self(user).expand(xmlGetParameterEntity(self(user).entities_.get(), name));
  };
  sax.processingInstruction = [](void* user, const xmlChar* target, const xmlChar*) {
    if (std::strcmp(reinterpret_cast<const char*>(target), "xml-stylesheet") == 0)
      self(user).found_.hasStyleSheet = true;
  };
  sax.serror = [](void*, xmlError*) {};  // told from the context's last error, not on standard error
  return sax;
}

Error Inspector::parserError() const {
  const xmlError* error = xmlCtxtGetLastError(parser_.get());
  if (error == nullptr)
    return {ErrorKind::NotParsable, QStringLiteral("the document is not well-formed XML")};
  if (error->code == XML_ERR_NO_MEMORY)
    return {ErrorKind::Limit, QStringLiteral("there is not enough memory to read the document")};
  if (error->code == XML_ERR_ENTITY_LOOP)
    return {ErrorKind::Limit,
            QStringLiteral("the entities of the document refer to one another without end")};
  if (error->code == XML_ERR_DOCUMENT_EMPTY)
    return {ErrorKind::NotParsable, QStringLiteral("the document is not XML")};
  const QString reason = QString::fromUtf8(error->message).simplified().left(160);
  return {ErrorKind::NotParsable,
          QStringLiteral("the document is not well-formed XML (line %1: %2)").arg(error->line).arg(reason)};
}

Result<SvgInspection> Inspector::run(const QByteArray& utf8) {
  if (utf8.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("the document is empty")};
  if (mostAttributes(utf8, limits::maximumXmlAttributes + 1) > limits::maximumXmlAttributes)
    return Error{ErrorKind::Limit, QStringLiteral("an element of the document has more than %1 attributes")
                                       .arg(limits::maximumXmlAttributes)};
  parser_.reset(xmlCreateMemoryParserCtxt(utf8.constData(), int(utf8.size())));
  if (!parser_)
    return Error{ErrorKind::Limit, QStringLiteral("there is not enough memory to read the document")};
  *parser_->sax = handler();
  parser_->userData = this;
  // HUGE lifts libxml2's fixed bounds; ours are checked above instead. Neither the network, nor the external
  // DTD subset, nor any external entity is ever loaded; and the text is UTF-8 whatever its declaration says.
  xmlCtxtUseOptions(parser_.get(), XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_IGNORE_ENC);
  parser_->replaceEntities =
      1;  // in attribute values too; the option of that name would load external entities
  xmlParseDocument(parser_.get());
  if (error_) return *error_;
  if (parser_->wellFormed == 0) return parserError();
  if (found_.rootName.isEmpty())
    return Error{ErrorKind::NotParsable, QStringLiteral("the document is not XML")};
  if (nesting_.deepest() > limits::maximumDrawingDepth)
    return Error{ErrorKind::Limit, QStringLiteral("the references of the document nest more than %1 deep")
                                       .arg(limits::maximumDrawingDepth)};
  found_.fonts = fonts_.families();
  found_.largestFont = sizes_.largest();
  found_.stretchedText = stretching_.reachesText();
  found_.fontLists = fonts_.lists();
  found_.hasLayers = found_.hasLayers || found_.hasStyleSheet;
  if (!found_.title.isNull()) found_.title = found_.title.simplified();
  if (!found_.description.isNull()) found_.description = found_.description.trimmed();
  return std::move(found_);
}

}  // namespace

Result<SvgInspection> inspectSvg(const QByteArray& utf8) {
  return Inspector().run(utf8);
}

}  // namespace norvex::engine
