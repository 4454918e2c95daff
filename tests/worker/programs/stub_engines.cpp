#include "stub_engines.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <limits>
#include <vector>

namespace norvex::kit {
namespace {

[[noreturn]] void hang() {
  while (true) ::pause();
}

void waitForCancel(const engine::EngineContext& context) {
  while (!context.cancel.cancelled()) ::usleep(2000);
}

Error cancelled() {
  return {ErrorKind::Cancelled, QStringLiteral("stopped as asked")};
}
Error missing() {
  return {ErrorKind::NotParsable, QStringLiteral("there is no such page")};
}

void litter(const QString& folder) {
  const QByteArray path = QFile::encodeName(folder);
  ::mkdir((path + "/sub").constData(), 0700);
  for (const char* name : {"/a", "/sub/b"}) {
    QFile file(folder + QLatin1String(name));
    if (file.open(QIODevice::WriteOnly)) file.write("left behind");
  }
}

/// What is open in this process, by number and what it leads to.
QString descriptors() {
  QStringList all;
  for (int fd = 0; fd < 1024; ++fd) {
    char target[256] = {};
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(fd);
    if (::readlink(link.constData(), target, sizeof target - 1) > 0)
      all << QStringLiteral("%1=%2").arg(fd).arg(QString::fromLatin1(target).section(':', 0, 0));
  }
  return all.join(' ');
}

void beget() {
  if (::fork() == 0) hang();
}

// Compilers would see that it never ends.
int (*volatile deeperStill)(int) = nullptr;

int deeper(int depth) {
  volatile char frame[4096];
  frame[0] = char(depth);
  deeperStill = deeper;
  return deeperStill(depth + 1) + frame[0];
}

// Gives what the last call gave, which is nothing.
volatile char* takeAllMemory() {
  while (void* const piece = std::malloc(1 << 20)) static_cast<volatile char*>(piece)[0] = 1;
  return nullptr;
}

class StubEngine final : public engine::DocumentEngine {
 public:
  StubEngine(QByteArray bytes, engine::EngineContext& context)
      : bytes_(std::move(bytes)), context_(context) {}

  Result<PictureFacts> facts() override {
    PictureFacts facts;
    const QByteArrayList words = bytes_.split(' ');
    double width = words.value(1, "100").toDouble();
    if (words.first() == "nan") width = std::numeric_limits<double>::quiet_NaN();
    facts.pageBounds << QRectF(0, 0, width, words.value(2, "50").toDouble());
    facts.title = QString::fromLatin1(qgetenv("NORVEX_STUB_CANARY"));
    facts.description = context_.scratchFolder;
    facts.attributes = {{"descriptors", descriptors()},
                        {"group", QString::number(::getpgrp() == ::getpid())}};
    facts.warnings << QStringLiteral("a \x1b[31mwarning\nwith colour");
    return facts;
  }

  Result<engine::Bitmap> render(const RenderRequest& request) override {
    if (request.page == 99) return missing();
    misbehave(bytes_.split(' ').first());
    if (context_.cancel.cancelled()) return cancelled();
    Result<engine::Bitmap> image = engine::Bitmap::create(request.pixelSize);
    if (image)
      std::fill_n(image->row(0), size_t(image->width()) * size_t(image->height()), 0xFF000000 + request.page);
    return image;
  }

  [[nodiscard]] QStringList drawingRemarks() const override {
    return {QStringLiteral("a \x1b[31mremark\nabout fonts")};
  }

  Result<engine::EngineBytes> pdf(const PdfRequest& request) override {
    if (request.page == 99) return missing();
    return engine::EngineBytes{"PDF " + QByteArray::number(request.page), {}};
  }

  Result<engine::EngineBytes> compose(const ComposeRequest& request) override {
    if (request.page == 99) return missing();
    return engine::EngineBytes{request.format == VectorFormat::Eps ? "EPS" : "PDF",
                               {1, 0.5, 150, {"one region"}}};
  }

  Result<engine::EngineBytes> svg(const SvgRequest&) override { return engine::EngineBytes{bytes_, {}}; }

 private:
  void misbehave(const QByteArray& mode) {
    if (mode == "sleepy") hang();
    if (mode == "sleepy-cancellable") waitForCancel(context_);
    if (mode == "fragile") ::raise(SIGKILL);
    if (mode == "greedy") std::vector<char>(size_t(1) << 40);
    if (mode == "deep") (void)deeper(0);
    if (mode == "aborting") takeAllMemory(), std::abort();
    if (mode == "careless") *takeAllMemory() = 1;
    if (mode == "wild") *static_cast<volatile char*>(nullptr) = 1;
    if (mode == "scratch") litter(context_.scratchFolder);
    if (mode == "orphan") beget();
  }

  QByteArray bytes_;
  engine::EngineContext& context_;
};

Result<std::unique_ptr<engine::DocumentEngine>> open(PictureKind, const QByteArray& bytes,
                                                     engine::EngineContext& context) {
  const QByteArray mode = bytes.split(' ').first();
  if (mode == "refuse") return Error{ErrorKind::Encrypted, QStringLiteral("a password\nis needed")};
  if (mode == "hang") hang();
  if (mode == "hang-cancellable") {
    waitForCancel(context);
    return cancelled();
  }
  if (mode == "crash") ::raise(SIGKILL);
  return std::unique_ptr<engine::DocumentEngine>(new StubEngine(bytes, context));
}

Result<NSBitmapImageRep> decodePreview(const QByteArray& tiff, const PictureLimits&) {
  if (tiff == "crash") ::raise(SIGKILL);
  if (tiff == "hang") hang();
  if (tiff.isEmpty()) return Error{ErrorKind::NotParsable, QStringLiteral("not a TIFF file")};
  NSBitmapImageRep bitmap;
  bitmap.pixelsWide = int(tiff.size());
  bitmap.pixelsHigh = 1;
  bitmap.colorSpaceName = QLatin1String(NSCalibratedWhiteColorSpace);
  bitmap.bytesPerRow = int(tiff.size());
  bitmap.data = tiff;
  return bitmap;
}

Result<QByteArray> setPdfAttributes(const QByteArray& pdf, const PdfAttributes& attributes) {
  return pdf + ' ' + attributes.texts.value("Title").toUtf8() + ' ' +
         (attributes.creationDate ? attributes.creationDate->toString(Qt::ISODate).toLatin1() : "never");
}

}  // namespace

EngineSet stubEngines() {
  EngineSet engines;
  engines.open = open;
  engines.decodePreview = decodePreview;
  engines.setPdfAttributes = setPdfAttributes;
  return engines;
}

}  // namespace norvex::kit
