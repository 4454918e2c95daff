#include "worker/facts/facts_engine.h"

#include <QSizeF>

#include <utility>

#include "protocol/shared_errors.h"
#include "worker/pages/illustrator_page.h"
#include "worker/pages/read_pdf.h"
#include "worker/svg/svg_facts.h"

namespace norvex::engine {
namespace {

Error onlyFacts() {
  return {ErrorKind::Unsupported, QStringLiteral("this picture was opened for its facts alone")};
}

/// A document that was looked into.
class FactsEngine : public DocumentEngine {
 public:
  explicit FactsEngine(PictureFacts facts) : facts_(std::move(facts)) {}
  Result<PictureFacts> facts() override { return facts_; }
  Result<Bitmap> render(const RenderRequest&) override { return onlyFacts(); }
  Result<EngineBytes> pdf(const PdfRequest&) override { return onlyFacts(); }
  Result<EngineBytes> compose(const ComposeRequest&) override { return onlyFacts(); }

 private:
  const PictureFacts facts_;
};

/// … whose pages tell names.
class PdfFactsEngine final : public FactsEngine {
 public:
  explicit PdfFactsEngine(ReadPdf read) : FactsEngine(read.facts), read_(std::move(read)) {}
  Result<EngineBytes> examine(const ExamineRequest& request) override {
    if (request.what != Examination::Names) return onlyFacts();
    return namesOfPage(*read_.file, request.page);
  }

 private:
  const ReadPdf read_;
};

/// Its text is read by what draws.
Result<bool> isSurelyNoNotice(const QByteArray&, const PdfFile& file) {
  if (mayHoldIllustratorNotice(file)) return drawingNeeded();
  return false;
}

}  // namespace

Result<std::unique_ptr<DocumentEngine>> openForFacts(PictureKind kind, const QByteArray& bytes,
                                                     EngineContext& context) {
  if (kind == PictureKind::Pdf) {
    Result<ReadPdf> read = readPdf(bytes, context, isSurelyNoNotice);
    if (!read) return read.error();
    return std::unique_ptr<DocumentEngine>(std::make_unique<PdfFactsEngine>(std::move(*read)));
  }
  if (kind != PictureKind::Svg) return onlyFacts();
  const Result<SvgReading> read = readSvg(bytes);
  if (!read) return read.error();
  if (read->inspection.sizesByStyleSheet) return drawingNeeded();
  const Result<QSizeF> pixels =
      measuredSvg(read->geometry, []() -> Result<QSizeF> { return drawingNeeded(); });
  if (!pixels) return pixels.error();
  return std::unique_ptr<DocumentEngine>(std::make_unique<FactsEngine>(svgFacts(*read, *pixels)));
}

}  // namespace norvex::engine
