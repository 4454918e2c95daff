// How deep the drawing of a document can nest when its references (<use>, masks, patterns …) are followed.
#pragma once

#include <QHash>
#include <QList>
#include <QString>

namespace norvex::engine {

/// Fed with the elements in document order; asked once at the end. The renderer draws by recursion, so that a
/// chain of references, each into another deep group, uses up its stack although no element of the document
/// is deep.
class SvgNesting {
 public:
  void open(const QString& id);   ///< an element begins; `id` is empty where it has none
  void refer(const QString& id);  ///< the element that began last refers to another one
  void close();

  /// An upper bound of the levels: exact without cycles; on a cycle every reference is followed once on one
  /// way, as the renderer does, and the bound is generous.
  [[nodiscard]] qint64 deepest() const;

 private:
  struct Element {
    int depth = 0;
    int deepestInside = 0;
    int enclosing = -1;  ///< the nearest element around it that has an id; -1: the document
  };
  struct Reference {
    int from = -1;  ///< as Element::enclosing, the referring element itself included
    int depth = 0;
    QString to;
  };

  QList<Element> elements_;  ///< those that have an id
  QHash<QString, int> byId_;
  QList<Reference> references_;
  QList<int> open_;  ///< index in elements_, or -1
  int enclosing_ = -1;
  int depth_ = 0;
  int deepest_ = 0;
};

}  // namespace norvex::engine
