// Transparency groups and soft masks.
#include <Function.h>
#include <GfxState.h>

#include <cmath>
#include <optional>
#include <utility>

#include "worker/svg_output/svg_device.h"
#include "worker/svg_output/svg_device_state.h"
#include "worker/svg_output/svg_path.h"
#include "worker/svg_output/svg_writing.h"

namespace norvex::engine {
namespace {

constexpr int kTransferSteps = 16;
constexpr double kUnseen = 1.0 / 255;

// The values of a transfer function between evenly spaced places; empty where it changes nothing.
QByteArray transferTable(const Function* transfer) {
  if (!transfer) return {};
  QByteArray text;
  bool changes = false;
  for (int i = 0; i <= kTransferSteps; ++i) {
    const double in = double(i) / kTransferSteps;
    double out[gfxColorMaxComps] = {in};
    transfer->transform(&in, out);
    changes = changes || std::abs(out[0] - in) > kUnseen;
    text += (text.isEmpty() ? "" : " ") + svgNumber(std::isfinite(out[0]) ? out[0] : in, 4);
  }
  return changes ? text : QByteArray();
}

QByteArray function(const char* channel, const QByteArray& table) {
  return QByteArray("<feFunc") + channel + " type=\"table\"" + attribute("tableValues", table) + "/>";
}

// The value of the attribute that begins at `at`, a place behind its quotation mark.
QByteArray valueAt(const QByteArray& body, qsizetype at) {
  return body.mid(at, body.indexOf('"', at) - at);
}

// What is painted, painted white: its luminosity is its opacity. Nothing where that cannot be said by colours
// alone. Inkscape takes masks for those of luminosity, whatever they say.
std::optional<QByteArray> inWhite(const QByteArray& body, const SvgSheet& sheet) {
  constexpr QByteArrayView kUse = "xlink:href=\"#";
  if (body.contains("<image") || body.contains("mix-blend-mode")) return std::nullopt;
  for (qsizetype at = 0; (at = body.indexOf(kUse, at)) >= 0; at += kUse.size())
    if (!sheet.isOutline(valueAt(body, at + kUse.size()))) return std::nullopt;
  QByteArray white;
  white.reserve(body.size());
  qsizetype copied = 0;
  for (qsizetype at = 0; (at = body.indexOf("=\"", at)) >= 0;) {
    const QByteArrayView before = QByteArrayView(body).first(at);
    at += 2;
    if (!before.endsWith(" fill") && !before.endsWith(" stroke")) continue;
    const QByteArray value = valueAt(body, at);
    if (value.startsWith("url")) return std::nullopt;
    if (!value.startsWith('#')) continue;
    white += QByteArrayView(body).sliced(copied, at - copied);
    white += "#fff";
    copied = at + value.size();
  }
  white += QByteArrayView(body).sliced(copied);
  return "<g fill=\"#fff\">\n" + white + "</g>\n";
}

QByteArray pageArea(const SvgSheet& sheet) {
  return attribute("x", "0") + attribute("y", "0") +
         attribute("width", svgNumber(sheet.page().width(), sheet.decimals())) +
         attribute("height", svgNumber(sheet.page().height(), sheet.decimals()));
}

}  // namespace

// The form's own box, which clips it, was set in a state that is gone when the group is painted: it belongs
// to the group's content.
void SvgDevice::beginTransparencyGroup(GfxState*, const double*, GfxColorSpace* space, bool isolated,
                                       bool knockout, bool forSoftMask) {
  flushText();
  begun_.emplace_back();
  begun_.back().isolated = isolated;
  begun_.back().knocksOut = knockout;
  if (forSoftMask && space) begun_.back().space.reset(space->copy());
  if (!forSoftMask) return sheet_.beginGroup();
  const State& around = states_[states_.size() < 2 ? 0 : states_.size() - 2];
  sheet_.beginLayer(around.clips.size());
}

void SvgDevice::endTransparencyGroup(GfxState*) {
  flushText();
  if (begun_.empty()) return;
  Group group = std::move(begun_.back());
  begun_.pop_back();
  group.layer = sheet_.endLayer();
  groups_.push_back(std::move(group));
}

void SvgDevice::paintTransparencyGroup(GfxState* state, const double*) {
  if (groups_.empty()) return;
  Group group = std::move(groups_.back());
  groups_.pop_back();
  SvgPlace where = place(state);
  where.clips.clear();  // its elements have them
  const QByteArray opacity = opacityText("opacity", state->getFillOpacity());
  const bool closes = !opacity.isEmpty() || !where.blend.isEmpty() || !where.mask.isEmpty();
  changedGroups_ = changedGroups_ || (group.knocksOut && group.layer.elements > 1) ||
                   (!group.isolated && group.layer.blends && closes);
  sheet_.addLayer(group.layer, opacity, group.isolated, where);
}

void SvgDevice::setSoftMask(GfxState* state, const double*, bool alpha, Function* transfer,
                            GfxColor* backdrop) {
  flushText();
  if (groups_.empty()) return;
  Group group = std::move(groups_.back());
  groups_.pop_back();
  QByteArray body = group.layer.body;
  const QByteArray table = transferTable(transfer);
  if (!alpha) {
    // What nothing is painted on has the backdrop's luminosity, and what the function makes of it.
    GfxRGB rgb{};
    if (backdrop && group.space) group.space->getRGB(backdrop, &rgb);
    const QByteArray colour = colourText({colToDbl(rgb.r), colToDbl(rgb.g), colToDbl(rgb.b)});
    if (colour != "#000" || !table.isEmpty())
      body = "<rect" + pageArea(sheet_) + attribute("fill", colour) + "/>\n" + body;
  }
  if (!table.isEmpty()) {
    const QByteArray functions =
        alpha ? function("A", table) : function("R", table) + function("G", table) + function("B", table);
    const QByteArray filter = sheet_.define(
        "<filter filterUnits=\"userSpaceOnUse\" color-interpolation-filters=\"sRGB\"" + pageArea(sheet_) +
        "><feComponentTransfer>" + functions + "</feComponentTransfer></filter>");
    body = "<g" + attribute("filter", "url(#" + filter + ')') + ">\n" + body + "</g>\n";
  }
  const std::optional<QByteArray> white = alpha && table.isEmpty() ? inWhite(body, sheet_) : std::nullopt;
  states_.back().mask =
      sheet_.define("<mask maskUnits=\"userSpaceOnUse\"" + pageArea(sheet_) +
                    (alpha && !white ? QByteArray(" style=\"mask-type:alpha\"") : QByteArray()) + ">\n" +
                    white.value_or(body) + "</mask>");
  Q_UNUSED(state)
}

void SvgDevice::clearSoftMask(GfxState*) {
  states_.back().mask.clear();
}

}  // namespace norvex::engine
