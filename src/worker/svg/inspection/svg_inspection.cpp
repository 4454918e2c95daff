#include "worker/svg/inspection/svg_inspection.h"

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
#include "worker/svg/inspection/svg_attributes.h"
#include "worker/svg/inspection/svg_entities.h"
#include "worker/svg/inspection/svg_font_families.h"
#include "worker/svg/inspection/svg_nesting.h"
#include "worker/svg/inspection/svg_stretching.h"
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
  Result<SvgInspection> run(const QByteArray& utf8);

 private:
  static Inspector& self(void* user) { return *static_cast<Inspector*>(user); }
  static xmlSAXHandler handler();
  static void startElement(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int,
                           const xmlChar**, int count, int, const xmlChar** attributes);

  void start(const QString& name, const QString& prefix, const QString& uri,
             const QList<SvgAttribute>& attributes);
  void end();
  void characters(const xmlChar* bytes, int length);
  void noteRoot(const QString& name, const QString& prefix, const QList<SvgAttribute>& attributes);
  void collect(const QString& svgName);
  void noteElement(const QString& svgName);
  void noteAttributes(const QString& name, bool svg, const QList<SvgAttribute>& attributes);
  void lookAtStyleSheet(const QString& css);
  xmlEntity* expanded(xmlEntity* entity);
  void stop(const Error& error);
  [[nodiscard]] Error parserError() const;

  SvgEntities entities_;
  std::unique_ptr<xmlParserCtxt, FreeContext> parser_;
  SvgInspection found_;
  SvgNesting nesting_;
  SvgAttributes attributes_{found_, nesting_};
  SvgFontFamilies fonts_;
  SvgStretching stretching_;
  SvgTextSizes sizes_;
  QString styleSheet_;
  std::optional<Error> error_;
  QString* collecting_ = nullptr;  // title, description or style sheet
  int collectingDepth_ = 0;
  int depth_ = 0;
  int elements_ = 0;
  qsizetype textRun_ = 0;
};

void Inspector::stop(const Error& error) {
  if (!error_) error_ = error;
  xmlStopParser(parser_.get());
}

xmlEntity* Inspector::expanded(xmlEntity* entity) {
  if (const std::optional<Error>& error = entities_.error()) stop(*error);
  return error_ ? nullptr : entity;
}

void Inspector::startElement(void* user, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int,
                             const xmlChar**, int count, int, const xmlChar** attributes) {
  QList<SvgAttribute> list;
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
                      const QList<SvgAttribute>& attributes) {
  if (error_) return;
  textRun_ = 0;
  if (++depth_ > limits::maximumXmlDepth)
    return stop(
        {ErrorKind::Limit,
         QStringLiteral("the elements of the document nest more than %1 deep").arg(limits::maximumXmlDepth)});
  if (++elements_ > limits::maximumXmlElements)
    return stop({ErrorKind::Limit,
                 QStringLiteral("the document has more than %1 elements").arg(limits::maximumXmlElements)});
  if (depth_ > kOrdinaryDepth) found_.needsHugeParser = true;
  // Documents from before the namespace was agreed upon have none; librsvg draws them too.
  const bool svg = uri == QLatin1String(kSvgNamespace) || uri.isEmpty();
  if (depth_ == 1) {
    if (!svg || name != QLatin1String("svg"))
      return stop({ErrorKind::NotParsable, QStringLiteral("the document is XML but not SVG")});
    noteRoot(name, prefix, attributes);
  }
  noteElement(svg ? name : QString());
  noteAttributes(name, svg, attributes);
}

void Inspector::noteRoot(const QString& name, const QString& prefix, const QList<SvgAttribute>& attributes) {
  found_.rootName = prefix.isEmpty() ? name : prefix + ':' + name;
  for (const SvgAttribute& attribute : attributes)
    if (attribute.prefix.isEmpty()) found_.rootAttributes.insert(attribute.name, attribute.value);
}

/// Texts that are kept; one at a time. `svgName`: empty for an element that is not SVG's.
void Inspector::collect(const QString& svgName) {
  if (collecting_ != nullptr) return;
  if (svgName == QLatin1String("style")) collecting_ = &styleSheet_;
  if (depth_ == 2 && svgName == QLatin1String("title") && found_.title.isNull()) collecting_ = &found_.title;
  if (depth_ == 2 && svgName == QLatin1String("desc") && found_.description.isNull())
    collecting_ = &found_.description;
  if (collecting_ == nullptr) return;
  *collecting_ = QLatin1String("");
  collectingDepth_ = depth_;
}

void Inspector::noteElement(const QString& svgName) {
  collect(svgName);
  fonts_.element(svgName);
  if (svgName == QLatin1String("style")) found_.hasStyleSheet = true;
  if (svgName == QLatin1String("script")) found_.hasScript = true;
  if (svgName.startsWith(QLatin1String("animate")) || svgName == QLatin1String("set"))
    found_.hasAnimation = true;
}

void Inspector::noteAttributes(const QString& name, bool svg, const QList<SvgAttribute>& attributes) {
  QString id, transform, preserveAspectRatio;
  for (const SvgAttribute& attribute : attributes) {
    if (attribute.name == QLatin1String("id")) id = attribute.value;
    if (attribute.name == QLatin1String("transform")) transform = attribute.value;
    if (attribute.name == QLatin1String("preserveAspectRatio")) preserveAspectRatio = attribute.value;
  }
  nesting_.open(id);
  stretching_.open(svg ? name : QString(), transform, preserveAspectRatio);
  double fontSize = 0;
  for (const SvgAttribute& attribute : attributes) {
    if (const Result<double> font = attributes_.lookAt(name, attribute); !font)
      stop(font.error());
    else
      fontSize = std::max(fontSize, *font);
    // Elements of other namespaces load nothing, but for those that put another file in their place.
    if (svg || name == QLatin1String("include")) attributes_.lookAtReference(name, attribute);
    if (svg && attribute.prefix.isEmpty()) fonts_.attribute(attribute.name, attribute.value);
  }
  sizes_.open(svg ? name : QString(), transform, fontSize);
}

void Inspector::lookAtStyleSheet(const QString& css) {
  fonts_.styleSheet(css);
  const Result<double> largestFont = attributes_.lookAtStyleSheet(css);
  if (!largestFont) return stop(largestFont.error());
  sizes_.styleSheet(*largestFont);
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
                      const xmlChar* systemId, xmlChar* content) {
    self(user).entities_.declare(name, type, publicId, systemId, content);
  };
  sax.getEntity = [](void* user, const xmlChar* name) {
    return self(user).expanded(self(user).entities_.use(name));
  };
  sax.getParameterEntity = [](void* user, const xmlChar* name) {
    return self(user).expanded(self(user).entities_.useParameter(name));
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
  found_.outsideReferences += entities_.outsideReferences();
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
