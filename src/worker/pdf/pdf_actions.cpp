#include "worker/pdf/pdf_actions.h"

#include <set>

namespace norvex::engine {
namespace {

constexpr int kLongestChain = 64;  // of actions, one after the other

const QString kScripts = QStringLiteral("scripts of the document were left out");
const QString kPrograms = QStringLiteral("actions that start programs or open other files were left out");
const QString kOpening = QStringLiteral("what the document does when it is opened was left out");
const QString kFiles = QStringLiteral("references to files beside the document were left out");
const QString kPostScript = QStringLiteral("PostScript programs that the document holds were left out");

void tell(QStringList& sentences, const QString& sentence) {
  if (!sentences.contains(sentence)) sentences << sentence;
}

// Going to another place of the same document and to addresses of the web is what links are for.
void tellOfAction(QPDFObjectHandle action, QStringList& sentences) {
  for (int i = 0; i < kLongestChain && action.isDictionary(); ++i) {
    QPDFObjectHandle kind = action.getKey("/S");
    if (kind.isNameAndEquals("/JavaScript") || kind.isNameAndEquals("/Rendition")) tell(sentences, kScripts);
    for (const char* name : {"/Launch", "/GoToR", "/GoToE", "/ImportData", "/SubmitForm"})
      if (kind.isNameAndEquals(name)) tell(sentences, kPrograms);
    action = action.getKey("/Next");
    if (action.isArray()) {
      for (int n = 1; n < action.getArrayNItems(); ++n)
        if (QPDFObjectHandle other = action.getArrayItem(n); other.isDictionary() && !other.hasKey("/Next"))
          tellOfAction(other, sentences);
      action = action.getArrayNItems() > 0 ? action.getArrayItem(0) : QPDFObjectHandle::newNull();
    }
  }
}

void tellOfTriggers(QPDFObjectHandle triggers, QStringList& sentences) {
  if (!triggers.isDictionary()) return;
  for (const std::string& key : triggers.getKeys()) tellOfAction(triggers.getKey(key), sentences);
}

void tellOfClicks(QPDFObjectHandle page, QStringList& sentences) {
  QPDFObjectHandle annotations = page.getKey("/Annots");
  if (!annotations.isArray()) return;
  for (int i = 0; i < annotations.getArrayNItems(); ++i) {
    QPDFObjectHandle annotation = annotations.getArrayItem(i);
    if (!annotation.isDictionary()) continue;
    tellOfAction(annotation.getKey("/A"), sentences);
    tellOfTriggers(annotation.getKey("/AA"), sentences);
  }
}

enum class Reach { Drawn, Everything };

// All that can be drawn from `start`, or everything that it leads to, actions and all; each object once.
class Cleaner {
 public:
  Cleaner(QStringList& sentences, Reach reach) : sentences_(sentences), reach_(reach) {}

  void clean(QPDFObjectHandle start) {
    open_.push_back(start);
    while (!open_.empty()) {
      QPDFObjectHandle object = open_.back();
      open_.pop_back();
      if (object.isIndirect() && !seen_.insert(object.getObjGen()).second) continue;
      if (object.isStream()) {
        cleanStream(object);
        object = object.getDict();
      }
      if (object.isDictionary()) {
        if (reach_ == Reach::Everything) cleanActions(object);
        for (const std::string& key : object.getKeys())
          if (isFollowed(key)) open_.push_back(object.getKey(key));
      } else if (object.isArray()) {
        for (int i = 0; i < object.getArrayNItems(); ++i) open_.push_back(object.getArrayItem(i));
      }
    }
  }

 private:
  [[nodiscard]] bool isFollowed(const std::string& key) const {
    return reach_ == Reach::Everything || (key != "/Parent" && key != "/P" && key != "/A" && key != "/AA" &&
                                           key != "/Dest" && key != "/Popup");
  }

