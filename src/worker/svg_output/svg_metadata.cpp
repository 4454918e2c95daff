#include "worker/svg_output/svg_metadata.h"

#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

QByteArray element(const char* name, const QString& text) {
  if (text.trimmed().isEmpty()) return {};
  return QByteArray("<") + name + '>' + xmlText(text) + "</" + name + ">\n";
}

}  // namespace

QByteArray svgMetadata(const PdfAttributes& attributes) {
  const auto text = [&](const char* key) { return attributes.texts.value(QString::fromLatin1(key)); };
  const QByteArray told = element("dc:creator", text("Author")) + element("dc:date", text("CreationDate")) +
                          element("dc:rights", text("Copyright")) +
                          element("xmp:CreatorTool", text("Creator"));
  QByteArray head = element("title", text("Title")) + element("desc", text("Subject"));
  if (told.isEmpty()) return head;
  return head +
         "<metadata><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\""
         " xmlns:dc=\"http://purl.org/dc/elements/1.1/\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">"
         "<rdf:Description rdf:about=\"\">\n" +
         told + "</rdf:Description></rdf:RDF></metadata>\n";
}

}  // namespace norvex::engine
