#include "worker/pages/pdf_layers.h"

#include <qpdf/QPDFObjGen.hh>

#include <algorithm>
#include <set>
#include <vector>

#include "protocol/limits.h"

namespace norvex::engine {
namespace {

using Groups = std::vector<QPDFObjectHandle>;
using Names = std::set<QPDFObjGen>;

/// The groups of an array, each once; nothing for anything else.
Groups groupsOf(QPDFObjectHandle array) {
  Groups groups;
  if (!array.isArray()) return groups;
  Names seen;
  for (int i = 0; i < std::min(array.getArrayNItems(), limits::maximumLayerEntries); ++i) {
    QPDFObjectHandle group = array.getArrayItem(i);
    if (group.isIndirect() && group.isDictionary() && seen.insert(group.getObjGen()).second)
      groups.push_back(group);
  }
  return groups;
}

Names namesOf(QPDFObjectHandle array) {
  Names names;
  for (QPDFObjectHandle& group : groupsOf(array)) names.insert(group.getObjGen());
  return names;
}

/// The document's groups and its default configuration.
class Configuration {
 public:
  explicit Configuration(QPDF& qpdf) : properties_(qpdf.getRoot().getKey("/OCProperties")) {
    if (!properties_.isDictionary()) return;
    all_ = groupsOf(properties_.getKey("/OCGs"));
    for (QPDFObjectHandle& group : all_) known_.insert(group.getObjGen());
    standard_ = properties_.getKey("/D");
    if (!standard_.isDictionary()) standard_ = QPDFObjectHandle::newDictionary();
    readHidden();
    readOffered();
  }

  [[nodiscard]] const Groups& offered() const { return offered_; }
  [[nodiscard]] bool isHidden(QPDFObjectHandle group) const { return hidden_.count(group.getObjGen()) > 0; }

  /// `wanted`: of offered(), in their order. A layer that is shown already was not meant: of two that exclude
  /// each other, the one that comes up stays.
  void choose(const QList<PictureLayer>& wanted) {
    const Names before = hidden_;
    // What is to be hidden first: what shows up then may hide its rivals.
    for (const bool shown : {false, true})
      for (qsizetype i = 0; i < wanted.size(); ++i) {
        QPDFObjectHandle group = offered_[size_t(i)];
        const bool wasShown = before.count(group.getObjGen()) == 0;
        if (wanted[i].shown == shown && wasShown != shown) show(group, shown);
      }
  }

  void show(QPDFObjectHandle group, bool shown) {
    const Names locked = namesOf(standard_.getKey("/Locked"));
    const QPDFObjGen name = group.getObjGen();
    if (locked.count(name) > 0 || isHidden(group) != shown) return;
    if (!shown) {
      hidden_.insert(name);
      return;
    }
    hidden_.erase(name);
    for (const QPDFObjGen& other : rivalsOf(name))
      if (locked.count(other) == 0) hidden_.insert(other);
  }

  void write() {
    std::vector<QPDFObjectHandle> off;
    for (QPDFObjectHandle& group : all_)
      if (isHidden(group)) off.push_back(group);
    standard_.replaceKey("/BaseState", QPDFObjectHandle::newName("/ON"));
    standard_.removeKey("/ON");
    standard_.removeKey("/AS");  // what chooses by itself for the screen or for paper chooses otherwise
    standard_.replaceKey("/OFF", QPDFObjectHandle::newArray(off));
    properties_.replaceKey("/D", standard_);
  }

 private:
  void readHidden() {
    QPDFObjectHandle base = standard_.getKey("/BaseState");
    if (base.isNameAndEquals("/OFF")) hidden_ = known_;
    for (const QPDFObjGen& name : namesOf(standard_.getKey("/ON"))) hidden_.erase(name);
    for (const QPDFObjGen& name : namesOf(standard_.getKey("/OFF")))
      if (known_.count(name) > 0) hidden_.insert(name);
  }

  void readOffered() {
    Names seen;
    collect(standard_.getKey("/Order"), 0, seen);
    if (offered_.empty()) offered_ = all_;
    const size_t most = size_t(limits::maximumLayers);
    if (offered_.size() > most) offered_.resize(most);
  }

  void collect(QPDFObjectHandle order, int depth, Names& seen) {
    if (!order.isArray() || depth > limits::maximumResourceDepth) return;
    for (int i = 0; i < std::min(order.getArrayNItems(), limits::maximumLayerEntries); ++i) {
      if (offered_.size() >= size_t(limits::maximumLayers)) return;
      QPDFObjectHandle item = order.getArrayItem(i);
      if (item.isArray()) {
        // An array that leads back to itself ends with the depth; one that is met often, here.
        if (!item.isIndirect() || seen.insert(item.getObjGen()).second) collect(item, depth + 1, seen);
      } else if (item.isIndirect() && known_.count(item.getObjGen()) > 0 &&
                 seen.insert(item.getObjGen()).second) {
        offered_.push_back(item);
      }
    }
  }

  [[nodiscard]] Names rivalsOf(const QPDFObjGen& name) {
    Names rivals;
    QPDFObjectHandle sets = standard_.getKey("/RBGroups");
    if (!sets.isArray()) return rivals;
    for (int i = 0; i < std::min(sets.getArrayNItems(), int(limits::maximumLayers)); ++i) {
      const Names set = namesOf(sets.getArrayItem(i));
      if (set.count(name) > 0) rivals.insert(set.begin(), set.end());
    }
    rivals.erase(name);
    return rivals;
  }

  QPDFObjectHandle properties_, standard_;
  Groups all_, offered_;
  Names known_, hidden_;
};

}  // namespace

QList<PictureLayer> pdfLayers(QPDF& qpdf) {
  const Configuration configuration(qpdf);
  QList<PictureLayer> layers;
  for (QPDFObjectHandle group : configuration.offered()) {
    QPDFObjectHandle title = group.getKey("/Name");
    QString name = title.isString() ? QString::fromStdString(title.getUTF8Value()) : QString();
    name = name.left(limits::maximumNameLength).simplified();
    layers.append({name, !configuration.isHidden(group)});
  }
  return layers;
}

bool switchLayers(QPDF& qpdf, const QList<PictureLayer>& wanted) {
  const QList<PictureLayer> now = pdfLayers(qpdf);
  if (wanted.isEmpty() || now.isEmpty() || wanted.size() % now.size() != 0) return false;
  for (qsizetype i = 0; i < wanted.size(); ++i)
    if (wanted[i].name != now[i % now.size()].name) return false;
  Configuration configuration(qpdf);
  for (qsizetype at = 0; at < wanted.size(); at += now.size())
    configuration.choose(wanted.mid(at, now.size()));
  configuration.write();
  return true;
}

}  // namespace norvex::engine
