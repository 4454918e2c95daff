// The clips around what is written.
#include <algorithm>
#include <utility>

#include "protocol/limits.h"
#include "worker/svg_output/svg_sheet.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr double kSlack = 1e-3;  // points by which a clip's edge may touch what it bounds

bool contains(const QRectF& outer, const QRectF& inner) {
  return outer.left() <= inner.left() + kSlack && outer.right() >= inner.right() - kSlack &&
         outer.top() <= inner.top() + kSlack && outer.bottom() >= inner.bottom() - kSlack;
}

bool isSameClip(const SvgClip& a, const SvgClip& b) {
  return &a == &b ||
         (a.bounds == b.bounds && a.evenOdd == b.evenOdd && a.stroke == b.stroke && a.path == b.path);
}

bool holds(const SvgClips& clips, const SvgClip& clip) {
  return std::any_of(clips.begin(), clips.end(), [&](const auto& one) { return isSameClip(*one, clip); });
}

}  // namespace

QByteArray SvgSheet::definedClip(const SvgClip& clip) {
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

// Defining a clip goes through all of its path, and each element that is blended has its clips for itself.
QByteArray SvgSheet::clipAttribute(const SvgClip& clip) {
  if (clip.attribute.isEmpty()) clip.attribute = definedClip(clip);
  return clip.attribute;
}

SvgClips SvgSheet::neededClips(const SvgClips& clips, const QRectF& bounds) const {
  SvgClips needed;
  // More than may be nested are a limit all the same.
  for (qsizetype i = open_.back().base; i < clips.size() && needed.size() <= limits::maximumSvgDepth; ++i) {
    const bool hides = !clips[i]->isRectangle || !contains(clips[i]->bounds, bounds);
    if (hides && !holds(needed, *clips[i])) needed << clips[i];
  }
  return needed;
}

// Readers isolate what a clip bounds (CSS Masking 1, clip-path): it would be blended with nothing. So the
// clips of an element that is blended stand inside of it. True if there are any.
bool SvgSheet::withClips(QByteArray& element, bool attributable, const SvgClips& clips) {
  if (open_.size() + size_t(clips.size()) > size_t(limits::maximumSvgDepth)) full_ = true;
  if (full_) return false;
  for (auto clip = clips.rbegin(); clip != clips.rend(); ++clip) {
    const QByteArray attributes = clipAttribute(**clip);
    element = std::exchange(attributable, false) && (*clip)->stroke.isEmpty()
                  ? withAttributes(element, attributes)
                  : "<g" + attributes + '>' + element + "</g>";
  }
  return !clips.isEmpty();
}

void SvgSheet::openClips(const SvgClips& needed, const SvgClips& inForce) {
  std::vector<Group>& groups = open_.back().groups;
  // What is open serves when it holds all that is needed, and nothing that is not in force.
  const auto isOpen = [&](const auto& clip) {
    return std::any_of(groups.begin(), groups.end(),
                       [&](const Group& group) { return isSameClip(*group.clip, *clip); });
  };
  const bool allInForce = std::all_of(groups.begin(), groups.end(),
                                      [&](const Group& group) { return holds(inForce, *group.clip); });
  if (allInForce && std::all_of(needed.begin(), needed.end(), isOpen)) return;
  size_t same = 0;
  while (same < groups.size() && same < size_t(needed.size()) &&
         isSameClip(*groups[same].clip, *needed[qsizetype(same)]))
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

}  // namespace norvex::engine
