#include "worker/postscript/ink_alternates.h"

#include <GfxState.h>
#include <PDFDoc.h>
#include <Stream.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include "protocol/limits.h"
#include "worker/eps_output/postscript_device.h"
#include "worker/postscript/psd_plates.h"

namespace norvex::engine {
namespace {

class Search {
 public:
  explicit Search(XRef& objects) : objects_(objects) {}

  void run() {
    const int count = std::min(objects_.getNumObjects(), limits::maximumInkObjects);
    for (int i = 1; i < count; ++i) look(objects_.fetch(i, objects_.getEntry(i)->gen), 0);
  }
  /// Those of spaces of one ink count before the others.
  [[nodiscard]] QHash<QString, ProcessInks> found() const {
    QHash<QString, ProcessInks> all = shared_;
    for (auto at = own_.constBegin(); at != own_.constEnd(); ++at) all.insert(at.key(), at.value());
    return all;
  }

 private:
  void look(const Object& object, int depth) {
    if (depth > limits::maximumInkDepth) return;
    if (object.isArray()) {
      if (object.arrayGetLength() >= 4) lookAtSpace(object);
      for (int i = 0; i < object.arrayGetLength(); ++i) look(object.arrayGetNF(i), depth + 1);
    } else if (object.isDict() || object.isStream()) {
      const Dict* const entries = object.isDict() ? object.getDict() : object.getStream()->getDict();
      for (int i = 0; i < entries->getLength(); ++i) look(entries->getValNF(i), depth + 1);
    }
  }

  void lookAtSpace(const Object& array) {
    const Object kind = array.arrayGet(0);
    if ((!kind.isName("Separation") && !kind.isName("DeviceN")) || spaces_++ >= limits::maximumInkSpaces)
      return;
    Object copy = array.copy();
    const std::unique_ptr<GfxColorSpace> space(GfxColorSpace::parse(nullptr, &copy, nullptr, &state_));
    if (!space) return;
    if (space->getMode() == csSeparation) {
      const auto* one = static_cast<const GfxSeparationColorSpace*>(space.get());
      note(own_, one->getName()->toStr(), *space, 0);
    } else if (space->getMode() == csDeviceN) {
      const auto* several = static_cast<const GfxDeviceNColorSpace*>(space.get());
      for (int i = 0; i < several->getNComps(); ++i) note(shared_, several->getColorantName(i), *space, i);
    }
  }

  /// The first space that names an ink decides.
  static void note(QHash<QString, ProcessInks>& inks, const std::string& name, const GfxColorSpace& space,
                   int component) {
    const QString ink = inkName(QByteArray::fromStdString(name));
    if (inks.contains(ink)) return;
    GfxColor colour{};
    for (int i = 0; i < gfxColorMaxComps; ++i) colour.c[i] = i == component ? gfxColorComp1 : 0;
    GfxCMYK shares{};
    space.getCMYK(&colour, &shares);
    const auto byte = [](GfxColorComp share) {
      return quint8(std::lround(std::clamp(colToDbl(share), 0.0, 1.0) * 255));
    };
    inks.insert(ink, {byte(shares.c), byte(shares.m), byte(shares.y), byte(shares.k)});
  }

  XRef& objects_;
  const PDFRectangle page_{0, 0, 1, 1};
  GfxState state_{72, 72, &page_, 0, false};  ///< has the spaces that others are made of
  int spaces_ = 0;
  QHash<QString, ProcessInks> own_, shared_;
};

}  // namespace

QHash<QString, ProcessInks> inkAlternates(const QByteArray& pdf) {
  keepPopplerSettings();
  PDFDoc document(new MemStream(pdf.constData(), 0, pdf.size(), Object(objNull)));
  if (!document.isOk() || !document.getXRef()) return {};
  Search search(*document.getXRef());
  search.run();
  return search.found();
}

bool lacksAlternates(const PageInks& page) {
  return std::any_of(page.inks.begin(), page.inks.end(),
                     [](const Ink& ink) { return ink.isSpot && !ink.alternate; });
}

void addAlternates(PageInks& page, const QHash<QString, ProcessInks>& alternates) {
  for (Ink& ink : page.inks)
    if (const auto at = alternates.constFind(ink.name);
        ink.isSpot && !ink.alternate && at != alternates.constEnd())
      ink.alternate = *at;
}

}  // namespace norvex::engine
