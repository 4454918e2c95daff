// The entities of an XML document: declared by it, expanded within bounds; those in other files are empty.
#pragma once

#include <libxml/tree.h>

#include <memory>
#include <optional>

#include "base/result.h"

namespace norvex::engine {

/// What libxml2's events about entities are answered with. One document, one thread.
class SvgEntities {
 public:
  SvgEntities();

  /// As libxml2's entityDecl tells it.
  void declare(const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
               xmlChar* content);
  /// The entity for one use of it: null where none has that name, and once a limit was passed.
  [[nodiscard]] xmlEntity* use(const xmlChar* name);
  [[nodiscard]] xmlEntity* useParameter(const xmlChar* name);

  /// How many were declared that stand in other files.
  [[nodiscard]] int outsideReferences() const { return outside_; }
  /// Limit: more uses than maximumEntityUses, or more text than maximumEntityExpansion.
  [[nodiscard]] const std::optional<Error>& error() const { return error_; }

 private:
  xmlEntity* expand(xmlEntity* entity);

  struct FreeDocument {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
  };
  std::unique_ptr<xmlDoc, FreeDocument> declared_;  // holds them, nothing else
  std::optional<Error> error_;
  qint64 expanded_ = 0;  ///< bytes
  int uses_ = 0;
  int outside_ = 0;
};

}  // namespace norvex::engine
