#include "worker/svg/svg_renderer.h"

#include <QString>

// GIO has members called "signals", which Qt makes a macro of.
#pragma push_macro("signals")
#undef signals
#include <gio/gio.h>
#include <librsvg/rsvg.h>
#pragma pop_macro("signals")

#include <algorithm>
#include <cmath>

#include "worker/drawing/cairo_surface.h"
#include "worker/drawing/told_drawing.h"

namespace norvex::engine {
namespace {

struct Unreference {
  void operator()(void* object) const { g_object_unref(object); }
};
struct FreeError {
  void operator()(GError* error) const { g_error_free(error); }
};

/// A GError's text as the rest of a sentence.
QString reason(GError* raw) {
  const std::unique_ptr<GError, FreeError> error(raw);
  if (!error) return QStringLiteral("no reason is given");
  QString text = QString::fromUtf8(error->message).simplified().left(200);
  while (text.endsWith('.')) text.chop(1);
  return text;
}

// librsvg tells the kinds of its failures in their texts alone.
ErrorKind kindOf(const QString& reason, ErrorKind otherwise) {
  for (const char* sign : {"limit", "too many", "exceed", "out of memory", "No memory", "NoMemory"})
    if (reason.contains(QLatin1String(sign), Qt::CaseInsensitive)) return ErrorKind::Limit;
  return otherwise;
}

bool isSampleTold() {
  const auto sample = SvgRenderer::create(
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><path d="M1 1h7v7z"/></svg>)", false);
  if (!sample) return false;
  const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 9, 9));
  const CairoContext context(cairo_create(surface.get())), other(cairo_create(surface.get()));
  ToldDrawing told;
  {
    const ToldDrawing::Teller teller(told, context.get());
    if (!(*sample)->draw(context.get(), {9, 9})) return false;
  }
  told.end();
  return told.draw(other.get());
}

/// librsvg has lengths in single precision: what no rule changes stays as it was.
std::optional<SvgLength> styledLength(const RsvgLength& length, const std::optional<SvgLength>& own) {
  constexpr const char* units[] = {"%", "px", "em", "ex", "in", "cm", "mm", "pt", "pc"};  // as RsvgUnit
  constexpr double percent = 100, precise = 1e-5;
  const double number = length.length * (length.unit == RSVG_UNIT_PERCENT ? percent : 1);
  const auto found = parseSvgLength(QString::number(number, 'g', 9) + QLatin1String(units[length.unit]));
  const bool same = found && own && found->isPercentage == own->isPercentage &&
                    std::abs(found->pixels - own->pixels) <= precise * std::abs(own->pixels) &&
                    std::abs(found->percent - own->percent) <= precise * std::abs(own->percent);
  return same || !found ? own : found;
}

}  // namespace

struct SvgRenderer::Handle {
  std::unique_ptr<RsvgHandle, Unreference> rsvg;
};

SvgRenderer::SvgRenderer(std::unique_ptr<Handle> handle) : handle_(std::move(handle)) {}
SvgRenderer::~SvgRenderer() = default;

Result<std::unique_ptr<SvgRenderer>> SvgRenderer::create(const QByteArray& utf8, bool hugeParser) {
  // The stream has no base file, and so no reference to another file can be resolved, let alone read.
  const std::unique_ptr<GInputStream, Unreference> stream(
      g_memory_input_stream_new_from_data(utf8.constData(), utf8.size(), nullptr));
  // Images keep their compressed form, so that a PDF holds the JPEG itself. Without the fixed bounds of the
  // parser (texts over 10 MB, nesting over 256) only what has passed our own limits is parsed.
  const int flags = RSVG_HANDLE_FLAG_KEEP_IMAGE_DATA | (hugeParser ? RSVG_HANDLE_FLAG_UNLIMITED : 0);
  GError* error = nullptr;
  auto handle = std::make_unique<Handle>();
  handle->rsvg.reset(rsvg_handle_new_from_stream_sync(stream.get(), nullptr,
                                                      static_cast<RsvgHandleFlags>(flags), nullptr, &error));
  if (!handle->rsvg) {
    const QString why = reason(error);
    return Error{kindOf(why, ErrorKind::NotParsable),
                 QStringLiteral("the picture cannot be read: %1").arg(why)};
  }
  rsvg_handle_set_dpi(handle->rsvg.get(), 96.0);
  return std::unique_ptr<SvgRenderer>(new SvgRenderer(std::move(handle)));
}

SvgGeometry SvgRenderer::styled(const SvgGeometry& own) const {
  gboolean hasWidth = false, hasHeight = false, hasBox = false;
  RsvgLength width{}, height{};
  RsvgRectangle box{};
  rsvg_handle_get_intrinsic_dimensions(handle_->rsvg.get(), &hasWidth, &width, &hasHeight, &height, &hasBox,
                                       &box);
  SvgGeometry geometry = own;
  if (hasWidth) geometry.width = styledLength(width, own.width);
  if (hasHeight) geometry.height = styledLength(height, own.height);
  return geometry;
}

QSizeF SvgRenderer::drawnExtent() const {
  // Percentages inside need some viewport; CSS's default size of a picture serves as one.
  const QSizeF common(300, 150);
  const QSizeF extent = extentWithin(common);
  // What is laid out by its viewport would be laid out anew by an extent that is another one, and again not
  // fill it: such a picture has the common size.
  return extent.isEmpty() || extentWithin(extent) == extent ? extent : common;
}

QSizeF SvgRenderer::extentWithin(const QSizeF& pixels) const {
  RsvgRectangle ink{}, logical{};
  const RsvgRectangle viewport{0, 0, pixels.width(), pixels.height()};
  GError* error = nullptr;
  if (!rsvg_handle_get_geometry_for_layer(handle_->rsvg.get(), nullptr, &viewport, &ink, &logical, &error)) {
    g_clear_error(&error);
    return {};
  }
  const double right = std::ceil(ink.x + ink.width);
  const double bottom = std::ceil(ink.y + ink.height);
  if (!(ink.width > 0 && ink.height > 0) || !std::isfinite(right) || !std::isfinite(bottom)) return {};
  return QSizeF(std::max(right, 0.0), std::max(bottom, 0.0));
}

Result<void> SvgRenderer::draw(cairo_t* context, const QSizeF& pixels) const {
  const RsvgRectangle viewport{0, 0, pixels.width(), pixels.height()};
  GError* error = nullptr;
  cairo_save(context);
  cairo_rectangle(context, 0, 0, pixels.width(), pixels.height());
  cairo_clip(context);
  const bool drawn = rsvg_handle_render_document(handle_->rsvg.get(), context, &viewport, &error);
  cairo_restore(context);
  if (drawn) return {};
  const QString why = reason(error);
  return Error{kindOf(why, ErrorKind::Unsupported),
               QStringLiteral("the picture cannot be drawn: %1").arg(why)};
}

bool SvgRenderer::canBeTold() {
  static const bool told = isSampleTold();
  return told;
}

}  // namespace norvex::engine