  // Under these keys actions hang on whatever may have some; elsewhere they mean other things, which stay.
  void cleanActions(QPDFObjectHandle holder) {
    for (const char* key : {"/A", "/OpenAction"}) {
      QStringList told;
      tellOfAction(holder.getKey(key), told);
      if (!told.isEmpty()) leaveOut(holder, key, told);
    }
    QPDFObjectHandle triggers = holder.getKey("/AA");
    QStringList told;
    tellOfTriggers(triggers, told);
    if (!told.isEmpty()) leaveOut(holder, "/AA", told);
    // The scripts of a document by their names.
    if (holder.getKey("/Type").isNameAndEquals("/Catalog") && holder.getKey("/Names").isDictionary() &&
        holder.getKey("/Names").hasKey("/JavaScript"))
      leaveOut(holder.getKey("/Names"), "/JavaScript", {kScripts});
  }

  void leaveOut(QPDFObjectHandle holder, const char* key, const QStringList& told) {
    holder.removeKey(key);
    for (const QString& sentence : told) tell(sentences_, sentence);
  }

  void cleanStream(QPDFObjectHandle stream) {
    QPDFObjectHandle entries = stream.getDict();
    QPDFObjectHandle file = entries.getKey("/F");
    for (const char* key : {"/Ref", "/OPI"})
      if (entries.getKey(key).isDictionary()) {
        entries.removeKey(key);
        tell(sentences_, kFiles);
      }
    if (file.isString() || file.isDictionary()) {
      for (const char* key : {"/F", "/FFilter", "/FDecodeParms"}) entries.removeKey(key);
      tell(sentences_, kFiles);
    }
    const bool program = entries.getKey("/Subtype").isNameAndEquals("/PS");
    if (!program && !entries.getKey("/Subtype2").isNameAndEquals("/PS")) return;
    tell(sentences_, kPostScript);
    for (const char* key : {"/Subtype2", "/PS", "/Level1"}) entries.removeKey(key);
    if (!program) return;
    entries.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    entries.replaceKey("/BBox", QPDFObjectHandle::newFromRectangle({0, 0, 0, 0}));
    stream.replaceStreamData("", QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
  }

  QStringList& sentences_;
  const Reach reach_;
  std::vector<QPDFObjectHandle> open_;
  std::set<QPDFObjGen> seen_;
};

void keep(QPDFObjectHandle from, const char* key,
          std::vector<std::pair<std::string, QPDFObjectHandle>>& kept) {
  if (QPDFObjectHandle value = from.getKey(key); !value.isNull()) kept.emplace_back(key, value);
}

}  // namespace

PageActions takeActions(QPDF& qpdf, QPDFObjectHandle page, DocumentActions actions) {
  PageActions found;
  QPDFObjectHandle root = qpdf.getRoot();
  QPDFObjectHandle names = root.getKey("/Names");
  QPDFObjectHandle scripts = names.isDictionary() ? names.getKey("/JavaScript") : QPDFObjectHandle::newNull();
  if (actions == DocumentActions::Keep) {
    for (const char* key : {"/OpenAction", "/AA"}) keep(root, key, found.ofDocument);
    keep(page, "/AA", found.ofPage);
    if (scripts.isDictionary()) {
      QPDFObjectHandle kept = QPDFObjectHandle::newDictionary();
      kept.replaceKey("/JavaScript", scripts);
      found.ofDocument.emplace_back("/Names", kept);
    }
  } else {
    if (scripts.isDictionary()) tell(found.leftOut, kScripts);
    if (QPDFObjectHandle opening = root.getKey("/OpenAction"); opening.isDictionary()) {
      if (!opening.getKey("/S").isNameAndEquals("/GoTo")) tell(found.leftOut, kOpening);
      tellOfAction(opening, found.leftOut);
    }
    tellOfTriggers(root.getKey("/AA"), found.leftOut);
    tellOfTriggers(page.getKey("/AA"), found.leftOut);
    tellOfClicks(page, found.leftOut);
  }
  Cleaner(found.leftOut, Reach::Drawn).clean(page);
  return found;
}

QStringList leaveOutActions(QPDF& qpdf) {
  QStringList leftOut;
  Cleaner(leftOut, Reach::Everything).clean(qpdf.getRoot());
  return leftOut;
}

void putBack(const PageActions& actions, QPDF& qpdf, QPDFObjectHandle page) {
  QPDFObjectHandle root = qpdf.getRoot();
  for (const auto& [key, value] : actions.ofDocument) root.replaceKey(key, value);
  for (const auto& [key, value] : actions.ofPage) page.replaceKey(key, value);
}

}  // namespace norvex::engine
