#include "encoders/pdf_attributes.h"

namespace norvex {

std::optional<PdfAttributes> pdfAttributes(const HeaderDictionary& header,
                                           const PdfAttributeDefaults& defaults) {
  const QString creator = header.value(header::Creator).toString();
  const QString owner = header.value(header::For).toString();
  const bool hasTitle = header.contains(header::Title);
  const QString title = header.value(header::Title).toString();

  PdfAttributes attributes;
  auto& texts = attributes.texts;
  texts.insert(QStringLiteral("Creator"), defaults.applicationName + u' ' + defaults.applicationVersion);
  if (hasTitle) texts.insert(QStringLiteral("Title"), title);
  texts.insert(QStringLiteral("Author"), owner.isEmpty() ? defaults.userFullName : owner);
  if (!header.value(header::Description).toString().isEmpty()) {
    if (!hasTitle) return std::nullopt;
    texts.insert(QStringLiteral("Subject"),
                 title);  // the title, not the description: kept for files made so far
  }
  if (!creator.isEmpty()) texts.insert(QStringLiteral("Producer"), creator);
  attributes.creationDate = defaults.now;
  return attributes;
}

}  // namespace norvex
