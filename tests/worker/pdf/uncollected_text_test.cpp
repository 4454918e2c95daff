// GIO has members called "signals", which Qt makes a macro of.
#pragma push_macro("signals")
#undef signals
#include <poppler.h>
#pragma pop_macro("signals")

#include <cairo.h>

#include <memory>

#include "kit/test_main.h"
#include "worker/drawing/uncollected_text.h"
#include "worker/kit/made_pdf.h"

using namespace norvex;
using namespace norvex::engine;

namespace {

struct Release {
  void operator()(void* object) const { g_object_unref(object); }
};

/// The words that Poppler has of a page after it was drawn, and whether anything of it was drawn.
struct Drawn {
  QByteArray words;
  bool isPainted = false;
};

Drawn drawn(bool isCollected) {
  const QByteArray pdf = kit::onePage("BT /F1 40 Tf 10 10 Td (lighthouse) Tj ET",
                                      "/MediaBox [0 0 300 100] /Resources << /Font << /F1 << /Type /Font "
                                      "/Subtype /Type1 /BaseFont /Helvetica >> >> >>");
  GBytes* bytes = g_bytes_new(pdf.constData(), gsize(pdf.size()));
  const std::unique_ptr<PopplerDocument, Release> document(
      poppler_document_new_from_bytes(bytes, nullptr, nullptr));
  g_bytes_unref(bytes);
  if (!document) return {};
  const std::unique_ptr<PopplerPage, Release> page(poppler_document_get_page(document.get(), 0));
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 300, 100);
  cairo_t* context = cairo_create(surface);
  {
    const std::unique_ptr<UncollectedText> uncollected(isCollected ? nullptr : new UncollectedText);
    poppler_page_render(page.get(), context);
  }
  cairo_surface_flush(surface);
  const QByteArrayView pixels(cairo_image_surface_get_data(surface),
                              qsizetype(cairo_image_surface_get_stride(surface)) * 100);
  const std::unique_ptr<char, decltype(&g_free)> words(poppler_page_get_text(page.get()), &g_free);
  const Drawn found{words.get(), std::any_of(pixels.begin(), pixels.end(), [](char c) { return c != 0; })};
  cairo_destroy(context);
  cairo_surface_destroy(surface);
  return found;
}

}  // namespace

class UncollectedTextTest : public QObject {
  Q_OBJECT
 private slots:
  void whatIsDrawnIsCollectedUnlessNobodyWantsIt() {
    const Drawn collected = drawn(true), uncollected = drawn(false);
    QCOMPARE(collected.words.trimmed(), QByteArray("lighthouse"));
    QVERIFY(collected.isPainted);
    QCOMPARE(uncollected.words.trimmed(), QByteArray());
    QVERIFY(uncollected.isPainted);
  }

  void itEndsWithTheLastOfThem() {
    QVERIFY(!UncollectedText::isActive());
    {
      const UncollectedText outer;
      { const UncollectedText inner; }
      QVERIFY(UncollectedText::isActive());
    }
    QVERIFY(!UncollectedText::isActive());
  }
};

NORVEX_TEST(UncollectedTextTest)
#include "uncollected_text_test.moc"
