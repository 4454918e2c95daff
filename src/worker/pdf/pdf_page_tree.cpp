#include "worker/pdf/pdf_page_tree.h"

#include <QString>

#include <array>
#include <set>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

constexpr std::array<const char*, 4> kInherited{"/MediaBox", "/CropBox", "/Rotate", "/Resources"};

/// A node on the way from the root, with what its pages inherit.
struct Node {
  QPDFObjGen id;
  std::vector<QPDFObjectHandle> kids;
  size_t next = 0;
  std::array<QPDFObjectHandle, kInherited.size()> attributes;
};

bool isPage(QPDFObjectHandle dictionary) {
  return dictionary.isDictionaryOfType("/Page") || !dictionary.hasKey("/Kids");
}

class Walk {
 public:
  explicit Walk(QPDF& qpdf) : qpdf_(qpdf) {}

  Result<PageTree> run() {
    QPDFObjectHandle root = qpdf_.getRoot().getKey("/Pages");
    if (root.isDictionaryOfType("/Page"))
      takePage(root);
    else if (root.isDictionary())
      enter(root);
    while (!way_.empty()) {
      Node& node = way_.back();
      if (node.next == node.kids.size()) {
        onTheWay_.erase(node.id);
        way_.pop_back();
        continue;
      }
      take(node.kids[node.next++]);
      if (tree_.pages.size() > size_t(limits::maximumPages) || nodes_ > limits::maximumPages)
        return Error{ErrorKind::Limit,
                     QStringLiteral("the document has more than %1 pages").arg(limits::maximumPages)};
    }
    return std::move(tree_);
  }

 private:
  void take(QPDFObjectHandle kid) {
    if (!kid.isDictionary())
      tree_.isDamaged = true;
    else if (isPage(kid))
      takePage(kid);
    else
      enter(kid);
  }

  // A page of several parents, or of one several times, is as many pages.
  void takePage(QPDFObjectHandle page) {
    if (!page.isIndirect())
      page = qpdf_.makeIndirectObject(page);
    else if (!seen_.insert(page.getObjGen()).second)
      page = qpdf_.makeIndirectObject(page.shallowCopy());
    if (!way_.empty())
      for (size_t i = 0; i < kInherited.size(); ++i)
        if (const QPDFObjectHandle& value = way_.back().attributes[i];
            value.isInitialized() && !page.hasKey(kInherited[i]))
          page.replaceKey(kInherited[i], value);
    tree_.pages.push_back(page);
  }

  void enter(QPDFObjectHandle dictionary) {
    ++nodes_;
    QPDFObjectHandle kids = dictionary.getKey("/Kids");
    if (!kids.isArray() || (dictionary.isIndirect() && onTheWay_.count(dictionary.getObjGen()))) {
      tree_.isDamaged = true;
      return;
    }
    Node node;
    node.id = dictionary.getObjGen();
    node.kids = kids.getArrayAsVector();
    if (!way_.empty()) node.attributes = way_.back().attributes;
    for (size_t i = 0; i < kInherited.size(); ++i)
      if (QPDFObjectHandle own = dictionary.getKey(kInherited[i]); !own.isNull()) node.attributes[i] = own;
    onTheWay_.insert(node.id);
    way_.push_back(std::move(node));
  }

  QPDF& qpdf_;
  PageTree tree_;
  std::vector<Node> way_;
  std::set<QPDFObjGen> onTheWay_, seen_;
  int nodes_ = 0;
};

}  // namespace

Result<PageTree> pageTree(QPDF& qpdf) {
  return Walk(qpdf).run();
}

}  // namespace norvex::engine
