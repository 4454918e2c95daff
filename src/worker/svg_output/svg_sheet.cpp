#include "worker/svg_output/svg_sheet.h"

#include <QCryptographicHash>

#include <algorithm>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr qsizetype kLongestJoined = 4096;  // lines that are drawn as one: renderers sort them

// Lines have no area, and count all the same.
bool touches(const QRectF& a, const QRectF& b) {
  return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

QRectF united(const QRectF& a, const QRectF& b) {
  return QRectF(QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
                QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom())));
}

}  // namespace

SvgSheet::SvgSheet(QSizeF page, int decimals, qsizetype mostBytes)
    : page_(page), decimals_(decimals), mostBytes_(mostBytes) {
  open_.emplace_back();
}

// Letters first: a name must not begin with a digit.
QByteArray SvgSheet::nextName() {
  QByteArray name;
  for (int n = names_++; n >= 0; n = n / 26 - 1) name.prepend(char('a' + n % 26));
  return name;
}

void SvgSheet::count(const QByteArray& text) {
  bytes_ += text.size();
  elements_ += text.count('<');
  if (bytes_ > mostBytes_ || elements_ > limits::maximumSvgElements || hasEndlessAttribute(text))
    full_ = true;
  if (weight_ > limits::maximumSvgWeight) full_ = true;
}

QByteArray SvgSheet::define(const QByteArray& element) {
  const QByteArray digest = QCryptographicHash::hash(element, QCryptographicHash::Sha1);
  if (const auto at = known_.constFind(digest); at != known_.constEnd()) return *at;
  const QByteArray name = nextName();
  known_.insert(digest, name);
  if (element.startsWith("<path d=")) outlines_.insert(name);
  weights_.set(name, weights_.of(element));
  count(element);
  if (!full_) definitions_ += withAttributes(element, attribute("id", name)) + '\n';
  return name;
}

bool SvgSheet::isSeen(const QRectF& bounds, const SvgClips& clips) const {
  const Open& open = open_.back();
  const QRectF page(QPointF(0, 0), page_);
  return (open.elsewhere || touches(bounds, page)) &&
         std::all_of(clips.begin() + std::min(open.seenFrom, clips.size()), clips.end(),
                     [&](const auto& clip) { return touches(bounds, clip->bounds); });
}

// ---- paths --------------------------------------------------------------------------------------------

bool SvgSheet::mergeWithPending(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke,
                                bool plain, const QRectF& bounds, const SvgPlace& place) {
  std::optional<Pending>& pending = open_.back().pending;
  if (!pending || !fill.isEmpty() || pending->place.clips != place.clips || !place.blend.isEmpty() ||
      !place.mask.isEmpty() || !pending->place.blend.isEmpty() || !pending->place.mask.isEmpty())
    return false;
  if (pending->stroke.isEmpty() && pending->data == data) {
    pending->stroke = stroke;  // filled and stroked
    pending->plain = false;
  } else if (pending->fill.isEmpty() && pending->stroke == stroke && plain && pending->plain &&
             pending->data.size() + data.size() <= kLongestJoined) {
    pending->data += data;
  } else {
    return false;
  }
  pending->bounds = united(pending->bounds, bounds);
  return true;
}

void SvgSheet::addPath(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke, bool plain,
                       const QRectF& bounds, const SvgPlace& place) {
  if (full_ || data.isEmpty() || !isSeen(bounds, place.clips)) return;
  if (data.size() > limits::maximumSvgAttribute) {
    full_ = true;
    return;
  }
  if (mergeWithPending(data, fill, stroke, plain, bounds, place)) return;
  flush();
  open_.back().pending = Pending{data, fill, stroke, plain, bounds, place};
}

void SvgSheet::flush() {
  std::optional<Pending> path = std::exchange(open_.back().pending, std::nullopt);
  if (path) put(pathElement(path->data, path->fill, path->stroke), true, path->bounds, path->place);
}

// ---- elements -----------------------------------------------------------------------------------------

void SvgSheet::add(const QByteArray& element, bool attributable, const QRectF& bounds,
                   const SvgPlace& place) {
  if (full_ || element.isEmpty() || !isSeen(bounds, place.clips)) return;
  flush();
  put(element, attributable, bounds, place);
}

