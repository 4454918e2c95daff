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
constexpr double kSlack = 1e-3;             // points by which a clip's edge may touch what it bounds

QByteArray withAttributes(const QByteArray& element, const QByteArray& attributes) {
  if (attributes.isEmpty()) return element;
  const auto endsName = [](char c) { return c == ' ' || c == '/' || c == '>'; };
  const auto end = std::find_if(element.begin(), element.end(), endsName);
  return QByteArray(element).insert(end - element.begin(), attributes);
}

QByteArray reference(const QByteArray& name) {
  return "url(#" + name + ')';
}

bool contains(const QRectF& outer, const QRectF& inner) {
  return outer.left() <= inner.left() + kSlack && outer.right() >= inner.right() - kSlack &&
         outer.top() <= inner.top() + kSlack && outer.bottom() >= inner.bottom() - kSlack;
}

// Lines have no area, and count all the same.
bool touches(const QRectF& a, const QRectF& b) {
  return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

QRectF united(const QRectF& a, const QRectF& b) {
  return QRectF(QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
                QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom())));
}

// Black is what everything is filled with that says nothing.
QByteArray pathElement(const QByteArray& data, const QByteArray& fill, const QByteArray& stroke) {
  constexpr char kBlack[] = " fill=\"#000\"";
  QByteArray paint = fill.isEmpty() ? QByteArray(" fill=\"none\"") : fill;
  if (paint.startsWith(kBlack)) paint.remove(0, qsizetype(sizeof kBlack) - 1);
  return "<path" + paint + stroke + attribute("d", data) + "/>";
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
  openClips(place.clips, bounds);
  QByteArray attributes;
  if (!place.blend.isEmpty()) attributes += attribute("style", "mix-blend-mode:" + place.blend);
  if (!place.mask.isEmpty()) attributes += attribute("mask", reference(place.mask));
  const bool wrap = !place.mask.isEmpty() && !attributable;
  const QByteArray whole =
      wrap ? "<g" + attributes + '>' + element + "</g>" : withAttributes(element, attributes);
  Open& open = open_.back();
  open.layer.bounds = open.layer.body.isEmpty() ? bounds : united(open.layer.bounds, bounds);
  open.layer.blends = open.layer.blends || !place.blend.isEmpty();
  if (open.groups.empty()) {
    ++open.layer.elements;
  } else {
    Group& group = open.groups.back();
    if (group.children++ == 0) group.child = open.layer.body.size();
    group.attributable = attributable || wrap;
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
  openClips(place.clips, layer.bounds);
  put(body, false, layer.bounds, place);
  Open& open = open_.back();
  open.layer.blends = open.layer.blends || layer.blends;
  if (open.groups.empty())
    open.layer.elements += layer.elements - 1;
  else
    open.groups.back().children += layer.elements;  // never merged with one of them
}

// ---- clips --------------------------------------------------------------------------------------------

QByteArray SvgSheet::clipAttribute(const SvgClip& clip) {
  if (!clip.stroke.isEmpty()) {
    const QByteArray area = attribute("x", "0") + attribute("y", "0") +
                            attribute("width", svgNumber(page_.width(), decimals_)) +
                            attribute("height", svgNumber(page_.height(), decimals_));
    return attribute(
        "mask",
        reference(define("<mask maskUnits=\"userSpaceOnUse\"" + area + '>' +
                         pathElement(clip.path, {}, clip.stroke + attribute("stroke", "#fff")) + "</mask>")));
  }
  const QByteArray rule = clip.evenOdd ? attribute("clip-rule", "evenodd") : QByteArray();
  return attribute("clip-path",
                   reference(define("<clipPath><path" + rule + attribute("d", clip.path) + "/></clipPath>")));
}

void SvgSheet::openClips(const SvgClips& clips, const QRectF& bounds) {
  std::vector<Group>& groups = open_.back().groups;
  SvgClips needed;
  for (qsizetype i = open_.back().base; i < clips.size(); ++i)
    if (!clips[i]->isRectangle || !contains(clips[i]->bounds, bounds)) needed << clips[i];
  // What is open serves when it holds all that is needed, and nothing that is not in force.
  const auto isOpen = [&](const auto& clip) {
    return std::any_of(groups.begin(), groups.end(), [&](const Group& group) { return group.clip == clip; });
  };
  const bool inForce = std::all_of(groups.begin(), groups.end(),
                                   [&](const Group& group) { return clips.contains(group.clip); });
  if (inForce && std::all_of(needed.begin(), needed.end(), isOpen)) return;
  size_t same = 0;
  while (same < groups.size() && same < size_t(needed.size()) && groups[same].clip == needed[qsizetype(same)])
    ++same;
  while (groups.size() > same) closeGroup();
  for (qsizetype i = qsizetype(same); i < needed.size(); ++i) openGroup(needed[i]);
}

void SvgSheet::openGroup(const std::shared_ptr<const SvgClip>& clip) {
  const QByteArray attributes = clipAttribute(*clip);
  Open& open = open_.back();
  if (open.groups.empty()) {
    ++open.layer.elements;
  } else {
    Group& outer = open.groups.back();
    if (outer.children++ == 0) outer.child = open.layer.body.size();
    outer.attributable = false;
  }
  if (open_.size() + open.groups.size() > size_t(limits::maximumSvgDepth)) full_ = true;
  open.groups.push_back({clip, open.layer.body.size(), attributes});
  const QByteArray start = "<g" + attributes + ">\n";
  open.layer.body += start;
  count(start);
}

// A group of one element: the clip becomes that element's own.
void SvgSheet::closeGroup() {
  Open& open = open_.back();
  const Group group = open.groups.back();
  open.groups.pop_back();
  QByteArray& body = open.layer.body;
  if (group.children == 1 && group.attributable && group.clip->stroke.isEmpty()) {
    const QByteArray child = body.mid(group.child);
    body.truncate(group.at);
    body += withAttributes(child, group.attributes);
  } else {
    body += "</g>\n";
  }
}

// ---- layers and the whole -----------------------------------------------------------------------------

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
