#include "worker/svg/inspection/svg_entities.h"

#include "protocol/limits.h"

namespace norvex::engine {

SvgEntities::SvgEntities() : declared_(xmlNewDoc(nullptr)) {
  xmlCreateIntSubset(declared_.get(), reinterpret_cast<const xmlChar*>("svg"), nullptr, nullptr);
}

void SvgEntities::declare(const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                          xmlChar* content) {
  const bool internal = type == XML_INTERNAL_GENERAL_ENTITY || type == XML_INTERNAL_PARAMETER_ENTITY;
  // An external entity is declared as an empty one: a reference to it is no error, and nothing is loaded.
  xmlChar nothing[] = "";
  const bool parameter = type == XML_INTERNAL_PARAMETER_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY;
  if (!internal) ++outside_;
  xmlAddDocEntity(declared_.get(), name,
                  parameter ? XML_INTERNAL_PARAMETER_ENTITY : XML_INTERNAL_GENERAL_ENTITY,
                  internal ? publicId : nullptr, internal ? systemId : nullptr, internal ? content : nothing);
}

xmlEntity* SvgEntities::use(const xmlChar* name) {
  return expand(xmlGetDocEntity(declared_.get(), name));
}

xmlEntity* SvgEntities::useParameter(const xmlChar* name) {
  return expand(xmlGetParameterEntity(declared_.get(), name));
}

// Every use of an entity, in content, in attribute values and inside other entities, passes here.
xmlEntity* SvgEntities::expand(xmlEntity* entity) {
  if (error_) return nullptr;
  if (entity == nullptr || entity->etype == XML_INTERNAL_PREDEFINED_ENTITY) return entity;
  if (++uses_ > limits::maximumEntityUses) {
    error_ =
        Error{ErrorKind::Limit,
              QStringLiteral("the document uses entities more than %1 times").arg(limits::maximumEntityUses)};
    return nullptr;
  }
  expanded_ += entity->length;
  if (expanded_ <= limits::maximumEntityExpansion) return entity;
  error_ = Error{ErrorKind::Limit, QStringLiteral("the entities of the document expand to more than %1 MiB")
                                       .arg(limits::maximumEntityExpansion >> 20)};
  return nullptr;
}

}  // namespace norvex::engine