void SvgSheet::put(const QByteArray& element, bool attributable, const QRectF& bounds,
                   const SvgPlace& place) {
  QByteArray whole = element;
  bool takesAttributes = attributable;
  if (!place.mask.isEmpty()) {
    const QByteArray mask = attribute("mask", reference(place.mask));
    whole = attributable ? withAttributes(element, mask) : "<g" + mask + '>' + element + "</g>";
    takesAttributes = true;
  }
  if (place.blend.isEmpty()) {
    openClips(neededClips(place.clips, bounds), place.clips);
  } else {
    openClips({}, {});
    const bool isBounded = withClips(whole, takesAttributes, neededClips(place.clips, bounds));
    const QByteArray style = attribute("style", "mix-blend-mode:" + place.blend);
    whole = isBounded || !place.mask.isEmpty() ? "<g" + style + '>' + whole + "</g>"
                                               : withAttributes(whole, style);
    takesAttributes = false;
  }
  Open& open = open_.back();
  open.layer.bounds = open.layer.body.isEmpty() ? bounds : united(open.layer.bounds, bounds);
  open.layer.blends = open.layer.blends || !place.blend.isEmpty();
  if (open.groups.empty()) {
    ++open.layer.elements;
  } else {
    Group& group = open.groups.back();
    if (group.children++ == 0) group.child = open.layer.body.size();
    group.attributable = takesAttributes;
  }
  open.layer.body += whole + '\n';
  if (open_.size() == 1) weight_ += weights_.of(whole);
  count(whole);
}

void SvgSheet::addLayer(const SvgLayer& layer, const QByteArray& attributes, bool isolated,
                        const SvgPlace& place) {
  if (layer.elements == 0) return;
  const bool grouped = !attributes.isEmpty() || !place.blend.isEmpty() || !place.mask.isEmpty();
  QByteArray body = layer.body;
  if (grouped || (isolated && layer.blends)) {
    const QByteArray isolation = grouped ? QByteArray() : QByteArray(" style=\"isolation:isolate\"");
    body = "<g" + attributes + isolation + ">\n" + body + "</g>";
    add(body, true, layer.bounds, place);
    return;
  }
  if (full_ || !isSeen(layer.bounds, place.clips)) return;
  flush();
  body.chop(1);  // the line's end
  put(body, false, layer.bounds, place);
  Open& open = open_.back();
  open.layer.blends = open.layer.blends || layer.blends;
  if (open.groups.empty())
    open.layer.elements += layer.elements - 1;
  else
    open.groups.back().children += layer.elements;  // never merged with one of them
}

// ---- layers and the whole -----------------------------------------------------------------------------

void SvgSheet::beginGroup() {
  beginLayer(open_.back().base);
}

void SvgSheet::beginLayer(qsizetype clips, bool elsewhere) {
  flush();
  const bool wasElsewhere = open_.back().elsewhere;
  const qsizetype seenFrom = elsewhere ? clips : open_.back().seenFrom;
  open_.emplace_back();
  open_.back().base = clips;
  open_.back().seenFrom = seenFrom;
  open_.back().elsewhere = elsewhere || wasElsewhere;
  if (open_.size() > size_t(limits::maximumSvgDepth)) full_ = true;
}

SvgLayer SvgSheet::endLayer() {
  flush();
  while (!open_.back().groups.empty()) closeGroup();
  SvgLayer layer = std::move(open_.back().layer);
  open_.pop_back();
  bytes_ -= layer.body.size();
  elements_ -= layer.body.count('<');
  return layer;
}

QByteArray SvgSheet::document(const QByteArray& head) {
  while (open_.size() > 1) {
    const SvgLayer left = endLayer();
    Q_UNUSED(left)
  }
  const SvgLayer page = endLayer();
  open_.emplace_back();
  const QByteArray width = svgNumber(page_.width(), 4), height = svgNumber(page_.height(), 4);
  QByteArray text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
      "version=\"1.1\"" +
      attribute("width", width + "pt") + attribute("height", height + "pt") +
      attribute("viewBox", "0 0 " + width + ' ' + height) + " stroke-miterlimit=\"10\">\n" + head;
  text.reserve(text.size() + definitions_.size() + page.body.size() + 64);
  if (!definitions_.isEmpty()) text += "<defs>\n" + definitions_ + "</defs>\n";
  return text + page.body + "</svg>\n";
}

}  // namespace norvex::engine
